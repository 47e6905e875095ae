import QtQuick 2.15
import QtQuick.Controls 2.5
import Converter 1.0
import Public 1.0
import VexTheme 1.0
import VexWindow 1.0

/*! The presets that are found, one of them current. It stays current when the list changes. */
Item {
    id: root

    readonly property FinderRow row: list.currentItem as FinderRow
    readonly property int currentIndex: list.currentIndex
    /*! The preset to go to when the list has changed. */
    property string keepAt: ""
    property int lastRow: 0

    /*! The row beside which what is dragged would land; null: nowhere. */
    property FinderRow dropRow: null
    property bool isBelow: false
    property bool isDragging: false

    signal useWanted(string presetId)
    signal menuWanted(FinderRow row, Item button)

    function goTo(row) {
        list.currentIndex = list.count > 0 ? Math.max(0, Math.min(row, list.count - 1)) : -1
        root.lastRow = list.currentIndex
        list.positionViewAtIndex(Math.max(0, list.currentIndex), ListView.Contain)
    }

    function step(by, modifiers) {
        if (!(modifiers & Qt.AltModifier)) {
            root.goTo(list.currentIndex + by)
        } else if (root.row !== null) {
            root.keepAt = root.row.presetId
            PresetActions.move(root.row.presetId, by)
        }
    }

    function page(by) {
        const height = root.row === null ? 1 : root.row.height
        root.goTo(list.currentIndex + by * Math.max(1, Math.floor(list.height / height)))
    }

    /*! The user's own presets stand in the order of their formats, so each stays in its own. */
    function drag(row, y) {
        if (!root.isDragging) {
            return
        }
        const other = list.itemAtIndex(list.indexAt(list.width / 2, y)) as FinderRow
        const isPlace = other !== null && other.canMove && other.format === row.format
        root.dropRow = isPlace ? other : null
        root.isBelow = isPlace && y > other.y + other.height / 2
        scroller.follow(y)
    }

    function endDrag() {
        root.isDragging = false
        root.dropRow = null
        scroller.step = 0
    }

    function drop(row) {
        const other = root.dropRow
        root.endDrag()
        if (other !== null && other !== row) {
            root.keepAt = row.presetId
            PresetActions.moveBeside(row.presetId, other.presetId, root.isBelow)
        }
    }

    /*! The list is another one: goes on where the user was. */
    function goBack() {
        root.endDrag()
        const kept = PresetFinder.rowOf(root.keepAt)
        root.goTo(kept >= 0 ? kept : root.lastRow)
        root.keepAt = kept >= 0 ? "" : root.keepAt
    }

    function openMenu() {
        if (root.row !== null) {
            root.menuWanted(root.row, root.row)
        }
    }

    Component.onCompleted: PresetFinder.found.connect(root.goBack)
    Component.onDestruction: PresetFinder.found.disconnect(root.goBack)

    // Not the root: its headings would then be given the view's own property "section".
    ListView {
        id: list

        anchors.fill: parent
        clip: true
        spacing: 2
        cacheBuffer: 0 // rows made ahead would be given up at each letter
        boundsBehavior: Flickable.StopAtBounds
        model: PresetFinder
        highlightMoveDuration: 0
        Accessible.role: Accessible.List
        Accessible.name: ToolFun.tr("Presets: %1").arg(PresetFinder.count)

        ScrollBar.vertical: VEXScrollBar {}

        section.property: "group"
        section.delegate: VEXLabel {
            required property string section

            width: list.width
            height: section === "" ? 0 : implicitHeight + 10
            text: section
            font.pixelSize: Theme.smallText
            font.weight: Font.DemiBold
            color: Theme.font_color_grade2
            Accessible.role: Accessible.Heading
        }

        delegate: FinderRow {
            id: row

            width: list.width - 10
            isCurrent: row.ListView.isCurrentItem
            opacity: root.isDragging && row.isCurrent ? 0.6 : 1
            onPressed: root.goTo(row.index)
            onUsed: root.useWanted(row.presetId)
            onNearestUsed: root.useWanted(row.nearest)
            onMenuWanted: function (button) { root.menuWanted(row, button) }
            onDragBegun: root.isDragging = true
            onDragged: function (y) { root.drag(row, y) }
            onDropped: root.drop(row)
        }

        DragScroller {
            id: scroller

            view: list
        }

        Rectangle {
            objectName: "dropLine"
            parent: list.contentItem
            y: root.dropRow === null ? 0 : root.dropRow.y + (root.isBelow ? root.dropRow.height : 0)
                                           - height / 2
            z: 2
            width: list.width - 10
            height: 3
            radius: 1
            visible: root.dropRow !== null
            color: Theme.font_color_grade3
        }
    }
}
