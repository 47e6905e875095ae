import QtQuick 2.15
import Controls 1.0
import Public 1.0
import VexWindow 1.0

/*! A moment to type in: one end of the part that is kept, between \a least and \a most seconds. */
VEXLineField {
    id: root

    required property real value
    required property real least
    required property real most
    required property bool inTabOrder

    /*! What is wrong with the text; empty if nothing is. */
    property string mistake: ""

    signal asked(real seconds)

    function show() {
        root.mistake = ""
        root.text = EditorProxy.clockOf(root.value)
    }

    function take() {
        const typed = EditorProxy.secondsOf(root.text)
        root.mistake = root.mistakeIn(typed)
        if (root.mistake === "") {
            if (typed !== root.value) {
                root.asked(typed)
            }
            root.show()
        }
    }

    function mistakeIn(seconds) {
        if (seconds < 0) {
            return ToolFun.tr("Write a time such as 1:02:03.5")
        }
        if (seconds < root.least) {
            return ToolFun.tr("%1 is the earliest possible time").arg(
                        EditorProxy.clockOf(root.least))
        }
        return seconds > root.most
                ? ToolFun.tr("%1 is the latest possible time").arg(EditorProxy.clockOf(root.most))
                : ""
    }

    width: 104
    height: 28
    wrong: root.mistake !== ""
    remark: root.mistake
    field.horizontalAlignment: Text.AlignHCenter
    field.activeFocusOnTab: root.inTabOrder || field.activeFocus
    onValueChanged: root.show()
    Component.onCompleted: root.show()

    Connections {
        target: root.field
        function onEditingFinished() { root.take() }
        function onTextEdited() { root.mistake = "" }
    }

    Keys.onEscapePressed: root.show()

    VEXHint {
        shown: root.wrong
        delay: 0
        text: root.mistake
    }
}
