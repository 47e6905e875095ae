#include "host/files/workfolder.h"

#include "tests/support/forkedprocess.h"
#include "tests/support/testfiles.h"

#include <QTemporaryDir>
#include <QtTest>

#include <atomic>
#include <optional>
#include <sys/stat.h>
#include <thread>
#include <unistd.h>
#include <vector>

class TestWorkFolder : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init()
    {
        m_place.emplace();
        QVERIFY(m_place->isValid());
    }

    void itIsHiddenAndPrivateToTheUser();
    void itIsRemovedWithItsContent();
    void itsDefaultParentIsTheTemporaryFolder();
    void aRestoredFolderIsNotSwept();
    void theFolderOfAKilledProcessIsSwept();
    void theFolderOfARunningProcessStays();
    void linksAreNeverFollowed();
    void otherFoldersStay_data();
    void otherFoldersStay();
    void theFolderOfAnotherUserStays();
    void foldersMadeAtTheSameTimeStay();
    void theErrorSaysWhyItCannotBeMade();

private:
    QStringList everything() const
    {
        return QDir(m_place->path())
            .entryList(QDir::AllEntries | QDir::Hidden | QDir::System | QDir::NoDotAndDotDot);
    }
    /*! The path of a folder that a dead process left, with a file in a folder in it. */
    QString leftover() const
    {
        ForkedProcess process([this](const auto &report) {
            const Result<WorkFolder> folder = WorkFolder::make(m_place->path());
            QDir(folder->path()).mkdir(QStringLiteral("inner"));
            QFile file(folder->filePath(QStringLiteral("inner/file")));
            file.open(QIODevice::WriteOnly);
            report(folder->path());
        });
        return process.report();
    }

    std::optional<QTemporaryDir> m_place;
};

void TestWorkFolder::itIsHiddenAndPrivateToTheUser()
{
    const Result<WorkFolder> folder = WorkFolder::make(m_place->path());
    QVERIFY(folder);
    QCOMPARE(everything().size(), 1);
    QVERIFY(everything().constFirst().startsWith(QLatin1Char('.')));
    QCOMPARE(folder->path(), m_place->filePath(everything().constFirst()));
    struct stat found = {};
    QCOMPARE(stat(QFile::encodeName(folder->path()).constData(), &found), 0);
    QCOMPARE(found.st_mode & 07777U, unsigned(S_IRWXU));
}

void TestWorkFolder::itIsRemovedWithItsContent()
{
    {
        const Result<WorkFolder> folder = WorkFolder::make(m_place->path());
        QVERIFY(writeFile(folder->filePath(QStringLiteral("file"))));
        QVERIFY(QDir(folder->path()).mkdir(QStringLiteral("inner")));
        QVERIFY(writeFile(folder->filePath(QStringLiteral("inner/file"))));
    }
    QCOMPARE(everything(), QStringList());
}

void TestWorkFolder::itsDefaultParentIsTheTemporaryFolder()
{
    const Result<WorkFolder> folder = WorkFolder::make();
    QCOMPARE(QFileInfo(folder->path()).path(), QDir::tempPath());
}

void TestWorkFolder::aRestoredFolderIsNotSwept()
{
    Result<WorkFolder> work = WorkFolder::make(m_place->path());
    QVERIFY(QDir(m_place->path()).removeRecursively());
    work->restore();
    QVERIFY(QFileInfo(work->path()).isDir());
    WorkFolder::sweep(m_place->path());
    QVERIFY(QFileInfo(work->path()).isDir());
}

void TestWorkFolder::theFolderOfAKilledProcessIsSwept()
{
    const QString left = leftover();
    QVERIFY(QFile::exists(left + QStringLiteral("/inner/file")));
    const Result<WorkFolder> next = WorkFolder::make(m_place->path());
    QVERIFY(!QFile::exists(left));
    QVERIFY(QFile::exists(next->path()));
}

void TestWorkFolder::theFolderOfARunningProcessStays()
{
    const Result<WorkFolder> own = WorkFolder::make(m_place->path());
    ForkedProcess other([this](const auto &report) {
        const Result<WorkFolder> folder = WorkFolder::make(m_place->path());
        report(folder->path());
    });
    const Result<WorkFolder> next = WorkFolder::make(m_place->path());
    QVERIFY(QFile::exists(own->path()));
    QVERIFY(QFile::exists(other.report()));
    QVERIFY(QFile::exists(next->path()));
    QCOMPARE(everything().size(), 3);
}

void TestWorkFolder::linksAreNeverFollowed()
{
    const QTemporaryDir elsewhere;
    const QString kept = elsewhere.filePath(QStringLiteral("kept"));
    QVERIFY(writeFile(kept));
    const QString link = leftover();
    QVERIFY(QDir(link).removeRecursively());
    QVERIFY(QFile::link(elsewhere.path(), link));
    const QString left = leftover();
    QVERIFY(QFile::link(elsewhere.path(), left + QStringLiteral("/link")));

    WorkFolder::sweep(m_place->path());
    QVERIFY(!QFile::exists(left));
    QVERIFY(QFileInfo(link).isSymLink());
    QVERIFY(QFile::exists(kept));
}

void TestWorkFolder::otherFoldersStay_data()
{
    QTest::addColumn<int>("changed");
    QTest::addColumn<QString>("by");
    const int machine = QStringLiteral(".vexconvert-").size();
    QTest::newRow("of another machine") << machine << QStringLiteral("x");
    QTest::newRow("with other letters") << machine + 10 << QStringLiteral("x");
    QTest::newRow("with a shorter name") << machine + 10 << QString();
    QTest::newRow("with a longer name") << machine + 10 << QStringLiteral("ab");
}

void TestWorkFolder::otherFoldersStay()
{
    QFETCH(int, changed);
    QFETCH(QString, by);
    const QString left = leftover();
    QString name = QFileInfo(left).fileName();
    name.replace(changed, 1, by);
    QVERIFY(QDir(m_place->path()).rename(QFileInfo(left).fileName(), name));
    WorkFolder::sweep(m_place->path());
    QCOMPARE(everything(), QStringList{name});
}

void TestWorkFolder::theFolderOfAnotherUserStays()
{
    const QString left = leftover();
    constexpr uid_t another = 65534;
    if (chown(QFile::encodeName(left).constData(), another, gid_t(-1)) != 0) {
        QSKIP("only root can give a folder away");
    }
    WorkFolder::sweep(m_place->path());
    QVERIFY(QFile::exists(left));
}

void TestWorkFolder::foldersMadeAtTheSameTimeStay()
{
    constexpr int makers = 8;
    constexpr int foldersEach = 50;
    std::atomic_int lost(0);
    std::vector<std::thread> threads;
    for (int i = 0; i < makers; ++i) {
        threads.emplace_back([this, &lost] {
            for (int j = 0; j < foldersEach; ++j) {
                const Result<WorkFolder> folder = WorkFolder::make(m_place->path());
                QFile file(folder->filePath(QStringLiteral("file")));
                if (!file.open(QIODevice::WriteOnly) || !file.exists()) {
                    ++lost;
                }
            }
        });
    }
    for (std::thread &thread : threads) {
        thread.join();
    }
    QCOMPARE(lost.load(), 0);
    QCOMPARE(everything(), QStringList());
}

void TestWorkFolder::theErrorSaysWhyItCannotBeMade()
{
    const Result<WorkFolder> folder =
        WorkFolder::make(m_place->filePath(QStringLiteral("missing")));
    QVERIFY(!folder);
    QCOMPARE(folder.error().text, qt_error_string(ENOENT));
}

QTEST_GUILESS_MAIN(TestWorkFolder)
#include "tst_workfolder.moc"
