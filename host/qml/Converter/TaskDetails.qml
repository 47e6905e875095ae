import QtQuick 2.15
import Public 1.0
import VexTheme 1.0
import VexWindow 1.0

/*! The tracks of a file, and what its format leaves out of them. */
Column {
    id: root

    required property TaskTracks tracks
    required property int taskId
    required property string details
    required property string format
    /*! What is chosen of the tracks, as one text. */
    required property string chosen
    required property string losses
    required property bool inTabOrder

    component Group: Column {
        id: group

        required property int kind
        required property string title
        readonly property var lines: root.tracks.lines(root.taskId, group.kind, root.details,
                                                       root.format, root.chosen)

        width: root.width
        visible: group.lines.length > 0
        Accessible.role: Accessible.Grouping
        Accessible.name: group.title

        VEXLabel {
            height: 20
            text: group.title
            font.pixelSize: Theme.smallText
            font.weight: Font.DemiBold
        }

        Repeater {
            // A number, so that the controls and their focus stay when a choice changes.
            model: group.lines.length

            TrackControls {
                required property int index

                width: group.width
                tracks: root.tracks
                taskId: root.taskId
                kind: group.kind
                line: group.lines[index]
                inTabOrder: root.inTabOrder
            }
        }
    }

    spacing: Theme.spacing

    Group {
        id: audio

        kind: TaskTracks.Audio
        title: ToolFun.tr("Audio tracks")
    }

    Group {
        id: subtitles

        kind: TaskTracks.Subtitles
        title: ToolFun.tr("Subtitles")
    }

    VEXLabel {
        width: root.width
        visible: !audio.visible && !subtitles.visible
        text: ToolFun.tr("No audio tracks or subtitles")
        font.pixelSize: Theme.smallText
        color: Theme.font_color_grade4
    }

    VEXLabel {
        width: root.width
        visible: root.losses !== ""
        elide: Text.ElideNone
        wrapMode: Text.Wrap
        text: root.losses
        font.pixelSize: Theme.smallText
        color: Theme.font_color_grade4
    }
}
