import QtQuick 2.15
import QtQuick.Templates 2.15 as T
import Public 1.0
import VexTheme 1.0
import VexWindow 1.0

/*! The picture at a moment of a film, above the handle that is at it. */
T.Popup {
    id: root

    required property int taskId
    /*! The moment in seconds, and that of its picture. */
    required property real seconds
    required property real pictureSeconds

    function ask() {
        if (root.visible) {
            EditorProxy.requestFrame(root.taskId, root.pictureSeconds)
        }
    }

    x: (parent.width - width) / 2
    y: -height - Theme.spacing
    margins: Theme.spacing
    padding: 4
    closePolicy: T.Popup.NoAutoClose
    onPictureSecondsChanged: root.ask()
    onAboutToShow: picture.source = ""
    onVisibleChanged: root.ask()

    background: Rectangle {
        radius: Theme.radius_1
        color: Theme.basics_gradeTone1
        border.width: 1
        border.color: Theme.frame
    }

    contentItem: Column {
        Image {
            id: picture

            width: 240
            height: status === Image.Ready ? width * implicitHeight / implicitWidth : 0
            cache: false
        }

        VEXLabel {
            width: Math.max(picture.height > 0 ? picture.width : 0, implicitWidth)
            horizontalAlignment: Text.AlignHCenter
            text: EditorProxy.clockOf(root.seconds)
            font.pixelSize: Theme.smallText
        }
    }

    Connections {
        target: EditorProxy
        function onFrameReady(taskId, seconds, url) {
            if (root.visible && taskId === root.taskId && seconds === root.pictureSeconds) {
                picture.source = url
            }
        }
    }
}
