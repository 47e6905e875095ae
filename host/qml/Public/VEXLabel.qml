import QtQuick 2.15

/*! A line of text that ends in dots where there is no room for it. */
Text {
    textFormat: Text.PlainText
    elide: Text.ElideRight
    verticalAlignment: Text.AlignVCenter
    color: VexThemeMgr.curTheme.font_color_grade1
    font.pixelSize: 13
    Accessible.role: Accessible.StaticText
    Accessible.name: text
}
