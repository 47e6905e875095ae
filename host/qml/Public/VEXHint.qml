import QtQuick 2.15
import QtQuick.Controls 2.5

/*! A tool tip: the whole of a text that is cut off, or what a control does. */
ToolTip {
    id: root

    property bool shown: false

    visible: root.shown && root.text !== ""
    delay: 600
    font.pixelSize: 12
    padding: 8
    contentWidth: Math.min(metrics.advanceWidth + 1, 420)

    contentItem: Text {
        text: root.text
        textFormat: Text.PlainText
        wrapMode: Text.Wrap
        font: root.font
        color: "#FFFFFF"
    }

    background: Rectangle {
        radius: VexThemeMgr.curTheme.radius_1
        color: VexThemeMgr.curTheme.font_color_grade1
    }

    TextMetrics {
        id: metrics

        text: root.text
        font: root.font
    }
}
