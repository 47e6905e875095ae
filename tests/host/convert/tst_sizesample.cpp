#include "host/convert/sizesample.h"

#include "tests/support/mediaclips.h"
#include "tests/support/patience.h"

#include <QTemporaryDir>
#include <QtTest>

#include <optional>

/*! Samples of real films, compared to what becomes of all of them. */
class TestSizeSample : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();

    void aSampleComesNearTheRealSize_data();
    void aSampleComesNearTheRealSize();
    void onlyThePartThatIsKeptCounts();
    void theAudioCountsWithItsConstantBitrate();
    void aCoverIsNotMultiplied();
    void aSampleThatTakesTooLongIsGivenUp();
    void aSampleThatIsStoppedTellsNothing();
    void aBrokenSourceSaysWhy();
    void aSampleGivesWay();
    void aSampleWritesNoFile();

private:
    QString path(const char *name) const { return m_files.filePath(QString::fromLatin1(name)); }
    ConversionJob jobOf(const QString &source, const char *extension) const;
    /*! The bytes that a sample foretells. */
    Result<double> sampled(const ConversionJob &job, int limit = patience) const;
    /*! Those of the file that the job makes. */
    double converted(const ConversionJob &job) const;

    QTemporaryDir m_files;
    QString m_film;
    QSet<QString> m_encoders;
};

void TestSizeSample::initTestCase()
{
    EncoderList list;
    connect(&list, &EncoderList::finished, this, [this](const Result<QSet<QString>> &encoders) {
        m_encoders = encoders.value_or(QSet<QString>());
    });
    list.start();
    QTRY_VERIFY_WITH_TIMEOUT(!m_encoders.isEmpty(), patience);
    m_film = path("film.avi");
    QVERIFY(MediaClips::make(m_film,
                             QStringLiteral("-f lavfi -i testsrc2=size=192x144:rate=25:duration=20 "
                                            "-f lavfi -i anoisesrc=duration=20:amplitude=0.3 "
                                            "-c:v mpeg4 -q:v 3 -c:a pcm_s16le")));
    QVERIFY(MediaClips::make(path("song.wav"),
                             QStringLiteral("-f lavfi -i anoisesrc=duration=20:color=brown")));
}

ConversionJob TestSizeSample::jobOf(const QString &source, const char *extension) const
{
    ConversionJob job;
    job.source = source;
    job.settings.extension = QLatin1String(extension);
    job.settings.hasVideo = job.settings.extension != QLatin1String("m4a") &&
                            job.settings.extension != QLatin1String("flac");
    if (job.settings.extension == QLatin1String("mp4")) {
        job.settings.videoCodec = QStringLiteral("h264"); // else the source's is copied
    }
    job.target.folder = m_files.path();
    return job;
}

Result<double> TestSizeSample::sampled(const ConversionJob &job, int limit) const
{
    SizeSample sample(limit);
    std::optional<Result<double>> told;
    connect(&sample, &SizeSample::finished, this,
            [&told](const Result<double> &bytes) { told = bytes; });
    sample.start(job, MediaClips::factsOf(job.source), m_encoders);
    [&] { QTRY_VERIFY_WITH_TIMEOUT(told.has_value(), patience); }();
    return *told;
}

double TestSizeSample::converted(const ConversionJob &job) const
{
    Conversion conversion(job);
    std::optional<Result<ConversionOutcome>> told;
    connect(&conversion, &Conversion::finished, this,
            [&told](const Result<ConversionOutcome> &outcome) { told = outcome; });
    conversion.start();
    [&] { QTRY_VERIFY_WITH_TIMEOUT(told.has_value(), patience); }();
    return *told ? double((*told)->facts.bytes) : 0;
}

void TestSizeSample::aSampleComesNearTheRealSize_data()
{
    QTest::addColumn<QString>("source");
    QTest::addColumn<QByteArray>("extension");
    QTest::addColumn<double>("videoKbps");
    QTest::newRow("H.264 by its quality") << m_film << QByteArray("mp4") << 0.0;
    QTest::newRow("VP9 below a bitrate") << m_film << QByteArray("webm") << 2000.0;
    QTest::newRow("AAC") << path("song.wav") << QByteArray("m4a") << 0.0;
    QTest::newRow("FLAC") << path("song.wav") << QByteArray("flac") << 0.0;
}

void TestSizeSample::aSampleComesNearTheRealSize()
{
    QFETCH(QString, source);
    QFETCH(QByteArray, extension);
    QFETCH(double, videoKbps);
    ConversionJob job = jobOf(source, extension.constData());
    job.settings.videoKbps = videoKbps;
    const Result<double> likely = sampled(job);
    QVERIFY2(likely, likely ? "" : qPrintable(likely.error().text));
    const double real = converted(job);
    QVERIFY2(std::abs(*likely / real - 1) < 0.15,
             qPrintable(QStringLiteral("%1 instead of %2").arg(*likely).arg(real)));
}

void TestSizeSample::onlyThePartThatIsKeptCounts()
{
    ConversionJob job = jobOf(m_film, "mp4");
    const double whole = sampled(job).value_or(0);
    job.settings.start = 5;
    job.settings.end = 15;
    QVERIFY(std::abs(sampled(job).value_or(0) / whole - 0.5) < 0.08);
    job.settings.end = 6; // so short that it is encoded whole
    QVERIFY(std::abs(sampled(job).value_or(0) / converted(job) - 1) < 0.05);
}

void TestSizeSample::theAudioCountsWithItsConstantBitrate()
{
    ConversionJob job = jobOf(m_film, "mkv");
    job.settings.videoCodec = QStringLiteral("h264");
    job.settings.audioTracks = {TrackChoice::None};
    const double silent = sampled(job).value_or(0);
    job.settings.audioTracks = {};
    job.settings.audioCodec = QStringLiteral("ac3");
    job.settings.audioKbps = 192;
    QCOMPARE(sampled(job).value_or(0) - silent, 192 * 125.0 * 20);
}

void TestSizeSample::aCoverIsNotMultiplied()
{
    const QString covered = path("covered.flac");
    QVERIFY(MediaClips::make(path("cover.png"),
                             QStringLiteral("-f lavfi -i testsrc2=size=640x480 -frames:v 1")));
    QVERIFY(MediaClips::make(
        covered, QStringLiteral("-i %1 -i %2 -map 0 -map 1 -c:v copy -disposition:v attached_pic")
                     .arg(path("song.wav"), path("cover.png"))));
    const double likely = sampled(jobOf(covered, "m4a")).value_or(0);
    const double bare = sampled(jobOf(path("song.wav"), "m4a")).value_or(0);
    QVERIFY(std::abs(likely / bare - 1) < 0.02);
}

void TestSizeSample::aSampleThatTakesTooLongIsGivenUp()
{
    QVERIFY(!sampled(jobOf(m_film, "webm"), 1));
}

void TestSizeSample::aSampleThatIsStoppedTellsNothing()
{
    const MediaFacts facts = MediaClips::factsOf(m_film);
    SizeSample sample;
    QSignalSpy finished(&sample, &SizeSample::finished);
    sample.start(jobOf(m_film, "mp4"), facts, m_encoders);
    sample.stop();
    // The next one is told alone.
    sample.start(jobOf(path("song.wav"), "flac"), MediaClips::factsOf(path("song.wav")),
                 m_encoders);
    QTRY_COMPARE_WITH_TIMEOUT(finished.count(), 1, patience);
    QVERIFY(finished.at(0).at(0).value<Result<double>>());
}

void TestSizeSample::aBrokenSourceSaysWhy()
{
    const MediaFacts facts = MediaClips::factsOf(m_film);
    SizeSample sample;
    QString reason;
    connect(&sample, &SizeSample::finished, this, [&reason](const Result<double> &bytes) {
        reason = bytes ? QStringLiteral("none") : bytes.error().text;
    });
    sample.start(jobOf(path("gone.avi"), "mp4"), facts, m_encoders);
    QTRY_VERIFY_WITH_TIMEOUT(!reason.isEmpty(), patience);
    QVERIFY2(reason.contains(QStringLiteral("No such file")), qPrintable(reason));
}

void TestSizeSample::aSampleGivesWay()
{
    const QTemporaryDir folder;
    const QString noted = path("niceness");
    QVERIFY(MediaClips::makeStandIn(folder.path(),
                                    QStringLiteral("nice > %1; exec $REAL \"$@\"").arg(noted)));
    const QByteArray before = qgetenv("PATH");
    qputenv("PATH", MediaClips::pathWith(folder.path()));
    const Result<double> likely = sampled(jobOf(path("song.wav"), "flac"));
    qputenv("PATH", before);
    QVERIFY(likely);
    QFile niceness(noted);
    QVERIFY(niceness.open(QIODevice::ReadOnly));
    QCOMPARE(niceness.readAll().trimmed(), QByteArray("19"));
}

void TestSizeSample::aSampleWritesNoFile()
{
    const QDir folder(m_files.path());
    const QStringList before = folder.entryList(QDir::AllEntries | QDir::Hidden);
    QVERIFY(sampled(jobOf(m_film, "mp4")));
    QCOMPARE(folder.entryList(QDir::AllEntries | QDir::Hidden), before);
}

QTEST_GUILESS_MAIN(TestSizeSample)
#include "tst_sizesample.moc"
