import QtQuick 2.15
import QtQuick.Templates 2.15 as T
import VexTheme 1.0

/*! How far something is, from 0 to 1; for an unknown way a piece that runs along. */
T.ProgressBar {
    id: root


    component Piece: Rectangle {
        id: piece

        required property T.ProgressBar bar

        width: piece.bar.indeterminate ? parent.width / 4
                                  : Math.max(height, parent.width * piece.bar.visualPosition)
        height: parent.height
        radius: height / 2
        color: Theme.font_color_grade3
        visible: piece.bar.indeterminate || piece.bar.visualPosition > 0

        NumberAnimation on x {
            running: piece.bar.indeterminate && piece.bar.visible && Theme.isMoving
            from: -piece.width
            to: piece.bar.width
            duration: 1400
            loops: Animation.Infinite
            onStopped: piece.x = 0
        }
    }

    implicitWidth: 160
    implicitHeight: 6
    Accessible.role: Accessible.ProgressBar

    background: Rectangle {
        radius: height / 2
        color: Theme.frame
    }

    contentItem: Item {
        clip: true

        Piece {
            bar: root
        }
    }
}
