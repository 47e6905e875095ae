import QtQuick 2.15
import Controls 1.0
import Public 1.0
import VexTheme 1.0
import VexWindow 1.0

/*! Above the list: how far all is, how many files there are, and what concerns all of them. */
Item {
    id: root

    required property PageProxy page

    component BarButton: VEXButton {
        implicitHeight: Theme.smallControlHeight
        font.pixelSize: Theme.smallText
        minWidth: 72
    }

    function counted(number) {
        return Number(number).toLocaleString(Qt.locale(), "f", 0)
    }

    implicitHeight: Theme.smallControlHeight

    OverallProgress {
        id: overall

        anchors {
            left: parent.left
            leftMargin: Theme.wideMargin
            verticalCenter: parent.verticalCenter
        }
        page: root.page
    }

    VEXLabel {
        id: count

        anchors {
            left: parent.left
            leftMargin: Theme.wideMargin
            verticalCenter: parent.verticalCenter
        }
        visible: !overall.visible
        text: root.page.selection.count > 1
              ? ToolFun.tr("%1 of %2 selected").arg(root.counted(root.page.selection.count))
                                               .arg(root.counted(root.page.tasks.count))
              : ToolFun.tr("Files: %1").arg(root.counted(root.page.tasks.count))
        font.pixelSize: Theme.smallText
        color: Theme.font_color_grade4
    }

    VEXLabel {
        anchors {
            left: count.right
            leftMargin: Theme.margin
            right: buttons.left
            rightMargin: Theme.margin
            verticalCenter: parent.verticalCenter
        }
        visible: root.page.outcome !== ""
        text: root.page.outcome
        font.pixelSize: Theme.smallText
        font.weight: Font.DemiBold
        Accessible.role: Accessible.AlertMessage
    }

    Row {
        id: buttons

        anchors {
            right: parent.right
            rightMargin: Theme.wideMargin
            verticalCenter: parent.verticalCenter
        }
        spacing: Theme.spacing

        BarButton {
            visible: root.page.isBusy
            text: root.page.isPaused ? ToolFun.tr("Resume") : ToolFun.tr("Pause")
            onClicked: root.page.isPaused ? root.page.resume() : root.page.pause()
        }

        BarButton {
            visible: root.page.canClear
            text: ToolFun.tr("Clear converted")
            onClicked: root.page.clearConverted()
        }

        BarButton {
            id: sortButton

            visible: root.page.tasks.count > 1
            text: ToolFun.tr("Sort by")
            onClicked: sortMenu.popup(sortButton, 0, sortButton.height + 4)

            SortMenu {
                id: sortMenu

                page: root.page
            }
        }
    }
}
