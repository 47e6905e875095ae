import QtQuick 2.15
import QtTest 1.15

ScreenTest {
    id: root

    function at(item) {
        return place(item, screen)
    }

    function box() {
        return all("VEXTextInput")[0].parent
    }

    function headings() {
        return all("SectionHeading")
    }

    function rules(item) {
        return all("QQuickRectangle", item).filter(function (rectangle) {
            return rectangle.height === 1
        })
    }

    name: "DialogLayout"

    function test_theFrame() {
        const dialog = openDialog({})
        compareColor(dialog.color, theme.basics_gradeTone1)
        compareColor(dialog.border.color, "#C6C6C6")
        compare([dialog.border.width, dialog.radius], [1, 8])
        const titleBar = all("VEXPopupsTitleBar")[0]
        compare(titleBar.text, "~Preference")
        verify(titleBar.control === dialog)
        compare(at(titleBar), [0, 0, 638, 40])
    }

    function test_theSizeFollowsTheTag_data() {
        return [
            { tag: "video", info: {}, height: 572 },
            { tag: "device", info: { format: "device", curclass: "Apple",
                                     idIndex: "Device_Apple_001" }, height: 572 },
            { tag: "audio", info: { format: "audio", curclass: "MP3", idIndex: "Audio_MP3_001" },
              height: 320 },
            { tag: "video preset under audio", info: { format: "audio" }, height: 320 }
        ].concat(["video", "device", "socialvideo", "recently"].map(function (tag) {
            return { tag: "audio preset under " + tag, height: 320,
                     info: { format: tag, curclass: "MP3", idIndex: "Audio_MP3_001" } }
        }))
    }

    function test_theSizeFollowsTheTag(row) {
        const dialog = openDialog(row.info)
        compare([dialog.width, dialog.height], [638, row.height])
        compare(host.takeCalls(), [["frame.resizeWinSize", 638, row.height]])
        const isVideo = row.height === 572
        compare(headings().map(function (heading) {
            return texts(heading)[0]
        }), isVideo ? ["~Quality", "~Video", "~Audio"] : ["~Audio"])
        compare(all("QualityBar").length, isVideo ? 1 : 0)
        compare(all("SettingCell").length, isVideo ? 8 : 4)
    }

    function test_theFrameFollowsEachChangeOfSize() {
        const dialog = openDialog({})
        host.takeCalls()
        dialog.width = 700
        dialog.height = 600
        waitForCall()
        compare(host.takeCalls(), [["frame.resizeWinSize", 700, 600]])
        dialog.height = 610
        waitForCall()
        compare(host.takeCalls(), [["frame.resizeWinSize", 700, 610]])
    }

    function test_theTitleRow() {
        openDialog({})
        const label = shownTexts(all("TitleRow")[0])[0]
        compare(at(label), [24, 40 + 24, 58, 32])
        compare(label.text, "~Title")
        compare(label.horizontalAlignment, Text.AlignRight)
        compare(label.font.pixelSize, 12)
        compareColor(label.color, "#454545")
        compare(at(box()), [24 + 58 + 12, 64, 526, 32])
        compare([box().radius, box().border.width], [2, 1])
    }

    function test_theTitleField() {
        openDialog({})
        const field = all("VEXTextInput")[0]
        compareColor(box().border.color, "#C9C7D0")
        compare(field.opacity, 0.6)
        compare(field.font.pixelSize, 13)
        compareColor(field.color, "#454545")
        compare(field.leftPadding, 10)
        compare([field.isSearch, field.isCostomCursor], [false, true])
        compare([field.cursorWidth, field.cursorHeight], [1, 15])
        compare(field.Accessible.role, Accessible.EditableText)
        compare(field.Accessible.name, "~Title")
        mouseClick(field)
        compareColor(box().border.color, theme.font_color_grade3)
        compare(field.opacity, 1)
    }

    function test_theHeadings() {
        openDialog({})
        host.mark = ""
        settle()
        for (const heading of headings()) {
            compare(at(heading)[0], 24)
            const caption = shownTexts(heading)[0]
            compare([caption.font.pixelSize, caption.font.bold], [16, true])
            compareColor(caption.color, "#454545")
            compare(caption.parent.width, 58)
            const rule = rules(heading)[0]
            compare([rule.width, rule.height], [544, 1])
            compareColor(rule.color, "#E8E8EB")
            compare(heading.Accessible.role, Accessible.Heading)
            compare(heading.Accessible.name, caption.text)
        }
    }

    function test_aLongHeadingGetsSmallerBeforeTheRule() {
        openDialog({})
        host.mark = "New "
        settle()
        const caption = shownTexts(headings()[0])[0]
        compare(caption.truncated, false)
        verify(caption.contentHeight < caption.font.pixelSize)
        verify(at(caption)[0] + caption.contentWidth <= at(rules(headings()[0])[0])[0])
    }

    function test_theQualityBar() {
        openDialog({})
        const bar = all("QualityBar")[0]
        const segments = all("RadioButton", bar)
        compare(at(bar)[0], 24 + 70)
        compare([bar.width, bar.height], [528, 34])
        compareColor(bar.color, theme.secondary_gradeTone4)
        compare(bar.radius, theme.radius_7)
        compare(segments.map(function (segment) {
            return texts(segment)[0]
        }), ["~High Quality", "~Default", "~Low Quality"])
        compare(segments.map(function (segment) {
            return place(segment, bar)
        }), [[1, 0, 172, 34], [1 + 177, 0, 172, 34], [1 + 2 * 177, 0, 172, 34]])
        for (const segment of segments) {
            compare(segment.background.radius, 81)
            compare(shownTexts(segment)[0].font.pixelSize, 12)
            compare(segment.Accessible.role, Accessible.RadioButton)
            compare(segment.Accessible.name, texts(segment)[0])
        }
    }

    function test_theSelectedSegmentStandsOut() {
        openDialog({})
        const segments = all("RadioButton", all("QualityBar")[0])
        const selected = function () {
            return segments.map(function (segment) {
                return [String(segment.background.color), segment.background.border.width,
                        segment.Accessible.checked]
            })
        }
        const on = [String(theme.basics_gradeTone1), 1, true]
        const off = ["#00000000", 0, false]
        compare(selected(), [off, on, off])
        compareColor(segments[1].background.border.color, theme.secondary_gradeTone3)
        mouseClick(segments[0])
        compare(selected(), [on, off, off])
    }

    function test_theGrids() {
        openDialog({})
        const cells = all("SettingCell")
        const boxes = all("VEXComboBox")
        for (let cell = 0; cell < 8; ++cell) {
            const top = cells[4 * Math.floor(cell / 4)]
            const column = cell % 2
            const row = Math.floor(cell % 4 / 2)
            compare(at(cells[cell]), [24 + 91 + column * (243 + 24),
                                      at(top)[1] + row * (32 + 12), 243, 32])
            const label = shownTexts(cells[cell])[0]
            compare(place(label, cells[cell]), [0, 0, 62, 32])
            compare(label.horizontalAlignment, Text.AlignRight)
            compareColor(label.color, "#454545")
            compare(place(boxes[cell], cells[cell]), [62 + 8, 0, 170, 32])
        }
    }

    function test_theSectionsAre24Apart() {
        openDialog({})
        const parts = [all("TitleRow")[0], headings()[0], all("QualityBar")[0], headings()[1],
                       all("VideoSettings")[0], headings()[2], all("AudioSettings")[0]].map(at)
        for (let part = 1; part < parts.length; ++part) {
            compare(parts[part][1], parts[part - 1][1] + parts[part - 1][3] + 24)
        }
        verify(parts[6][1] + parts[6][3] < 572 - 57)
    }

    function test_aLongLabelWrapsAndGetsSmaller_data() {
        return ["Encoder", "Frame Rate", "Resolution", "Bitrate",
                "Encoder", "Channel", "Sample Rate", "Bitrate"].map(function (label, cell) {
            // The labels on the right have a box beside them.
            return { tag: cell + ", " + label, label: label, cell: cell,
                     room: cell % 2 === 1 ? 85 : 100 }
        })
    }

    function test_aLongLabelWrapsAndGetsSmaller(row) {
        openDialog({})
        metrics.text = row.label
        host.mark = ""
        while (metrics.advanceWidth <= row.room) {
            host.mark += "i"
            metrics.text = host.mark + row.label
        }
        settle()
        const label = shownTexts(all("SettingCell")[row.cell])[0]
        compare([label.text, label.font.pixelSize, label.wrapMode],
                [metrics.text, 10, Text.WordWrap])
        host.mark = host.mark.substring(1)
        settle()
        compare([label.font.pixelSize, label.wrapMode], [12, Text.NoWrap])
    }

    function test_noLabelReachesTheBoxBesideIt() {
        openDialog({})
        const boxes = all("VEXComboBox").map(at)
        const labels = all("SettingCell").map(function (cell) {
            return shownTexts(cell)[0]
        })
        for (const word of ["i ", "long "]) {
            host.mark = ""
            for (let count = 0; count < 30; ++count) {
                host.mark += word
                settle()
                labels.forEach(function (label, cell) {
                    // Text that is too wide for its label sticks out on the left.
                    const start = at(label)[0] + label.width - label.contentWidth
                    const end = cell % 2 === 1 ? boxes[cell - 1][0] + boxes[cell - 1][2] : 0
                    verify(start > end, label.text)
                })
            }
        }
    }

    function test_theBottom() {
        openDialog({})
        const rule = rules().find(function (item) {
            return item.parent === screen
        })
        compareColor(rule.color, "#DDDBE7")
        compare(at(rule)[1], 572 - 56 - 1)
        const buttons = all("DialogButtons")[0]
        verify(buttons.control === screen)
        const frame = at(buttons)
        compare([frame[0] + frame[2], frame[1] + frame[3]], [638 - 20, 572 - 12])
    }

    function test_theButtonsGrowWithTheirText() {
        openDialog({})
        const buttons = all("DialogButtons")[0]
        compare(buttons.buttonMinWidth, 104)
        metrics.text = "Create"
        host.mark = ""
        while (metrics.advanceWidth + 10 <= 104) {
            host.mark += "m"
            metrics.text = host.mark + "Create"
        }
        metrics.text = host.mark + "Cancel"
        const cancel = metrics.advanceWidth
        metrics.text = host.mark + "Create"
        compare(buttons.buttonMinWidth, Math.max(cancel, metrics.advanceWidth) + 10)
    }

    TextMetrics {
        id: metrics

        font.pixelSize: 12
    }
}
