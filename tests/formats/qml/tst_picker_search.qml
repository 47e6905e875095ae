import QtQuick 2.15
import QtTest 1.15

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

        // Where the presets were.
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
