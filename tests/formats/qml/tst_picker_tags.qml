import QtQuick 2.15
import QtTest 1.15

ScreenTest {
    id: root

    name: "PickerTags"

    SignalSpy {
        id: openSelect

        signalName: "openSelect"
    }

    function test_eachTagHasItsCaption() {
        openPicker({ openWay: true })
        compare(all("FormatTag").map(function (tag) {
            return texts(tag)[0]
        }), ["~recently", "~video", "~audio", "~device", "~socialVideo"])
    }

    function test_theTagsAreTheFacadesTags() {
        openPicker({ openWay: true })
        O_FormatsProxy.formatTags = ["audio", "mine"]
        settle()
        compare(all("FormatTag").map(function (tag) {
            return texts(tag)[0]
        }), ["~audio", "~mine"])
    }

    function test_aClickShowsTheFormatsOfTheTag_data() {
        return [
            { tag: "audio", caption: "~audio", titles: ["MP3", "AAC"] },
            { tag: "device", caption: "~device", titles: ["Apple"] },
            { tag: "socialvideo", caption: "~socialVideo", titles: ["YouTube"] }
        ]
    }

    function test_aClickShowsTheFormatsOfTheTag(row) {
        const page = openPicker({ openWay: true })
        openSelect.target = page
        openSelect.clear()
        click(named("FormatTag", row.caption))
        compare(page.selectTag, row.tag)
        compare(formats().filterKey, row.tag)
        verify(page.curTagModel === formats())
        compare(all("FormatRow").map(function (format) {
            return texts(format)[0]
        }), row.titles)
        // The class of the preset in use is not among them, so the first one is selected.
        compare(page.selectClass, row.titles[0])
        compare(openSelect.count, 1)
        verify(named("FormatTag", row.caption).selected)
        verify(!named("FormatTag", "~video").selected)
    }

    function test_theClassInUseIsSelectedAgain() {
        const page = openPicker({ listFormatId: "Audio_AAC_001" })
        compare(page.selectClass, "AAC")
        click(named("FormatTag", "~video"))
        compare(page.selectClass, "MP4")
        click(named("FormatTag", "~audio"))
        compare(page.selectClass, "AAC")
    }

    function test_aTagWithoutFormatsLeavesTheClass() {
        const page = openPicker({ openWay: true })
        O_FormatsProxy.formatTags = ["video", "empty"]
        settle()
        click(named("FormatTag", "~empty"))
        compare(page.selectTag, "empty")
        compare(page.selectClass, "MP4")
        compare(formats().count(), 0)
    }

    function test_theTagRecentlyShowsTheRecentlyUsedPresets() {
        const page = openPicker({ openWay: true })
        openSelect.target = page
        openSelect.clear()
        O_FormatsProxy.add2Recently("audio", "MP3", "Audio_MP3_002")
        click(named("FormatTag", "~recently"))
        compare(page.selectTag, "recently")
        verify(page.curTagModel === recents())
        compare(page.selectClass, "MP4")
        compare(formats().filterKey, "video")
        compare(openSelect.count, 0)
        compare(all("RecentlyPanel").length, 1)
        compare(all("CataloguePanel").length, 0)
        compare(all("FormatSearchBox").length, 0)

        click(named("FormatTag", "~video"))
        verify(page.curTagModel === formats())
        compare(all("RecentlyPanel").length, 0)
        compare(all("CataloguePanel").length, 1)
        compare(all("FormatSearchBox").length, 1)
    }

    function test_aClickEndsTheSearch() {
        const page = openPicker({ openWay: true })
        const box = all("FormatSearchBox")[0]
        mouseClick(box)
        keyClick("m")
        verify(box.editing)
        compare(formats().searchKey, "m")
        click(named("FormatTag", "~audio"))
        compare(box.text, "")
        compare(formats().searchKey, "")
        verify(!box.editing)
        compare(formats().count(), 2)
        compare(page.selectClass, "MP3")
    }

    function test_theSelectedRowsScrollIntoView() {
        openPicker({ listFormatId: "Video_VOB_001" })
        click(named("FormatTag", "~audio"))
        click(named("FormatTag", "~video"))
        const list = all("PickerList")[0]
        compare(list.contentY, 10 * 48 - list.height)
    }

    function test_aFormatRowSelectsItsClass() {
        const page = openPicker({ openWay: true })
        click(named("FormatRow", "AVI"))
        compare(page.selectClass, "AVI")
        verify(named("FormatRow", "AVI").selected)
        verify(!named("FormatRow", "MP4").selected)
        compare(all("PresetRow").map(function (preset) {
            return preset.presetId
        }), ["Video_AVI_001"])
    }
}
