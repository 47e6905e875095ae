import QtQuick 2.15
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

    readonly property real shortest: 0.01
    readonly property real shownEnd: root.end > 0 ? root.end : root.seconds

    function keep(start, end) {
        EditorProxy.cut(root.taskId, start, end >= root.seconds ? 0 : end)
    }

    function moveStart(seconds) {
        root.keep(Math.max(0, Math.min(seconds, root.shownEnd - root.shortest)), root.shownEnd)
    }

    function moveEnd(seconds) {
        root.keep(root.start, Math.max(root.start + root.shortest,
                                       Math.min(seconds, root.seconds)))
    }

    spacing: Theme.spacing
    enabled: root.seconds > 0

    CutMoment {
        id: startMoment

        anchors.verticalCenter: parent.verticalCenter
        inTabOrder: root.inTabOrder
        purpose: ToolFun.tr("Start")
        value: root.start
        least: 0
        most: root.shownEnd - root.shortest
        onAsked: function (seconds) { root.moveStart(seconds) }
    }

    TimeLine {
        anchors.verticalCenter: parent.verticalCenter
        width: root.width - startMoment.width - endMoment.width - 2 * root.spacing
        taskId: root.taskId
        seconds: root.seconds
        start: root.start
        end: root.shownEnd
        inTabOrder: root.inTabOrder
        onStartMoved: function (seconds) { root.moveStart(seconds) }
        onEndMoved: function (seconds) { root.moveEnd(seconds) }
    }

    CutMoment {
        id: endMoment

        anchors.verticalCenter: parent.verticalCenter
        inTabOrder: root.inTabOrder
        purpose: ToolFun.tr("End")
        value: root.shownEnd
        least: root.start + root.shortest
        most: root.seconds
        onAsked: function (seconds) { root.moveEnd(seconds) }
    }
}
