import QtQuick 2.15
import QtQuick.Controls 2.5
import VexTheme 1.0

ScrollBar {
    id: root

    property ThemeColours theme: Theme

    policy: root.size < 1 ? ScrollBar.AlwaysOn : ScrollBar.AlwaysOff
    padding: 2
    minimumSize: 0.08

    contentItem: Rectangle {
        implicitWidth: 6
        implicitHeight: 6
        radius: 3
        color: root.theme.font_color_grade4
        opacity: root.pressed ? 0.9 : root.hovered ? 0.7 : 0.5
    }
}
