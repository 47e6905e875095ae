import QtQuick 2.15
import QtTest 1.15
import "catalogue.js" as Catalogue

ScreenTest {
    id: root

    /*! A preset of a catalogue format with the tag of the recently-used list. */
    function beginWithGlobalUnderRecently() {
        restart(Catalogue.sampleWithTagRecently())
        host.settings.converterGlobalId = "Own_001"
        host.settings.editorGlobalId = "Own_001"
    }

    name: "PickerOpening"

    SignalSpy {
        id: openSelect

        signalName: "openSelect"
    }

    function test_beforeOpeningThePropertiesFollowTheHost() {
        const page = picker({})
        compare(page.mainPageHeight, 0)
        compare(page.fromPage, "Converter")
        compare(page.listId, null)
        compare(page.listFormatId, null)
        compare(page.openWay, false)
        compare(page.globalID, "Video_MP4_002")
        compare(page.curTag, undefined)
        compare(page.curClass, undefined)
        compare(page.curId, "")
        compare(page.selectTag, "")
        compare(page.selectClass, "")
        verify(page.curTagModel === formats())
        verify(page.srcModel === O_FormatsProxy.formatListModel())

        page.openWay = true
        compare(page.curTag, "video")
        compare(page.curClass, "MP4")
        compare(page.curId, "Video_MP4_002")
        compare(page.selectTag, "video")
        compare(page.selectClass, "MP4")

        page.fromPage = "Editor"
        compare(page.globalID, "Audio_MP3_001")
        compare(page.curTag, "audio")

        host.settings.editorGlobalId = "Device_Apple_001"
        compare(page.selectTag, "device")
        compare(page.selectClass, "Apple")

        page.openWay = false
        page.listFormatId = "SocialVideo_YouTube_001"
        compare(page.curId, "SocialVideo_YouTube_001")
        compare(page.selectTag, "socialvideo")
    }

    function test_thePresetInUseIsShown_data() {
        return [
            { tag: "converter, global", properties: { openWay: true },
              id: "Video_MP4_002", selectTag: "video", selectClass: "MP4" },
            { tag: "editor, global", properties: { openWay: true, fromPage: "Editor" },
              id: "Audio_MP3_001", selectTag: "audio", selectClass: "MP3" },
            { tag: "other page, global", properties: { openWay: true, fromPage: "" },
              id: "Audio_MP3_001", selectTag: "audio", selectClass: "MP3" },
            { tag: "task", properties: { listFormatId: "Device_Apple_001", listId: 7 },
              id: "Device_Apple_001", selectTag: "device", selectClass: "Apple" },
            { tag: "editor's task",
              properties: { listFormatId: "Video_AVI_001", listId: 7, fromPage: "Editor" },
              id: "Video_AVI_001", selectTag: "video", selectClass: "AVI" },
            { tag: "unknown", properties: { listFormatId: "Gone_001", listId: 7 },
              id: "Gone_001", selectTag: "", selectClass: "" },
            { tag: "none", properties: {}, id: "", selectTag: "", selectClass: "" }
        ]
    }

    function test_thePresetInUseIsShown(row) {
        const page = openPicker(row.properties)
        compare(page.curId, row.id)
        compare(page.selectTag, row.selectTag)
        compare(page.selectClass, row.selectClass)
        verify(page.curTagModel === formats())
        compare(formats().filterKey, row.selectTag)
        compare(all("RecentlyPanel").length, 0)
        compare(all("CataloguePanel").length, 1)

        const selected = all("PresetRow").filter(function (preset) {
            return preset.selected
        })
        compare(selected.map(function (preset) {
            return preset.presetId
        }), row.selectClass === "" ? [] : [row.id])
    }

    function test_aRecentlyUsedPresetOpensTheRecentlyUsedList_data() {
        return [
            { tag: "global", properties: { openWay: true } },
            { tag: "task", properties: { listFormatId: "Video_MP4_002", listId: 7 } }
        ]
    }

    function test_aRecentlyUsedPresetOpensTheRecentlyUsedList(row) {
        host.settings.converterGlobalId = row.properties.openWay ? "Video_MP4_002"
                                                                 : "Audio_MP3_001"
        O_FormatsProxy.add2Recently("video", "MP4", "Video_MP4_002")
        const page = openPicker(row.properties)
        compare(page.selectTag, "recently")
        compare(page.selectClass, "MP4")
        verify(page.curTagModel === formats())
        compare(formats().filterKey, "video")
        compare(all("RecentlyPanel").length, 1)
        compare(all("CataloguePanel").length, 0)
        compare(all("RecentlyRow").length, 1)
        verify(all("RecentlyRow")[0].selected)
    }

    function test_onlyThePresetInUseOpensTheRecentlyUsedList() {
        O_FormatsProxy.add2Recently("video", "MP4", "Video_MP4_002")
        compare(openPicker({ listFormatId: "Video_MP4_003" }).selectTag, "video")
    }

    function test_aGlobalPresetUnderTheTagRecentlyDecidesForATaskToo() {
        beginWithGlobalUnderRecently()
        O_FormatsProxy.add2Recently("audio", "MP3", "Audio_MP3_002")
        const page = openPicker({ listFormatId: "Video_MP4_003" })
        verify(page.curTagModel === recents())
        compare(page.selectTag, "video")
        compare(page.selectClass, "MP4")
        compare(page.curId, "Video_MP4_003")
        compare(formats().filterKey, "")
        compare(all("FormatRow").map(function (format) {
            return texts(format)[0]
        }), ["High Quality"])
    }

    function test_aTaskUnderTheTagRecentlyIsShownAsAFormatOfThatTag() {
        beginWithGlobalUnderRecently()
        host.settings.converterGlobalId = "Video_MP4_002"
        const page = openPicker({ listFormatId: "Own_001" })
        compare(page.selectTag, "recently")
        compare(page.selectClass, "Own")
        verify(page.curTagModel === formats())
        compare(formats().filterKey, "recently")
    }

    function test_thePresetsFollowTheSelectedClass() {
        const page = openPicker({ openWay: true })
        const list = all("PickerList")[1]
        verify(list.model === presets("MP4"))
        page.selectClass = "AVI"
        verify(list.model === presets("AVI"))
        page.selectClass = "nowhere"
        compare(list.model, null)
        page.selectTag = "recently"
        compare(list.model, [])
        page.selectTag = "video"
        page.selectClass = "MP4"
        verify(list.model === presets("MP4"))
    }

    function test_theSelectedRowsScrollToTheTopAfter100Milliseconds() {
        const page = picker({ openWay: true })
        openSelect.target = page
        openSelect.clear()
        host.settings.converterGlobalId = "Video_MP4_003"
        page.open()
        settle()
        compare(openSelect.count, 0)
        const list = all("PickerList")[1]
        compare(list.contentY, 0)
        compare(host.elapse(), [100])
        compare(openSelect.count, 1)
        settle()
        // Or as far as possible: 8 rows of 64 in a list of 379.
        compare(list.contentY, 2 * 64)
        compare(list.currentIndex, 2)
    }

    function test_theSelectedFormatScrollsToTheTop() {
        openPicker({ listFormatId: "Video_VOB_001" })
        const list = all("PickerList")[0]
        compare(list.contentY, 10 * 48 - list.height)
        verify(list.itemAtIndex(9).selected)
    }

    function test_aPickerDestroyedBeforeTheScrollLogsNothing() {
        picker({ openWay: true }).open()
        settle()
        letGo()
        compare(host.elapse(), [100])
    }

    function test_eachOpeningStartsAfresh() {
        const page = openPicker({ openWay: true })
        click(named("FormatTag", "~audio"))
        compare(page.selectClass, "MP3")
        page.close()
        page.open()
        settle()
        compare(page.selectTag, "video")
        compare(page.selectClass, "MP4")
        compare(formats().filterKey, "video")

        page.close()
        page.listFormatId = "Audio_MP3_002"
        page.openWay = false
        page.open()
        settle()
        compare(page.curId, "Audio_MP3_002")
        compare(page.selectTag, "audio")
        compare(page.selectClass, "MP3")
    }

    function test_aNewPresetOfTheDialogIsSelectedAtTheEnd() {
        const page = openPicker({ openWay: true })
        const id = O_FormatsProxy.addUserDefineFormat("video", "MP4", "Video_MP4_002", {})
        host.converter.signalCreateNewFormatMsgClose(id)
        settle()
        compare(page.curId, id)
        const list = all("PickerList")[1]
        compare(list.contentY, 9 * 64 - list.height)
        verify(list.itemAtIndex(8).selected)
        verify(!list.itemAtIndex(1).selected)
    }

    function test_thePresetsScrollToTheEndWhicheverTheDialogSaved() {
        const page = openPicker({ openWay: true })
        const list = all("PickerList")[1]
        host.converter.signalCreateNewFormatMsgClose("Video_MP4_001")
        settle()
        compare(page.curId, "Video_MP4_001")
        compare(list.contentY, 8 * 64 - list.height)
    }
}
