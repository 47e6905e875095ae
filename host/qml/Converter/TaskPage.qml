import QtQuick 2.15
import VexTheme 1.0
import VexWindow 1.0

/*! A page of the window: its files, and below them what holds for all of them. */
Item {
    id: root

    required property PageProxy page
    required property bool canCut
    required property string formatLabel
    required property int formatLabelWidth

    property alias globalButton: bottom.formatButton
    property alias list: list

    /*! The picker is wanted at \a button: for a task, or for the whole page where there is none. */
    signal pickerAsked(Item button, var taskId, var formatId)

    /*! A preset is to be found for the page. */
    signal finderAsked()

    EmptyList {
        anchors {
            fill: parent
            bottomMargin: bottom.height
        }
        visible: list.count === 0
        isDropOver: drop.containsDrag
        onAddClicked: FileChooser.chooseFiles(root.page)
    }

    ListBar {
        id: bar

        y: Theme.spacing
        width: parent.width
        visible: list.count > 0
        page: root.page
    }

    TaskListView {
        id: list

        anchors {
            fill: parent
            topMargin: bar.y + bar.height
            bottomMargin: bottom.height
        }
        visible: list.count > 0
        page: root.page
        canCut: root.canCut
        onPickerAsked: function (button, taskId, formatId) {
            root.pickerAsked(button, taskId, formatId)
        }
    }

    OfferBar {
        anchors {
            horizontalCenter: parent.horizontalCenter
            bottom: bottom.top
            bottomMargin: Theme.spacing
        }
        page: root.page
    }

    Shortcut {
        enabled: root.visible
        sequence: "Ctrl+A"
        onActivated: root.page.selection.selectAll()
    }

    Shortcut {
        enabled: root.visible
        sequence: "Ctrl+Z"
        onActivated: PresetActions.undoLast(root.page)
    }

    Rectangle {
        anchors {
            fill: list
            margins: Theme.spacing
        }
        visible: drop.containsDrag && list.count > 0
        radius: Theme.radius_3
        color: "transparent"
        border.width: 2
        border.color: Theme.font_color_grade3
    }

    DropArea {
        id: drop

        anchors.fill: parent
        keys: ["text/uri-list"]
        onDropped: function (drag) {
            root.page.addFiles(PresetExchange.takePresetFiles(drag.urls))
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
        onFinderClicked: root.finderAsked()
        onFormatClicked: root.pickerAsked(bottom.formatButton, null, null)
    }
}
