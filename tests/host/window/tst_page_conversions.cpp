#include "tests/host/window/pagetest.h"
#include "tests/support/testfiles.h"

#include <QThread>

#include <algorithm>
#include <cmath>
#include <csignal>

/*! How a page converts its files. */
class TestPageConversions : public PageTest
{
    Q_OBJECT

private Q_SLOTS:
    void tasksRunWhileCoresAreIdle();
    void tasksRunInTheOrderOfTheList();
    void aFileIsReadBeforeItIsConverted();
    void aRunningTaskIsNotRestarted();
    void allTracksAreKeptIfThePresetKeepsThem();
    void aPausedPageGoesOnWhereItWas();
    void aPausedTaskCanBeStopped();
    void theProgressOfAllIsTold();
    void aStoppedTaskCanBeRetried();
    void removingTheRunningTaskLetsTheNextOneRun();
    void resultsAreWrittenToTheChosenFolder();
    void theEditorCutsItsFiles();

private:
    /*! Converts a film at the pace of a player; the converter's process id, 0 on failure. */
    pid_t convertSlowly(int seconds);
};

namespace {

/*! As the kernel tells it: 'T' for a stopped process, 0 for none. */
char stateOf(pid_t process)
{
    const QByteArray stat = contentOf(QStringLiteral("/proc/%1/stat").arg(process));
    return stat.startsWith("missing") ? '\0' : stat.at(stat.lastIndexOf(')') + 2);
}

} // namespace

pid_t TestPageConversions::convertSlowly(int seconds)
{
    const QString film = m_files->filePath(QStringLiteral("film.mp4"));
    const QString noted = m_files->filePath(QStringLiteral("converter"));
    const bool isMade = MediaClips::makeFilm(film, seconds) &&
                        MediaClips::makeStandIn(
                            m_files->path(), QStringLiteral("case \"$*\" in */part) echo $$ >'%1'; "
                                                            "exec $REAL -re \"$@\";; esac\n"
                                                            "exec $REAL \"$@\"")
                                                 .arg(noted));
    const QByteArray path = qgetenv("PATH");
    qputenv("PATH", MediaClips::pathWith(m_files->path()));
    m_converter->setConverterGlobalFormat(mp3);
    m_converter->convert(addReady(*m_converter, QUrl::fromLocalFile(film)));
    const bool isRunning =
        isMade && QTest::qWaitFor([&noted] { return contentOf(noted).endsWith('\n'); }, patience);
    qputenv("PATH", path);
    return isRunning ? contentOf(noted).trimmed().toInt() : 0;
}

void TestPageConversions::aPausedPageGoesOnWhereItWas()
{
    const pid_t converter = convertSlowly(2);
    QVERIFY(converter > 0);
    const int other = addReady(*m_converter, song());
    QSignalSpy changes(m_converter.get(), &Page::pauseChanged);
    m_converter->pause();
    QVERIFY(m_converter->isPaused());
    QTRY_COMPARE_WITH_TIMEOUT(stateOf(converter), 'T', patience);
    // Nothing new begins.
    m_converter->convert(other);
    QCOMPARE(task(*m_converter, other).state, Task::Waiting);
    QVERIFY(m_converter->overall().contains(QStringLiteral("Paused")));
    m_converter->resume();
    QCOMPARE(task(*m_converter, other).state, Task::Running);
    QVERIFY(stateOf(converter) != 'T');
    QTRY_VERIFY_WITH_TIMEOUT(!m_converter->isBusy(), patience);
    QCOMPARE(m_converter->tasks()->countOf(Task::Converted), 2);
    QCOMPARE(changes.count(), 2);
}

void TestPageConversions::aPausedTaskCanBeStopped()
{
    const pid_t converter = convertSlowly(30);
    QVERIFY(converter > 0);
    m_converter->pause();
    QTRY_COMPARE_WITH_TIMEOUT(stateOf(converter), 'T', patience);
    m_converter->cancelAll();
    QTRY_VERIFY_WITH_TIMEOUT(!m_converter->isBusy(), patience);
    QTRY_VERIFY_WITH_TIMEOUT(::kill(converter, 0) != 0, patience);
    // The pause ends with what was paused.
    QVERIFY(!m_converter->isPaused());
}

void TestPageConversions::theProgressOfAllIsTold()
{
    QSignalSpy ended(m_converter.get(), &Page::ended);
    addReady(*m_converter, song(QStringLiteral("a.wav")));
    m_converter->addFiles({noMedia()});
    QTRY_COMPARE_WITH_TIMEOUT(m_converter->tasks()->countOf(Task::Failed), 1, patience);
    QCOMPARE(m_converter->overall(), QString());
    QStringList texts;
    connect(m_converter.get(), &Page::overallChanged, this,
            [this, &texts] { texts << m_converter->overall(); });
    m_converter->convertAll();
    QCOMPARE(m_converter->overall(), QStringLiteral("0 of 2"));
    QTRY_VERIFY_WITH_TIMEOUT(!m_converter->isBusy(), patience);
    QVERIFY(texts.contains(QStringLiteral("1 of 2")));
    QCOMPARE(m_converter->overall(), QString());
    QCOMPARE(ended.count(), 1);
    QCOMPARE(ended.at(0), (QVariantList{1, 1}));
}

void TestPageConversions::tasksRunWhileCoresAreIdle()
{
    const int cores = QThread::idealThreadCount();
    for (int i = 0; i <= cores; ++i) {
        addReady(*m_converter, song(QStringLiteral("%1.wav").arg(i)));
    }
    int most = 0;
    connect(m_converter->tasks(), &TaskList::dataChanged, this, [this, &most] {
        const QVector<Task> &all = m_converter->tasks()->tasks();
        most = std::max(most, int(std::count_if(all.begin(), all.end(), [](const Task &task) {
                            return task.state == Task::Running;
                        })));
    });
    QVERIFY(m_converter->canConvert());
    QVERIFY(!m_converter->isBusy());
    m_converter->convertAll();
    QVERIFY(m_converter->isBusy());
    QVERIFY(!m_converter->canConvert());
    QTRY_VERIFY_WITH_TIMEOUT(!m_converter->isBusy(), patience);
    QVERIFY(!m_converter->canConvert());
    QCOMPARE(most, cores);
}

void TestPageConversions::tasksRunInTheOrderOfTheList()
{
    const int first = addReady(*m_converter, song(QStringLiteral("a.wav")));
    const int second = addReady(*m_converter, song(QStringLiteral("b.wav")));
    const int third = addReady(*m_converter, song(QStringLiteral("c.wav")));
    m_converter->convertAll();
    QTRY_VERIFY_WITH_TIMEOUT(!m_converter->isBusy(), patience);
    QCOMPARE(m_runs, QVector<int>({first, second, third}));
}

void TestPageConversions::aFileIsReadBeforeItIsConverted()
{
    m_converter->setConverterGlobalFormat(flac);
    m_converter->setConverterGlobalFormat(mp4);
    m_converter->addFiles({song(), noMedia()});
    m_converter->convertAll();
    const QVector<Task> &tasks = m_converter->tasks()->tasks();
    QCOMPARE(tasks.at(0).state, Task::Waiting);
    QCOMPARE(tasks.at(1).state, Task::Waiting);
    QTRY_COMPARE_WITH_TIMEOUT(tasks.at(0).state, Task::Converted, patience);
    QCOMPARE(tasks.at(0).format, flac);
    QTRY_COMPARE_WITH_TIMEOUT(tasks.at(1).state, Task::Failed, patience);
}

void TestPageConversions::aRunningTaskIsNotRestarted()
{
    const int id = addReady(*m_converter, song());
    m_converter->convert(id);
    m_converter->convert(id);
    QCOMPARE(task(*m_converter, id).state, Task::Running);
    QTRY_COMPARE_WITH_TIMEOUT(task(*m_converter, id).state, Task::Converted, patience);
    QVERIFY(!m_converter->isBusy());
}

void TestPageConversions::allTracksAreKeptIfThePresetKeepsThem()
{
    const QString path = m_files->filePath(QStringLiteral("dubbed.mkv"));
    QVERIFY(MediaClips::make(
        path, QStringLiteral("-f lavfi -i testsrc2=size=320x240:rate=25:duration=1 -f lavfi -i "
                             "sine=duration=1 -map 0 -map 1 -map 1 -c:v libx264 -preset ultrafast "
                             "-pix_fmt yuv420p -c:a aac")));
    m_converter->setConverterGlobalFormat(mp4);
    const int id = addReady(*m_converter, QUrl::fromLocalFile(path));
    m_converter->convert(id);
    QTRY_COMPARE_WITH_TIMEOUT(task(*m_converter, id).state, Task::Converted, patience);
    QCOMPARE(MediaClips::factsOf(task(*m_converter, id).target).audioTracks.size(), 2);
}

void TestPageConversions::aStoppedTaskCanBeRetried()
{
    const int first = addReady(*m_converter, song(QStringLiteral("a.wav")));
    const int second = addReady(*m_converter, song(QStringLiteral("b.wav")));
    m_converter->convertAll();
    m_converter->cancelAll();
    QTRY_VERIFY_WITH_TIMEOUT(!m_converter->isBusy(), patience);
    QCOMPARE(task(*m_converter, first).state, Task::Cancelled);
    QCOMPARE(task(*m_converter, second).state, Task::Cancelled);
    m_converter->convert(second);
    QTRY_COMPARE_WITH_TIMEOUT(task(*m_converter, second).state, Task::Converted, patience);
    QCOMPARE(task(*m_converter, first).state, Task::Cancelled);
    QVERIFY(!QFile::exists(m_files->filePath(QStringLiteral("a.mp3"))));
}

void TestPageConversions::removingTheRunningTaskLetsTheNextOneRun()
{
    const int first = addReady(*m_converter, song(QStringLiteral("a.wav")));
    const int second = addReady(*m_converter, song(QStringLiteral("b.wav")));
    m_converter->convertAll();
    QCOMPARE(task(*m_converter, first).state, Task::Running);
    m_converter->remove(first);
    QCOMPARE(m_converter->tasks()->count(), 1);
    QCOMPARE(task(*m_converter, second).state, Task::Running);
    QTRY_COMPARE_WITH_TIMEOUT(task(*m_converter, second).state, Task::Converted, patience);
    QVERIFY(!QFile::exists(m_files->filePath(QStringLiteral("a.mp3"))));
}

void TestPageConversions::resultsAreWrittenToTheChosenFolder()
{
    QTemporaryDir folder;
    m_converter->setFolder(folder.path());
    const int id = addReady(*m_converter, song());
    m_converter->convertAll();
    QTRY_COMPARE_WITH_TIMEOUT(task(*m_converter, id).state, Task::Converted, patience);
    QVERIFY(QFile::exists(folder.filePath(QStringLiteral("song.mp3"))));
}

void TestPageConversions::theEditorCutsItsFiles()
{
    const QString path = m_files->filePath(QStringLiteral("film.mkv"));
    QVERIFY(MediaClips::makeFilm(path, 4));
    m_editor->setEditorGlobalFormat(mkv);
    const int id = addReady(*m_editor, QUrl::fromLocalFile(path));
    m_editor->cut(id, 1, 3.5);
    m_editor->convertAll();
    QTRY_COMPARE_WITH_TIMEOUT(task(*m_editor, id).state, Task::Converted, patience);
    const double seconds = MediaClips::factsOf(task(*m_editor, id).target).duration;
    QVERIFY2(std::abs(seconds - 2.5) < 0.15, qPrintable(QString::number(seconds)));
    // Choosing another part of a converted file makes it ready again.
    m_editor->cut(id, 0, 1);
    QCOMPARE(task(*m_editor, id).state, Task::Ready);
    QCOMPARE(task(*m_editor, id).end, 1.0);
}

QTEST_MAIN(TestPageConversions)
#include "tst_page_conversions.moc"
