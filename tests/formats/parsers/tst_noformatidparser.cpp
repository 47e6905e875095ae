#include "formats/parsers/noformatidparser.h"
#include "tests/formats/parsers/parsertest.h"

namespace {

const QString mp4 = QStringLiteral("MP4");
const QString category = QStringLiteral("Audio");

// The line that the parser logs for a preset list.
QString importLine(const FormatDetailModel *presets)
{
    QString text;
    QDebug(&text) << "parseVideoNew" << presets;
    return QStringLiteral("debug: ") + text.trimmed();
}

} // namespace

class TestNoFormatIdParser : public ParserTest
{
    Q_OBJECT

private Q_SLOTS:
    void importingIntoNoModelAsksTheCatalogueNothing();
    void everyGroupBecomesAVideoFormat();
    void theFirstGroupOfANameWins();
    void theWholePresetIsImportedWithoutSettings();
    void absentParametersGiveEmptyTexts();

    void filesOfTheParserInUseGiveFormatsWithoutPresets();
    void theRecentlyUsedFileIsNotRead();

private:
    IFormatsParser &parser() override { return m_parser; }
    QObject *newParser(QObject *parent) const override { return new NoFormatIdParser(parent); }
    QString dataFolder() const override { return QStringLiteral("noformatid"); }
    QByteArray entry() const override
    {
        return "{\"\": {\"a\": 1}, \"isLoseless\": true, \"audio\": {\"bitrates\": \"0:0\"}}";
    }

    void serve(const QString &name, const QVariantList &contents);

    NoFormatIdParser m_parser;
};

void TestNoFormatIdParser::serve(const QString &name, const QVariantList &contents)
{
    FakeCatalogue::served().groups[category].append(
        {{{QStringLiteral("name"), name}, {QStringLiteral("icon"), name + QStringLiteral(".png")}},
         contents});
}

void TestNoFormatIdParser::importingIntoNoModelAsksTheCatalogueNothing()
{
    serve(mp4, {});
    QVERIFY(!m_parser.parseVideoNew(category, nullptr));
    QCOMPARE(FakeCatalogue::served().calls, QStringList());
}

void TestNoFormatIdParser::everyGroupBecomesAVideoFormat()
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

void TestNoFormatIdParser::theFirstGroupOfANameWins()
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

void TestNoFormatIdParser::theWholePresetIsImportedWithoutSettings()
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

void TestNoFormatIdParser::absentParametersGiveEmptyTexts()
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

void TestNoFormatIdParser::filesOfTheParserInUseGiveFormatsWithoutPresets()
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

void TestNoFormatIdParser::theRecentlyUsedFileIsNotRead()
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

QTEST_GUILESS_MAIN(TestNoFormatIdParser)
#include "tst_noformatidparser.moc"
