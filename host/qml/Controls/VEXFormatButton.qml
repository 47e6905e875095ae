import QtQuick 2.15
import QtQuick.Templates 2.15 as T
import Public 1.0

/*! Shows the chosen format; a click opens the picker. */
T.Button {
    id: root

    property url iconSource
    /*! What the format is for, for those who can't see where the button stands. */
    required property string purpose
    readonly property QtObject theme: VexThemeMgr.curTheme

    implicitWidth: 220
    implicitHeight: 36
    leftPadding: 10
    rightPadding: 10
    focusPolicy: Qt.StrongFocus
    hoverEnabled: true
    font.pixelSize: 13
    Accessible.role: Accessible.ButtonMenu
    Accessible.name: root.purpose + ": " + root.text
    Keys.onReturnPressed: root.clicked()
    Keys.onEnterPressed: root.clicked()

    contentItem: Item {
        VEXIcon {
            id: formatIcon

            anchors.verticalCenter: parent.verticalCenter
            width: root.iconSource === "" ? 0 : 20
            size: 20
            height: 20
            source: root.iconSource
            opacity: root.enabled ? 1 : 0.4
        }

        VEXLabel {
            anchors {
                left: formatIcon.right
                leftMargin: 8
                right: arrow.left
                rightMargin: 8
                verticalCenter: parent.verticalCenter
            }
            text: root.text
            elide: Text.ElideMiddle
            font.pixelSize: root.font.pixelSize
            color: root.enabled ? root.theme.font_color_grade1 : root.theme.font_color_disabled
            Accessible.ignored: true
        }

        VEXIcon {
            id: arrow

            anchors {
                right: parent.right
                verticalCenter: parent.verticalCenter
            }
            size: 16
            source: "qrc:/window/images/arrow_down.svg"
            opacity: root.enabled ? 1 : 0.4
        }
    }

    background: Rectangle {
        radius: root.theme.radius_1
        border.width: 1
        border.color: !root.enabled ? root.theme.rule
                                    : root.hovered || root.down ? root.theme.font_color_grade3
                                                                : root.theme.frame
        color: !root.enabled ? root.theme.secondary_gradeTone4
                             : root.down ? root.theme.accentPale
                                         : root.hovered ? root.theme.hover
                                                        : root.theme.basics_gradeTone1

        VEXFocusFrame {
            visible: root.visualFocus
        }
    }
}
