#include "host/convert/outputsettings.h"

#include <QtTest>

#include <functional>
#include <limits>

using Change = std::function<void(OutputSettings &)>;
Q_DECLARE_METATYPE(Change)

class TestOutputSettings : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void chosenValuesAreTakenFromTheMap();
    void zeroKeepsTheSource_data();
    void zeroKeepsTheSource();
    void aMapWithoutVideoIsAudioOnly();
    void theVideoBitrateIsTheConvertersOwn_data();
    void theVideoBitrateIsTheConvertersOwn();
    void aPresetCanStateHowItsVideoIsEncoded();
    void aTextThatIsNoSizeIsNoBox_data();
    void aTextThatIsNoSizeIsNoBox();
    void whatNoFileCanHaveIsNamed_data();
    void whatNoFileCanHaveIsNamed();
    void whatFilesCanHaveIsNoProblem_data();
    void whatFilesCanHaveIsNoProblem();
    void aCutMustHoldSomething_data();
    void aCutMustHoldSomething();
    void settingsAreTheSameWhenAllValuesAre_data();
    void settingsAreTheSameWhenAllValuesAre();
    void aCutIsAsLongAsWhatIsKept_data();
    void aCutIsAsLongAsWhatIsKept();

private:
    static QVariantMap preset()
    {
        return {
            {QStringLiteral("extension"), QStringLiteral("MP4")},
            {QStringLiteral("supportMultiTrack"), true},
            {QStringLiteral("video"),
             QVariantMap{{QStringLiteral("encoder"), QStringLiteral("h264")},
                         {QStringLiteral("frameRate"), QStringLiteral("29.97")},
                         {QStringLiteral("resolution"), QStringLiteral("1280x720")},
                         {QStringLiteral("bitrateMid"), QStringLiteral("3000")}}},
            {QStringLiteral("audio"),
             QVariantMap{{QStringLiteral("encoder"), QStringLiteral("aac")},
                         {QStringLiteral("sampleRate"), QStringLiteral("44100")},
                         {QStringLiteral("channel"), QStringLiteral("2")},
                         {QStringLiteral("bitrate"), QStringLiteral("12.2")}}},
            {QStringLiteral("outPutNode"),
             QVariantMap{{QStringLiteral("videoParam"),
                          QVariantMap{{QStringLiteral("bitrateKbps"), 4000}}}}},
        };
    }

    static QVariantMap with(const QString &group, const QString &key, const QVariant &value)
    {
        QVariantMap map = preset();
        QVariantMap inner = map.value(group).toMap();
        inner.insert(key, value);
        map.insert(group, inner);
        return map;
    }
};

void TestOutputSettings::chosenValuesAreTakenFromTheMap()
{
    const OutputSettings settings = OutputSettings::fromPreset(preset());
    QCOMPARE(settings.extension, QStringLiteral("mp4"));
    QVERIFY(settings.hasVideo);
    QCOMPARE(settings.videoCodec, QStringLiteral("h264"));
    QCOMPARE(settings.frameRate.toText(), QStringLiteral("30000/1001"));
    QCOMPARE(settings.box, QSize(1280, 720));
    QCOMPARE(settings.videoKbps, 4000.0);
    QCOMPARE(settings.audioCodec, QStringLiteral("aac"));
    QCOMPARE(settings.sampleRate, 44100);
    QCOMPARE(settings.channels, 2);
    QCOMPARE(settings.audioKbps, 12.2);
}

void TestOutputSettings::zeroKeepsTheSource_data()
{
    QTest::addColumn<QVariant>("zero");
    QTest::newRow("text") << QVariant(QStringLiteral("0"));
    QTest::newRow("number") << QVariant(0);
    QTest::newRow("empty text") << QVariant(QString());
    QTest::newRow("nothing") << QVariant();
}

void TestOutputSettings::zeroKeepsTheSource()
{
    QFETCH(QVariant, zero);
    const QString video = QStringLiteral("video");
    const QString audio = QStringLiteral("audio");
    const auto settings = [&zero](const QString &group, const char *key) {
        return OutputSettings::fromPreset(with(group, QLatin1String(key), zero));
    };
    QVERIFY(settings(video, "encoder").videoCodec.isEmpty());
    QVERIFY(!settings(video, "frameRate").frameRate.isValid());
    QVERIFY(settings(video, "resolution").box.isEmpty());
    QVERIFY(settings(audio, "encoder").audioCodec.isEmpty());
    QCOMPARE(settings(audio, "sampleRate").sampleRate, 0);
    QCOMPARE(settings(audio, "channel").channels, 0);
    QCOMPARE(settings(audio, "bitrate").audioKbps, 0.0);
}

void TestOutputSettings::aMapWithoutVideoIsAudioOnly()
{
    // What a user's audio preset looks like: its outPutNode speaks of video all the same.
    QVariantMap map = preset();
    map.remove(QStringLiteral("video"));
    const OutputSettings settings = OutputSettings::fromPreset(map);
    QVERIFY(!settings.hasVideo);
    QCOMPARE(settings.videoKbps, 0.0);
    QCOMPARE(settings.audioCodec, QStringLiteral("aac"));
}

void TestOutputSettings::theVideoBitrateIsTheConvertersOwn_data()
{
    QTest::addColumn<QVariant>("node");
    QTest::addColumn<double>("kbps");

    const auto node = [](const QVariant &kbps) {
        return QVariant(QVariantMap{
            {QStringLiteral("videoParam"), QVariantMap{{QStringLiteral("bitrateKbps"), kbps}}}});
    };
    QTest::newRow("number") << node(5000) << 5000.0;
    QTest::newRow("text") << node(QStringLiteral("2500")) << 2500.0;
    QTest::newRow("0 is good quality, not the middle level") << node(0) << 0.0;
    QTest::newRow("no bitrate there") << QVariant(QVariantMap()) << 3000.0;
    QTest::newRow("nothing there") << QVariant() << 3000.0;
}

void TestOutputSettings::theVideoBitrateIsTheConvertersOwn()
{
    QFETCH(QVariant, node);
    QFETCH(double, kbps);
    QVariantMap map = preset();
    map.insert(QStringLiteral("outPutNode"), node);
    QCOMPARE(OutputSettings::fromPreset(map).videoKbps, kbps);
}

void TestOutputSettings::aPresetCanStateHowItsVideoIsEncoded()
{
    const auto settings = [](const QVariantMap &param) {
        QVariantMap map = preset();
        map.insert(QStringLiteral("outPutNode"),
                   QVariantMap{{QStringLiteral("videoParam"), param}});
        return OutputSettings::fromPreset(map);
    };
    const OutputSettings stated =
        settings({{QStringLiteral("quality"), QStringLiteral("-0.5")},
                  {QStringLiteral("rateMode"), QStringLiteral("average")},
                  {QStringLiteral("bufferSeconds"), QStringLiteral("10")},
                  {QStringLiteral("keyFrameInterval"), QStringLiteral("30")},
                  {QStringLiteral("h264Speed"), QStringLiteral("slow")},
                  {QStringLiteral("h264Tune"), QStringLiteral("film")},
                  {QStringLiteral("hevcSpeed"), QStringLiteral("fast")}});
    QCOMPARE(stated.quality, -0.5);
    QVERIFY(stated.mustEncode);
    QVERIFY(stated.averagesBitrate);
    QCOMPARE(stated.bufferSeconds, 10.0);
    QCOMPARE(stated.keyFrameInterval, 30);
    QCOMPARE(stated.speed, QStringLiteral("slow"));
    QCOMPARE(stated.tune, QStringLiteral("film"));
    QVERIFY(settings({{QStringLiteral("quality"), QStringLiteral("0")}}).mustEncode);
    QVERIFY(!settings({{QStringLiteral("quality"), QStringLiteral("high")}}).mustEncode);
}

void TestOutputSettings::aTextThatIsNoSizeIsNoBox_data()
{
    QTest::addColumn<QString>("text");
    QTest::newRow("height only") << QStringLiteral("1080");
    QTest::newRow("half") << QStringLiteral("1920x");
    QTest::newRow("three") << QStringLiteral("1x2x3");
    QTest::newRow("word") << QStringLiteral("HD");
    QTest::newRow("no height") << QStringLiteral("1920x0");
}

void TestOutputSettings::aTextThatIsNoSizeIsNoBox()
{
    QFETCH(QString, text);
    QVERIFY(OutputSettings::fromPreset(
                with(QStringLiteral("video"), QStringLiteral("resolution"), text))
                .box.isEmpty());
}

void TestOutputSettings::whatNoFileCanHaveIsNamed_data()
{
    QTest::addColumn<QVariantMap>("map");
    QTest::addColumn<QString>("problem");

    const auto extension = [](const char *name, const QString &text, const QString &told) {
        QVariantMap map = preset();
        map.insert(QStringLiteral("extension"), text);
        QTest::newRow(name) << map
                            << QStringLiteral("files of the kind \".%1\" can't be written; choose "
                                              "another preset")
                                   .arg(told);
    };
    extension("unknown extension", QStringLiteral("xyz"), QStringLiteral("xyz"));
    extension("no extension", QString(), QString());
    extension("two extensions", QStringLiteral("mp4 mkv"), QStringLiteral("mp4 mkv"));
    extension("a path", QStringLiteral("../../x/mp4"), QStringLiteral("../../x/mp4"));
    extension("control characters", QStringLiteral("mp4\n\x1b[2J"), QStringLiteral("mp4??[2j"));
    extension("a long extension", QString(300, QLatin1Char('a')),
              QString(40, QLatin1Char('a')) + QStringLiteral("..."));

    const auto row = [](const char *group, const char *key, const QVariant &value,
                        const QString &problem) {
        QTest::addRow("%s.%s %s", group, key, qPrintable(value.toString().left(20)))
            << with(QLatin1String(group), QLatin1String(key), value) << problem;
    };
    const QString encoder = QStringLiteral("no encoder has a name like \"%1\"; choose another "
                                           "preset");
    row("video", "encoder", QStringLiteral("h264 -y /x"),
        encoder.arg(QStringLiteral("h264 -y /x")));
    row("audio", "encoder", QStringLiteral("aac\n"), encoder.arg(QStringLiteral("aac?")));
    row("audio", "encoder", QString(500, QLatin1Char('x')),
        encoder.arg(QString(40, QLatin1Char('x')) + QStringLiteral("...")));

    const auto number = [&row](const char *group, const char *key, const QVariant &value,
                               const char *told, const char *allowed) {
        row(group, key, value,
            QStringLiteral("the preset's %1.%2 is %3; it must be 0 or %4; choose another preset")
                .arg(QLatin1String(group), QLatin1String(key), QLatin1String(told),
                     QLatin1String(allowed)));
    };
    const char invalid[] = "not a valid number";
    const char rates[] = "1-300 fps";
    number("video", "frameRate", 1000000, "1000000", rates);
    number("video", "frameRate", QStringLiteral("300.5"), "300.5", rates);
    number("video", "frameRate", QStringLiteral("0.5"), "0.5", rates);
    for (const char *text : {"-25", "1e9", "nan", "fast", "0.0000001", "9999999999999", "1/0"}) {
        number("video", "frameRate", QString::fromLatin1(text), invalid, rates);
    }
    const char sides[] = "1-16384 px";
    number("video", "resolution", QStringLiteral("16385x2"), "16385x2", sides);
    number("video", "resolution", QStringLiteral("2x99999999999999"), "2x2147483647", sides);
    for (const char *text : {"1920x0", "0x0", "HD", "1920x", "-2x-2", "1920x1080\n"}) {
        number("video", "resolution", QString::fromLatin1(text), invalid, sides);
    }
    const char frequencies[] = "1000-768000 Hz";
    number("audio", "sampleRate", 999, "999", frequencies);
    number("audio", "sampleRate", 768001, "768001", frequencies);
    number("audio", "sampleRate", QStringLiteral("1e300"), "2147483647", frequencies);
    number("audio", "sampleRate", QStringLiteral("44100.5"), invalid, frequencies);
    number("audio", "sampleRate", -44100, invalid, frequencies);
    number("audio", "sampleRate", QStringLiteral("nan"), invalid, frequencies);
    number("audio", "channel", 65, "65", "1-64");
    number("audio", "channel", QStringLiteral("5.1"), invalid, "1-64");
    const char audioKbps[] = "1-100000 kbps";
    number("audio", "bitrate", 100001, "100001", audioKbps);
    number("audio", "bitrate", QStringLiteral("0.001"), "0.001", audioKbps);
    number("audio", "bitrate", QStringLiteral("inf"), "inf", audioKbps);
    number("audio", "bitrate", QStringLiteral("nan"), invalid, audioKbps);
    number("audio", "bitrate", -1, invalid, audioKbps);

    QVariantMap map = preset();
    map.insert(QStringLiteral("outPutNode"),
               QVariantMap{{QStringLiteral("videoParam"),
                            QVariantMap{{QStringLiteral("bitrateKbps"), 1e12}}}});
    QTest::newRow("video.bitrate")
        << map
        << QStringLiteral("the preset's video.bitrate is 1e+12; it must be 0 or 1-1000000 kbps; "
                          "choose another preset");
}

void TestOutputSettings::whatNoFileCanHaveIsNamed()
{
    QFETCH(QVariantMap, map);
    const Result<> checked = OutputSettings::fromPreset(map).validate();
    QVERIFY(!checked);
    QTEST(checked.error().text, "problem");
}

void TestOutputSettings::whatFilesCanHaveIsNoProblem_data()
{
    QTest::addColumn<QVariantMap>("map");
    const auto row = [](const char *group, const char *key, const QVariant &value) {
        QTest::addRow("%s.%s %s", group, key, qPrintable(value.toString()))
            << with(QLatin1String(group), QLatin1String(key), value);
    };
    QTest::newRow("usual") << preset();
    row("video", "encoder", QStringLiteral("libvpx-vp9"));
    for (const char *rate : {"0", "0.0", "1", "23.976", "30000/1001", "300"}) {
        row("video", "frameRate", QString::fromLatin1(rate));
    }
    for (const char *size : {"0", "1x1", "16384x16384"}) {
        row("video", "resolution", QString::fromLatin1(size));
    }
    row("audio", "sampleRate", 1000);
    row("audio", "sampleRate", 768000.0);
    row("audio", "channel", 64);
    row("audio", "bitrate", 4.75);
    row("audio", "bitrate", 100000);
    QVariantMap sound = preset();
    sound.remove(QStringLiteral("video"));
    QTest::newRow("no video") << sound;
}

void TestOutputSettings::whatFilesCanHaveIsNoProblem()
{
    QFETCH(QVariantMap, map);
    const Result<> checked = OutputSettings::fromPreset(map).validate();
    QVERIFY2(checked, qPrintable(checked ? QString() : checked.error().text));
}

void TestOutputSettings::aCutMustHoldSomething_data()
{
    QTest::addColumn<double>("start");
    QTest::addColumn<double>("end");
    QTest::addColumn<bool>("isPossible");
    const double nan = std::numeric_limits<double>::quiet_NaN();
    const double infinity = std::numeric_limits<double>::infinity();
    QTest::newRow("all") << 0.0 << 0.0 << true;
    QTest::newRow("from a start") << 4.0 << 0.0 << true;
    QTest::newRow("both") << 4.0 << 4.1 << true;
    QTest::newRow("nothing") << 4.0 << 4.0 << false;
    QTest::newRow("the wrong way round") << 4.0 << 3.0 << false;
    QTest::newRow("before the beginning") << -1.0 << 3.0 << false;
    QTest::newRow("an end before the beginning") << 0.0 << -3.0 << false;
    QTest::newRow("start nan") << nan << 3.0 << false;
    QTest::newRow("end nan") << 0.0 << nan << false;
    QTest::newRow("start infinite") << infinity << 0.0 << false;
    QTest::newRow("end infinite") << 0.0 << infinity << false;
}

void TestOutputSettings::aCutMustHoldSomething()
{
    QFETCH(double, start);
    QFETCH(double, end);
    QFETCH(bool, isPossible);
    OutputSettings settings = OutputSettings::fromPreset(preset());
    settings.start = start;
    settings.end = end;
    const Result<> checked = settings.validate();
    QCOMPARE(checked.has_value(), isPossible);
    if (!isPossible) {
        QCOMPARE(checked.error().text,
                 QStringLiteral("the part to keep must begin at 0 or later and end after that; "
                                "choose another part"));
    }
}

void TestOutputSettings::settingsAreTheSameWhenAllValuesAre_data()
{
    QTest::addColumn<Change>("change");
    const auto row = [](const char *name, const Change &change) { QTest::newRow(name) << change; };
    row("extension", [](OutputSettings &s) { s.extension = QStringLiteral("avi"); });
    row("picture", [](OutputSettings &s) { s.hasVideo = false; });
    row("video codec", [](OutputSettings &s) { s.videoCodec = QStringLiteral("hevc"); });
    row("frame rate", [](OutputSettings &s) { s.frameRate = {30, 1}; });
    row("box", [](OutputSettings &s) { s.box = QSize(720, 1280); });
    row("video bitrate", [](OutputSettings &s) { s.videoKbps = 1; });
    row("audio codec", [](OutputSettings &s) { s.audioCodec = QStringLiteral("mp3"); });
    row("sample rate", [](OutputSettings &s) { s.sampleRate = 8000; });
    row("channels", [](OutputSettings &s) { s.channels = 1; });
    row("audio bitrate", [](OutputSettings &s) { s.audioKbps = 12; });
    row("audio tracks", [](OutputSettings &s) { s.audioTracks = {TrackChoice::First}; });
    row("subtitles", [](OutputSettings &s) { s.subtitles = {TrackChoice::None}; });
    row("burned subtitles", [](OutputSettings &s) { s.burnedSubtitles = 1; });
    row("seconds of a picture", [](OutputSettings &s) { s.stillSeconds = 1; });
    row("start", [](OutputSettings &s) { s.start = 1; });
    row("end", [](OutputSettings &s) { s.end = 1; });
}

void TestOutputSettings::settingsAreTheSameWhenAllValuesAre()
{
    QFETCH(Change, change);
    const OutputSettings settings = OutputSettings::fromPreset(preset());
    OutputSettings other = OutputSettings::fromPreset(preset());
    QVERIFY(settings == other);
    change(other);
    QVERIFY(!(settings == other));
}

void TestOutputSettings::aCutIsAsLongAsWhatIsKept_data()
{
    QTest::addColumn<double>("start");
    QTest::addColumn<double>("end");
    QTest::addColumn<double>("source");
    QTest::addColumn<double>("kept");
    QTest::newRow("all") << 0.0 << 0.0 << 10.0 << 10.0;
    QTest::newRow("from a start") << 4.0 << 0.0 << 10.0 << 6.0;
    QTest::newRow("to an end") << 0.0 << 7.0 << 10.0 << 7.0;
    QTest::newRow("both") << 4.0 << 7.0 << 10.0 << 3.0;
    QTest::newRow("an end past the source's") << 4.0 << 70.0 << 10.0 << 6.0;
    QTest::newRow("a start past the source's end") << 40.0 << 0.0 << 10.0 << 0.0;
    QTest::newRow("unknown length") << 0.0 << 0.0 << 0.0 << 0.0;
    QTest::newRow("unknown length, both") << 4.0 << 7.0 << 0.0 << 3.0;
}

void TestOutputSettings::aCutIsAsLongAsWhatIsKept()
{
    QFETCH(double, start);
    QFETCH(double, end);
    QFETCH(double, source);
    OutputSettings settings;
    settings.start = start;
    settings.end = end;
    QTEST(settings.cutDuration(source), "kept");
}

QTEST_GUILESS_MAIN(TestOutputSettings)
#include "tst_outputsettings.moc"
