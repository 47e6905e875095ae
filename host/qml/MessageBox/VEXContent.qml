import QtQuick 2.15

/*! The framed ground of a dialog. */
Rectangle {
    color: VexThemeMgr.curTheme.basics_gradeTone1
    radius: VexThemeMgr.curTheme.radius_2
    border.width: 1
    border.color: VexThemeMgr.curTheme.frame
}
