#include "host/window/inspector.h"

#include "tests/support/mediaclips.h"
#include "tests/support/patience.h"

#include <QImage>
#include <QTemporaryDir>
#include <QtTest>
#include <QUrl>

#include <memory>

/*! The inspector over real clips. */
class TestInspector : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void init();

    void filesAreReadInTheOrderOfTheirRequests();
    void aVideosThumbnailIsTakenATenthIntoIt();
    void theThumbnailOfAnAudioFileIsItsCover();
    void aForgottenFileEmitsNothing_data();
    void aForgottenFileEmitsNothing();

private:
    QString clip(const char *name) const { return m_clips.filePath(QLatin1String(name)); }
    QStringList events(const char *list) const
    {
        return QString::fromLatin1(list).split(QStringLiteral(", "));
    }
    /*! The colour in the middle of the file's thumbnail; an invalid one when there is none. */
    QColor thumbnailColour(const QString &path);

    QTemporaryDir m_clips;
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
    m_inspector->inspect(1, path);
    if (!QTest::qWaitFor([&thumbnails] { return !thumbnails.isEmpty(); }, patience)) {
        return {};
    }
    const QImage thumbnail(QUrl(thumbnails.at(0).at(1).toString()).toLocalFile());
    return thumbnail.pixelColor(thumbnail.rect().center());
}

void TestInspector::filesAreReadInTheOrderOfTheirRequests()
{
    m_inspector->inspect(2, clip("song.wav"));
    m_inspector->inspect(1, clip("film.mp4"));
    m_inspector->inspect(3, clip("song.wav"));
    QTRY_COMPARE_WITH_TIMEOUT(m_events, events("read 2, read 1, thumbnail 1, read 3"), patience);
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
    QTest::addColumn<QString>("forgetAt"); // empty: at once
    QTest::addColumn<int>("forgotten");
    QTest::addColumn<QStringList>("expected");
    QTest::newRow("while it is read") << QString() << 1 << events("read 2, read 3");
    QTest::newRow("while it waits") << QString() << 2 << events("read 1, thumbnail 1, read 3");
    QTest::newRow("while its thumbnail is made")
        << QStringLiteral("read 1") << 1 << events("read 1, read 2, read 3");
}

void TestInspector::aForgottenFileEmitsNothing()
{
    QFETCH(QString, forgetAt);
    QFETCH(int, forgotten);
    QFETCH(QStringList, expected);
    m_inspector->inspect(1, clip("film.mp4"));
    m_inspector->inspect(2, clip("song.wav"));
    m_inspector->inspect(3, clip("song.wav"));
    QVERIFY(QTest::qWaitFor(
        [this, &forgetAt] { return forgetAt.isEmpty() || m_events.contains(forgetAt); }, patience));
    m_inspector->forget(forgotten);
    QTRY_VERIFY_WITH_TIMEOUT(m_events.contains(QStringLiteral("read 3")), patience);
    QCOMPARE(m_events, expected);
}

QTEST_GUILESS_MAIN(TestInspector)
#include "tst_inspector.moc"
