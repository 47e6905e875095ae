import QtQuick 2.15

/*! Marks the control that the keyboard is at, just outside of its edge. */
Rectangle {
    anchors.fill: parent
    anchors.margins: -3
    color: "transparent"
    radius: VexThemeMgr.curTheme.radius_1 + 3
    border.width: 2
    border.color: VexThemeMgr.curTheme.font_color_grade3
    opacity: 0.6
}
