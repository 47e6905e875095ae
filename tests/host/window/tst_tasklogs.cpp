#include "host/window/tasklogs.h"

#include <QSignalSpy>
#include <QtTest>

/*! The logs that the window keeps. */
class TestTaskLogs : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void aLogHoldsTheCallAndTheAnswer();
    void allAttemptsOfARunAreKept();
    void anotherRunBeginsAnew();
    void aLongLogKeepsItsEnd();
    void onlyTheLatestTasksAreKept();
    void aTaskWithoutALogSaysSo();
};

namespace {

const ToolCall call = {QStringLiteral("ffmpeg"), {QStringLiteral("a b.mp4")}};

} // namespace

void TestTaskLogs::aLogHoldsTheCallAndTheAnswer()
{
    TaskLogs logs;
    logs.begin(1);
    logs.add(1, call, QStringLiteral("one\ntwo\x1b"));
    QCOMPARE(logs.text(1), QStringLiteral("ffmpeg 'a b.mp4'\n\none\ntwo\uFFFD\n"));
}

void TestTaskLogs::allAttemptsOfARunAreKept()
{
    TaskLogs logs;
    logs.begin(1);
    logs.add(1, call, QStringLiteral("first"));
    logs.add(1, call, QStringLiteral("second"));
    QVERIFY(logs.text(1).contains(QStringLiteral("first")));
    QVERIFY(logs.text(1).contains(QStringLiteral("second")));
}

void TestTaskLogs::anotherRunBeginsAnew()
{
    TaskLogs logs;
    logs.begin(1);
    logs.add(1, call, QStringLiteral("first"));
    logs.begin(1);
    QCOMPARE(logs.text(1), QString());
}

void TestTaskLogs::aLongLogKeepsItsEnd()
{
    TaskLogs logs;
    logs.begin(1);
    logs.add(1, call, QString(TaskLogs::mostCharacters, QLatin1Char('x')) + QStringLiteral("end"));
    QVERIFY(logs.text(1).endsWith(QStringLiteral("end\n")));
    QVERIFY(logs.text(1).size() < TaskLogs::mostCharacters + 10);
}

void TestTaskLogs::onlyTheLatestTasksAreKept()
{
    TaskLogs logs;
    for (int task = 0; task <= TaskLogs::mostTasks; ++task) {
        logs.begin(task);
        logs.add(task, call, QStringLiteral("log"));
    }
    QCOMPARE(logs.text(0), QString());
    QVERIFY(!logs.text(1).isEmpty());
}

void TestTaskLogs::aTaskWithoutALogSaysSo()
{
    TaskLogs logs;
    QSignalSpy shown(&logs, &TaskLogs::shown);
    logs.show(7);
    QCOMPARE(shown.at(0).at(0).toString(), QStringLiteral("ffmpeg hasn't run for this file yet"));
}

QTEST_GUILESS_MAIN(TestTaskLogs)
#include "tst_tasklogs.moc"
