import QtQuick 2.15
import "."

/*! The boxes for the preset's audio settings. */
Grid {
    id: root

    required property var dialog

    readonly property alias encoder: audioinfo1.currentValue
    readonly property alias channel: audioinfo2.currentValue
    readonly property alias sampleRate: audioinfo3.currentValue
    readonly property alias bitrate: audioinfo4.currentValue

    columns: 2
    rowSpacing: 12
    columnSpacing: 24
    leftPadding: 91

    SettingCell {
        id: audioinfo1

        dialog: root.dialog
        label: ToolFun.tr("Encoder")
        options: root.dialog.m_audioEncoders
        chosen: root.dialog.m_audioEncoder
        strict: true
        smartFit: ["0"]
    }

    SettingCell {
        id: audioinfo2

        dialog: root.dialog
        label: ToolFun.tr("Channel")
        labelRoom: 85
        options: root.dialog.m_audioChannels
        chosen: root.dialog.m_audioChannel
        smartFit: [0]
    }

    SettingCell {
        id: audioinfo3

        dialog: root.dialog
        label: ToolFun.tr("Sample Rate")
        options: root.dialog.m_audioSampleRates
        chosen: root.dialog.m_audioSampleRate
        smartFit: [0]
        unit: " Hz"
    }

    SettingCell {
        id: audioinfo4

        dialog: root.dialog
        label: ToolFun.tr("Bitrate")
        labelRoom: 85
        options: root.dialog.m_audioBitrates
        chosen: root.dialog.m_audioBitrate
        smartFit: [0]
        unit: " kbps"
    }
}
