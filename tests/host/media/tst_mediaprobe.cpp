#include "host/media/mediaprobe.h"
#include "tests/support/mediaclips.h"
#include "tests/support/messagelog.h"
#include "tests/support/patience.h"
#include "tests/support/testfiles.h"

#include <QEventLoop>
#include <QFile>
#include <QTemporaryDir>
#include <QtTest>

#include <memory>
#include <optional>

/*! Files that ffprobe itself would follow to others, and answers that never come. */
class TestMediaProbe : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void init() { m_log.emplace(); }
    void cleanup();

    void aFileThatRefersToOtherFilesIsRefused_data();
    void aFileThatRefersToOtherFilesIsRefused();
    void aFileThatContainsItsMediaIsRead_data();
    void aFileThatContainsItsMediaIsRead();
    void aStoppedProbeIsCancelled();
    void oneProbeReadsSeveralFiles();
    void aHangingProbeIsEnded();
    void endlessOutputIsEnded();

private:
    QString path(const QString &name) const { return m_folder->filePath(name); }
    Result<MediaFacts> probe(const QString &name, const ToolLimits &limits = probeLimits) const
    {
        MediaProbe probe;
        QEventLoop loop;
        Result<MediaFacts> facts;
        connect(&probe, &MediaProbe::finished, &loop,
                [&facts, &loop](const Result<MediaFacts> &probed) {
                    facts = probed;
                    loop.quit();
                });
        probe.start(path(name), limits);
        loop.exec();
        return facts;
    }
    QString errorOf(const Result<MediaFacts> &facts) const
    {
        return facts ? QString() : facts.error().text;
    }

    const QString noFilm = QStringLiteral("no film.mp4"); // which ffprobe is asked about

    QByteArray m_path;
    std::unique_ptr<QTemporaryDir> m_folder;
    std::optional<MessageLog> m_log;
};

void TestMediaProbe::initTestCase()
{
    m_path = qgetenv("PATH");
    m_folder = std::make_unique<QTemporaryDir>();
    QVERIFY(m_folder->isValid());
    QVERIFY(MediaClips::makeFilm(path(QStringLiteral("film.mp4"))));
    QVERIFY(
        MediaClips::make(path(QStringLiteral("part0.ts")),
                         QStringLiteral("-i %1 -c copy").arg(path(QStringLiteral("film.mp4")))));
    QVERIFY(MediaClips::make(path(QStringLiteral("other1.png")),
                             QStringLiteral("-f lavfi -i testsrc2=size=64x64 -frames:v 1")));
}

void TestMediaProbe::cleanup()
{
    qputenv("PATH", m_path);
    QCOMPARE(m_log->takeAll(), QStringList());
    m_log.reset();
}

void TestMediaProbe::aFileThatRefersToOtherFilesIsRefused_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<QByteArray>("content");
    QTest::addColumn<QString>("error");

    const QString film = QStringLiteral("holiday.mp4");
    const QString playlist = QStringLiteral("is a playlist; choose the files that it lists");
    QTest::newRow("concat list") << film << QByteArray("ffconcat version 1.0\nfile film.mp4\n")
                                 << playlist;
    QTest::newRow("HLS") << film
                         << QByteArray("#EXTM3U\n#EXT-X-VERSION:3\n#EXT-X-TARGETDURATION:1\n"
                                       "#EXTINF:1.0,\npart0.ts\n#EXT-X-ENDLIST\n")
                         << playlist;
    QTest::newRow("DASH")
        << film
        << QByteArray("<?xml version=\"1.0\"?>\n"
                      "<MPD xmlns=\"urn:mpeg:dash:schema:mpd:2011\" type=\"static\" "
                      "profiles=\"urn:mpeg:dash:profile:isoff-main:2011\"><Period>"
                      "<AdaptationSet contentType=\"video\"><Representation id=\"0\" "
                      "mimeType=\"video/mp4\"><BaseURL>film.mp4</BaseURL></Representation>"
                      "</AdaptationSet></Period></MPD>\n")
        << playlist;
    QTest::newRow("SDP") << film
                         << QByteArray("v=0\no=- 0 0 IN IP4 127.0.0.1\ns=x\nc=IN IP4 127.0.0.1\n"
                                       "t=0 0\nm=video 5004 RTP/AVP 96\na=rtpmap:96 H264/90000\n")
                         << playlist;
    QTest::newRow("M3U") << film << QByteArray("#EXTM3U\n#EXTINF:1,x\nfilm.mp4\n") << playlist;
    QTest::newRow("PLS") << film
                         << QByteArray("[playlist]\nFile1=film.mp4\nNumberOfEntries=1\nVersion=2\n")
                         << playlist;
    QTest::newRow("subtitles") << film << QByteArray("1\n00:00:01,000 --> 00:00:02,000\nHello\n")
                               << QStringLiteral(
                                      "is of a kind that isn't converted (srt); choose a "
                                      "video or audio file");
    QTest::newRow("metadata") << film << QByteArray(";FFMETADATA1\ntitle=x\n")
                              << QStringLiteral("is of a kind that isn't converted (ffmetadata); "
                                                "choose a video or audio file");
    const QString pattern = QStringLiteral("stands for an image sequence; rename it and its "
                                           "folders without any of % * ? [ ] { }");
    QFile image(path(QStringLiteral("other1.png")));
    QVERIFY(image.open(QIODevice::ReadOnly));
    QTest::newRow("image sequence pattern")
        << QStringLiteral("other%01d.png") << image.readAll() << pattern;
    QTest::newRow("pattern of photos")
        << QStringLiteral("other%01d.jpg") << QByteArray() << pattern;
    QTest::newRow("planes in separate files")
        << QStringLiteral("plane.y") << QByteArray(100, 'y')
        << QStringLiteral("is of a kind that isn't converted (image2); choose a video or audio "
                          "file");
}

void TestMediaProbe::aFileThatRefersToOtherFilesIsRefused()
{
    QFETCH(QString, name);
    QFETCH(QByteArray, content);
    QFETCH(QString, error);
    QVERIFY(writeFile(path(name), content));
    QCOMPARE(errorOf(probe(name)), error);
}

void TestMediaProbe::aFileThatContainsItsMediaIsRead_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<QString>("arguments");

    const QVector<MediaClips::Kind> kinds = MediaClips::kinds();
    for (const MediaClips::Kind &kind : kinds) {
        QTest::newRow(qPrintable(kind.name)) << kind.name << kind.arguments;
    }
}

void TestMediaProbe::aFileThatContainsItsMediaIsRead()
{
    QFETCH(QString, name);
    QFETCH(QString, arguments);
    const QString file = QStringLiteral("clip-") + name;
    if (!MediaClips::make(path(file), arguments)) {
        QSKIP("this ffmpeg can't write it");
    }
    const Result<MediaFacts> facts = probe(file);
    QCOMPARE(errorOf(facts), QString());
    QVERIFY(!facts->isEmpty());
}

void TestMediaProbe::aStoppedProbeIsCancelled()
{
    MediaProbe probe;
    std::optional<Result<MediaFacts>> facts;
    connect(&probe, &MediaProbe::finished, this,
            [&facts](const Result<MediaFacts> &probed) { facts = probed; });
    probe.start(path(QStringLiteral("film.mp4")));
    probe.stop();
    QVERIFY(!facts);
    QTRY_VERIFY_WITH_TIMEOUT(facts, patience);
    QCOMPARE(facts->error().kind, Error::Cancelled);
}

void TestMediaProbe::oneProbeReadsSeveralFiles()
{
    MediaProbe probe;
    QStringList codecs;
    connect(&probe, &MediaProbe::finished, this,
            [this, &codecs, &probe](const Result<MediaFacts> &facts) {
                codecs << (facts ? facts->videoTracks.constFirst().codec : facts.error().text);
                if (codecs.size() == 1) {
                    probe.start(path(QStringLiteral("other1.png")));
                }
            });
    probe.start(path(QStringLiteral("no such film.mp4")));
    // The next question takes the place of one that is still open.
    probe.start(path(QStringLiteral("film.mp4")));
    QTRY_COMPARE_WITH_TIMEOUT(codecs.size(), 2, patience);
    QCOMPARE(codecs, (QStringList{QStringLiteral("h264"), QStringLiteral("png")}));
}

void TestMediaProbe::aHangingProbeIsEnded()
{
    const QTemporaryDir tools;
    QVERIFY(MediaClips::makeStandIn(tools.path(), QStringLiteral("sleep 1000; exit 0"),
                                    QStringLiteral("nothing"), QStringLiteral("ffprobe")));
    qputenv("PATH", MediaClips::pathWith(tools.path()));
    QVERIFY(writeFile(path(noFilm), "no film"));
    QCOMPARE(errorOf(probe(noFilm, {1000000, 200})),
             QStringLiteral("takes too long to read; check the disk or network that it is on"));
}

void TestMediaProbe::endlessOutputIsEnded()
{
    const QTemporaryDir tools;
    QVERIFY(MediaClips::makeStandIn(tools.path(), QStringLiteral("exec yes"),
                                    QStringLiteral("nothing"), QStringLiteral("ffprobe")));
    qputenv("PATH", MediaClips::pathWith(tools.path()));
    QVERIFY(writeFile(path(noFilm), "no film"));
    QCOMPARE(errorOf(probe(noFilm)),
             QStringLiteral("describes itself without end; check that it is a complete video or "
                            "audio file"));
}

QTEST_GUILESS_MAIN(TestMediaProbe)
#include "tst_mediaprobe.moc"
