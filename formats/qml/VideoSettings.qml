import QtQuick 2.15
import "."

/*! The boxes for the preset's video settings. */
Grid {
    id: root

    required property var dialog

    readonly property alias encoder: videoinfo1.currentValue
    readonly property alias frameRate: videoinfo2.currentValue
    readonly property alias resolution: videoinfo3.currentValue
    readonly property alias bitrate: videoinfo4.currentValue

    function selectBitrate(kbps) {
        videoinfo4.select(videoinfo4.find(kbps))
    }

    function selectLastBitrate() {
        videoinfo4.select(videoinfo4.count - 1)
    }

    columns: 2
    rowSpacing: 12
    columnSpacing: 24
    leftPadding: 91

    SettingCell {
        id: videoinfo1

        dialog: root.dialog
        label: ToolFun.tr("Encoder")
        options: root.dialog.m_videoEncoders
        chosen: root.dialog.m_videoEncoder
        strict: true
        smartFit: ["0"]
    }

    SettingCell {
        id: videoinfo2

        dialog: root.dialog
        label: ToolFun.tr("Frame Rate")
        labelRoom: 85
        options: root.dialog.m_videoFrameRates
        chosen: root.dialog.m_videoFrameRate
        smartFit: [0]
        unit: " fps"
    }

    SettingCell {
        id: videoinfo3

        dialog: root.dialog
        label: ToolFun.tr("Resolution")
        options: root.dialog.m_videoResolutions
        chosen: root.dialog.m_videoResolution
        strict: true
        smartFit: ["0"]
    }

    SettingCell {
        id: videoinfo4

        dialog: root.dialog
        label: ToolFun.tr("Bitrate")
        labelRoom: 85
        options: root.dialog.m_videoBitrates
        chosen: root.dialog.m_videoBitrate
        smartFit: [0, "0"]
        unit: " kbps"
    }
}
