#include "tests/formats/proxy/facadetest.h"

class TestFormatsProxyFitting : public FacadeTest
{
    Q_OBJECT

private Q_SLOTS:
    void beforeInitThereIsNothingToFit();
    void theAudioPresetOfTheClosestBitrate_data();
    void theAudioPresetOfTheClosestBitrate();
    void theFittingAudioPresetIsHandedOutWhole();
    void audioFittingTakesTheExactTitle_data();
    void audioFittingTakesTheExactTitle();
    void theVideoPresetOfTheName_data();
    void theVideoPresetOfTheName();
    void videoFittingTakesTheExactTitle();
    void theAudioBitrateIsCapped_data();
    void theAudioBitrateIsCapped();
    void theCapReachesTheConverterSettings();
    void theCapAddsTheConverterSettingsThatAreMissing();
    void theCapChangesNoModel();
    void aFormatIsSupportedByItsUpperCaseTitleAndTag_data();
    void aFormatIsSupportedByItsUpperCaseTitleAndTag();
    void audioBitratesAreOfferedInReverse_data();
    void audioBitratesAreOfferedInReverse();
    void withoutABuiltInFirstPresetTheUsualBitratesAreOffered_data();
    void withoutABuiltInFirstPresetTheUsualBitratesAreOffered();
    void theBitratesOfferedKeepTheirTypes();

private:
    static QVariant text(const char *latin1) { return QString::fromLatin1(latin1); }
};

namespace {

constexpr QLatin1String infoLine("info: getSupportAudioLisrfromType reverse tempList");

} // namespace

void TestFormatsProxyFitting::beforeInitThereIsNothingToFit()
{
    const QString mp4 = QStringLiteral("MP4");
    QVERIFY(!m_facade->getSupportFormat(mp4));
    QVERIFY(!m_facade->isVideoType(mp4));
    QCOMPARE(m_facade->getFitAudioFormatByBitrate(mp4, QStringLiteral("128")), QVariantMap());
    QCOMPARE(m_facade->getFitVideoFormatByName(mp4, QStringLiteral("HD"), QStringLiteral("128")),
             QVariantMap());
    QCOMPARE(m_facade->getConverterParameters(QStringLiteral("video"), mp4,
                                              QStringLiteral("1920x1080"), true),
             QVariantMap());
    QCOMPARE(m_facade->getSupportAudioLisrfromType(mp4),
             (QVariantList{text("320"), text("256"), text("128")}));
}

void TestFormatsProxyFitting::theAudioPresetOfTheClosestBitrate_data()
{
    QTest::addColumn<QStringList>("bitrates");
    QTest::addColumn<QString>("bitrate");
    QTest::addColumn<QString>("title");
    const auto row = [](const char *name, const char *bitrates, const char *bitrate,
                        const char *title) {
        QTest::newRow(name) << words(bitrates) << QString::fromLatin1(bitrate)
                            << QString::fromLatin1(title);
    };
    row("an equal one", "128 192 256", "192", "1");
    row("the closest below", "128 192 256", "200", "1");
    row("the closest above", "128 192 256", "250", "2");
    row("beyond all", "128 192 256", "999999", "2");
    row("the later one of two as close", "128 192 256", "160", "1");
    row("the later one of two as close, downwards", "192 128 256", "160", "1");
    row("the last one of equal ones", "128 128 192 128", "128", "3");
    row("no number counts as 0", "256 128 192", "high", "1");
    row("empty counts as 0", "256 128 192", "", "1");
    row("a preset without a number counts as 0", "256 high 192", "1", "1");
    row("a number beyond 32 bits counts as 0", "256 128 192", "99999999999", "1");
    row("a fraction counts as 0", "256 128 192", "192.5", "1");
    row("a negative one", "128 0 192", "-5", "1");
    row("distances beyond 32 bits are equal", "2147483646 2147483647", "-2147483648", "1");
    row("a distance of 32 bits is not cut", "2147483647 -2", "-2147483648", "1");
}

void TestFormatsProxyFitting::theAudioPresetOfTheClosestBitrate()
{
    QFETCH(const QStringList, bitrates);
    QFETCH(const QString, bitrate);
    QFETCH(const QString, title);
    addPresets(QStringLiteral("MP3"), QStringLiteral("audio"), &Preset::audioBitrate, bitrates);
    QCOMPARE(titleOf(m_facade->getFitAudioFormatByBitrate(QStringLiteral("MP3"), bitrate)), title);
}

// A user-defined preset is chosen like any other.
void TestFormatsProxyFitting::theFittingAudioPresetIsHandedOutWhole()
{
    const Preset preset = samplePreset();
    QVERIFY(preset.userDefine);
    QCOMPARE(preset.audioBitrate, QStringLiteral("128"));
    FormatDetailModel &mp3 = addPresets(QStringLiteral("MP3"), QStringLiteral("audio"),
                                        &Preset::audioBitrate, words("64 256"));
    mp3.addModeInfo(preset);
    QCOMPARE(m_facade->getFitAudioFormatByBitrate(QStringLiteral("MP3"), QStringLiteral("130")),
             preset.toVarMap());
}

void TestFormatsProxyFitting::audioFittingTakesTheExactTitle_data()
{
    QTest::addColumn<QString>("title");
    QTest::newRow("in another case") << QStringLiteral("mp3");
    QTest::newRow("unknown") << QStringLiteral("WAV");
    QTest::newRow("without presets") << QStringLiteral("FLAC");
}

void TestFormatsProxyFitting::audioFittingTakesTheExactTitle()
{
    QFETCH(const QString, title);
    addPresets(QStringLiteral("MP3"), QStringLiteral("audio"), &Preset::audioBitrate, words("128"));
    addFormat(QStringLiteral("FLAC"), QStringLiteral("audio"));
    QCOMPARE(m_facade->getFitAudioFormatByBitrate(title, QStringLiteral("128")), QVariantMap());
}

void TestFormatsProxyFitting::theVideoPresetOfTheName_data()
{
    QTest::addColumn<QString>("presetTitle");
    QTest::addColumn<QString>("id");
    QTest::newRow("the title") << QStringLiteral("HD 720p") << QStringLiteral("b");
    QTest::newRow("in another case") << QStringLiteral("hd 720P") << QStringLiteral("b");
    QTest::newRow("the first of two") << QStringLiteral("same") << QStringLiteral("c");
    QTest::newRow("a part of it") << QStringLiteral("HD") << QString();
    QTest::newRow("empty") << QString() << QString();
}

void TestFormatsProxyFitting::theVideoPresetOfTheName()
{
    QFETCH(const QString, presetTitle);
    QFETCH(const QString, id);
    FormatDetailModel &mp4 = addFormat(QStringLiteral("MP4"), QStringLiteral("video"));
    const QList<QPair<QString, QString>> titles{{QStringLiteral("a"), QStringLiteral("HD 1080p")},
                                                {QStringLiteral("b"), QStringLiteral("HD 720p")},
                                                {QStringLiteral("c"), QStringLiteral("Same")},
                                                {QStringLiteral("d"), QStringLiteral("same")}};
    for (const auto &[presetId, title] : titles) {
        Preset preset = presetWithId(presetId);
        preset.title = title;
        mp4.addModeInfo(preset);
    }
    const QVariantMap found =
        m_facade->getFitVideoFormatByName(QStringLiteral("MP4"), presetTitle, QStringLiteral("0"));
    QCOMPARE(found.value(QStringLiteral("id")).toString(), id);
    QCOMPARE(found.isEmpty(), id.isEmpty());
}

void TestFormatsProxyFitting::videoFittingTakesTheExactTitle()
{
    addPresets(QStringLiteral("MP4"), QStringLiteral("video"), &Preset::extension, words("mp4"));
    addFormat(QStringLiteral("AVI"), QStringLiteral("video"));
    const QString title = QStringLiteral("0");
    const QString cap = QStringLiteral("128");
    for (const char *format : {"mp4", "AVI", "MOV"}) {
        QCOMPARE(m_facade->getFitVideoFormatByName(QString::fromLatin1(format), title, cap),
                 QVariantMap());
    }
    QCOMPARE(titleOf(m_facade->getFitVideoFormatByName(QStringLiteral("MP4"), title, cap)), title);
}

void TestFormatsProxyFitting::theAudioBitrateIsCapped_data()
{
    QTest::addColumn<QString>("cap");
    QTest::addColumn<QVariantList>("offered");
    QTest::addColumn<QString>("bitrate");
    const QVariantList offered{text("0"), text("256"), text("64"), text("128")};
    const QString own = QStringLiteral("192");
    const auto row = [](const char *name, const char *cap, const QVariantList &list,
                        const QString &bitrate) {
        QTest::newRow(name) << QString::fromLatin1(cap) << list << bitrate;
    };
    row("the largest within the cap", "200", offered, QStringLiteral("128"));
    row("the cap itself", "256", offered, QStringLiteral("256"));
    row("just below one", "255", offered, QStringLiteral("128"));
    row("beyond all", "9999", offered, QStringLiteral("256"));
    row("only the source's own is within", "1", offered, QStringLiteral("0"));
    row("below every one", "32", {text("64"), text("128")}, QStringLiteral("0"));
    row("nothing offered", "128", {}, QStringLiteral("0"));
    row("numbers and texts", "200", {64, 128.0, text("96")}, QStringLiteral("128"));
    row("negative ones only", "10", {-5, -7}, QStringLiteral("-5"));
    row("no number counts as 0", "10", {text("high")}, QStringLiteral("0"));
    row("cap 0", "0", offered, own);
    row("negative cap", "-1", offered, own);
    row("cap is not a number", "high", offered, own);
    row("cap is empty", "", offered, own);
}

void TestFormatsProxyFitting::theAudioBitrateIsCapped()
{
    QFETCH(const QString, cap);
    QFETCH(const QVariantList, offered);
    QFETCH(const QString, bitrate);
    Preset preset;
    preset.title = QStringLiteral("HD");
    preset.audioBitrate = QStringLiteral("192");
    preset.audioBitrates = offered;
    preset.outPutNode = QVariantMap{
        {QStringLiteral("audioParam"), QVariantMap{{QStringLiteral("bitrateKbps"), 192}}}};
    addFormat(QStringLiteral("MP4"), QStringLiteral("video")).addModeInfo(preset);

    const QVariantMap fitted =
        m_facade->getFitVideoFormatByName(QStringLiteral("MP4"), QStringLiteral("HD"), cap);
    const QVariant setting = fitted.value(QStringLiteral("outPutNode"))
                                 .toMap()
                                 .value(QStringLiteral("audioParam"))
                                 .toMap()
                                 .value(QStringLiteral("bitrateKbps"));
    QCOMPARE(fitted.value(QStringLiteral("audio")).toMap().value(QStringLiteral("bitrate")),
             QVariant(bitrate));
    QCOMPARE(setting, QVariant(bitrate));
}

void TestFormatsProxyFitting::theCapReachesTheConverterSettings()
{
    Preset preset = presetWithId(QStringLiteral("a"));
    preset.title = QStringLiteral("HD");
    preset.videoEncoders = QVariantList{text("h264")};
    preset.audioBitrates = QVariantList{text("128")};
    preset.outPutNode = {
        {QStringLiteral("id"), text("x_y_z")},
        {QStringLiteral("audioParam"), QVariantMap{{QStringLiteral("bitrateKbps"), 320},
                                                   {QStringLiteral("encoder"), text("aac")}}},
    };
    addFormat(QStringLiteral("MP4"), QStringLiteral("video")).addModeInfo(preset);

    const QVariantMap fitted = m_facade->getFitVideoFormatByName(
        QStringLiteral("MP4"), QStringLiteral("HD"), QStringLiteral("200"));
    preset.audioBitrate = QStringLiteral("128");
    preset.outPutNode.insert(QStringLiteral("audioParam"),
                             QVariantMap{{QStringLiteral("bitrateKbps"), text("128")},
                                         {QStringLiteral("encoder"), text("aac")}});
    QCOMPARE(fitted, preset.toVarMap());
    const QVariantMap settings = fitted.value(QStringLiteral("outPutNode"))
                                     .toMap()
                                     .value(QStringLiteral("audioParam"))
                                     .toMap();
    QCOMPARE(settings.value(QStringLiteral("bitrateKbps")).userType(), int(QMetaType::QString));
}

void TestFormatsProxyFitting::theCapAddsTheConverterSettingsThatAreMissing()
{
    Preset preset;
    preset.title = QStringLiteral("HD");
    preset.audioBitrates = QVariantList{text("128")};
    addFormat(QStringLiteral("MP4"), QStringLiteral("video")).addModeInfo(preset);

    const QVariantMap fitted = m_facade->getFitVideoFormatByName(
        QStringLiteral("MP4"), QStringLiteral("HD"), QStringLiteral("200"));
    const QVariantMap expected{
        {QStringLiteral("audioParam"), QVariantMap{{QStringLiteral("bitrateKbps"), text("128")}}}};
    QCOMPARE(fitted.value(QStringLiteral("outPutNode")).toMap(), expected);
}

void TestFormatsProxyFitting::theCapChangesNoModel()
{
    Preset preset;
    preset.title = QStringLiteral("HD");
    preset.audioBitrates = QVariantList{text("128")};
    FormatDetailModel &mp4 = addFormat(QStringLiteral("MP4"), QStringLiteral("video"));
    mp4.addModeInfo(preset);
    QSignalSpy changed(&mp4, &QAbstractItemModel::dataChanged);

    QVERIFY(!m_facade
                 ->getFitVideoFormatByName(QStringLiteral("MP4"), QStringLiteral("HD"),
                                           QStringLiteral("200"))
                 .isEmpty());
    QCOMPARE(presetAt(mp4, 0).toVarMap(), preset.toVarMap());
    QCOMPARE(changed.count(), 0);
}

void TestFormatsProxyFitting::aFormatIsSupportedByItsUpperCaseTitleAndTag_data()
{
    QTest::addColumn<QString>("format");
    QTest::addColumn<bool>("supported");
    QTest::addColumn<bool>("isVideo");
    const auto row = [](const char *name, const char *format, bool supported, bool isVideo) {
        QTest::newRow(name) << QString::fromLatin1(format) << supported << isVideo;
    };
    row("video", "MP4", true, true);
    row("video in lower case", "mp4", true, true);
    row("audio", "MP3", true, false);
    row("audio in mixed case", "mP3", true, false);
    row("device", "PHONE", false, false);
    row("a title in lower case", "wav", false, false);
    row("a video title in lower case", "avi", false, false);
    row("unknown", "MOV", false, false);
    row("empty", "", false, false);
}

void TestFormatsProxyFitting::aFormatIsSupportedByItsUpperCaseTitleAndTag()
{
    QFETCH(const QString, format);
    QFETCH(const bool, supported);
    QFETCH(const bool, isVideo);
    addFormat(QStringLiteral("MP4"), QStringLiteral("video"));
    addFormat(QStringLiteral("avi"), QStringLiteral("video"));
    addFormat(QStringLiteral("MP3"), QStringLiteral("audio"));
    addFormat(QStringLiteral("wav"), QStringLiteral("audio"));
    addFormat(QStringLiteral("PHONE"), QStringLiteral("device"));
    QCOMPARE(m_facade->getSupportFormat(format), supported);
    QCOMPARE(m_facade->isVideoType(format), isVideo);
}

void TestFormatsProxyFitting::audioBitratesAreOfferedInReverse_data()
{
    QTest::addColumn<QStringList>("stored");
    QTest::addColumn<QStringList>("offered");
    const QStringList fallback = words("320 256 128");
    QTest::newRow("highest first") << words("0 128 192 320") << words("320 192 128");
    QTest::newRow("in the reverse of their order") << words("0 9 1 5") << words("5 1 9");
    QTest::newRow("whatever the first one is") << words("64 128") << words("128");
    QTest::newRow("only one") << words("0") << fallback;
    QTest::newRow("none") << QStringList() << fallback;
}

void TestFormatsProxyFitting::audioBitratesAreOfferedInReverse()
{
    QFETCH(const QStringList, stored);
    QFETCH(const QStringList, offered);
    Preset first;
    first.audioBitrates = QVariant(stored).toList();
    Preset second;
    second.audioBitrates = QVariantList{text("0"), text("1")};
    FormatDetailModel &mp3 = addFormat(QStringLiteral("MP3"), QStringLiteral("audio"));
    mp3.addModeInfo(first);
    mp3.addModeInfo(second);

    QCOMPARE(m_facade->getSupportAudioLisrfromType(QStringLiteral("mp3")),
             QVariant(offered).toList());
    QCOMPARE(m_log->takeAll(), QStringList{infoLine});
    QCOMPARE(presetAt(mp3, 0).audioBitrates, first.audioBitrates);
}

void TestFormatsProxyFitting::withoutABuiltInFirstPresetTheUsualBitratesAreOffered_data()
{
    QTest::addColumn<QString>("type");
    QTest::newRow("unknown format") << QStringLiteral("wav");
    QTest::newRow("a title in lower case") << QStringLiteral("ogg");
    QTest::newRow("no presets") << QStringLiteral("FLAC");
    QTest::newRow("a user-defined first preset") << QStringLiteral("MP3");
}

// Nothing is reversed, nothing is logged.
void TestFormatsProxyFitting::withoutABuiltInFirstPresetTheUsualBitratesAreOffered()
{
    QFETCH(const QString, type);
    Preset preset;
    preset.audioBitrates = QVariantList{text("0"), text("64")};
    addFormat(QStringLiteral("ogg"), QStringLiteral("audio")).addModeInfo(preset);
    addFormat(QStringLiteral("FLAC"), QStringLiteral("audio"));
    Preset own = preset;
    own.userDefine = true;
    FormatDetailModel &mp3 = addFormat(QStringLiteral("MP3"), QStringLiteral("audio"));
    mp3.addModeInfo(own);
    mp3.addModeInfo(preset);
    QCOMPARE(m_facade->getSupportAudioLisrfromType(type),
             (QVariantList{text("320"), text("256"), text("128")}));
}

void TestFormatsProxyFitting::theBitratesOfferedKeepTheirTypes()
{
    Preset preset;
    preset.audioBitrates = QVariantList{0, 128, text("256")};
    addFormat(QStringLiteral("MP3"), QStringLiteral("audio")).addModeInfo(preset);
    const QVariantList offered = m_facade->getSupportAudioLisrfromType(QStringLiteral("MP3"));
    QCOMPARE(m_log->takeAll(), QStringList{infoLine});
    QCOMPARE(offered, (QVariantList{text("256"), 128}));
    QCOMPARE(offered.at(0).userType(), int(QMetaType::QString));
    QCOMPARE(offered.at(1).userType(), int(QMetaType::Int));
}

QTEST_GUILESS_MAIN(TestFormatsProxyFitting)
#include "tst_formatsproxy_fitting.moc"
