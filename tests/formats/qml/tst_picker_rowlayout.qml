import QtQuick 2.15
import QtQuick.Controls 2.5
import QtTest 1.15

ScreenTest {
    id: root

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

    name: "PickerRowLayout"

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
}
