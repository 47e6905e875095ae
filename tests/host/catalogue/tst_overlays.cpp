#include "host/catalogue/overlays.h"
#include "host/check/cataloguelint.h"

#include <QtTest>

namespace {

const QByteArray catalogueFile = R"({
  "category": "Device",
  "groups": [
    {
      "name": "TV", "icon": "fmt_tv", "extension": "mp4",
      "videoOptions": {
        "encoderList": ["h264"], "resolutionList": ["1920x1080", "1280x720"],
        "frameRateList": [0, 25], "bitrateKbpsList": [0, 1000, 2000, 4000],
        "levelList": [4000, 2000, 1000]
      },
      "videoParam": { "encoder": "h264", "resolution": "1280x720", "frameRate": 0,
                      "bitrateKbps": 2000, "h264Level": "4" },
      "audioOptions": {
        "encoderList": ["aac"], "channelList": [2], "sampleRateList": [48000],
        "bitrateKbpsList": [128]
      },
      "audioParam": { "encoder": "aac", "channel": 2, "sampleRate": 48000, "bitrateKbps": 128 },
      "presets": [
        { "id": "Device_TV_001", "title": "HD" },
        { "id": "Device_TV_002", "title": "Full HD", "videoParam": { "resolution": "1920x1080" } }
      ]
    },
    {
      "name": "Screen", "icon": "fmt_tv", "extension": "gif",
      "videoOptions": {
        "encoderList": ["gif"], "resolutionList": ["0"], "frameRateList": [0],
        "bitrateKbpsList": [0], "levelList": [0, 0, 0]
      },
      "videoParam": { "encoder": "gif", "resolution": "0", "frameRate": 0, "bitrateKbps": 0 },
      "presets": [ { "id": "Device_SCREEN_001", "title": "Silent" } ]
    }
  ]
})";

CatalogueResult catalogue()
{
    return readCatalogue({{QStringLiteral("built-in.json"), catalogueFile}});
}

OverlaidCatalogue with(const QList<QByteArray> &overlays)
{
    QVector<CatalogueSource> sources;
    for (const QByteArray &json : overlays) {
        sources.append({QStringLiteral("%1.json").arg(sources.size() + 1), json});
    }
    return withOverlays(catalogue(), sources);
}

QStringList mistakesOf(const OverlaidCatalogue &overlaid)
{
    QStringList lines;
    for (const CatalogueMistake &mistake : overlaid.result.mistakes) {
        lines << mistake.text();
    }
    return lines;
}

/*! "TV: Device_TV_001 Device_TV_002", a line for each format. */
QStringList content(const OverlaidCatalogue &overlaid)
{
    QStringList lines;
    const ExportCatalogue &served = overlaid.result.catalogue;
    for (const QVariant &category : served.categories) {
        for (const QVariant &group : served.groups.value(category.toString())) {
            const QString name = group.toMap().value(QStringLiteral("name")).toString();
            QStringList ids;
            for (const QVariant &preset : served.presets.value({category.toString(), name})) {
                ids << preset.toMap().value(QStringLiteral("id")).toString();
            }
            lines << name + QStringLiteral(": ") + ids.join(QLatin1Char(' '));
        }
    }
    return lines;
}

QVariantMap presetIn(const OverlaidCatalogue &overlaid, const QString &id)
{
    for (const QVariantList &presets : overlaid.result.catalogue.presets) {
        for (const QVariant &preset : presets) {
            if (preset.toMap().value(QStringLiteral("id")) == id) {
                return preset.toMap();
            }
        }
    }
    return {};
}

QVariant video(const QVariantMap &preset, const char *key)
{
    return preset.value(QStringLiteral("videoParam")).toMap().value(QLatin1String(key));
}

const QString tv1 = QStringLiteral("Device_TV_001");
const QString tv2 = QStringLiteral("Device_TV_002");
const QStringList asItWas{QStringLiteral("TV: Device_TV_001 Device_TV_002"),
                          QStringLiteral("Screen: Device_SCREEN_001")};

} // namespace

/*! Overlays add to a catalogue, change it and hide parts of it. */
class TestOverlays : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void anEmptyOverlayChangesNothing();
    void aChangeReplacesOnlyWhatItStates();
    void nullTakesAValueAway();
    void aFormatGoesWithItsLastPreset();
    void aFormatIsHiddenByItsName();
    void aPresetStartsFromAnother();
    void whatHasNoAudioStaysWithout();
    void aFormatIsAdded();
    void anIdIsFreeAgainOnceItsPresetIsHidden();
    void overlaysApplyInTheirOrder();
    void listsAndTemplatesAreThoseOfTheOverlay();
    void anAliasLeadsToThePresetThatIsThere();
    void aMistakeLeavesOutOnlyWhatContainsIt_data();
    void aMistakeLeavesOutOnlyWhatContainsIt();
    void theCheckNamesThePlaceInTheOverlay();
    void theCheckNamesThePlaceOfWhatIsInherited();
};

void TestOverlays::anEmptyOverlayChangesNothing()
{
    const OverlaidCatalogue overlaid = with({R"({ "$schema": "overlay.schema.json" })"});
    QCOMPARE(mistakesOf(overlaid), QStringList());
    QCOMPARE(overlaid.result.catalogue.categories, catalogue().catalogue.categories);
    QCOMPARE(overlaid.result.catalogue.groups, catalogue().catalogue.groups);
    QCOMPARE(overlaid.result.catalogue.presets, catalogue().catalogue.presets);
}

void TestOverlays::aChangeReplacesOnlyWhatItStates()
{
    const OverlaidCatalogue overlaid = with({R"({
        "change": { "Device_TV_002": { "title": "Large", "videoParam": { "bitrateKbps": 4000 } } }
    })"});
    QCOMPARE(mistakesOf(overlaid), QStringList());
    QCOMPARE(content(overlaid), asItWas);
    const QVariantMap changed = presetIn(overlaid, tv2);
    QCOMPARE(changed.value(QStringLiteral("title")).toString(), QStringLiteral("Large"));
    QCOMPARE(video(changed, "bitrateKbps").toInt(), 4000);
    QCOMPARE(video(changed, "resolution").toString(), QStringLiteral("1920x1080"));
    QCOMPARE(video(presetIn(overlaid, tv1), "bitrateKbps").toInt(), 2000);
}

void TestOverlays::nullTakesAValueAway()
{
    const OverlaidCatalogue overlaid =
        with({R"({ "change": { "Device_TV_001": { "videoParam": { "h264Level": null } } } })"});
    QCOMPARE(mistakesOf(overlaid), QStringList());
    QVERIFY(!video(presetIn(overlaid, tv1), "h264Level").isValid());
    QCOMPARE(video(presetIn(overlaid, tv2), "h264Level").toString(), QStringLiteral("4"));
}

void TestOverlays::aFormatGoesWithItsLastPreset()
{
    const OverlaidCatalogue overlaid =
        with({R"({ "hide": { "presets": ["Device_TV_002", "Device_SCREEN_001"] } })"});
    QCOMPARE(mistakesOf(overlaid), QStringList());
    QCOMPARE(content(overlaid), QStringList(QStringLiteral("TV: Device_TV_001")));
}

void TestOverlays::aFormatIsHiddenByItsName()
{
    const OverlaidCatalogue overlaid = with({R"({ "hide": { "formats": ["TV"] } })"});
    QCOMPARE(mistakesOf(overlaid), QStringList());
    QCOMPARE(content(overlaid), QStringList(asItWas.at(1)));
    QVERIFY(!overlaid.result.presetPlaces.contains(tv1));
}

void TestOverlays::aPresetStartsFromAnother()
{
    const OverlaidCatalogue overlaid = with({R"({
        "category": "Device",
        "groups": [{ "name": "TV", "presets": [
          { "id": "Device_TV_003", "like": "Device_TV_002", "title": "Fast",
            "videoParam": { "frameRate": 25 } } ] }]
    })"});
    QCOMPARE(mistakesOf(overlaid), QStringList());
    QCOMPARE(content(overlaid),
             QStringList({asItWas.at(0) + QStringLiteral(" Device_TV_003"), asItWas.at(1)}));
    const QVariantMap added = presetIn(overlaid, QStringLiteral("Device_TV_003"));
    QCOMPARE(video(added, "frameRate").toInt(), 25);
    QCOMPARE(video(added, "resolution").toString(), QStringLiteral("1920x1080"));
    QVERIFY(!added.contains(QStringLiteral("like")));
}

void TestOverlays::whatHasNoAudioStaysWithout()
{
    const OverlaidCatalogue overlaid =
        with({R"({ "change": { "Device_SCREEN_001": { "title": "Mute" } } })"});
    QCOMPARE(mistakesOf(overlaid), QStringList());
    QVariantMap expected = presetIn(with({}), QStringLiteral("Device_SCREEN_001"));
    expected.insert(QStringLiteral("title"), QStringLiteral("Mute"));
    QCOMPARE(presetIn(overlaid, QStringLiteral("Device_SCREEN_001")), expected);
}

void TestOverlays::aFormatIsAdded()
{
    const OverlaidCatalogue overlaid = with({R"({
        "category": "Video",
        "groups": [{ "name": "NEW", "icon": "fmt_mp4", "presets": [
          { "id": "Video_NEW_001", "like": "Device_TV_001", "title": "Any" } ] }]
    })"});
    QCOMPARE(mistakesOf(overlaid), QStringList());
    QCOMPARE(content(overlaid), asItWas + QStringList(QStringLiteral("NEW: Video_NEW_001")));
    const QVariantList groups = overlaid.result.catalogue.groups.value(QStringLiteral("Video"));
    QCOMPARE(groups.value(0).toMap().value(QStringLiteral("icon")).toString(),
             QStringLiteral("fmt_mp4"));
}

void TestOverlays::anIdIsFreeAgainOnceItsPresetIsHidden()
{
    const OverlaidCatalogue overlaid = with({R"({
        "category": "Device",
        "hide": { "presets": ["Device_TV_001"] },
        "groups": [{ "name": "TV", "presets": [
          { "id": "Device_TV_001", "like": "Device_TV_002", "title": "Again" } ] }]
    })"});
    QCOMPARE(mistakesOf(overlaid), QStringList());
    QCOMPARE(content(overlaid).at(0), QStringLiteral("TV: Device_TV_002 Device_TV_001"));
}

void TestOverlays::overlaysApplyInTheirOrder()
{
    const QByteArray one = R"({ "change": { "Device_TV_001": { "title": "One" } } })";
    const QByteArray two = R"({ "change": { "Device_TV_001": { "title": "Two" } } })";
    const QString title = QStringLiteral("title");
    QCOMPARE(presetIn(with({one, two}), tv1).value(title).toString(), QStringLiteral("Two"));
    QCOMPARE(presetIn(with({two, one}), tv1).value(title).toString(), QStringLiteral("One"));
}

void TestOverlays::listsAndTemplatesAreThoseOfTheOverlay()
{
    const QByteArray own = R"({
        "lists": { "rates": [0, 50] }, "templates": { "fast": { "extension": "mkv" } },
        "category": "Device",
        "change": { "Device_TV_001": { "videoOptions": { "frameRateList": "rates" } } },
        "groups": [{ "name": "TV", "presets": [
          { "id": "Device_TV_003", "template": "fast", "title": "T",
            "audioOptions": { "encoderList": ["aac"], "channelList": [2],
                              "sampleRateList": [48000], "bitrateKbpsList": [128] },
            "audioParam": { "encoder": "aac", "channel": 2, "sampleRate": 48000,
                            "bitrateKbps": 128 } } ] }]
    })";
    const OverlaidCatalogue overlaid = with({own});
    QCOMPARE(mistakesOf(overlaid), QStringList());
    QCOMPARE(presetIn(overlaid, tv1)
                 .value(QStringLiteral("videoOptions"))
                 .toMap()
                 .value(QStringLiteral("frameRateList"))
                 .toList(),
             QVariantList({0, 50}));
    QCOMPARE(presetIn(overlaid, QStringLiteral("Device_TV_003"))
                 .value(QStringLiteral("extension"))
                 .toString(),
             QStringLiteral("mkv"));
    const QByteArray other =
        R"({ "change": { "Device_TV_001": { "videoOptions": { "frameRateList": "rates" } } } })";
    QCOMPARE(mistakesOf(with({own, other})),
             QStringList(QStringLiteral("2.json: change.Device_TV_001.videoOptions.frameRateList: "
                                        "there is no list \"rates\" in \"lists\"")));
}

void TestOverlays::anAliasLeadsToThePresetThatIsThere()
{
    const OverlaidCatalogue overlaid =
        with({R"({
        "hide": { "presets": ["Device_TV_001"] },
        "aliases": { "Device_TV_001": "Device_TV_002", "OLDER": "Device_TV_001",
                     "OLDEST": "OLDER" }
    })",
              R"({ "aliases": { "OLDEST": "Device_SCREEN_001" } })"});
    QCOMPARE(mistakesOf(overlaid), QStringList());
    QCOMPARE(overlaid.aliases,
             (PresetAliases{{tv1, tv2},
                            {QStringLiteral("OLDER"), tv2},
                            {QStringLiteral("OLDEST"), QStringLiteral("Device_SCREEN_001")}}));
}

void TestOverlays::aMistakeLeavesOutOnlyWhatContainsIt_data()
{
    QTest::addColumn<QByteArray>("overlay");
    QTest::addColumn<QStringList>("mistakes");
    const auto row = [](const char *name, const QByteArray &overlay, const char *mistakes) {
        QTest::newRow(name) << overlay << QString::fromUtf8(mistakes).split(QLatin1Char('\n'));
    };
    row("no JSON", "{\n  \"hide\": }", "1.json:2:11: object is missing after a comma");
    row("no object", "[]", "1.json: the file must hold an object but holds a list");
    row("an unknown key", R"({ "hidden": {} })", "1.json: hidden: is not a known key");
    row("an unknown kind to hide", R"({ "hide": { "tags": [] } })",
        "1.json: hide.tags: is not a known key");
    row("hiding no object", R"({ "hide": [] })", "1.json: hide: must be an object");
    row("hiding no list", R"({ "hide": { "formats": "TV" } })",
        "1.json: hide.formats: must be a list");
    row("hiding no text", R"({ "hide": { "presets": [1] } })",
        "1.json: hide.presets[0]: must be a string");
    row("hiding an unknown preset", R"({ "hide": { "presets": ["X"] } })",
        "1.json: hide.presets[0]: no preset has the id \"X\"; \"vexconvert presets\" lists the "
        "ids");
    row("hiding an unknown format", R"({ "hide": { "formats": ["X"] } })",
        "1.json: hide.formats[0]: there is no format \"X\"; \"vexconvert formats\" lists them");
    row("changing no object", R"({ "change": { "Device_TV_001": 1 } })",
        "1.json: change.Device_TV_001: must be an object of the values that change");
    row("changing an unknown preset", R"({ "change": { "X": {} } })",
        "1.json: change.X: no preset has the id \"X\"; \"vexconvert presets\" lists the ids");
    row("changing an id", R"({ "change": { "Device_TV_001": { "id": "X" } } })",
        "1.json: change.Device_TV_001.id: can't be changed; hide the preset, add it again under "
        "\"groups\" and give it its old id under \"aliases\"");
    row("changing by a template",
        R"({ "templates": { "T": {} }, "change": { "Device_TV_001": { "template": "T" } } })",
        "1.json: change.Device_TV_001.template: can't be changed; state the values themselves");
    row("a value of another type",
        R"({ "change": { "Device_TV_001": { "videoParam": { "bitrateKbps": "4" } } } })",
        "1.json: change.Device_TV_001.videoParam.bitrateKbps: must be a number but is a string");
    row("taking away what is needed", R"({ "change": { "Device_TV_001": { "title": null } } })",
        "1.json: change.Device_TV_001.title: is missing from the preset and its group");
    row("a list of another type", R"({ "lists": { "L": 1 } })",
        "1.json: lists.L: must be a list but is a number");
    row("groups without a category", R"({ "groups": [] })",
        "1.json: category: must be a string but is missing");
    row("groups that are no list", R"({ "category": "Device", "groups": 1 })",
        "1.json: groups: must be a list but is a number");
    row("a group that is no object", R"({ "category": "Device", "groups": [1] })",
        "1.json: groups[0]: must be an object but is a number");
    row("presets that are no list",
        R"({ "category": "Device", "groups": [{ "name": "N", "presets": 1 }] })",
        "1.json: groups[0].presets: must be a list but is a number");
    row("a preset that is no object",
        R"({ "category": "Device", "groups": [{ "name": "N", "presets": [1] }] })",
        "1.json: groups[0].presets[0]: must be an object but is a number");
    row("like no preset",
        R"({ "category": "Device", "groups": [{ "name": "N", "presets": [
          { "id": "A", "like": "X" }, { "id": "B", "like": 1 },
          { "id": "C", "like": "Device_TV_001", "template": "T" } ] }] })",
        "1.json: groups[0].presets[0].like: no preset has the id \"X\"; \"vexconvert presets\" "
        "lists the ids\n"
        "1.json: groups[0].presets[1].like: must be the id of a preset\n"
        "1.json: groups[0].presets[2].like: a preset starts from another one or from a template, "
        "not both; leave one of them out");
    row("behind a preset that is left out",
        R"({ "category": "Device", "groups": [{ "name": "N", "presets": [
          { "id": "A", "like": "X" }, { "id": "B", "like": "Device_TV_001", "title": 1 } ] }] })",
        "1.json: groups[0].presets[0].like: no preset has the id \"X\"; \"vexconvert presets\" "
        "lists the ids\n"
        "1.json: groups[0].presets[1].title: must be a string but is a number");
    row("an id that is taken",
        R"({ "category": "Device", "groups": [{ "name": "N", "presets": [
          { "id": "Device_TV_001", "like": "Device_TV_002" } ] }] })",
        "1.json: groups[0].presets[0].id: \"Device_TV_001\" is already the id of a preset; change "
        "that under \"change\", or hide it first");
    row("an alias that is no text", R"({ "aliases": { "A": 1, "B": "" } })",
        "1.json: aliases.A: must be the id that the preset has now\n"
        "1.json: aliases.B: must be the id that the preset has now");
    row("an alias of a preset", R"({ "aliases": { "Device_TV_001": "Device_TV_002" } })",
        "1.json: aliases.Device_TV_001: is the id of a preset, which is found by it; hide that "
        "preset or remove the alias");
    row("an alias for nothing", R"({ "aliases": { "A": "X" } })",
        "1.json: aliases.A: no preset has the id \"X\"; \"vexconvert presets\" lists the ids");
    row("aliases in a circle", R"({ "aliases": { "A": "B", "B": "A" } })",
        "1.json: aliases.A: leads back to itself, or through more than 16 others; name a preset "
        "instead\n"
        "1.json: aliases.B: leads back to itself, or through more than 16 others; name a preset "
        "instead");
}

void TestOverlays::aMistakeLeavesOutOnlyWhatContainsIt()
{
    QFETCH(QByteArray, overlay);
    QFETCH(QStringList, mistakes);
    const OverlaidCatalogue alone = with({overlay});
    QVERIFY2(mistakesOf(alone) == mistakes, qPrintable(mistakesOf(alone).join(QLatin1Char('\n'))));
    QCOMPARE(alone.result.catalogue.presets, catalogue().catalogue.presets);
    QCOMPARE(alone.result.catalogue.groups, catalogue().catalogue.groups);
    QVERIFY(alone.aliases.isEmpty());
    const OverlaidCatalogue followed =
        with({overlay, R"({ "hide": { "presets": ["Device_SCREEN_001"] } })"});
    QCOMPARE(content(followed), QStringList(asItWas.at(0)));
}

void TestOverlays::theCheckNamesThePlaceInTheOverlay()
{
    const OverlaidCatalogue overlaid = with({R"({
        "category": "Device",
        "change": { "Device_TV_001": { "videoParam": { "bitrateKbps": 3000 } } },
        "groups": [{ "name": "TV", "icon": "fmt_other", "presets": [
          { "id": "X", "like": "Device_TV_002", "title": "T" } ] }]
    })"});
    QCOMPARE(mistakesOf(overlaid),
             QStringList(QStringLiteral("1.json: groups[0].icon: is not used, as the format \"TV\" "
                                        "has one; leave it out")));
    QStringList lines;
    for (const CatalogueMistake &mistake :
         lintCatalogue(overlaid.result, {QStringLiteral("fmt_tv")}, {QStringLiteral("device")})) {
        lines << mistake.text();
    }
    QCOMPARE(lines, QStringList({QStringLiteral("1.json: change.Device_TV_001.videoParam."
                                                "bitrateKbps: 3000 is not one of the values that "
                                                "videoOptions.bitrateKbpsList offers (in the "
                                                "preset Device_TV_001)"),
                                 QStringLiteral("1.json: groups[0].presets[0].id: must be "
                                                "\"Device_TV_\" followed by three digits")}));
}

void TestOverlays::theCheckNamesThePlaceOfWhatIsInherited()
{
    const OverlaidCatalogue overlaid =
        with({R"({ "change": { "Device_TV_002": { "title": "T" } } })"});
    const PresetPlaces before = catalogue().presetPlaces.value(tv2);
    const PresetPlaces places = overlaid.result.presetPlaces.value(tv2);
    const QString resolution = QStringLiteral("videoParam.resolution");
    const QString title = QStringLiteral("title");
    QCOMPARE(places.value(resolution).source, QStringLiteral("built-in.json"));
    QCOMPARE(places.value(resolution).path, before.value(resolution).path);
    QCOMPARE(places.value(title).source, QStringLiteral("1.json"));
    QCOMPARE(places.value(title).path, QStringLiteral("change.Device_TV_002.title"));
}

QTEST_GUILESS_MAIN(TestOverlays)
#include "tst_overlays.moc"
