import QtQuick 2.15
import VexTheme 1.0

/*! The cursor of a text, which blinks in the field with the focus; 0 for \a shownHeight is the line's own height. */
Item {
    id: root

    readonly property ThemeColours theme: Theme.around(root)

    required property bool blinks
    property int shownWidth: 1
    property int shownHeight: 0
    readonly property var styleHints: Qt.styleHints

    width: root.shownWidth

    Rectangle {
        id: bar

        anchors.verticalCenter: parent.verticalCenter
        width: root.shownWidth
        height: root.shownHeight > 0 ? root.shownHeight : parent.height
        color: root.theme.font_color_grade3
    }

    Timer {
        interval: Math.max(1, root.styleHints.cursorFlashTime / 2)
        running: root.blinks && root.styleHints.cursorFlashTime > 0
        repeat: true
        onTriggered: bar.visible = !bar.visible
        onRunningChanged: bar.visible = true
    }
}
