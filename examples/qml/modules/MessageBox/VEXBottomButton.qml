import QtQuick 2.15
import QtQuick.Controls 2.12

Row {
    id: root

    property Item control
    property real buttonMinWidth: 0
    property string cancelText
    property string okText

    function cancelFunc() {}
    function okFunc() {}

    spacing: 12

    Button {
        width: root.buttonMinWidth
        height: 32
        text: root.cancelText
        onClicked: root.cancelFunc()
    }

    Button {
        width: root.buttonMinWidth
        height: 32
        text: root.okText
        onClicked: root.okFunc()
    }
}
