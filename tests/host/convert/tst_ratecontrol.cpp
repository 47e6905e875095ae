#include "host/convert/ratecontrol.h"

#include <QtTest>

Q_DECLARE_METATYPE(OutputSettings)

/*! How a preset's bitrate, quality and device reach an encoder. */
class TestRateControl : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void theBitrateIsACeiling_data();
    void theBitrateIsACeiling() { compareWithRow(); }
    void whoeverAsksGetsTheAverage_data();
    void whoeverAsksGetsTheAverage() { compareWithRow(); }
    void theDeviceLimitsTheStream_data();
    void theDeviceLimitsTheStream() { compareWithRow(); }
    void aPresetChoosesTheSpeedAndTheContent();
    void aHigherBitrateIsABetterPicture_data();
    void aHigherBitrateIsABetterPicture();

private:
    static OutputSettings atMost(double kbps)
    {
        OutputSettings settings;
        settings.extension = QStringLiteral("mkv");
        settings.hasVideo = true;
        settings.videoKbps = kbps;
        return settings;
    }
    static void addColumns();
    static void row(const char *name, const char *codec, const OutputSettings &settings,
                    const char *options);
    static void compareWithRow();
};

void TestRateControl::addColumns()
{
    QTest::addColumn<QString>("codec");
    QTest::addColumn<OutputSettings>("settings");
    QTest::addColumn<QString>("options");
}

void TestRateControl::row(const char *name, const char *codec, const OutputSettings &settings,
                          const char *options)
{
    QTest::newRow(name) << QString::fromLatin1(codec) << settings << QString::fromLatin1(options);
}

void TestRateControl::compareWithRow()
{
    QFETCH(QString, codec);
    QFETCH(OutputSettings, settings);
    QFETCH(QString, options);
    const VideoCodec written = videoCodec(codec);
    VideoCodec::Encoder encoder = written.encoders.constFirst();
    encoder.options.clear(); // those say nothing of the rate
    QCOMPARE(toArguments(rateOptions(written, encoder, settings, {QSize(640, 360), {25, 1}}))
                 .join(QLatin1Char(' ')),
             options);
}

void TestRateControl::theBitrateIsACeiling_data()
{
    addColumns();
    row("h264", "h264", atMost(2000), "-crf 21.5 -maxrate 2000k -bufsize 2000k");
    row("an encoder that has to know its target", "vp9", atMost(2000),
        "-crf 31 -b 2000k -maxrate 2000k -bufsize 2000k");
    row("an encoder without constant quality", "mpeg4", atMost(2000),
        "-b 2000k -qmin 4 -maxrate 2000k -bufsize 2000k");
    row("an encoder that can't hold back", "theora", atMost(2000), "-b 864k");
    row("the same, below what the picture needs", "theora", atMost(500), "-b 500k");
    row("no bitrate", "vp9", atMost(0), "-crf 31 -b 0");
}

void TestRateControl::whoeverAsksGetsTheAverage_data()
{
    addColumns();
    OutputSettings average = atMost(2000);
    average.averagesBitrate = true;
    row("h264", "h264", average, "-b 2000k");
    row("theora", "theora", average, "-b 2000k");
    average.peakKbps = 3000;
    row("a device's peak", "h264", average, "-b 2000k -maxrate 2000k -bufsize 1000k");
    row("an encoder that takes one of both", "av1", average, "-b 2000k");
}

void TestRateControl::theDeviceLimitsTheStream_data()
{
    addColumns();
    OutputSettings device = atMost(6000);
    device.peakKbps = 10000;
    row("its peak", "h264", device, "-crf 21.5 -maxrate 6000k -bufsize 4000k");
    device.peakKbps = 6000;
    row("a peak at the bitrate", "h264", device, "-crf 21.5 -maxrate 6000k -bufsize 1500k");
    device = atMost(0);
    device.level = QStringLiteral("4.1");
    device.profile = QStringLiteral("main");
    row("level and profile", "h264", device, "-crf 21.5 -level 4.1 -profile main");
    device.profile.clear();
    row("the level of hevc", "hevc", device,
        "-crf 23 -x265-params log-level=error:high-tier=0:level-idc=4.1");
}

void TestRateControl::aPresetChoosesTheSpeedAndTheContent()
{
    OutputSettings settings = atMost(0);
    settings.speed = QStringLiteral("slow");
    settings.tune = QStringLiteral("film");
    settings.keyFrameInterval = 30;
    const auto optionsOf = [&settings](const char *name) {
        const VideoCodec codec = videoCodec(QLatin1String(name));
        return toArguments(rateOptions(codec, codec.encoders.constFirst(), settings,
                                       {QSize(640, 360), {25, 1}}))
            .join(QLatin1Char(' '));
    };
    QCOMPARE(optionsOf("h264"), QStringLiteral("-preset slow -crf 21.5 -g 30 -tune film"));
    settings.tune.clear();
    QVERIFY2(!optionsOf("vp9").contains(QStringLiteral("slow")), "vp9 has no such word");
}

void TestRateControl::aHigherBitrateIsABetterPicture_data()
{
    QTest::addColumn<QString>("codec");
    for (const char *codec : {"h264", "hevc", "vp8", "vp9", "av1", "mpeg4", "mjpeg", "theora"}) {
        QTest::newRow(codec) << QString::fromLatin1(codec);
    }
}

void TestRateControl::aHigherBitrateIsABetterPicture()
{
    QFETCH(QString, codec);
    const VideoCodec written = videoCodec(codec);
    const VideoCodec::Encoder &encoder = written.encoders.constFirst();
    const auto valueAt = [&](double quality) {
        OutputSettings settings = atMost(0);
        settings.quality = quality;
        const ToolOptions options =
            rateOptions(written, encoder, settings, {QSize(640, 360), {25, 1}});
        for (const ToolOption &option : options) {
            if (option.name == encoder.quality.option) {
                return option.value.toDouble();
            }
        }
        return -1.0;
    };
    const double better = encoder.quality.step < 0 ? -1 : 1;
    QVERIFY((valueAt(1) - valueAt(0)) * better > 0);
    QVERIFY((valueAt(0) - valueAt(-1)) * better > 0);
    // No value beyond the encoder's own.
    QCOMPARE(valueAt(100), encoder.quality.finest);
}

QTEST_GUILESS_MAIN(TestRateControl)
#include "tst_ratecontrol.moc"
