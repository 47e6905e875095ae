#include "host/queue/resultlog.h"
#include "tests/support/testfiles.h"

#include <QTemporaryDir>
#include <QtTest>

class TestResultLog : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void sourcesWithoutAResultAreRetried_data();
    void sourcesWithoutAResultAreRetried();
    void anotherFileIsNoLog();
    void aMissingLogIsAnError();

private:
    QTemporaryDir m_folder;
};

void TestResultLog::sourcesWithoutAResultAreRetried_data()
{
    QTest::addColumn<QByteArray>("log");
    QTest::addColumn<QSet<QString>>("sources");
    const auto result = [](const char *source, const char *status) {
        return QByteArray("{\"event\":\"result\",\"source\":\"") + source + "\",\"status\":\"" +
               status + "\"}\n";
    };
    const QSet<QString> one = {QStringLiteral("a")};
    QTest::newRow("empty") << QByteArray() << QSet<QString>();
    QTest::newRow("converted") << result("a", "converted") << QSet<QString>();
    QTest::newRow("skipped") << result("a", "skipped") << QSet<QString>();
    QTest::newRow("failed") << result("a", "failed") + result("b", "converted") << one;
    QTest::newRow("stopped") << result("a", "stopped") << one;
    QTest::newRow("killed on the way")
        << QByteArray("{\"event\":\"planned\",\"source\":\"a\"}\n{\"event\":\"prog") << one;
    QTest::newRow("converted at the second try")
        << result("a", "failed") + result("a", "converted") << QSet<QString>();
}

void TestResultLog::sourcesWithoutAResultAreRetried()
{
    QFETCH(QByteArray, log);
    QFETCH(QSet<QString>, sources);
    const QString path = m_folder.filePath(QStringLiteral("log"));
    QVERIFY(writeFile(path, log));
    QCOMPARE(sourcesToRetry(path).value(), sources);
}

void TestResultLog::anotherFileIsNoLog()
{
    const QString path = m_folder.filePath(QStringLiteral("notes"));
    QVERIFY(writeFile(path, "no events\n"));
    QCOMPARE(sourcesToRetry(path).error().text,
             QStringLiteral("%1 is no log of conversions; name a file with what \"vexconvert "
                            "convert --json\" printed")
                 .arg(path));
}

void TestResultLog::aMissingLogIsAnError()
{
    const Result<QSet<QString>> missing = sourcesToRetry(m_folder.filePath(QStringLiteral("no")));
    QVERIFY(!missing);
    QVERIFY(missing.error().text.startsWith(QStringLiteral("can't read the log ")));
}

QTEST_GUILESS_MAIN(TestResultLog)
#include "tst_resultlog.moc"
