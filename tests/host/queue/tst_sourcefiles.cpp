#include "host/queue/sourcefiles.h"
#include "tests/support/testfiles.h"

#include <QDir>
#include <QTemporaryDir>
#include <QtTest>

class TestSourceFiles : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();

    void aFolderStandsForItsMediaFiles();
    void aRecursiveSearchGoesBelow();
    void filesComeInTheOrderInWhichTheyAreNamed();
    void theFolderOfTheResultsIsLeftOut();
    void theResultsMayNotGoIntoTheFolderItself();
    void onlySomeCanBeKept();
    void aListMayHaveAnySeparator_data();
    void aListMayHaveAnySeparator();

private:
    QString path(const char *name) const { return m_folder.filePath(QString::fromUtf8(name)); }
    /*! "subfolder|path below the test's folder" of each file. */
    QStringList found(const SourceFiles &files) const
    {
        QStringList found;
        files.each([&](const SourceFile &file) {
            found << file.subfolder + QLatin1Char('|') +
                         QDir(m_folder.path()).relativeFilePath(file.path);
        });
        return found;
    }

    QTemporaryDir m_folder;
};

void TestSourceFiles::initTestCase()
{
    QVERIFY(m_folder.isValid());
    QVERIFY(QDir(m_folder.path()).mkpath(QStringLiteral("in/sub/deep")));
    QVERIFY(QDir(m_folder.path()).mkpath(QStringLiteral("in/.hidden")));
    QVERIFY(QDir(m_folder.path()).mkpath(QStringLiteral("in/out")));
    for (const char *name : {"in/b.wav", "in/a.mp4", "in/notes.txt", "in/sub/c.flac",
                             "in/sub/deep/d.mkv", "in/.hidden/e.mp3", "in/out/a.mp3"}) {
        QVERIFY(writeFile(path(name)));
    }
    QVERIFY(QFile::link(path("in"), path("in/sub/loop")));
}

void TestSourceFiles::aFolderStandsForItsMediaFiles()
{
    QCOMPARE(found({{path("in")}, false}),
             QStringList({QStringLiteral("|in/a.mp4"), QStringLiteral("|in/b.wav")}));
}

void TestSourceFiles::aRecursiveSearchGoesBelow()
{
    QCOMPARE(found({{path("in")}, true}),
             QStringList({QStringLiteral("|in/a.mp4"), QStringLiteral("|in/b.wav"),
                          QStringLiteral("out|in/out/a.mp3"), QStringLiteral("sub|in/sub/c.flac"),
                          QStringLiteral("sub/deep|in/sub/deep/d.mkv")}));
}

void TestSourceFiles::filesComeInTheOrderInWhichTheyAreNamed()
{
    const SourceFiles files({path("missing.mp4"), path("in/sub"), path("in/notes.txt")}, false);
    QCOMPARE(found(files),
             QStringList({QStringLiteral("|missing.mp4"), QStringLiteral("|in/sub/c.flac"),
                          QStringLiteral("|in/notes.txt")}));
    QCOMPARE(files.folders(), QStringList(path("in/sub")));
}

void TestSourceFiles::theFolderOfTheResultsIsLeftOut()
{
    SourceFiles files({path("in")}, true);
    QVERIFY(files.leaveOut(path("in/out")));
    QVERIFY(!found(files).contains(QStringLiteral("out|in/out/a.mp3")));
    QCOMPARE(found(files).size(), 4);
}

void TestSourceFiles::theResultsMayNotGoIntoTheFolderItself()
{
    SourceFiles files({path("in")}, true);
    const Result<> refused = files.leaveOut(path("in/sub/.."));
    QVERIFY(!refused);
    QCOMPARE(refused.error().text,
             QStringLiteral("the results can't go into %1 itself, where they would be taken for "
                            "sources; choose another folder with --to")
                 .arg(path("in")));
}

void TestSourceFiles::onlySomeCanBeKept()
{
    SourceFiles files({path("in"), path("in/notes.txt")}, true);
    files.keepOnly({path("in/sub/c.flac"), path("in/notes.txt"), path("elsewhere")});
    QCOMPARE(found(files),
             QStringList({QStringLiteral("sub|in/sub/c.flac"), QStringLiteral("|in/notes.txt")}));
}

void TestSourceFiles::aListMayHaveAnySeparator_data()
{
    QTest::addColumn<QByteArray>("list");
    QTest::addColumn<QStringList>("paths");
    QTest::newRow("lines") << QByteArray("a b\n\nc\n")
                           << QStringList({QStringLiteral("a b"), QStringLiteral("c")});
    QTest::newRow("no line break at the end")
        << QByteArray("a\nb") << QStringList({QStringLiteral("a"), QStringLiteral("b")});
    QTest::newRow("zero bytes") << QByteArray("a\nb\0c\0", 6)
                                << QStringList({QStringLiteral("a\nb"), QStringLiteral("c")});
    QTest::newRow("nothing") << QByteArray() << QStringList();
}

void TestSourceFiles::aListMayHaveAnySeparator()
{
    QFETCH(QByteArray, list);
    QFETCH(QStringList, paths);
    QCOMPARE(pathsInList(list), paths);
}

QTEST_GUILESS_MAIN(TestSourceFiles)
#include "tst_sourcefiles.moc"
