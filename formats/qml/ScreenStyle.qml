pragma Singleton
import QtQuick 2.15

/*! Sizes and colours that several parts of a screen share and that the host's theme lacks. */
QtObject {
    readonly property color text: "#454545"
    readonly property color hint: "#D1D1D1"
    readonly property color rule: "#E8E8EB"
    readonly property color frame: "#C9C7D0"
    readonly property color rowHover: "#F7F6FB"

    readonly property int smallText: 12
    readonly property int mediumText: 14
    readonly property int margin: 16
    readonly property int icon: 24
}
