import QtQuick 2.15
import QtQuick.Controls 2.5
import Public 1.0
import VexTheme 1.0
import VexWindow 1.0

/*! The rows of a page: how they are selected, moved and reached with the keys. */
ListView {
    id: root

    required property PageProxy page
    required property bool canCut

    /*! The row above which what is dragged would be dropped; -1: nothing is dragged. */
    property int dropRow: -1
    property real dropY: 0

    readonly property int firstInSight: {
        const isFilled = root.contentHeight > 0
        const middle = root.width / 2
        return isFilled ? Math.max(0, root.indexAt(middle, root.contentY),
                                   root.indexAt(middle, root.contentY + root.spacing)) : 0
    }

    signal pickerAsked(Item button, var taskId, var formatId)

    function select(taskId, modifiers) {
        if (modifiers & Qt.ShiftModifier) {
            root.page.selection.extendTo(taskId)
        } else if (modifiers & Qt.ControlModifier) {
            root.page.selection.toggle(taskId)
        } else {
            root.page.selection.set(taskId)
        }
    }

    function goTo(row, modifiers) {
        if (row < 0 || row >= root.count) {
            return
        }
        root.currentIndex = row
        root.currentItem.forceActiveFocus(Qt.TabFocusReason)
        if (!(modifiers & Qt.ControlModifier)) {
            root.select(root.page.idAt(row), modifiers)
        }
    }

    /*! Removes the task, with the selection if it is in it, and goes on with the row below. */
    function removeChosen(taskId) {
        const row = root.currentIndex
        root.page.removeChosen(taskId)
        root.goTo(Math.min(row, root.count - 1), Qt.NoModifier)
    }

    /*! Moves the task, with the selection if it is in it, above the row. */
    function moveTo(taskId, row) {
        root.page.moveChosen(taskId, root.page.idAt(row))
        root.currentIndex = root.page.rowOf(taskId)
        root.currentItem.forceActiveFocus(Qt.TabFocusReason)
    }

    /*! Moves the current row, with the selection if it is in it, by one place. */
    function moveBy(step) {
        const to = root.currentIndex + (step < 0 ? -1 : 2)
        if (to >= 0 && to <= root.count) {
            root.moveTo(root.page.idAt(root.currentIndex), to)
        }
    }

    function showStarted(taskId) {
        root.positionViewAtIndex(root.page.rowOf(taskId), ListView.Contain)
    }

    function drag(y) {
        const row = root.indexAt(root.width / 2, y)
        const item = root.itemAtIndex(row)
        root.dropRow = row < 0 ? (y <= 0 ? 0 : root.count)
                               : y > item.y + item.height / 2 ? row + 1 : row
        root.dropY = row < 0 ? (y <= 0 ? 0 : root.contentHeight)
                             : y > item.y + item.height / 2 ? item.y + item.height : item.y
        scroller.follow(y)
    }

    function drop(taskId) {
        if (root.dropRow >= 0) {
            root.moveTo(taskId, root.dropRow)
        }
        root.dropRow = -1
        scroller.step = 0
    }

    topMargin: Theme.spacing
    bottomMargin: Theme.margin
    spacing: Theme.spacing
    clip: true
    model: root.page.tasks
    boundsBehavior: Flickable.StopAtBounds
    flickDeceleration: 3000
    highlightMoveDuration: Theme.isMoving ? 120 : 0
    Accessible.role: Accessible.List
    Accessible.name: ToolFun.tr("Files")
    Keys.onPressed: function (event) {
        const isDown = event.key === Qt.Key_Down
        if (isDown || event.key === Qt.Key_Up) {
            if (event.modifiers & Qt.AltModifier) {
                root.moveBy(isDown ? 1 : -1)
            } else {
                root.goTo(root.currentIndex + (isDown ? 1 : -1), event.modifiers)
            }
            event.accepted = true
        } else if (event.key === Qt.Key_Home || event.key === Qt.Key_End) {
            root.goTo(event.key === Qt.Key_Home ? 0 : root.count - 1, event.modifiers)
            event.accepted = true
        } else if (event.key === Qt.Key_Escape && root.page.selection.count > 0) {
            root.page.selection.clear()
            event.accepted = true
        } else if (event.key === Qt.Key_F10 && event.modifiers & Qt.ShiftModifier) {
            root.currentItem.openMenu()
            event.accepted = true
        }
    }

    onFirstInSightChanged: root.page.firstInSight = root.firstInSight
    Component.onCompleted: root.page.started.connect(root.showStarted)
    Component.onDestruction: root.page.started.disconnect(root.showStarted)

    ScrollBar.vertical: VEXScrollBar {}

    delegate: TaskRow {
        id: row

        x: Theme.wideMargin
        width: root.width - 2 * Theme.wideMargin
        page: root.page
        canCut: root.canCut
        opacity: root.dropRow >= 0 && row.isSelected ? 0.6 : 1
        onFormatClicked: function (button) {
            root.pickerAsked(button, row.taskId, row.format)
        }
        // A press within the selection may begin to drag all of it.
        onPressed: function (modifiers) {
            root.currentIndex = row.index
            if (!row.isSelected || modifiers !== Qt.NoModifier) {
                root.select(row.taskId, modifiers)
            }
        }
        onReleased: function (modifiers) {
            if (modifiers === Qt.NoModifier) {
                root.select(row.taskId, modifiers)
            }
        }
        onMenuWanted: function (place) {
            root.currentIndex = row.index
            if (!row.isSelected) {
                root.page.selection.set(row.taskId)
            }
            menu.openFor(row, place)
        }
        onHeightChanged: {
            if (row.isOpen && row.activeFocus) {
                root.positionViewAtIndex(row.index, ListView.Contain)
            }
        }
        onRemovalWanted: root.removeChosen(row.taskId)
        onDragged: function (y) { root.drag(y) }
        onDropped: root.drop(row.taskId)
    }

    DragScroller {
        id: scroller

        view: root
    }

    Rectangle {
        parent: root.contentItem
        x: Theme.wideMargin
        y: root.dropY - height / 2
        z: 2
        width: root.width - 2 * Theme.wideMargin
        height: 3
        radius: 1
        visible: root.dropRow >= 0
        color: Theme.font_color_grade3
    }

    TaskMenu {
        id: menu

        property TaskRow row

        function openFor(row, place) {
            menu.row = row
            menu.taskId = row.taskId
            menu.taskState = row.taskState
            menu.hasOwnFormat = row.hasOwnFormat
            menu.isOpen = row.isOpen
            menu.canOpen = row.hasFacts
            menu.hasResult = row.result !== ""
            const there = root.mapFromItem(row, place)
            menu.popup(root, there.x, there.y)
        }

        page: root.page
        onFormatWanted: menu.row.activate()
        onTracksWanted: menu.row.setOpen(!menu.isOpen)
    }
}
