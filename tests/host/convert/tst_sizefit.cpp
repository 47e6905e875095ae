#include "host/convert/sizefit.h"
#include "tests/host/convert/plannedcommand.h"

using namespace PlannedCommand;

/*! How a result gets the size that is asked for. */
class TestSizeFit : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void aSizeNearTheAskedOneIsKept_data();
    void aSizeNearTheAskedOneIsKept();
    void theBitrateIsCorrectedByWhatCameOut_data();
    void theBitrateIsCorrectedByWhatCameOut();
    void aPictureThatNeedsNoMoreIsLeftSmall();
    void theBestOfAnUnsteadyEncoderIsTaken();
    void theVideoGetsWhatTheAudioLeaves();
    void aPeakOfTheDeviceStays();
    void audioIsNeverTooLarge();
    void whatCannotHaveTheSizeIsSaid_data();
    void whatCannotHaveTheSizeIsSaid();
    void aPoorPictureIsSaid();
    void theMostBytesAreThoseOfTheStreams();

private:
    static MediaFacts minute()
    {
        return facts(film(), [](MediaFacts &f) { f.duration = 60; });
    }
    static OutputSettings sized(OutputSettings settings, double bytes)
    {
        settings.targetBytes = bytes;
        return settings;
    }
    static Result<OutputSettings> fitted(const OutputSettings &settings, const MediaFacts &source)
    {
        const QSet<QString> encoders = usualEncoders();
        return fittedToSize(source, {settings, *Container::find(settings.extension), encoders});
    }
};

void TestSizeFit::aSizeNearTheAskedOneIsKept_data()
{
    QTest::addColumn<int>("bytes");
    QTest::addColumn<bool>("isKept");
    QTest::newRow("just so") << 1000000 << true;
    QTest::newRow("2 % less") << 980000 << true;
    QTest::newRow("still less") << 979000 << false;
    QTest::newRow("more") << 1000001 << false;
}

void TestSizeFit::aSizeNearTheAskedOneIsKept()
{
    QFETCH(int, bytes);
    SizeFit fit(1000000, 10, 700);
    QTEST(!fit.corrects(bytes), "isKept");
}

void TestSizeFit::theBitrateIsCorrectedByWhatCameOut_data()
{
    QTest::addColumn<double>("share");
    QTest::addColumn<double>("audio");
    QTest::newRow("an encoder that writes too much") << 1.4 << 100e3;
    QTest::newRow("one that writes too little") << 0.6 << 100e3;
    QTest::newRow("more audio than expected") << 1.0 << 300e3;
    QTest::newRow("a ceiling that is far off") << 1.9 << 0.0;
}

void TestSizeFit::theBitrateIsCorrectedByWhatCameOut()
{
    QFETCH(double, share);
    QFETCH(double, audio);
    const double asked = 1e6;
    SizeFit fit(asked, 10, 700);
    const auto written = [&] { return qint64(audio + share * fit.kbps() * 10 * 1000 / 8); };
    int attempts = 0;
    while (fit.corrects(written())) {
        ++attempts;
    }
    QVERIFY2(written() <= asked && written() >= asked * 0.98,
             qPrintable(QString::number(written())));
    QVERIFY2(attempts <= 4, qPrintable(QString::number(attempts)));
}

void TestSizeFit::aPictureThatNeedsNoMoreIsLeftSmall()
{
    SizeFit fit(1000000, 10, 700);
    QVERIFY(fit.corrects(300000));
    QVERIFY(fit.kbps() > 1000);
    QVERIFY(!fit.corrects(301000));
}

void TestSizeFit::theBestOfAnUnsteadyEncoderIsTaken()
{
    SizeFit fit(1000000, 10, 700);
    double bestKbps = 0;
    const QVector<int> sizes = {1030000, 960000, 1020000, 975000, 1010000, 970000, 1040000};
    for (const int bytes : sizes) {
        const double kbps = fit.kbps();
        QVERIFY(fit.corrects(bytes));
        const bool isBest = bytes == 960000 || bytes == 975000;
        QCOMPARE(fit.isBest(), isBest);
        bestKbps = isBest ? kbps : bestKbps;
    }
    QVERIFY(!fit.corrects(1001000));
    QVERIFY(!fit.isBest());
    QCOMPARE(fit.kbps(), bestKbps);
}

void TestSizeFit::theVideoGetsWhatTheAudioLeaves()
{
    const auto kbpsWith = [](double audioKbps) {
        OutputSettings settings = sized(video("mp4", "h264", "ac3"), 10e6);
        settings.audioKbps = audioKbps;
        const Result<OutputSettings> result = fitted(settings, minute());
        return result ? result->videoKbps : -1;
    };
    QCOMPARE(kbpsWith(192) - kbpsWith(320), 128.0);
    const double bytes = (kbpsWith(192) + 192) * 60 * 1000 / 8;
    QVERIFY(bytes < 10e6 && bytes > 9.8e6);
}

void TestSizeFit::aPeakOfTheDeviceStays()
{
    OutputSettings settings = sized(video("mp4", "h264", "ac3"), 1000e6);
    settings.videoKbps = 4000;
    settings.peakKbps = 10000;
    const Result<OutputSettings> result = fitted(settings, minute());
    QVERIFY(result);
    QCOMPARE(result->videoKbps, 4000.0);
}

void TestSizeFit::audioIsNeverTooLarge()
{
    const MediaFacts source =
        facts(song(QStringLiteral("flac")), [](MediaFacts &f) { f.duration = 60; });
    const Result<OutputSettings> result = fitted(sized(audio("mp3", "mp3"), 1e6), source);
    QVERIFY2(result, result ? "" : qPrintable(result.error().text));
    // The bitrates of MP3 around the 132 kbps that fit are 128 and 160.
    QVERIFY(result->audioKbps <= 132 && result->audioKbps >= 112);
}

void TestSizeFit::whatCannotHaveTheSizeIsSaid_data()
{
    QTest::addColumn<OutputSettings>("settings");
    QTest::addColumn<MediaFacts>("source");
    QTest::addColumn<QString>("error");
    const OutputSettings small = sized(video("mp4", "h264", "ac3"), 1e6);
    QTest::newRow("no length") << small << film()
                               << QStringLiteral("says no length, so that no bitrate gives it the "
                                                 "asked size; choose a bitrate instead");
    QTest::newRow("too little for the audio")
        << small << minute()
        << QStringLiteral("is too long for the asked size; choose a larger size or less audio");
    QTest::newRow("no bitrate")
        << sized(video("mov", "prores", "aac"), 10e6) << minute()
        << QStringLiteral("can't have a size that is asked for: prores has no bitrate to choose; "
                          "choose a preset with another encoder");
    QTest::newRow("lossless audio")
        << sized(audio("flac", "flac"), 1e6) << minute()
        << QStringLiteral("can't have so small a size with this codec; choose a larger size or a "
                          "preset with another codec");
}

void TestSizeFit::whatCannotHaveTheSizeIsSaid()
{
    QFETCH(OutputSettings, settings);
    QFETCH(MediaFacts, source);
    const Result<OutputSettings> result = fitted(settings, source);
    QVERIFY(!result);
    QTEST(result.error().text, "error");
}

void TestSizeFit::aPoorPictureIsSaid()
{
    const VideoCodec h264 = videoCodec(QStringLiteral("h264"));
    const EncodedPicture hd{QSize(1280, 720), {25, 1}};
    QCOMPARE(poorPicture(h264, hd, 800), QString());
    QCOMPARE(poorPicture(h264, hd, 350),
             QStringLiteral("has only 350 kbps for 1280x720, which looks poor; a preset with 480 "
                            "lines looks better"));
    QCOMPARE(poorPicture(h264, hd, 33),
             QStringLiteral("has only 33 kbps for 1280x720, which looks poor; choose a larger "
                            "size, or a part of it"));
    QCOMPARE(poorPicture(videoCodec(QStringLiteral("hevc")), hd, 500), QString());
}

void TestSizeFit::theMostBytesAreThoseOfTheStreams()
{
    const QSet<QString> encoders = usualEncoders();
    const auto most = [&encoders](const OutputSettings &settings) {
        return mostBytes(minute(), {settings, *Container::find(settings.extension), encoders});
    };
    OutputSettings settings = video("mp4", "h264", "ac3");
    settings.audioKbps = 192;
    QCOMPARE(most(settings), 0.0); // the quality decides
    settings.videoKbps = 2000;
    const double streams = (2000 * 61 + 192 * 60) * 1000 / 8.0;
    QVERIFY(most(settings) >= streams && most(settings) < streams * 1.02);
    QCOMPARE(most(sized(settings, 5e6)), 5e6);
}

QTEST_GUILESS_MAIN(TestSizeFit)
#include "tst_sizefit.moc"
