#include "host/queue/resultlines.h"
#include "tests/support/testfiles.h"

#include <QTemporaryDir>
#include <QtTest>

/*! Reading what "vexconvert run" prints. */
class TestResultLines : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void aResultHasWhatItsLineSays();
    void aLineThatIsNoResultIsLeftOut_data();
    void aLineThatIsNoResultIsLeftOut();
    void aLaterResultOfAJobReplacesAnEarlierOne();
    void aTaskThatRunsAgainSkipsWhatItHasConverted();
    void eachFileHasItsOwnJobs();

private:
    [[nodiscard]] QVector<JobResult> resultsOf(const QByteArray &lines) const
    {
        QVector<JobResult> results;
        const QTemporaryDir folder;
        if (writeFile(folder.filePath(QStringLiteral("1.jsonl")), lines)) {
            eachResult(QDir(folder.path()),
                       [&results](const JobResult &result) { results << result; });
        }
        return results;
    }
};

void TestResultLines::aResultHasWhatItsLineSays()
{
    const QVector<JobResult> results =
        resultsOf(R"({"event":"result","index":7,"status":"failed","source":"/a.wav",)"
                  R"("target":"/a.mp3","error":"it is broken","host":"alpha"})");
    QCOMPARE(results.size(), 1);
    QCOMPARE(results.at(0).index, 7);
    QCOMPARE(results.at(0).status, JobResult::Failed);
    QCOMPARE(results.at(0).source, QStringLiteral("/a.wav"));
    QCOMPARE(results.at(0).target, QStringLiteral("/a.mp3"));
    QCOMPARE(results.at(0).error, QStringLiteral("it is broken"));
    QCOMPARE(results.at(0).host, QStringLiteral("alpha"));
}

void TestResultLines::aLineThatIsNoResultIsLeftOut_data()
{
    QTest::addColumn<QByteArray>("line");

    QTest::newRow("cut off") << QByteArray(R"({"index":1,"status":"conv)");
    QTest::newRow("glued to a cut one")
        << QByteArray(R"({"index":1,"sta{"index":1,"status":"converted"})");
    QTest::newRow("another status") << QByteArray(R"({"index":1,"status":"pondered"})");
    QTest::newRow("no status") << QByteArray(R"({"index":1,"event":"progress"})");
    QTest::newRow("no JSON") << QByteArray("Bus error");
}

void TestResultLines::aLineThatIsNoResultIsLeftOut()
{
    QFETCH(QByteArray, line);

    const QVector<JobResult> results =
        resultsOf(line + "\n" + R"({"index":2,"status":"converted"})" + "\n");
    QCOMPARE(results.size(), 1);
    QCOMPARE(results.at(0).index, 2);
}

void TestResultLines::aLaterResultOfAJobReplacesAnEarlierOne()
{
    const QVector<JobResult> results = resultsOf("{\"index\":1,\"status\":\"failed\"}\n"
                                                 "{\"index\":1,\"status\":\"converted\"}\n");
    QCOMPARE(results.size(), 1);
    QCOMPARE(results.at(0).status, JobResult::Converted);
}

void TestResultLines::aTaskThatRunsAgainSkipsWhatItHasConverted()
{
    const QVector<JobResult> results = resultsOf("{\"index\":1,\"status\":\"converted\"}\n"
                                                 "{\"index\":1,\"status\":\"skipped\"}\n"
                                                 "{\"index\":2,\"status\":\"skipped\"}\n");
    QCOMPARE(results.size(), 2);
    QCOMPARE(results.at(0).status, JobResult::Converted);
    QCOMPARE(results.at(1).status, JobResult::Skipped);
}

void TestResultLines::eachFileHasItsOwnJobs()
{
    const QTemporaryDir folder;
    QVERIFY(writeFile(folder.filePath(QStringLiteral("1.jsonl")),
                      "{\"index\":1,\"status\":\"converted\"}\n"));
    QVERIFY(writeFile(folder.filePath(QStringLiteral("2.jsonl")),
                      "{\"index\":1,\"status\":\"failed\"}\n"));
    QVector<JobResult::Status> statuses;
    eachResult(QDir(folder.path()),
               [&statuses](const JobResult &result) { statuses << result.status; });
    QCOMPARE(statuses, QVector<JobResult::Status>({JobResult::Converted, JobResult::Failed}));
}

QTEST_GUILESS_MAIN(TestResultLines)
#include "tst_resultlines.moc"
