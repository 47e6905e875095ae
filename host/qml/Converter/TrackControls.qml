import QtQuick 2.15
import Controls 1.0
import Public 1.0
import VexTheme 1.0
import VexWindow 1.0

/*! A track of a file: whether it is kept, played by default, or drawn onto the picture. */
Item {
    id: root

    required property TaskTracks tracks
    required property int taskId
    required property int kind
    /*! A TrackLine. */
    required property var line
    required property bool inTabOrder

    component Box: VEXCheckBox {
        id: box

        required property string purpose

        focusPolicy: root.inTabOrder || box.activeFocus ? Qt.StrongFocus : Qt.ClickFocus
        Accessible.name: box.purpose
    }

    implicitHeight: Math.max(keep.implicitHeight, choices.implicitHeight)

    Box {
        id: keep

        width: choices.x - Theme.margin
        purpose: [root.line.text, root.line.remark].filter(Boolean).join(", ")
        text: [root.line.text, root.line.remark].filter(Boolean).join("\u00A0\u00A0–  ")
        checked: root.line.isKept
        onToggled: root.tracks.keep(root.taskId, root.kind, root.line.number, keep.checked)
    }

    Row {
        id: choices

        anchors.right: parent.right
        spacing: Theme.margin

        Box {
            id: burn

            visible: root.kind === TaskTracks.Subtitles
            purpose: ToolFun.tr("Burn in: %1").arg(root.line.text)
            text: ToolFun.tr("Burn in")
            checked: root.line.isBurned
            onToggled: root.tracks.burn(root.taskId, burn.checked ? root.line.number : 0)

            VEXHint {
                shown: burn.hovered
                text: ToolFun.tr("Draws these subtitles onto the picture")
            }
        }

        Box {
            id: byDefault

            purpose: ToolFun.tr("Default track: %1").arg(root.line.text)
            text: ToolFun.tr("Default track")
            checked: root.line.isDefault
            onToggled: root.tracks.setDefault(root.taskId, root.kind,
                                              byDefault.checked ? root.line.number : 0)
        }
    }
}
