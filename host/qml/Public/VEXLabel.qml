import QtQuick 2.15
import VexTheme 1.0

/*! A line of text that ends in dots where there is no room for it. */
Text {
    textFormat: Text.PlainText
    elide: Text.ElideRight
    // A name in Arabic or Hebrew stays where the others begin, with its details.
    horizontalAlignment: Text.AlignLeft
    verticalAlignment: Text.AlignVCenter
    color: Theme.font_color_grade1
    font.pixelSize: Theme.text
    Accessible.role: Accessible.StaticText
    Accessible.name: text
}
