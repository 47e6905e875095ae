import QtQuick 2.15
import Public 1.0
import VexTheme 1.0

/*! A picture from the file, or a note where it has none. */
Rectangle {
    id: root

    required property url source

    width: 112
    height: 64
    color: Theme.rule
    clip: true
    Accessible.ignored: true

    VEXIcon {
        anchors.centerIn: parent
        visible: picture.status !== Image.Ready
        size: 28
        source: "qrc:/window/images/media.svg"
    }

    Image {
        id: picture

        anchors.fill: parent
        source: root.source
        fillMode: Image.PreserveAspectCrop
        asynchronous: true
        mipmap: true
    }
}
