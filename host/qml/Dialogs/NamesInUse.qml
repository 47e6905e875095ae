import QtQuick 2.15
import Controls 1.0
import MessageBox 1.0
import Public 1.0
import VexTheme 1.0
import VexWindow 1.0

/*! Asks what happens to the results whose names, \a info["names"], are in use. */
VEXContent {
    id: root

    readonly property var info: root.frame.info
    readonly property var names: root.info["names"]
    readonly property var output: root.info["output"]
    readonly property int shownNames: 5

    function answer(ifInUse) {
        root.output.answer(ifInUse)
        root.frame.cancelClicked()
    }

    width: Math.max(520, buttons.implicitWidth + 40)
    height: words.implicitHeight + 40 + 24 + 24 + 56
    focus: true
    Accessible.role: Accessible.AlertMessage
    Accessible.name: words.text
    Keys.onEscapePressed: root.frame.cancelClicked()
    onActiveFocusChanged: {
        if (root.activeFocus) {
            keepBoth.forceActiveFocus()
        }
    }

    VEXPopupsTitleBar {
        id: titleBar

        control: root
        text: ToolFun.tr("Names in use")
    }

    VEXLabel {
        id: words

        anchors {
            left: parent.left
            leftMargin: Theme.wideMargin
            right: parent.right
            rightMargin: Theme.wideMargin
            top: titleBar.bottom
            topMargin: Theme.wideMargin
        }
        text: {
            const more = root.names.length - root.shownNames
            const lines = [ToolFun.tr("These files already exist:")]
                .concat(root.names.slice(0, root.shownNames))
            return (more > 0 ? lines.concat(ToolFun.tr("and %1 more").arg(more)) : lines).join("\n")
        }
        elide: Text.ElideNone
        wrapMode: Text.WrapAtWordBoundaryOrAnywhere
        lineHeight: 1.25
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

        component Answer: VEXButton {
            implicitHeight: Theme.smallControlHeight
            font.pixelSize: Theme.smallText
        }

        Answer {
            text: ToolFun.tr("Cancel")
            onClicked: root.frame.cancelClicked()
        }

        Answer {
            text: ToolFun.tr("Replace")
            onClicked: root.answer(Settings.Overwrite)
        }

        Answer {
            text: ToolFun.tr("Skip")
            onClicked: root.answer(Settings.Skip)
        }

        Answer {
            id: keepBoth

            primary: true
            text: ToolFun.tr("Keep both")
            onClicked: root.answer(Settings.Rename)
        }
    }
}
