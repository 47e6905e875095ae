import QtQuick 2.15
import QtQuick.Templates 2.15 as T
import Public 1.0
import VexTheme 1.0

/*! A box to tick, with its text beside it. */
T.CheckBox {
    id: root

    implicitWidth: implicitContentWidth + leftPadding + rightPadding
    implicitHeight: Math.max(Theme.smallControlHeight, implicitContentHeight)
    focusPolicy: Qt.StrongFocus
    hoverEnabled: true
    font.pixelSize: Theme.smallText
    Accessible.role: Accessible.CheckBox
    Accessible.name: root.text
    Accessible.checked: root.checked

    indicator: Rectangle {
        y: (root.height - height) / 2
        width: 18
        height: 18
        radius: Theme.radius_1
        color: root.checked && root.enabled ? Theme.font_color_grade3 : Theme.basics_gradeTone1
        border.width: root.checked && root.enabled ? 0 : 1
        border.color: !root.enabled ? Theme.frame : root.hovered ? Theme.font_color_grade3
                                                                 : Theme.font_color_grade4

        VEXLabel {
            anchors.centerIn: parent
            visible: root.checked
            text: "✓"
            font.weight: Font.Bold
            color: root.enabled ? Theme.onAccent : Theme.font_color_disabled
            Accessible.ignored: true
        }

        VEXFocusFrame {
            visible: root.visualFocus
        }
    }

    contentItem: VEXLabel {
        leftPadding: 26
        text: root.text
        elide: Text.ElideNone
        wrapMode: Text.Wrap
        font.pixelSize: root.font.pixelSize
        color: root.enabled ? Theme.font_color_grade1 : Theme.font_color_disabled
        Accessible.ignored: true
    }
}
