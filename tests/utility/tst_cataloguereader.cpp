#include "utility/cataloguereader.h"

#include <QtTest>

namespace {

const QByteArray audioBlocks = R"(
    "audioOptions": {
      "encoderList": ["0", "aac"],
      "channelList": [0, 1, 2],
      "sampleRateList": [0, 44100, 48000],
      "bitrateKbpsList": [0, 128, 192]
    },
    "audioParam": { "encoder": "aac", "channel": 2, "sampleRate": 48000, "bitrateKbps": 192 }
)";

const QByteArray videoBlocks = R"(
    "videoOptions": {
      "encoderList": ["0", "h264"],
      "resolutionList": ["0", "1920x1080"],
      "frameRateList": [0, 29.97, 30],
      "bitrateKbpsList": [0, 4000, 8000, 12000],
      "levelList": [12000, 8000, 4000]
    },
    "videoParam": { "encoder": "h264", "resolution": "0", "frameRate": 0, "bitrateKbps": 8000 }
)";

QByteArray joined(const QList<QByteArray> &parts)
{
    return parts.join(", ");
}

QByteArray preset(const QByteArray &id, const QByteArray &further = {})
{
    const QByteArray texts = R"("id": ")" + id + R"(", "title": "T")";
    return "{ " + (further.isEmpty() ? texts : joined({texts, further})) + " }";
}

QByteArray group(const QByteArray &name, const QList<QByteArray> &settings,
                 const QList<QByteArray> &presets)
{
    return R"({ "name": ")" + name + R"(", "icon": "fmt_x", "extension": "x", )" +
           joined(settings + QList<QByteArray>{R"("presets": [)" + joined(presets) + "]"}) + " }";
}

QByteArray file(const QByteArray &category, const QList<QByteArray> &groups,
                const QByteArray &lists = "{}", const QByteArray &templates = "{}")
{
    return R"({ "category": ")" + category + R"(", "lists": )" + lists + R"(, "templates": )" +
           templates + R"(, "groups": [)" + joined(groups) + "] }";
}

QVector<CatalogueSource> sources(const QList<QByteArray> &files)
{
    QVector<CatalogueSource> result;
    for (const QByteArray &json : files) {
        result.append({QStringLiteral("file%1.json").arg(result.size() + 1), json});
    }
    return result;
}

// One line per mistake, either those that leave something out or those that are served.
QString mistakesIn(const CatalogueResult &result, bool areServed = false)
{
    QStringList lines;
    for (const CatalogueMistake &mistake : result.mistakes) {
        if (mistake.isServed == areServed) {
            lines.append(mistake.text());
        }
    }
    return lines.join(QLatin1Char('\n'));
}

QVariantMap presetOf(const CatalogueResult &result, const char *category, const char *name,
                     int index = 0)
{
    const QVariantList presets =
        result.catalogue.presets.value({QString::fromLatin1(category), QString::fromLatin1(name)});
    return presets.value(index).toMap();
}

QVariant valueAt(const QVariantMap &preset, const char *block, const char *key)
{
    return preset.value(QLatin1String(block)).toMap().value(QLatin1String(key));
}

// A valid file with one group, in which a string is replaced by another.
QByteArray broken(const QByteArray &valid, const QByteArray &invalid)
{
    const QByteArray whole =
        file("Video", {group("MP4", {videoBlocks, audioBlocks}, {preset("A_B_001")})},
             R"({ "rates": [0, 30] })", R"({ "size": { "extension": "y" } })");
    QByteArray result = whole;
    result.replace(valid, invalid);
    return result == whole ? QByteArray("nothing was replaced") : result;
}

} // namespace

class TestCatalogueReader : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void presetsSetOnlyWhatDiffersFromTheirGroup();
    void aPresetCanSetEverythingItself();
    void unknownKeysArePassedThrough();
    void theGroupMapIdentifiesTheGroup();
    void aGroupWithoutIconHasAnEmptyOne();
    void audioOnlyPresetsHaveNoVideoKeys();
    void presetsWithoutAudioHaveEmptyAudioMaps();
    void namedListsStandForTheirValues();
    void namesAreKnownInLaterFiles();
    void theLastDefinitionOfANameWins();
    void templatesOverrideTheGroupAndYieldToThePreset();
    void aGroupCanHaveATemplateToo();
    void unknownKeysOfATemplateArePassedThrough();
    void equalListsAreShared();
    void listsOfTextsAreNotSharedWithListsOfNumbers();
    void numbersStayNumbersAndTextsTexts();
    void categoriesAreInOrderOfAppearance();
    void twoCategoriesCanHaveAGroupOfTheSameName();
    void unreadableSourcesAreMistakesInTheirPlace();
    void noSourcesMakeAnEmptyCatalogue();
    void mistakesAreReportedWithTheirPlace_data();
    void mistakesAreReportedWithTheirPlace();
    void mistakesNameTheirSource();
    void mistakesAreLeftOutAndTheRestIsServed_data();
    void mistakesAreLeftOutAndTheRestIsServed();
    void unknownKeysAreReportedButServed();
    void everyKeyOfTheSchemaIsKnown();
    void thePlacesOfValuesAreKnown_data();
    void thePlacesOfValuesAreKnown();
};

void TestCatalogueReader::presetsSetOnlyWhatDiffersFromTheirGroup()
{
    const CatalogueResult result = readCatalogue(sources({file(
        "Video",
        {group("MP4", {videoBlocks, audioBlocks},
               {preset("A_B_001", R"("videoParam": { "encoder": "0" })"),
                preset("A_B_002",
                       R"("extension": "m4v", "videoOptions": { "levelList": [3, 2, 1] })")})})}));
    QCOMPARE(mistakesIn(result), QString());

    const QVariantMap first = presetOf(result, "Video", "MP4", 0);
    QCOMPARE(first.value(QStringLiteral("id")), QVariant(QStringLiteral("A_B_001")));
    QCOMPARE(first.value(QStringLiteral("title")), QVariant(QStringLiteral("T")));
    QCOMPARE(first.value(QStringLiteral("extension")), QVariant(QStringLiteral("x")));
    QCOMPARE(valueAt(first, "videoParam", "encoder"), QVariant(QStringLiteral("0")));
    QCOMPARE(valueAt(first, "videoParam", "bitrateKbps"), QVariant(8000));
    QCOMPARE(valueAt(first, "videoOptions", "levelList"),
             QVariant(QVariantList{12000, 8000, 4000}));
    QCOMPARE(valueAt(first, "audioParam", "sampleRate"), QVariant(48000));

    const QVariantMap second = presetOf(result, "Video", "MP4", 1);
    QCOMPARE(second.value(QStringLiteral("extension")), QVariant(QStringLiteral("m4v")));
    QCOMPARE(valueAt(second, "videoParam", "encoder"), QVariant(QStringLiteral("h264")));
    QCOMPARE(valueAt(second, "videoOptions", "levelList"), QVariant(QVariantList{3, 2, 1}));
    QCOMPARE(valueAt(second, "videoOptions", "resolutionList"),
             QVariant(QVariantList{QStringLiteral("0"), QStringLiteral("1920x1080")}));

    QVERIFY(!first.contains(QStringLiteral("name")));
    QVERIFY(!first.contains(QStringLiteral("icon")));
    QVERIFY(!first.contains(QStringLiteral("presets")));
}

void TestCatalogueReader::aPresetCanSetEverythingItself()
{
    const CatalogueResult result = readCatalogue(sources(
        {R"({ "category": "C", "groups": [{ "name": "G", "presets": [{ "id": "1", "title": "T", "extension": "e", )" +
         joined({videoBlocks, audioBlocks}) + "}] }] }"}));
    QCOMPARE(mistakesIn(result), QString());
    QCOMPARE(valueAt(presetOf(result, "C", "G"), "audioParam", "channel"), QVariant(2));
}

void TestCatalogueReader::unknownKeysArePassedThrough()
{
    const CatalogueResult result = readCatalogue(sources(
        {R"({ "category": "C", "note": 1, "groups": [{ "name": "G", "extension": "e", "twoPass": true, "mux": { "a": 1, "b": 2 }, )" +
         audioBlocks + R"(, "presets": [)" +
         preset("1", R"("mux": { "b": 3 }, "audioParam": { "vbr": 4 })") + "] }] }"}));
    QCOMPARE(mistakesIn(result), QString());
    const QVariantMap map = presetOf(result, "C", "G");
    QCOMPARE(map.value(QStringLiteral("twoPass")), QVariant(true));
    QCOMPARE(valueAt(map, "mux", "a"), QVariant(1));
    QCOMPARE(valueAt(map, "mux", "b"), QVariant(3));
    QCOMPARE(valueAt(map, "audioParam", "vbr"), QVariant(4));
    QVERIFY(!map.contains(QStringLiteral("note")));
}

void TestCatalogueReader::theGroupMapIdentifiesTheGroup()
{
    const CatalogueResult result =
        readCatalogue(sources({file("Audio", {group("MP3", {audioBlocks}, {preset("1")})})}));
    const QVariantMap expected{{QStringLiteral("category"), QStringLiteral("Audio")},
                               {QStringLiteral("name"), QStringLiteral("MP3")},
                               {QStringLiteral("icon"), QStringLiteral("fmt_x")}};
    QCOMPARE(result.catalogue.groups.value(QStringLiteral("Audio")), QVariantList{expected});
}

void TestCatalogueReader::aGroupWithoutIconHasAnEmptyOne()
{
    const CatalogueResult result = readCatalogue(
        sources({R"({ "category": "C", "groups": [{ "name": "G", "presets": [] }] })"}));
    QCOMPARE(mistakesIn(result), QString());
    const QVariantMap map = result.catalogue.groups.value(QStringLiteral("C")).value(0).toMap();
    QCOMPARE(map.value(QStringLiteral("icon")), QVariant(QString()));
}

void TestCatalogueReader::audioOnlyPresetsHaveNoVideoKeys()
{
    const QVariantMap map = presetOf(
        readCatalogue(sources({file("Audio", {group("MP3", {audioBlocks}, {preset("1")})})})),
        "Audio", "MP3");
    QCOMPARE(map.keys(), QStringList({QStringLiteral("audioOptions"), QStringLiteral("audioParam"),
                                      QStringLiteral("extension"), QStringLiteral("id"),
                                      QStringLiteral("title")}));
}

void TestCatalogueReader::presetsWithoutAudioHaveEmptyAudioMaps()
{
    const CatalogueResult result =
        readCatalogue(sources({file("Video", {group("GIF", {videoBlocks}, {preset("1")})})}));
    QCOMPARE(mistakesIn(result), QString());
    const QVariantMap map = presetOf(result, "Video", "GIF");
    QCOMPARE(map.value(QStringLiteral("audioParam")), QVariant(QVariantMap()));
    QCOMPARE(map.value(QStringLiteral("audioOptions")), QVariant(QVariantMap()));
    QVERIFY(map.contains(QStringLiteral("videoParam")));
}

void TestCatalogueReader::namedListsStandForTheirValues()
{
    const CatalogueResult result = readCatalogue(
        sources({file("Video",
                      {group("MP4", {videoBlocks, audioBlocks},
                             {preset("1", R"("videoOptions": { "frameRateList": "rates" })")})},
                      R"({ "rates": [0, 24, 25], "neverUsed": [], "texts": ["a"] })")}));
    QCOMPARE(mistakesIn(result), QString());
    QCOMPARE(valueAt(presetOf(result, "Video", "MP4"), "videoOptions", "frameRateList"),
             QVariant(QVariantList{0, 24, 25}));
}

void TestCatalogueReader::namesAreKnownInLaterFiles()
{
    const QByteArray names = R"("template": "mono", "audioOptions": { "channelList": "one" })";
    const CatalogueResult result = readCatalogue(sources(
        {file("A", {}, R"({ "one": [1] })", R"({ "mono": { "audioParam": { "channel": 1 } } })"),
         file("B", {group("G", {audioBlocks}, {preset("1", names)})})}));
    QCOMPARE(mistakesIn(result), QString());
    const QVariantMap map = presetOf(result, "B", "G");
    QCOMPARE(valueAt(map, "audioOptions", "channelList"), QVariant(QVariantList{1}));
    QCOMPARE(valueAt(map, "audioParam", "channel"), QVariant(1));
}

void TestCatalogueReader::theLastDefinitionOfANameWins()
{
    const QByteArray names = R"("template": "t", "audioOptions": { "channelList": "channels" })";
    const CatalogueResult result = readCatalogue(sources(
        {file("A", {group("G", {audioBlocks}, {preset("1", names)})}, R"({ "channels": [0, 1] })",
              R"({ "t": { "title": "old", "extension": "old" } })"),
         file("B", {group("G", {audioBlocks}, {preset("2", names)})}, R"({ "channels": [0, 6] })",
              R"({ "t": { "extension": "new" } })")}));
    QCOMPARE(mistakesIn(result), QString());
    QCOMPARE(valueAt(presetOf(result, "A", "G"), "audioOptions", "channelList"),
             QVariant(QVariantList{0, 1}));
    QCOMPARE(valueAt(presetOf(result, "B", "G"), "audioOptions", "channelList"),
             QVariant(QVariantList{0, 6}));
    QCOMPARE(presetOf(result, "A", "G").value(QStringLiteral("extension")),
             QVariant(QStringLiteral("old")));
    QCOMPARE(presetOf(result, "B", "G").value(QStringLiteral("extension")),
             QVariant(QStringLiteral("new")));
}

void TestCatalogueReader::templatesOverrideTheGroupAndYieldToThePreset()
{
    const CatalogueResult result = readCatalogue(sources({file(
        "Audio",
        {group("MP3", {audioBlocks},
               {R"({ "id": "1", "template": "speech", "audioParam": { "bitrateKbps": 64 } })"})},
        R"({ "low": [0, 32] })", R"({ "speech": {
            "title": "Voice",
            "audioParam": { "channel": 1, "bitrateKbps": 32 },
            "audioOptions": { "bitrateKbpsList": "low" } } })")}));
    QCOMPARE(mistakesIn(result), QString());
    const QVariantMap map = presetOf(result, "Audio", "MP3");
    QCOMPARE(map.value(QStringLiteral("title")), QVariant(QStringLiteral("Voice")));
    QCOMPARE(map.value(QStringLiteral("extension")), QVariant(QStringLiteral("x")));
    QCOMPARE(valueAt(map, "audioParam", "encoder"), QVariant(QStringLiteral("aac")));
    QCOMPARE(valueAt(map, "audioParam", "channel"), QVariant(1));
    QCOMPARE(valueAt(map, "audioParam", "bitrateKbps"), QVariant(64));
    QCOMPARE(valueAt(map, "audioOptions", "bitrateKbpsList"), QVariant(QVariantList{0, 32}));
    QCOMPARE(valueAt(map, "audioOptions", "channelList"), QVariant(QVariantList{0, 1, 2}));
    QVERIFY(!map.contains(QStringLiteral("template")));
}

void TestCatalogueReader::aGroupCanHaveATemplateToo()
{
    const CatalogueResult result = readCatalogue(
        sources({file("Audio",
                      {group("MP3", {R"("template": "usual", "audioParam": { "channel": 1 })"},
                             {preset("1"), preset("2", R"("template": "low")")})},
                      "{}", R"({ "usual": { "extension": "not taken", )" + audioBlocks + R"( },
             "low": { "audioParam": { "channel": 6, "bitrateKbps": 32 } } })")}));
    QCOMPARE(mistakesIn(result), QString());
    const QVariantMap first = presetOf(result, "Audio", "MP3", 0);
    QCOMPARE(first.value(QStringLiteral("extension")), QVariant(QStringLiteral("x")));
    QCOMPARE(valueAt(first, "audioParam", "channel"), QVariant(1));
    QCOMPARE(valueAt(first, "audioParam", "bitrateKbps"), QVariant(192));
    const QVariantMap second = presetOf(result, "Audio", "MP3", 1);
    QCOMPARE(valueAt(second, "audioParam", "channel"), QVariant(6));
    QCOMPARE(valueAt(second, "audioParam", "bitrateKbps"), QVariant(32));
}

void TestCatalogueReader::unknownKeysOfATemplateArePassedThrough()
{
    const CatalogueResult result = readCatalogue(
        sources({file("Audio", {group("MP3", {audioBlocks}, {preset("1", R"("template": "t")")})},
                      "{}", R"({ "t": { "twoPass": true } })")}));
    QCOMPARE(presetOf(result, "Audio", "MP3").value(QStringLiteral("twoPass")), QVariant(true));
}

void TestCatalogueReader::equalListsAreShared()
{
    const CatalogueResult result = readCatalogue(sources(
        {file("Audio", {group("MP3", {audioBlocks},
                              {preset("1"), preset("2", R"("audioParam": { "channel": 1 })"),
                               preset("3", R"("audioOptions": { "channelList": [ 0,1,2 ] })")})}),
         file("Video",
              {group("MP4", {videoBlocks, audioBlocks},
                     {preset("4", R"("audioOptions": { "channelList": "c" })")})},
              R"({ "c": [0, 1, 2] })")}));
    QCOMPARE(mistakesIn(result), QString());
    const QVariantList channels =
        valueAt(presetOf(result, "Audio", "MP3"), "audioOptions", "channelList").toList();
    QCOMPARE(channels, (QVariantList{0, 1, 2}));
    for (const QVariantMap &map :
         {presetOf(result, "Audio", "MP3", 1), presetOf(result, "Audio", "MP3", 2),
          presetOf(result, "Video", "MP4")}) {
        QVERIFY(channels.isSharedWith(valueAt(map, "audioOptions", "channelList").toList()));
    }
}

void TestCatalogueReader::listsOfTextsAreNotSharedWithListsOfNumbers()
{
    const CatalogueResult result = readCatalogue(sources({file(
        "Audio",
        {group(
            "MP3", {audioBlocks},
            {preset("1", R"("audioOptions": { "encoderList": ["0"], "channelList": [0] })")})})}));
    const QVariantMap map = presetOf(result, "Audio", "MP3");
    const QVariantList encoders = valueAt(map, "audioOptions", "encoderList").toList();
    const QVariantList channels = valueAt(map, "audioOptions", "channelList").toList();
    QCOMPARE(encoders.value(0).type(), QVariant::String);
    QCOMPARE(channels.value(0).type(), QVariant::LongLong);
}

void TestCatalogueReader::numbersStayNumbersAndTextsTexts()
{
    const QVariantMap map =
        presetOf(readCatalogue(sources(
                     {file("Video", {group("MP4", {videoBlocks, audioBlocks}, {preset("1")})})})),
                 "Video", "MP4");
    QCOMPARE(valueAt(map, "videoParam", "resolution").type(), QVariant::String);
    QCOMPARE(valueAt(map, "videoParam", "frameRate").type(), QVariant::LongLong);
    const QVariantList frameRates = valueAt(map, "videoOptions", "frameRateList").toList();
    QCOMPARE(frameRates.value(1).type(), QVariant::Double);
    QCOMPARE(frameRates.value(1).toString(), QStringLiteral("29.97"));
    QCOMPARE(frameRates.value(2).toString(), QStringLiteral("30"));
}

void TestCatalogueReader::categoriesAreInOrderOfAppearance()
{
    const CatalogueResult result = readCatalogue(
        sources({file("Video", {group("MP4", {audioBlocks}, {preset("1")})}),
                 file("Audio", {group("MP3", {audioBlocks}, {preset("2")})}),
                 file("Video", {group("MKV", {audioBlocks}, {preset("3")})}), file("Device", {})}));
    QCOMPARE(mistakesIn(result), QString());
    QCOMPARE(
        result.catalogue.categories,
        QVariantList({QStringLiteral("Video"), QStringLiteral("Audio"), QStringLiteral("Device")}));
    QStringList names;
    for (const QVariant &map : result.catalogue.groups.value(QStringLiteral("Video"))) {
        names.append(map.toMap().value(QStringLiteral("name")).toString());
    }
    QCOMPARE(names, QStringList({QStringLiteral("MP4"), QStringLiteral("MKV")}));
    QCOMPARE(result.catalogue.groups.value(QStringLiteral("Device")), QVariantList());
}

void TestCatalogueReader::twoCategoriesCanHaveAGroupOfTheSameName()
{
    const CatalogueResult result =
        readCatalogue(sources({file("Video", {group("MP4", {audioBlocks}, {preset("1")})}),
                               file("Device", {group("MP4", {audioBlocks}, {preset("2")})})}));
    QCOMPARE(mistakesIn(result), QString());
    QCOMPARE(presetOf(result, "Video", "MP4").value(QStringLiteral("id")),
             QVariant(QStringLiteral("1")));
    QCOMPARE(presetOf(result, "Device", "MP4").value(QStringLiteral("id")),
             QVariant(QStringLiteral("2")));
}

void TestCatalogueReader::unreadableSourcesAreMistakesInTheirPlace()
{
    const QVector<CatalogueSource> three{{QStringLiteral("1"), ""},
                                         {QStringLiteral("2"), {}, QStringLiteral("why")},
                                         {QStringLiteral("3"), "[]"}};
    QCOMPARE(mistakesIn(readCatalogue(three)),
             QStringLiteral("1:1:1: the file is empty\n"
                            "2: why\n"
                            "3: the file must hold an object but holds a list"));
}

void TestCatalogueReader::noSourcesMakeAnEmptyCatalogue()
{
    const CatalogueResult result = readCatalogue({});
    QCOMPARE(mistakesIn(result), QString());
    QVERIFY(result.catalogue.categories.isEmpty());
}

void TestCatalogueReader::mistakesAreReportedWithTheirPlace_data()
{
    QTest::addColumn<QByteArray>("json");
    QTest::addColumn<QString>("error");

    const auto row = [](const char *name, const QByteArray &json, const char *error) {
        QTest::newRow(name) << json << QString::fromUtf8(error);
    };

    row("empty file", "", "1:1: the file is empty");
    row("blank file", " \n\n ", "1:1: the file is empty");
    row("not JSON", "MP4=h264", "1:1: illegal value");
    row("missing colon on line 2", "{\n  \"category\" 1 }", "2:14: missing name separator");
    row("columns count characters", "{\n  \"ä€𝄞\" 1 }", "2:9: missing name separator");
    row("windows line ends", "{\r\n\"a\" 1 }", "2:5: missing name separator");
    row("missing comma", "{\n  \"a\": 1\n  \"b\": 2\n}",
        "3:3: expected a comma, a closing brace or a key in double quotes");
    row("key without quotes", "{\n  category: 1\n}",
        "2:3: expected a comma, a closing brace or a key in double quotes");
    row("unclosed list", "{\n\"groups\": [1, 2\n}", "3:1: expected a comma or a closing bracket");
    row("cut off", R"({ "category": "Vid)", "1:19: unterminated string");
    row("something after the end", "{}\n\nmore", "3:1: garbage at the end of the document");
    row("not UTF-8", "{\n\"a\": \"\xff\" }", "2:6: invalid UTF8 string");

    row("list instead of object", "[]", ": the file must hold an object but holds a list");
    row("no category", R"({ "groups": [] })", ": category: must be a string but is missing");
    row("no groups", R"({ "category": "Video" })", ": groups: must be a list but is missing");
    row("category is not a string", broken(R"("category": "Video")", R"("category": 7)"),
        ": category: must be a string but is a number");
    row("category is empty", broken(R"("category": "Video")", R"("category": "")"),
        ": category: must not be empty");
    row("groups is not a list", R"({ "category": "Video", "groups": {} })",
        ": groups: must be a list but is an object");
    row("lists is not an object", broken(R"({ "rates": [0, 30] })", "[]"),
        ": lists: must be an object but is a list");
    row("a named list is not a list", broken("[0, 30]", "30"),
        ": lists.rates: must be a list but is a number");
    row("a string among the numbers of a named list", broken("[0, 30]", R"([0, "30"])"),
        ": lists.rates[1]: must be a number but is a string");
    row("a number among the strings of a named list", broken("[0, 30]", R"(["0", 30])"),
        ": lists.rates[1]: must be a string but is a number");
    row("a named list of lists", broken("[0, 30]", "[[0, 30]]"),
        ": lists.rates[0]: must be a number but is a list");
    row("templates is not an object", broken(R"({ "size": { "extension": "y" } })", "true"),
        ": templates: must be an object but is true or false");
    row("a template is not an object", broken(R"({ "extension": "y" })", R"("y")"),
        ": templates.size: must be an object but is a string");
    row("a template's extension is not a string",
        broken(R"("extension": "y")", R"("extension": 1)"),
        ": templates.size.extension: must be a string but is a number");
    row("a template's option list is invalid",
        broken(R"("extension": "y")", R"("audioOptions": { "channelList": [1, "2"] })"),
        ": templates.size.audioOptions.channelList[1]: must be a number but is a string");
    row("template is not a string", broken(R"("title": "T")", R"("title": "T", "template": 1)"),
        ": groups[0].presets[0].template: must be a string but is a number");
    row("unknown template", broken(R"("title": "T")", R"("title": "T", "template": "Size")"),
        ": groups[0].presets[0].template: there is no template \"Size\" in \"templates\"");
    row("unknown template of a group", broken(R"("name")", R"("template": "Size", "name")"),
        ": groups[0].template: there is no template \"Size\" in \"templates\"");

    row("group is not an object", R"({ "category": "Video", "groups": [true] })",
        ": groups[0]: must be an object but is true or false");
    row("no name", broken(R"("name": "MP4",)", ""),
        ": groups[0].name: must be a string but is missing");
    row("name is null", broken(R"("name": "MP4")", R"("name": null)"),
        ": groups[0].name: must be a string but is null");
    row("name is empty", broken(R"("name": "MP4")", R"("name": "")"),
        ": groups[0].name: must not be empty");
    row("icon is not a string", broken(R"("fmt_x")", "1"),
        ": groups[0].icon: must be a string but is a number");
    row("no presets", broken(R"("presets":)", R"("Presets":)"),
        ": groups[0].presets: must be a list but is missing");
    row("presets is not a list",
        R"({ "category": "V", "groups": [{ "name": "G", "presets": "p" }] })",
        ": groups[0].presets: must be a list but is a string");
    row("a name twice",
        file("Video", {group("MP4", {audioBlocks}, {preset("1")}),
                       group("MP4", {audioBlocks}, {preset("2")})}),
        ": groups[1].name: the category \"Video\" already has a group \"MP4\"; move the presets "
        "to that group or rename this one");

    row("preset is not an object",
        R"({ "category": "V", "groups": [{ "name": "G", "presets": [1] }] })",
        ": groups[0].presets[0]: must be an object but is a number");
    row("no id", broken(R"("id": "A_B_001",)", ""),
        ": groups[0].presets[0].id: is missing from the preset and its group");
    row("no title", broken(R"(, "title": "T")", ""),
        ": groups[0].presets[0].title: is missing from the preset and its group");
    row("no extension", broken(R"("extension": "x",)", ""),
        ": groups[0].presets[0].extension: is missing from the preset and its group");
    row("id is not a string", broken(R"("A_B_001")", "1"),
        ": groups[0].presets[0].id: must be a string but is a number");
    row("id is empty", broken("A_B_001", ""), ": groups[0].presets[0].id: must not be empty");
    row("title is empty", broken(R"("T")", R"("")"),
        ": groups[0].presets[0].title: must not be empty");
    row("extension is not a string", broken(R"("extension": "x")", R"("extension": ["x"])"),
        ": groups[0].extension: must be a string but is a list");
    row("an id twice",
        file("Video", {group("MP4", {audioBlocks}, {preset("1"), preset("2")}),
                       group("MKV", {audioBlocks}, {preset("3"), preset("2")})}),
        ": groups[1].presets[1].id: \"2\" is already the id of another preset");
    row("neither video nor audio", file("Video", {group("MP4", {R"("a": 1)"}, {preset("1")})}),
        ": groups[0].presets[0]: has neither video nor audio settings");

    row("no videoParam", broken(R"("videoParam")", R"("VideoParam")"),
        ": groups[0].presets[0].videoParam: is missing from the preset and its group");
    row("no videoOptions", broken(R"("videoOptions")", R"("VideoOptions")"),
        ": groups[0].presets[0].videoOptions: is missing from the preset and its "
        "group");
    row("no audioParam", broken(R"("audioParam")", R"("AudioParam")"),
        ": groups[0].presets[0].audioParam: is missing from the preset and its group");
    row("no audioOptions", broken(R"("audioOptions")", R"("AudioOptions")"),
        ": groups[0].presets[0].audioOptions: is missing from the preset and its "
        "group");
    row("no resolution", broken(R"("resolution": "0", )", ""),
        ": groups[0].presets[0].videoParam.resolution: is missing from the preset and its group");
    row("no sample rates", broken(R"("sampleRateList": [0, 44100, 48000],)", ""),
        ": groups[0].presets[0].audioOptions.sampleRateList: is missing from the preset and its "
        "group");

    row("block is not an object", broken(R"("audioParam": {)", R"("audioParam": [], "a": {)"),
        ": groups[0].audioParam: must be an object but is a list");
    row("encoder is not a string", broken(R"("encoder": "h264")", R"("encoder": 264)"),
        ": groups[0].videoParam.encoder: must be a string but is a number");
    row("resolution is not a string", broken(R"("resolution": "0")", R"("resolution": 0)"),
        ": groups[0].videoParam.resolution: must be a string but is a number");
    row("frame rate is not a number", broken(R"("frameRate": 0)", R"("frameRate": "0")"),
        ": groups[0].videoParam.frameRate: must be a number but is a string");
    row("audio bitrate is not a number", broken(R"("bitrateKbps": 192)", R"("bitrateKbps": "192")"),
        ": groups[0].audioParam.bitrateKbps: must be a number but is a string");
    row("a mistake in the preset",
        file("Video", {group("MP3", {audioBlocks},
                             {preset("1"), preset("2", R"("audioParam": { "channel": "2" })")})}),
        ": groups[0].presets[1].audioParam.channel: must be a number but is a string");

    row("option list is not a list", broken("[0, 1, 2]", "2"),
        ": groups[0].audioOptions.channelList: must be a list but is a number");
    row("unknown named list", broken("[0, 1, 2]", R"("channels")"),
        ": groups[0].audioOptions.channelList: there is no list \"channels\" in \"lists\"");
    row("a string among numbers", broken("[0, 1, 2]", R"([0, "1", 2])"),
        ": groups[0].audioOptions.channelList[1]: must be a number but is a string");
    row("a number among strings", broken(R"(["0", "h264"])", R"(["0", "h264", 0])"),
        ": groups[0].videoOptions.encoderList[2]: must be a string but is a number");
    row("a named list of numbers for strings", broken(R"(["0", "h264"])", R"("rates")"),
        ": groups[0].videoOptions.encoderList[0]: must be a string but is a number\n"
        "file1.json: groups[0].videoOptions.encoderList[1]: must be a string but is a number");
    row("two levels", broken("[12000, 8000, 4000]", "[8000, 4000]"),
        ": groups[0].videoOptions.levelList: must hold three bitrates: high, middle and low");
    row("four levels", broken("[12000, 8000, 4000]", "[8, 4, 2, 1]"),
        ": groups[0].videoOptions.levelList: must hold three bitrates: high, middle and low");
}

void TestCatalogueReader::mistakesAreReportedWithTheirPlace()
{
    QFETCH(QByteArray, json);
    QFETCH(QString, error);
    const QString separator = error.startsWith(QLatin1Char(':')) ? QString() : QStringLiteral(":");
    QCOMPARE(mistakesIn(readCatalogue(sources({json}))),
             QStringLiteral("file1.json") + separator + error);
}

void TestCatalogueReader::mistakesNameTheirSource()
{
    const QByteArray right = file("Video", {group("MP4", {audioBlocks}, {preset("1")})});
    QCOMPARE(mistakesIn(readCatalogue(sources(
                 {right, "{", file("Audio", {group("MP3", {audioBlocks}, {preset("1")})})}))),
             QStringLiteral(
                 "file2.json:1:1: expected a comma, a closing brace or a key in double quotes\n"
                 "file3.json: groups[0].presets[0].id: \"1\" is already the id of another preset"));
}

void TestCatalogueReader::mistakesAreLeftOutAndTheRestIsServed_data()
{
    QTest::addColumn<QByteArray>("json");
    QTest::addColumn<int>("mistakes");
    QTest::addColumn<QString>("served");

    const auto row = [](const char *name, const QByteArray &json, int mistakes,
                        const char *served) {
        QTest::newRow(name) << json << mistakes << QString::fromLatin1(served);
    };
    const QByteArray wrong = R"("audioParam": { "channel": "2" })";
    const QByteArray right = group("MP3", {audioBlocks}, {preset("1"), preset("2")});

    row("no mistake", file("Audio", {right}), 0, "MP3: 1 2");
    row("a preset", file("Audio", {group("MP3", {audioBlocks}, {preset("1", wrong), preset("2")})}),
        1, "MP3: 2");
    row("several mistakes of one preset",
        file("Audio", {group("MP3", {audioBlocks},
                             {preset("1", wrong + R"(, "extension": 1)"), preset("2")})}),
        2, "MP3: 2");
    row("the second preset of an id",
        file("Audio", {group("MP3", {audioBlocks}, {preset("1"), preset("1"), preset("2")})}), 1,
        "MP3: 1 2");
    row("a group",
        file("Audio", {group("AAC", {audioBlocks, R"("title": 1)"}, {preset("3")}), right}), 1,
        "MP3: 1 2");
    row("a group, and its presets have mistakes of their own",
        file("Audio", {group("AAC", {audioBlocks, R"("title": 1)"}, {preset("3", wrong)}), right}),
        2, "MP3: 1 2");
    row("a group that is not an object", file("Audio", {"7", right}), 1, "MP3: 1 2");
    row("the second group of a name",
        file("Audio", {right, group("MP3", {audioBlocks}, {preset("3")})}), 1, "MP3: 1 2");
    row("a group without a valid preset",
        file("Audio", {group("AAC", {audioBlocks}, {preset("3", wrong)}), right}), 1, "MP3: 1 2");
    row("a template and what uses it",
        file("Audio",
             {group("AAC", {audioBlocks, R"("template": "t")"}, {preset("3")}),
              group("MP3", {audioBlocks}, {preset("1", R"("template": "t")"), preset("2")})},
             "{}", R"({ "t": { "title": 1 } })"),
        1, "MP3: 2");
    row("a list and what uses it",
        file("Audio",
             {group("MP3", {audioBlocks},
                    {preset("1", R"("audioOptions": { "channelList": "l" })"), preset("2")})},
             R"({ "l": [1, "2"] })"),
        1, "MP3: 2");
    row("a category", file("", {right}), 1, "");
    row("an icon that is not a string",
        R"({ "category": "Audio", "groups": [{ "name": "AAC", "icon": 1, "extension": "x",)" +
            audioBlocks + R"(, "presets": [)" + preset("3") + "] }, " + right + "] }",
        1, "MP3: 1 2");
    row("the id of a preset that is left out is free",
        file("Audio", {group("MP3", {audioBlocks}, {preset("1", wrong), preset("1")})}), 1,
        "MP3: 1");
    row("a list of levels that is not a list",
        file("Video", {group("MP4", {videoBlocks, audioBlocks},
                             {preset("1", R"("videoOptions": { "levelList": 5 })"), preset("2")})}),
        1, "MP4: 2");
}

void TestCatalogueReader::mistakesAreLeftOutAndTheRestIsServed()
{
    QFETCH(QByteArray, json);
    QFETCH(int, mistakes);
    QFETCH(QString, served);

    const CatalogueResult result = readCatalogue(sources({json}));
    QStringList groups;
    for (const QVariant &category : result.catalogue.categories) {
        for (const QVariant &map : result.catalogue.groups.value(category.toString())) {
            const QString name = map.toMap().value(QStringLiteral("name")).toString();
            QString line = name + QLatin1Char(':');
            for (const QVariant &preset :
                 result.catalogue.presets.value({category.toString(), name})) {
                line += QLatin1Char(' ') + preset.toMap().value(QStringLiteral("id")).toString();
            }
            groups.append(line);
        }
    }
    QCOMPARE(result.mistakes.size(), mistakes);
    QCOMPARE(groups.join(QStringLiteral("; ")), served);
}

void TestCatalogueReader::unknownKeysAreReportedButServed()
{
    const CatalogueResult result = readCatalogue(sources(
        {R"({ "category": "Audio", "note": 1, "groups": [{ "name": "MP3", "extension": "x", "mux": 2,)" +
         audioBlocks + R"(, "presets": [)" + preset("1", R"("audioParam": { "vbr": 4 })") +
         "] }] }"}));
    QCOMPARE(mistakesIn(result), QString());
    QCOMPARE(mistakesIn(result, true),
             QStringLiteral("file1.json: note: is not a known key\n"
                            "file1.json: groups[0].mux: is not a known key\n"
                            "file1.json: groups[0].presets[0].audioParam.vbr: is not a known key"));
    QCOMPARE(valueAt(presetOf(result, "Audio", "MP3"), "audioParam", "vbr"), QVariant(4));
}

void TestCatalogueReader::everyKeyOfTheSchemaIsKnown()
{
    QFile schemaFile(QStringLiteral(VEX_CATALOGUE_FOLDER "/catalogue.schema.json"));
    QVERIFY(schemaFile.open(QIODevice::ReadOnly));
    const QJsonObject schema = QJsonDocument::fromJson(schemaFile.readAll()).object();
    const QJsonObject definitions = schema[QStringLiteral("definitions")].toObject();
    // For each object in the schema, an object with the same keys and null values.
    const auto keysOf = [](const QJsonValue &object) {
        QJsonObject nulls;
        for (const QString &key : object[QStringLiteral("properties")].toObject().keys()) {
            nulls.insert(key, QJsonValue());
        }
        return nulls;
    };
    const auto settingsOf = [&](const QString &name) {
        QJsonObject settings = keysOf(definitions[name]);
        for (const QString &block :
             {QStringLiteral("videoParam"), QStringLiteral("videoOptions"),
              QStringLiteral("audioParam"), QStringLiteral("audioOptions")}) {
            settings.insert(block, keysOf(definitions[block]));
        }
        return settings;
    };
    QJsonObject group = settingsOf(QStringLiteral("group"));
    group.insert(QStringLiteral("presets"), QJsonArray{settingsOf(QStringLiteral("preset"))});
    QJsonObject all = keysOf(schema);
    all.insert(QStringLiteral("groups"), QJsonArray{group});
    all.insert(QStringLiteral("templates"),
               QJsonObject{{QStringLiteral("t"), settingsOf(QStringLiteral("template"))}});

    const CatalogueResult result = readCatalogue(sources({QJsonDocument(all).toJson()}));
    QVERIFY(!mistakesIn(result).isEmpty());
    QCOMPARE(mistakesIn(result, true), QString());
}

void TestCatalogueReader::thePlacesOfValuesAreKnown_data()
{
    QTest::addColumn<QString>("key");
    QTest::addColumn<QString>("place");
    const auto row = [](const char *name, const char *key, const char *place) {
        QTest::newRow(name) << QString::fromLatin1(key) << QString::fromLatin1(place);
    };
    row("the preset's own", "audioParam.channel",
        "file2.json groups[0].presets[0].audioParam.channel");
    row("of the preset's template", "audioParam.sampleRate",
        "file1.json templates.t.audioParam.sampleRate");
    row("of the group", "audioParam.encoder", "file2.json groups[0].audioParam.encoder");
    row("a text", "id", "file2.json groups[0].presets[0].id");
    row("a list with a name", "audioOptions.channelList", "file1.json lists.l");
    row("nowhere", "videoParam.encoder", " ");
}

void TestCatalogueReader::thePlacesOfValuesAreKnown()
{
    QFETCH(QString, key);
    QFETCH(QString, place);

    const CatalogueResult result = readCatalogue(sources(
        {file("Audio", {}, R"({ "l": [1, 2] })",
              R"({ "t": { "audioParam": { "channel": 1, "sampleRate": 44100 } } })"),
         file("Audio", {group("MP3", {audioBlocks},
                              {preset("1", R"("template": "t", "audioParam": { "channel": 2 },
                                              "audioOptions": { "channelList": "l" })")})})}));
    QCOMPARE(mistakesIn(result), QString());
    const CataloguePlace found = result.presetPlaces.value(QStringLiteral("1")).value(key);
    QCOMPARE(found.source + QLatin1Char(' ') + found.path, place);
    const CataloguePlace group =
        result.groupPlaces.value({QStringLiteral("Audio"), QStringLiteral("MP3")});
    QCOMPARE(group.source + QLatin1Char(' ') + group.path, QStringLiteral("file2.json groups[0]"));
}

QTEST_GUILESS_MAIN(TestCatalogueReader)

#include "tst_cataloguereader.moc"
