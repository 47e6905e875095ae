import QtQuick 2.15
import Controls 1.0
import VexTheme 1.0

/*!
 * The buttons at the bottom of the dialog \a control, which says in okFunc() and cancelFunc() what
 * they do. A button without a text isn't shown.
 */
Row {
    id: root

    required property VEXContent control
    property int buttonMinWidth: 104
    property string cancelText: ""
    property string okText: ""

    function okFunc() {
        root.control.frame.cancelClicked()
    }

    function cancelFunc() {
        root.control.frame.cancelClicked()
    }

    spacing: 12

    VEXButton {
        implicitHeight: Theme.smallControlHeight
        minWidth: root.buttonMinWidth
        leftPadding: 5
        rightPadding: 5
        visible: text !== ""
        text: root.cancelText
        font.pixelSize: Theme.smallText
        onClicked: root.cancelFunc()
    }

    VEXButton {
        implicitHeight: Theme.smallControlHeight
        minWidth: root.buttonMinWidth
        leftPadding: 5
        rightPadding: 5
        visible: text !== ""
        primary: true
        text: root.okText
        font.pixelSize: Theme.smallText
        onClicked: root.okFunc()
    }
}
