#include "tests/host/queue/engines/paralleltest.h"
#include "tests/support/runningprocess.h"
#include "tests/support/testfiles.h"

#include <csignal>

/*! Machines, engines and submissions that GNU parallel can't go on with. */
class TestParallelEngineFailures : public ParallelTest
{
    Q_OBJECT

private Q_SLOTS:
    void aFullMachineLeavesItsJobsToOthers();
    void aMachineThatCantBeUsedIsNamedBeforeAnythingIsDone_data();
    void aMachineThatCantBeUsedIsNamedBeforeAnythingIsDone();
    void aMissingEngineIsNamedWithItsPackage();
    void onePlanIsSubmittedByOneAtATime();
    void aStopEndsTheWorkEverywhere_data();
    void aStopEndsTheWorkEverywhere();

private:
    /*! The file that an ffmpeg on alpha writes its id to, before it sleeps. */
    [[nodiscard]] QString sleeper() const { return path(QStringLiteral("sleeper")); }
    [[nodiscard]] bool letAlphaSleep() const;
};

bool TestParallelEngineFailures::letAlphaSleep() const
{
    // Written under another name first, as the test waits for the complete file.
    return makeFfmpeg(
        alphasPrograms(),
        QStringLiteral("echo $$ >'%1.part'; mv '%1.part' '%1'; exec sleep 100").arg(sleeper()));
}

void TestParallelEngineFailures::aFullMachineLeavesItsJobsToOthers()
{
    const QString rsync = alphasPrograms() + QStringLiteral("/rsync");
    QVERIFY(writeFile(rsync, "#!/bin/sh\necho 'No space left on device' >&2\nexit 11\n"));
    QVERIFY(QFile::setPermissions(rsync, QFile::ReadOwner | QFile::ExeOwner));
    const CommandRun shared = submit(QStringLiteral("alpha,beta"));
    QCOMPARE(shared.out.count(QStringLiteral("\"status\":\"converted\"")), 2);
    QCOMPARE(results(), m_names);

    QVERIFY(QDir(path(QStringLiteral("results"))).removeRecursively());
    const CommandRun alone = submit(QStringLiteral("alpha"));
    QVERIFY(QFile::remove(rsync));
    QCOMPARE(alone.exitCode, 1);
    QVERIFY2(
        alone.err.contains(QStringLiteral("3 of 3 jobs have no result (No space left on device)")),
        qPrintable(alone.err));
    QCOMPARE(results(), QStringList());
}

void TestParallelEngineFailures::aMachineThatCantBeUsedIsNamedBeforeAnythingIsDone_data()
{
    QTest::addColumn<QString>("hosts");
    QTest::addColumn<QString>("program");
    QTest::addColumn<QString>("complaint");

    QTest::newRow("unreachable") << "alpha,gamma"
                                 << "vexconvert"
                                 << "gamma can't be used (ssh: connect to host";
    QTest::newRow("without vexconvert")
        << "alpha"
        << "no/such program"
        << "alpha can't be used (no/such program is not on the PATH";
}

void TestParallelEngineFailures::aMachineThatCantBeUsedIsNamedBeforeAnythingIsDone()
{
    QFETCH(QString, hosts);
    QFETCH(QString, program);
    QFETCH(QString, complaint);

    const CommandRun submitted =
        run({QStringLiteral("submit"), QStringLiteral("jobs.jsonl"), QStringLiteral("--engine"),
             QStringLiteral("parallel"), QStringLiteral("--hosts"), hosts,
             QStringLiteral("--program"), program});
    QCOMPARE(submitted.exitCode, 1);
    QVERIFY2(submitted.err.contains(complaint), qPrintable(submitted.err));
    QCOMPARE(submitted.out, QString());
    QCOMPARE(results(), QStringList());
}

void TestParallelEngineFailures::aMissingEngineIsNamedWithItsPackage()
{
    m_environment.insert(QStringLiteral("PATH"), m_folder->path());
    const CommandRun submitted = run("submit jobs.jsonl --engine parallel");
    QCOMPARE(submitted.exitCode, 1);
    QVERIFY2(submitted.err.contains(QStringLiteral("apt-get install parallel")),
             qPrintable(submitted.err));
}

void TestParallelEngineFailures::onePlanIsSubmittedByOneAtATime()
{
    QVERIFY(letAlphaSleep());
    QProcess first;
    start(first,
          {QStringLiteral("submit"), QStringLiteral("jobs.jsonl"), QStringLiteral("--engine"),
           QStringLiteral("parallel"), QStringLiteral("--hosts"), QStringLiteral("alpha")});
    QTRY_VERIFY_WITH_TIMEOUT(QFile::exists(sleeper()), patience);
    const CommandRun second = submit(QStringLiteral("beta"));
    QCOMPARE(second.exitCode, 1);
    QVERIFY2(second.err.contains(QStringLiteral("is being submitted by another vexconvert")),
             qPrintable(second.err));
    QVERIFY(run("status").out.contains(QStringLiteral("waiting or running")));
    QCOMPARE(results(), QStringList());
    first.terminate();
    QVERIFY(first.waitForFinished(patience));
}

void TestParallelEngineFailures::aStopEndsTheWorkEverywhere_data()
{
    QTest::addColumn<int>("signalNumber");

    QTest::newRow("terminated") << SIGTERM;
    QTest::newRow("killed") << SIGKILL;
}

void TestParallelEngineFailures::aStopEndsTheWorkEverywhere()
{
    QFETCH(int, signalNumber);

    QVERIFY(letAlphaSleep());
    QProcess stopped;
    start(stopped,
          {QStringLiteral("submit"), QStringLiteral("jobs.jsonl"), QStringLiteral("--engine"),
           QStringLiteral("parallel"), QStringLiteral("--hosts"), QStringLiteral("alpha")});
    QTRY_VERIFY_WITH_TIMEOUT(QFile::exists(sleeper()), patience);
    const qint64 id = contentOf(sleeper()).trimmed().toLongLong();
    QVERIFY(isRunning(id));
    ::kill(pid_t(stopped.processId()), signalNumber);
    QVERIFY(stopped.waitForFinished(patience));
    QTRY_VERIFY_WITH_TIMEOUT(!isRunning(id), patience);
    if (signalNumber == SIGTERM) {
        QCOMPARE(stopped.exitCode(), 1);
    }

    QCOMPARE(run("status").out.count(QStringLiteral("2 without a result, and with no engine")), 1);

    QVERIFY(QFile::remove(alphasPrograms() + QStringLiteral("/ffmpeg")));
    QCOMPARE(submit(QStringLiteral("alpha,beta")).out.count(QLatin1Char('\n')), 3);
    QCOMPARE(wholeResults(), m_names);
    QCOMPARE(results(), m_names);
    QCOMPARE(leftOnMachines(), QStringList());
}

QTEST_GUILESS_MAIN(TestParallelEngineFailures)
#include "tst_parallelengine_failures.moc"
