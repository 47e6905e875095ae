import QtQuick 2.15
import Controls 1.0
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

    component Choice: Row {
        id: choice

        required property string caption
        property alias current: box.currentIndex
        property var words: []

        signal chosen(int index)

        spacing: Theme.spacing

        VEXLabel {
            width: 190
            height: Theme.smallControlHeight
            text: choice.caption
            wrapMode: Text.WordWrap
            maximumLineCount: 2
            font.pixelSize: Theme.smallText
        }

        VEXComboBox {
            id: box

            width: 240
            model: choice.words
            Accessible.name: choice.caption
            onActivated: choice.chosen(box.currentIndex)
        }
    }

    width: 190 + 240 + Theme.spacing + 2 * Theme.wideMargin
    height: 40 + 24 + content.implicitHeight + 24 + 56
    focus: true
    Accessible.role: Accessible.Dialog
    Accessible.name: titleBar.text
    Keys.onEscapePressed: root.frame.cancelClicked()

    VEXPopupsTitleBar {
        id: titleBar

        control: root
        text: ToolFun.tr("Preferences")
    }

    Column {
        id: content

        anchors {
            left: parent.left
            right: parent.right
            margins: Theme.wideMargin
            top: titleBar.bottom
        }
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
            caption: ToolFun.tr("Conversions at a time")
            words: root.jobs.map(function (count) {
                return count === 0 ? ToolFun.tr("As many as suit this machine") : String(count)
            })
            current: Math.max(0, root.jobs.indexOf(Settings.jobs))
            onChosen: function (index) { Settings.jobs = root.jobs[index] }
        }

        VEXCheckBox {
            id: notifying

            width: parent.width
            text: ToolFun.tr("Tell me when all files are converted")
            checked: Settings.isNotifying
            onToggled: Settings.isNotifying = notifying.checked
        }

        VEXCheckBox {
            id: sampling

            width: parent.width
            text: ToolFun.tr("Estimate sizes from short samples")
            checked: Settings.isSampling
            onToggled: Settings.isSampling = sampling.checked
        }

        VEXCheckBox {
            id: still

            width: parent.width
            text: ToolFun.tr("Show no animations")
            checked: Settings.isStill
            onToggled: Settings.isStill = still.checked
        }
    }

    VEXButton {
        anchors {
            left: parent.left
            leftMargin: 20
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
            rightMargin: 20
            bottom: parent.bottom
            bottomMargin: 12
        }
        control: root
        okText: ToolFun.tr("Close")
    }
}
