import QtQuick 2.15
import QtTest 1.15

ScreenTest {
    id: root

    readonly property string inUse: "The selected format cannot be deleted because it is in use."

    function addOwn() {
        return O_FormatsProxy.addUserDefineFormat("video", "AVI", "Video_AVI_001",
                                                  { "title": "Own" })
    }

    /*! A picker that shows the format with the user's own preset \a id. */
    function pickerAt(id, properties) {
        const page = openPicker(Object.assign({ openWay: true }, properties))
        click(named("FormatRow", "AVI"))
        compare(all("PresetRow")[1].presetId, id)
        return page
    }

    function buttons(name) {
        return all("VEXImageButton").filter(function (button) {
            return button.Accessible.name === name
        })
    }

    name: "PickerChoosing"

    function test_aClickHandsThePresetToTheHost_data() {
        const rows = []
        for (const list of ["PresetRow", "RecentlyRow"]) {
            rows.push({
                tag: list + ", converter, global", list: list, properties: { openWay: true },
                call: ["converter.setConverterGlobalFormat", "Video_MP4_002"]
            }, {
                tag: list + ", editor, global", list: list,
                properties: { openWay: true, fromPage: "Editor" },
                call: ["editor.setEditorGlobalFormat", "Video_MP4_002"]
            }, {
                tag: list + ", converter, task", list: list,
                properties: { listId: 7, listFormatId: "Video_MP4_002" },
                call: ["converter.setConvertingListTaskFormat", 7, "Video_MP4_002"]
            }, {
                tag: list + ", editor, task", list: list,
                properties: { listId: 7, listFormatId: "Video_MP4_002", fromPage: "other" },
                call: ["editor.setEditingListTaskFormat", 7, "Video_MP4_002"]
            })
        }
        return rows
    }

    function test_aClickHandsThePresetToTheHost(row) {
        host.settings.editorGlobalId = "Video_MP4_002"
        if (row.list === "RecentlyRow") {
            O_FormatsProxy.add2Recently("video", "MP4", "Video_MP4_002")
        }
        const page = openPicker(row.properties)
        mouseClick(all(row.list).find(function (preset) {
            return preset.selected
        }))
        compare(calls(), [row.call])
        waitFor(page, "opened", false)
        // Adding it to the recently-used presets is up to the host.
        compare(recents().count, row.list === "RecentlyRow" ? 1 : 0)
    }

    function test_thePencilAsksForTheDialog_data() {
        return [
            { tag: "global", properties: { openWay: true }, fromPage: "Converter", listID: null },
            { tag: "task of the editor",
              properties: { listId: 7, listFormatId: "Video_MP4_002", fromPage: "Editor" },
              fromPage: "Editor", listID: 7 }
        ]
    }

    function test_thePencilAsksForTheDialog(row) {
        const page = openPicker(row.properties)
        const presetRow = all("PresetRow").find(function (preset) {
            return preset.presetId === "Video_MP4_003"
        })
        click(named("VEXImageButton", "~Edit", presetRow))
        const call = calls()
        compare(call.length, 1)
        compare(call[0][0], "converter.openConvertionParametersMsgBox")
        const map = call[0][1]
        const six = { "format": "video", "curclass": "MP4", "idIndex": "Video_MP4_003",
                      "listID": row.listID, "openTheWay": row.properties.openWay === true,
                      "fromPAGE": row.fromPage }
        for (const key in six) {
            compare(map[key], six[key], key)
            compare(presetRow[key], six[key], key)
        }
        verify(map.closeItem === presetRow)
        compare(map.userDefine, false)
        compare(Object.keys(map).length, 8)
        verify(page.opened)
        presetRow.colseItem()
        waitFor(page, "opened", false)
    }

    function test_everyPresetHasAPencilAndTheUsersOwnABin() {
        pickerAt(addOwn())
        compare(buttons("~Edit").length, 2)
        compare(buttons("~Delete").length, 1)
        click(buttons("~Edit")[1])
        compare(calls()[0][1].userDefine, true)
    }

    function test_theBinDeletesThePreset() {
        const id = addOwn()
        O_FormatsProxy.add2Recently("video", "AVI", id)
        const page = pickerAt(id)
        click(buttons("~Delete")[0])
        compare(presets("AVI").isExist(id), false)
        compare(recents().count, 0)
        compare(all("PresetRow").length, 1)
        compare(calls(), [])
        verify(page.opened)
    }

    function test_aPresetInUseIsNotDeleted_data() {
        return [{ tag: "converter" }, { tag: "editor" }]
    }

    function test_aPresetInUseIsNotDeleted(row) {
        const id = addOwn()
        if (row.tag === "converter") {
            host.usedByConverter = [id]
        } else {
            host.usedByEditor = [id]
        }
        host.settings.converterGlobalId = id
        pickerAt(id)
        click(buttons("~Delete")[0])
        compare(calls(), [["converter.openSelectFormatMsgBox", { "showText": "~" + inUse }]])
        compare(presets("AVI").isExist(id), true)
    }

    function test_deletingAGlobalPresetResetsThePageThatOpenedThePicker_data() {
        return [
            { tag: "converter's, converter", converter: true, editor: false, fromPage: "Converter",
              call: "converter.setConverterGlobalFormat" },
            { tag: "editor's, converter", converter: false, editor: true, fromPage: "Converter",
              call: "converter.setConverterGlobalFormat" },
            { tag: "editor's, editor", converter: false, editor: true, fromPage: "Editor",
              call: "editor.setEditorGlobalFormat" },
            { tag: "converter's, editor", converter: true, editor: false, fromPage: "Editor",
              call: "editor.setEditorGlobalFormat" },
            { tag: "both, editor", converter: true, editor: true, fromPage: "Editor",
              call: "editor.setEditorGlobalFormat" },
            { tag: "both, converter", converter: true, editor: true, fromPage: "Converter",
              call: "converter.setConverterGlobalFormat" }
        ]
    }

    function test_deletingAGlobalPresetResetsThePageThatOpenedThePicker(row) {
        const id = addOwn()
        host.settings.converterGlobalId = row.converter ? id : "Video_MP4_002"
        host.settings.editorGlobalId = row.editor ? id : "Video_MP4_002"
        pickerAt(id, { fromPage: row.fromPage, openWay: false, listFormatId: id, listId: 7 })
        click(buttons("~Delete")[0])
        compare(presets("AVI").isExist(id), false)
        compare(calls(), [[row.call, "Video_MP4_001"]])
    }

    function test_theBinOfARecentlyUsedPresetOnlyForgetsIt() {
        O_FormatsProxy.add2Recently("audio", "MP3", "Audio_MP3_002")
        O_FormatsProxy.add2Recently("video", "MP4", "Video_MP4_002")
        host.usedByConverter = ["Video_MP4_002"]
        const page = openPicker({ openWay: true })
        click(buttons("~Delete")[0])
        compare(recents().count, 1)
        compare(recents().getId(0), "Audio_MP3_002")
        compare(presets("MP4").isExist("Video_MP4_002"), true)
        compare(calls(), [])
        verify(page.opened)
    }

    function test_theWidthOfTheHostsButtons() {
        const page = picker({})
        host.mark = ""
        metrics.text = "Convert all to:"
        compare(page.converterButtonWidth(), metrics.advanceWidth + 8 + 16)
        metrics.text = "Format:"
        compare(page.editorButtonWidth(), metrics.advanceWidth + 8 + 16)
        host.mark = "translated "
        verify(page.editorButtonWidth() > metrics.advanceWidth + 8 + 16)
    }

    TextMetrics {
        id: metrics

        font.pixelSize: 12
    }
}
