import QtQuick 2.15
import MessageBox 1.0
import Public 1.0

/*! A dialog that says O_Frame.info["showText"]. */
VEXContent {
    id: root

    readonly property string message: O_Frame.info["showText"]

    function close() {
        O_Frame.cancelClicked()
    }

    width: 420
    height: message.implicitHeight + 40 + 24 + 24 + 56
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
        id: message

        anchors {
            left: parent.left
            leftMargin: 24
            right: parent.right
            rightMargin: 24
            top: titleBar.bottom
            topMargin: 24
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
