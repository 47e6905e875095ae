#include "tests/host/queue/engines/paralleltest.h"
#include "tests/support/testfiles.h"

/*! What GNU parallel converts, and where the results go. */
class TestParallelEngine : public ParallelTest
{
    Q_OBJECT

private Q_SLOTS:
    void thisMachineConvertsWithoutSsh();
    void eachResultComesBackOnceAndWhole();
    void theJobOfAKilledWorkerIsTriedAgain();
    void onlyWhatHasNoResultIsSubmittedAgain();
    void whatAnotherRunConvertsIsDone();
    void aResultThatAppearsInTheMeantimeStays();
    void aSourceThatIsGoneIsNamed();
    void aResultThatCantGetItsPlaceIsNamed();
};

void TestParallelEngine::thisMachineConvertsWithoutSsh()
{
    m_environment.insert(QStringLiteral("PATH"), QString::fromLocal8Bit(qgetenv("PATH")));
    const CommandRun submitted = run("submit jobs.jsonl --engine parallel --jobs 2");
    QCOMPARE(submitted.exitCode, 1);
    QCOMPARE(submitted.err, QString());
    QCOMPARE(wholeResults(), m_names);
    QCOMPARE(results(), m_names);
}

void TestParallelEngine::eachResultComesBackOnceAndWhole()
{
    QVERIFY(makeJobs(20));
    const CommandRun submitted = submit(QStringLiteral("alpha,beta"), 4);
    QCOMPARE(submitted.exitCode, 1);
    QCOMPARE(submitted.out.count(QStringLiteral("\"status\":\"converted\"")), 19);
    QCOMPARE(submitted.out.count(QStringLiteral("\"status\":\"failed\"")), 1);
    QCOMPARE(wholeResults(), m_names);
    QCOMPARE(results(), m_names);
    QCOMPARE(leftOnMachines(), QStringList());

    const CommandRun status = run("status");
    QCOMPARE(status.exitCode, 1);
    QVERIFY2(status.out.contains(QStringLiteral("19 converted")), qPrintable(status.out));
    QVERIFY2(status.out.contains(source(QStringLiteral("broken")) +
                                 QStringLiteral(": cannot be read as media")),
             qPrintable(status.out));
}

void TestParallelEngine::theJobOfAKilledWorkerIsTriedAgain()
{
    // The vexconvert that starts this ffmpeg is killed, once.
    QVERIFY(
        makeFfmpeg(alphasPrograms(), QStringLiteral("mkdir '%1' 2>/dev/null && kill -KILL $PPID")
                                         .arg(path(QStringLiteral("killed")))));
    const CommandRun submitted = submit(QStringLiteral("alpha"));
    QVERIFY(QFile::exists(path(QStringLiteral("killed"))));
    QCOMPARE(submitted.out.count(QStringLiteral("\"status\":\"converted\"")), 2);
    QCOMPARE(wholeResults(), m_names);
    QCOMPARE(results(), m_names);
}

void TestParallelEngine::onlyWhatHasNoResultIsSubmittedAgain()
{
    QCOMPARE(submit(QStringLiteral(":")).exitCode, 1);
    const QMap<QString, QDateTime> before = dates();
    QCOMPARE(before.size(), 2);

    const CommandRun again = submit(QStringLiteral(":"));
    QCOMPARE(again.exitCode, 1);
    QCOMPARE(again.out.count(QLatin1Char('\n')), 1);
    QVERIFY2(again.out.contains(QStringLiteral("\"status\":\"failed\"")), qPrintable(again.out));
    QCOMPARE(dates(), before);

    QVERIFY(makeSource(QStringLiteral("broken")));
    const CommandRun healed = submit(QStringLiteral(":"));
    QCOMPARE(healed.exitCode, 0);
    QCOMPARE(healed.out.count(QLatin1Char('\n')), 1);
    QCOMPARE(results().size(), 3);
    QCOMPARE(run("status").out, QStringLiteral("3 jobs\n  1 converted\n"
                                               "  2 skipped: their results were there before\n"));
    QCOMPARE(submit(QStringLiteral(":")).out,
             QStringLiteral("all jobs have their results; nothing is left to convert\n"));
}

void TestParallelEngine::whatAnotherRunConvertsIsDone()
{
    QCOMPARE(submit(QStringLiteral(":")).exitCode, 1);
    QCOMPARE(run("status").exitCode, 1);
    QVERIFY(makeSource(QStringLiteral("broken")));
    QCOMPARE(run("run jobs.jsonl").exitCode, 0);
    const CommandRun status = run("status");
    QCOMPARE(status.exitCode, 0);
    QCOMPARE(status.out, QStringLiteral("3 jobs\n  2 converted\n"
                                        "  1 skipped: their results were there before\n"));
}

void TestParallelEngine::aResultThatAppearsInTheMeantimeStays()
{
    QVERIFY(
        makeFfmpeg(alphasPrograms(), QStringLiteral("mkdir -p '%1'; echo earlier >\"%1/it's.mp3\"")
                                         .arg(path(QStringLiteral("results")))));
    const CommandRun submitted = submit(QStringLiteral("alpha"));
    QCOMPARE(submitted.out.count(QStringLiteral("\"status\":\"converted\"")), 1);
    QCOMPARE(submitted.out.count(QStringLiteral("\"status\":\"skipped\"")), 1);
    QCOMPARE(contentOf(path(QStringLiteral("results/it's.mp3"))), QByteArray("earlier\n"));
    QCOMPARE(results(), m_names);
}

void TestParallelEngine::aSourceThatIsGoneIsNamed()
{
    QVERIFY(QFile::remove(source(QStringLiteral("it's"))));
    QCOMPARE(submit(QStringLiteral(":")).exitCode, 1);
    QCOMPARE(results().size(), 1);
    const CommandRun status = run("status");
    QVERIFY2(status.out.contains(source(QStringLiteral("it's")) +
                                 QStringLiteral(": the source is gone")),
             qPrintable(status.out));
    QVERIFY2(status.out.contains(QStringLiteral("2 failed")), qPrintable(status.out));
}

void TestParallelEngine::aResultThatCantGetItsPlaceIsNamed()
{
    // A file where the folder should be.
    QVERIFY(writeFile(path(QStringLiteral("results"))));
    const CommandRun submitted = submit(QStringLiteral("beta"));
    QCOMPARE(submitted.exitCode, 1);
    QCOMPARE(submitted.out.count(QStringLiteral("\"status\":\"failed\"")), 3);
    const CommandRun status = run("status");
    QVERIFY2(status.out.contains(source(QStringLiteral("it's")) + QStringLiteral(": ") +
                                 QStringLiteral("the folder ") + path(QStringLiteral("results"))),
             qPrintable(status.out));
}

QTEST_GUILESS_MAIN(TestParallelEngine)
#include "tst_parallelengine.moc"
