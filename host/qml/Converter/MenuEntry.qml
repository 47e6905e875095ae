import QtQuick 2.15
import QtQuick.Controls 2.5
import Public 1.0
import VexTheme 1.0

/*! An entry of a menu; one that makes no sense at the moment isn't there. */
MenuItem {
    id: root

    property string shortcutText

    height: root.visible ? implicitHeight : 0
    implicitHeight: Theme.smallControlHeight
    implicitWidth: words.implicitWidth + keys.implicitWidth + 3 * Theme.margin
    leftPadding: Theme.margin
    rightPadding: Theme.margin
    font.pixelSize: Theme.text
    Accessible.name: root.text

    contentItem: Item {
        VEXLabel {
            id: words

            anchors.verticalCenter: parent.verticalCenter
            text: root.text
            font: root.font
        }

        VEXLabel {
            id: keys

            anchors {
                right: parent.right
                verticalCenter: parent.verticalCenter
            }
            text: root.subMenu ? "›" : root.shortcutText
            font.pixelSize: Theme.smallText
            color: Theme.font_color_grade4
            Accessible.ignored: true
        }
    }

    arrow: Item {}
    indicator: Item {}

    background: Rectangle {
        color: root.highlighted ? Theme.accentPale : "transparent"
    }
}
