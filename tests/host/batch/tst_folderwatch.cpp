#include "host/batch/folderwatch.h"
#include "tests/support/patience.h"
#include "tests/support/testfiles.h"

#include <QTemporaryDir>
#include <QtTest>

class TestFolderWatch : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void aFileArrivesWhenItHasStoppedGrowing();
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
    watch.start();
    QFile file(growing);
    QVERIFY(file.open(QIODevice::Append));
    QTimer writer;
    connect(&writer, &QTimer::timeout, this, [&file] {
        file.write("more");
        file.flush();
    });
    writer.start(FolderWatch::msBetweenLooks / 10);

    QTRY_COMPARE_WITH_TIMEOUT(arrived, QStringList(waiting), patience);
    QTest::qWait(FolderWatch::msBetweenLooks * 3 / 2);
    QCOMPARE(arrived, QStringList(waiting));
    writer.stop();
    QTRY_COMPARE_WITH_TIMEOUT(arrived, QStringList({waiting, growing}), patience);

    // It arrives again only if it changes.
    QTest::qWait(FolderWatch::msBetweenLooks * 3 / 2);
    QCOMPARE(arrived.size(), 2);
    writer.start(FolderWatch::msBetweenLooks / 10);
    QTest::qWait(FolderWatch::msBetweenLooks);
    writer.stop();
    QTRY_COMPARE_WITH_TIMEOUT(arrived, QStringList({waiting, growing, growing}), patience);
}

QTEST_GUILESS_MAIN(TestFolderWatch)
#include "tst_folderwatch.moc"
