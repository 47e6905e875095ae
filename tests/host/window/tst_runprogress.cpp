#include "host/window/runprogress.h"

#include <QtTest>

class TestRunProgress : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void aTaskCountsAsMuchAsItsFileIsLong();
    void endedTasksAreCounted();
    void aDroppedTaskNoLongerCounts();
    void anUnknownLengthCountsToo();
    void theTimeLeftIsUnknownAtFirst();
    void aClearedRunIsEmpty();
    void unknownTasksChangeNothing();
};

void TestRunProgress::aTaskCountsAsMuchAsItsFileIsLong()
{
    RunProgress run;
    run.add(1, 30);
    run.add(2, 10);
    run.setShare(1, 0.5);
    QCOMPARE(run.percent(), 37);
    run.setShare(1, 2);
    QCOMPARE(run.percent(), 75);
}

void TestRunProgress::endedTasksAreCounted()
{
    RunProgress run;
    run.add(1, 10);
    run.add(2, 10);
    run.setShare(1, 0.2);
    run.end(1);
    run.end(1);
    run.setShare(1, 0.1); // comes late
    QCOMPARE(run.ended(), 1);
    QCOMPARE(run.total(), 2);
    QCOMPARE(run.percent(), 50);
}

void TestRunProgress::aDroppedTaskNoLongerCounts()
{
    RunProgress run;
    run.add(1, 10);
    run.add(2, 10);
    run.end(1);
    run.drop(1);
    QCOMPARE(run.ended(), 0);
    QCOMPARE(run.total(), 1);
    QCOMPARE(run.percent(), 0);
}

void TestRunProgress::anUnknownLengthCountsToo()
{
    RunProgress run;
    run.add(1, 0);
    QCOMPARE(run.percent(), 0);
    run.end(1);
    QCOMPARE(run.percent(), 100);
}

void TestRunProgress::theTimeLeftIsUnknownAtFirst()
{
    RunProgress run;
    QCOMPARE(run.secondsLeft(), -1.0);
    run.add(1, 10);
    run.setShare(1, 0.5);
    QCOMPARE(run.secondsLeft(), -1.0);
}

void TestRunProgress::aClearedRunIsEmpty()
{
    RunProgress run;
    run.add(1, 10);
    run.end(1);
    run.clear();
    QVERIFY(run.isEmpty());
    QCOMPARE(run.ended(), 0);
    QCOMPARE(run.percent(), 0);
}

void TestRunProgress::unknownTasksChangeNothing()
{
    RunProgress run;
    run.add(1, 10);
    run.setShare(2, 1);
    run.end(2);
    run.drop(2);
    QCOMPARE(run.total(), 1);
    QCOMPARE(run.ended(), 0);
    QCOMPARE(run.percent(), 0);
}

QTEST_GUILESS_MAIN(TestRunProgress)
#include "tst_runprogress.moc"
