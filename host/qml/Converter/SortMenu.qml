import QtQuick 2.15
import VexWindow 1.0

/*! Sorts the list of a page. */
StyledMenu {
    id: root

    required property PageProxy page

    title: ToolFun.tr("Sort by")

    MenuEntry {
        text: ToolFun.tr("Name")
        onTriggered: root.page.sortBy(Task.ByName)
    }

    MenuEntry {
        text: ToolFun.tr("Size")
        onTriggered: root.page.sortBy(Task.BySize)
    }

    MenuEntry {
        text: ToolFun.tr("Duration")
        onTriggered: root.page.sortBy(Task.ByDuration)
    }

    MenuEntry {
        text: ToolFun.tr("State")
        onTriggered: root.page.sortBy(Task.ByState)
    }
}
