import QtQuick 2.15
import QtQuick.Templates 2.15 as T
import Public 1.0
import VexTheme 1.0

/*! Two handles on a line, for the two ends of a part. */
T.RangeSlider {
    id: root

    required property string firstName
    required property string secondName

    component Handle: Rectangle {
        id: handle

        required property T.RangeSlider slider
        property bool marked: false
        property bool held: false

        y: (handle.slider.height - height) / 2
        width: 14
        height: 14
        radius: width / 2
        border.width: 2
        border.color: handle.slider.enabled ? Theme.font_color_grade3 : Theme.font_color_disabled
        color: handle.held ? Theme.accentPale : Theme.basics_gradeTone1
        activeFocusOnTab: handle.slider.activeFocusOnTab || handle.activeFocus
        Accessible.role: Accessible.Slider

        VEXFocusFrame {
            controlRadius: handle.radius
            visible: handle.marked
        }
    }

    implicitWidth: 200
    implicitHeight: 20
    leftPadding: 7
    rightPadding: 7
    focusPolicy: Qt.StrongFocus
    hoverEnabled: true

    first.handle: Handle {
        slider: root
        x: root.leftPadding - 7 + root.first.visualPosition * root.availableWidth
        marked: activeFocus
        held: root.first.pressed || root.first.hovered
        Accessible.name: root.firstName
    }

    second.handle: Handle {
        slider: root
        x: root.leftPadding - 7 + root.second.visualPosition * root.availableWidth
        marked: activeFocus
        held: root.second.pressed || root.second.hovered
        Accessible.name: root.secondName
    }

    background: Rectangle {
        x: root.leftPadding
        y: (root.height - height) / 2
        width: root.availableWidth
        height: 4
        radius: 2
        color: Theme.secondary_gradeTone4

        Rectangle {
            x: root.first.visualPosition * parent.width
            width: (root.second.visualPosition - root.first.visualPosition) * parent.width
            height: parent.height
            radius: parent.radius
            color: root.enabled ? Theme.font_color_grade3 : Theme.font_color_disabled
        }
    }
}
