import QtQuick 2.14
import QtQuick.Layouts 1.12
import QtQuick.Controls 2.12
import Qt.labs.settings 1.0
import Controls 1.0
import Public 1.0
import VexTheme 1.0
import MessageBox 1.0
import "."

/*! Edits the output parameters of a user-defined preset, or of a copy of a catalogue preset. */
VEXContent {
    id: root

    property var info: null
    property var mapInfo: null
    property bool viewInit: false
    property bool isChange: false
    property string curQuality: "Default"
    property var param: ({ "title": 1 })
    property bool userDefine: root.info !== null && Boolean(root.info["userDefine"])

    property var m_videoEncoder: root.videoSetting("encoder", "")
    property var m_videoEncoders: root.videoSetting("encoders", [""])
    property var m_videoFrameRate: root.videoSetting("frameRate", "")
    property var m_videoFrameRates: root.videoSetting("frameRates", [""])
    property var m_videoResolution: root.videoSetting("resolution", "")
    property var m_videoResolutions: root.videoSetting("resolutions", [""])
    property var m_videoBitrate: root.videoSetting("bitrateMid", "")
    property var m_videoBitrateLow: root.videoSetting("bitrateLow", "")
    property var m_videoBitrateHigh: root.videoSetting("bitrateHigh", "")
    property var m_videoBitrates: root.videoSetting("bitrates", [""])
    property var m_audioEncoder: root.audioSetting("encoder", "")
    property var m_audioEncoders: root.audioSetting("encoders", [""])
    property var m_audioChannel: root.audioSetting("channel", "")
    property var m_audioChannels: root.audioSetting("channels", [""])
    property var m_audioSampleRate: root.audioSetting("sampleRate", "")
    property var m_audioSampleRates: root.audioSetting("sampleRates", [""])
    property var m_audioBitrate: root.audioSetting("bitrate", "")
    property var m_audioBitrates: root.audioSetting("bitrates", [""])

    // A search finds formats of every tag: a preset under a video tag may be audio-only.
    readonly property bool hasVideo: (root.info === null || root.info.format !== "audio")
                                     && (root.mapInfo === null
                                         || root.mapInfo["video"] !== undefined)

    function videoSetting(key, missing) {
        return root.hasVideo ? root.setting("video", key, missing) : missing
    }

    function audioSetting(key, missing) {
        return root.setting("audio", key, missing)
    }

    function setting(part, key, missing) {
        return root.mapInfo && root.mapInfo[part] ? root.mapInfo[part][key] : missing
    }

    function editedChange() {
        if (root.viewInit) {
            root.isChange = true
        }
    }

    function newTitle() {
        if (!root.mapInfo) {
            return ""
        }
        const base = root.mapInfo.title === "Same as source" ? ToolFun.tr("Keep Orignal")
                                                             : root.mapInfo.title
        return base + "-" + ToolFun.tr("custom")
            + O_FormatsProxy.getUserDefineCount(root.info.format, root.info.curclass, "1002")
    }

    /*! Acts like a click on OK: the title loses the focus first and is refilled if empty. */
    function submit() {
        root.forceActiveFocus()
        root.okFunc()
    }

    function okFunc() {
        const video = videoSection.settings
        root.param = {
            "title": titleRow.text,
            "videoEncoder": video.encoder,
            "videoFrameRate": String(video.frameRate),
            "videoResolution": video.resolution,
            "videoBitrateLow": root.m_videoBitrateLow,
            "videoBitrateMid": video.bitrate,
            "videoBitrateHigh": root.m_videoBitrateHigh,
            "audioEncoder": audio.encoder,
            "audioChannel": audio.channel,
            "audioSampleRate": audio.sampleRate,
            "audioBitrate": audio.bitrate
        }
        let createId = root.mapInfo.id
        if (root.userDefine) {
            O_FormatsProxy.changeUserDefineFormat(root.info.curclass, createId, root.param)
        } else {
            createId = O_FormatsProxy.addUserDefineFormat(root.info.format, root.info.curclass,
                                                          createId, root.param)
        }
        target.assign(createId)
        O_Frame.cancelClicked(createId)
    }

    function cancelFunc() {
        O_Frame.cancelClicked()
    }

    width: 638
    height: root.hasVideo ? 572 : 320
    color: VexThemeMgr.curTheme.basics_gradeTone1
    radius: 8
    border.width: 1
    border.color: "#C6C6C6"
    focus: true
    Accessible.role: Accessible.Dialog
    Accessible.name: titleBar.text
    Keys.onReturnPressed: root.submit()
    Keys.onEnterPressed: root.submit()
    Keys.onEscapePressed: root.cancelFunc()
    onWidthChanged: resize.restart()
    onHeightChanged: resize.restart()

    Component.onCompleted: {
        root.info = O_Frame.info
        root.mapInfo = O_FormatsProxy.getFormat(root.info["idIndex"])
        root.isChange = root.userDefine
        titleRow.text = root.userDefine ? root.mapInfo.title : root.newTitle()
        ToolFun.timerOnce(100, function () {
            // The dialog may have been closed in the meantime.
            if (root) {
                root.viewInit = true
            }
        })
    }

    Timer {
        id: resize

        interval: 1
        onTriggered: O_Frame.resizeWinSize(root.width, root.height)
    }

    PresetTarget {
        id: target

        page: root.info ? root.info.fromPAGE : ""
        wholePage: root.info !== null && root.info.openTheWay
        taskId: root.info ? root.info.listID : null
    }

    VEXPopupsTitleBar {
        id: titleBar

        width: root.width
        control: root
        text: ToolFun.tr("Preference")
    }

    MouseArea {
        anchors {
            top: titleBar.bottom
            bottom: bottomRule.top
        }
        width: root.width
        onClicked: root.forceActiveFocus()
    }

    Column {
        anchors {
            left: parent.left
            leftMargin: 24
            top: titleBar.bottom
            topMargin: 24
        }
        spacing: 24

        TitleRow {
            id: titleRow

            onEdited: root.editedChange()
            onFoundEmpty: titleRow.text = root.newTitle()
        }

        VideoSection {
            id: videoSection

            visible: root.hasVideo
            spacing: parent.spacing
            dialog: root
        }

        SectionHeading {
            text: ToolFun.tr("Audio")
        }

        AudioSettings {
            id: audio

            dialog: root
        }
    }

    Rectangle {
        id: bottomRule

        anchors {
            bottom: parent.bottom
            bottomMargin: 56
        }
        x: root.border.width
        width: parent.width - 2 * x
        height: 1
        color: "#DDDBE7"
    }

    DialogButtons {
        anchors {
            right: parent.right
            rightMargin: 20
            bottom: parent.bottom
            bottomMargin: 12
        }
        control: root
        okCaption: root.userDefine ? ToolFun.tr("Save") : ToolFun.tr("Create")
        onAccepted: root.okFunc()
        onRejected: root.cancelFunc()
    }

    MouseArea {
        anchors.fill: parent
        z: 1
        onPressed: function (mouse) {
            root.forceActiveFocus()
            mouse.accepted = false
        }
    }
}
