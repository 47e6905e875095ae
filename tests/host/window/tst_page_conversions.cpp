#include "tests/host/window/pagetest.h"

#include <QThread>

#include <algorithm>
#include <cmath>

/*! How a page converts its files. */
class TestPageConversions : public PageTest
{
    Q_OBJECT

private Q_SLOTS:
    void tasksRunWhileCoresAreIdle();
    void tasksRunInTheOrderOfTheList();
    void aRunningTaskIsNotRestarted();
    void allTracksAreKeptIfThePresetKeepsThem();
    void aStoppedTaskCanBeRetried();
    void removingTheRunningTaskLetsTheNextOneRun();
    void resultsAreWrittenToTheChosenFolder();
    void theEditorCutsItsFiles();
};

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
