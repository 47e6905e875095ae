import QtQuick 2.15
import QtQuick.Controls 2.5
import VexTheme 1.0

/*! A tool tip for the item around it: the whole of a text that is cut off, or what a control does. */
Loader {
    id: root

    property bool shown: false
    property string text
    property int delay: 600 // ms

    anchors.fill: parent
    // Most of a long list's hints are never seen.
    active: root.shown && root.text !== ""

    sourceComponent: ToolTip {
        id: hint

        visible: root.active
        delay: root.delay
        closePolicy: Popup.NoAutoClose // Escape is for what the hint is about
        font.pixelSize: Theme.smallText
        padding: 8
        contentWidth: Math.min(metrics.advanceWidth + 1, 420)

        contentItem: Text {
            text: root.text
            textFormat: Text.PlainText
            wrapMode: Text.Wrap
            font: hint.font
            color: Theme.onAccent
        }

        background: Rectangle {
            radius: Theme.radius_1
            color: Theme.font_color_grade1
        }

        TextMetrics {
            id: metrics

            text: root.text
            font: hint.font
        }
    }
}
