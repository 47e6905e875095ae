#include "tests/formats/proxy/facadetest.h"

class TestFormatsProxyParameters : public FacadeTest
{
    Q_OBJECT

private Q_SLOTS:
    void videoParametersAreClosestByArea_data();
    void videoParametersAreClosestByArea();
    void audioParametersAreClosestByBitrate_data();
    void audioParametersAreClosestByBitrate();
    void userDefinedPresetsAreIgnored();
    void anUnsupportedFormatFallsBackToItsTypesDefault_data();
    void anUnsupportedFormatFallsBackToItsTypesDefault();
    void parametersNeedAFormatWithPresets_data();
    void parametersNeedAFormatWithPresets();

private:
    // Presets with these values in one field, and the title, which is the index, of the chosen one.
    static void addColumns();
    static void row(const char *name, const char *values, const QVariant &target, bool preferSource,
                    const char *title);
    void compareChoice(const QString &type, QString Preset::*member);

    static QVariant text(const char *latin1) { return QString::fromLatin1(latin1); }
};

void TestFormatsProxyParameters::addColumns()
{
    QTest::addColumn<QStringList>("values");
    QTest::addColumn<QVariant>("target");
    QTest::addColumn<bool>("preferSource");
    QTest::addColumn<QString>("title");
}

void TestFormatsProxyParameters::row(const char *name, const char *values, const QVariant &target,
                                     bool preferSource, const char *title)
{
    QTest::newRow(name) << words(values) << target << preferSource << QString::fromLatin1(title);
}

void TestFormatsProxyParameters::compareChoice(const QString &type, QString Preset::*member)
{
    QFETCH(const QStringList, values);
    QFETCH(const QVariant, target);
    QFETCH(const bool, preferSource);
    QFETCH(const QString, title);
    addPresets(QStringLiteral("MKV"), type, member, values);
    QCOMPARE(titleOf(m_facade->getConverterParameters(type, QStringLiteral("mkv"), target,
                                                      preferSource)),
             title);
}

void TestFormatsProxyParameters::videoParametersAreClosestByArea_data()
{
    addColumns();
    const char *sizes = "640x480 1280x720 1920x1080";
    row("an equal one", sizes, text("1280x720"), false, "1");
    row("the closest below", sizes, text("1300x720"), false, "1");
    row("the closest above", sizes, text("1900x1080"), false, "2");
    row("sides do not count, the area does", sizes, text("720x1280"), false, "1");
    row("the later one of two as close", "10x10 10x20", text("10x15"), false, "1");
    row("the last one of equal ones", "10x20 20x10 30x10", text("10x20"), false, "1");
    row("0 competes as an area of 0", "10x10 0 30x10", text("10x2"), false, "1");
    row("0 loses to a closer one", "0 10x10", text("10x8"), false, "1");
    row("0 as close as an earlier one", "10x20 0", text("10x10"), false, "1");
    row("0 as close as a later one", "0 10x20", text("10x10"), false, "1");
    row("the last one of two 0", "0 0", text("10x10"), false, "1");
    row("the source's own beats the closest", "10x10 0 20x20", text("10x10"), true, "1");
    row("the first of two of the source's own", "10x10 0 0", text("10x10"), true, "1");
    row("no source's own to prefer", sizes, text("1280x720"), true, "1");
    row("only the text 0 is the source's own", "0x0 00 10x10", text("10x10"), true, "2");
    row("a negative area puts 0 first", "-10x10 0 10x10", text("-10x10"), false, "1");
    row("a negative area without a 0", "10x10 -10x10 -20x10", text("-10x10"), false, "1");
    row("a negative area meets 0 twice, the last one first", "0 0 -10x10", text("-10x10"), false,
        "1");
    row("areas beyond 32 bits do not wrap", "2147483647x2147483647 1x1",
        text("2147483647x2147483647"), false, "0");
    row("distances beyond 32 bits are equal", "2x2 1x1 2147483647x2147483647", text("70000x70000"),
        false, "2");
    row("a distance at the end of 32 bits", "0 1x1", text("2147483647x1"), false, "1");
    row("a negative area beyond 32 bits puts 0 first", "0 -65536x65536", text("-65536x65536"),
        false, "0");
    row("the widest distance", "2147483647x2147483647 -2147483648x2147483647",
        text("-2147483648x2147483647"), false, "1");
    row("a target of a width alone has no area", "1080x1 0x5 1x1080", text("1080"), false, "1");
    row("a target without a width has no area", "1x1080 0x5 10x10", text("x1080"), false, "1");
    row("a target without a height has no area", "1080x1 0x5 10x10", text("1080x"), false, "1");
    row("a target with an empty side between", "10x5 1x1", text("10xx5"), false, "1");
    row("a resolution with an empty side between", "10x1 10xx5", text("0x0"), false, "1");
    row("a third side is left out", "2x3 2x3x4 4x6", text("2x3x4"), false, "1");
    row("an upper-case X is not an x", "1920x1080 1x1", text("1920X1080"), false, "1");
    row("a target that is not a number", "1920x1080 1x1", text("largextall"), false, "1");
    row("an empty target", "1920x1080 1x1", text(""), false, "1");
    row("no target", "1920x1080 1x1", QVariant(), false, "1");
    row("a number for a target", "1080x1 1x1", 1080, false, "1");
    row("a resolution without an x", "10x10 1080", text("0x0"), false, "1");
    row("a resolution that is not a number", "10x10 source", text("0x0"), false, "1");
    row("a resolution with an empty side", "10x10 x10", text("0x0"), false, "1");
    row("a side beyond 32 bits counts as 0", "10x10 99999999999x10", text("0x0"), false, "1");
}

void TestFormatsProxyParameters::videoParametersAreClosestByArea()
{
    compareChoice(QStringLiteral("video"), &Preset::videoResolution);
}

void TestFormatsProxyParameters::audioParametersAreClosestByBitrate_data()
{
    addColumns();
    row("an equal one", "128 192 256", text("192"), false, "1");
    row("a number for a target", "128 192 256", 200, false, "1");
    row("a fraction for a target is rounded", "128 129 150", 128.6, false, "1");
    row("the later one of two as close", "128 192 256", text("160"), false, "1");
    row("the last one of equal ones", "256 256 128", text("256"), false, "1");
    row("0 competes as a bitrate of 0", "128 0 256", text("50"), false, "1");
    row("the source's own beats the closest", "128 0 256", text("128"), true, "1");
    row("the first of two of the source's own", "128 0 0", text("128"), true, "1");
    row("no source's own to prefer", "128 192", text("192"), true, "1");
    row("only the text 0 is the source's own", "00 128", text("128"), true, "1");
    row("no number counts as 0", "256 128", text("high"), false, "1");
    row("a resolution is not a number", "256 128", text("1920x1080"), false, "1");
    row("no target", "256 128", QVariant(), false, "1");
    row("a preset without a number counts as 0", "256 high", text("1"), false, "1");
    row("a negative target", "128 0", text("-100"), false, "1");
    row("distances beyond 32 bits are equal", "2147483646 2147483647", text("-2147483648"), false,
        "1");
}

void TestFormatsProxyParameters::audioParametersAreClosestByBitrate()
{
    compareChoice(QStringLiteral("audio"), &Preset::audioBitrate);
}

void TestFormatsProxyParameters::userDefinedPresetsAreIgnored()
{
    Preset own;
    own.userDefine = true;
    own.title = QStringLiteral("own");
    FormatDetailModel &mp4 = addFormat(QStringLiteral("MP4"), QStringLiteral("video"));
    mp4.addModeInfo(own);
    const auto parameters = [this](bool preferSource) {
        return m_facade->getConverterParameters(QStringLiteral("video"), QStringLiteral("mp4"),
                                                QStringLiteral("0x0"), preferSource);
    };
    QCOMPARE(parameters(true), QVariantMap());
    QCOMPARE(parameters(false), QVariantMap());

    Preset builtIn = presetWithId(QStringLiteral("a"));
    builtIn.title = QStringLiteral("built-in");
    builtIn.videoResolution = QStringLiteral("1920x1080");
    builtIn.outPutNode = QVariantMap{{QStringLiteral("key"), 1}};
    mp4.addModeInfo(builtIn);
    mp4.addModeInfo(own);
    QCOMPARE(parameters(true), builtIn.toVarMap());
    QCOMPARE(parameters(false), builtIn.toVarMap());
}

void TestFormatsProxyParameters::anUnsupportedFormatFallsBackToItsTypesDefault_data()
{
    QTest::addColumn<QString>("type");
    QTest::addColumn<QString>("format");
    QTest::addColumn<QString>("id");
    const QString video = QStringLiteral("video");
    const QString audio = QStringLiteral("audio");
    const QString sourceOfMp4 = QStringLiteral("mp4 source");
    const QString sourceOfMp3 = QStringLiteral("mp3 source");
    QTest::newRow("an unknown video format") << video << QStringLiteral("xyz") << sourceOfMp4;
    QTest::newRow("an unknown audio format") << audio << QStringLiteral("xyz") << sourceOfMp3;
    QTest::newRow("no video format") << video << QString() << sourceOfMp4;
    QTest::newRow("a device is unsupported") << video << QStringLiteral("PHONE") << sourceOfMp4;
    QTest::newRow("a supported video format")
        << video << QStringLiteral("mp4") << QStringLiteral("mp4 1920x1080");
    QTest::newRow("a supported audio format")
        << audio << QStringLiteral("mp3") << QStringLiteral("mp3 128");
    // The type decides what is compared, not which formats are searched.
    QTest::newRow("audio of a video format")
        << audio << QStringLiteral("mp4") << QStringLiteral("mp4 1920x1080");
    QTest::newRow("an unknown type")
        << QStringLiteral("image") << QStringLiteral("mp4") << QString();
    QTest::newRow("an unknown type and format")
        << QStringLiteral("image") << QStringLiteral("xyz") << QString();
    QTest::newRow("a type in another case")
        << QStringLiteral("Video") << QStringLiteral("xyz") << QString();
    QTest::newRow("no type") << QString() << QStringLiteral("mp3") << QString();
}

void TestFormatsProxyParameters::anUnsupportedFormatFallsBackToItsTypesDefault()
{
    QFETCH(const QString, type);
    QFETCH(const QString, format);
    QFETCH(const QString, id);
    const auto add = [](FormatDetailModel &presets, const char *presetId, const char *resolution,
                        const char *bitrate) {
        Preset preset = presetWithId(QString::fromLatin1(presetId));
        preset.videoResolution = QString::fromLatin1(resolution);
        preset.audioBitrate = QString::fromLatin1(bitrate);
        presets.addModeInfo(preset);
    };
    FormatDetailModel &mp4 = addFormat(QStringLiteral("MP4"), QStringLiteral("video"));
    add(mp4, "mp4 source", "0", "0");
    add(mp4, "mp4 1920x1080", "1920x1080", "1920");
    FormatDetailModel &mp3 = addFormat(QStringLiteral("MP3"), QStringLiteral("audio"));
    add(mp3, "mp3 source", "0", "0");
    add(mp3, "mp3 128", "1x1", "128");
    add(addFormat(QStringLiteral("PHONE"), QStringLiteral("device")), "phone", "1920x1080", "128");

    // Closest to the last presets, unless the one that keeps the source's value is preferred.
    const QVariant target = type == QLatin1String("audio") ? QVariant(1920) : text("1920x1080");
    QCOMPARE(m_facade->getConverterParameters(type, format, target, false)
                 .value(QStringLiteral("id"))
                 .toString(),
             id);
}

void TestFormatsProxyParameters::parametersNeedAFormatWithPresets_data()
{
    QTest::addColumn<QString>("type");
    QTest::addColumn<QString>("format");
    QTest::newRow("no presets") << QStringLiteral("video") << QStringLiteral("AVI");
    QTest::newRow("no default video format") << QStringLiteral("video") << QStringLiteral("xyz");
    QTest::newRow("no default audio format") << QStringLiteral("audio") << QStringLiteral("xyz");
}

void TestFormatsProxyParameters::parametersNeedAFormatWithPresets()
{
    QFETCH(const QString, type);
    QFETCH(const QString, format);
    addFormat(QStringLiteral("AVI"), QStringLiteral("video"));
    addFormat(QStringLiteral("XYZ"), QStringLiteral("device")).addModeInfo(Preset());
    QCOMPARE(m_facade->getConverterParameters(type, format, QVariant(), true), QVariantMap());
}

QTEST_GUILESS_MAIN(TestFormatsProxyParameters)
#include "tst_formatsproxy_parameters.moc"
