import QtQuick 2.15
import QtTest 1.15
import "catalogue.js" as Catalogue

ScreenTest {
    id: root

    readonly property var boxNames: ["~Encoder", "~Frame Rate", "~Resolution", "~Bitrate",
                                     "~Encoder", "~Channel", "~Sample Rate", "~Bitrate"]

    /*! A dialog for a preset with \a changes: see catalogue.js. */
    function openFor(changes, info) {
        const preset = Catalogue.video("Video_MP4_002", "T", changes)
        restart([{ "category": "Video", "groups": [Catalogue.group("MP4", "fmt_mp4", [preset])] }])
        return openDialog(info)
    }

    function boxes() {
        return all("VEXComboBox")
    }

    /*! What \a box shows of each of its entries. */
    function shownEntries(box) {
        return box.model.map(function (entry) {
            return box.transText(entry)
        })
    }

    function changesOf(box, list, value) {
        const places = [["videoOptions", "encoderList", "videoParam", "encoder"],
                        ["videoOptions", "frameRateList", "videoParam", "frameRate"],
                        ["videoOptions", "resolutionList", "videoParam", "resolution"],
                        ["videoOptions", "bitrateKbpsList", "videoOptions", "levelList"],
                        ["audioOptions", "encoderList", "audioParam", "encoder"],
                        ["audioOptions", "channelList", "audioParam", "channel"],
                        ["audioOptions", "sampleRateList", "audioParam", "sampleRate"],
                        ["audioOptions", "bitrateKbpsList", "audioParam", "bitrateKbps"]]
        const place = places[box]
        const changes = {}
        changes[place[0]] = {}
        changes[place[2]] = changes[place[2]] || {}
        changes[place[0]][place[1]] = list
        changes[place[2]][place[3]] = box === 3 ? [1, value, 2] : value
        return changes
    }

    name: "DialogBoxes"

    function test_theBoxesShowThePresetsSettings() {
        openDialog({})
        compare(boxes().map(function (box) {
            return box.displayText
        }), ["h264", "30 fps", "1280x720", "4000 kbps", "aac", "2", "44100 Hz", "128 kbps"])
        compare(boxes().map(function (box) {
            return box.count
        }), [3, 4, 3, 5, 3, 3, 3, 3])
        compare(all("SettingCell").map(function (cell) {
            return texts(cell)[0]
        }), boxNames)
    }

    function test_howAnEntryIsShown_data() {
        const fit = "~Smart Fit"
        return [
            { tag: "video encoder", box: 0, list: ["h264", "0", 0, ""],
              shown: ["h264", fit, "0", ""] },
            { tag: "frame rate", box: 1, list: [30, "30", 29.97, 0, "0"],
              shown: ["30 fps", "30 fps", "29.97 fps", fit, "0 fps"] },
            { tag: "resolution", box: 2, list: ["", "0", "640x360", 0],
              shown: ["", fit, "640x360", "0"] },
            { tag: "video bitrate", box: 3, list: [4000, "4000", 0, "0"],
              shown: ["4000 kbps", "4000 kbps", fit, fit] },
            { tag: "audio encoder", box: 4, list: ["aac", "0", 0], shown: ["aac", fit, "0"] },
            { tag: "channel", box: 5, list: [2, "2", 0, "0"], shown: ["2", "2", fit, "0"] },
            { tag: "sample rate", box: 6, list: [44100, "44100", 0, "0"],
              shown: ["44100 Hz", "44100 Hz", fit, "0 Hz"] },
            { tag: "audio bitrate", box: 7, list: [128, "128", 0, "0"],
              shown: ["128 kbps", "128 kbps", fit, "0 kbps"] }
        ]
    }

    function test_howAnEntryIsShown(row) {
        openFor(changesOf(row.box, row.list, row.list[0]))
        compare(shownEntries(boxes()[row.box]), row.shown)
    }

    // The facade holds each chosen value as a string, the offered ones as the catalogue has them.
    function test_theInitialChoice_data() {
        const rows = []
        const names = ["video encoder", "frame rate", "resolution", "video bitrate",
                       "audio encoder", "channel", "sample rate", "audio bitrate"]
        const strict = [0, 2, 4]
        for (let box = 0; box < names.length; ++box) {
            const name = names[box]
            const isStrict = strict.includes(box)
            rows.push({ tag: name + ", text", box: box, list: ["0", "7", "9"], value: "9",
                        index: 2 },
                      { tag: name + ", number", box: box, list: [0, 7, 9], value: 9,
                        index: isStrict ? 0 : 2 },
                      { tag: name + ", missing", box: box, list: ["1", "7"], value: "9", index: 0 },
                      { tag: name + ", twice", box: box, list: [5, 9, "9"], value: "9",
                        index: isStrict ? 2 : 1 })
            // Without video encoders a preset has no video settings at all.
            if (box > 0) {
                rows.push({ tag: name + ", none", box: box, list: [], value: "9", index: 0 })
            }
        }
        return rows
    }

    function test_theInitialChoice(row) {
        openFor(changesOf(row.box, row.list, row.value))
        const box = boxes()[row.box]
        compare(box.currentIndex, row.index)
        compare(box.count, row.list.length)
        compare(box.currentValue, row.list[row.index])
    }

    function test_aBoxKeepsItsChoiceWhenListAndValueChange() {
        const dialog = openDialog({})
        dialog.m_videoEncoders = ["x", "y", "z"]
        compare(boxes()[0].currentIndex, 0)
        dialog.m_videoEncoder = "z"
        compare(boxes()[0].currentIndex, 2)
        dialog.m_videoEncoders = ["z", "x"]
        compare(boxes()[0].currentIndex, 0)
        dialog.m_videoEncoders = ["x", "z"]
        compare(boxes()[0].currentIndex, 1)
    }

    function test_choosingAnEntryCountsAsAnEdit_data() {
        return ["video encoder", "frame rate", "resolution", "video bitrate", "audio encoder",
                "channel", "sample rate", "audio bitrate"].map(function (name, index) {
            return { tag: name, box: index }
        })
    }

    function test_choosingAnEntryCountsAsAnEdit(row) {
        const dialog = openDialog({})
        host.elapse()
        compare(dialog.isChange, false)
        const box = boxes()[row.box]
        mouseClick(box)
        waitFor(box.popup, "opened", true)
        const before = box.currentIndex
        press(Qt.Key_Up)
        press(Qt.Key_Return)
        compare(box.currentIndex, before - 1)
        compare(dialog.isChange, true)
    }

    function test_editsCountOnlyOnceTheViewIsInitialised() {
        const dialog = openDialog({})
        compare(dialog.viewInit, false)
        dialog.editedChange()
        boxes()[0].activated(0)
        compare(dialog.isChange, false)
        compare(host.elapse(), [100])
        compare(dialog.viewInit, true)
        compare(dialog.isChange, false)
        dialog.editedChange()
        compare(dialog.isChange, true)
    }

    function test_aUserDefinedPresetCountsAsEditedFromTheStart() {
        compare(openDialog({ userDefine: true }).isChange, true)
    }

    function test_aQualityMovesTheVideoBitrate_data() {
        return [
            { tag: "High Quality", levels: [8000, 4000, 2000], index: 4 },
            { tag: "Default", levels: [8000, 4000, 2000], index: 3 },
            { tag: "Low Quality", levels: [8000, 4000, 2000], index: 2 },
            // Always the last one, whatever the high level.
            { tag: "High Quality", name: "high level not offered", levels: [99, 4000, 2000],
              index: 4 },
            { tag: "Default", name: "middle level not offered", levels: [8000, 99, 2000],
              index: -1 },
            { tag: "Low Quality", name: "low level not offered", levels: [8000, 4000, 99],
              index: -1 }
        ].map(function (row) {
            return Object.assign(row, { quality: row.tag, tag: row.name || row.tag })
        })
    }

    function test_aQualityMovesTheVideoBitrate(row) {
        const dialog = openFor({ "videoOptions": { "levelList": row.levels } })
        host.elapse()
        compare(dialog.curQuality, "Default")
        boxes()[3].currentIndex = 1
        mouseClick(all("QualityBar")[0], { "High Quality": 80, "Default": 260,
                                           "Low Quality": 440 }[row.quality], 17)
        compare(boxes()[3].currentIndex, row.index)
        compare(dialog.curQuality, row.quality)
        compare(dialog.isChange, true)
    }

    function test_theQualityStartsAtDefaultAndIgnoresTheBitrate() {
        const dialog = openFor({ "videoOptions": { "levelList": [8000, 8000, 2000] } })
        compare(dialog.curQuality, "Default")
        host.elapse()
        mouseClick(boxes()[3])
        waitFor(boxes()[3].popup, "opened", true)
        press(Qt.Key_Up)
        press(Qt.Key_Return)
        compare(dialog.curQuality, "Default")
    }

    function test_anAudioTagHasPlaceholdersForVideo() {
        const dialog = openDialog({ format: "audio", curclass: "MP4" })
        for (const name of ["Encoder", "FrameRate", "Resolution", "Bitrate"]) {
            compare(dialog["m_video" + name], "", name)
            compare(dialog["m_video" + name + "s"], [""], name)
        }
        compare(dialog.m_videoBitrateLow, "")
        compare(dialog.m_videoBitrateHigh, "")
        compare(dialog.m_audioEncoder, "aac")
        compare(dialog.m_audioBitrates, [0, 128, 256])
        compare(boxes().length, 4)
    }

    function test_anAudioPresetUnderAnotherTagHasPlaceholdersForVideo() {
        const dialog = openDialog({ format: "video", curclass: "MP3", idIndex: "Audio_MP3_002" })
        compare(dialog.m_videoEncoder, "")
        compare(dialog.m_videoEncoders, [""])
        compare(boxes().map(function (box) {
            return box.displayText
        }), ["mp3", "2", "44100 Hz", "128 kbps"])
    }

    function test_theBoxesTellAScreenReaderWhatTheyAreFor() {
        openDialog({})
        compare(boxes().map(function (box) {
            return box.Accessible.name
        }), boxNames)
        for (const box of boxes()) {
            compare(box.Accessible.role, Accessible.ComboBox)
        }
    }
}
