import QtQuick 2.15
import Controls 1.0

/*!
 * The buttons at the bottom of the dialog \a control, which says in okFunc() and cancelFunc() what
 * they do. A button without a text isn't shown.
 */
Row {
    id: root

    required property Item control
    property int buttonMinWidth: 104
    property string cancelText: ""
    property string okText: ""

    function okFunc() {
        O_Frame.cancelClicked()
    }

    function cancelFunc() {
        O_Frame.cancelClicked()
    }

    spacing: 12

    VEXButton {
        implicitHeight: 32
        minWidth: root.buttonMinWidth
        leftPadding: 5
        rightPadding: 5
        visible: text !== ""
        text: root.cancelText
        font.pixelSize: 12
        onClicked: root.cancelFunc()
    }

    VEXButton {
        implicitHeight: 32
        minWidth: root.buttonMinWidth
        leftPadding: 5
        rightPadding: 5
        visible: text !== ""
        primary: true
        text: root.okText
        font.pixelSize: 12
        onClicked: root.okFunc()
    }
}
