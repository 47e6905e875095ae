#include "host/queue/conversionqueue.h"
#include "host/queue/corestobusy.h"

#include "tests/support/mediaclips.h"
#include "tests/support/patience.h"
#include "tests/support/testfiles.h"

#include <QTemporaryDir>
#include <QThread>
#include <QtTest>

#include <algorithm>
#include <memory>
#include <unistd.h>

namespace {

/*! Whether a child of this process has been sent SIGSTOP. */
bool hasStoppedChild()
{
    const QStringList processes =
        QDir(QStringLiteral("/proc")).entryList({QStringLiteral("[1-9]*")}, QDir::Dirs);
    return std::any_of(processes.begin(), processes.end(), [](const QString &id) {
        // "id (name) state parent ..."
        const QByteArray stat = contentOf(QStringLiteral("/proc/%1/stat").arg(id));
        const QList<QByteArray> fields = stat.mid(stat.lastIndexOf(')') + 2).split(' ');
        return fields.value(0) == "T" && fields.value(1).toInt() == ::getpid();
    });
}

} // namespace

/*! Converts real audio files; the conversion of one named "hanging" runs until it is stopped. */
class TestConversionQueue : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void init();
    void cleanup();

    void nothingRunsBeforeTheStart();
    void jobsRunInTheOrderOfTheirIds();
    void aFailureDoesNotStopTheOthers();
    void progressNamesItsJob();
    void aJobIsRequestedOnlyWhenItsTurnComes();
    void aJobAddedWhileOthersRunIsRun();
    void aJobCanBeAddedWhenAnotherEnds();
    void anIdCanBeReusedOnceItsJobHasEnded();
    void aWaitingJobIsCancelledAtOnce();
    void cancellingTheRunningJobLetsTheNextOneRun();
    void aRemovedJobEmitsNothing_data();
    void aRemovedJobEmitsNothing();
    void aJobRemovedBeforeItFailsEmitsNothing();
    void stoppingCancelsRunningJobsAndRemovesWaitingOnes();
    void aPausedQueueStartsNothing();
    void aJobIsHaltedAsSoonAsItEncodes();
    void noMoreJobsRunThanAllowed();
    void jobsStartWhileCoresAreIdle_data();
    void jobsStartWhileCoresAreIdle();
    void jobsSideBySideKeepEachOthersResults_data();
    void jobsSideBySideKeepEachOthersResults();
    void destroyingTheQueueLeavesNothing();
    void unknownIdsChangeNothing();

private:
    ConversionQueue::JobSource job(const char *name) const;
    void add(int id, const char *name) { m_queue->add(id, job(name)); }
    QStringList events(const char *list) const
    {
        return QString::fromLatin1(list).split(QStringLiteral(", "));
    }
    QStringList filesInFolder() const
    {
        return QDir(m_folder->path())
            .entryList(QDir::AllEntries | QDir::Hidden | QDir::NoDotAndDotDot);
    }

    QByteArray m_path;
    QTemporaryDir m_tools;
    std::unique_ptr<QTemporaryDir> m_folder;
    std::unique_ptr<ConversionQueue> m_queue;
    QStringList m_events; //!< "started 1", "finished 1", "cancelled 1", "failed 1"
};

void TestConversionQueue::initTestCase()
{
    m_path = qgetenv("PATH");
    QVERIFY(MediaClips::makeStandIn(
        m_tools.path(),
        QStringLiteral("case \"$*\" in *hanging*) exec sleep 600;; esac\nexec $REAL \"$@\"")));
}

void TestConversionQueue::init()
{
    m_folder = std::make_unique<QTemporaryDir>();
    const QString song = m_folder->filePath(QStringLiteral("song.wav"));
    QVERIFY(MediaClips::makeSong(song));
    QVERIFY(QFile::copy(song, m_folder->filePath(QStringLiteral("hanging.wav"))));
    qputenv("PATH", MediaClips::pathWith(m_tools.path()));

    m_events.clear();
    m_queue = std::make_unique<ConversionQueue>();
    m_queue->setMaxRunning(1);
    connect(m_queue.get(), &ConversionQueue::started, this,
            [this](int id) { m_events << QStringLiteral("started %1").arg(id); });
    connect(m_queue.get(), &ConversionQueue::finished, this,
            [this](int id, const Result<ConversionOutcome> &outcome) {
                const bool isCancelled = !outcome && outcome.error().kind == Error::Cancelled;
                m_events << (outcome       ? QStringLiteral("finished %1")
                             : isCancelled ? QStringLiteral("cancelled %1")
                                           : QStringLiteral("failed %1"))
                                .arg(id);
            });
}

void TestConversionQueue::cleanup()
{
    m_queue.reset();
    m_folder.reset();
    qputenv("PATH", m_path);
}

ConversionQueue::JobSource TestConversionQueue::job(const char *name) const
{
    ConversionJob made;
    made.source = m_folder->filePath(QString::fromLatin1(name));
    made.settings.extension = QStringLiteral("mp3");
    return [made] { return made; };
}

void TestConversionQueue::nothingRunsBeforeTheStart()
{
    add(1, "song.wav");
    QCoreApplication::processEvents();
    QCOMPARE(m_events, QStringList());
    QVERIFY(!m_queue->isEmpty());
}

void TestConversionQueue::jobsRunInTheOrderOfTheirIds()
{
    add(3, "song.wav");
    add(1, "song.wav");
    add(2, "song.wav");
    m_queue->start();
    QTRY_VERIFY_WITH_TIMEOUT(m_queue->isEmpty(), patience);
    QCOMPARE(m_events,
             events("started 1, finished 1, started 2, finished 2, started 3, finished 3"));
    QCOMPARE(QDir(m_folder->path()).entryList({QStringLiteral("*.mp3")}),
             events("song (2).mp3, song (3).mp3, song.mp3"));
}

void TestConversionQueue::aFailureDoesNotStopTheOthers()
{
    add(1, "missing.wav");
    add(2, "song.wav");
    m_queue->start();
    QTRY_VERIFY_WITH_TIMEOUT(m_queue->isEmpty(), patience);
    QCOMPARE(m_events, events("started 1, failed 1, started 2, finished 2"));
}

void TestConversionQueue::progressNamesItsJob()
{
    QSignalSpy progress(m_queue.get(), &ConversionQueue::progressed);
    add(7, "song.wav");
    m_queue->start();
    QTRY_VERIFY_WITH_TIMEOUT(m_queue->isEmpty(), patience);
    QVERIFY(!progress.isEmpty());
    QCOMPARE(progress.constLast().at(0).toInt(), 7);
    QCOMPARE(progress.constLast().at(1).value<Progress>().total, 1.0);
}

void TestConversionQueue::aJobIsRequestedOnlyWhenItsTurnComes()
{
    add(1, "song.wav");
    m_queue->add(2, [this] {
        m_events << QStringLiteral("asked");
        return job("song.wav")();
    });
    m_queue->start();
    QTRY_VERIFY_WITH_TIMEOUT(m_queue->isEmpty(), patience);
    QCOMPARE(m_events, events("started 1, finished 1, asked, started 2, finished 2"));
}

void TestConversionQueue::aJobAddedWhileOthersRunIsRun()
{
    add(1, "song.wav");
    m_queue->start();
    add(2, "song.wav");
    QCOMPARE(m_events, events("started 1"));
    QTRY_VERIFY_WITH_TIMEOUT(m_queue->isEmpty(), patience);
    QCOMPARE(m_events, events("started 1, finished 1, started 2, finished 2"));
}

void TestConversionQueue::aJobCanBeAddedWhenAnotherEnds()
{
    connect(m_queue.get(), &ConversionQueue::finished, this, [this](int id) {
        if (id == 1) {
            add(2, "song.wav");
        }
    });
    add(1, "song.wav");
    m_queue->start();
    QTRY_COMPARE_WITH_TIMEOUT(m_events, events("started 1, finished 1, started 2, finished 2"),
                              patience);
}

void TestConversionQueue::anIdCanBeReusedOnceItsJobHasEnded()
{
    add(1, "hanging.wav");
    m_queue->start();
    m_queue->cancel(1);
    QTRY_VERIFY_WITH_TIMEOUT(m_queue->isEmpty(), patience);
    add(1, "song.wav");
    m_queue->start();
    QTRY_VERIFY_WITH_TIMEOUT(m_queue->isEmpty(), patience);
    QCOMPARE(m_events, events("started 1, cancelled 1, started 1, finished 1"));
}

void TestConversionQueue::aWaitingJobIsCancelledAtOnce()
{
    add(1, "song.wav");
    add(2, "song.wav");
    m_queue->start();
    m_queue->cancel(2);
    QCOMPARE(m_events, events("started 1, cancelled 2"));
    QTRY_VERIFY_WITH_TIMEOUT(m_queue->isEmpty(), patience);
    QCOMPARE(m_events, events("started 1, cancelled 2, finished 1"));
}

void TestConversionQueue::cancellingTheRunningJobLetsTheNextOneRun()
{
    add(1, "hanging.wav");
    add(2, "song.wav");
    m_queue->start();
    m_queue->cancel(1);
    QTRY_VERIFY_WITH_TIMEOUT(m_queue->isEmpty(), patience);
    QCOMPARE(m_events, events("started 1, cancelled 1, started 2, finished 2"));
}

void TestConversionQueue::aRemovedJobEmitsNothing_data()
{
    QTest::addColumn<int>("removed");
    QTest::addColumn<QStringList>("expected");
    QTest::newRow("running") << 1 << events("started 1, started 2, cancelled 2");
    QTest::newRow("waiting") << 2 << events("started 1, cancelled 1");
}

void TestConversionQueue::aRemovedJobEmitsNothing()
{
    QFETCH(int, removed);
    QFETCH(QStringList, expected);
    const QStringList before = filesInFolder();
    add(1, "hanging.wav");
    add(2, "hanging.wav");
    m_queue->start();
    m_queue->remove(removed);
    m_queue->cancel(3 - removed);
    QTRY_VERIFY_WITH_TIMEOUT(m_queue->isEmpty(), patience);
    QCOMPARE(m_events, expected);
    QTRY_COMPARE_WITH_TIMEOUT(filesInFolder(), before, patience);
}

void TestConversionQueue::aJobRemovedBeforeItFailsEmitsNothing()
{
    m_queue->add(1, [] { return ConversionJob(); });
    m_queue->start();
    m_queue->remove(1);
    QCoreApplication::processEvents();
    QCOMPARE(m_events, events("started 1"));
}

void TestConversionQueue::stoppingCancelsRunningJobsAndRemovesWaitingOnes()
{
    add(1, "hanging.wav");
    add(2, "song.wav");
    m_queue->start();
    m_queue->stop();
    QTRY_VERIFY_WITH_TIMEOUT(m_queue->isEmpty(), patience);
    QCOMPARE(m_events, events("started 1, cancelled 1"));
}

void TestConversionQueue::aPausedQueueStartsNothing()
{
    m_queue->pause();
    add(1, "song.wav");
    m_queue->start();
    QVERIFY(m_queue->isPaused());
    QVERIFY(!m_queue->hasRoom());
    QCOMPARE(m_events, QStringList());
    m_queue->resume();
    QTRY_VERIFY_WITH_TIMEOUT(m_queue->isEmpty(), patience);
    QCOMPARE(m_events, events("started 1, finished 1"));
}

void TestConversionQueue::aJobIsHaltedAsSoonAsItEncodes()
{
    add(1, "song.wav");
    m_queue->start();
    m_queue->pause(); // while the source is still being read
    QTRY_VERIFY_WITH_TIMEOUT(hasStoppedChild(), patience);
    QCOMPARE(m_events, events("started 1"));
    m_queue->resume();
    QTRY_VERIFY_WITH_TIMEOUT(m_queue->isEmpty(), patience);
    QCOMPARE(m_events, events("started 1, finished 1"));
}

void TestConversionQueue::noMoreJobsRunThanAllowed()
{
    m_queue->setMaxRunning(2);
    add(1, "hanging.wav");
    add(2, "song.wav");
    add(3, "hanging.wav");
    add(4, "song.wav");
    m_queue->start();
    QCOMPARE(m_events, events("started 1, started 2"));
    QTRY_COMPARE_WITH_TIMEOUT(m_events, events("started 1, started 2, finished 2, started 3"),
                              patience);
    m_queue->stop();
    QTRY_VERIFY_WITH_TIMEOUT(m_queue->isEmpty(), patience);
    m_events.sort();
    QCOMPARE(m_events,
             events("cancelled 1, cancelled 3, finished 2, started 1, started 2, started 3"));
}

void TestConversionQueue::jobsStartWhileCoresAreIdle_data()
{
    QTest::addColumn<QString>("extension");
    QTest::addColumn<QString>("videoCodec");
    QTest::addColumn<int>("cores");
    QTest::newRow("audio") << QStringLiteral("mp3") << QString() << 1;
    QTest::newRow("an encoder with a single thread")
        << QStringLiteral("ogv") << QStringLiteral("theora") << 1;
    QTest::newRow("an encoder with many threads")
        << QStringLiteral("mkv") << QStringLiteral("hevc") << 8;
    QTest::newRow("the container's usual encoder") << QStringLiteral("mp4") << QString() << 8;
}

void TestConversionQueue::jobsStartWhileCoresAreIdle()
{
    QFETCH(QString, extension);
    QFETCH(QString, videoCodec);
    QFETCH(int, cores);
    ConversionJob wanted = job("hanging.wav")();
    wanted.settings.extension = extension;
    wanted.settings.hasVideo = extension != QLatin1String("mp3");
    wanted.settings.videoCodec = videoCodec;
    QCOMPARE(coresToBusy(wanted.settings), cores);

    ConversionQueue queue;
    QSignalSpy started(&queue, &ConversionQueue::started);
    const int most = (QThread::idealThreadCount() + cores - 1) / cores;
    for (int id = 0; id <= most; ++id) {
        queue.add(id, [wanted] { return wanted; });
    }
    queue.start();
    QCOMPARE(started.size(), most);
}

void TestConversionQueue::jobsSideBySideKeepEachOthersResults_data()
{
    QTest::addColumn<bool>("overwrite");
    QTest::addColumn<QStringList>("expected");
    QTest::newRow("each takes a free name")
        << false << events("song (2).mp3, song (3).mp3, song.mp3");
    QTest::newRow("one replaces what was there") << true << events("song (2).mp3, song.mp3");
}

void TestConversionQueue::jobsSideBySideKeepEachOthersResults()
{
    QFETCH(bool, overwrite);
    QFETCH(QStringList, expected);
    const QDir results(m_folder->filePath(QStringLiteral("results")));
    QVERIFY(results.mkpath(QStringLiteral("other")));
    QVERIFY(writeFile(results.filePath(QStringLiteral("song.mp3")), "old"));
    QVERIFY(QFile::copy(m_folder->filePath(QStringLiteral("song.wav")),
                        results.filePath(QStringLiteral("other/song.wav"))));
    m_queue->setMaxRunning(2);
    const auto kept = std::make_shared<KeptFiles>();
    int id = 0;
    for (const QString &source : {m_folder->filePath(QStringLiteral("song.wav")),
                                  results.filePath(QStringLiteral("other/song.wav"))}) {
        ConversionJob wanted = job("song.wav")();
        wanted.source = source;
        wanted.target.folder = results.path();
        wanted.target.ifExists =
            overwrite ? OutputTarget::IfExists::Overwrite : OutputTarget::IfExists::Rename;
        wanted.target.kept = kept;
        m_queue->add(++id, [wanted] { return wanted; });
    }
    m_queue->start();
    QCOMPARE(m_events, events("started 1, started 2"));
    QTRY_VERIFY_WITH_TIMEOUT(m_queue->isEmpty(), patience);
    QCOMPARE(results.entryList({QStringLiteral("*.mp3")}), expected);
    for (const QString &name : qAsConst(expected)) {
        const bool isOld = !overwrite && name == QLatin1String("song.mp3");
        QCOMPARE(contentOf(results.filePath(name)) == "old", isOld);
    }
}

void TestConversionQueue::destroyingTheQueueLeavesNothing()
{
    const QStringList before = filesInFolder();
    add(1, "hanging.wav");
    add(2, "song.wav");
    m_queue->start();
    QTRY_VERIFY_WITH_TIMEOUT(filesInFolder() != before, patience);
    m_queue.reset();
    QCOMPARE(filesInFolder(), before);
    QCOMPARE(m_events, events("started 1"));
}

void TestConversionQueue::unknownIdsChangeNothing()
{
    add(1, "song.wav");
    m_queue->start();
    m_queue->cancel(2);
    m_queue->remove(2);
    QTRY_VERIFY_WITH_TIMEOUT(m_queue->isEmpty(), patience);
    QCOMPARE(m_events, events("started 1, finished 1"));
}

QTEST_GUILESS_MAIN(TestConversionQueue)
#include "tst_conversionqueue.moc"
