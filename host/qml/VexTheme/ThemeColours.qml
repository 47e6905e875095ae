import QtQuick 2.15

/*! The colours and sizes of the whole window, in the light or the dark theme. */
QtObject {
    id: root

    property bool isDark: false

    readonly property color basics_gradeTone1: root.isDark ? "#25222D" : "#FFFFFF"
    readonly property color basics_gradeTone2: root.isDark ? "#1A1820" : "#FBFAFE"
    readonly property color basics_gradeTone7: root.isDark ? "#302C3D" : "#F5F2FF"
    readonly property color secondary_gradeTone3: root.isDark ? "#4B4288" : "#CFC7FF"
    readonly property color secondary_gradeTone4: root.isDark ? "#332F3D" : "#F1EFF7"
    readonly property color font_color_grade1: root.isDark ? "#F2F0F7" : "#2B2833"
    readonly property color font_color_grade2: root.isDark ? "#D8D5E0" : "#454545"
    readonly property color font_color_grade3: root.isDark ? "#AFA3FF" : "#6C57F0"
    readonly property color font_color_grade4: root.isDark ? "#B0AABD" : "#6B6578"
    readonly property color font_color_disabled: root.isDark ? "#7D778C" : "#A9A4B5"
    readonly property color accentText: root.isDark ? "#C2B8FF" : "#5540DB"
    readonly property color accentHover: root.isDark ? "#C2B8FF" : "#5D47E3"
    readonly property color accentPressed: root.isDark ? "#9A8CF5" : "#4C38C9"
    readonly property color accentPale: root.isDark ? "#38324F" : "#EDE9FF"
    readonly property color hover: root.isDark ? "#312D3D" : "#F4F3F6"
    readonly property color pressed: root.isDark ? "#3D384B" : "#E8E6ED"
    readonly property color rule: root.isDark ? "#3A3645" : "#E8E8EB"
    readonly property color frame: root.isDark ? "#5B5669" : "#C9C7D0"
    readonly property color danger: root.isDark ? "#FF8F94" : "#C2323A"
    readonly property color dangerPale: root.isDark ? "#452A2F" : "#FDF0F0"
    readonly property color success: root.isDark ? "#72D6A4" : "#1D7549"
    readonly property color noticePale: root.isDark ? "#3E3520" : "#FFF6E0"
    readonly property color noticeText: root.isDark ? "#F3D78F" : "#6B4E00"
    readonly property color onAccent: root.isDark ? "#17141F" : "#FFFFFF"

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
