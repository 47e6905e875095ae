import QtQuick 2.15
import "."

/*! The heading of a section of the dialog, followed by a rule. */
Row {
    id: root

    required property string text

    spacing: 12
    Accessible.role: Accessible.Heading
    Accessible.name: root.text

    Item {
        width: 58
        height: caption.height

        Text {
            id: caption

            // Shrinks rather than running into the rule.
            width: 66
            text: root.text
            textFormat: Text.PlainText
            elide: Text.ElideRight
            fontSizeMode: Text.HorizontalFit
            minimumPixelSize: 9
            color: ScreenStyle.text
            font {
                pixelSize: 16
                bold: true
            }
        }
    }

    Rectangle {
        anchors.verticalCenter: parent.verticalCenter
        width: 544
        height: 1
        color: ScreenStyle.rule
    }
}
