import QtQuick 2.15
import MessageBox 1.0
import "."

/*! The two buttons of the dialog. */
VEXBottomButton {
    id: root

    required property string okCaption

    signal accepted()
    signal rejected()

    function okFunc() {
        root.accepted()
    }

    function cancelFunc() {
        root.rejected()
    }

    buttonMinWidth: Math.max(104, okLabel.advanceWidth + 10, cancelLabel.advanceWidth + 10)
    cancelText: cancelLabel.text
    okText: okLabel.text

    TextMetrics {
        id: okLabel

        text: root.okCaption
        font.pixelSize: ScreenStyle.smallText
    }

    TextMetrics {
        id: cancelLabel

        text: ToolFun.tr("Cancel")
        font.pixelSize: ScreenStyle.smallText
    }
}
