#include "tests/formats/proxy/facadetest.h"

#include <QProcess>

/*! What one process saves and another one, with reset counters, reads. */
class TestFormatsProxyRoundTrip : public FacadeTest
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void theUsersPresetsFollowTheCatalogues();
    void aPresetComesBack();
    void anEmptyListOfVideoBitratesComesBackWithOneEmptyText();
    void aPresetMadeByTheUserComesBack();
    void anAudioPresetComesBackWithoutItsVideoValues();
    void aPresetWithoutConverterSettingsIsLost();
    void aFormatOfTheUsersComesBackWithItsPresets();
    void theRecentlyUsedComeBackInOrder();
    void theRecentlyUsedForgetWhatTheirReaderDoesNotRead();
    void theNextIdIsOneAboveTheHighestRead();
    void whatWasReadOnceIsSavedAndReadUnchanged();

private:
    void read(FormatsProxy &facade, const QString &folder)
    {
        FakeCatalogue::served() = sampleCatalogue();
        facade.init(folder);
        QCOMPARE(m_log->takeAll(), QStringList());
    }

    FormatDetailModel &presets(const QString &className)
    {
        return *m_facade->formatListModel()->formatDetailModel(className);
    }

    Preset userPreset(const QString &className, const QString &id)
    {
        Preset preset;
        presets(className).getModelInfoById(id, preset);
        return preset;
    }

    QTemporaryDir m_folder;
};

namespace {

constexpr QLatin1String writeFiles("--write-files");

// A user-defined preset with a value in every field and strings that JSON has to escape.
FormatDetailModelData fullPreset()
{
    FormatDetailModelData preset = samplePreset();
    preset.id = QStringLiteral("1003");
    preset.title = QStringLiteral("预设 \"1\"\n") + QChar(0xd83d);
    preset.outPutNode.insert(QStringLiteral("list"), QVariantList{1, 1.5, true, QString()});
    return preset;
}

// The video bitrates are joined to one string, which turns them into strings; the catalogue's own
// is not saved; "isLoseless" and "param" are written where they are not read.
FormatDetailModelData asReadBack(FormatDetailModelData preset)
{
    preset.videoBitrates = {QStringLiteral("1000"), QStringLiteral("2000"), QStringLiteral("4000")};
    preset.videoBitrate = QStringLiteral("0");
    preset.isLoseless = false;
    preset.param.clear();
    return preset;
}

int saveFiles(const QString &folder)
{
    const MessageLog log;
    FakeCatalogue::served() = sampleCatalogue();
    FormatsProxy facade;
    facade.init(folder);
    const QString mp4Class = QStringLiteral("MP4");
    FormatDetailModel &mp4 = *facade.formatListModel()->formatDetailModel(mp4Class);
    mp4.addModeInfo(fullPreset());
    FormatDetailModelData bare;
    bare.id = QStringLiteral("1002");
    bare.userDefine = true;
    mp4.addModeInfo(bare);
    facade.addUserDefineFormat(QStringLiteral("video"), mp4Class,
                               QStringLiteral("video_mp4_source"),
                               {{QStringLiteral("title"), QStringLiteral("Mine")},
                                {QStringLiteral("videoBitrateMid"), QStringLiteral("2500")},
                                {QStringLiteral("audioBitrate"), QStringLiteral("256")}});

    facade.formatListModel()->addModeInfo(
        {QStringLiteral("Phone"), QStringLiteral("phone.png"), QStringLiteral("device")});
    FormatDetailModel &phone =
        *facade.formatListModel()->formatDetailModel(QStringLiteral("Phone"));
    FormatDetailModelData audio = fullPreset();
    audio.id = QStringLiteral("audio");
    audio.videoEncoders.clear();
    phone.addModeInfo(audio);
    FormatDetailModelData withoutBitrates = fullPreset();
    withoutBitrates.id = QStringLiteral("without bitrates");
    withoutBitrates.videoBitrates.clear();
    phone.addModeInfo(withoutBitrates);
    facade.formatListModel()->addModeInfo(
        {QStringLiteral("Empty"), QStringLiteral("empty.png"), QStringLiteral("device")});

    for (const char *id : {"video_mp4_source", "1003", "1004"}) {
        facade.add2Recently(QStringLiteral("video"), mp4Class, QString::fromLatin1(id));
    }
    facade.uninit();
    return 0;
}

} // namespace

void TestFormatsProxyRoundTrip::initTestCase()
{
    QCOMPARE(FormatDetailModel::s_userDefineId, 1000);
    QCOMPARE(FormatDetailModel::s_idForTest, 1001);
    QProcess process;
    process.start(QCoreApplication::applicationFilePath(), {writeFiles, m_folder.path()});
    QVERIFY(process.waitForFinished());
    QCOMPARE(process.exitStatus(), QProcess::NormalExit);
    QCOMPARE(process.exitCode(), 0);
}

void TestFormatsProxyRoundTrip::theUsersPresetsFollowTheCatalogues()
{
    read(*m_facade, m_folder.path());
    QCOMPARE(idsOf(presets(QStringLiteral("MP4"))),
             words("video_mp4_source video_mp4_720p 1003 1004"));
    QCOMPARE(m_facade->getUserDefineCount(QStringLiteral("video"), QStringLiteral("MP4")), 2);
    QCOMPARE(presets(QStringLiteral("AVI")).rowCount(), 0);
    QCOMPARE(idsOf(presets(QStringLiteral("音频"))), words("audio_yinpin_source"));
}

void TestFormatsProxyRoundTrip::aPresetComesBack()
{
    read(*m_facade, m_folder.path());
    const Preset preset = userPreset(QStringLiteral("MP4"), QStringLiteral("1003"));
    QCOMPARE(asLines(fieldsOf(preset)), asLines(fieldsOf(asReadBack(fullPreset()))));
}

void TestFormatsProxyRoundTrip::anEmptyListOfVideoBitratesComesBackWithOneEmptyText()
{
    read(*m_facade, m_folder.path());
    const Preset preset = userPreset(QStringLiteral("Phone"), QStringLiteral("without bitrates"));
    QCOMPARE(asLines(preset.videoBitrates), asLines(QVariantList{QString()}));
    QCOMPARE(preset.videoBitrateHigh, fullPreset().videoBitrateHigh);
}

void TestFormatsProxyRoundTrip::aPresetMadeByTheUserComesBack()
{
    read(*m_facade, m_folder.path());
    const Preset preset = userPreset(QStringLiteral("MP4"), QStringLiteral("1004"));
    QCOMPARE(preset.title, QStringLiteral("Mine"));
    QCOMPARE(preset.videoBitrateHigh, QString());
    QCOMPARE(preset.videoBitrateMid, QStringLiteral("2500"));
    QCOMPARE(preset.videoBitrates, (QVariantList{QStringLiteral("0"), QStringLiteral("1500")}));
    QCOMPARE(preset.audioBitrates, (QVariantList{0, 128, 256}));
    QCOMPARE(preset.outPutNode.value(QStringLiteral("id")).toString(),
             QStringLiteral("video_mp4_1004"));
    QCOMPARE(preset.outPutNode.value(QStringLiteral("videoParam"))
                 .toMap()
                 .value(QStringLiteral("bitrateKbps"))
                 .toInt(),
             2500);
}

void TestFormatsProxyRoundTrip::anAudioPresetComesBackWithoutItsVideoValues()
{
    read(*m_facade, m_folder.path());
    const Preset defaults;
    Preset expected = asReadBack(fullPreset());
    expected.id = QStringLiteral("audio");
    expected.videoEncoder = defaults.videoEncoder;
    expected.videoEncoders = defaults.videoEncoders;
    expected.videoFrameRate = defaults.videoFrameRate;
    expected.videoFrameRates = defaults.videoFrameRates;
    expected.videoResolution = defaults.videoResolution;
    expected.videoResolutions = defaults.videoResolutions;
    expected.videoBitrateLow = defaults.videoBitrateLow;
    expected.videoBitrateMid = defaults.videoBitrateMid;
    expected.videoBitrateHigh = defaults.videoBitrateHigh;
    expected.videoBitrates = defaults.videoBitrates;
    const Preset preset = userPreset(QStringLiteral("Phone"), QStringLiteral("audio"));
    QCOMPARE(asLines(fieldsOf(preset)), asLines(fieldsOf(expected)));
}

void TestFormatsProxyRoundTrip::aPresetWithoutConverterSettingsIsLost()
{
    QVERIFY(readFile(userPresetsFile(m_folder)).contains("\"id\": \"1002\""));
    read(*m_facade, m_folder.path());
    QVERIFY(!m_facade->formatListModel()->containId(QStringLiteral("1002")));
}

void TestFormatsProxyRoundTrip::aFormatOfTheUsersComesBackWithItsPresets()
{
    read(*m_facade, m_folder.path());
    FormatListModel &formats = *m_facade->formatListModel();
    QCOMPARE(formats.rowCount(), 4);
    FormatListModelData phone;
    QVERIFY(formats.getModelInfoByIndex(3, phone));
    QCOMPARE(phone.title, QStringLiteral("Phone"));
    QCOMPARE(phone.icon, QStringLiteral("phone.png"));
    QCOMPARE(phone.tag, QStringLiteral("device"));
    QVERIFY(!formats.isExist(QStringLiteral("Empty")));
}

void TestFormatsProxyRoundTrip::theRecentlyUsedComeBackInOrder()
{
    read(*m_facade, m_folder.path());
    FormatDetailModel &recently = *m_facade->recentlyFormatsModel();
    QCOMPARE(idsOf(recently), words("1004 1003 video_mp4_source"));
    QCOMPARE(recently.userDefineCount(), 3);
}

void TestFormatsProxyRoundTrip::theRecentlyUsedForgetWhatTheirReaderDoesNotRead()
{
    read(*m_facade, m_folder.path());
    Preset expected = asReadBack(fullPreset());
    expected.supportMultiTrack = false;
    const Preset preset = presetAt(*m_facade->recentlyFormatsModel(), 1);
    QCOMPARE(asLines(fieldsOf(preset)), asLines(fieldsOf(expected)));
    QVERIFY(userPreset(QStringLiteral("MP4"), QStringLiteral("1003")).supportMultiTrack);
}

void TestFormatsProxyRoundTrip::theNextIdIsOneAboveTheHighestRead()
{
    read(*m_facade, m_folder.path());
    QCOMPARE(m_facade->addUserDefineFormat(QString(), QStringLiteral("MP4"),
                                           QStringLiteral("video_mp4_source"), QVariantMap()),
             QStringLiteral("1005"));
}

void TestFormatsProxyRoundTrip::whatWasReadOnceIsSavedAndReadUnchanged()
{
    read(*m_facade, m_folder.path());
    // A second init() with an empty folder reads nothing and makes it the folder to save to.
    const QTemporaryDir again;
    m_facade->init(again.path());
    QCOMPARE(m_log->takeAll().size(), 2);
    m_facade->uninit();

    FormatsProxy other;
    read(other, again.path());
    QCOMPARE(other.formatListModel()->toVariantList(),
             m_facade->formatListModel()->toVariantList());
    QCOMPARE(other.recentlyFormatsModel()->toVariantList(),
             m_facade->recentlyFormatsModel()->toVariantList());
    QCOMPARE(other.recentlyFormatsModel()->rowCount(), 3);
}

int main(int argc, char *argv[])
{
    QCoreApplication app(argc, argv);
    if (app.arguments().value(1) == writeFiles) {
        return saveFiles(app.arguments().value(2));
    }
    TestFormatsProxyRoundTrip test;
    return QTest::qExec(&test, argc, argv);
}

#include "tst_formatsproxy_roundtrip.moc"
