#include "host/queue/watchjournal.h"
#include "tests/support/testfiles.h"

#include <QTemporaryDir>
#include <QtTest>

#include <optional>

class TestWatchJournal : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init()
    {
        m_folder.emplace();
        QVERIFY(m_folder->isValid());
        QVERIFY(writeFile(source(), "one"));
    }
    void cleanup() { m_folder.reset(); }

    void whatIsFinishedIsRemembered();
    void aPromiseIsRemembered();
    void aChangedFileIsANewOne();
    void aFileThatChangesWhileItIsConvertedIsANewOne();
    void aLineCutOffByAKillIsIgnored();
    void onlyOneWatchWritesIntoAFolder();

private:
    QString source() const { return m_folder->filePath(QStringLiteral("clip.wav")); }
    QString journal() const
    {
        return m_folder->filePath(QStringLiteral(".vexconvert-watched.jsonl"));
    }

    std::optional<QTemporaryDir> m_folder;
};

void TestWatchJournal::whatIsFinishedIsRemembered()
{
    {
        WatchJournal first;
        QVERIFY(first.open(m_folder->path()));
        QVERIFY(!first.isDone(source()));
        QVERIFY(first.promise(source(), QStringLiteral("/out/clip.mp3")));
        QVERIFY(!first.isDone(source()));
        QVERIFY(first.finish(source()));
        QVERIFY(first.isDone(source()));
    }
    WatchJournal second;
    QVERIFY(second.open(m_folder->path()));
    QVERIFY(second.isDone(source()));
    QCOMPARE(second.promisedTarget(source()), QString());
}

void TestWatchJournal::aPromiseIsRemembered()
{
    {
        WatchJournal killed;
        QVERIFY(killed.open(m_folder->path()));
        QVERIFY(killed.promise(source(), QStringLiteral("/out/clip (2).mp3")));
    }
    WatchJournal next;
    QVERIFY(next.open(m_folder->path()));
    QVERIFY(!next.isDone(source()));
    QCOMPARE(next.promisedTarget(source()), QStringLiteral("/out/clip (2).mp3"));
}

void TestWatchJournal::aChangedFileIsANewOne()
{
    WatchJournal journal;
    QVERIFY(journal.open(m_folder->path()));
    QVERIFY(journal.promise(source(), QStringLiteral("/out/clip.mp3")));
    QVERIFY(journal.finish(source()));
    QVERIFY(writeFile(source(), "longer"));
    QVERIFY(!journal.isDone(source()));
    QCOMPARE(journal.promisedTarget(source()), QString());
}

void TestWatchJournal::aFileThatChangesWhileItIsConvertedIsANewOne()
{
    WatchJournal journal;
    QVERIFY(journal.open(m_folder->path()));
    QVERIFY(journal.promise(source(), QStringLiteral("/out/clip.mp3")));
    QVERIFY(writeFile(source(), "longer"));
    QVERIFY(journal.finish(source()));
    QVERIFY(!journal.isDone(source()));
}

void TestWatchJournal::aLineCutOffByAKillIsIgnored()
{
    {
        WatchJournal killed;
        QVERIFY(killed.open(m_folder->path()));
        QVERIFY(killed.promise(source(), QStringLiteral("/out/clip.mp3")));
        QVERIFY(killed.finish(source()));
    }
    const QByteArray lines = contentOf(journal());
    QVERIFY(writeFile(journal(), lines.left(lines.size() - 20)));
    {
        WatchJournal next;
        QVERIFY(next.open(m_folder->path()));
        QVERIFY(!next.isDone(source()));
        QCOMPARE(next.promisedTarget(source()), QStringLiteral("/out/clip.mp3"));
        QVERIFY(next.finish(source()));
    }
    WatchJournal last;
    QVERIFY(last.open(m_folder->path()));
    QVERIFY(last.isDone(source()));
}

void TestWatchJournal::onlyOneWatchWritesIntoAFolder()
{
    WatchJournal first;
    QVERIFY(first.open(m_folder->path()));
    WatchJournal second;
    const Result<> refused = second.open(m_folder->path());
    QVERIFY(!refused);
    QCOMPARE(refused.error().kind, Error::InUse);
}

QTEST_GUILESS_MAIN(TestWatchJournal)
#include "tst_watchjournal.moc"
