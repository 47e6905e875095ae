import QtQuick 2.15

Item {
    id: root

    property Item control
    property string text

    height: 40

    Text {
        anchors.centerIn: parent
        text: root.text
    }
}
