#include "host/window/outlook.h"

#include <QTemporaryDir>
#include <QtTest>

Q_DECLARE_METATYPE(ConversionJob)
Q_DECLARE_METATYPE(MediaFacts)

namespace {

/*! A film of 100 seconds with as many audio tracks of 128 kbps. */
MediaFacts film(int audioTracks = 1)
{
    MediaFacts facts;
    facts.container = QStringLiteral("matroska,webm");
    facts.duration = 100;
    facts.bytes = 50000000;
    VideoTrack video;
    video.index = 0;
    video.codec = QStringLiteral("vp9");
    video.storedSize = {640, 480};
    video.frameRate = {25, 1};
    facts.videoTracks << video;
    for (int i = 1; i <= audioTracks; ++i) {
        AudioTrack audio;
        audio.index = i;
        audio.codec = QStringLiteral("vorbis");
        audio.sampleRate = 44100;
        audio.channels = 2;
        audio.kbps = 128;
        facts.audioTracks << audio;
    }
    return facts;
}

ConversionJob job(const char *extension, bool hasVideo)
{
    ConversionJob job;
    job.source = QStringLiteral("/none/film.webm");
    job.settings.extension = QLatin1String(extension);
    job.settings.hasVideo = hasVideo;
    job.settings.videoKbps = hasVideo ? 872 : 0;
    job.settings.audioKbps = 128;
    return job;
}

const QSet<QString> encoders = {QStringLiteral("libx264"), QStringLiteral("aac"),
                                QStringLiteral("libmp3lame"), QStringLiteral("pcm_s16le")};

constexpr Copies none = {false, false};

ExpectedSize sizeOf(const ConversionJob &job, const MediaFacts &facts, const Copies &copies = none)
{
    return expectedSize(facts,
                        {job.settings, *Container::find(job.settings.extension), encoders, copies});
}

/*! Without the share of the container. */
int kilobytes(const ConversionJob &job, const MediaFacts &facts, const Copies &copies = none)
{
    return qRound(sizeOf(job, facts, copies).bytes / 1000 / 1.01);
}

} // namespace

class TestOutlook : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void theSizeFollowsFromBitratesAndDuration();
    void aConstantBitrateGivesTheLikelySize();
    void aSampleGivesTheLikelySize();
    void onlyWhatHasNoLikelySizeNeedsASample();
    void everyAudioTrackThatIsKeptCounts();
    void onlyThePartThatIsKeptCounts();
    void anUnlimitedBitrateGivesNoSize();
    void aCopiedVideoKeepsItsBitrate();
    void aFileThatIsCopiedWholeKeepsItsSize();
    void theAskedSizeIsTheMost();
    void theNameIsTheOneThatIsFreeNow();
    void whatIsImpossibleIsNamed_data();
    void whatIsImpossibleIsNamed();
    void whatIsLeftOutIsNamed();
};

void TestOutlook::theSizeFollowsFromBitratesAndDuration()
{
    QCOMPARE(kilobytes(job("mp4", true), film()), 12500);
    QCOMPARE(kilobytes(job("mp3", false), film()), 1600);
    const Outlook outlook = outlookOf(job("mp4", true), film(), encoders);
    QCOMPARE(outlook.size, QStringLiteral("at most 12.6 MB"));
    QCOMPARE(outlook.name, QStringLiteral("film.mp4"));
    QCOMPARE(outlook.problem, QString());
}

void TestOutlook::aConstantBitrateGivesTheLikelySize()
{
    QCOMPARE(outlookOf(job("mp3", false), film(), encoders).size, QStringLiteral("about 1.6 MB"));
    QCOMPARE(outlookOf(job("wav", false), film(), encoders).size, QStringLiteral("about 17.8 MB"));
    ConversionJob averaged = job("mp4", true);
    averaged.settings.averagesBitrate = true;
    QCOMPARE(outlookOf(averaged, film(), encoders).size, QStringLiteral("about 12.6 MB"));
    QVERIFY(!sizeOf(job("m4a", false), film()).isLikely); // AAC needs less where little is heard
}

void TestOutlook::aSampleGivesTheLikelySize()
{
    const auto size = [](double sampled) {
        return outlookOf(job("mp4", true), film(), encoders, sampled).size;
    };
    QCOMPARE(size(5e6), QStringLiteral("about 5.0 MB"));
    // Pieces may be larger than the rate allows in the long run.
    QCOMPARE(size(20e6), QStringLiteral("about 12.6 MB"));
}

void TestOutlook::onlyWhatHasNoLikelySizeNeedsASample()
{
    const auto needs = [](const ConversionJob &job, double sampled = 0) {
        return outlookOf(job, film(), encoders, sampled).needsSample;
    };
    QVERIFY(needs(job("mp4", true)));
    QVERIFY(!needs(job("mp4", true), 5e6));
    QVERIFY(!needs(job("mp3", false)));
    ConversionJob copied = job("webm", true);
    copied.settings.videoKbps = 0;
    QVERIFY(!needs(copied));
}

void TestOutlook::everyAudioTrackThatIsKeptCounts()
{
    QCOMPARE(kilobytes(job("mp4", true), film(3)), 15700);
    QCOMPARE(kilobytes(job("mp3", false), film(3)), 1600);
}

void TestOutlook::onlyThePartThatIsKeptCounts()
{
    ConversionJob half = job("mp3", false);
    half.settings.start = 25;
    half.settings.end = 75;
    QCOMPARE(kilobytes(half, film()), 800);
}

void TestOutlook::anUnlimitedBitrateGivesNoSize()
{
    ConversionJob unlimited = job("mp4", true);
    unlimited.settings.videoKbps = 0;
    unlimited.settings.videoCodec = QStringLiteral("h264"); // can't be copied
    QCOMPARE(kilobytes(unlimited, film()), 0);
    QCOMPARE(outlookOf(unlimited, film(), encoders).size, QString());
    MediaFacts endless = film();
    endless.duration = 0;
    QCOMPARE(kilobytes(job("mp3", false), endless), 0);
}

void TestOutlook::aCopiedVideoKeepsItsBitrate()
{
    const Copies copy = {true, false};
    MediaFacts facts = film();
    facts.videoTracks.first().kbps = 3872;
    QCOMPARE(kilobytes(job("mp4", true), facts, copy), 50000);
    QVERIFY(sizeOf(job("mp4", true), facts, copy).isLikely);
    // Without a bitrate of its own, it has what the audio leaves.
    facts.videoTracks.first().kbps = 0;
    QCOMPARE(kilobytes(job("mp4", true), facts, copy), 50000);
}

void TestOutlook::aFileThatIsCopiedWholeKeepsItsSize()
{
    ConversionJob job1 = job("mp4", true);
    QCOMPARE(sizeOf(job1, film(), {}).bytes, 5e7);
    job1.settings.end = 50;
    QCOMPARE(sizeOf(job1, film(), {}).bytes, 2.5e7);
    QVERIFY(sizeOf(job1, film(), {}).isLikely);
}

void TestOutlook::theAskedSizeIsTheMost()
{
    ConversionJob small = job("mp4", true);
    small.settings.targetBytes = 1e6;
    QCOMPARE(sizeOf(small, film()).bytes, 1e6);
    QVERIFY(!outlookOf(small, film(), encoders).needsSample);
    small.settings.targetBytes = 1e9;
    QCOMPARE(kilobytes(small, film()), 12500);
}

void TestOutlook::theNameIsTheOneThatIsFreeNow()
{
    const QTemporaryDir folder;
    QFile taken(folder.filePath(QStringLiteral("film.mp3")));
    QVERIFY(taken.open(QIODevice::WriteOnly));
    ConversionJob second = job("mp3", false);
    second.target.folder = folder.path();
    second.target.kept = std::make_shared<KeptFiles>();
    for (int i = 0; i < 2; ++i) {
        QCOMPARE(outlookOf(second, film(), encoders).name, QStringLiteral("film (2).mp3"));
    }
}

void TestOutlook::whatIsImpossibleIsNamed_data()
{
    QTest::addColumn<ConversionJob>("impossible");
    QTest::addColumn<MediaFacts>("facts");
    QTest::addColumn<QString>("problem");
    MediaFacts song = film();
    song.videoTracks.clear();
    MediaFacts silent = film(0);
    ConversionJob hevc = job("mp4", true);
    hevc.settings.videoCodec = QStringLiteral("hevc");
    QTest::newRow("a video of a song")
        << job("mp4", true) << song << QStringLiteral("has no video");
    QTest::newRow("a song of a silent film")
        << job("mp3", false) << silent << QStringLiteral("has no audio");
    QTest::newRow("a missing encoder") << hevc << film() << QStringLiteral("this ffmpeg lacks");
}

void TestOutlook::whatIsImpossibleIsNamed()
{
    QFETCH(ConversionJob, impossible);
    QFETCH(MediaFacts, facts);
    QFETCH(QString, problem);
    const Outlook outlook = outlookOf(impossible, facts, encoders);
    QVERIFY2(outlook.problem.contains(problem), qPrintable(outlook.problem));
    QCOMPARE(outlook.name, QString());
}

void TestOutlook::whatIsLeftOutIsNamed()
{
    MediaFacts facts = film();
    QCOMPARE(outlookOf(job("mp4", true), facts, encoders).losses, QString());
    facts.attachments << Attachment();
    QVERIFY(outlookOf(job("mp4", true), facts, encoders)
                .losses.contains(QStringLiteral("attachments: 1")));
}

QTEST_GUILESS_MAIN(TestOutlook)
#include "tst_outlook.moc"
