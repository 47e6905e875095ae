import QtQuick 2.15
import Controls 1.0
import VexTheme 1.0
import VexWindow 1.0

/*! A moment to type in: one end of the part that is kept. */
Rectangle {
    id: root

    required property string name
    required property real value
    required property bool inTabOrder

    signal asked(real seconds)

    function show() {
        field.text = EditorProxy.clockOf(root.value)
    }

    function take() {
        const typed = EditorProxy.secondsOf(field.text)
        if (typed >= 0 && typed !== root.value) {
            root.asked(typed)
        }
        root.show()
    }

    width: 84
    height: 28
    radius: Theme.radius_1
    border.width: 1
    border.color: field.activeFocus ? Theme.font_color_grade3
                                    : Theme.frame
    opacity: root.enabled ? 1 : 0.5
    onValueChanged: root.show()
    Component.onCompleted: root.show()

    VEXTextField {
        id: field

        anchors.fill: parent
        horizontalAlignment: Text.AlignHCenter
        font.pixelSize: Theme.smallText
        activeFocusOnTab: root.inTabOrder || activeFocus
        Accessible.name: root.name
        onEditingFinished: root.take()
        Keys.onEscapePressed: root.show()
    }
}
