import QtQuick 2.15
import QtQuick.Controls 2.5

AbstractButton {
    id: root

    property int mode: -1
    property real iconSize: 0
    property url iconSource

    hoverEnabled: true
    focusPolicy: Qt.NoFocus
    contentItem: Image {
        source: root.iconSource
        sourceSize: Qt.size(root.iconSize, root.iconSize)
    }
}
