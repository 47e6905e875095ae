import QtQuick 2.15
import QtQuick.Controls 2.5
import "."

/*! A format in the left list of the catalogue panel. */
Rectangle {
    id: root

    required property var model
    required property Popup page

    readonly property bool selected: root.page.selectClass === root.model.title
    readonly property bool hasImage: !["1080p", "source", "phone"].includes(root.model.icon)

    function choose() {
        root.page.selectClass = root.model.title
    }

    implicitHeight: 48
    color: root.selected || mouse.containsMouse ? ScreenStyle.rowHover
                                                : VexThemeMgr.curTheme.basics_gradeTone1
    Accessible.role: Accessible.ListItem
    Accessible.name: root.model.title
    Accessible.selectable: true
    Accessible.selected: root.selected
    Accessible.onPressAction: root.choose()

    MouseArea {
        id: mouse

        anchors.fill: parent
        hoverEnabled: true
        onClicked: root.choose()
    }

    Image {
        id: image

        anchors.verticalCenter: parent.verticalCenter
        x: ScreenStyle.margin
        width: ScreenStyle.icon
        height: ScreenStyle.icon
        source: root.hasImage ? "./image/" + root.model.icon + ".svg" : ""
        sourceSize: Qt.size(ScreenStyle.icon, ScreenStyle.icon)
    }

    Text {
        anchors {
            left: image.right
            leftMargin: 12
            verticalCenter: parent.verticalCenter
        }
        width: 120
        text: root.model.title
        textFormat: Text.PlainText
        elide: Text.ElideRight
        color: ScreenStyle.text
        font.pixelSize: ScreenStyle.smallText
    }

    Rectangle {
        anchors.bottom: parent.bottom
        width: parent.width
        height: 1
        color: ScreenStyle.rule
    }
}
