import QtQuick 2.15
import VexTheme 1.0
import VexWindow 1.0

/*! What the presets must be, at most one of each sort; empty: any. */
Flow {
    id: root

    property string kind: ""
    property string codec: ""
    property string size: ""

    function clear() {
        root.kind = ""
        root.codec = ""
        root.size = ""
    }

    spacing: 6
    Accessible.role: Accessible.Grouping
    Accessible.name: ToolFun.tr("Filters")

    Repeater {
        model: ["own", "video", "audio", "device", "socialVideo"]

        FinderChip {
            required property string modelData

            text: modelData === "own" ? ToolFun.tr("My presets") : ToolFun.tr(modelData)
            isOn: root.kind === modelData
            onClicked: root.kind = isOn ? "" : modelData
        }
    }

    Item {
        width: Theme.spacing
        height: 1
    }

    Repeater {
        model: ["H264", "HEVC", "AV1", "AAC", "MP3", "FLAC"]

        FinderChip {
            required property string modelData

            text: modelData
            isOn: root.codec === modelData
            onClicked: root.codec = isOn ? "" : modelData
        }
    }

    Item {
        width: Theme.spacing
        height: 1
    }

    Repeater {
        model: ["480p", "720p", "1080p", "4K"]

        FinderChip {
            required property string modelData

            text: modelData
            isOn: root.size === modelData
            onClicked: root.size = isOn ? "" : modelData
        }
    }
}
