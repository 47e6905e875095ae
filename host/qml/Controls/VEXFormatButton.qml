import QtQuick 2.15
import QtQuick.Templates 2.15 as T
import Public 1.0
import VexTheme 1.0

/*! Shows the chosen format; a click opens the picker. */
T.Button {
    id: root

    property url iconSource
    /*! What the format is for, for those who can't see where the button stands. */
    required property string purpose
    readonly property int iconWidth: root.iconSource === "" ? 0 : 20

    implicitWidth: 220
    implicitHeight: Theme.controlHeight
    leftPadding: 10
    rightPadding: 10
    focusPolicy: Qt.StrongFocus
    hoverEnabled: true
    font.pixelSize: Theme.text
    Accessible.role: Accessible.ButtonMenu
    Accessible.name: root.purpose + ": " + root.text
    Keys.onReturnPressed: root.clicked()
    Keys.onEnterPressed: root.clicked()

    component Caption: VEXLabel {
        id: caption

        text: root.text
        elide: Text.ElideMiddle
        font.pixelSize: root.font.pixelSize
        color: root.enabled ? Theme.font_color_grade1 : Theme.font_color_disabled
        Accessible.ignored: true

        VEXHint {
            shown: root.hovered && caption.truncated
            text: root.text
        }
    }

    contentItem: Item {
        VEXIcon {
            anchors.verticalCenter: parent.verticalCenter
            width: root.iconWidth
            size: 20
            source: root.iconSource
            opacity: root.enabled ? 1 : Theme.disabledOpacity
        }

        Caption {
            anchors {
                left: parent.left
                leftMargin: root.iconWidth + Theme.spacing
                right: parent.right
                rightMargin: Theme.smallIcon + Theme.spacing
                verticalCenter: parent.verticalCenter
            }
        }

        VEXIcon {
            anchors {
                right: parent.right
                verticalCenter: parent.verticalCenter
            }
            size: Theme.smallIcon
            source: "qrc:/window/images/arrow_down.svg"
            opacity: root.enabled ? 1 : Theme.disabledOpacity
        }
    }

    background: Rectangle {
        radius: Theme.radius_1
        border.width: 1
        border.color: !root.enabled ? Theme.rule
                                    : root.hovered || root.down ? Theme.font_color_grade3
                                                                : Theme.frame
        color: !root.enabled ? Theme.secondary_gradeTone4
                             : root.down ? Theme.accentPale
                                         : root.hovered ? Theme.hover
                                                        : Theme.basics_gradeTone1

        VEXFocusFrame {
            visible: root.visualFocus
        }
    }
}
