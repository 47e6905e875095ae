import QtQuick 2.15
import QtQuick.Controls 2.5
import Public 1.0

/*! A page of the window: its files, and below them what holds for all of them. */
Item {
    id: root

    required property QtObject page
    required property bool canCut
    required property string formatLabel
    required property int formatLabelWidth

    property alias globalButton: bottom.formatButton
    property alias list: list

    /*! The picker is wanted at \a button: for a task, or for the whole page where there is none. */
    signal pickerAsked(Item button, var taskId, var formatId)

    EmptyList {
        anchors {
            fill: parent
            bottomMargin: bottom.height
        }
        visible: list.count === 0
        isDropOver: drop.containsDrag
        onAddClicked: O_Files.chooseFiles(root.page)
    }

    ListView {
        id: list

        anchors {
            fill: parent
            bottomMargin: bottom.height
        }
        topMargin: 16
        bottomMargin: 16
        spacing: 8
        clip: true
        visible: list.count > 0
        model: root.page.tasks
        keyNavigationEnabled: true
        boundsBehavior: Flickable.StopAtBounds
        flickDeceleration: 3000
        highlightMoveDuration: 120
        Accessible.role: Accessible.List
        Accessible.name: ToolFun.tr("Files")

        ScrollBar.vertical: VEXScrollBar {}

        delegate: TaskRow {
            id: row

            x: 24
            width: list.width - 48
            page: root.page
            canCut: root.canCut
            onFormatClicked: root.pickerAsked(button, row.taskId, row.format)
            onPressed: list.currentIndex = row.index
        }
    }

    Rectangle {
        anchors {
            fill: list
            margins: 8
        }
        visible: drop.containsDrag && list.count > 0
        radius: 12
        color: "transparent"
        border.width: 2
        border.color: VexThemeMgr.curTheme.font_color_grade3
    }

    DropArea {
        id: drop

        anchors.fill: parent
        keys: ["text/uri-list"]
        onDropped: function (drag) {
            root.page.addFiles(drag.urls)
            drag.accept(Qt.CopyAction)
        }
    }

    BottomBar {
        id: bottom

        anchors.bottom: parent.bottom
        width: parent.width
        page: root.page
        formatLabel: root.formatLabel
        formatLabelWidth: root.formatLabelWidth
        onFormatClicked: root.pickerAsked(bottom.formatButton, null, null)
    }
}
