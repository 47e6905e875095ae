import QtQuick 2.15
import QtQuick.Controls 2.5
import QtTest 1.15

ScreenTest {
    id: root

    readonly property QtObject theme: host ? host.themeManager.curTheme : null

    function rectangles(item) {
        return all("QQuickRectangle", item)
    }

    function images(item) {
        return all("QQuickImage", item)
    }

    /*! The columns' [x, width] in \a row. */
    function columns(row) {
        return shownTexts(row).map(function (text) {
            return [place(text, row)[0], text.width]
        })
    }

    function presetRow(id) {
        return all("PresetRow").find(function (preset) {
            return preset.presetId === id
        })
    }

    function checkRowText(text) {
        compare(text.font.pixelSize, 12)
        compare(text.elide, Text.ElideMiddle)
        compareColor(text.color, "#454545")
    }

    name: "PickerLayout"

    function test_thePopup() {
        const page = openPicker({ openWay: true })
        compare([page.width, page.height, page.padding], [760, 430, 1])
        compare(page.closePolicy, Popup.CloseOnPressOutside | Popup.CloseOnEscape)
        compare(page.background.border.width, 1)
        compareColor(page.background.border.color, "#C9C7D0")
        const shadow = images(page.background)[0]
        compare(String(shadow.source), "qrc:/formats/image/format_back.png")
        compare(place(shadow, page.background), [(760 - 794) / 2, -8, 794, 460])
        verify(shadow.z < 0)
    }

    function test_theBarsAndPanels() {
        openPicker({ openWay: true })
        compare(place(all("FormatTagBar")[0], contents()), [0, 0, 758, 48])
        compareColor(all("FormatTagBar")[0].color, theme.basics_gradeTone7)
        const line = rectangles().find(function (item) {
            return item.parent === contents()
        })
        compare(place(line, contents()), [0, 48, 758, 1])
        compareColor(line.color, "#E8E8EB")
        const panel = all("CataloguePanel")[0]
        compare(place(panel, contents()), [0, 49, 758, 379])
        compareColor(panel.color, theme.basics_gradeTone2)
        compare(place(all("PickerList")[0], panel), [0, 0, 186, 379])
        const divider = rectangles(panel).find(function (item) {
            return item.parent === panel && item.width === 1
        })
        compare(place(divider, panel), [186, 0, 1, 379])
        compareColor(divider.color, "#E8E8EB")
        compare(place(all("PickerList")[1], panel), [187, 0, 571, 379])
    }

    function test_theTags() {
        openPicker({ openWay: true })
        const tags = all("FormatTag")
        let x = 16
        for (const tag of tags) {
            compare(tag.mapToItem(contents(), 0, 0).x, x)
            x += tag.width + 24
            const caption = shownTexts(tag)[0]
            const bar = rectangles(tag)[0]
            compare(caption.font.pixelSize, 14)
            compare(caption.truncated, false)
            compare([bar.width, bar.height], [Math.ceil(caption.implicitWidth), 4])
            compare(place(bar, contents())[1], 44)
        }
    }

    function test_theColoursOfATag() {
        openPicker({ openWay: true })
        const selected = named("FormatTag", "~video")
        const other = named("FormatTag", "~audio")
        compareColor(shownTexts(selected)[0].color, theme.font_color_grade3)
        compareColor(rectangles(selected)[0].color, theme.font_color_grade3)
        compareColor(shownTexts(other)[0].color, "#454545")
        compareColor(rectangles(other)[0].color, "#F5F2FF")
        hover(other)
        compareColor(rectangles(other)[0].color, "#808372FF")
        hover(selected)
        compareColor(rectangles(other)[0].color, "#F5F2FF")
        compareColor(rectangles(selected)[0].color, theme.font_color_grade3)
    }

    function test_tooManyTagsAreElidedBeforeTheSearchBox() {
        openPicker({ openWay: true })
        host.mark = "a translation that is far too long for "
        O_FormatsProxy.formatTags = ["recently", "video", "audio"]
        settle()
        const tags = all("FormatTag")
        const last = place(tags[2], contents())
        verify(last[0] + last[2] <= place(all("FormatSearchBox")[0], contents())[0] - 16)
        compare(tags.map(function (tag) {
            return shownTexts(tag)[0].truncated
        }), [true, true, true])
    }

    function test_theSearchBox() {
        openPicker({ openWay: true })
        const box = all("FormatSearchBox")[0]
        const field = all("VEXTextField")[0]
        compare(place(box, contents()), [758 - 16 - 190, 8, 190, 32])
        compare(box.radius, theme.radius_1)
        compare(box.border.width, 1)
        compareColor(box.color, theme.basics_gradeTone7)
        compareColor(box.border.color, "#C9C7D0")
        compare([images(box)[0].width, images(box)[0].height], [24, 24])
        compare([field.width, field.height], [130, 32])
        compare(field.font.pixelSize, 14)
        compareColor(field.placeholderTextColor, "#CFCFCF")
        compareColor(field.color, theme.font_color_grade2)
        click(box)
        compareColor(box.color, theme.basics_gradeTone1)
        compareColor(box.border.color, theme.font_color_grade3)
        keyClick("m")
        settle()
        const clear = place(images(box)[1], box)
        compare([clear[2], clear[3]], [16, 16])
        verify(clear[0] >= place(field, box)[0] + 130)
        verify(clear[0] + 16 < 190)
    }

    function test_aFormatRow() {
        openPicker({ openWay: true })
        const row = named("FormatRow", "MKV")
        compare([row.width, row.height], [186, 48])
        compare(place(images(row)[0], row), [16, 12, 24, 24])
        compare(columns(row), [[16 + 24 + 12, 120]])
        compareColor(row.color, theme.basics_gradeTone1)
        compare(place(rectangles(row)[0], row), [0, 47, 186, 1])
        compareColor(rectangles(row)[0].color, "#E8E8EB")
        hover(row)
        compareColor(row.color, "#F7F6FB")
        compareColor(named("FormatRow", "MP4").color, "#F7F6FB")
    }

    function test_aPresetRow() {
        openPicker({ openWay: true })
        const row = presetRow("Video_MP4_004")
        compare([row.width, row.height], [571, 64])
        compare([images(row)[0].width, images(row)[0].height], [24, 24])
        compare([images(row)[0].parent.width, images(row)[0].parent.height], [40, 40])
        const found = columns(row)
        compare(found.map(function (column) {
            return column[1]
        }), [174, 100, 100])
        compare(found[1][0], found[0][0] + 174 + 32)
        compare(found[2][0], found[1][0] + 100 + 32)
        const edit = named("VEXImageButton", "~Edit", row)
        compare(place(edit, row), [found[2][0] + 100 + 32, 24, 16, 16])
        compare(edit.mode, AbstractButton.IconOnly)
        compare(edit.iconSize, 2 * 16)
        compare(String(edit.iconSource),
                "qrc:/qml/Main/Converter/images/ing_reviseFileName.svg")
        shownTexts(row).forEach(checkRowText)
    }

    function test_theSelectedPresetHasABorderInsteadOfADivider_data() {
        return [{ tag: "PresetRow" }, { tag: "RecentlyRow" }]
    }

    function test_theSelectedPresetHasABorderInsteadOfADivider(row) {
        if (row.tag === "RecentlyRow") {
            O_FormatsProxy.add2Recently("video", "MP4", "Video_MP4_003")
            O_FormatsProxy.add2Recently("video", "MP4", "Video_MP4_002")
        }
        openPicker({ openWay: true })
        for (const item of all(row.tag)) {
            const divider = rectangles(item).filter(function (part) {
                return part.height === 1
            })
            if (item.presetId === "Video_MP4_002") {
                compare(item.border.width, 1)
                compareColor(item.border.color, theme.font_color_grade3)
                compare(divider.length, 0)
            } else {
                compare(item.border.width, 0)
                compare(place(divider[0], item), [0, item.height - 1, item.width, 1])
            }
        }
    }

    function test_aRowLightsUpUnderTheMouse() {
        const id = O_FormatsProxy.addUserDefineFormat("video", "AVI", "Video_AVI_001", {})
        openPicker({ listFormatId: id })
        const row = presetRow(id)
        compareColor(row.color, theme.basics_gradeTone1)
        for (const part of [row, named("VEXImageButton", "~Edit", row),
                            named("VEXImageButton", "~Delete", row)]) {
            hover(part)
            compareColor(row.color, "#F7F6FB")
            mouseMove(root, 5, 5)
            compareColor(row.color, theme.basics_gradeTone1)
        }
    }

    function test_aRecentlyUsedRowLightsUpUnderTheMouse() {
        O_FormatsProxy.add2Recently("video", "MP4", "Video_MP4_002")
        openPicker({ openWay: true })
        const row = all("RecentlyRow")[0]
        compareColor(row.color, theme.basics_gradeTone1)
        for (const part of [row, named("VEXImageButton", "~Delete", row)]) {
            hover(part)
            compareColor(row.color, "#F8F6FF")
            mouseMove(root, 5, 5)
            compareColor(row.color, theme.basics_gradeTone1)
        }
    }

    function test_theBinKeepsClearOfTheScrollBar_data() {
        return [
            { tag: "hidden", presets: 1, margin: 8 },
            { tag: "shown", presets: 9, margin: 14 }
        ]
    }

    function test_theBinKeepsClearOfTheScrollBar(row) {
        let id = ""
        for (let count = 0; count < row.presets; ++count) {
            id = O_FormatsProxy.addUserDefineFormat("video", "AVI", "Video_AVI_001", {})
        }
        openPicker({ listFormatId: id })
        const bin = named("VEXImageButton", "~Delete", presetRow(id))
        compare(place(bin, presetRow(id)), [571 - row.margin - 12, 8, 12, 12])
        compare(bin.mode, AbstractButton.IconOnly)
        compare(bin.iconSize, 2 * 12)
        compare(String(bin.iconSource), "qrc:/qml/Main/Converter/images/ing_ListDelete.svg")
    }

    function test_aRecentlyUsedRow() {
        O_FormatsProxy.add2Recently("video", "MP4", "Video_MP4_002")
        openPicker({ openWay: true })
        compare(place(all("RecentlyPanel")[0], contents()), [0, 49, 758, 379])
        const row = all("RecentlyRow")[0]
        compare([row.width, row.height], [758, 50])
        compare([images(row)[0].width, images(row)[0].height], [24, 24])
        compare([images(row)[0].parent.width, images(row)[0].parent.height], [40, 40])
        compare(columns(row).map(function (column) {
            return column[1]
        }), [239, 165, 165])
        const bin = named("VEXImageButton", "~Delete", row)
        compare([bin.width, bin.height], [16, 16])
        verify(bin.x > columns(row)[2][0] + 165)
        compare(bin.iconSize, 2 * 16)
        compare(String(bin.iconSource), "qrc:/qml/Main/Converter/images/format_delete_rec.svg")
        shownTexts(row).forEach(checkRowText)
    }

    function test_aNotice_data() {
        return [{ tag: "nothing found" }, { tag: "nothing used" }]
    }

    function test_aNotice(row) {
        openPicker({ openWay: true })
        if (row.tag === "nothing used") {
            click(named("FormatTag", "~recently"))
        } else {
            press("z")
        }
        const text = shownTexts(all("EmptyNotice")[0])[0]
        compare(text.font.pixelSize, 14)
        compare(text.font.bold, true)
        compareColor(text.color, "#D1D1D1")
        compare(text.horizontalAlignment, Text.AlignHCenter)
        const notice = place(all("EmptyNotice")[0], contents())
        compare(notice[0] + notice[2] / 2, 379)
        if (row.tag === "nothing used") {
            fuzzyCompare(notice[1] + notice[3] / 2, 49 + 379 / 2, 1)
        }
    }

    function test_aScrollBarIsThereForMoreThanTheViewShows() {
        openPicker({ openWay: true })
        const formatBar = all("PickerList")[0].ScrollBar.vertical
        const presetBar = all("PickerList")[1].ScrollBar.vertical
        verify(formatBar.visible)
        verify(presetBar.visible)
        verify(presetBar.active)
        all("PickerList")[1].contentY = 30
        wait(0)
        verify(presetBar.active)
        click(named("FormatTag", "~audio"))
        verify(!formatBar.visible)
        verify(!presetBar.visible)
    }

    function test_theListsBuildTheirRowsAhead() {
        openPicker({ openWay: true })
        const lists = all("PickerList")
        compare(lists[0].cacheBuffer, 10 * 48)
        compare(lists[1].cacheBuffer, 8 * 60)
    }

    function test_theListsDragSynchronouslyOnMacOS() {
        openPicker({ openWay: true })
        compare(all("PickerList")[0].synchronousDrag, false)
        host.toolFun.isMac = true
        compare(all("PickerList")[0].synchronousDrag, true)
        compare(all("PickerList")[1].synchronousDrag, true)
        click(named("FormatTag", "~recently"))
        compare(all("PickerList")[0].synchronousDrag, true)
    }
}
