import QtQuick 2.15
import VexTheme 1.0

/*! The dots at a row's edge by which it is dragged to another place. */
MouseArea {
    id: root

    /*! The pointer is over this place of the grip's list. */
    signal dragged(point place)
    signal dropped()

    width: 16
    cursorShape: root.pressed ? Qt.ClosedHandCursor : Qt.OpenHandCursor
    preventStealing: true
    hoverEnabled: true
    Accessible.ignored: true
    onPositionChanged: function (mouse) {
        if (root.pressed) {
            root.dragged(Qt.point(mouse.x, mouse.y))
        }
    }
    onReleased: root.dropped()
    onCanceled: root.dropped()

    Grid {
        anchors.centerIn: parent
        columns: 2
        spacing: 3

        Repeater {
            model: 6

            Rectangle {
                width: 2
                height: 2
                color: Theme.font_color_grade4
            }
        }
    }
}
