import QtQuick 2.15
import VexTheme 1.0

/*! A framed line to type in. The frame of a \a wrong one is red. */
Rectangle {
    id: root

    property alias field: field
    property alias text: field.text
    property bool wrong: false
    /*! What it is for, and what is to be known of it, for those who can't see what is around it. */
    required property string purpose
    property string remark: ""

    implicitWidth: 200
    implicitHeight: Theme.smallControlHeight
    radius: Theme.radius_1
    color: Theme.basics_gradeTone1
    border.width: 1
    border.color: root.wrong ? Theme.danger
                             : field.activeFocus ? Theme.font_color_grade3 : Theme.frame
    opacity: root.enabled ? 1 : Theme.disabledOpacity

    VEXTextField {
        id: field

        anchors.fill: parent
        leftPadding: 8
        rightPadding: 8
        font.pixelSize: Theme.smallText
        activeFocusOnTab: true
        Accessible.name: root.purpose
        Accessible.description: root.remark
    }
}
