import QtQuick 2.15

/*! A square icon, drawn at the pixels that it takes on the screen. */
Image {
    property int size: 24

    width: size
    height: size
    sourceSize: Qt.size(size, size)
    fillMode: Image.PreserveAspectFit
}
