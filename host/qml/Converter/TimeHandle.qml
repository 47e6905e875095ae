import QtQuick 2.15
import Public 1.0
import VexTheme 1.0
import VexWindow 1.0

/*! One end of the part that is kept, on a time line. */
Rectangle {
    id: root

    required property int taskId
    required property string name
    required property real value
    /*! The value's place on the line. */
    required property real place
    required property bool isInView
    required property bool inTabOrder
    /*! The duration of a picture in seconds. */
    required property real frame
    /*! How far before the moment its picture is: the end shows the last one that is kept. */
    property real pictureBefore: 0
    property bool isUsed: false

    signal moved(real seconds)
    /*! The mouse has drawn the handle to this place. */
    signal drawn(real place)
    signal zoomed(real factor)

    function step(seconds) {
        root.isUsed = true
        root.moved(root.value + seconds)
    }

    function stepBy(event, direction) {
        if (event.modifiers & Qt.ControlModifier) {
            root.step(direction * 10)
        } else {
            root.step(direction * (event.modifiers & Qt.ShiftModifier ? 1 : root.frame))
        }
    }

    function take(event, action) {
        event.accepted = true
        action()
    }

    x: root.place - width / 2
    y: (parent.height - height) / 2
    width: 14
    height: 14
    radius: width / 2
    visible: root.isInView || root.activeFocus || mouse.pressed
    border.width: 2
    border.color: root.enabled ? Theme.font_color_grade3 : Theme.font_color_disabled
    color: mouse.pressed || mouse.containsMouse ? Theme.accentPale : Theme.basics_gradeTone1
    activeFocusOnTab: root.inTabOrder || root.activeFocus
    Accessible.role: Accessible.Slider
    Accessible.name: root.name
    Accessible.description: EditorProxy.clockOf(root.value)
    Accessible.focusable: true
    Accessible.onIncreaseAction: root.step(root.frame)
    Accessible.onDecreaseAction: root.step(-root.frame)
    onActiveFocusChanged: root.isUsed = false
    Keys.onLeftPressed: function (event) { root.stepBy(event, -1) }
    Keys.onRightPressed: function (event) { root.stepBy(event, 1) }
    Keys.onPressed: function (event) {
        switch (event.key) {
        case Qt.Key_PageDown:
            return root.take(event, function () { root.step(-10) })
        case Qt.Key_PageUp:
            return root.take(event, function () { root.step(10) })
        case Qt.Key_Plus:
            return root.take(event, function () { root.zoomed(0.5) })
        case Qt.Key_Minus:
            return root.take(event, function () { root.zoomed(2) })
        }
    }

    VEXFocusFrame {
        controlRadius: root.radius
        visible: root.activeFocus
    }

    MouseArea {
        id: mouse

        anchors.fill: parent
        anchors.margins: -5
        hoverEnabled: true
        preventStealing: true
        onPressed: root.forceActiveFocus(Qt.MouseFocusReason)
        onPositionChanged: function (event) {
            if (mouse.pressed) {
                root.drawn(mouse.mapToItem(root.parent, event.x, 0).x)
            }
        }
    }

    FramePopup {
        taskId: root.taskId
        seconds: root.value
        pictureSeconds: Math.max(0, root.value - root.pictureBefore)
        visible: mouse.pressed || (root.activeFocus && root.isUsed)
    }
}
