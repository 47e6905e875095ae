import QtQuick 2.15
import QtQuick.Templates 2.15 as T

/*! How far something is, from 0 to 1; for an unknown way a piece that runs along. */
T.ProgressBar {
    id: root

    readonly property QtObject theme: VexThemeMgr.curTheme

    implicitWidth: 160
    implicitHeight: 6
    Accessible.role: Accessible.ProgressBar

    background: Rectangle {
        radius: height / 2
        color: root.theme.secondary_gradeTone4
    }

    contentItem: Item {
        clip: true

        Rectangle {
            id: piece

            width: root.indeterminate ? parent.width / 4
                                      : Math.max(height, parent.width * root.visualPosition)
            height: parent.height
            radius: height / 2
            color: root.theme.font_color_grade3
            visible: root.indeterminate || root.visualPosition > 0
        }

        NumberAnimation {
            target: piece
            property: "x"
            running: root.indeterminate && root.visible
            from: -piece.width
            to: root.width
            duration: 1400
            loops: Animation.Infinite
            onStopped: piece.x = 0
        }
    }
}
