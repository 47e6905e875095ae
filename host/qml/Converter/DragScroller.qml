import QtQuick 2.15

/*! Scrolls the list \a view while something is dragged near its upper or lower edge. */
Timer {
    id: root

    required property Flickable view
    property int step: 0

    /*! The pointer is at this height of the list's content. */
    function follow(y) {
        const margin = 32
        const top = root.view.contentY
        root.step = y < top + margin ? -12 : y > top + root.view.height - margin ? 12 : 0
    }

    running: root.step !== 0
    interval: 16
    repeat: true
    onTriggered: {
        const first = root.view.originY
        const last = first + Math.max(0, root.view.contentHeight - root.view.height)
        root.view.contentY = Math.max(first, Math.min(last, root.view.contentY + root.step))
    }
}
