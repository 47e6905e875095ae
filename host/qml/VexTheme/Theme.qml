pragma Singleton
import QtQuick 2.15

/*! The colours and sizes of the whole window. */
QtObject {
    readonly property color basics_gradeTone1: "#FFFFFF"
    readonly property color basics_gradeTone2: "#FBFAFE"
    readonly property color basics_gradeTone7: "#F5F2FF"
    readonly property color secondary_gradeTone3: "#CFC7FF"
    readonly property color secondary_gradeTone4: "#F1EFF7"
    readonly property color font_color_grade1: "#2B2833"
    readonly property color font_color_grade2: "#454545"
    readonly property color font_color_grade3: "#6C57F0"
    readonly property color font_color_grade4: "#6B6578"
    readonly property color font_color_disabled: "#A9A4B5"
    readonly property color accentHover: "#5D47E3"
    readonly property color accentPressed: "#4C38C9"
    readonly property color accentPale: "#EDE9FF"
    readonly property color hover: "#F7F6FB"
    readonly property color pressed: "#ECE9F6"
    readonly property color rule: "#E8E8EB"
    readonly property color frame: "#C9C7D0"
    readonly property color danger: "#C2323A"
    readonly property color dangerPale: "#FDF0F0"
    readonly property color success: "#1F7A4D"
    readonly property color noticePale: "#FFF6E0"
    readonly property color noticeText: "#6B4E00"
    readonly property color onAccent: "#FFFFFF"

    readonly property real disabledOpacity: 0.4
    readonly property int radius_1: 4
    readonly property int radius_2: 8
    readonly property int radius_3: 12
    readonly property int radius_7: 17

    readonly property int smallText: 12
    readonly property int text: 13
    readonly property int mediumText: 14
    readonly property int largeText: 18
    readonly property int spacing: 8
    readonly property int margin: 16
    readonly property int wideMargin: 24
    readonly property int smallControlHeight: 32
    readonly property int controlHeight: 36
    readonly property int smallIcon: 16
}
