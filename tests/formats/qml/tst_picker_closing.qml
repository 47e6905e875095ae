import QtQuick 2.15
import QtTest 1.15

ScreenTest {
    id: root

    name: "PickerClosing"

    function test_aPressOutsideCloses() {
        const page = openPicker({ openWay: true })
        mouseClick(root, 20, 20)
        waitFor(page, "opened", false)
    }

    function test_aPressInsideDoesNotClose() {
        const page = openPicker({ openWay: true })
        mouseClick(contents(), 500, 24)
        settle()
        verify(page.opened)
    }

    function test_escapeCloses_data() {
        return [{ tag: "at once" }, { tag: "from the search field" }, { tag: "from a list" }]
    }

    function test_escapeCloses(row) {
        const page = openPicker({ openWay: true })
        if (row.tag === "from the search field") {
            mouseClick(all("FormatSearchBox")[0])
        } else if (row.tag === "from a list") {
            keyClick(Qt.Key_Down)
        }
        keyClick(Qt.Key_Escape)
        waitFor(page, "opened", false)
    }

    function test_closingClearsTheSearchAndKeepsTheTag() {
        const page = openPicker({ openWay: true })
        click(named("FormatTag", "~audio"))
        mouseClick(all("FormatSearchBox")[0])
        keyClick("a")
        compare(formats().searchKey, "a")
        keyClick(Qt.Key_Escape)
        waitFor(page, "opened", false)
        compare(formats().searchKey, "")
        compare(formats().filterKey, "audio")

        page.open()
        settle()
        compare(all("VEXTextField")[0].text, "")
        verify(!all("VEXTextField")[0].activeFocus)
    }

    function test_aPickerDestroyedWhileOpenLogsNothing() {
        O_FormatsProxy.add2Recently("video", "MP4", "Video_MP4_002")
        openPicker({ openWay: true })
        click(named("FormatTag", "~video"))
        letGo()
        host.converter.signalCreateNewFormatMsgClose("1001")
    }
}
