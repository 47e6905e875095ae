#include "host/files/filelock.h"

#include <QFile>
#include <QTemporaryDir>
#include <QtTest>

#include <csignal>
#include <sys/wait.h>
#include <unistd.h>

namespace {

/*! A process that holds the lock until it is killed; 0 when it couldn't get it. */
pid_t lockInAnotherProcess(const QString &path)
{
    int ready[2] = {};
    if (pipe(ready) != 0) {
        return 0;
    }
    const pid_t child = fork();
    if (child == 0) {
        FileLock lock;
        const char answer = lock.tryLock(path) == FileLock::Locked ? 'y' : 'n';
        const ssize_t told = write(ready[1], &answer, 1);
        while (told == 1) {
            pause();
        }
        _exit(1);
    }
    char answer = 'n';
    const ssize_t heard = read(ready[0], &answer, 1);
    close(ready[0]);
    close(ready[1]);
    return heard == 1 && answer == 'y' ? child : 0;
}

void endWithoutGoodbye(pid_t process)
{
    kill(process, SIGKILL);
    waitpid(process, nullptr, 0);
}

} // namespace

class TestFileLock : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();

    void oneHolderAtATime_data();
    void oneHolderAtATime();
    void theContentMeansNothing();
    void aProcessThatIsKilledHoldsNothing();
    void whatWasRemovedOrReplacedIsKnown();
    void whatCannotBeOpenedIsSaid();

private:
    QTemporaryDir m_folder;
    QString m_file;
};

void TestFileLock::init()
{
    m_file = m_folder.filePath(QStringLiteral("file"));
    QFile file(m_file);
    QVERIFY(file.open(QIODevice::WriteOnly));
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
    QCOMPARE(first.tryLock(path), FileLock::Locked);
    QVERIFY(first.isLocked());
    QCOMPARE(second.tryLock(path), FileLock::HeldByAnother);
    QVERIFY(!second.isLocked());
    first.release();
    QVERIFY(!first.isLocked());
    QCOMPARE(second.tryLock(path), FileLock::Locked);
}

void TestFileLock::theContentMeansNothing()
{
    QFile file(m_file);
    QVERIFY(file.open(QIODevice::WriteOnly));
    file.write("1\nsomeone\nsomewhere else\n");
    file.close();
    FileLock lock;
    QCOMPARE(lock.tryLock(m_file), FileLock::Locked);
}

void TestFileLock::aProcessThatIsKilledHoldsNothing()
{
    const pid_t holder = lockInAnotherProcess(m_file);
    QVERIFY(holder != 0);
    FileLock lock;
    QCOMPARE(lock.tryLock(m_file), FileLock::HeldByAnother);
    endWithoutGoodbye(holder);
    QCOMPARE(lock.tryLock(m_file), FileLock::Locked);
}

void TestFileLock::whatWasRemovedOrReplacedIsKnown()
{
    FileLock lock;
    QVERIFY(!lock.isAt(m_file));
    QCOMPARE(lock.tryLock(m_file), FileLock::Locked);
    QVERIFY(lock.isAt(m_file));
    QVERIFY(QFile::remove(m_file));
    QVERIFY(!lock.isAt(m_file));
    init();
    QVERIFY(!lock.isAt(m_file));
}

void TestFileLock::whatCannotBeOpenedIsSaid()
{
    FileLock lock;
    QCOMPARE(lock.tryLock(m_folder.filePath(QStringLiteral("missing"))), FileLock::Failed);
    QCOMPARE(lock.errorText(), qt_error_string(ENOENT));
}

QTEST_GUILESS_MAIN(TestFileLock)
#include "tst_filelock.moc"
