#include "host/presets/folderlock.h"
#include "tests/support/forkedprocess.h"
#include "tests/support/testfiles.h"

#include <QDir>
#include <QFile>
#include <QProcess>
#include <QSysInfo>
#include <QTemporaryDir>
#include <QtTest>

#include <memory>
#include <optional>

namespace {

const QString granted = QStringLiteral("granted");

} // namespace

class TestFolderLock : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init() { m_temporary.emplace(); }

    void theFolderIsCreated();
    void theHolderIsNamed();
    void theContentOfTheLockFileDoesNotMatter_data();
    void theContentOfTheLockFileDoesNotMatter();
    void aKilledHolderReleasesTheLock();
    void aWaitIsReportedAndEndsWithTheHolder();
    void aFolderThatCannotBeCreatedIsAnError();
    void onlyAPlainFileIsUsedAsLock_data();
    void onlyAPlainFileIsUsedAsLock();

private:
    QString folder() const { return m_temporary->filePath(QStringLiteral("config")); }
    QString lockFile() const { return folder() + QStringLiteral("/vexconvert.lock"); }
    std::unique_ptr<ForkedProcess> holder() const
    {
        return std::make_unique<ForkedProcess>([this](const auto &report) {
            FolderLock lock;
            report(lock.lock(folder(), 0) ? QString::number(QCoreApplication::applicationPid())
                                          : QString());
        });
    }

    std::optional<QTemporaryDir> m_temporary;
};

void TestFolderLock::theFolderIsCreated()
{
    FolderLock lock;
    QVERIFY(lock.lock(folder(), 0));
    QVERIFY(lock.isLocked());
    QVERIFY(QDir(folder()).exists());
    lock.release();
    QVERIFY(!lock.isLocked());
}

void TestFolderLock::theHolderIsNamed()
{
    const auto other = holder();
    QVERIFY(!other->report().isEmpty());
    FolderLock lock;
    const Error refusal = lock.lock(folder(), 0).error();
    QCOMPARE(refusal.kind, Error::InUse);
    QCOMPARE(refusal.text,
             QStringLiteral("tst_folderlock (process %1 on %2) is using the presets in %3; close "
                            "it, or try again when it is done")
                 .arg(other->report(), QSysInfo::machineHostName(), folder()));
    QVERIFY(!lock.isLocked());
}

void TestFolderLock::theContentOfTheLockFileDoesNotMatter_data()
{
    QTest::addColumn<QByteArray>("content");
    QTest::newRow("empty") << QByteArray();
    QTest::newRow("garbage") << QByteArray("\0\xff\n\n\n", 5);
    QTest::newRow("another machine") << QByteArray("1\nvexconvert\nanother-machine\n");
    QTest::newRow("a running process")
        << QByteArray("1\nvexconvert\n") + QSysInfo::machineHostName().toLocal8Bit() + '\n';
}

void TestFolderLock::theContentOfTheLockFileDoesNotMatter()
{
    QFETCH(QByteArray, content);
    QVERIFY(QDir().mkpath(folder()));
    QVERIFY(writeFile(lockFile(), content));
    QVERIFY(QFile::setPermissions(lockFile(), QFile::ReadOwner | QFile::WriteOwner));
    FolderLock lock;
    QVERIFY(lock.lock(folder(), 0));
}

void TestFolderLock::aKilledHolderReleasesTheLock()
{
    const auto other = holder();
    QVERIFY(!other->report().isEmpty());
    FolderLock lock;
    QVERIFY(!lock.lock(folder(), 0));
    other->killNow();
    QVERIFY(lock.lock(folder(), 0));
}

void TestFolderLock::aWaitIsReportedAndEndsWithTheHolder()
{
    const auto other = holder();
    QVERIFY(!other->report().isEmpty());
    QStringList lines;
    FolderLock lock;
    constexpr int patience = 60000;
    QVERIFY(lock.lock(folder(), patience, [&lines, &other](const QString &line) {
        lines << line;
        other->killNow();
    }));
    QCOMPARE(lines.size(), 1);
    QVERIFY2(lines.constFirst().startsWith(QStringLiteral("waiting for tst_folderlock (process ")),
             qUtf8Printable(lines.constFirst()));
}

void TestFolderLock::aFolderThatCannotBeCreatedIsAnError()
{
    FolderLock lock;
    const Error refusal = lock.lock(QStringLiteral("/dev/null/config"), 0).error();
    QCOMPARE(refusal.kind, Error::Failed);
    QCOMPARE(refusal.text,
             QStringLiteral("can't write into the configuration folder /dev/null/config (Not a "
                            "directory); name another one"));
}

void TestFolderLock::onlyAPlainFileIsUsedAsLock_data()
{
    QTest::addColumn<QString>("command");
    QTest::newRow("link to another file") << QStringLiteral("ln -s ../other vexconvert.lock");
    QTest::newRow("link to nothing") << QStringLiteral("ln -s ../nothing vexconvert.lock");
    QTest::newRow("pipe") << QStringLiteral("mkfifo vexconvert.lock");
    QTest::newRow("folder") << QStringLiteral("mkdir vexconvert.lock");
}

void TestFolderLock::onlyAPlainFileIsUsedAsLock()
{
    QFETCH(QString, command);
    const QByteArray precious = "precious";
    QFile other(m_temporary->filePath(QStringLiteral("other")));
    QVERIFY(other.open(QIODevice::ReadWrite));
    QCOMPARE(other.write(precious), qint64(precious.size()));
    QVERIFY(other.seek(0));
    QVERIFY(QDir().mkpath(folder()));
    QProcess shell;
    shell.setWorkingDirectory(folder());
    shell.start(QStringLiteral("sh"), {QStringLiteral("-c"), command});
    QVERIFY(shell.waitForFinished());
    QCOMPARE(shell.exitCode(), 0);

    FolderLock lock;
    QCOMPARE(lock.lock(folder(), 0).error().text,
             lockFile() + QStringLiteral(" is no plain file; remove it"));
    QCOMPARE(other.readAll(), precious);
    QVERIFY(!QFile::exists(m_temporary->filePath(QStringLiteral("nothing"))));
}

QTEST_GUILESS_MAIN(TestFolderLock)
#include "tst_folderlock.moc"
