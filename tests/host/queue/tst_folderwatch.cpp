#include "host/queue/folderwatch.h"
#include "tests/support/patience.h"
#include "tests/support/testfiles.h"

#include <QTemporaryDir>
#include <QtTest>

class TestFolderWatch : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void aFileArrivesWhenItHasStoppedGrowing();
    void aWatchLooksAgainByItself();
};

void TestFolderWatch::aFileArrivesWhenItHasStoppedGrowing()
{
    const QTemporaryDir folder;
    const QString growing = folder.filePath(QStringLiteral("growing.wav"));
    const QString waiting = folder.filePath(QStringLiteral("waiting.wav"));
    QVERIFY(writeFile(growing, "a"));
    QVERIFY(writeFile(waiting, "complete"));
    QVERIFY(writeFile(folder.filePath(QStringLiteral("empty.wav"))));
    QVERIFY(writeFile(folder.filePath(QStringLiteral("notes.txt")), "no media"));

    QStringList arrived;
    FolderWatch watch(SourceFiles({folder.path()}, false));
    connect(&watch, &FolderWatch::arrived, this,
            [&arrived](const SourceFile &file) { arrived << file.path; });
    watch.look();
    QCOMPARE(arrived, QStringList());
    QVERIFY(writeFile(growing, "ab"));
    watch.look();
    QCOMPARE(arrived, QStringList(waiting));
    QVERIFY(writeFile(growing, "abc"));
    watch.look();
    QCOMPARE(arrived, QStringList(waiting));
    watch.look();
    QCOMPARE(arrived, QStringList({waiting, growing}));

    // It arrives again only if it changes.
    watch.look();
    QCOMPARE(arrived.size(), 2);
    QVERIFY(writeFile(growing, "abcd"));
    watch.look();
    QCOMPARE(arrived.size(), 2);
    watch.look();
    QCOMPARE(arrived, QStringList({waiting, growing, growing}));
}

void TestFolderWatch::aWatchLooksAgainByItself()
{
    const QTemporaryDir folder;
    const QString waiting = folder.filePath(QStringLiteral("waiting.wav"));
    FolderWatch watch(SourceFiles({folder.path()}, false));
    QSignalSpy arrived(&watch, &FolderWatch::arrived);
    watch.start();
    QVERIFY(writeFile(waiting, "complete"));
    QTRY_COMPARE_WITH_TIMEOUT(arrived.size(), 1, patience);
}

QTEST_GUILESS_MAIN(TestFolderWatch)
#include "tst_folderwatch.moc"
