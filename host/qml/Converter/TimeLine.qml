import QtQuick 2.15
import VexTheme 1.0
import VexWindow 1.0

/*!
 * The time of a film or song, with two handles for the ends of the part that is kept. Ctrl and the
 * wheel, a pinch or + and - at a handle show a shorter time larger; a drag beside the handles then
 * goes through the film.
 */
Item {
    id: root

    required property int taskId
    required property real seconds
    required property real start
    required property real end
    required property bool inTabOrder

    /*! The time that is shown, in seconds. */
    property real viewStart: 0
    property real viewSeconds: Math.max(0.01, root.seconds)
    readonly property real shortestView: 1
    readonly property real frame: root.seconds > 0 ? EditorProxy.frameSeconds(root.taskId) : 0
    readonly property int edge: 7

    signal startMoved(real seconds)
    signal endMoved(real seconds)

    function placeOf(moment) {
        const part = (moment - root.viewStart) / root.viewSeconds
        return root.edge + Math.max(0, Math.min(1, part)) * (root.width - 2 * root.edge)
    }

    function momentAt(x) {
        const part = (x - root.edge) / Math.max(1, root.width - 2 * root.edge)
        return root.viewStart + Math.max(0, Math.min(1, part)) * root.viewSeconds
    }

    function isShown(moment) {
        return moment >= root.viewStart && moment <= root.viewStart + root.viewSeconds
    }

    function show(viewStart, viewSeconds) {
        const most = Math.max(0.01, root.seconds)
        root.viewSeconds = Math.max(Math.min(root.shortestView, most),
                                    Math.min(viewSeconds, most))
        root.viewStart = Math.max(0, Math.min(viewStart, most - root.viewSeconds))
    }

    /*! Shows \a factor times as long a time, \a moment staying where it is. */
    function zoom(moment, factor) {
        const wanted = Math.max(root.shortestView, root.viewSeconds * factor)
        const part = (moment - root.viewStart) / root.viewSeconds
        const inside = part >= 0 && part <= 1 ? part : 0.5
        root.show(moment - inside * wanted, wanted)
    }

    /*! Goes as far through the film as it takes to show \a moment. */
    function reveal(moment) {
        if (!root.isShown(moment)) {
            root.show(moment < root.viewStart ? moment : moment - root.viewSeconds,
                      root.viewSeconds)
        }
    }

    function nearest(moment) {
        return Math.abs(moment - root.start) <= Math.abs(moment - root.end) ? root.start : root.end
    }

    implicitHeight: 20
    onSecondsChanged: root.show(0, root.seconds)

    Rectangle {
        id: track

        x: root.edge
        y: (root.height - height) / 2
        width: root.width - 2 * root.edge
        height: 4
        radius: 2
        color: Theme.frame

        Rectangle {
            x: root.placeOf(root.start) - root.edge
            width: root.placeOf(root.end) - root.placeOf(root.start)
            height: parent.height
            radius: parent.radius
            color: root.enabled ? Theme.font_color_grade3 : Theme.font_color_disabled
        }
    }

    // What is shown of the whole, while that is a part.
    Rectangle {
        anchors.top: track.bottom
        anchors.topMargin: 4
        x: root.edge + track.width * root.viewStart / Math.max(0.01, root.seconds)
        width: Math.max(4, track.width * root.viewSeconds / Math.max(0.01, root.seconds))
        height: 2
        visible: root.viewSeconds < root.seconds
        color: Theme.font_color_grade4
    }

    PinchHandler {
        target: null
        property real before: 1
        onActiveChanged: before = 1
        onActiveScaleChanged: {
            root.zoom(root.nearest(root.momentAt(centroid.position.x)), before / activeScale)
            before = activeScale
        }
    }

    MouseArea {
        id: ground

        property real pressedX: 0
        property real pressedStart: 0
        property bool isDrag: false

        anchors.fill: parent
        preventStealing: true
        onPressed: function (event) {
            ground.pressedX = event.x
            ground.pressedStart = root.viewStart
            ground.isDrag = false
        }
        onPositionChanged: function (event) {
            ground.isDrag = ground.isDrag || Math.abs(event.x - ground.pressedX) > 4
            if (ground.isDrag) {
                root.show(ground.pressedStart - (event.x - ground.pressedX)
                          * root.viewSeconds / track.width, root.viewSeconds)
            }
        }
        onReleased: function (event) {
            if (ground.isDrag) {
                return
            }
            const moment = root.momentAt(event.x)
            if (root.nearest(moment) === root.start) {
                root.startMoved(moment)
            } else {
                root.endMoved(moment)
            }
        }
        onWheel: function (event) {
            event.accepted = Boolean(event.modifiers & Qt.ControlModifier)
            if (event.accepted) {
                root.zoom(root.nearest(root.momentAt(event.x)),
                          event.angleDelta.y > 0 ? 0.5 : 2)
            }
        }
    }

    TimeHandle {
        // Both may be at the end, where only this one can move.
        z: root.start > root.seconds / 2 ? 1 : 0
        taskId: root.taskId
        name: ToolFun.tr("Start")
        value: root.start
        place: root.placeOf(root.start)
        isInView: root.isShown(root.start)
        inTabOrder: root.inTabOrder
        frame: root.frame
        onMoved: function (seconds) {
            root.startMoved(seconds)
            root.reveal(root.start)
        }
        onDrawn: function (place) { root.startMoved(root.momentAt(place)) }
        onZoomed: function (factor) { root.zoom(root.start, factor) }
    }

    TimeHandle {
        taskId: root.taskId
        name: ToolFun.tr("End")
        value: root.end
        place: root.placeOf(root.end)
        isInView: root.isShown(root.end)
        inTabOrder: root.inTabOrder
        frame: root.frame
        pictureBefore: root.frame
        onMoved: function (seconds) {
            root.endMoved(seconds)
            root.reveal(root.end)
        }
        onDrawn: function (place) { root.endMoved(root.momentAt(place)) }
        onZoomed: function (factor) { root.zoom(root.end, factor) }
    }
}
