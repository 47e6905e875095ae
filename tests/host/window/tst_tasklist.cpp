#include "host/window/tasklist.h"

#include <QAbstractItemModelTester>
#include <QtTest>

namespace {

Task task(const char *source)
{
    Task made;
    made.source = QString::fromLatin1(source);
    return made;
}

QString sources(const TaskList &list)
{
    QString sources;
    for (const Task &task : list.tasks()) {
        sources += task.source;
    }
    return sources;
}

} // namespace

class TestTaskList : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void tasksKeepTheOrderInWhichTheyWereAdded();
    void idsAreNeverReused();
    void aChangeIsAnnouncedForItsRowOnly();
    void unknownIdsChangeNothing();
    void movedTasksKeepTheirOrder();
    void aMoveKeepsThePersistentIndexes();
    void removedTasksGoBackToTheirRows();
    void theStatesAreCounted();
    void onlyChangesThatAreKeptCountAsEdits();
    void rolesReadTheTask();
    void queuedAndEndedStatesAreKnown_data();
    void queuedAndEndedStatesAreKnown();
};

void TestTaskList::tasksKeepTheOrderInWhichTheyWereAdded()
{
    TaskList list;
    QAbstractItemModelTester tester(&list, QAbstractItemModelTester::FailureReportingMode::Fatal);
    QSignalSpy counts(&list, &TaskList::countChanged);
    list.add(task("/a"));
    const int second = list.add(task("/b"));
    list.add(task("/c"));
    list.remove({second});
    QCOMPARE(list.count(), 2);
    QCOMPARE(list.data(list.index(0), TaskList::SourceRole).toString(), QStringLiteral("/a"));
    QCOMPARE(list.data(list.index(1), TaskList::SourceRole).toString(), QStringLiteral("/c"));
    QCOMPARE(counts.count(), 4);
}

void TestTaskList::idsAreNeverReused()
{
    TaskList one;
    TaskList other;
    const int first = one.add(task("/a"));
    one.remove({first});
    const int second = one.add(task("/a"));
    const int third = other.add(task("/a"));
    QCOMPARE((QSet<int>{first, second, third}.size()), 3);
}

void TestTaskList::aChangeIsAnnouncedForItsRowOnly()
{
    TaskList list;
    QAbstractItemModelTester tester(&list, QAbstractItemModelTester::FailureReportingMode::Fatal);
    list.add(task("/a"));
    const int id = list.add(task("/b"));
    QSignalSpy changes(&list, &TaskList::dataChanged);
    list.update(id, [](Task &changed) { changed.state = Task::Running; });
    QCOMPARE(changes.count(), 1);
    QCOMPARE(changes.at(0).at(0).toModelIndex(), list.index(1));
    QCOMPARE(changes.at(0).at(1).toModelIndex(), list.index(1));
    QCOMPARE(list.find(id)->state, Task::Running);
}

void TestTaskList::unknownIdsChangeNothing()
{
    TaskList list;
    const int id = list.add(task("/a"));
    QSignalSpy changes(&list, &TaskList::dataChanged);
    QSignalSpy counts(&list, &TaskList::countChanged);
    list.remove({id + 1});
    list.update(id + 1, [](Task &changed) { changed.state = Task::Running; });
    QVERIFY(list.find(id + 1) == nullptr);
    QCOMPARE(changes.count(), 0);
    QCOMPARE(counts.count(), 0);
}

void TestTaskList::movedTasksKeepTheirOrder()
{
    TaskList list;
    QAbstractItemModelTester tester(&list, QAbstractItemModelTester::FailureReportingMode::Fatal);
    const int a = list.add(task("/a"));
    const int b = list.add(task("/b"));
    const int c = list.add(task("/c"));
    const int d = list.add(task("/d"));
    list.move({a, c}, 0);
    QCOMPARE(sources(list), QStringLiteral("/b/d/a/c"));
    list.move({c, d}, b);
    QCOMPARE(sources(list), QStringLiteral("/d/c/b/a"));
    // To the place of one of them: it stays before the next one that isn't moved.
    list.move({d, c}, d);
    QCOMPARE(sources(list), QStringLiteral("/d/c/b/a"));
    list.move({b}, 0);
    QCOMPARE(list.rowOf(b), 3);
    QCOMPARE(list.rowOf(a), 2);
}

void TestTaskList::aMoveKeepsThePersistentIndexes()
{
    TaskList list;
    const int a = list.add(task("/a"));
    list.add(task("/b"));
    const QPersistentModelIndex kept = list.index(0);
    list.move({a}, 0);
    QCOMPARE(kept.row(), 1);
}

void TestTaskList::removedTasksGoBackToTheirRows()
{
    TaskList list;
    QAbstractItemModelTester tester(&list, QAbstractItemModelTester::FailureReportingMode::Fatal);
    const int a = list.add(task("/a"));
    list.add(task("/b"));
    const int c = list.add(task("/c"));
    const QVector<QPair<int, Task>> removed = {{0, *list.find(a)}, {2, *list.find(c)}};
    list.remove({a, c});
    QCOMPARE(sources(list), QStringLiteral("/b"));
    list.putBack(removed);
    QCOMPARE(sources(list), QStringLiteral("/a/b/c"));
    QCOMPARE(list.rowOf(c), 2);
}

void TestTaskList::theStatesAreCounted()
{
    TaskList list;
    const int a = list.add(task("/a"));
    const int b = list.add(task("/b"));
    QCOMPARE(list.countOf(Task::Reading), 2);
    list.setState(a, Task::Waiting);
    list.update(b, [](Task &changed) { changed.state = Task::Waiting; });
    QCOMPARE(list.countOf(Task::Reading), 0);
    QCOMPARE(list.countOf(Task::Waiting), 2);
    list.remove({a});
    QCOMPARE(list.countOf(Task::Waiting), 1);
}

void TestTaskList::onlyChangesThatAreKeptCountAsEdits()
{
    TaskList list;
    QSignalSpy edits(&list, &TaskList::edited);
    const int id = list.add(task("/a"));
    list.setState(id, Task::Running);
    QCOMPARE(edits.count(), 2);
    list.setProgress(id, {1, 2, 3});
    list.setThumbnail(id, QStringLiteral("file:///a.png"));
    list.setSelected(id, true);
    QCOMPARE(edits.count(), 2);
    list.remove({id});
    QCOMPARE(edits.count(), 3);
}

void TestTaskList::rolesReadTheTask()
{
    Task film = task("/films/Sea.mp4");
    VideoTrack video;
    video.codec = QStringLiteral("h264");
    video.storedSize = QSize(1280, 720);
    AudioTrack audio;
    audio.codec = QStringLiteral("aac");
    film.facts.videoTracks = {video};
    film.facts.audioTracks = {audio};
    film.facts.duration = 65;
    film.facts.bytes = 2048;
    film.progress.done = 13;
    film.progress.total = 65;
    film.progress.speed = 2;
    TaskList list;
    list.add(film);

    const QHash<int, QByteArray> names = list.roleNames();
    const auto value = [&list, &names](const char *name) {
        return list.data(list.index(0), names.key(name)).toString();
    };
    QCOMPARE(value("name"), QStringLiteral("Sea.mp4"));
    QCOMPARE(value("codecs"), QStringLiteral("h264, aac"));
    QVERIFY(value("details").contains(QStringLiteral("1280 × 720")));
    QVERIFY(value("details").contains(QStringLiteral("1:05")));
    QCOMPARE(value("percent"), QStringLiteral("20"));
    QCOMPARE(value("running"), QStringLiteral("20 %  ·  2.0×  ·  0:26 left"));
    QCOMPARE(value("seconds"), QStringLiteral("65"));
}

void TestTaskList::queuedAndEndedStatesAreKnown_data()
{
    QTest::addColumn<Task::State>("state");
    QTest::addColumn<bool>("isQueued");
    QTest::addColumn<bool>("hasEnded");
    QTest::newRow("reading") << Task::Reading << false << false;
    QTest::newRow("ready") << Task::Ready << false << false;
    QTest::newRow("waiting") << Task::Waiting << true << false;
    QTest::newRow("running") << Task::Running << true << false;
    QTest::newRow("converted") << Task::Converted << false << true;
    QTest::newRow("failed") << Task::Failed << false << true;
    QTest::newRow("interrupted") << Task::Interrupted << false << true;
    QTest::newRow("cancelled") << Task::Cancelled << false << true;
}

void TestTaskList::queuedAndEndedStatesAreKnown()
{
    QFETCH(Task::State, state);
    Task made;
    made.state = state;
    QTEST(made.isQueued(), "isQueued");
    QTEST(made.hasEnded(), "hasEnded");
}

QTEST_GUILESS_MAIN(TestTaskList)
#include "tst_tasklist.moc"
