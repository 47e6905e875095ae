import QtQuick 2.15
import VexTheme 1.0

/*! Marks the control that the keyboard is at, just outside of its edge. */
Rectangle {
    id: root

    readonly property ThemeColours theme: Theme.around(root)

    property int controlRadius: Theme.radius_1
    readonly property int gap: 3

    anchors.fill: parent
    anchors.margins: -root.gap
    color: "transparent"
    radius: root.controlRadius + root.gap
    border.width: 2
    border.color: root.theme.font_color_grade3
}
