#include "tests/host/window/pagetest.h"

#include "tests/support/testfiles.h"

#include <algorithm>

/*! What is in a page's list, and in which order. */
class TestPageList : public PageTest
{
    Q_OBJECT

private Q_SLOTS:
    void aFileThatIsInTheListIsAddedOnlyWhenAskedAgain();
    void whatIsNoMediaFileIsNamed_data();
    void whatIsNoMediaFileIsNamed();
    void removedTasksComeBackWhereTheyWere();
    void removalsAreUndoneOneAfterTheOther();
    void aRunningTaskThatComesBackIsStopped();
    void theSelectedTasksAreRemovedTogether();
    void clearingRemovesTheConvertedTasksOnly();
    void waitingTasksRunInTheOrderOfTheList();
    void theListCanBeSorted();
    void tenThousandTasksAreRemovedAndPutBack();
};

void TestPageList::aFileThatIsInTheListIsAddedOnlyWhenAskedAgain()
{
    const QUrl file = song();
    addReady(*m_converter, file);
    m_converter->addFiles({file, song(QStringLiteral("b.wav")), file});
    const QStringList once = {QStringLiteral("song.wav"), QStringLiteral("b.wav")};
    QCOMPARE(names(*m_converter), once);
    QCOMPARE(m_converter->offer()->text(), QStringLiteral("Already in the list: 2 files"));
    m_converter->offer()->dismiss();
    QCOMPARE(names(*m_converter), once);
    m_converter->addFiles({file});
    QCOMPARE(m_converter->offer()->text(), QStringLiteral("Already in the list: song.wav"));
    m_converter->offer()->take();
    QCOMPARE(names(*m_converter), once + QStringList{QStringLiteral("song.wav")});
    QCOMPARE(m_converter->offer()->text(), QString());
}

void TestPageList::whatIsNoMediaFileIsNamed_data()
{
    QTest::addColumn<QString>("url");
    QTest::addColumn<QString>("notice");
    QTest::newRow("picture") << QStringLiteral("file:///photos/Sea.JPG")
                             << QStringLiteral("Sea.JPG is a picture; add video or audio files");
    QTest::newRow("playlist")
        << QStringLiteral("file:///music/best.m3u8")
        << QStringLiteral("best.m3u8 is a playlist; add the files that it names instead");
    QTest::newRow("a name from right to left")
        << QStringLiteral("file:///photos/ים.jpg")
        << QStringLiteral("\u2068ים.jpg\u2069 is a picture; add video or audio files");
    QTest::newRow("web address") << QStringLiteral("https://example.org/a.mp4")
                                 << QStringLiteral("https://example.org/a.mp4 is not on this "
                                                   "computer; download it first and add the file");
}

void TestPageList::whatIsNoMediaFileIsNamed()
{
    QFETCH(QString, url);
    QFETCH(QString, notice);
    QSignalSpy noticed(m_converter.get(), &Page::noticed);
    m_converter->addFiles({QUrl(url), song()});
    QCOMPARE(names(*m_converter), QStringList{QStringLiteral("song.wav")});
    QCOMPARE(noticed.count(), 1);
    QCOMPARE(noticed.at(0).at(0).toString(), notice);
}

void TestPageList::removedTasksComeBackWhereTheyWere()
{
    for (const char *name : {"a.wav", "b.wav", "c.wav", "d.wav"}) {
        m_converter->addFiles({song(QString::fromLatin1(name))});
    }
    const QStringList before = names(*m_converter);
    const QVector<Task> all = m_converter->tasks()->tasks();
    m_converter->selection()->set(all.at(0).id);
    m_converter->selection()->toggle(all.at(2).id);
    m_converter->removeChosen(all.at(2).id);
    QCOMPARE(names(*m_converter), QStringList({QStringLiteral("b.wav"), QStringLiteral("d.wav")}));
    QCOMPARE(m_converter->offer()->text(), QStringLiteral("Removed: 2 files"));
    m_converter->offer()->take();
    QCOMPARE(names(*m_converter), before);
    QTRY_COMPARE_WITH_TIMEOUT(m_converter->tasks()->countOf(Task::Ready), 4, patience);
}

void TestPageList::removalsAreUndoneOneAfterTheOther()
{
    const int first = addReady(*m_converter, song(QStringLiteral("a.wav")));
    const int second = addReady(*m_converter, song(QStringLiteral("b.wav")));
    m_converter->remove(first);
    m_converter->remove(second);
    m_converter->undoRemoval();
    QCOMPARE(names(*m_converter), QStringList{QStringLiteral("b.wav")});
    m_converter->undoRemoval();
    QCOMPARE(names(*m_converter), QStringList({QStringLiteral("a.wav"), QStringLiteral("b.wav")}));
    m_converter->undoRemoval();
    QCOMPARE(m_converter->tasks()->count(), 2);
}

void TestPageList::aRunningTaskThatComesBackIsStopped()
{
    const int id = addReady(*m_converter, song());
    m_converter->convert(id);
    QCOMPARE(task(*m_converter, id).state, Task::Running);
    m_converter->remove(id);
    QVERIFY(!m_converter->isBusy());
    QCOMPARE(m_converter->overall(), QString());
    m_converter->undoRemoval();
    QCOMPARE(task(*m_converter, id).state, Task::Cancelled);
    m_converter->convertAll();
    QTRY_COMPARE_WITH_TIMEOUT(task(*m_converter, id).state, Task::Converted, patience);
}

void TestPageList::theSelectedTasksAreRemovedTogether()
{
    for (const char *name : {"a.wav", "b.wav", "c.wav"}) {
        m_converter->addFiles({song(QString::fromLatin1(name))});
    }
    const QVector<Task> all = m_converter->tasks()->tasks();
    m_converter->selection()->set(all.at(0).id);
    m_converter->selection()->extendTo(all.at(1).id);
    // A task outside of the selection goes alone.
    m_converter->removeChosen(all.at(2).id);
    QCOMPARE(names(*m_converter), QStringList({QStringLiteral("a.wav"), QStringLiteral("b.wav")}));
    m_converter->removeChosen(all.at(0).id);
    QCOMPARE(m_converter->tasks()->count(), 0);
}

void TestPageList::clearingRemovesTheConvertedTasksOnly()
{
    const int first = addReady(*m_converter, song(QStringLiteral("a.wav")));
    addReady(*m_converter, song(QStringLiteral("b.wav")));
    QVERIFY(!m_converter->canClear());
    m_converter->convert(first);
    QTRY_VERIFY_WITH_TIMEOUT(m_converter->canClear(), patience);
    m_converter->clearConverted();
    QCOMPARE(names(*m_converter), QStringList{QStringLiteral("b.wav")});
    QVERIFY(!m_converter->canClear());
}

void TestPageList::waitingTasksRunInTheOrderOfTheList()
{
    QVector<int> ids;
    for (const char *name : {"a.wav", "b.wav", "c.wav", "d.wav", "e.wav"}) {
        ids << addReady(*m_converter, song(QString::fromLatin1(name)));
    }
    m_converter->moveChosen(ids.at(4), ids.at(0));
    QCOMPARE(names(*m_converter).constFirst(), QStringLiteral("e.wav"));
    m_converter->convertAll();
    QCOMPARE(m_runs.constFirst(), ids.at(4));
    // A task can still change its place while it waits.
    m_converter->moveChosen(ids.at(2), 0);
    QCOMPARE(names(*m_converter).constLast(), QStringLiteral("c.wav"));
    QTRY_VERIFY_WITH_TIMEOUT(!m_converter->isBusy(), patience);
    QCOMPARE(m_runs.size(), 5);
    QCOMPARE(m_runs.constLast(), ids.at(2));
}

void TestPageList::theListCanBeSorted()
{
    const QString film = m_files->filePath(QStringLiteral("b.mkv"));
    QVERIFY(MediaClips::makeFilm(film, 3));
    addReady(*m_converter, song(QStringLiteral("c.wav")));
    addReady(*m_converter, QUrl::fromLocalFile(film));
    addReady(*m_converter, song(QStringLiteral("a.mp3")));
    m_converter->addFiles({noMedia()});
    QTRY_COMPARE_WITH_TIMEOUT(m_converter->tasks()->countOf(Task::Failed), 1, patience);
    const auto order = [this](Task::SortKey key) {
        m_converter->sortBy(key);
        QString initials;
        for (const QString &name : names(*m_converter)) {
            initials += name.at(0);
        }
        return initials;
    };
    QCOMPARE(order(Task::ByName), QStringLiteral("abbc"));
    QCOMPARE(order(Task::ByDuration).right(1), QStringLiteral("b"));
    QCOMPARE(names(*m_converter).constLast(), QStringLiteral("b.mkv"));
    m_converter->sortBy(Task::ByState);
    QCOMPARE(names(*m_converter).constLast(), QStringLiteral("broken.mp4"));
    m_converter->sortBy(Task::BySize);
    const QVector<Task> &all = m_converter->tasks()->tasks();
    QVERIFY(std::is_sorted(all.begin(), all.end(), [](const Task &one, const Task &other) {
        return one.facts.bytes < other.facts.bytes;
    }));
}

void TestPageList::tenThousandTasksAreRemovedAndPutBack()
{
    QVector<KeptTask> many;
    for (int i = 0; i < 10000; ++i) {
        KeptTask kept;
        kept.source = QStringLiteral("/none/%1.wav").arg(i);
        kept.status = i % 2 == 0 ? KeptTask::Converted : KeptTask::Stopped;
        many << kept;
    }
    m_converter->restore(many);
    m_converter->clearConverted();
    QCOMPARE(m_converter->tasks()->count(), 5000);
    QCOMPARE(m_converter->tasks()->countOf(Task::Converted), 0);
    m_converter->undoRemoval();
    QCOMPARE(m_converter->tasks()->count(), 10000);
    QCOMPARE(m_converter->tasks()->countOf(Task::Converted), 5000);
    for (int row = 0; row < 10000; ++row) {
        QCOMPARE(m_converter->tasks()->tasks().at(row).source, many.at(row).source);
        QCOMPARE(m_converter->tasks()->rowOf(m_converter->tasks()->tasks().at(row).id), row);
    }
}

QTEST_MAIN(TestPageList)
#include "tst_page_list.moc"
