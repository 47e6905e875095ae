#include "tests/host/queue/engines/enginetest.h"
#include "tests/support/testfiles.h"

/*! "submit --engine slurm" with a Slurm cluster of this machine, whose arrays have 10 tasks. */
class TestSlurmEngine : public EngineTest
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void init();
    void cleanup();

    void eachResultIsThereOnceAndWhole();
    void jobsOfAKilledWorkerAreDoneByTheNextSubmission();
    void aQueuedPlanIsNotSubmittedAgain();
    void aResultThatCantGetItsPlaceIsNamed();
    void whatSlurmRefusesIsNamed();
    void aMissingEngineIsNamedWithItsPackage();

private:
    [[nodiscard]] CommandRun submit() const
    {
        return run({QStringLiteral("submit"), QStringLiteral("jobs.jsonl"),
                    QStringLiteral("--engine"), QStringLiteral("slurm"),
                    QStringLiteral("--program"), QStringLiteral(VEXCONVERT)});
    }
    /*! What status says when nothing runs or waits any more; empty if that isn't in time. */
    [[nodiscard]] QString statusInTheEnd() const;

    EngineDaemons m_daemons;
    QString m_config;
};

void TestSlurmEngine::initTestCase()
{
    const QString missing = lacking({{QStringLiteral("sbatch"), QStringLiteral("slurm-client")},
                                     {QStringLiteral("slurmctld"), QStringLiteral("slurmctld")},
                                     {QStringLiteral("slurmd"), QStringLiteral("slurmd")},
                                     {QStringLiteral("munged"), QStringLiteral("munge")}});
    if (!missing.isEmpty()) {
        QSKIP(qPrintable(missing));
    }
    EngineTest::initTestCase();
    m_config = m_daemons.start(QStringLiteral("slurm.sh"));
    QVERIFY(!m_config.isEmpty());
}

void TestSlurmEngine::init()
{
    EngineTest::init();
    m_environment.insert(QStringLiteral("SLURM_CONF"), m_config);
}

void TestSlurmEngine::cleanup()
{
    QProcess scancel;
    scancel.setProcessEnvironment(m_environment);
    scancel.start(QStringLiteral("scancel"),
                  {QStringLiteral("--full"), QStringLiteral("--signal=KILL"),
                   QStringLiteral("--state=RUNNING")});
    QVERIFY(scancel.waitForFinished(patience));
    EngineTest::cleanup();
}

QString TestSlurmEngine::statusInTheEnd() const
{
    QString status;
    const auto isAtWork = [&status, this] {
        status = run("status").out;
        return status.contains(QStringLiteral(" running\n")) ||
               status.contains(QStringLiteral(" waiting\n"));
    };
    return QTest::qWaitFor([&isAtWork] { return !isAtWork(); }, patience) ? status : QString();
}

void TestSlurmEngine::eachResultIsThereOnceAndWhole()
{
    QVERIFY(makeJobs(20));
    const CommandRun submitted = submit();
    QCOMPARE(submitted.err, QString());
    QCOMPARE(submitted.exitCode, 0);
    QVERIFY2(submitted.out.contains(QStringLiteral("in 10 tasks")), qPrintable(submitted.out));
    const QString status = statusInTheEnd();
    QVERIFY2(status.contains(QStringLiteral("20 jobs\n  19 converted\n  1 failed\n")),
             qPrintable(status));
    QVERIFY2(status.contains(source(QStringLiteral("broken")) +
                             QStringLiteral(": cannot be read as media")),
             qPrintable(status));
    QCOMPARE(run("status").exitCode, 1);
    QCOMPARE(wholeResults(), m_names);
    QCOMPARE(results(), m_names);
}

void TestSlurmEngine::jobsOfAKilledWorkerAreDoneByTheNextSubmission()
{
    // The vexconvert that starts this ffmpeg is killed, once.
    QTemporaryDir tools;
    QVERIFY(makeFfmpeg(tools.path(), QStringLiteral("mkdir '%1' 2>/dev/null && kill -KILL $PPID")
                                         .arg(path(QStringLiteral("killed")))));
    const QString usual = m_environment.value(QStringLiteral("PATH"));
    m_environment.insert(QStringLiteral("PATH"), tools.path() + QLatin1Char(':') + usual);
    QCOMPARE(submit().exitCode, 0);
    const QString first = statusInTheEnd();
    QVERIFY2(first.contains(QStringLiteral(" without a result, and with no engine\n")),
             qPrintable(first));
    const QMap<QString, QDateTime> before = dates();
    QCOMPARE(before.size(), 1);

    QCOMPARE(submit().exitCode, 0);
    const QString second = statusInTheEnd();
    QVERIFY2(second.contains(QStringLiteral("  1 failed\n")), qPrintable(second));
    QVERIFY2(!second.contains(QStringLiteral("without a result, and with no engine")),
             qPrintable(second));
    QCOMPARE(wholeResults(), m_names);
    QCOMPARE(results(), m_names);
    const QMap<QString, QDateTime> after = dates();
    for (auto file = before.begin(); file != before.end(); ++file) {
        QCOMPARE(after.value(file.key()), file.value());
    }
}

void TestSlurmEngine::aQueuedPlanIsNotSubmittedAgain()
{
    QTemporaryDir tools;
    QVERIFY(makeFfmpeg(tools.path(), QStringLiteral("sleep 100")));
    m_environment.insert(QStringLiteral("PATH"), tools.path() + QLatin1Char(':') +
                                                     m_environment.value(QStringLiteral("PATH")));
    QCOMPARE(submit().exitCode, 0);
    const CommandRun second = submit();
    QCOMPARE(second.exitCode, 1);
    QVERIFY2(second.err.contains(QStringLiteral("Slurm is still converting this plan")),
             qPrintable(second.err));
    const CommandRun other = run("submit jobs.jsonl --engine parallel");
    QCOMPARE(other.exitCode, 1);
    QCOMPARE(other.err, second.err);
    QTRY_VERIFY_WITH_TIMEOUT(run("status").out.contains(QStringLiteral("2 running")), patience);
}

void TestSlurmEngine::aResultThatCantGetItsPlaceIsNamed()
{
    // A file where the folder should be.
    QVERIFY(writeFile(path(QStringLiteral("results"))));
    QCOMPARE(submit().exitCode, 0);
    const QString status = statusInTheEnd();
    QVERIFY2(status.contains(QStringLiteral("3 jobs\n  3 failed\n")), qPrintable(status));
    QVERIFY2(status.contains(QStringLiteral("the folder ") + path(QStringLiteral("results"))),
             qPrintable(status));
}

void TestSlurmEngine::whatSlurmRefusesIsNamed()
{
    const CommandRun submitted =
        run("submit jobs.jsonl --engine slurm --partition nowhere --program vexconvert");
    QCOMPARE(submitted.exitCode, 1);
    QVERIFY2(submitted.err.contains(QStringLiteral("invalid partition specified: nowhere")),
             qPrintable(submitted.err));
    QCOMPARE(results(), QStringList());
}

void TestSlurmEngine::aMissingEngineIsNamedWithItsPackage()
{
    m_environment.insert(QStringLiteral("PATH"), m_folder->path());
    const CommandRun submitted = run("submit jobs.jsonl --engine slurm");
    QCOMPARE(submitted.exitCode, 1);
    QVERIFY2(submitted.err.contains(QStringLiteral("apt-get install slurm-client")),
             qPrintable(submitted.err));
}

QTEST_GUILESS_MAIN(TestSlurmEngine)
#include "tst_slurmengine.moc"
