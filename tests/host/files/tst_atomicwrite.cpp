#include "host/files/atomicwrite.h"
#include "tests/support/testfiles.h"

#include <QDir>
#include <QFile>
#include <QTemporaryDir>
#include <QtTest>

#include <optional>
#include <sys/stat.h>

class TestAtomicWrite : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init() { m_folder.emplace(); }

    void aFileIsReplacedNotOverwritten();
    void permissionsAreThoseOfTheModel();
    void aSymbolicLinkStays_data();
    void aSymbolicLinkStays();
    void aFailureLeavesNoFiles();
    void otherFilesInTheFolderStay();

private:
    QString path(const QString &name) const { return m_folder->filePath(name); }
    QStringList names() const
    {
        return QDir(m_folder->path()).entryList(QDir::Files | QDir::Hidden);
    }

    std::optional<QTemporaryDir> m_folder;
};

void TestAtomicWrite::aFileIsReplacedNotOverwritten()
{
    const QString file = path(QStringLiteral("file"));
    QVERIFY(writeFile(file, "old"));
    QFile reader(file);
    QVERIFY(reader.open(QIODevice::ReadOnly));
    QVERIFY(writeAtomically(file, "new", file));
    QCOMPARE(contentOf(file), QByteArray("new"));
    QCOMPARE(reader.readAll(), QByteArray("old"));
    QCOMPARE(names(), QStringList{QStringLiteral("file")});
}

void TestAtomicWrite::permissionsAreThoseOfTheModel()
{
    const QString model = path(QStringLiteral("model"));
    const QString file = path(QStringLiteral("file"));
    QVERIFY(writeFile(model));
    const auto userOnly = QFile::ReadOwner | QFile::WriteOwner;
    QVERIFY(QFile::setPermissions(model, userOnly));
    QVERIFY(writeAtomically(file, "new", model));
    struct stat made = {};
    QCOMPARE(::stat(QFile::encodeName(file).constData(), &made), 0);
    QCOMPARE(made.st_mode & 0777U, mode_t(0600));
}

void TestAtomicWrite::aSymbolicLinkStays_data()
{
    QTest::addColumn<bool>("leadsSomewhere");
    QTest::newRow("to a file") << true;
    QTest::newRow("to nothing yet") << false;
}

void TestAtomicWrite::aSymbolicLinkStays()
{
    QFETCH(bool, leadsSomewhere);
    const QString target = path(QStringLiteral("elsewhere/target"));
    const QString link = path(QStringLiteral("link"));
    QVERIFY(QDir(m_folder->path()).mkdir(QStringLiteral("elsewhere")));
    if (leadsSomewhere) {
        QVERIFY(writeFile(target, "old"));
    }
    const QString middle = path(QStringLiteral("middle"));
    QVERIFY(QFile::link(target, middle));
    QVERIFY(QFile::link(middle, link));
    QVERIFY(writeAtomically(link, "new", link));
    QCOMPARE(QFile::symLinkTarget(link), middle);
    QCOMPARE(QFile::symLinkTarget(middle), target);
    QCOMPARE(contentOf(target), QByteArray("new"));
}

void TestAtomicWrite::aFailureLeavesNoFiles()
{
    QVERIFY(!writeAtomically(path(QStringLiteral("missing/file")), "new", {}));
    QVERIFY(QDir(m_folder->path()).mkdir(QStringLiteral("folder")));
    QVERIFY(!writeAtomically(path(QStringLiteral("folder")), "new", {}));
    QCOMPARE(names(), QStringList());
}

void TestAtomicWrite::otherFilesInTheFolderStay()
{
    // Six letters at the end are what Qt gives its temporary files.
    const QStringList beside = {QStringLiteral("file.AbCdEf"), QStringLiteral("file.backup"),
                                QStringLiteral("file.bak.before")};
    for (const QString &name : beside) {
        QVERIFY(writeFile(path(name)));
    }
    QVERIFY(writeAtomically(path(QStringLiteral("file")), "new", {}));
    QCOMPARE(names(), QStringList{QStringLiteral("file")} + beside);
}

QTEST_GUILESS_MAIN(TestAtomicWrite)
#include "tst_atomicwrite.moc"
