import QtQuick 2.15
import QtQuick.Controls 2.5
import "."

/*! A list of rows, each with a function choose(), for mouse and keyboard. */
ListView {
    id: root

    /*! Takes a row's index and returns whether the row is selected. */
    required property var isSelected

    readonly property bool scrollable: root.contentHeight > root.height

    function chooseCurrent() {
        if (root.currentItem) {
            root.currentItem.choose()
        }
    }

    function selectedRow() {
        for (let row = 0; row < root.count; ++row) {
            if (root.isSelected(row)) {
                return row
            }
        }
        return -1
    }

    function showSelected() {
        const row = root.selectedRow()
        if (row >= 0) {
            root.positionViewAtIndex(row, ListView.Beginning)
        }
    }

    function makeSelectedCurrent() {
        root.currentIndex = Math.max(0, root.selectedRow())
    }

    clip: true
    boundsBehavior: Flickable.StopAtBounds
    synchronousDrag: ToolFun.isMac
    activeFocusOnTab: true
    highlightMoveDuration: 0
    highlightResizeDuration: 0
    Accessible.role: Accessible.List
    onActiveFocusChanged: {
        if (root.activeFocus) {
            root.makeSelectedCurrent()
        }
    }
    Keys.onReturnPressed: root.chooseCurrent()
    Keys.onEnterPressed: root.chooseCurrent()
    Keys.onSpacePressed: root.chooseCurrent()

    highlight: FocusRing {
        z: 2
        visible: root.activeFocus
    }

    ScrollBar.vertical: ScrollBar {
        id: bar

        policy: root.scrollable ? ScrollBar.AlwaysOn : ScrollBar.AlwaysOff
        active: true
        onActiveChanged: bar.active = true
    }
}
