import QtQuick 2.15
import "."

/*! An image and a line of text in place of an empty list. */
Column {
    id: root

    property alias image: image
    required property string text

    spacing: 8
    Accessible.role: Accessible.StaticText
    Accessible.name: root.text

    Image {
        id: image

        anchors.horizontalCenter: parent.horizontalCenter
    }

    Text {
        width: parent.width
        text: root.text
        textFormat: Text.PlainText
        horizontalAlignment: Text.AlignHCenter
        wrapMode: Text.WordWrap
        color: ScreenStyle.hint
        font {
            pixelSize: ScreenStyle.mediumText
            bold: true
        }
    }
}
