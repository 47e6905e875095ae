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

    void theFolderIsMade();
    void theHolderIsNamed();
    void whatTheFileSaysLocksNobodyOut_data();
    void whatTheFileSaysLocksNobodyOut();
    void aHolderThatIsKilledHoldsNothing();
    void aWaitIsToldAndEndsWithTheHolder();
    void aFolderThatCannotBeIsSaid();
    void whatIsNoPlainFileIsLeftAlone_data();
    void whatIsNoPlainFileIsLeftAlone();

private:
    QString folder() const { return m_temporary->filePath(QStringLiteral("config")); }
    QString lockFile() const { return folder() + QStringLiteral("/vexconvert.lock"); }
    std::unique_ptr<ForkedProcess> holder() const
    {
        return std::make_unique<ForkedProcess>([this](const auto &tell) {
            FolderLock lock;
            tell(lock.lock(folder(), 0) ? QString::number(QCoreApplication::applicationPid())
                                        : QString());
        });
    }

    std::optional<QTemporaryDir> m_temporary;
};

void TestFolderLock::theFolderIsMade()
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
    QVERIFY(!other->told().isEmpty());
    FolderLock lock;
    const Error refusal = lock.lock(folder(), 0).error();
    QCOMPARE(refusal.kind, Error::InUse);
    QCOMPARE(refusal.text,
             QStringLiteral("tst_folderlock (process %1 on %2) is using the presets in %3; close "
                            "it, or try again when it is done")
                 .arg(other->told(), QSysInfo::machineHostName(), folder()));
    QVERIFY(!lock.isLocked());
}

void TestFolderLock::whatTheFileSaysLocksNobodyOut_data()
{
    QTest::addColumn<QByteArray>("content");
    QTest::newRow("empty") << QByteArray();
    QTest::newRow("garbage") << QByteArray("\0\xff\n\n\n", 5);
    QTest::newRow("another machine") << QByteArray("1\nvexconvert\nanother-machine\n");
    QTest::newRow("a process that lives")
        << QByteArray("1\nvexconvert\n") + QSysInfo::machineHostName().toLocal8Bit() + '\n';
}

void TestFolderLock::whatTheFileSaysLocksNobodyOut()
{
    QFETCH(QByteArray, content);
    QVERIFY(QDir().mkpath(folder()));
    QVERIFY(writeFile(lockFile(), content));
    QVERIFY(QFile::setPermissions(lockFile(), QFile::ReadOwner | QFile::WriteOwner));
    FolderLock lock;
    QVERIFY(lock.lock(folder(), 0));
}

void TestFolderLock::aHolderThatIsKilledHoldsNothing()
{
    const auto other = holder();
    QVERIFY(!other->told().isEmpty());
    FolderLock lock;
    QVERIFY(!lock.lock(folder(), 0));
    other->endWithoutGoodbye();
    QVERIFY(lock.lock(folder(), 0));
}

void TestFolderLock::aWaitIsToldAndEndsWithTheHolder()
{
    const auto other = holder();
    QVERIFY(!other->told().isEmpty());
    QStringList told;
    FolderLock lock;
    constexpr int patience = 60000;
    QVERIFY(lock.lock(folder(), patience, [&told, &other](const QString &line) {
        told << line;
        other->endWithoutGoodbye();
    }));
    QCOMPARE(told.size(), 1);
    QVERIFY2(told.constFirst().startsWith(QStringLiteral("waiting for tst_folderlock (process ")),
             qUtf8Printable(told.constFirst()));
}

void TestFolderLock::aFolderThatCannotBeIsSaid()
{
    FolderLock lock;
    const Error refusal = lock.lock(QStringLiteral("/dev/null/config"), 0).error();
    QCOMPARE(refusal.kind, Error::Failed);
    QCOMPARE(refusal.text,
             QStringLiteral("can't write into the configuration folder /dev/null/config (Not a "
                            "directory); name another one"));
}

void TestFolderLock::whatIsNoPlainFileIsLeftAlone_data()
{
    QTest::addColumn<QString>("command");
    QTest::newRow("link to another file") << QStringLiteral("ln -s ../other vexconvert.lock");
    QTest::newRow("link to nothing") << QStringLiteral("ln -s ../nothing vexconvert.lock");
    QTest::newRow("pipe") << QStringLiteral("mkfifo vexconvert.lock");
    QTest::newRow("folder") << QStringLiteral("mkdir vexconvert.lock");
}

void TestFolderLock::whatIsNoPlainFileIsLeftAlone()
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
