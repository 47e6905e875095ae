import QtQuick 2.15

/*! A square icon, drawn at the pixels that it takes on the screen. */
Image {
    id: root

    property int size: 24

    width: root.size
    height: root.size
    sourceSize {
        width: root.size
        height: root.size
    }
    fillMode: Image.PreserveAspectFit
}
