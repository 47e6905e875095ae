#include "host/files/filelock.h"

#include "tests/support/forkedprocess.h"
#include "tests/support/testfiles.h"

#include <QFile>
#include <QTemporaryDir>
#include <QtTest>

class TestFileLock : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();

    void oneHolderAtATime_data();
    void oneHolderAtATime();
    void theContentDoesNotMatter();
    void aKilledProcessReleasesItsLock();
    void aRemovedOrReplacedFileIsDetected();
    void aFileThatCannotBeOpenedIsAnError();

private:
    QTemporaryDir m_folder;
    QString m_file;
};

void TestFileLock::init()
{
    m_file = m_folder.filePath(QStringLiteral("file"));
    QVERIFY(writeFile(m_file));
}

void TestFileLock::oneHolderAtATime_data()
{
    QTest::addColumn<QString>("path");
    QTest::newRow("file") << m_folder.filePath(QStringLiteral("file"));
    QTest::newRow("folder") << m_folder.path();
}

void TestFileLock::oneHolderAtATime()
{
    QFETCH(QString, path);
    FileLock first;
    FileLock second;
    QVERIFY(first.tryLock(path));
    QVERIFY(first.isLocked());
    QCOMPARE(second.tryLock(path).error().kind, Error::InUse);
    QVERIFY(!second.isLocked());
    first.release();
    QVERIFY(!first.isLocked());
    QVERIFY(second.tryLock(path));
}

void TestFileLock::theContentDoesNotMatter()
{
    QVERIFY(writeFile(m_file, "1\nsomeone\nsomewhere else\n"));
    FileLock lock;
    QVERIFY(lock.tryLock(m_file));
}

void TestFileLock::aKilledProcessReleasesItsLock()
{
    ForkedProcess holder([this](const auto &report) {
        FileLock lock;
        if (lock.tryLock(m_file)) {
            report(QStringLiteral("locked"));
        }
    });
    QCOMPARE(holder.report(), QStringLiteral("locked"));
    FileLock lock;
    QCOMPARE(lock.tryLock(m_file).error().kind, Error::InUse);
    holder.killNow();
    QVERIFY(lock.tryLock(m_file));
}

void TestFileLock::aRemovedOrReplacedFileIsDetected()
{
    FileLock lock;
    QVERIFY(!lock.isAt(m_file));
    QVERIFY(lock.tryLock(m_file));
    QVERIFY(lock.isAt(m_file));
    QVERIFY(QFile::remove(m_file));
    QVERIFY(!lock.isAt(m_file));
    init();
    QVERIFY(!lock.isAt(m_file));
}

void TestFileLock::aFileThatCannotBeOpenedIsAnError()
{
    FileLock lock;
    const Result<> locked = lock.tryLock(m_folder.filePath(QStringLiteral("missing")));
    QVERIFY(!locked);
    QCOMPARE(locked.error().kind, Error::Failed);
    QCOMPARE(locked.error().text, qt_error_string(ENOENT));
}

QTEST_GUILESS_MAIN(TestFileLock)
#include "tst_filelock.moc"
