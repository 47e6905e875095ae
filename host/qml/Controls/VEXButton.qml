import QtQuick 2.15
import QtQuick.Templates 2.15 as T
import Public 1.0
import VexTheme 1.0

/*! A button with a text; the one that does the window's main work is \a primary. */
T.Button {
    id: root

    property bool primary: false
    property int minWidth: 88

    implicitWidth: Math.max(root.minWidth, implicitContentWidth + leftPadding + rightPadding)
    implicitHeight: Theme.controlHeight
    leftPadding: Theme.margin
    rightPadding: Theme.margin
    focusPolicy: Qt.StrongFocus
    font.pixelSize: Theme.text
    hoverEnabled: true
    Accessible.role: Accessible.Button
    Accessible.name: root.text
    Keys.onReturnPressed: root.clicked()
    Keys.onEnterPressed: root.clicked()

    contentItem: Text {
        text: root.text
        textFormat: Text.PlainText
        elide: Text.ElideRight
        horizontalAlignment: Text.AlignHCenter
        verticalAlignment: Text.AlignVCenter
        font.pixelSize: root.font.pixelSize
        font.weight: root.primary ? Font.DemiBold : Font.Normal
        color: !root.enabled ? Theme.font_color_disabled
                             : root.primary ? Theme.onAccent : Theme.font_color_grade1
    }

    background: Rectangle {
        radius: Theme.radius_1
        border.width: root.primary ? 0 : 1
        border.color: !root.enabled ? Theme.rule
                                    : root.hovered ? Theme.font_color_grade3
                                                   : Theme.frame
        color: {
            if (!root.enabled) {
                return Theme.secondary_gradeTone4
            }
            if (root.primary) {
                return root.down ? Theme.accentPressed
                                 : root.hovered ? Theme.accentHover
                                                : Theme.font_color_grade3
            }
            return root.down ? Theme.pressed
                             : root.hovered ? Theme.hover : Theme.basics_gradeTone1
        }

        VEXFocusFrame {
            visible: root.visualFocus
        }
    }
}
