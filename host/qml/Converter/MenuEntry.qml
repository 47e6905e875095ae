import QtQuick 2.15
import QtQuick.Controls 2.5
import Public 1.0
import VexTheme 1.0

/*! An entry of a menu; one that makes no sense at the moment isn't there. */
MenuItem {
    id: root

    property string shortcutText
    /*! Not whether it is visible, which no entry is before its menu opens. */
    property bool isOffered: true

    visible: root.isOffered
    height: root.isOffered ? implicitHeight : 0
    implicitHeight: Theme.smallControlHeight
    implicitWidth: contentItem.implicitWidth + 2 * Theme.margin
    leftPadding: Theme.margin
    rightPadding: Theme.margin
    activeFocusOnTab: root.isOffered && root.enabled // the keys pass over the others
    Accessible.name: root.text

    component Texts: Item {
        property alias words: words.text
        property alias keys: keys.text

        implicitWidth: words.implicitWidth + keys.implicitWidth + Theme.margin

        VEXLabel {
            id: words

            anchors.verticalCenter: parent.verticalCenter
            font.pixelSize: Theme.text
            color: root.enabled ? Theme.font_color_grade1 : Theme.font_color_disabled
        }

        VEXLabel {
            id: keys

            anchors {
                right: parent.right
                verticalCenter: parent.verticalCenter
            }
            font.pixelSize: Theme.smallText
            color: Theme.font_color_grade4
            Accessible.ignored: true
        }
    }

    contentItem: Texts {
        words: root.text
        keys: root.subMenu ? "›" : root.shortcutText
    }

    arrow: Item {}
    indicator: Item {}

    background: Rectangle {
        color: root.highlighted ? Theme.accentPale : "transparent"
    }
}
