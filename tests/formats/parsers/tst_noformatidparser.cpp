#include "formats/parsers/noformatidparser.h"
#include "tests/formats/parsers/parserfixture.h"

#include <QPointer>

#include <memory>
#include <optional>

namespace {

const QString mp4 = QStringLiteral("MP4");
const QString category = QStringLiteral("Audio");

// As the parser logs a preset list that it has made.
QString importLine(const FormatDetailModel *presets)
{
    QString text;
    QDebug(&text) << "parseVideoNew" << presets;
    return QStringLiteral("debug: ") + text.trimmed();
}

} // namespace

class NoFormatIdParserTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();

    void theParserBelongsToItsParent();
    void theParserIsDeletedThroughItsInterface();
    void theParserHasNoMetaObjectOfItsOwn();

    void importingIntoNoModelAsksTheCatalogueNothing();
    void everyGroupBecomesAVideoFormat();
    void theFirstGroupOfANameWins();
    void theWholePresetIsImportedWithoutSettings();
    void absentParametersGiveEmptyTexts();

    void presetFilesAreRead_data();
    void presetFilesAreRead();
    void audioListsAreRead_data();
    void audioListsAreRead();
    void theFlagIsStoredInEveryPreset_data();
    void theFlagIsStoredInEveryPreset();
    void filesOfTheParserInUseGiveFormatsWithoutPresets();
    void theRecentlyUsedFileIsNotRead();

    void withoutModelOrPathNothingIsLogged();
    void aFileThatCannotBeOpenedIsReported_data();
    void aFileThatCannotBeOpenedIsReported();
    void anEmptyFileIsReported_data();
    void anEmptyFileIsReported();
    void aFileWithoutAListIsReported_data();
    void aFileWithoutAListIsReported();

private:
    void serve(const QString &name, const QVariantList &contents);

    std::optional<ParserFixture> m_fixture;
    NoFormatIdParser m_parser;
};

void NoFormatIdParserTest::init()
{
    m_fixture.emplace();
}

void NoFormatIdParserTest::cleanup()
{
    QCOMPARE(m_fixture->log.takeAll(), QStringList());
    m_fixture.reset();
}

void NoFormatIdParserTest::serve(const QString &name, const QVariantList &contents)
{
    FakeCatalogue::served().groups[category].append(
        {{{QStringLiteral("name"), name}, {QStringLiteral("icon"), name + QStringLiteral(".png")}},
         contents});
}

void NoFormatIdParserTest::theParserBelongsToItsParent()
{
    auto parent = std::make_unique<QObject>();
    const QPointer<QObject> parser = new NoFormatIdParser(parent.get());
    QCOMPARE(parser->parent(), parent.get());
    parent.reset();
    QVERIFY(!parser);
}

void NoFormatIdParserTest::theParserIsDeletedThroughItsInterface()
{
    auto *parser = new NoFormatIdParser;
    const QPointer<QObject> watched = parser;
    std::unique_ptr<IFormatsParser> owner(parser);
    QCOMPARE(static_cast<void *>(static_cast<QObject *>(parser)), static_cast<void *>(parser));
    owner.reset();
    QVERIFY(!watched);
}

void NoFormatIdParserTest::theParserHasNoMetaObjectOfItsOwn()
{
    QCOMPARE(m_parser.metaObject(), &QObject::staticMetaObject);
}

void NoFormatIdParserTest::importingIntoNoModelAsksTheCatalogueNothing()
{
    serve(mp4, {});
    QVERIFY(!m_parser.parseVideoNew(category, nullptr));
    QCOMPARE(FakeCatalogue::served().calls, QStringList());
}

void NoFormatIdParserTest::everyGroupBecomesAVideoFormat()
{
    const QStringList names{QStringLiteral("腾讯视频"), QStringLiteral("爱奇艺"),
                            QStringLiteral("优酷"), mp4};
    for (const QString &name : names) {
        serve(name, {QVariantMap{{QStringLiteral("id"), name}}});
    }
    QVERIFY(m_parser.parseVideoNew(category, &m_fixture->formats));
    const FormatListModel &formats = m_fixture->formats;
    QCOMPARE(formats.getFormatList(QStringLiteral("video")), names);
    QCOMPARE(formats.rowCount(), names.size());
    QStringList lines;
    for (const QString &name : names) {
        lines.append(importLine(formats.formatDetailModel(name)));
        QCOMPARE(formats.getIcon(name), name + QStringLiteral(".png"));
    }
    QCOMPARE(m_fixture->log.takeAll(), lines);
    QVERIFY(
        lines.constFirst().startsWith(QStringLiteral("debug: parseVideoNew FormatDetailModel(0x")));
}

void NoFormatIdParserTest::theFirstGroupOfANameWins()
{
    serve(mp4, {QVariantMap{{QStringLiteral("id"), QStringLiteral("a")}}});
    serve(mp4, {QVariantMap{{QStringLiteral("id"), QStringLiteral("b")}}});
    for (int i = 0; i < 2; ++i) {
        QVERIFY(m_parser.parseVideoNew(category, &m_fixture->formats));
    }
    QCOMPARE(m_fixture->formats.rowCount(), 1);
    QCOMPARE(m_fixture->formats.formatDetailModel(mp4)->rowCount(), 1);
    QVERIFY(m_fixture->formats.containId(QStringLiteral("a")));
    QCOMPARE(m_fixture->log.takeAll(),
             QStringList({importLine(m_fixture->formats.formatDetailModel(mp4))}));
}

void NoFormatIdParserTest::theWholePresetIsImportedWithoutSettings()
{
    serve(mp4,
          {QVariantMap{
              {QStringLiteral("id"), QStringLiteral("1005")},
              {QStringLiteral("extension"), QStringLiteral("mp4")},
              {QStringLiteral("title"), QStringLiteral("Same as source")},
              {QStringLiteral("icon"), QStringLiteral("not used.png")},
              {QStringLiteral("videoParam"),
               QVariantMap{{QStringLiteral("encoder"), QStringLiteral("hevc")},
                           {QStringLiteral("bitrateKbps"), 4500},
                           {QStringLiteral("frameRate"), 30},
                           {QStringLiteral("resolution"), QStringLiteral("1920x1080")}}},
              {QStringLiteral("videoOptions"),
               QVariantMap{
                   {QStringLiteral("encoderList"), QVariantList{QStringLiteral("hevc")}},
                   {QStringLiteral("bitrateKbpsList"), QVariantList{1000}},
                   {QStringLiteral("frameRateList"), QVariantList{24, 30}},
                   {QStringLiteral("resolutionList"), QVariantList{QStringLiteral("640x480")}},
                   {QStringLiteral("levelList"), QVariantList{8000, 5000, 2000}}}},
              {QStringLiteral("audioParam"),
               QVariantMap{{QStringLiteral("channel"), 2},
                           {QStringLiteral("encoder"), QStringLiteral("mp3")},
                           {QStringLiteral("bitrateKbps"), 128},
                           {QStringLiteral("sampleRate"), 44100}}},
              {QStringLiteral("audioOptions"),
               QVariantMap{{QStringLiteral("channelList"), QVariantList{1, 2}},
                           {QStringLiteral("encoderList"), QVariantList{QStringLiteral("mp3")}},
                           {QStringLiteral("bitrateKbpsList"), QVariantList{96, 128}},
                           {QStringLiteral("sampleRateList"), QVariantList{22050, 44100}}}},
          }});
    QVERIFY(m_parser.parseVideoNew(category, &m_fixture->formats));
    QCOMPARE(m_fixture->log.takeAll().size(), 1);

    FormatDetailModelData expected;
    expected.id = QStringLiteral("1005");
    expected.extension = QStringLiteral("mp4");
    expected.title = QStringLiteral("Same as source");
    expected.icon = QStringLiteral("MP4.png");
    expected.videoEncoder = QStringLiteral("hevc");
    expected.videoEncoders = {QStringLiteral("hevc")};
    expected.videoFrameRate = QStringLiteral("30");
    expected.videoFrameRates = {24, 30};
    expected.videoResolution = QStringLiteral("1920x1080");
    expected.videoResolutions = {QStringLiteral("640x480")};
    expected.videoBitrate = QStringLiteral("4500");
    expected.videoBitrateLow = QStringLiteral("2000");
    expected.videoBitrateMid = QStringLiteral("5000");
    expected.videoBitrateHigh = QStringLiteral("8000");
    expected.videoBitrates = {1000};
    expected.audioEncoder = QStringLiteral("mp3");
    expected.audioEncoders = {QStringLiteral("mp3")};
    expected.audioSampleRate = QStringLiteral("44100");
    expected.audioSampleRates = {22050, 44100};
    expected.audioChannel = QStringLiteral("2");
    expected.audioChannels = {1, 2};
    expected.audioBitrate = QStringLiteral("128");
    expected.audioBitrates = {96, 128};
    QCOMPARE(asLines(fieldsOf(m_fixture->preset(mp4, 0))), asLines(fieldsOf(expected)));
    QCOMPARE(FormatDetailModel::s_userDefineId, 1000);
}

void NoFormatIdParserTest::absentParametersGiveEmptyTexts()
{
    serve(mp4, {QVariantMap()});
    QVERIFY(m_parser.parseVideoNew(category, &m_fixture->formats));
    QCOMPARE(m_fixture->log.takeAll().size(), 1);

    FormatDetailModelData expected;
    expected.icon = QStringLiteral("MP4.png");
    expected.videoEncoder.clear();
    expected.videoFrameRate.clear();
    expected.videoResolution.clear();
    expected.videoBitrate.clear();
    expected.audioEncoder.clear();
    expected.audioSampleRate.clear();
    expected.audioChannel.clear();
    expected.audioBitrate.clear();
    QCOMPARE(asLines(fieldsOf(m_fixture->preset(mp4, 0))), asLines(fieldsOf(expected)));
}

void NoFormatIdParserTest::presetFilesAreRead_data()
{
    addGoldenRows(QStringLiteral("noformatid/parsevideo"));
}

void NoFormatIdParserTest::presetFilesAreRead()
{
    QFETCH(QString, path);
    compareWithGolden(*m_fixture, m_parser, QStringLiteral("parseVideo"), path);
}

void NoFormatIdParserTest::audioListsAreRead_data()
{
    addGoldenRows(QStringLiteral("noformatid/parseaudio"));
}

void NoFormatIdParserTest::audioListsAreRead()
{
    QFETCH(QString, path);
    compareWithGolden(*m_fixture, m_parser, QStringLiteral("parseAudio"), path);
}

void NoFormatIdParserTest::theFlagIsStoredInEveryPreset_data()
{
    QTest::addColumn<QString>("operation");
    QTest::addColumn<bool>("flag");
    QTest::addColumn<bool>("userDefine");
    QTest::newRow("parseVideo, true") << QStringLiteral("parseVideo") << true << true;
    QTest::newRow("parseVideo, false") << QStringLiteral("parseVideo") << false << false;
    QTest::newRow("parseAudio, true") << QStringLiteral("parseAudio") << true << true;
    QTest::newRow("parseAudio, false") << QStringLiteral("parseAudio") << false << false;
    QTest::newRow("parseDevice, true") << QStringLiteral("parseDevice") << true << false;
    QTest::newRow("parseDevice, false") << QStringLiteral("parseDevice") << false << false;
}

void NoFormatIdParserTest::theFlagIsStoredInEveryPreset()
{
    QFETCH(QString, operation);
    QFETCH(bool, flag);
    QFETCH(bool, userDefine);
    const QByteArray entry =
        "{\"\": {\"a\": 1}, \"isLoseless\": true, \"audio\": {\"bitrates\": \"0:0\"}}";
    const QString path =
        m_fixture->write("[{\"title\": \"MP4\", \"group\": [" + entry + "," + entry + "]}]");
    QVERIFY(m_fixture->parse(m_parser, operation, path, flag));
    const FormatDetailModel &presets = *m_fixture->formats.formatDetailModel(mp4);
    QCOMPARE(presets.rowCount(), 2);
    QCOMPARE(presets.userDefineCount(), userDefine ? 2 : 0);
}

void NoFormatIdParserTest::filesOfTheParserInUseGiveFormatsWithoutPresets()
{
    FormatListModel saved;
    saved.addModeInfo({mp4, QString(), QStringLiteral("video")});
    saved.formatDetailModel(mp4)->addModeInfo(samplePreset());
    const QString path =
        m_fixture->write(QJsonDocument::fromVariant(saved.toVariantListForSave()).toJson());
    QVERIFY(m_fixture->parse(m_parser, QStringLiteral("parseVideo"), path));
    QVERIFY(m_fixture->parse(m_parser, QStringLiteral("parseDevice"), path));
    QCOMPARE(m_fixture->formats.rowCount(), 2);
    QCOMPARE(m_fixture->formats.formatDetailModel(mp4)->rowCount(), 0);
}

void NoFormatIdParserTest::theRecentlyUsedFileIsNotRead()
{
    const QString list = m_fixture->write("[{\"\": {\"a\": 1}, \"outPutNode\": {\"a\": 1}}]");
    m_fixture->recently.addModeInfo(samplePreset());
    const QStringList before = m_fixture->dump();
    for (const QString &path : {list, m_fixture->folder(), QString()}) {
        QVERIFY(m_fixture->parse(m_parser, QStringLiteral("parseRecently"), path));
        QVERIFY(m_parser.parseRecently(path, nullptr, true));
    }
    QCOMPARE(m_fixture->dump(), before);
}

void NoFormatIdParserTest::withoutModelOrPathNothingIsLogged()
{
    const QString path = m_fixture->write("[{\"\": {\"a\": 1}}]");
    QVERIFY(!m_parser.parseVideo(path, nullptr, true));
    QVERIFY(!m_parser.parseAudio(path, nullptr, true));
    QVERIFY(!m_parser.parseDevice(path, nullptr, true));
    for (const auto &operation : {QStringLiteral("parseVideo"), QStringLiteral("parseAudio"),
                                  QStringLiteral("parseDevice")}) {
        QVERIFY(!m_fixture->parse(m_parser, operation, QString()));
    }
    QCOMPARE(m_fixture->formats.rowCount(), 0);
}

void NoFormatIdParserTest::aFileThatCannotBeOpenedIsReported_data()
{
    QTest::addColumn<QString>("operation");
    QTest::addColumn<QString>("failure");
    const QString arrowed = QStringLiteral("-->open formats file failed, path=");
    QTest::newRow("parseVideo") << QStringLiteral("parseVideo") << arrowed;
    QTest::newRow("parseDevice") << QStringLiteral("parseDevice") << arrowed;
    QTest::newRow("parseAudio") << QStringLiteral("parseAudio")
                                << QStringLiteral("open formats file failed, path=");
}

void NoFormatIdParserTest::aFileThatCannotBeOpenedIsReported()
{
    QFETCH(QString, operation);
    QFETCH(QString, failure);
    const QString path = m_fixture->folder() + QStringLiteral("/missing.json");
    compareRefusal(*m_fixture, m_parser, operation, path,
                   QStringLiteral("%1 \"%2\"").arg(failure, path));
}

void NoFormatIdParserTest::anEmptyFileIsReported_data()
{
    QTest::addColumn<QString>("operation");
    for (const char *operation : {"parseVideo", "parseAudio", "parseDevice"}) {
        QTest::newRow(operation) << QString::fromLatin1(operation);
    }
}

void NoFormatIdParserTest::anEmptyFileIsReported()
{
    QFETCH(QString, operation);
    compareRefusal(*m_fixture, m_parser, operation, m_fixture->write(QByteArray()),
                   QStringLiteral("-->strJson is empty!"));
}

void NoFormatIdParserTest::aFileWithoutAListIsReported_data()
{
    addFilesWithoutAList({QStringLiteral("parseVideo"), QStringLiteral("parseAudio")});
}

void NoFormatIdParserTest::aFileWithoutAListIsReported()
{
    QFETCH(QString, operation);
    QFETCH(QByteArray, bytes);
    compareRefusal(*m_fixture, m_parser, operation, m_fixture->write(bytes),
                   QStringLiteral("-->varJson is null!"));
}

QTEST_GUILESS_MAIN(NoFormatIdParserTest)
#include "tst_noformatidparser.moc"
