import QtQuick 2.15
import VexWindow 1.0

/*! What can be done with a task, or with all selected ones if it is one of them. */
StyledMenu {
    id: root

    required property PageProxy page
    property int taskId
    property int taskState
    property bool hasOwnFormat
    property bool hasResult
    property bool isOpen
    property bool canOpen
    readonly property bool isQueued: root.taskState === Task.Waiting
                                     || root.taskState === Task.Running

    signal formatWanted()
    signal tracksWanted()

    MenuEntry {
        isOffered: !root.isQueued
        enabled: root.taskState !== Task.Reading
        text: root.taskState === Task.Converted ? ToolFun.tr("Convert again")
                                                : ToolFun.tr("Convert")
        onTriggered: root.page.convertChosen(root.taskId)
    }

    MenuEntry {
        isOffered: root.isQueued
        text: ToolFun.tr("Stop")
        onTriggered: root.page.cancelChosen(root.taskId)
    }

    MenuEntry {
        isOffered: root.hasResult
        text: ToolFun.tr("Play")
        onTriggered: root.page.play(root.taskId)
    }

    MenuEntry {
        enabled: root.taskState !== Task.Reading
        text: ToolFun.tr("Try 10 seconds")
        onTriggered: root.page.trySample(root.taskId)
    }

    MenuEntry {
        text: ToolFun.tr("Show in folder")
        onTriggered: root.page.showInFolder(root.taskId)
    }

    MenuEntry {
        isOffered: root.page === ConverterProxy
        enabled: root.taskState !== Task.Reading
        text: ToolFun.tr("Cut in the editor")
        onTriggered: ConverterProxy.openInEditor(root.taskId)
    }

    MenuEntry {
        enabled: root.taskState !== Task.Reading && !root.isQueued
        text: ToolFun.tr("Show log")
        onTriggered: root.page.logs.show(root.taskId)
    }

    MenuEntry {
        enabled: root.taskState !== Task.Running
        text: ToolFun.tr("Choose a format …")
        shortcutText: ToolFun.tr("Enter")
        onTriggered: root.formatWanted()
    }

    MenuEntry {
        isOffered: root.hasOwnFormat
        enabled: root.taskState !== Task.Running
        text: ToolFun.tr("Follow “Convert all to”")
        onTriggered: root.page.followChosen(root.taskId)
    }

    MenuEntry {
        enabled: root.canOpen
        text: root.isOpen ? ToolFun.tr("Hide tracks") : ToolFun.tr("Show tracks")
        shortcutText: ToolFun.tr("Space")
        onTriggered: root.tracksWanted()
    }

    MenuEntry {
        text: ToolFun.tr("Select all")
        shortcutText: ToolFun.tr("Ctrl+A")
        onTriggered: root.page.selection.selectAll()
    }

    SortMenu {
        page: root.page
    }

    MenuEntry {
        text: ToolFun.tr("Remove from the list")
        shortcutText: ToolFun.tr("Del")
        onTriggered: root.page.removeChosen(root.taskId)
    }
}
