#include "host/window/framereader.h"

#include "tests/support/mediaclips.h"
#include "tests/support/patience.h"

#include <QDir>
#include <QDirIterator>
#include <QImage>
#include <QTemporaryDir>
#include <QtTest>
#include <QUrl>

/*! Pictures at moments of a film. */
class TestFrameReader : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void aPictureNearbyComesBeforeTheVeryOne();
    void thePictureIsTheOneAtTheMoment();
    void onlyTheNewestRequestIsAnswered();
    void aKnownPictureIsThereAtOnce();
    void neighboursAreReadAhead();
    void aSongHasNoPictures();
    void aFrameLastsAsLongAsTheVideoSays();

private:
    void request(FrameReader &reader, double seconds) const
    {
        reader.request(m_film, m_facts, seconds);
    }
    static double momentOf(const QList<QVariant> &answer) { return answer.at(1).toDouble(); }
    static QImage pictureOf(const QList<QVariant> &answer)
    {
        return QImage(QUrl(answer.at(2).toString()).toLocalFile());
    }

    QTemporaryDir m_work;
    QString m_film;
    MediaFacts m_facts;
};

void TestFrameReader::initTestCase()
{
    QVERIFY(QDir(m_work.path()).mkdir(QStringLiteral("tmp")));
    qputenv("TMPDIR", m_work.filePath(QStringLiteral("tmp")).toLocal8Bit());
    // Each second is brighter than the one before; only the first picture is a key frame.
    m_film = m_work.filePath(QStringLiteral("film.mp4"));
    QVERIFY(MediaClips::make(
        m_film, QStringLiteral(
                    "-f lavfi -i "
                    "color=black:size=320x180:rate=25:duration=5,format=gray,"
                    "geq=lum=floor(T)*50 -c:v libx264 -g 1000 -sc_threshold 0 -pix_fmt yuv420p")));
    m_facts = MediaClips::factsOf(m_film);
    QVERIFY(m_facts.video() != nullptr);
}

void TestFrameReader::aPictureNearbyComesBeforeTheVeryOne()
{
    FrameReader reader;
    QSignalSpy ready(&reader, &FrameReader::ready);
    request(reader, 4.5);
    QVERIFY(ready.wait(patience));
    QVERIFY(qGray(pictureOf(ready.at(0)).pixel(160, 90)) < 40); // the key frame's
    QTRY_COMPARE_WITH_TIMEOUT(ready.count(), 2, patience);
    QCOMPARE(momentOf(ready.at(0)), 4.5);
    QCOMPARE(momentOf(ready.at(1)), 4.5);
}

void TestFrameReader::thePictureIsTheOneAtTheMoment()
{
    FrameReader reader;
    QSignalSpy ready(&reader, &FrameReader::ready);
    request(reader, 2.96); // the last picture of the third second
    QTRY_COMPARE_WITH_TIMEOUT(ready.count(), 2, patience);
    const int before = qGray(pictureOf(ready.at(1)).pixel(160, 90));
    request(reader, 3);
    QTRY_VERIFY_WITH_TIMEOUT(momentOf(ready.constLast()) == 3 && ready.count() >= 3, patience);
    QTRY_VERIFY_WITH_TIMEOUT(qGray(pictureOf(ready.constLast()).pixel(160, 90)) > before + 30,
                             patience);
}

void TestFrameReader::onlyTheNewestRequestIsAnswered()
{
    FrameReader reader;
    QSignalSpy ready(&reader, &FrameReader::ready);
    for (const double moment : {1.0, 2.0, 3.0}) {
        request(reader, moment);
    }
    QTRY_COMPARE_WITH_TIMEOUT(ready.count(), 2, patience);
    QCOMPARE(momentOf(ready.at(0)), 3.0);
    QCOMPARE(momentOf(ready.at(1)), 3.0);
}

void TestFrameReader::aKnownPictureIsThereAtOnce()
{
    FrameReader reader;
    QSignalSpy ready(&reader, &FrameReader::ready);
    request(reader, 1);
    QTRY_COMPARE_WITH_TIMEOUT(ready.count(), 2, patience);
    ready.clear();
    request(reader, 1);
    QCOMPARE(ready.count(), 1);
}

void TestFrameReader::neighboursAreReadAhead()
{
    FrameReader reader;
    QSignalSpy ready(&reader, &FrameReader::ready);
    request(reader, 2);
    QTRY_COMPARE_WITH_TIMEOUT(ready.count(), 2, patience);
    // The one nearby, the very one, and those after and before it.
    const auto count = [this] {
        int pictures = 0;
        QDirIterator files(m_work.filePath(QStringLiteral("tmp")), {QStringLiteral("*.jpg")},
                           QDir::Files | QDir::Hidden, QDirIterator::Subdirectories);
        for (; files.hasNext(); files.next()) {
            ++pictures;
        }
        return pictures;
    };
    QTRY_COMPARE_WITH_TIMEOUT(count(), 4, patience);
    ready.clear();
    request(reader, 2 + 1 / 25.0);
    QCOMPARE(ready.count(), 1);
}

void TestFrameReader::aSongHasNoPictures()
{
    const QString song = m_work.filePath(QStringLiteral("song.wav"));
    QVERIFY(MediaClips::makeSong(song));
    FrameReader reader;
    QSignalSpy ready(&reader, &FrameReader::ready);
    reader.request(song, MediaClips::factsOf(song), 0);
    request(reader, 0);
    QTRY_COMPARE_WITH_TIMEOUT(ready.count(), 2, patience);
    QCOMPARE(ready.at(0).at(0).toString(), m_film);
}

void TestFrameReader::aFrameLastsAsLongAsTheVideoSays()
{
    QCOMPARE(FrameReader::frameSeconds(m_facts), 1 / 25.0);
    QCOMPARE(FrameReader::frameSeconds(MediaFacts()), 0.1);
}

QTEST_MAIN(TestFrameReader)
#include "tst_framereader.moc"
