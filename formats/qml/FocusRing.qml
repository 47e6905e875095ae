import QtQuick 2.15

/*! Marks the item with the keyboard focus. */
Rectangle {
    color: "transparent"
    radius: 3
    opacity: 0.6
    border.width: 2
    border.color: VexThemeMgr.curTheme.font_color_grade3
}
