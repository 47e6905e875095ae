import QtQuick 2.15
import QtTest 1.15
import "catalogue.js" as Catalogue

ScreenTest {
    id: root

    function titles() {
        return all("FormatRow").map(function (format) {
            return texts(format)[0]
        })
    }

    function searchBox() {
        return all("FormatSearchBox")[0]
    }

    function field() {
        return all("VEXTextField")[0]
    }

    function type(text) {
        for (const letter of text) {
            keyClick(letter)
        }
        settle()
    }

    function search(text) {
        click(searchBox())
        type(text)
    }

    /*! A picker for a task with the preset \a id, over a global preset of the tag "recently". */
    function pickerOverTagRecently(id) {
        restart(Catalogue.sampleWithTagRecently())
        host.settings.converterGlobalId = "Own_001"
        return openPicker({ listFormatId: id })
    }

    function checkThatAviIsFound(page, tag) {
        compare(formats().searchKey, "av")
        verify(field().activeFocus)
        compare(field().text, "av")
        verify(page.curTagModel === formats())
        compare(titles(), ["AVI"])
        compare(page.selectClass, "AVI")
        compare(page.selectTag, tag)
        verify(named("FormatTag", "~" + tag).selected)
    }

    name: "PickerSearch"

    SignalSpy {
        id: openSelect

        signalName: "openSelect"
    }

    function test_theTextSearchesAllTags() {
        const page = openPicker({ openWay: true })
        openSelect.target = page
        openSelect.clear()
        search("mp")
        compare(formats().searchKey, "mp")
        compare(titles(), ["MP4", "MPG", "MP3"])
        compare(page.selectClass, "MP4")
        compare(page.selectTag, "video")
        compare(openSelect.count, 0)
    }

    function test_aSearchWithoutTheClassInUseSelectsTheFirstFormat() {
        const page = openPicker({ openWay: true })
        click(named("FormatRow", "AVI"))
        search("mp3")
        compare(titles(), ["MP3"])
        compare(page.selectClass, "MP3")
    }

    function test_theClassInUseComesBackWithTheEndOfTheSearch() {
        const page = openPicker({ openWay: true })
        search("avi")
        compare(page.selectClass, "AVI")
        keyClick(Qt.Key_Backspace)
        keyClick(Qt.Key_Backspace)
        keyClick(Qt.Key_Backspace)
        compare(formats().searchKey, "")
        compare(page.selectClass, "MP4")
    }

    function test_aSearchWithoutResultCoversThePanel() {
        const page = openPicker({ openWay: true })
        compare(all("EmptyNotice").length, 0)
        search("zz")
        compare(titles(), [])
        compare(page.selectClass, "MP4")
        const panel = all("CataloguePanel")[0]
        const notice = all("EmptyNotice")[0]
        compare(texts(notice), ["~The format you searched for was not found"])
        const image = all("QQuickImage", notice)[0]
        compare(String(image.source), "qrc:/formats/image/noSelect.png")
        compare(place(image, panel), [(758 - 80) / 2, 127, 80, 80])

        // Clicks where the presets were.
        mouseClick(panel, 400, 30)
        mouseClick(panel, 100, 30)
        compare(calls(), [])
        verify(page.opened)
        compare(page.selectClass, "MP4")
    }

    function test_aTagWithoutFormatsShowsTheNotice() {
        openPicker({ openWay: true })
        O_FormatsProxy.formatTags = ["video", "empty"]
        settle()
        click(named("FormatTag", "~empty"))
        compare(all("EmptyNotice").length, 1)
    }

    function test_typingOutsideTheFieldSearchesUnderTheTagOfThePresetInUse_data() {
        return [
            { tag: "its tag", id: "Audio_MP3_002", found: "audio" },
            { tag: "another tag", id: "Audio_MP3_002", clicked: "~video", found: "audio" },
            { tag: "recently used", id: "Audio_MP3_002", clicked: "~recently", found: "audio" },
            { tag: "unknown", id: "Gone_001", found: "video" },
            { tag: "unknown, recently used", id: "Gone_001", clicked: "~recently",
              found: "video" },
            { tag: "none", id: null, found: "video" }
        ]
    }

    function test_typingOutsideTheFieldSearchesUnderTheTagOfThePresetInUse(row) {
        const page = openPicker({ listFormatId: row.id })
        if (row.clicked) {
            click(named("FormatTag", row.clicked))
        }
        type("av")
        checkThatAviIsFound(page, row.found)
    }

    function test_typingOverAPresetThatWasUsedSearchesTheCatalogue() {
        O_FormatsProxy.add2Recently("audio", "MP3", "Audio_MP3_002")
        const page = openPicker({ listFormatId: "Audio_MP3_002" })
        compare(page.selectTag, "recently")
        type("av")
        checkThatAviIsFound(page, "audio")
    }

    function test_noSearchGoesToTheTagRecently_data() {
        return [{ tag: "preset of that tag", id: "Own_001" },
                { tag: "global preset of that tag", id: "Video_MP4_003" }]
    }

    function test_noSearchGoesToTheTagRecently(row) {
        const page = pickerOverTagRecently(row.id)
        type("av")
        checkThatAviIsFound(page, "video")
    }

    function test_typingContinuesASearchUnderItsTag() {
        const page = openPicker({ openWay: true })
        click(named("FormatTag", "~audio"))
        search("a")
        press(Qt.Key_Down)
        type("v")
        checkThatAviIsFound(page, "audio")
    }

    function test_theFieldShowsWhatItFindsWhereTheRecentlyUsedPresetsStood() {
        const page = pickerOverTagRecently("Video_MP4_003")
        verify(page.curTagModel === recents())
        search("av")
        checkThatAviIsFound(page, "video")
    }

    function test_aSearchEndsWithTheFieldThatShowsIt() {
        const page = openPicker({ openWay: true })
        search("mp")
        page.selectTag = "recently"
        compare(formats().searchKey, "")
        keyClick("x")
        compare(page.selectTag, "video")
        compare(field().text, "x")
        compare(formats().searchKey, "x")
    }

    function test_theFieldTakes15Characters() {
        openPicker({ openWay: true })
        search("abcdefghijklmnopq")
        compare(field().text, "abcdefghijklmno")
        compare(formats().searchKey, "abcdefghijklmno")
    }

    function test_theSearchIconFocusesTheField() {
        openPicker({ openWay: true })
        verify(!field().activeFocus)
        mouseClick(searchBox(), 18, 16)
        verify(field().activeFocus)
    }

    function test_theClearIconClearsAndFocuses() {
        openPicker({ openWay: true })
        const icons = function () {
            return all("QQuickImage", searchBox()).map(function (image) {
                return String(image.source)
            })
        }
        compare(icons(), ["qrc:/formats/image/bx-search_false.svg"])
        search("avi")
        compare(icons(), ["qrc:/formats/image/bx-search_false.svg",
                          "qrc:/formats/image/search_delete.png"])
        click(named("FormatTag", "~video"))
        compare(icons().length, 1)

        search("avi")
        const clear = all("QQuickImage", searchBox())[1]
        compare([clear.width, clear.height], [16, 16])
        all("PickerList")[1].forceActiveFocus()
        click(clear)
        compare(field().text, "")
        compare(formats().searchKey, "")
        verify(field().activeFocus)
        compare(icons().length, 1)
    }

    function test_aClickOnTheEmptyBarTakesTheFocusFromTheField() {
        openPicker({ openWay: true })
        search("avi")
        mouseClick(all("FormatTagBar")[0], 500, 24)
        verify(!field().activeFocus)
        compare(field().text, "avi")
    }

    function test_theFieldTellsWhatItIsFor() {
        openPicker({ openWay: true })
        compare(field().placeholderText, "~Format search")
        verify(field().isCostomCursor)
        compare(field().maximumLength, 15)
    }
}
