import QtQuick 2.15
import QtQuick.Templates 2.15 as T
import Public 1.0
import VexTheme 1.0

/*! A small button that turns a filter on or off. */
T.AbstractButton {
    id: root

    /*! Not "checked", which a click would change by itself. */
    property bool isOn: false

    implicitWidth: implicitContentWidth + leftPadding + rightPadding
    implicitHeight: 26
    leftPadding: 10
    rightPadding: 10
    focusPolicy: Qt.TabFocus
    hoverEnabled: true
    Accessible.role: Accessible.CheckBox
    Accessible.name: root.text
    Accessible.checkable: true
    Accessible.checked: root.isOn
    Accessible.onToggleAction: root.clicked()
    Keys.onReturnPressed: root.clicked()
    Keys.onEnterPressed: root.clicked()

    contentItem: VEXLabel {
        text: root.text
        elide: Text.ElideNone
        font.pixelSize: Theme.smallText
        color: root.isOn ? Theme.onAccent : Theme.font_color_grade2
        Accessible.ignored: true
    }

    background: Rectangle {
        radius: height / 2
        border.width: root.isOn ? 0 : 1
        border.color: root.hovered ? Theme.font_color_grade3 : Theme.frame
        color: root.isOn ? Theme.font_color_grade3 : Theme.basics_gradeTone1

        VEXFocusFrame {
            visible: root.visualFocus
            controlRadius: parent.radius
        }
    }
}
