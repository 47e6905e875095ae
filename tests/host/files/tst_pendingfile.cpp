#include "host/files/pendingfile.h"

#include "tests/support/forkedprocess.h"
#include "tests/support/testfiles.h"

#include <QTemporaryDir>
#include <QtTest>

#include <optional>
#include <thread>
#include <vector>

class TestPendingFile : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init()
    {
        m_folder.emplace();
        QVERIFY(m_folder->isValid());
    }
    void cleanup() { m_folder.reset(); }

    void aPendingFileIsHidden();
    void theFileOfAKilledProcessIsSwept();
    void destroyingItLeavesNothing();
    void discardingItLeavesNothing();
    void whatIsKeptComesBack();
    void aPublishedFileHasItsName();
    void aTakenNameIsNumbered();
    void aFolderTakesTheNameToo();
    void filesPublishedAtTheSameTimeGetNamesOfTheirOwn();
    void publishOverReplacesTheFile();
    void publishOverAFolderLeavesAllAsItWas();
    void aMissingFolderIsRefused();
    void aFileInPlaceOfTheFolderIsRefused();

private:
    QString path(const QString &name) const { return QDir(m_folder->path()).filePath(name); }
    QStringList everything() const
    {
        return QDir(m_folder->path())
            .entryList(QDir::AllEntries | QDir::Hidden | QDir::System | QDir::NoDotAndDotDot,
                       QDir::Name);
    }
    std::optional<QTemporaryDir> m_folder;
};

void TestPendingFile::aPendingFileIsHidden()
{
    PendingFile pending;
    QCOMPARE(pending.path(), QString());
    QVERIFY(pending.create(m_folder->path()));
    QVERIFY(writeFile(pending.path(), "half"));
    QCOMPARE(everything().size(), 1);
    QVERIFY(everything().constFirst().startsWith(QLatin1Char('.')));
    QCOMPARE(QFileInfo(pending.path()).path(), path(everything().constFirst()));
}

void TestPendingFile::theFileOfAKilledProcessIsSwept()
{
    ForkedProcess process([this](const auto &report) {
        PendingFile pending;
        if (pending.create(m_folder->path())) {
            QVERIFY(writeFile(pending.path(), "half"));
            report(pending.path());
        }
    });
    PendingFile first;
    QVERIFY(first.create(m_folder->path()));
    QCOMPARE(contentOf(process.report()), QByteArray("half"));
    process.killNow();
    PendingFile second;
    QVERIFY(second.create(m_folder->path()));
    QCOMPARE(everything().size(), 2);
    QVERIFY(!QFile::exists(process.report()));
}

void TestPendingFile::destroyingItLeavesNothing()
{
    {
        PendingFile pending;
        QVERIFY(pending.create(m_folder->path()));
        QVERIFY(writeFile(pending.path(), "half"));
    }
    QCOMPARE(everything(), QStringList());
}

void TestPendingFile::discardingItLeavesNothing()
{
    PendingFile pending;
    QVERIFY(pending.create(m_folder->path()));
    QVERIFY(writeFile(pending.path(), "half"));
    pending.discard();
    QCOMPARE(everything(), QStringList());
    QCOMPARE(pending.path(), QString());
}

void TestPendingFile::whatIsKeptComesBack()
{
    PendingFile pending;
    QVERIFY(pending.create(m_folder->path()));
    QVERIFY(writeFile(pending.path(), "first"));
    QVERIFY(!pending.takeKept());
    QCOMPARE(contentOf(pending.path()), QByteArray("first"));
    pending.keep();
    QVERIFY(writeFile(pending.path(), "better"));
    pending.keep();
    QVERIFY(writeFile(pending.path(), "last"));
    QVERIFY(pending.takeKept());
    QCOMPARE(contentOf(pending.path()), QByteArray("better"));
    QVERIFY(!pending.takeKept());
    pending.discard();
    QCOMPARE(everything(), QStringList());
}

void TestPendingFile::aPublishedFileHasItsName()
{
    PendingFile pending;
    QVERIFY(pending.create(m_folder->path()));
    QVERIFY(writeFile(pending.path(), "whole"));
    QCOMPARE(*pending.publish(QStringLiteral("clip"), QStringLiteral("mp4")),
             path(QStringLiteral("clip.mp4")));
    QCOMPARE(everything(), QStringList{QStringLiteral("clip.mp4")});
    QCOMPARE(contentOf(path(QStringLiteral("clip.mp4"))), QByteArray("whole"));
}

void TestPendingFile::aTakenNameIsNumbered()
{
    QVERIFY(writeFile(path(QStringLiteral("clip.mp4")), "first"));
    QVERIFY(writeFile(path(QStringLiteral("clip (2).mp4")), "second"));
    PendingFile pending;
    QVERIFY(pending.create(m_folder->path()));
    QVERIFY(writeFile(pending.path(), "whole"));
    QCOMPARE(*pending.publish(QStringLiteral("clip"), QStringLiteral("mp4")),
             path(QStringLiteral("clip (3).mp4")));
    QCOMPARE(contentOf(path(QStringLiteral("clip.mp4"))), QByteArray("first"));
    QCOMPARE(contentOf(path(QStringLiteral("clip (2).mp4"))), QByteArray("second"));
}

void TestPendingFile::aFolderTakesTheNameToo()
{
    QVERIFY(QDir(m_folder->path()).mkdir(QStringLiteral("clip.mp4")));
    PendingFile pending;
    QVERIFY(pending.create(m_folder->path()));
    QVERIFY(writeFile(pending.path(), "whole"));
    QCOMPARE(*pending.publish(QStringLiteral("clip"), QStringLiteral("mp4")),
             path(QStringLiteral("clip (2).mp4")));
}

void TestPendingFile::filesPublishedAtTheSameTimeGetNamesOfTheirOwn()
{
    constexpr int publishers = 8;
    constexpr int filesEach = 25;
    std::vector<std::thread> threads;
    for (int i = 0; i < publishers; ++i) {
        threads.emplace_back([this] {
            for (int j = 0; j < filesEach; ++j) {
                PendingFile pending;
                if (pending.create(m_folder->path())) {
                    QVERIFY(writeFile(pending.path(), "whole"));
                    static_cast<void>(
                        pending.publish(QStringLiteral("clip"), QStringLiteral("mp4")));
                }
            }
        });
    }
    for (std::thread &thread : threads) {
        thread.join();
    }
    QCOMPARE(everything().size(), publishers * filesEach);
}

void TestPendingFile::publishOverReplacesTheFile()
{
    QVERIFY(writeFile(path(QStringLiteral("clip.mp4")), "old"));
    PendingFile pending;
    QVERIFY(pending.create(m_folder->path()));
    QVERIFY(writeFile(pending.path(), "new"));
    QVERIFY(pending.publishOver(path(QStringLiteral("clip.mp4"))));
    QCOMPARE(everything(), QStringList{QStringLiteral("clip.mp4")});
    QCOMPARE(contentOf(path(QStringLiteral("clip.mp4"))), QByteArray("new"));
}

void TestPendingFile::publishOverAFolderLeavesAllAsItWas()
{
    QVERIFY(QDir(m_folder->path()).mkdir(QStringLiteral("clip.mp4")));
    {
        PendingFile pending;
        QVERIFY(pending.create(m_folder->path()));
        QVERIFY(writeFile(pending.path(), "whole"));
        const Result<> published = pending.publishOver(path(QStringLiteral("clip.mp4")));
        QVERIFY(!published);
        QCOMPARE(published.error().text,
                 QStringLiteral("the result couldn't get its name in %1 (Is a directory); choose "
                                "another folder")
                     .arg(m_folder->path()));
    }
    QCOMPARE(everything(), QStringList{QStringLiteral("clip.mp4")});
}

void TestPendingFile::aMissingFolderIsRefused()
{
    PendingFile pending;
    const QString folder = path(QStringLiteral("missing"));
    QCOMPARE(
        pending.create(folder).error().text,
        QStringLiteral("the folder %1 doesn't exist; make it or choose another one").arg(folder));
    QCOMPARE(everything(), QStringList());
}

void TestPendingFile::aFileInPlaceOfTheFolderIsRefused()
{
    QVERIFY(writeFile(path(QStringLiteral("file")), "content"));
    PendingFile pending;
    QVERIFY(!pending.create(path(QStringLiteral("file"))));
    QCOMPARE(everything(), QStringList{QStringLiteral("file")});
}

QTEST_GUILESS_MAIN(TestPendingFile)
#include "tst_pendingfile.moc"
