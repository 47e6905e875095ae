import QtQuick 2.15
import "."

/*! What the dialog shows of a preset with video: the quality bar and the boxes. */
Column {
    id: root

    required property var dialog
    readonly property alias settings: settings

    function selectQuality(quality) {
        root.dialog.editedChange()
        root.dialog.curQuality = quality
        if (quality === "High Quality") {
            settings.selectLastBitrate()
        } else if (quality === "Low Quality") {
            settings.selectBitrate(root.dialog.m_videoBitrateLow)
        } else {
            settings.selectBitrate(root.dialog.m_videoBitrate)
        }
    }

    SectionHeading {
        text: ToolFun.tr("Quality")
    }

    Row {
        leftPadding: 70

        QualityBar {
            selected: root.dialog.curQuality
            onChosen: function (quality) { root.selectQuality(quality) }
        }
    }

    SectionHeading {
        text: ToolFun.tr("Video")
    }

    VideoSettings {
        id: settings

        dialog: root.dialog
    }
}
