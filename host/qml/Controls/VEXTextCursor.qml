import QtQuick 2.15

/*! The blinking cursor of the text in \a field; 0 for \a shownHeight is the line's own height. */
Item {
    id: root

    required property Item field
    property int shownWidth: 1
    property int shownHeight: 0

    visible: root.field.cursorVisible
    width: root.shownWidth

    Rectangle {
        id: bar

        anchors.verticalCenter: parent.verticalCenter
        width: root.shownWidth
        height: root.shownHeight > 0 ? root.shownHeight : parent.height
        color: VexThemeMgr.curTheme.font_color_grade3
    }

    Timer {
        interval: Math.max(1, Qt.styleHints.cursorFlashTime / 2)
        running: root.field.activeFocus && Qt.styleHints.cursorFlashTime > 0
        repeat: true
        onTriggered: bar.visible = !bar.visible
        onRunningChanged: bar.visible = true
    }
}
