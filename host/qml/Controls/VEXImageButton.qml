import QtQuick 2.15
import QtQuick.Templates 2.15 as T
import Public 1.0
import VexTheme 1.0

/*! A button that is only an icon; its name shows as a tool tip. */
T.AbstractButton {
    id: root

    readonly property ThemeColours theme: Theme.around(root)

    /*! As AbstractButton.display. */
    property int mode: T.AbstractButton.IconOnly
    property int iconSize: Theme.smallIcon
    property url iconSource

    implicitWidth: root.iconSize
    implicitHeight: root.iconSize
    display: root.mode
    focusPolicy: Qt.TabFocus
    hoverEnabled: true
    Accessible.role: Accessible.Button
    Keys.onReturnPressed: root.clicked()
    Keys.onEnterPressed: root.clicked()

    contentItem: Item {
        VEXIcon {
            anchors.centerIn: parent
            size: root.iconSize
            source: root.iconSource
            opacity: root.enabled ? 1 : 0.35
        }
    }

    background: Item {
        Rectangle {
            anchors.fill: parent
            anchors.margins: -Math.max(0, Math.min(4, (24 - root.width) / 2))
            radius: Theme.radius_1
            color: root.down ? root.theme.secondary_gradeTone3 : root.theme.accentPale
            visible: root.enabled && (root.hovered || root.down)
        }

        VEXFocusFrame {
            visible: root.visualFocus
        }
    }

    VEXHint {
        shown: root.hovered
        text: root.Accessible.name
    }
}
