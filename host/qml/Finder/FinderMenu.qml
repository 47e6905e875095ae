import QtQuick 2.15
import Converter 1.0
import VexWindow 1.0

/*! What can be done with a preset. */
StyledMenu {
    id: root

    required property PageProxy page
    property string presetId
    property bool isFavorite
    property bool isOwn
    property bool isUsable
    property int sampleTask: -1

    signal useWanted()
    /*! The user wants to type a "title" or a "note". */
    signal typingWanted(string what)
    signal duplicated(string id)

    onAboutToShow: root.sampleTask = PresetActions.sampleTask(root.page)

    component DefaultEntry: MenuEntry {
        id: entry

        required property string kind
        readonly property bool isDefault: PresetActions.version >= 0
                                          && PresetActions.isDefault(entry.kind, root.presetId)

        shortcutText: entry.isDefault ? "✓" : ""
        Accessible.checkable: true
        Accessible.checked: entry.isDefault
        onTriggered: PresetActions.setDefault(entry.kind, root.presetId, !entry.isDefault)
    }

    MenuEntry {
        enabled: root.isUsable
        text: ToolFun.tr("Use this preset")
        shortcutText: ToolFun.tr("Enter")
        onTriggered: root.useWanted()
    }

    MenuEntry {
        enabled: root.isUsable && root.sampleTask >= 0
        text: ToolFun.tr("Try 10 seconds")
        shortcutText: root.sampleTask < 0 ? ToolFun.tr("no file yet") : ""
        onTriggered: root.page.trySample(root.sampleTask, root.presetId)
    }

    MenuEntry {
        text: root.isFavorite ? ToolFun.tr("Remove from the favorites")
                              : ToolFun.tr("Add to the favorites")
        shortcutText: ToolFun.tr("Ctrl+D")
        onTriggered: PresetActions.setFavorite(root.presetId, !root.isFavorite)
    }

    MenuEntry {
        text: ToolFun.tr("Duplicate")
        onTriggered: root.duplicated(PresetActions.duplicate(root.presetId))
    }

    MenuEntry {
        isOffered: root.isOwn
        text: ToolFun.tr("Rename")
        shortcutText: ToolFun.tr("F2")
        onTriggered: root.typingWanted("title")
    }

    MenuEntry {
        isOffered: root.isOwn
        text: ToolFun.tr("Note …")
        onTriggered: root.typingWanted("note")
    }

    MenuEntry {
        isOffered: root.isOwn
        text: ToolFun.tr("What has been changed …")
        onTriggered: Dialogs.showPresetChanges(root.presetId)
    }

    MenuEntry {
        isOffered: root.isOwn
        text: ToolFun.tr("Move up")
        shortcutText: ToolFun.tr("Alt+Up")
        onTriggered: PresetActions.move(root.presetId, -1)
    }

    MenuEntry {
        isOffered: root.isOwn
        text: ToolFun.tr("Move down")
        shortcutText: ToolFun.tr("Alt+Down")
        onTriggered: PresetActions.move(root.presetId, 1)
    }

    StyledMenu {
        title: ToolFun.tr("Default on the command line for")

        DefaultEntry {
            kind: "video"
            text: ToolFun.tr("Videos")
        }

        DefaultEntry {
            kind: "audio"
            text: ToolFun.tr("Audio files")
        }

        DefaultEntry {
            kind: "picture"
            text: ToolFun.tr("Pictures")
        }
    }

    MenuEntry {
        isOffered: root.isOwn
        text: ToolFun.tr("Export …")
        onTriggered: PresetExchange.chooseTarget([root.presetId])
    }

    MenuEntry {
        isOffered: root.isOwn
        text: ToolFun.tr("Delete")
        onTriggered: PresetActions.remove(root.presetId)
    }
}
