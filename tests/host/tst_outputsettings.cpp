#include "host/convert/outputsettings.h"

#include <QtTest>

#include <functional>

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
    void aTextThatIsNoSizeIsNoBox_data();
    void aTextThatIsNoSizeIsNoBox();
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
    QVERIFY(settings.hasPicture);
    QCOMPARE(settings.videoCodec, QStringLiteral("h264"));
    QCOMPARE(settings.frameRate.toText(), QStringLiteral("30000/1001"));
    QCOMPARE(settings.box, QSize(1280, 720));
    QCOMPARE(settings.videoKbps, 4000.0);
    QCOMPARE(settings.audioCodec, QStringLiteral("aac"));
    QCOMPARE(settings.sampleRate, 44100);
    QCOMPARE(settings.channels, 2);
    QCOMPARE(settings.audioKbps, 12.2);
    QVERIFY(settings.allAudioTracks);
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
    QVERIFY(!settings.hasPicture);
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

void TestOutputSettings::settingsAreTheSameWhenAllValuesAre_data()
{
    QTest::addColumn<Change>("change");
    const auto row = [](const char *name, const Change &change) { QTest::newRow(name) << change; };
    row("extension", [](OutputSettings &s) { s.extension = QStringLiteral("avi"); });
    row("picture", [](OutputSettings &s) { s.hasPicture = false; });
    row("video codec", [](OutputSettings &s) { s.videoCodec = QStringLiteral("hevc"); });
    row("frame rate", [](OutputSettings &s) { s.frameRate = {30, 1}; });
    row("box", [](OutputSettings &s) { s.box = QSize(720, 1280); });
    row("video bitrate", [](OutputSettings &s) { s.videoKbps = 1; });
    row("audio codec", [](OutputSettings &s) { s.audioCodec = QStringLiteral("mp3"); });
    row("sample rate", [](OutputSettings &s) { s.sampleRate = 8000; });
    row("channels", [](OutputSettings &s) { s.channels = 1; });
    row("audio bitrate", [](OutputSettings &s) { s.audioKbps = 12; });
    row("audio tracks", [](OutputSettings &s) { s.allAudioTracks = false; });
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
