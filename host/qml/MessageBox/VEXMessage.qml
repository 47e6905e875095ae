import QtQuick 2.15
import MessageBox 1.0
import Public 1.0
import VexTheme 1.0
import VexWindow 1.0

/*! A dialog that says \a info["showText"]. */
VEXContent {
    id: root

    readonly property var info: root.frame.info
    readonly property string message: root.info["showText"]

    function close() {
        root.frame.cancelClicked()
    }

    width: 420
    height: words.implicitHeight + 40 + 24 + 24 + 56
    focus: true
    Accessible.role: Accessible.AlertMessage
    Accessible.name: root.message
    Keys.onReturnPressed: root.close()
    Keys.onEnterPressed: root.close()
    Keys.onEscapePressed: root.close()

    VEXPopupsTitleBar {
        id: titleBar

        control: root
        text: ToolFun.tr("Notice")
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
        text: root.message
        wrapMode: Text.WordWrap
        lineHeight: 1.25
    }

    VEXBottomButton {
        anchors {
            right: parent.right
            rightMargin: 20
            bottom: parent.bottom
            bottomMargin: 12
        }
        control: root
        okText: ToolFun.tr("OK")
    }
}
