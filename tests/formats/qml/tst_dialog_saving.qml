import QtQuick 2.15
import QtTest 1.15

ScreenTest {
    id: root

    function button(text) {
        return all("Button").find(function (candidate) {
            return candidate.text === text
        })
    }

    function addOwn() {
        return O_FormatsProxy.addUserDefineFormat("video", "MP4", "Video_MP4_002", {
            "title": "Mine", "videoEncoder": "hevc", "videoBitrateLow": "2000",
            "videoBitrateMid": "4000", "videoBitrateHigh": "8000"
        })
    }

    function choose(box, index) {
        mouseClick(box)
        waitFor(box.popup, "opened", true)
        press(Qt.Key_Up, box.count)
        press(Qt.Key_Down, index)
        press(Qt.Key_Return)
        compare(box.currentIndex, index)
    }

    /*! The facade, which reports each change to the host's recorder. */
    function recordTheFacade() {
        const facade = O_FormatsProxy
        const recorded = { "getFormat": facade.getFormat,
                           "getUserDefineCount": facade.getUserDefineCount }
        for (const name of ["addUserDefineFormat", "changeUserDefineFormat"]) {
            recorded[name] = function () {
                const parameters = Array.prototype.slice.call(arguments)
                host.record("formats." + name, parameters)
                return facade[name].apply(facade, parameters)
            }
        }
        bench.publish("O_FormatsProxy", recorded)
    }

    name: "DialogSaving"

    function test_theButtonsSayWhatTheyDo_data() {
        return [{ tag: "catalogue", userDefine: false, caption: "~Create" },
                { tag: "user-defined", userDefine: true, caption: "~Save" }]
    }

    function test_theButtonsSayWhatTheyDo(row) {
        openDialog({ userDefine: row.userDefine })
        compare(all("Button").map(function (button) {
            return button.text
        }), ["~Cancel", row.caption])
    }

    function test_creatingCopiesAppliesAndCloses_data() {
        return [
            { tag: "converter, global", info: { openTheWay: true, fromPAGE: "Converter" },
              call: ["converter.setConverterGlobalFormat", "1001"] },
            { tag: "editor, global", info: { openTheWay: true, fromPAGE: "Editor" },
              call: ["editor.setEditorGlobalFormat", "1001"] },
            { tag: "converter, task",
              info: { openTheWay: false, fromPAGE: "Converter", listID: 7 },
              call: ["converter.setConvertingListTaskFormat", 7, "1001"] },
            { tag: "editor, task", info: { openTheWay: false, fromPAGE: "any", listID: 7 },
              call: ["editor.setEditingListTaskFormat", 7, "1001"] }
        ]
    }

    function test_creatingCopiesAppliesAndCloses(row) {
        openDialog(row.info)
        click(button("~Create"))
        compare(calls(), [row.call, ["frame.cancelClicked", "1001"]])
        compare(presets("MP4").count, 9)
        const made = O_FormatsProxy.getFormat("1001")
        compare(made.title, "4K-~custom0")
        compare(made.video.encoder, "h264")
        compare(made.video.bitrateLow, "2000")
        compare(made.video.bitrateMid, "4000")
        compare(made.video.bitrateHigh, "8000")
        compare(made.audio.channel, "2")
    }

    function test_savingChangesThePresetAppliesAndCloses() {
        const id = addOwn()
        openDialog({ idIndex: id, userDefine: true })
        choose(all("VEXComboBox")[0], 1)
        mouseClick(all("VEXTextInput")[0])
        press("!")
        click(button("~Save"))
        compare(calls(), [["converter.setConverterGlobalFormat", id],
                          ["frame.cancelClicked", id]])
        compare(presets("MP4").count, 9)
        compare(O_FormatsProxy.getFormat(id).title, "Mine!")
        compare(O_FormatsProxy.getFormat(id).video.encoder, "h264")
    }

    function test_theSettingsGoToTheFacadeInTheirOwnTypes() {
        recordTheFacade()
        const dialog = openDialog({})
        compare(dialog.param.title, 1)
        const chosen = [2, 2, 0, 1, 0, 1, 2, 2]
        all("VEXComboBox").forEach(function (box, index) {
            choose(box, chosen[index])
        })
        mouseClick(all("VEXTextInput")[0])
        press("!")
        click(button("~Create"))
        const param = {
            "title": "4K-~custom0!",
            "videoEncoder": "hevc", "videoFrameRate": "29.97", "videoResolution": "0",
            "videoBitrateLow": "2000", "videoBitrateMid": 1000, "videoBitrateHigh": "8000",
            "audioEncoder": "0", "audioChannel": 1, "audioSampleRate": 48000, "audioBitrate": 256
        }
        const made = calls()
        compare(made.length, 3)
        compare(made[0].slice(0, 4),
                ["formats.addUserDefineFormat", "video", "MP4", "Video_MP4_002"])
        compare(made[0][4], param)
        compare(dialog.param, param)
        compare(made[1], ["converter.setConverterGlobalFormat", "1001"])
        compare(made[2], ["frame.cancelClicked", "1001"])
    }

    function test_savingPassesClassIdAndSettingsToTheFacade() {
        const id = addOwn()
        recordTheFacade()
        const dialog = openDialog({ idIndex: id, userDefine: true, openTheWay: false, listID: 3 })
        click(button("~Save"))
        const made = calls()
        compare(made[0].slice(0, 3), ["formats.changeUserDefineFormat", "MP4", id])
        compare(made[0][3], dialog.param)
        compare(made[0].length, 4)
        compare(made[1], ["converter.setConvertingListTaskFormat", 3, id])
        compare(made[2], ["frame.cancelClicked", id])
    }

    function test_anAudioTagSendsPlaceholdersForVideo() {
        recordTheFacade()
        openDialog({ format: "audio", curclass: "MP3", idIndex: "Audio_MP3_002" })
        click(button("~Create"))
        const param = calls()[0][4]
        for (const key of ["videoEncoder", "videoFrameRate", "videoResolution", "videoBitrateLow",
                           "videoBitrateMid", "videoBitrateHigh"]) {
            compare(param[key], "", key)
        }
        compare(param.audioEncoder, "mp3")
        compare(param.audioBitrate, 128)
    }

    function test_anIdThatTheFacadeRefusesIsAppliedAsItIs() {
        openDialog({ curclass: "nowhere" })
        click(button("~Create"))
        compare(calls(), [["converter.setConverterGlobalFormat", ""], ["frame.cancelClicked", ""]])
    }

    function test_cancelSavesNothing() {
        const id = addOwn()
        openDialog({ idIndex: id, userDefine: true })
        choose(all("VEXComboBox")[0], 0)
        mouseClick(all("VEXTextInput")[0])
        press("!")
        click(button("~Cancel"))
        compare(calls(), [["frame.cancelClicked"]])
        compare(O_FormatsProxy.getFormat(id).title, "Mine")
        compare(O_FormatsProxy.getFormat(id).video.encoder, "hevc")
        compare(presets("MP4").count, 9)
    }

    /*! The items that can have the focus, by the number of presses of Tab. */
    function stops() {
        return [{ tag: "at once", tabs: 0 }, { tag: "in the title", tabs: 1 },
                { tag: "on a quality", tabs: 2 }, { tag: "on a box", tabs: 3 },
                { tag: "on the OK button", tabs: 12 }]
    }

    function test_returnIsAClickOnOk_data() {
        return stops().concat([{ tag: "Enter", tabs: 1, key: Qt.Key_Enter }])
    }

    function test_returnIsAClickOnOk(row) {
        openDialog({})
        press(Qt.Key_Tab, row.tabs)
        press(row.key || Qt.Key_Return)
        compare(calls(), [["converter.setConverterGlobalFormat", "1001"],
                          ["frame.cancelClicked", "1001"]])
    }

    function test_returnRefillsAnEmptyTitleFirst_data() {
        return [{ tag: "Return", key: Qt.Key_Return }, { tag: "Enter", key: Qt.Key_Enter }]
    }

    function test_returnRefillsAnEmptyTitleFirst(row) {
        openDialog({})
        press(Qt.Key_Tab)
        keyClick(Qt.Key_A, Qt.ControlModifier)
        press(Qt.Key_Delete)
        compare(all("VEXTextInput")[0].text, "")
        press(row.key)
        compare(O_FormatsProxy.getFormat("1001").title, "4K-~custom0")
        verify(!all("VEXTextInput")[0].activeFocus)
    }

    function test_escapeIsCancel_data() {
        return stops()
    }

    function test_escapeIsCancel(row) {
        openDialog({})
        press(Qt.Key_Tab, row.tabs)
        press(Qt.Key_Escape)
        compare(calls(), [["frame.cancelClicked"]])
        compare(presets("MP4").count, 8)
    }

    function test_anOpenBoxKeepsItsKeys() {
        openDialog({})
        const box = all("VEXComboBox")[0]
        mouseClick(box)
        waitFor(box.popup, "opened", true)
        press(Qt.Key_Down)
        press(Qt.Key_Escape)
        waitFor(box.popup, "visible", false)
        compare(box.currentIndex, 1)
        choose(box, 2)
        compare(calls(), [])
        press(Qt.Key_Return)
        compare(O_FormatsProxy.getFormat("1001").video.encoder, "hevc")
    }

    function test_tabVisitsTitleQualityBoxesAndButtons() {
        openDialog({})
        const quality = all("RadioButton", all("QualityBar")[0])[1]
        const stops = [all("VEXTextInput")[0], quality].concat(all("VEXComboBox"), all("Button"))
        compare(stops.length, 12)
        for (const stop of stops) {
            press(Qt.Key_Tab)
            verify(stop.activeFocus, stop)
        }
    }

    function test_arrowsChooseAQuality() {
        const dialog = openDialog({})
        host.elapse()
        press(Qt.Key_Tab, 2)
        press(Qt.Key_Right)
        compare(dialog.curQuality, "Low Quality")
        compare(all("VEXComboBox")[3].currentValue, 2000)
        press(Qt.Key_Right)
        compare(dialog.curQuality, "Low Quality")
        press(Qt.Key_Left, 2)
        compare(dialog.curQuality, "High Quality")
        compare(all("VEXComboBox")[3].currentValue, 8000)
        compare(dialog.isChange, true)
        compare(all("FocusRing", all("QualityBar")[0]).length, 1)
    }

    function test_aDialogDestroyedBeforeItIsInitialisedLogsNothing() {
        openDialog({})
        letGo()
        compare(host.elapse(), [100])
    }
}
