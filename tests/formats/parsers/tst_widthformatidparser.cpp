#include "formats/parsers/widthformatidparser.h"
#include "tests/formats/parsers/parsertest.h"

namespace {

const QString mp4 = QStringLiteral("MP4");

QVariantMap group(const QString &name)
{
    return {{QStringLiteral("name"), name},
            {QStringLiteral("icon"), name + QStringLiteral(".png")}};
}

QVariantMap cataloguePreset(const QString &id)
{
    return {
        {QStringLiteral("id"), id},
        {QStringLiteral("extension"), QStringLiteral("mp4")},
        {QStringLiteral("title"), QStringLiteral("Same as source")},
        {QStringLiteral("icon"), QStringLiteral("not used.png")},
        {QStringLiteral("profile"), QVariantMap{{QStringLiteral("any"), QStringLiteral("thing")}}},
        {QStringLiteral("videoParam"),
         QVariantMap{{QStringLiteral("encoder"), QStringLiteral("hevc")},
                     {QStringLiteral("bitrateKbps"), 4500},
                     {QStringLiteral("frameRate"), 29.97},
                     {QStringLiteral("resolution"), QStringLiteral("1920x1080")}}},
        {QStringLiteral("videoOptions"),
         QVariantMap{{QStringLiteral("encoderList"),
                      QVariantList{QStringLiteral("h264"), QStringLiteral("hevc")}},
                     {QStringLiteral("bitrateKbpsList"), QVariantList{1000, 2000}},
                     {QStringLiteral("frameRateList"), QVariantList{24, 29.97}},
                     {QStringLiteral("resolutionList"), QVariantList{QStringLiteral("640x480")}},
                     {QStringLiteral("levelList"), QVariantList{8000, 5000, 2000}}}},
        {QStringLiteral("audioParam"),
         QVariantMap{{QStringLiteral("channel"), 2},
                     {QStringLiteral("encoder"), QStringLiteral("mp3")},
                     {QStringLiteral("bitrateKbps"), 128},
                     {QStringLiteral("sampleRate"), 44100}}},
        {QStringLiteral("audioOptions"),
         QVariantMap{
             {QStringLiteral("channelList"), QVariantList{1, 2}},
             {QStringLiteral("encoderList"), QVariantList{QStringLiteral("mp3")}},
             {QStringLiteral("bitrateKbpsList"), QVariantList{96, 128}},
             {QStringLiteral("sampleRateList"), QVariantList{22050, QStringLiteral("44100")}}}},
    };
}

QVariantMap without(QVariantMap map, std::initializer_list<const char *> keys)
{
    for (const char *key : keys) {
        map.remove(QString::fromLatin1(key));
    }
    return map;
}

QVariantMap with(QVariantMap map, const char *key, const QVariant &value)
{
    map.insert(QString::fromLatin1(key), value);
    return map;
}

// A user-defined preset after it has been written to a file and read back.
FormatDetailModelData readBack(FormatDetailModelData preset)
{
    preset.userDefine = true;
    preset.isLoseless = false;
    preset.param.clear();
    preset.videoBitrate = QStringLiteral("0");
    QVariantList texts;
    for (const QVariant &bitrate : qAsConst(preset.videoBitrates)) {
        texts.append(bitrate.toString());
    }
    preset.videoBitrates = texts;
    return preset;
}

class DeviceParser : public WidthFormatIdParser
{
public:
    bool parseVideo(const QString &path, FormatListModel *model, bool flag) override
    {
        calls.append(QStringLiteral("%1 %2").arg(path).arg(flag));
        models.append(model);
        return result;
    }

    bool result = true;
    QStringList calls;
    QList<FormatListModel *> models;
};

} // namespace

class TestWidthFormatIdParser : public ParserTest
{
    Q_OBJECT

private Q_SLOTS:
    void importingIntoNoModelAsksTheCatalogueNothing();
    void groupsBecomeFormatsInOrder();
    void theTagIsTheCategoryInLowerCase();
    void theWholePresetIsImported();
    void numbersBecomeTextsAndListsStay();
    void excludedGroupsAreLeftOut_data();
    void excludedGroupsAreLeftOut();
    void theFirstGroupOfANameWins();
    void aKnownFormatIsNotImported();
    void importingTwiceAddsNothing();
    void categoriesWithoutGroupsImportNothing();
    void withoutVideoParametersTheVideoDefaultsStay();
    void emptyVideoParametersGiveEmptyTexts();
    void withoutAudioParametersTheAudioTextsAreEmpty();
    void missingLevelsKeepTheirDefaults_data();
    void missingLevelsKeepTheirDefaults();
    void absentKeysAreNullInTheSettings_data();
    void absentKeysAreNullInTheSettings();
    void completeSettingsAreTheCataloguesOwn();
    void repeatedIdsAreAllImported();
    void importedPresetsAreNotUserDefined();
    void aValueThatIsNotAMapCountsAsAnEmptyOne();

    void recentlyUsedPresetsAreRead_data();
    void recentlyUsedPresetsAreRead();

    void userDefinedPresetsRaiseTheHighestId();
    void presetsAreAppendedToThoseThere();
    void aRenamedFormatIsAddedAgain();
    void aSavedModelIsReadBack();
    void aSavedRecentlyUsedListIsReadBack();
    void numbersStayAsTheJsonParserGivesThem();
    void equalOptionListsShareTheirData();
    void loneSurrogatesAndNulAreKept();
    void settingsCanBeDeeplyNested();
    void aLargeFileIsReadWhole();

    void deviceFilesAreReadThroughParseVideo_data();
    void deviceFilesAreReadThroughParseVideo();

private:
    IFormatsParser &parser() override { return m_parser; }
    QObject *newParser(QObject *parent) const override { return new WidthFormatIdParser(parent); }
    QString dataFolder() const override { return QStringLiteral("widthformatid"); }
    QStringList operations() const override
    {
        return ParserTest::operations() << QStringLiteral("parseRecently");
    }
    QByteArray entry() const override { return "{\"outPutNode\": {\"a\": 1}}"; }

    void serve(const QString &category, const QString &name, const QVariantList &contents);
    FormatDetailModelData imported(const QVariantMap &entry);

    WidthFormatIdParser m_parser;
};

void TestWidthFormatIdParser::serve(const QString &category, const QString &name,
                                    const QVariantList &contents)
{
    FakeCatalogue::served().groups[category].append({group(name), contents});
}

// The preset that this catalogue entry becomes.
FormatDetailModelData TestWidthFormatIdParser::imported(const QVariantMap &entry)
{
    serve(QStringLiteral("Video"), mp4, {entry});
    m_parser.parseVideoNew(QStringLiteral("Video"), &m_fixture->formats);
    return m_fixture->preset(mp4, 0);
}

void TestWidthFormatIdParser::importingIntoNoModelAsksTheCatalogueNothing()
{
    serve(QStringLiteral("Video"), mp4, {});
    QVERIFY(!m_parser.parseVideoNew(QStringLiteral("Video"), nullptr));
    QCOMPARE(FakeCatalogue::served().calls, QStringList());
}

void TestWidthFormatIdParser::groupsBecomeFormatsInOrder()
{
    serve(QStringLiteral("Video"), mp4,
          {cataloguePreset(QStringLiteral("b")), cataloguePreset(QStringLiteral("a"))});
    serve(QStringLiteral("Video"), QStringLiteral("AVI"), {});
    serve(QStringLiteral("Audio"), QStringLiteral("AAC"), {cataloguePreset(QStringLiteral("c"))});
    QVERIFY(m_parser.parseVideoNew(QStringLiteral("Video"), &m_fixture->formats));
    QVERIFY(m_parser.parseVideoNew(QStringLiteral("Audio"), &m_fixture->formats));

    const FormatListModel &formats = m_fixture->formats;
    QCOMPARE(formats.rowCount(), 3);
    QCOMPARE(formats.getTitle(0), mp4);
    QCOMPARE(formats.getTitle(1), QStringLiteral("AVI"));
    QCOMPARE(formats.getTitle(2), QStringLiteral("AAC"));
    QCOMPARE(formats.formatDetailModel(mp4)->getId(0), QStringLiteral("b"));
    QCOMPARE(formats.formatDetailModel(mp4)->getId(1), QStringLiteral("a"));
    QCOMPARE(formats.formatDetailModel(QStringLiteral("AVI"))->rowCount(), 0);
    QCOMPARE(formats.formatDetailModel(QStringLiteral("AAC"))->getId(0), QStringLiteral("c"));
    QCOMPARE(FakeCatalogue::served().calls,
             QStringList({QStringLiteral("groups Video"), QStringLiteral("contents MP4"),
                          QStringLiteral("contents AVI"), QStringLiteral("groups Audio"),
                          QStringLiteral("contents AAC")}));
}

void TestWidthFormatIdParser::theTagIsTheCategoryInLowerCase()
{
    serve(QStringLiteral("SocialVIDEO"), mp4, {});
    QVERIFY(m_parser.parseVideoNew(QStringLiteral("SocialVIDEO"), &m_fixture->formats));
    FormatListModelData format;
    QVERIFY(m_fixture->formats.getModelInfoByTitle(mp4, format));
    QCOMPARE(format.tag, QStringLiteral("socialvideo"));
    QCOMPARE(format.icon, QStringLiteral("MP4.png"));
    QCOMPARE(FakeCatalogue::served().calls.constFirst(), QStringLiteral("groups SocialVIDEO"));
}

void TestWidthFormatIdParser::theWholePresetIsImported()
{
    const QVariantMap entry = cataloguePreset(QStringLiteral("Video_MP4_1"));
    FormatDetailModelData expected;
    expected.id = QStringLiteral("Video_MP4_1");
    expected.extension = QStringLiteral("mp4");
    expected.title = QStringLiteral("Same as source");
    expected.icon = QStringLiteral("MP4.png");
    expected.videoEncoder = QStringLiteral("hevc");
    expected.videoEncoders = {QStringLiteral("h264"), QStringLiteral("hevc")};
    expected.videoFrameRate = QStringLiteral("29.97");
    expected.videoFrameRates = {24, 29.97};
    expected.videoResolution = QStringLiteral("1920x1080");
    expected.videoResolutions = {QStringLiteral("640x480")};
    expected.videoBitrate = QStringLiteral("4500");
    expected.videoBitrateLow = QStringLiteral("2000");
    expected.videoBitrateMid = QStringLiteral("5000");
    expected.videoBitrateHigh = QStringLiteral("8000");
    expected.videoBitrates = {1000, 2000};
    expected.audioEncoder = QStringLiteral("mp3");
    expected.audioEncoders = {QStringLiteral("mp3")};
    expected.audioSampleRate = QStringLiteral("44100");
    expected.audioSampleRates = {22050, QStringLiteral("44100")};
    expected.audioChannel = QStringLiteral("2");
    expected.audioChannels = {1, 2};
    expected.audioBitrate = QStringLiteral("128");
    expected.audioBitrates = {96, 128};
    expected.outPutNode = entry;
    QCOMPARE(asLines(fieldsOf(imported(entry))), asLines(fieldsOf(expected)));
}

void TestWidthFormatIdParser::numbersBecomeTextsAndListsStay()
{
    const QVariantMap entry = cataloguePreset(QStringLiteral("a"));
    const FormatDetailModelData preset = imported(entry);
    QCOMPARE(preset.audioBitrate, QStringLiteral("128"));
    QVERIFY(preset.audioBitrates.isSharedWith(entry.value(QStringLiteral("audioOptions"))
                                                  .toMap()
                                                  .value(QStringLiteral("bitrateKbpsList"))
                                                  .toList()));
    QVERIFY(preset.videoEncoders.isSharedWith(entry.value(QStringLiteral("videoOptions"))
                                                  .toMap()
                                                  .value(QStringLiteral("encoderList"))
                                                  .toList()));
    QCOMPARE(preset.videoFrameRates.at(0).userType(), int(QMetaType::Int));
    QCOMPARE(preset.videoFrameRates.at(1).userType(), int(QMetaType::Double));
    QCOMPARE(preset.audioSampleRates.at(1).userType(), int(QMetaType::QString));
}

void TestWidthFormatIdParser::excludedGroupsAreLeftOut_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<bool>("isShown");
    for (const auto &name :
         {QStringLiteral("腾讯视频"), QStringLiteral("爱奇艺"), QStringLiteral("优酷")}) {
        QTest::newRow(qUtf8Printable(name)) << name << false;
        QTest::newRow(qUtf8Printable(name + QStringLiteral(", trailing blank")))
            << name + QLatin1Char(' ') << true;
    }
    QTest::newRow("part of a name") << QStringLiteral("腾讯") << true;
}

void TestWidthFormatIdParser::excludedGroupsAreLeftOut()
{
    QFETCH(QString, name);
    QFETCH(bool, isShown);
    for (const auto &category : {QStringLiteral("SocialVideo"), QStringLiteral("Audio")}) {
        FakeCatalogue::served() = FakeCatalogue();
        m_fixture->formats.clearModeInfo();
        serve(category, name, {cataloguePreset(QStringLiteral("a"))});
        QVERIFY(m_parser.parseVideoNew(category, &m_fixture->formats));
        QCOMPARE(m_fixture->formats.isExist(name), isShown);
        QCOMPARE(FakeCatalogue::served().calls.contains(QStringLiteral("contents ") + name),
                 isShown);
    }
}

void TestWidthFormatIdParser::theFirstGroupOfANameWins()
{
    serve(QStringLiteral("Video"), mp4, {cataloguePreset(QStringLiteral("a"))});
    FakeCatalogue::served().groups[QStringLiteral("Video")].append(
        {with(group(mp4), "icon", QStringLiteral("second.png")),
         {cataloguePreset(QStringLiteral("b"))}});
    FakeCatalogue::served().groups[QStringLiteral("Device")].append(
        {with(group(mp4), "icon", QStringLiteral("third.png")),
         {cataloguePreset(QStringLiteral("c"))}});
    m_parser.parseVideoNew(QStringLiteral("Video"), &m_fixture->formats);
    m_parser.parseVideoNew(QStringLiteral("Device"), &m_fixture->formats);

    const FormatListModel &formats = m_fixture->formats;
    QCOMPARE(formats.rowCount(), 1);
    FormatListModelData format;
    QVERIFY(formats.getModelInfoByIndex(0, format));
    QCOMPARE(format.tag, QStringLiteral("video"));
    QCOMPARE(format.icon, QStringLiteral("MP4.png"));
    QCOMPARE(formats.formatDetailModel(mp4)->rowCount(), 1);
    QCOMPARE(formats.formatDetailModel(mp4)->getId(0), QStringLiteral("a"));
    QCOMPARE(FakeCatalogue::served().calls.count(QStringLiteral("contents MP4")), 1);
}

void TestWidthFormatIdParser::aKnownFormatIsNotImported()
{
    m_fixture->formats.addModeInfo({mp4, QString(), QStringLiteral("device")});
    serve(QStringLiteral("Video"), mp4, {cataloguePreset(QStringLiteral("a"))});
    serve(QStringLiteral("Video"), QStringLiteral("mp4"), {cataloguePreset(QStringLiteral("b"))});
    QVERIFY(m_parser.parseVideoNew(QStringLiteral("Video"), &m_fixture->formats));
    QCOMPARE(m_fixture->formats.rowCount(), 2);
    QCOMPARE(m_fixture->formats.formatDetailModel(mp4)->rowCount(), 0);
    QVERIFY(m_fixture->formats.containId(QStringLiteral("b")));
}

void TestWidthFormatIdParser::importingTwiceAddsNothing()
{
    serve(QStringLiteral("Video"), mp4, {cataloguePreset(QStringLiteral("a"))});
    QVERIFY(m_parser.parseVideoNew(QStringLiteral("Video"), &m_fixture->formats));
    const QStringList once = m_fixture->dump();
    QVERIFY(m_parser.parseVideoNew(QStringLiteral("Video"), &m_fixture->formats));
    QCOMPARE(m_fixture->dump(), once);
}

void TestWidthFormatIdParser::categoriesWithoutGroupsImportNothing()
{
    FakeCatalogue::served().groups.insert(QStringLiteral("Empty"), {});
    QVERIFY(m_parser.parseVideoNew(QStringLiteral("Empty"), &m_fixture->formats));
    QVERIFY(m_parser.parseVideoNew(QStringLiteral("Unknown"), &m_fixture->formats));
    QVERIFY(m_parser.parseVideoNew(QString(), &m_fixture->formats));
    QCOMPARE(m_fixture->formats.rowCount(), 0);
}

void TestWidthFormatIdParser::withoutVideoParametersTheVideoDefaultsStay()
{
    const FormatDetailModelData preset =
        imported(without(cataloguePreset(QStringLiteral("a")), {"videoParam"}));
    const FormatDetailModelData defaults;
    QCOMPARE(preset.videoEncoder, QStringLiteral("h264"));
    QCOMPARE(preset.videoBitrate, defaults.videoBitrate);
    QCOMPARE(preset.videoFrameRate, defaults.videoFrameRate);
    QCOMPARE(preset.videoResolution, defaults.videoResolution);
    QCOMPARE(preset.videoBitrateHigh, defaults.videoBitrateHigh);
    QCOMPARE(preset.videoBitrateMid, defaults.videoBitrateMid);
    QCOMPARE(preset.videoBitrateLow, defaults.videoBitrateLow);
    QCOMPARE(preset.videoEncoders, QVariantList());
    QCOMPARE(preset.videoBitrates, QVariantList());
    QCOMPARE(preset.videoFrameRates, QVariantList());
    QCOMPARE(preset.videoResolutions, QVariantList());
    QCOMPARE(preset.audioEncoder, QStringLiteral("mp3"));
    QCOMPARE(preset.audioEncoders.size(), 1);
}

void TestWidthFormatIdParser::emptyVideoParametersGiveEmptyTexts()
{
    const QVariantMap entry = without(cataloguePreset(QStringLiteral("a")), {"videoOptions"});
    const FormatDetailModelData preset = imported(with(entry, "videoParam", QVariant()));
    QCOMPARE(preset.videoEncoder, QString());
    QCOMPARE(preset.videoBitrate, QString());
    QCOMPARE(preset.videoFrameRate, QString());
    QCOMPARE(preset.videoResolution, QString());
    QCOMPARE(preset.videoEncoders, QVariantList());
    QCOMPARE(preset.videoBitrateHigh, QStringLiteral("0"));
}

void TestWidthFormatIdParser::withoutAudioParametersTheAudioTextsAreEmpty()
{
    const FormatDetailModelData preset =
        imported(without(cataloguePreset(QStringLiteral("a")), {"audioParam", "audioOptions"}));
    QCOMPARE(preset.audioEncoder, QString());
    QCOMPARE(preset.audioSampleRate, QString());
    QCOMPARE(preset.audioChannel, QString());
    QCOMPARE(preset.audioBitrate, QString());
    QCOMPARE(preset.audioEncoders, QVariantList());
    QCOMPARE(preset.audioSampleRates, QVariantList());
    QCOMPARE(preset.audioChannels, QVariantList());
    QCOMPARE(preset.audioBitrates, QVariantList());
    QCOMPARE(preset.videoEncoder, QStringLiteral("hevc"));
}

void TestWidthFormatIdParser::missingLevelsKeepTheirDefaults_data()
{
    QTest::addColumn<QVariant>("levels");
    QTest::addColumn<QStringList>("highMidLow");
    const QString none = QStringLiteral("0");
    const QString high = QStringLiteral("8000");
    const QString mid = QStringLiteral("5000");
    const QString low = QStringLiteral("2000");
    QTest::newRow("no list") << QVariant() << QStringList{none, none, none};
    QTest::newRow("a number") << QVariant(8000) << QStringList{none, none, none};
    QTest::newRow("none") << QVariant(QVariantList()) << QStringList{none, none, none};
    QTest::newRow("one") << QVariant(QVariantList{8000}) << QStringList{high, none, none};
    QTest::newRow("two") << QVariant(QVariantList{8000, 5000}) << QStringList{high, mid, none};
    QTest::newRow("three") << QVariant(QVariantList{8000, 5000, 2000})
                           << QStringList{high, mid, low};
    QTest::newRow("four") << QVariant(QVariantList{8000, 5000, 2000, 1000})
                          << QStringList{high, mid, low};
    QTest::newRow("texts") << QVariant(QVariantList{high, QString(), low})
                           << QStringList{high, QString(), low};
}

void TestWidthFormatIdParser::missingLevelsKeepTheirDefaults()
{
    QFETCH(QVariant, levels);
    QFETCH(QStringList, highMidLow);
    const QVariantMap entry = cataloguePreset(QStringLiteral("a"));
    const QVariantMap options = entry.value(QStringLiteral("videoOptions")).toMap();
    const FormatDetailModelData preset =
        imported(with(entry, "videoOptions", with(options, "levelList", levels)));
    QCOMPARE(QStringList({preset.videoBitrateHigh, preset.videoBitrateMid, preset.videoBitrateLow}),
             highMidLow);
}

void TestWidthFormatIdParser::absentKeysAreNullInTheSettings_data()
{
    QTest::addColumn<QVariantMap>("entry");
    QTest::addColumn<QStringList>("nullKeys");
    const QVariantMap entry = cataloguePreset(QStringLiteral("a"));
    const QString id = QStringLiteral("id");
    const QString extension = QStringLiteral("extension");
    const QString title = QStringLiteral("title");
    const QString audioParam = QStringLiteral("audioParam");
    const QString audioOptions = QStringLiteral("audioOptions");
    const QString videoOptions = QStringLiteral("videoOptions");
    QTest::newRow("nothing absent") << entry << QStringList();
    QTest::newRow("id") << without(entry, {"id"}) << QStringList{id};
    QTest::newRow("extension") << without(entry, {"extension"}) << QStringList{extension};
    QTest::newRow("title") << without(entry, {"title"}) << QStringList{title};
    QTest::newRow("audioParam") << without(entry, {"audioParam"}) << QStringList{audioParam};
    QTest::newRow("audioOptions") << without(entry, {"audioOptions"}) << QStringList{audioOptions};
    QTest::newRow("videoOptions") << without(entry, {"videoOptions"}) << QStringList{videoOptions};
    QTest::newRow("icon is not looked up") << without(entry, {"icon"}) << QStringList();
    QTest::newRow("videoParam") << without(entry, {"videoParam"}) << QStringList();
    QTest::newRow("videoParam and videoOptions")
        << without(entry, {"videoParam", "videoOptions"}) << QStringList();
    QTest::newRow("all but videoParam")
        << QVariantMap{{QStringLiteral("videoParam"), QVariant()}}
        << QStringList{id, extension, title, audioParam, audioOptions, videoOptions};
    QTest::newRow("everything") << QVariantMap()
                                << QStringList{id, extension, title, audioParam, audioOptions};
}

void TestWidthFormatIdParser::absentKeysAreNullInTheSettings()
{
    QFETCH(QVariantMap, entry);
    QFETCH(QStringList, nullKeys);
    QVariantMap expected = entry;
    for (const QString &key : qAsConst(nullKeys)) {
        expected.insert(key, QVariant());
    }
    const FormatDetailModelData preset = imported(entry);
    QCOMPARE(asLines(preset.outPutNode), asLines(expected));
    for (const QString &key : qAsConst(nullKeys)) {
        QVERIFY(!preset.outPutNode.value(key).isValid());
    }
}

void TestWidthFormatIdParser::completeSettingsAreTheCataloguesOwn()
{
    const QVariantMap entry = cataloguePreset(QStringLiteral("a"));
    QVERIFY(imported(entry).outPutNode.isSharedWith(entry));
}

void TestWidthFormatIdParser::repeatedIdsAreAllImported()
{
    serve(QStringLiteral("Video"), mp4,
          {cataloguePreset(QStringLiteral("a")), cataloguePreset(QStringLiteral("a"))});
    m_parser.parseVideoNew(QStringLiteral("Video"), &m_fixture->formats);
    QCOMPARE(m_fixture->formats.formatDetailModel(mp4)->rowCount(), 2);
}

void TestWidthFormatIdParser::importedPresetsAreNotUserDefined()
{
    const FormatDetailModelData preset = imported(cataloguePreset(QStringLiteral("1005")));
    QVERIFY(!preset.userDefine);
    QCOMPARE(FormatDetailModel::s_userDefineId, 1000);
}

void TestWidthFormatIdParser::aValueThatIsNotAMapCountsAsAnEmptyOne()
{
    FakeCatalogue::served().groups[QStringLiteral("Video")] = {
        {QVariantMap(), {QVariant(5), QStringLiteral("a"), QVariant()}}};
    QVERIFY(m_parser.parseVideoNew(QStringLiteral("Video"), &m_fixture->formats));
    FormatListModelData format;
    QVERIFY(m_fixture->formats.getModelInfoByIndex(0, format));
    QCOMPARE(format.title, QString());
    QCOMPARE(format.icon, QString());
    QCOMPARE(m_fixture->formats.formatDetailModel(QString())->rowCount(), 3);
    QCOMPARE(m_fixture->preset(QString(), 2).outPutNode.size(), 5);
}

void TestWidthFormatIdParser::recentlyUsedPresetsAreRead_data()
{
    addGoldenRows(QStringLiteral("parserecently"));
}

void TestWidthFormatIdParser::recentlyUsedPresetsAreRead()
{
    QFETCH(QString, path);
    compareWithGolden(QStringLiteral("parseRecently"), path);
}

void TestWidthFormatIdParser::userDefinedPresetsRaiseTheHighestId()
{
    const QString path = m_fixture->write(
        "[{\"title\": \"MP4\", \"group\": [{\"id\": \"1007\", \"outPutNode\": {\"a\": 1}}]}]");
    QVERIFY(m_fixture->parse(m_parser, QStringLiteral("parseVideo"), path, false));
    QCOMPARE(FormatDetailModel::s_userDefineId, 1000);
    QVERIFY(m_fixture->parse(m_parser, QStringLiteral("parseVideo"), path, true));
    QCOMPARE(FormatDetailModel::s_userDefineId, 1007);
}

void TestWidthFormatIdParser::presetsAreAppendedToThoseThere()
{
    const QString a = QStringLiteral("a");
    m_fixture->formats.addModeInfo({mp4, QString(), QStringLiteral("video")});
    m_fixture->formats.formatDetailModel(mp4)->addModeInfo(presetWithId(a));
    m_fixture->recently.addModeInfo(presetWithId(a));
    const QByteArray entry = "[{\"id\": \"b\", \"outPutNode\": {\"a\": 1}}]";
    const QString formats = m_fixture->write("[{\"title\": \"MP4\", \"group\": " + entry + "}]");
    const QString recently = m_fixture->write(entry, QStringLiteral("recently.json"));
    for (int i = 0; i < 2; ++i) {
        QVERIFY(m_fixture->parse(m_parser, QStringLiteral("parseVideo"), formats));
        QVERIFY(m_fixture->parse(m_parser, QStringLiteral("parseRecently"), recently));
    }
    for (FormatDetailModel *presets :
         {m_fixture->formats.formatDetailModel(mp4), &m_fixture->recently}) {
        QCOMPARE(presets->rowCount(), 3);
        QCOMPARE(presets->getId(0), a);
        QCOMPARE(presets->getId(1), QStringLiteral("b"));
        QCOMPARE(presets->getId(2), QStringLiteral("b"));
    }
    QCOMPARE(m_fixture->formats.rowCount(), 1);
}

void TestWidthFormatIdParser::aRenamedFormatIsAddedAgain()
{
    m_fixture->formats.addModeInfo({mp4, QString(), QStringLiteral("video")});
    m_fixture->formats.updateModeInfo(0, {QStringLiteral("AVI"), QString(), QString()});
    const QString path = m_fixture->write(
        "[{\"title\": \"MP4\", \"group\": [{\"id\": \"in MP4\", \"outPutNode\": {\"a\": 1}}]},"
        " {\"title\": \"AVI\", \"group\": [{\"id\": \"in AVI\", \"outPutNode\": {\"a\": 1}}]}]");
    QVERIFY(m_fixture->parse(m_parser, QStringLiteral("parseVideo"), path));
    QCOMPARE(m_fixture->formats.rowCount(), 2);
    QCOMPARE(m_fixture->formats.getGetClass(QStringLiteral("in MP4")), mp4);
    QCOMPARE(m_fixture->formats.getGetClass(QStringLiteral("in AVI")), QStringLiteral("AVI"));
}

void TestWidthFormatIdParser::aSavedModelIsReadBack()
{
    FormatDetailModelData noBitrates = samplePreset();
    noBitrates.videoBitrates.clear();
    FormatDetailModelData audio = samplePreset();
    audio.videoEncoders.clear();
    FormatListModel saved;
    saved.addModeInfo({mp4, QStringLiteral("mp4.png"), QStringLiteral("video")});
    for (const FormatDetailModelData &preset :
         {samplePreset(), presetWithId(QStringLiteral("of the catalogue")), noBitrates, audio}) {
        saved.formatDetailModel(mp4)->addModeInfo(preset);
    }
    const QString path =
        m_fixture->write(QJsonDocument::fromVariant(saved.toVariantListForSave()).toJson());
    QVERIFY(m_fixture->parse(m_parser, QStringLiteral("parseVideo"), path));

    noBitrates.videoBitrates = {QString()};
    FormatDetailModelData audioOnly;
    audioOnly.id = audio.id;
    audioOnly.extension = audio.extension;
    audioOnly.title = audio.title;
    audioOnly.icon = audio.icon;
    audioOnly.socialType = audio.socialType;
    audioOnly.supportMultiTrack = true;
    audioOnly.audioEncoder = audio.audioEncoder;
    audioOnly.audioEncoders = audio.audioEncoders;
    audioOnly.audioSampleRate = audio.audioSampleRate;
    audioOnly.audioSampleRates = audio.audioSampleRates;
    audioOnly.audioChannel = audio.audioChannel;
    audioOnly.audioChannels = audio.audioChannels;
    audioOnly.audioBitrate = audio.audioBitrate;
    audioOnly.audioBitrates = audio.audioBitrates;
    audioOnly.outPutNode = audio.outPutNode;
    QCOMPARE(m_fixture->formats.toVariantList().size(), 1);
    QCOMPARE(asLines(ParserFixture::presetsOf(*m_fixture->formats.formatDetailModel(mp4))),
             asLines(QVariantList{fieldsOf(readBack(samplePreset())),
                                  fieldsOf(readBack(noBitrates)), fieldsOf(readBack(audioOnly))}));
    FormatListModelData format;
    QVERIFY(m_fixture->formats.getModelInfoByIndex(0, format));
    QCOMPARE(format.icon, QStringLiteral("mp4.png"));
    QCOMPARE(format.tag, QStringLiteral("video"));
}

void TestWidthFormatIdParser::aSavedRecentlyUsedListIsReadBack()
{
    FormatDetailModel saved;
    saved.addModeInfo(samplePreset());
    const QString path =
        m_fixture->write(QJsonDocument::fromVariant(saved.toVariantListForSave()).toJson());
    QVERIFY(m_fixture->parse(m_parser, QStringLiteral("parseRecently"), path));
    FormatDetailModelData expected = readBack(samplePreset());
    expected.supportMultiTrack = false;
    QCOMPARE(asLines(ParserFixture::presetsOf(m_fixture->recently)),
             asLines(QVariantList{fieldsOf(expected)}));
}

void TestWidthFormatIdParser::numbersStayAsTheJsonParserGivesThem()
{
    const QByteArray lists[] = {"[1, 2]",
                                "[1.0, 2]",
                                "[0, -0.0]",
                                "[0.5, 1e3]",
                                "[1000.0]",
                                "[9007199254740993]",
                                "[9007199254740992.0]",
                                "[\"1\", 1, true, null]"};
    QByteArrayList entries;
    for (const QByteArray &list : lists) {
        entries.append("{\"video\": {\"frameRates\": " + list +
                       "}, \"outPutNode\": {\"a\": " + list + "}}");
    }
    const QString path = m_fixture->write('[' + entries.join(',') + ']');
    QVERIFY(m_fixture->parse(m_parser, QStringLiteral("parseRecently"), path));
    QCOMPARE(m_fixture->recently.rowCount(), entries.size());
    for (int row = 0; row < entries.size(); ++row) {
        const QVariantList given = QJsonDocument::fromJson(lists[row]).toVariant().toList();
        FormatDetailModelData preset;
        m_fixture->recently.getModelInfoByIndex(row, preset);
        for (const QVariantList &read :
             {preset.videoFrameRates, preset.outPutNode.value(QStringLiteral("a")).toList()}) {
            QCOMPARE(read, given);
            for (int i = 0; i < given.size(); ++i) {
                QCOMPARE(read.at(i).userType(), given.at(i).userType());
                QCOMPARE(read.at(i).toString(), given.at(i).toString());
            }
        }
    }
}

void TestWidthFormatIdParser::equalOptionListsShareTheirData()
{
    const QByteArray entry = "{\"video\": {\"encoders\": [\"h264\", \"hevc\"]},"
                             " \"audio\": {\"encoders\": [\"aac\"]}, \"outPutNode\": {\"a\": 1}}";
    const QString path =
        m_fixture->write("[{\"title\": \"MP4\", \"group\": [" + entry + "," + entry +
                         "]}, {\"title\": \"MKV\", \"group\": [" + entry + "]}]");
    QVERIFY(m_fixture->parse(m_parser, QStringLiteral("parseVideo"), path));
    const FormatDetailModelData first = m_fixture->preset(mp4, 0);
    const FormatDetailModelData second = m_fixture->preset(mp4, 1);
    const FormatDetailModelData third = m_fixture->preset(QStringLiteral("MKV"), 0);
    QCOMPARE(first.videoEncoders, QVariantList({QStringLiteral("h264"), QStringLiteral("hevc")}));
    QCOMPARE(first.audioEncoders, QVariantList({QStringLiteral("aac")}));
    for (const FormatDetailModelData &other : {second, third}) {
        QVERIFY(other.videoEncoders.isSharedWith(first.videoEncoders));
        QVERIFY(other.audioEncoders.isSharedWith(first.audioEncoders));
    }

    QVERIFY(m_parser.parseRecently(m_fixture->write('[' + entry + ',' + entry + ']'),
                                   &m_fixture->recently, true));
    FormatDetailModelData newest;
    FormatDetailModelData oldest;
    QVERIFY(m_fixture->recently.getModelInfoByIndex(0, newest));
    QVERIFY(m_fixture->recently.getModelInfoByIndex(1, oldest));
    QVERIFY(oldest.videoEncoders.isSharedWith(newest.videoEncoders));
}

void TestWidthFormatIdParser::loneSurrogatesAndNulAreKept()
{
    const QString path = m_fixture->write(
        QByteArray("[{\"id\": \"\\ud83c\", \"title\": \"\\udfac\\ud83c\", \"icon\": \"a") + '\0' +
        "b\", \"outPutNode\": {\"\\ud83c\": \"\\udfac\"}}]");
    QVERIFY(m_fixture->parse(m_parser, QStringLiteral("parseRecently"), path));
    FormatDetailModelData preset;
    QVERIFY(m_fixture->recently.getModelInfoByIndex(0, preset));
    const QString high(QChar(0xd83c));
    const QString low(QChar(0xdfac));
    QCOMPARE(preset.id, high);
    QCOMPARE(preset.title, low + high);
    QCOMPARE(preset.icon, QString::fromLatin1("a\0b", 3));
    QCOMPARE(preset.outPutNode, QVariantMap({{high, low}}));
    QVERIFY(m_fixture->recently.containId(high));
    QVERIFY(!m_fixture->recently.containId(low));
}

void TestWidthFormatIdParser::settingsCanBeDeeplyNested()
{
    constexpr int deep = 1000;
    const QString path = m_fixture->write("[{\"outPutNode\": {\"a\": " + QByteArray(deep, '[') +
                                          '7' + QByteArray(deep, ']') + "}}]");
    QVERIFY(m_fixture->parse(m_parser, QStringLiteral("parseRecently"), path));
    FormatDetailModelData preset;
    QVERIFY(m_fixture->recently.getModelInfoByIndex(0, preset));
    QVariant value = preset.outPutNode.value(QStringLiteral("a"));
    for (int level = 0; level < deep; ++level) {
        const QVariantList list = value.toList();
        QCOMPARE(list.size(), 1);
        value = list.constFirst();
    }
    QCOMPARE(value.toInt(), 7);
}

void TestWidthFormatIdParser::aLargeFileIsReadWhole()
{
    constexpr int entries = 5000;
    const QByteArray settings =
        "\", \"video\": {\"encoders\": [\"h264\"]}, \"outPutNode\": {\"a\": \"" +
        QByteArray(10 * 1024, 'x') + "\"}}";
    QByteArray json = "[{\"title\": \"MP4\", \"group\": [";
    json.reserve(entries * (settings.size() + 32));
    for (int i = 0; i < entries; ++i) {
        json += (i == 0 ? "{\"id\": \"" : ",{\"id\": \"") + QByteArray::number(i) + settings;
    }
    json += "]}]";
    QVERIFY(json.size() > 50'000'000);

    FormatListModel unguarded;
    QVERIFY(m_parser.parseVideo(m_fixture->write(json), &unguarded, false));
    const FormatDetailModel &presets = *unguarded.formatDetailModel(mp4);
    QCOMPARE(presets.rowCount(), entries);
    FormatDetailModelData last;
    QVERIFY(presets.getModelInfoById(QString::number(entries - 1), last));
    QCOMPARE(last.outPutNode.value(QStringLiteral("a")).toString().size(), 10 * 1024);
}

void TestWidthFormatIdParser::deviceFilesAreReadThroughParseVideo_data()
{
    QTest::addColumn<bool>("flag");
    QTest::addColumn<bool>("result");
    QTest::newRow("flag set, read") << true << true;
    QTest::newRow("flag set, refused") << true << false;
    QTest::newRow("no flag, read") << false << true;
}

void TestWidthFormatIdParser::deviceFilesAreReadThroughParseVideo()
{
    QFETCH(bool, flag);
    QFETCH(bool, result);
    DeviceParser parser;
    parser.result = result;
    IFormatsParser &asInterface = parser;
    QCOMPARE(asInterface.parseDevice(QStringLiteral("devices.json"), &m_fixture->formats, flag),
             result);
    QCOMPARE(parser.calls, QStringList({QStringLiteral("devices.json 0")}));
    QCOMPARE(parser.models, QList<FormatListModel *>({&m_fixture->formats}));
}

QTEST_GUILESS_MAIN(TestWidthFormatIdParser)
#include "tst_widthformatidparser.moc"
