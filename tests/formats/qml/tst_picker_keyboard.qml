import QtQuick 2.15
import QtTest 1.15

ScreenTest {
    id: root

    function isShown(ring) {
        return ring.visible && ring.width > 0
    }

    function currentPreset() {
        return all("PickerList")[1].currentItem.presetId
    }

    name: "PickerKeyboard"

    function test_tabVisitsTagSearchFormatsAndPresets() {
        openPicker({ openWay: true })
        const tag = named("FormatTag", "~video")
        const stops = [tag, all("VEXTextField")[0], all("PickerList")[0], all("PickerList")[1]]
        for (const stop of stops.concat(tag)) {
            press(Qt.Key_Tab)
            verify(stop.activeFocus, stop)
        }
        keyClick(Qt.Key_Backtab)
        verify(stops[3].activeFocus)
    }

    function test_tabVisitsTagAndRecentlyUsedPresets() {
        O_FormatsProxy.add2Recently("video", "MP4", "Video_MP4_002")
        openPicker({ openWay: true })
        const tag = named("FormatTag", "~recently")
        for (const stop of [tag, all("PickerList")[0], tag]) {
            press(Qt.Key_Tab)
            verify(stop.activeFocus, stop)
        }
    }

    function test_onlyKeyboardFocusIsShown() {
        openPicker({ openWay: true })
        click(named("FormatTag", "~audio"))
        click(named("FormatTag", "~video"))
        compare(all("FocusRing").filter(isShown).length, 0)
        press(Qt.Key_Tab)
        compare(all("FocusRing", named("FormatTag", "~video")).filter(isShown).length, 1)
        press(Qt.Key_Down)
        compare(all("FocusRing", all("PickerList")[1]).filter(isShown).length, 1)
        compare(all("FocusRing").filter(isShown).length, 1)
    }

    function test_arrowsMoveThroughTheTags() {
        const page = openPicker({ openWay: true })
        press(Qt.Key_Tab)
        press(Qt.Key_Right)
        compare(page.selectTag, "audio")
        compare(page.selectClass, "MP3")
        verify(named("FormatTag", "~audio").activeFocus)
        press(Qt.Key_Left, 2)
        compare(page.selectTag, "recently")
        press(Qt.Key_Left)
        compare(page.selectTag, "recently")
        press(Qt.Key_Right, 9)
        compare(page.selectTag, "socialvideo")
        verify(named("FormatTag", "~socialVideo").activeFocus)
    }

    function test_arrowsMoveThroughTheFormats() {
        const page = openPicker({ listFormatId: "Video_AVI_001" })
        all("PickerList")[0].forceActiveFocus(Qt.TabFocusReason)
        press(Qt.Key_Down)
        compare(page.selectClass, "WEBM")
        press(Qt.Key_Up, 2)
        compare(page.selectClass, "MKV")
        press(Qt.Key_Up, 9)
        compare(page.selectClass, "MP4")
        press(Qt.Key_Right)
        verify(all("PickerList")[1].activeFocus)
        press(Qt.Key_Left)
        verify(all("PickerList")[0].activeFocus)
        compare(all("PickerList")[0].currentIndex, 0)
    }

    function test_arrowsMoveThroughThePresetsFromTheOneInUse() {
        openPicker({ openWay: true })
        press(Qt.Key_Down)
        compare(currentPreset(), "Video_MP4_002")
        press(Qt.Key_Down, 2)
        compare(currentPreset(), "Video_MP4_004")
        press(Qt.Key_Up)
        compare(currentPreset(), "Video_MP4_003")
        press(Qt.Key_Down, 20)
        compare(currentPreset(), "Video_MP4_008")
    }

    function test_enterChoosesTheCurrentPreset_data() {
        return [{ tag: "Return", key: Qt.Key_Return }, { tag: "Enter", key: Qt.Key_Enter },
                { tag: "Space", key: Qt.Key_Space }]
    }

    function test_enterChoosesTheCurrentPreset(row) {
        const page = openPicker({ openWay: true })
        press(Qt.Key_Down, 2)
        keyClick(row.key)
        compare(calls(), [["converter.setConverterGlobalFormat", "Video_MP4_003"]])
        waitFor(page, "opened", false)
    }

    function test_enterChoosesTheCurrentRecentlyUsedPreset() {
        O_FormatsProxy.add2Recently("audio", "MP3", "Audio_MP3_002")
        O_FormatsProxy.add2Recently("video", "MP4", "Video_MP4_002")
        openPicker({ openWay: true })
        press(Qt.Key_Down, 2)
        keyClick(Qt.Key_Return)
        compare(calls(), [["converter.setConverterGlobalFormat", "Audio_MP3_002"]])
    }

    function test_typingStartsASearchThatEnterAndEnterChooseFrom() {
        openPicker({ openWay: true })
        for (const letter of "mp3") {
            press(letter)
        }
        compare(formats().searchKey, "mp3")
        verify(all("VEXTextField")[0].activeFocus)
        press(Qt.Key_Return)
        verify(all("PickerList")[1].activeFocus)
        press(Qt.Key_Down)
        keyClick(Qt.Key_Return)
        compare(calls(), [["converter.setConverterGlobalFormat", "Audio_MP3_002"]])
    }

    function test_typingInAListContinuesTheSearch() {
        openPicker({ openWay: true })
        press("m")
        press(Qt.Key_Down)
        press("p")
        compare(formats().searchKey, "mp")
        verify(all("VEXTextField")[0].activeFocus)
    }

    function test_shortcutsDoNotSearch() {
        openPicker({ openWay: true })
        keyClick("a", Qt.ControlModifier)
        keyClick("a", Qt.AltModifier)
        keyClick("a", Qt.MetaModifier)
        keyClick(Qt.Key_Delete)
        keyClick(Qt.Key_Backspace)
        keyClick(Qt.Key_Space)
        compare(formats().searchKey, "")
        verify(!all("VEXTextField")[0].activeFocus)
    }

    function test_deleteDoesWhatTheBinDoes() {
        const id = O_FormatsProxy.addUserDefineFormat("video", "AVI", "Video_AVI_001", {})
        host.settings.converterGlobalId = id
        const page = openPicker({ openWay: true })
        compare(page.selectClass, "AVI")
        press(Qt.Key_Down)
        compare(currentPreset(), id)
        host.usedByEditor = [id]
        press(Qt.Key_Delete)
        compare(calls()[0][0], "converter.openSelectFormatMsgBox")
        host.usedByEditor = []
        press(Qt.Key_Delete)
        compare(presets("AVI").isExist(id), false)
        compare(calls(), [["converter.setConverterGlobalFormat", "Video_MP4_001"]])

        // Without a delete button the key does nothing.
        press(Qt.Key_Delete)
        compare(presets("AVI").count, 1)
    }

    function test_deleteForgetsTheCurrentRecentlyUsedPreset() {
        O_FormatsProxy.add2Recently("audio", "MP3", "Audio_MP3_002")
        O_FormatsProxy.add2Recently("video", "MP4", "Video_MP4_002")
        openPicker({ openWay: true })
        press(Qt.Key_Down)
        press(Qt.Key_Delete)
        compare(recents().count, 1)
        compare(recents().getId(0), "Audio_MP3_002")
        press(Qt.Key_Delete, 2)
        compare(recents().count, 0)
    }

    function test_f2DoesWhatThePencilDoes() {
        openPicker({ openWay: true })
        press(Qt.Key_Down, 2)
        press(Qt.Key_F2)
        const call = calls()[0]
        compare(call[0], "converter.openConvertionParametersMsgBox")
        compare(call[1].idIndex, "Video_MP4_003")
    }

    function test_aScreenReaderKnowsWhatEverythingIs() {
        const id = O_FormatsProxy.addUserDefineFormat("video", "MP4", "Video_MP4_002", {
            "title": "Own", "videoResolution": "0", "videoEncoder": "av1", "audioEncoder": "0"
        })
        openPicker({ listFormatId: id })
        compare(contents().Accessible.role, Accessible.Dialog)
        compare(contents().Accessible.name, "~Format")

        const tag = named("FormatTag", "~socialVideo")
        compare(tag.Accessible.role, Accessible.PageTab)
        verify(!tag.Accessible.selected)
        verify(named("FormatTag", "~video").Accessible.selected)
        compare(named("VEXTextField", "~Format search").Accessible.role, Accessible.EditableText)
        compare(named("PickerList", "~Format").Accessible.role, Accessible.List)
        compare(named("PickerList", "MP4").Accessible.role, Accessible.List)
        const format = named("FormatRow", "MP4")
        compare(format.Accessible.role, Accessible.ListItem)
        verify(format.Accessible.selected)
        const preset = named("PresetRow", "~Own, ~Smart Fit, av1, ~Smart Fit")
        compare(preset.Accessible.role, Accessible.ListItem)
        verify(preset.Accessible.selected)
        compare(named("VEXImageButton", "~Edit", preset).Accessible.role, Accessible.Button)
        compare(named("VEXImageButton", "~Delete", preset).Accessible.role, Accessible.Button)
        press("m")
        for (const name of ["~Format search", "~Clear"]) {
            compare(named("AbstractButton", name).Accessible.role, Accessible.Button)
        }
    }
}
