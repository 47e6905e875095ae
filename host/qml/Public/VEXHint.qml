import QtQuick 2.15
import QtQuick.Controls 2.5
import VexTheme 1.0

/*! A tool tip: the whole of a text that is cut off, or what a control does. */
ToolTip {
    id: root

    property bool shown: false

    visible: root.shown && root.text !== ""
    delay: 600
    closePolicy: Popup.NoAutoClose // Escape is for what the hint is about
    font.pixelSize: Theme.smallText
    padding: 8
    contentWidth: Math.min(metrics.advanceWidth + 1, 420)

    contentItem: Text {
        text: root.text
        textFormat: Text.PlainText
        wrapMode: Text.Wrap
        font: root.font
        color: Theme.onAccent
    }

    background: Rectangle {
        radius: Theme.radius_1
        color: Theme.font_color_grade1
    }

    TextMetrics {
        id: metrics

        text: root.text
        font: root.font
    }
}
