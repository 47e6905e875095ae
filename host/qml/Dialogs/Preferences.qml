import QtQuick 2.15
import Controls 1.0
import Converter 1.0
import MessageBox 1.0
import Public 1.0
import VexTheme 1.0
import VexWindow 1.0

/*! The settings of the whole window. Each change holds at once. */
VEXContent {
    id: root

    readonly property var info: root.frame.info
    readonly property var languages: [""].concat(root.info["codes"])
    readonly property var jobs: [0, 1, 2, 3, 4, 6, 8]

    readonly property int columnWidth: 324

    component Caption: VEXLabel {
        width: root.columnWidth
        font.pixelSize: Theme.smallText
        color: Theme.font_color_grade4
    }

    component Choice: Column {
        id: choice

        required property string caption
        property alias current: box.currentIndex
        property var words: []

        signal chosen(int index)

        spacing: 4

        Caption {
            text: choice.caption
        }

        VEXComboBox {
            id: box

            width: root.columnWidth
            model: choice.words
            Accessible.name: choice.caption
            onActivated: choice.chosen(box.currentIndex)
        }
    }

    width: 2 * root.columnWidth + columns.spacing + 2 * Theme.wideMargin
    height: titleBar.height + columns.implicitHeight + 2 * Theme.margin + 48
    // What is wrong with a name may need another line.
    onHeightChanged: root.frame.resizeWinSize(root.width, root.height)
    focus: true
    Accessible.role: Accessible.Dialog
    Accessible.name: titleBar.text
    Keys.onEscapePressed: root.frame.cancelClicked()

    VEXPopupsTitleBar {
        id: titleBar

        control: root
        text: ToolFun.tr("Preferences")
    }

    Row {
        id: columns

        anchors {
            left: parent.left
            leftMargin: Theme.wideMargin
            top: titleBar.bottom
            topMargin: Theme.margin
        }
        spacing: Theme.wideMargin

        Column {
            spacing: Theme.spacing

            Choice {
                caption: ToolFun.tr("Theme")
                // In the order of Settings.ThemeChoice.
                words: [ToolFun.tr("As the desktop"), ToolFun.tr("Light"), ToolFun.tr("Dark")]
                current: Settings.theme
                onChosen: function (index) { Settings.theme = index }
            }

            Choice {
                caption: ToolFun.tr("Language (from the next start)")
                words: [ToolFun.tr("As the desktop")].concat(root.info["names"])
                current: Math.max(0, root.languages.indexOf(Settings.language))
                onChosen: function (index) { Settings.language = root.languages[index] }
            }

            Choice {
                caption: ToolFun.tr("Conversions at once")
                words: root.jobs.map(function (count) {
                    return count === 0 ? ToolFun.tr("As many as suit this machine") : String(count)
                })
                current: Math.max(0, root.jobs.indexOf(Settings.jobs))
                onChosen: function (index) { Settings.jobs = root.jobs[index] }
            }

            VEXCheckBox {
                id: notifying

                width: root.columnWidth
                text: ToolFun.tr("Tell me when all files are converted")
                checked: Settings.isNotifying
                onToggled: Settings.isNotifying = notifying.checked
            }

            VEXCheckBox {
                id: sampling

                width: root.columnWidth
                text: ToolFun.tr("Estimate sizes from short samples")
                checked: Settings.isSampling
                onToggled: Settings.isSampling = sampling.checked
            }

            VEXCheckBox {
                id: still

                width: root.columnWidth
                text: ToolFun.tr("Show no animations")
                checked: Settings.isStill
                onToggled: Settings.isStill = still.checked
            }
        }

        Column {
            spacing: 4

            Caption {
                elide: Text.ElideNone
                wrapMode: Text.WordWrap
                text: ToolFun.tr("For both pages; each can have its own settings below its list")
            }

            Caption {
                topPadding: Theme.spacing - 4
                text: ToolFun.tr("Save to")
            }

            Row {
                spacing: Theme.spacing

                FolderButton {
                    width: root.columnWidth - (sameFolder.visible
                                               ? sameFolder.width + parent.spacing : 0)
                    implicitHeight: Theme.smallControlHeight
                    font.pixelSize: Theme.smallText
                    output: OutputChoice
                }

                VEXImageButton {
                    id: sameFolder

                    width: 24
                    height: Theme.smallControlHeight
                    visible: OutputChoice.folder !== ""
                    iconSource: "qrc:/window/images/close.svg"
                    Accessible.name: ToolFun.tr("Same folder as the source")
                    onClicked: OutputChoice.folder = ""
                }
            }

            Caption {
                visible: text !== ""
                elide: Text.ElideNone
                wrapMode: Text.WordWrap
                text: OutputChoice.folderMistake
                color: Theme.danger
            }

            OutputFields {
                topPadding: Theme.spacing - 4
                width: root.columnWidth
                output: OutputChoice
                page: ConverterProxy
                Component.onCompleted: renew()
            }
        }
    }

    VEXButton {
        anchors {
            left: parent.left
            leftMargin: Theme.wideMargin
            bottom: parent.bottom
            bottomMargin: 12
        }
        implicitHeight: Theme.smallControlHeight
        font.pixelSize: Theme.smallText
        text: ToolFun.tr("About VexConvert")
        onClicked: Dialogs.showAbout()
    }

    VEXBottomButton {
        anchors {
            right: parent.right
            rightMargin: Theme.wideMargin
            bottom: parent.bottom
            bottomMargin: 12
        }
        control: root
        okText: ToolFun.tr("Close")
    }
}
