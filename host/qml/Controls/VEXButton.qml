import QtQuick 2.15
import QtQuick.Templates 2.15 as T
import Public 1.0
import VexTheme 1.0

/*! A button with a text; the one that does the window's main work is \a primary. */
T.Button {
    id: root

    readonly property ThemeColours theme: Theme.around(root)

    property bool primary: false
    property int minWidth: 88

    implicitWidth: Math.max(root.minWidth,
                            Math.ceil(implicitContentWidth) + leftPadding + rightPadding)
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
        color: !root.enabled ? root.theme.font_color_disabled
                             : root.primary ? root.theme.onAccent : root.theme.font_color_grade1
    }

    background: Rectangle {
        radius: Theme.radius_1
        border.width: root.primary ? 0 : 1
        border.color: !root.enabled ? root.theme.rule
                                    : root.hovered ? root.theme.font_color_grade3
                                                   : root.theme.frame
        color: {
            if (!root.enabled) {
                return root.theme.secondary_gradeTone4
            }
            if (root.primary) {
                return root.down ? root.theme.accentPressed
                                 : root.hovered ? root.theme.accentHover
                                                : root.theme.font_color_grade3
            }
            return root.down ? root.theme.pressed
                             : root.hovered ? root.theme.hover : root.theme.basics_gradeTone1
        }

        VEXFocusFrame {
            visible: root.visualFocus
        }
    }
}
