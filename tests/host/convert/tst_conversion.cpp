#include "host/convert/containers.h"
#include "tests/host/convert/conversiontest.h"
#include "tests/support/mediaclips.h"

/*! What a conversion makes of real clips. */
class TestConversion : public ConversionTest
{
    Q_OBJECT

private Q_SLOTS:
    void aFilmIsConverted();
    void aSilentFilmStaysSilent();
    void dvHoldsTheWholeFilmWhateverItsSound_data();
    void dvHoldsTheWholeFilmWhateverItsSound();
    void theSoundOfAFilmIsTaken();
    void aCoverComesAlong();
    void aPortraitPictureFitsTheTurnedBox();
    void anUprightCopyOfATurnedPictureIsNotTurnedTwice();
    void widePixelsBecomeSquare();
    void allAudioTracksAreKept();
    void onlyTheDefaultTrackIsKeptOnDemand();
    void whatMayStayIsCopied();
    void everyContainerIsWrittenWithItsUsualCodecs_data();
    void everyContainerIsWrittenWithItsUsualCodecs();
    void bitratesBesideTheLimitsAreWritten_data();
    void bitratesBesideTheLimitsAreWritten();
    void metadataAndChaptersComeAlong();
    void progressGoesForwardToTheEnd();
    void aPlanWritesNothing();
};

void TestConversion::aFilmIsConverted()
{
    const QString source = copyOf(QStringLiteral("film.mp4"), QStringLiteral("film.mp4"));
    const QByteArray before = contentOf(source);
    OutputSettings settings = video(QStringLiteral("mkv"));
    settings.videoCodec = QStringLiteral("mpeg4");
    settings.frameRate = {15, 1};
    settings.box = QSize(160, 160);
    settings.videoKbps = 300;
    settings.audioCodec = QStringLiteral("mp3");
    settings.sampleRate = 48000;
    settings.channels = 2;
    settings.audioKbps = 128;

    const Outcome outcome = convert(job(source, settings));
    QCOMPARE(errorOf(outcome), QString());
    QCOMPARE(outcome->target, path(QStringLiteral("film.mkv")));
    QCOMPARE(everything(), names("film.mkv|film.mp4"));
    QCOMPARE(contentOf(source), before);

    const MediaFacts facts = MediaClips::factsOf(outcome->target);
    QCOMPARE(facts.video()->codec, QStringLiteral("mpeg4"));
    QCOMPARE(facts.video()->displaySize(), QSize(160, 120));
    // The asked rate is the most: half of the source's moves evenly.
    QCOMPARE(facts.video()->frameRate.toText(), QStringLiteral("25/2"));
    QCOMPARE(facts.audio()->codec, QStringLiteral("mp3"));
    QCOMPARE(facts.audio()->sampleRate, 48000);
    QCOMPARE(facts.audio()->channels, 1); // never more than the source has
    QVERIFY(qAbs(facts.duration - 1.0) < 0.2);
    QCOMPARE(outcome->facts.summary(), facts.summary());
}

void TestConversion::aSilentFilmStaysSilent()
{
    const QString source = copyOf(QStringLiteral("silent.mp4"), QStringLiteral("silent.mp4"));
    OutputSettings settings = video(QStringLiteral("webm"));
    settings.audioCodec = QStringLiteral("opus");
    const Outcome outcome = convert(job(source, settings));
    QCOMPARE(errorOf(outcome), QString());
    QCOMPARE(outcome->facts.video()->codec, QStringLiteral("vp9"));
    QVERIFY(outcome->facts.audioTracks.isEmpty());
}

void TestConversion::dvHoldsTheWholeFilmWhateverItsSound_data()
{
    QTest::addColumn<QString>("sound");
    QTest::newRow("another sample rate") << QStringLiteral("sine=duration=2:sample_rate=44100");
    QTest::newRow("ends early") << QStringLiteral("sine=duration=0.5:sample_rate=48000");
    QTest::newRow("goes on") << QStringLiteral("sine=duration=3:sample_rate=48000");
    QTest::newRow("as the file holds it")
        << QStringLiteral("sine=duration=0.5:sample_rate=48000,aformat=channel_layouts=stereo");
}

void TestConversion::dvHoldsTheWholeFilmWhateverItsSound()
{
    QFETCH(QString, sound);
    const QString source = path(QStringLiteral("film.mkv"));
    QVERIFY(MediaClips::make(
        source, QStringLiteral("-f lavfi -i testsrc2=size=320x240:rate=30000/1001:duration=2 "
                               "-f lavfi -i %1 -c:v mpeg4 -c:a pcm_s16le")
                    .arg(sound)));
    const Outcome outcome = convert(job(source, video(QStringLiteral("dv"))));
    QCOMPARE(errorOf(outcome), QString());
    QVERIFY(qAbs(outcome->facts.duration - 2.0) < 0.05);
    QCOMPARE(outcome->facts.audio()->channels, 2);
}

void TestConversion::theSoundOfAFilmIsTaken()
{
    const QString source = copyOf(QStringLiteral("film.mp4"), QStringLiteral("film.mp4"));
    OutputSettings settings = audio(QStringLiteral("mp3"));
    settings.audioCodec = QStringLiteral("mp3");
    const Outcome outcome = convert(job(source, settings));
    QCOMPARE(errorOf(outcome), QString());
    QCOMPARE(outcome->target, path(QStringLiteral("film.mp3")));
    QVERIFY(outcome->facts.videoTracks.isEmpty());
    QCOMPARE(outcome->facts.audio()->codec, QStringLiteral("mp3"));
    QCOMPARE(outcome->facts.audio()->sampleRate, 44100);
    QCOMPARE(outcome->facts.audio()->channels, 1);
}

void TestConversion::aCoverComesAlong()
{
    const QString source = copyOf(QStringLiteral("covered.flac"), QStringLiteral("covered.flac"));
    for (const char *extension : {"mp3", "m4a"}) {
        const Outcome outcome = convert(job(source, audio(QLatin1String(extension))));
        QCOMPARE(errorOf(outcome), QString());
        QVERIFY2(outcome->facts.cover() != nullptr, extension);
        QVERIFY(outcome->facts.video() == nullptr);
    }
    QVERIFY(convert(job(source, audio(QStringLiteral("ogg")))).value().facts.videoTracks.isEmpty());
}

void TestConversion::aPortraitPictureFitsTheTurnedBox()
{
    const QString source = copyOf(QStringLiteral("turned.mp4"), QStringLiteral("turned.mp4"));
    QCOMPARE(MediaClips::factsOf(source).video()->displaySize(), QSize(240, 320));
    OutputSettings settings = video(QStringLiteral("mkv"));
    settings.videoCodec = QStringLiteral("h264");
    settings.box = QSize(160, 90);
    const Outcome outcome = convert(job(source, settings));
    QCOMPARE(errorOf(outcome), QString());
    QCOMPARE(outcome->facts.video()->storedSize, QSize(90, 120));
    QCOMPARE(outcome->facts.video()->rotation, 0);
}

void TestConversion::anUprightCopyOfATurnedPictureIsNotTurnedTwice()
{
    const QString source = copyOf(QStringLiteral("turned.mp4"), QStringLiteral("turned.mp4"));
    const Outcome kept = convert(job(source, video(QStringLiteral("mov"))));
    QCOMPARE(kept->facts.video()->storedSize, QSize(320, 240));
    QCOMPARE(kept->facts.video()->displaySize(), QSize(240, 320));
    const Outcome turned = convert(job(source, video(QStringLiteral("avi"))));
    QCOMPARE(turned->facts.video()->storedSize, QSize(240, 320));
    QCOMPARE(turned->facts.video()->displaySize(), QSize(240, 320));
}

void TestConversion::widePixelsBecomeSquare()
{
    const QString source = copyOf(QStringLiteral("wide.mkv"), QStringLiteral("wide.mkv"));
    OutputSettings settings = video(QStringLiteral("mp4"));
    settings.videoCodec = QStringLiteral("h264");
    settings.box = QSize(640, 640);
    const Outcome outcome = convert(job(source, settings));
    QCOMPARE(outcome->facts.video()->storedSize, QSize(640, 360));
    QCOMPARE(outcome->facts.video()->displaySize(), QSize(640, 360));
}

void TestConversion::allAudioTracksAreKept()
{
    const QString source = copyOf(QStringLiteral("dubbed.mkv"), QStringLiteral("dubbed.mkv"));
    OutputSettings settings = video(QStringLiteral("mp4"));
    settings.audioCodec = QStringLiteral("ac3");
    const MediaFacts facts = convert(job(source, settings)).value().facts;
    QCOMPARE(facts.audioTracks.size(), 2);
    QCOMPARE(facts.audioTracks.at(0).codec, QStringLiteral("ac3"));
    QCOMPARE(facts.audioTracks.at(0).channels, 1);
    QCOMPARE(facts.audioTracks.at(1).codec, QStringLiteral("ac3"));
    QCOMPARE(facts.audioTracks.at(1).channels, 2);
}

void TestConversion::onlyTheDefaultTrackIsKeptOnDemand()
{
    const QString source = copyOf(QStringLiteral("dubbed.mkv"), QStringLiteral("dubbed.mkv"));
    OutputSettings settings = video(QStringLiteral("mp4"));
    settings.audioTracks = {TrackChoice::First};
    const MediaFacts facts = convert(job(source, settings)).value().facts;
    QCOMPARE(facts.audioTracks.size(), 1);
    QCOMPARE(facts.audio()->channels, 2);
}

void TestConversion::whatMayStayIsCopied()
{
    // A copy has the very pictures of its source, whatever encoder ffmpeg has.
    const QString source = copyOf(QStringLiteral("raw.mkv"), QStringLiteral("raw.mkv"));
    const MediaFacts facts = convert(job(source, video(QStringLiteral("mkv")))).value().facts;
    QCOMPARE(facts.video()->codec, QStringLiteral("ffv1"));
    QCOMPARE(facts.audio()->codec, QStringLiteral("tta"));
}

void TestConversion::everyContainerIsWrittenWithItsUsualCodecs_data()
{
    QTest::addColumn<QString>("extension");
    const QStringList extensions =
        QStringLiteral("mp4 m4v mov mkv avi webm wmv asf mpg mpeg vob ts m2ts mts flv f4v 3gp 3g2 "
                       "ogv mxf dv gif mp3 aac m4a m4b m4r flac wav aiff aif au caf ogg oga opus "
                       "spx ac3 eac3 mp2 wma mka amr tta wv")
            .split(QLatin1Char(' '));
    for (const QString &extension : extensions) {
        QTest::newRow(qPrintable(extension)) << extension;
    }
}

void TestConversion::everyContainerIsWrittenWithItsUsualCodecs()
{
    QFETCH(QString, extension);
    const Container *container = Container::find(extension);
    QVERIFY(container != nullptr);
    const QString videoCodec = container->videoCodecs.value(0);
    const QString audioCodec = container->audioCodecs.value(0);
    if (audioCodec == QLatin1String("amr_nb") &&
        !MediaClips::hasEncoder(QStringLiteral("libopencore_amrnb"))) {
        QSKIP("this ffmpeg writes no AMR");
    }
    OutputSettings settings;
    settings.extension = extension;
    settings.hasVideo = !videoCodec.isEmpty();
    settings.videoCodec = videoCodec;
    settings.audioCodec = audioCodec;
    const QString source = copyOf(QStringLiteral("raw.mkv"), QStringLiteral("raw.mkv"));

    const Outcome outcome = convert(job(source, settings));
    QCOMPARE(errorOf(outcome), QString());
    QCOMPARE(outcome->facts.video() != nullptr, !videoCodec.isEmpty());
    QCOMPARE(outcome->facts.audio() != nullptr, !audioCodec.isEmpty());
    if (!videoCodec.isEmpty()) {
        QCOMPARE(outcome->facts.video()->codec, videoCodec);
    }
    if (!audioCodec.isEmpty()) {
        QCOMPARE(outcome->facts.audio()->codec, audioCodec);
    }
    // Raw streams tell no exact duration.
    QVERIFY(outcome->facts.duration > 0.5 && outcome->facts.duration < 2);
}

void TestConversion::bitratesBesideTheLimitsAreWritten_data()
{
    QTest::addColumn<QString>("extension");
    QTest::addColumn<QString>("codec");
    QTest::addColumn<int>("sampleRate");
    QTest::addColumn<int>("channels");
    QTest::addColumn<double>("kbps");

    const auto rows = [](const char *extension, const char *codec, int sampleRate) {
        for (const int channels : {1, 2, 6}) {
            for (const double kbps : {8.0, 1000.0}) {
                QTest::addRow("%s %d Hz %d channels %g kbps", codec, sampleRate, channels, kbps)
                    << QString::fromLatin1(extension) << QString::fromLatin1(codec) << sampleRate
                    << channels << kbps;
            }
        }
    };
    for (const int sampleRate : {8000, 16000, 32000, 96000}) {
        rows("ogg", "vorbis", sampleRate);
    }
    rows("opus", "opus", 8000);
    rows("mp2", "mp2", 44100);
    rows("wma", "wmav2", 44100);
    rows("ac3", "ac3", 44100);
    rows("eac3", "eac3", 44100);
}

void TestConversion::bitratesBesideTheLimitsAreWritten()
{
    QFETCH(QString, extension);
    QFETCH(QString, codec);
    QFETCH(int, sampleRate);
    QFETCH(int, channels);
    QFETCH(double, kbps);
    OutputSettings settings = audio(extension);
    settings.audioCodec = codec;
    settings.sampleRate = sampleRate;
    settings.channels = channels;
    settings.audioKbps = kbps;
    const QString source = copyOf(QStringLiteral("song.flac"), QStringLiteral("song.flac"));
    const Outcome outcome = convert(job(source, settings));
    QCOMPARE(errorOf(outcome), QString());
    QCOMPARE(outcome->facts.audio()->codec, codec);
}

void TestConversion::metadataAndChaptersComeAlong()
{
    QFile notes(path(QStringLiteral("notes.txt")));
    QVERIFY(notes.open(QIODevice::WriteOnly));
    notes.write(";FFMETADATA1\ntitle=Evening\n[CHAPTER]\nTIMEBASE=1/1000\nSTART=0\nEND=500\n"
                "title=First\n[CHAPTER]\nTIMEBASE=1/1000\nSTART=500\nEND=1000\ntitle=Second\n");
    notes.close();
    const QString source = path(QStringLiteral("book.mka"));
    QVERIFY(MediaClips::make(
        source, QStringLiteral("-i %1 -i %2 -map_metadata 1 -map_chapters 1 "
                               "-c copy")
                    .arg(m_clips->filePath(QStringLiteral("song.flac")), notes.fileName())));
    const Outcome outcome = convert(job(source, audio(QStringLiteral("m4b"))));
    QCOMPARE(errorOf(outcome), QString());
    QProcess probe;
    probe.start(QStringLiteral("ffprobe"),
                {QStringLiteral("-v"), QStringLiteral("error"), QStringLiteral("-show_chapters"),
                 QStringLiteral("-show_entries"), QStringLiteral("format_tags=title"),
                 outcome->target});
    QVERIFY(probe.waitForFinished());
    const QByteArray shown = probe.readAllStandardOutput();
    QVERIFY2(shown.contains("TAG:title=Evening"), shown.constData());
    QVERIFY2(shown.contains("TAG:title=First"), shown.constData());
    QVERIFY2(shown.contains("TAG:title=Second"), shown.constData());
}

void TestConversion::progressGoesForwardToTheEnd()
{
    const QString source = copyOf(QStringLiteral("long.mp4"), QStringLiteral("long.mp4"));
    OutputSettings settings = video(QStringLiteral("mkv"));
    settings.videoCodec = QStringLiteral("h264");
    Conversion conversion(job(source, settings));
    QVector<Progress> told;
    connect(&conversion, &Conversion::progressed,
            [&told](const Progress &progress) { told.append(progress); });
    QCOMPARE(errorOf(outcomeOf(conversion)), QString());
    QVERIFY(!told.isEmpty());
    for (int i = 1; i < told.size(); ++i) {
        QVERIFY(told.at(i).done >= told.at(i - 1).done);
    }
    QVERIFY(told.constLast().percent() >= 95);
}

void TestConversion::aPlanWritesNothing()
{
    const QString source = copyOf(QStringLiteral("film.mp4"), QStringLiteral("clip.mp4"));
    ConversionJob planned = job(source, video(QStringLiteral("mkv")));
    planned.planOnly = true;
    const Outcome outcome = convert(planned);
    QCOMPARE(errorOf(outcome), QString());
    QCOMPARE(outcome->target, path(QStringLiteral("clip.mkv")));
    QCOMPARE(outcome->plan.constLast().arguments.constLast(),
             QStringLiteral("file:") + outcome->target);
    QCOMPARE(everything(), names("clip.mp4"));
}

QTEST_GUILESS_MAIN(TestConversion)
#include "tst_conversion.moc"
