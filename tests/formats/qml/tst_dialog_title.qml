import QtQuick 2.15
import QtTest 1.15

ScreenTest {
    id: root

    function field() {
        return all("VEXTextInput")[0]
    }

    function addOwn(title) {
        return O_FormatsProxy.addUserDefineFormat("video", "MP4", "Video_MP4_002",
                                                  { "title": title })
    }

    function clear() {
        mouseClick(field())
        keyClick(Qt.Key_A, Qt.ControlModifier)
        press(Qt.Key_Backspace)
        compare(field().text, "")
    }

    name: "DialogTitle"

    function test_aCataloguePresetProposesACustomTitle() {
        openDialog({})
        compare(field().text, "4K-~custom0")
    }

    function test_theTitleCountsTheUsersPresetsOfTheClass() {
        addOwn("a")
        addOwn("b")
        openDialog({})
        compare(field().text, "4K-~custom2")
    }

    function test_theCountIsAskedForWithASurplusArgument() {
        const asked = []
        bench.publish("O_FormatsProxy", {
            "getFormat": O_FormatsProxy.getFormat,
            "getUserDefineCount": function () {
                asked.push(Array.prototype.slice.call(arguments))
                return 5
            }
        })
        openDialog({})
        compare(field().text, "4K-~custom5")
        compare(asked, [["video", "MP4", "1002"]])
    }

    function test_sameAsSourceIsTranslated() {
        openDialog({ idIndex: "Video_MP4_001" })
        compare(field().text, "~Keep Orignal-~custom0")
    }

    function test_aUserDefinedPresetKeepsItsTitle() {
        openDialog({ idIndex: addOwn("Mine"), userDefine: true })
        compare(field().text, "Mine")
    }

    function test_anEmptyTitleIsRefilledWhenTheFocusGoes_data() {
        return [
            { tag: "catalogue", title: "", refilled: "4K-~custom1" },
            { tag: "user-defined", title: "Mine", refilled: "Mine-~custom1" },
            { tag: "user's copy of the source", title: "Same as source",
              refilled: "~Keep Orignal-~custom1" }
        ]
    }

    function test_anEmptyTitleIsRefilledWhenTheFocusGoes(row) {
        const id = addOwn(row.title || "other")
        openDialog(row.title ? { idIndex: id, userDefine: true } : {})
        clear()
        mouseClick(screen, 30, 60)
        compare(field().text, row.refilled)
    }

    function test_anEmptyTitleIsRefilledWhenTheFocusComes() {
        openDialog({ idIndex: addOwn(""), userDefine: true })
        compare(field().text, "")
        mouseClick(field())
        compare(field().text, "-~custom1")
    }

    function test_aTitleIsKeptWhenTheFocusGoes() {
        openDialog({})
        clear()
        press("x")
        mouseClick(screen, 30, 60)
        compare(field().text, "x")
    }

    function test_typingCountsAsAnEdit() {
        const dialog = openDialog({})
        host.elapse()
        mouseClick(field())
        compare(dialog.isChange, false)
        press("x")
        compare(dialog.isChange, true)
    }

    function test_aPressTakesTheFocusToTheRootAndGoesThrough_data() {
        return [
            { tag: "empty area", x: 300, y: 110 },
            { tag: "title bar", x: 300, y: 20 },
            { tag: "bottom", x: 100, y: 545 }
        ]
    }

    function test_aPressTakesTheFocusToTheRootAndGoesThrough(row) {
        const dialog = openDialog({})
        mouseClick(field())
        verify(field().activeFocus)
        mousePress(dialog, row.x, row.y)
        verify(!field().activeFocus)
        verify(dialog.activeFocus)
        mouseRelease(dialog, row.x, row.y)
    }

    function test_aClickOnASegmentTakesTheFocus() {
        openDialog({})
        mouseClick(field())
        const segment = all("RadioButton", all("QualityBar")[0])[2]
        mouseClick(segment)
        verify(segment.activeFocus)
    }
}
