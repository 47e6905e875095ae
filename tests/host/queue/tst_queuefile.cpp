#include "host/queue/queuefile.h"

#include "tests/support/testfiles.h"

#include <QDir>
#include <QTemporaryDir>
#include <QtTest>

#include <memory>

namespace {

KeptQueue queueOf(int count)
{
    KeptQueue queue;
    for (int i = 0; i < count; ++i) {
        KeptTask task;
        task.source = QStringLiteral("/films/%1.mkv").arg(i);
        queue.pages[QStringLiteral("converter")] << task;
    }
    return queue;
}

int countIn(const Result<KeptQueue> &queue)
{
    return queue ? queue->pages.value(QStringLiteral("converter")).size() : -1;
}

} // namespace

class TestQueueFile : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init() { m_folder = std::make_unique<QTemporaryDir>(); }

    void aMissingFileHoldsNothing();
    void theLastOneWrittenIsRead();
    void nothingIsLostWhenTheObjectGoes();
    void aDamagedFileIsMovedAside();
    void aSecondDamagedFileReplacesNoneBefore();
    void whatIsNoFileIsReported();
    void aFailedWriteIsReported();

private:
    QString path() const { return m_folder->filePath(QStringLiteral("queue.json")); }

    std::unique_ptr<QTemporaryDir> m_folder;
};

void TestQueueFile::aMissingFileHoldsNothing()
{
    QCOMPARE(countIn(QueueFile(path()).read()), 0);
    QVERIFY(QDir(m_folder->path()).isEmpty());
}

void TestQueueFile::theLastOneWrittenIsRead()
{
    QueueFile file(path());
    for (const int count : {10000, 3, 2}) {
        file.write(queueOf(count));
    }
    file.waitForWritten();
    QCOMPARE(countIn(QueueFile(path()).read()), 2);
    QCOMPARE(
        QDir(m_folder->path()).entryList(QDir::AllEntries | QDir::Hidden | QDir::NoDotAndDotDot),
        QStringList{QStringLiteral("queue.json")});
}

void TestQueueFile::nothingIsLostWhenTheObjectGoes()
{
    QueueFile(path()).write(queueOf(10000));
    QCOMPARE(countIn(QueueFile(path()).read()), 10000);
}

void TestQueueFile::aDamagedFileIsMovedAside()
{
    QVERIFY(writeFile(path(), "[ {"));
    const Result<KeptQueue> read = QueueFile(path()).read();
    QVERIFY(!read);
    const QString aside = m_folder->filePath(QStringLiteral("queue.unreadable.json"));
    QVERIFY2(read.error().text.contains(aside), qPrintable(read.error().text));
    QCOMPARE(contentOf(aside), QByteArray("[ {"));
    QVERIFY(!QFile::exists(path()));
}

void TestQueueFile::aSecondDamagedFileReplacesNoneBefore()
{
    for (const char *content : {"one", "two"}) {
        QVERIFY(writeFile(path(), content));
        QVERIFY(!QueueFile(path()).read());
    }
    QCOMPARE(contentOf(m_folder->filePath(QStringLiteral("queue.unreadable.json"))),
             QByteArray("one"));
    QCOMPARE(contentOf(m_folder->filePath(QStringLiteral("queue.unreadable (2).json"))),
             QByteArray("two"));
}

void TestQueueFile::whatIsNoFileIsReported()
{
    QVERIFY(QDir().mkdir(path()));
    const Result<KeptQueue> read = QueueFile(path()).read();
    QVERIFY(!read);
    QVERIFY(!QFile::exists(path()));
}

void TestQueueFile::aFailedWriteIsReported()
{
    QueueFile file(m_folder->filePath(QStringLiteral("missing/queue.json")));
    QSignalSpy failures(&file, &QueueFile::writeFailed);
    file.write(queueOf(1));
    QTRY_COMPARE(failures.count(), 1);
    QVERIFY(failures.at(0).at(0).toString().contains(QStringLiteral("missing/queue.json")));
}

QTEST_GUILESS_MAIN(TestQueueFile)
#include "tst_queuefile.moc"
