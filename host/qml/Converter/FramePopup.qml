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

    function take(taskId, seconds, url) {
        if (root.visible && taskId === root.taskId && seconds === root.pictureSeconds) {
            picture.source = url
        }
    }

    x: (parent.width - width) / 2
    y: -height - Theme.spacing
    margins: Theme.spacing
    padding: 4
    width: content.implicitWidth + 2 * root.padding
    height: content.implicitHeight + 2 * root.padding
    closePolicy: T.Popup.NoAutoClose
    onPictureSecondsChanged: root.ask()
    onAboutToShow: picture.source = ""
    onVisibleChanged: root.ask()
    Component.onCompleted: EditorProxy.frameReady.connect(root.take)
    Component.onDestruction: EditorProxy.frameReady.disconnect(root.take)

    background: Rectangle {
        radius: Theme.radius_1
        color: Theme.basics_gradeTone1
        border.width: 1
        border.color: Theme.frame
    }

    Column {
        id: content

        Image {
            id: picture

            width: 240
            height: width * implicitHeight / Math.max(1, implicitWidth)
            visible: status === Image.Ready
            cache: false
        }

        VEXLabel {
            anchors.horizontalCenter: parent.horizontalCenter
            text: EditorProxy.clockOf(root.seconds)
            font.pixelSize: Theme.smallText
        }
    }
}
