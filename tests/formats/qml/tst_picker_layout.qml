import QtQuick 2.15
import QtQuick.Controls 2.5
import QtTest 1.15

ScreenTest {
    id: root

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

    function test_aScrollBarAppearsWhenTheRowsDoNotFit() {
        openPicker({ openWay: true })
        const formatBar = all("PickerList")[0].ScrollBar.vertical
        const presetBar = all("PickerList")[1].ScrollBar.vertical
        verify(formatBar.visible)
        verify(presetBar.visible)
        verify(presetBar.active)
        all("PickerList")[1].contentY = 30
        settle()
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
