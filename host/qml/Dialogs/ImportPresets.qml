import QtQuick 2.15
import QtQuick.Controls 2.5
import Controls 1.0
import MessageBox 1.0
import Public 1.0
import VexTheme 1.0
import VexWindow 1.0

/*! Shows what would become of the presets of files, info["presets"], and imports them if the user
 *  says so. */
VEXContent {
    id: root

    readonly property var info: root.frame.info
    readonly property var presets: root.info["presets"]
    readonly property int importable: root.info["importable"]
    readonly property int conflicting: root.countOf("conflict")

    function countOf(state) {
        return root.presets.filter(function (each) {
            return each.state === state
        }).length
    }

    function stateText(state) {
        return state === "new" ? ToolFun.tr("new")
                               : state === "same" ? ToolFun.tr("you have it already")
                               : state === "conflict" ? ToolFun.tr("you have another one")
                                                      : ToolFun.tr("refused")
    }

    width: 640
    height: 460
    focus: true
    Accessible.role: Accessible.Dialog
    Accessible.name: titleBar.text
    Keys.onEscapePressed: root.frame.cancelClicked()

    VEXPopupsTitleBar {
        id: titleBar

        control: root
        text: ToolFun.tr("Import presets")
    }

    ListView {
        id: list

        anchors {
            left: parent.left
            right: parent.right
            top: titleBar.bottom
            bottom: conflict.top
            margins: Theme.margin
        }
        clip: true
        spacing: Theme.spacing
        boundsBehavior: Flickable.StopAtBounds
        activeFocusOnTab: true
        model: root.presets
        Accessible.role: Accessible.List
        Accessible.name: titleBar.text

        ScrollBar.vertical: VEXScrollBar {}

        delegate: Column {
            id: row

            required property var modelData

            width: list.width - 12
            spacing: 2
            Accessible.role: Accessible.ListItem
            Accessible.name: [row.modelData.title, row.modelData.format, state.text,
                              row.modelData.remarks].join(", ")

            Row {
                width: parent.width
                spacing: Theme.spacing

                VEXLabel {
                    width: Math.min(implicitWidth, parent.width - state.width - parent.spacing)
                    text: row.modelData.title + (row.modelData.format === ""
                                                 ? "" : "  ·  " + row.modelData.format)
                    Accessible.ignored: true
                }

                VEXLabel {
                    id: state

                    text: root.stateText(row.modelData.state)
                    color: row.modelData.state === "refused" ? Theme.danger
                                                             : row.modelData.state === "new"
                                                               ? Theme.success
                                                               : Theme.font_color_grade4
                    Accessible.ignored: true
                }
            }

            VEXLabel {
                width: parent.width
                visible: text !== ""
                elide: Text.ElideNone
                wrapMode: Text.Wrap
                font.pixelSize: Theme.smallText
                color: Theme.font_color_grade4
                text: row.modelData.remarks
                Accessible.ignored: true
            }
        }
    }

    Row {
        id: conflict

        anchors {
            left: parent.left
            leftMargin: Theme.margin
            bottom: buttons.top
            bottomMargin: 12
        }
        height: root.conflicting > 0 ? Theme.smallControlHeight : 0
        visible: root.conflicting > 0
        spacing: Theme.spacing

        VEXLabel {
            width: 330
            height: parent.height
            wrapMode: Text.WordWrap
            maximumLineCount: 2
            font.pixelSize: Theme.smallText
            text: ToolFun.tr("If you have another one of this title and format")
        }

        VEXComboBox {
            id: choice

            function transText(text) {
                return ToolFun.tr(text)
            }

            width: 260
            // In the order of PresetExchange.Conflict.
            model: ["Keep both", "Replace", "Skip"]
            Accessible.name: ToolFun.tr("If you have another one of this title and format")
        }
    }

    Row {
        id: buttons

        anchors {
            right: parent.right
            rightMargin: 20
            bottom: parent.bottom
            bottomMargin: 12
        }
        spacing: 12

        VEXButton {
            implicitHeight: Theme.smallControlHeight
            font.pixelSize: Theme.smallText
            text: root.importable > 0 ? ToolFun.tr("Cancel") : ToolFun.tr("Close")
            onClicked: root.frame.cancelClicked()
        }

        VEXButton {
            implicitHeight: Theme.smallControlHeight
            font.pixelSize: Theme.smallText
            primary: true
            focus: true
            visible: root.importable > 0
            text: ToolFun.tr("Import")
            onClicked: {
                PresetExchange.importPresets(choice.currentIndex)
                root.frame.cancelClicked()
            }
        }
    }
}
