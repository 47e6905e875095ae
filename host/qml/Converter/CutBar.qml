import QtQuick 2.15
import Controls 1.0
import VexTheme 1.0
import VexWindow 1.0

/*! The part of a film or song that is kept, from its start to its end. */
Row {
    id: root

    required property int taskId
    required property real seconds
    required property real start
    required property real end
    required property bool inTabOrder

    readonly property real shownEnd: root.end > 0 ? root.end : root.seconds

    function keep(start, end) {
        if (start >= 0 && end <= root.seconds && end - start >= 0.01) {
            EditorProxy.cut(root.taskId, start, end === root.seconds ? 0 : end)
        }
        root.moveHandles()
    }

    // The handles' values have to lie within the slider's ends at every moment.
    function moveHandles() {
        slider.to = Math.max(0.01, root.seconds)
        slider.setValues(root.start, root.shownEnd)
    }

    onStartChanged: root.moveHandles()
    onShownEndChanged: root.moveHandles()
    Component.onCompleted: root.moveHandles()
    spacing: Theme.spacing
    enabled: root.seconds > 0

    CutMoment {
        id: startMoment

        anchors.verticalCenter: parent.verticalCenter
        inTabOrder: root.inTabOrder
        name: ToolFun.tr("Start")
        value: root.start
        onAsked: function (seconds) { root.keep(seconds, root.shownEnd) }
    }

    VEXRangeSlider {
        id: slider

        anchors.verticalCenter: parent.verticalCenter
        width: root.width - startMoment.width - endMoment.width - 2 * root.spacing
        focusPolicy: root.inTabOrder ? Qt.StrongFocus : Qt.ClickFocus
        firstName: ToolFun.tr("Start")
        secondName: ToolFun.tr("End")
        stepSize: root.seconds / 100
        first.onMoved: root.keep(slider.first.value, root.shownEnd)
        second.onMoved: root.keep(root.start, slider.second.value)
    }

    CutMoment {
        id: endMoment

        anchors.verticalCenter: parent.verticalCenter
        inTabOrder: root.inTabOrder
        name: ToolFun.tr("End")
        value: root.shownEnd
        onAsked: function (seconds) { root.keep(root.start, seconds) }
    }
}
