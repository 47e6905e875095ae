#include "host/window/inspector.h"

#include "tests/support/mediaclips.h"
#include "tests/support/patience.h"

#include <QImage>
#include <QTemporaryDir>
#include <QThread>
#include <QtTest>
#include <QUrl>

#include <memory>
#include <sys/stat.h>

/*! The inspector over real clips. */
class TestInspector : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void init();

    void everyFileIsRead();
    void aHangingFileDoesNotStopTheOthers();
    void factsComeBeforeThumbnails();
    void theThumbnailAskedForLastIsMadeNext();
    void aFileWithoutAPictureHasNoThumbnail();
    void aVideosThumbnailIsTakenATenthIntoIt();
    void theThumbnailOfAnAudioFileIsItsCover();
    void aForgottenFileEmitsNothing_data();
    void aForgottenFileEmitsNothing();
    void aForgottenFileGetsNoThumbnail_data();
    void aForgottenFileGetsNoThumbnail();

private:
    QString clip(const char *name) const { return m_clips.filePath(QLatin1String(name)); }
    QStringList events(const char *list) const
    {
        return QString::fromLatin1(list).split(QStringLiteral(", "));
    }
    /*! More files than are read at a time. */
    void inspectSongs(int firstId, int count)
    {
        for (int i = 0; i < count; ++i) {
            m_inspector->inspect(firstId + i, clip("song.wav"));
        }
    }
    void requestThumbnail(int id, const QString &path)
    {
        // Known before, as reading them lets events pass.
        if (!m_facts.contains(path)) {
            m_facts.insert(path, MediaClips::factsOf(path));
        }
        m_inspector->requestThumbnail(id, path, m_facts.value(path));
    }
    /*! The colour in the middle of the file's thumbnail; an invalid one when there is none. */
    QColor thumbnailColour(const QString &path);

    QTemporaryDir m_clips;
    QHash<QString, MediaFacts> m_facts;
    const int m_cores = QThread::idealThreadCount();
    std::unique_ptr<Inspector> m_inspector;
    QStringList m_events; //!< "read 1", "thumbnail 1"
};

void TestInspector::initTestCase()
{
    QVERIFY(MediaClips::makeFilm(clip("film.mp4")));
    QVERIFY(MediaClips::makeSong(clip("song.wav")));
    // White, but red for a moment.
    QVERIFY(MediaClips::make(
        clip("flash.mp4"),
        QStringLiteral("-f lavfi -i color=white:size=64x64:rate=25:duration=10 -vf "
                       "drawbox=color=red:t=fill:enable='between(t,0.9,1.1)' -c:v libx264 -preset "
                       "ultrafast -pix_fmt yuv420p")));
    QVERIFY(MediaClips::make(clip("cover.png"),
                             QStringLiteral("-f lavfi -i color=red:size=64x64 -frames:v 1")));
    QVERIFY(
        MediaClips::make(clip("song.flac"), QStringLiteral("-i %1 -i %2 -map 0 -map 1 -c:v copy "
                                                           "-disposition:v attached_pic")
                                                .arg(clip("song.wav"), clip("cover.png"))));
}

void TestInspector::init()
{
    m_events.clear();
    m_inspector = std::make_unique<Inspector>();
    connect(m_inspector.get(), &Inspector::read, this,
            [this](int id) { m_events << QStringLiteral("read %1").arg(id); });
    connect(m_inspector.get(), &Inspector::thumbnailReady, this,
            [this](int id) { m_events << QStringLiteral("thumbnail %1").arg(id); });
}

QColor TestInspector::thumbnailColour(const QString &path)
{
    QSignalSpy thumbnails(m_inspector.get(), &Inspector::thumbnailReady);
    requestThumbnail(1, path);
    if (!QTest::qWaitFor([&thumbnails] { return !thumbnails.isEmpty(); }, patience)) {
        return {};
    }
    const QImage thumbnail(QUrl(thumbnails.at(0).at(1).toString()).toLocalFile());
    return thumbnail.pixelColor(thumbnail.rect().center());
}

void TestInspector::everyFileIsRead()
{
    m_inspector->inspect(2, clip("song.wav"));
    m_inspector->inspect(1, clip("film.mp4"));
    m_inspector->inspect(3, clip("missing.wav"));
    QTRY_COMPARE_WITH_TIMEOUT(m_events.size(), 3, patience);
    m_events.sort();
    QCOMPARE(m_events, events("read 1, read 2, read 3"));
}

void TestInspector::aHangingFileDoesNotStopTheOthers()
{
    const QString pipe = clip("pipe.mp4");
    QCOMPARE(::mkfifo(QFile::encodeName(pipe).constData(), S_IRWXU), 0);
    m_inspector->inspect(1, pipe);
    m_inspector->inspect(2, clip("song.wav"));
    QTRY_VERIFY_WITH_TIMEOUT(m_events.contains(QStringLiteral("read 2")), patience);
}

void TestInspector::factsComeBeforeThumbnails()
{
    const int files = 60 * m_cores; // which takes longer than a thumbnail
    const MediaFacts facts = MediaClips::factsOf(clip("film.mp4"));
    inspectSongs(2, files);
    m_inspector->requestThumbnail(1, clip("film.mp4"), facts);
    QTRY_COMPARE_WITH_TIMEOUT(m_events.size(), files + 1, patience);
    // Those that are being read by then don't delay it.
    const int before = m_events.indexOf(QStringLiteral("thumbnail 1"));
    QVERIFY2(before >= files - m_cores, qPrintable(m_events.join(QStringLiteral(", "))));
}

void TestInspector::theThumbnailAskedForLastIsMadeNext()
{
    for (int id = 1; id <= 4; ++id) {
        requestThumbnail(id, clip("film.mp4"));
    }
    requestThumbnail(2, clip("film.mp4"));
    QTRY_COMPARE_WITH_TIMEOUT(m_events.size(), 4, patience);
    QCOMPARE(m_events, events("thumbnail 1, thumbnail 2, thumbnail 4, thumbnail 3"));
}

void TestInspector::aFileWithoutAPictureHasNoThumbnail()
{
    requestThumbnail(1, clip("song.wav"));
    requestThumbnail(2, clip("film.mp4"));
    QTRY_VERIFY_WITH_TIMEOUT(m_events.contains(QStringLiteral("thumbnail 2")), patience);
    QCOMPARE(m_events, events("thumbnail 2"));
}

void TestInspector::aVideosThumbnailIsTakenATenthIntoIt()
{
    const QColor colour = thumbnailColour(clip("flash.mp4"));
    QVERIFY2(colour.red() > 200 && colour.green() < 60, qPrintable(colour.name()));
}

void TestInspector::theThumbnailOfAnAudioFileIsItsCover()
{
    const QColor colour = thumbnailColour(clip("song.flac"));
    QVERIFY2(colour.red() > 200 && colour.green() < 60, qPrintable(colour.name()));
}

void TestInspector::aForgottenFileEmitsNothing_data()
{
    QTest::addColumn<int>("forgotten");
    QTest::newRow("while it is read") << 1;
    QTest::newRow("while it waits") << 3 * m_cores;
}

void TestInspector::aForgottenFileEmitsNothing()
{
    QFETCH(int, forgotten);
    const int files = 3 * m_cores;
    inspectSongs(1, files);
    m_inspector->forget(forgotten);
    QTRY_COMPARE_WITH_TIMEOUT(m_events.size(), files - 1, patience);
    QCoreApplication::processEvents();
    QVERIFY(!m_events.contains(QStringLiteral("read %1").arg(forgotten)));
    QCOMPARE(m_events.size(), files - 1);
}

void TestInspector::aForgottenFileGetsNoThumbnail_data()
{
    QTest::addColumn<int>("forgotten");
    QTest::addColumn<QStringList>("expected");
    QTest::newRow("while it is made") << 1 << events("thumbnail 3, thumbnail 2");
    QTest::newRow("while it waits") << 3 << events("thumbnail 1, thumbnail 2");
}

void TestInspector::aForgottenFileGetsNoThumbnail()
{
    QFETCH(int, forgotten);
    QFETCH(QStringList, expected);
    for (int id = 1; id <= 3; ++id) {
        requestThumbnail(id, clip("film.mp4"));
    }
    QCOMPARE(m_events, QStringList());
    m_inspector->forget(forgotten);
    QTRY_COMPARE_WITH_TIMEOUT(m_events, expected, patience);
}

QTEST_GUILESS_MAIN(TestInspector)
#include "tst_inspector.moc"
