import QtQuick 2.15
import QtTest 1.15
import "catalogue.js" as Catalogue

ScreenTest {
    id: root

    /*! The only preset row of a picker that shows \a preset under \a tag. */
    function presetRow(tag, preset) {
        restart([{ "category": tag, "groups": [Catalogue.group("CLASS", "fmt_mp4", [preset])] }])
        openPicker({ listFormatId: preset.id })
        return all("PresetRow")[0]
    }

    /*! The only row of the recently-used list. */
    function recentlyRow(preset) {
        restart([{ "category": "Any", "groups": [Catalogue.group("CLASS", "fmt_mp4", [preset])] }])
        O_FormatsProxy.add2Recently("any", "CLASS", preset.id)
        openPicker({ listFormatId: preset.id })
        return all("RecentlyRow")[0]
    }

    function video(changes) {
        return Catalogue.video("V", "Title", changes)
    }

    function audio(changes) {
        return Catalogue.audio("A", "Title", changes)
    }

    /*! Calls \a check with a row over the given \a model. */
    function checkLooseRow(type, model, check) {
        const page = openPicker({})
        const component = Qt.createComponent("qrc:/formats/" + type + ".qml")
        const row = component.createObject(page.contentItem, Object.assign(
            { model: model, page: page }, type === "FormatRow" ? {} : { index: 0 }))
        check(row)
        row.destroy()
        settle()
    }

    function iconOf(row) {
        // Qt 6 keeps a relative URL as it is.
        return String(all("QQuickImage", row)[0].source).replace(/^\.\//, "qrc:/formats/")
    }

    name: "PickerRows"

    function test_aPresetRowShowsTitleQualityAndEncoder_data() {
        return [
            { tag: "video", category: "Video", preset: video({}),
              texts: ["~Title", "1280x720", "h264, aac"] },
            { tag: "same as source", category: "Video", preset: Catalogue.source("V"),
              texts: ["~Keep Orignal", "~Smart Fit", "~Smart Fit"] },
            { tag: "source's video encoder", category: "Video",
              preset: video({ "videoParam": { "encoder": "0" } }),
              texts: ["~Title", "1280x720", "~Smart Fit, aac"] },
            { tag: "source's audio encoder", category: "Device",
              preset: video({ "audioParam": { "encoder": "0" } }),
              texts: ["~Title", "1280x720", "h264, ~Smart Fit"] },
            { tag: "audio", category: "Audio", preset: audio({}),
              texts: ["~Title", "128 kbps", "aac"] },
            { tag: "source's audio", category: "Audio",
              preset: audio({ "audioParam": { "encoder": "0", "bitrateKbps": 0 } }),
              texts: ["~Title", "~Smart Fit", "~Smart Fit"] },
            // The quality depends on the tag, the encoders on the preset.
            { tag: "audio elsewhere", category: "Device", preset: audio({}),
              texts: ["~Title", "~Smart Fit", "aac"] },
            { tag: "source's audio elsewhere", category: "Video",
              preset: audio({ "audioParam": { "encoder": "0" } }),
              texts: ["~Title", "~Smart Fit", "~Smart Fit"] },
            { tag: "video under audio", category: "Audio", preset: video({}),
              texts: ["~Title", "128 kbps", "h264, aac"] },
            { tag: "without resolutions", category: "Video",
              preset: video({ "videoOptions": { "resolutionList": [] } }),
              texts: ["~Title", "1280x720", "aac"] }
        ]
    }

    function test_aPresetRowShowsTitleQualityAndEncoder(row) {
        compare(texts(presetRow(row.category, row.preset)), row.texts)
    }

    function test_thePresetsOfASearchKeepTheirEncoders() {
        openPicker({ openWay: true })
        for (const letter of "mp3") {
            press(letter)
        }
        compare(all("PresetRow").map(function (preset) {
            return texts(preset)
        }), [["~Keep Orignal", "~Smart Fit", "~Smart Fit"],
             ["~High Quality", "~Smart Fit", "mp3"]])
    }

    function test_aRecentlyUsedRowShowsFormatTitleQualityAndEncoder_data() {
        return [
            { tag: "video", preset: video({}), texts: ["CLASS- ~Title", "1280x720", "h264, aac"] },
            { tag: "same as source", preset: Catalogue.source("V"),
              texts: ["CLASS - ~Keep Orignal", "~Smart Fit", "~Smart Fit"] },
            { tag: "source's video encoder", preset: video({ "videoParam": { "encoder": "0" } }),
              texts: ["CLASS- ~Title", "1280x720", "~Smart Fit, aac"] },
            { tag: "source's audio encoder", preset: video({ "audioParam": { "encoder": "0" } }),
              texts: ["CLASS- ~Title", "1280x720", "h264, ~Smart Fit"] },
            { tag: "audio", preset: audio({}), texts: ["CLASS- ~Title", "128 kbps", "aac"] },
            { tag: "source's audio",
              preset: audio({ "audioParam": { "encoder": "0", "bitrateKbps": 0 } }),
              texts: ["CLASS- ~Title", "~Smart Fit", "~Smart Fit"] }
        ]
    }

    function test_aRecentlyUsedRowShowsFormatTitleQualityAndEncoder(row) {
        compare(texts(recentlyRow(row.preset)), row.texts)
    }

    // The facade only holds strings; a preset list from elsewhere can hold numbers and gaps.
    function test_aRecentlyUsedRowTakesTheNumber0AsTheText_data() {
        return [
            { tag: "video", values: { "videoResolution": 0, "videoResolutions": ["0"] },
              quality: "~Smart Fit" },
            { tag: "audio", values: { "audioBitrate": 0, "videoResolutions": [] },
              quality: "~Smart Fit" },
            { tag: "no resolutions", values: { "audioBitrate": "64" }, quality: "64 kbps" }
        ]
    }

    function test_aRecentlyUsedRowTakesTheNumber0AsTheText(row) {
        checkLooseRow("RecentlyRow", Object.assign({
            "id": "X", "title": "T", "videoEncoder": "v", "audioEncoder": "a"
        }, row.values), function (item) {
            compare(texts(item).slice(0, 2), ["- ~T", row.quality])
        })
    }

    function test_aRowFollowsItsPreset() {
        openPicker({ openWay: true })
        const id = O_FormatsProxy.addUserDefineFormat("video", "MP4", "Video_MP4_002",
                                                      { "title": "Mine", "videoResolution": "0" })
        O_FormatsProxy.changeUserDefineFormat("MP4", id, {
            "title": "Yours", "videoResolution": "640x360", "videoEncoder": "hevc",
            "audioEncoder": "mp3"
        })
        host.converter.signalCreateNewFormatMsgClose(id)
        settle()
        const row = all("PresetRow").find(function (preset) {
            return preset.presetId === id
        })
        compare(texts(row), ["~Yours", "640x360", "hevc, mp3"])
    }

    function test_aFormatRowShowsItsTitle() {
        openPicker({ openWay: true })
        compare(texts(all("FormatRow")[0]), ["MP4"])
    }

    function test_theIconOfAFormat_data() {
        return [
            { tag: "fmt_mp4", source: "qrc:/formats/image/fmt_mp4.svg" },
            { tag: "1080p", source: "" },
            { tag: "source", source: "" },
            { tag: "phone", source: "" }
        ]
    }

    function test_theIconOfAFormat(row) {
        checkLooseRow("FormatRow", { "title": "T", "icon": row.tag }, function (item) {
            compare(iconOf(item), row.source)
        })
    }

    function test_theIconOfAPresetIsThatOfItsFormat() {
        openPicker({ listFormatId: "Audio_MP3_002" })
        compare(iconOf(all("PresetRow")[0]), "qrc:/formats/image/fmt_mp3.svg")
    }

    function test_theIconOfARecentlyUsedPresetIsThatOfItsFormat() {
        O_FormatsProxy.add2Recently("audio", "MP3", "Audio_MP3_002")
        openPicker({ listFormatId: "Audio_MP3_002" })
        compare(iconOf(all("RecentlyRow")[0]), "qrc:/formats/image/fmt_mp3.svg")
    }

    function test_aRecentlyUsedPresetThatHasLeftTheCatalogueHasNoIcon() {
        checkLooseRow("RecentlyRow", {
            "id": "Gone", "title": "Same as source", "audioEncoder": "aac", "audioBitrate": "64"
        }, function (item) {
            compare(iconOf(item), "")
            compare(texts(item), [" - ~Keep Orignal", "64 kbps", "aac"])
        })
    }

    function test_anEmptyRecentlyUsedListSaysSo() {
        openPicker({ openWay: true })
        click(named("FormatTag", "~recently"))
        const notice = all("EmptyNotice")[0]
        compare(texts(notice), ["~No data"])
        compare(iconOf(notice), "qrc:/formats/image/Notata.png")

        O_FormatsProxy.add2Recently("audio", "MP3", "Audio_MP3_002")
        settle()
        compare(all("EmptyNotice").length, 0)
        compare(all("RecentlyRow").length, 1)
    }

    function test_aLongTitleIsElidedInTheMiddle() {
        const row = presetRow("Video", Catalogue.video(
            "V", "A title that goes on and on, far beyond its column"))
        const title = shownTexts(row)[0]
        compare(title.elide, Text.ElideMiddle)
        verify(title.truncated)
        compare(title.width, 174)
    }
}
