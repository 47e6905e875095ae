#include "tests/host/window/pagetest.h"

#include <QThread>

/*! Which presets a page and its tasks have. */
class TestPageFormats : public PageTest
{
    Q_OBJECT

private Q_SLOTS:
    void theGlobalFormatAppliesToAllTasksThatFollowIt();
    void aWaitingTaskTakesTheNewGlobalFormat();
    void aTaskWithAFormatOfItsOwnKeepsItUntilItFollowsAgain();
    void aSongIsNotGivenAVideoFormatNorASilentFilmAnAudioFormat();
    void anImpossibleFormatIsNamedWithTheNearestPossibleOne();
    void aTaskHasAFormatOfItsOwn();
    void choosingAPresetMovesItToTheTopOfTheRecentlyUsed();
    void aPresetIsUsedWhileItsTaskIsQueued();
    void aTaskWhosePresetIsDeletedReturnsToItsFormerChoice();
    void noPresetChangesAConvertedTask();
    void aNewFormatMakesAConvertedTaskReady();
    void aNewFormatDoesNotMakeAnUnreadableFileReady();
};

void TestPageFormats::theGlobalFormatAppliesToAllTasksThatFollowIt()
{
    const int first = addReady(*m_converter, song(QStringLiteral("a.wav")));
    const int second = addReady(*m_converter, song(QStringLiteral("b.wav")));
    QSignalSpy changes(m_converter.get(), &Page::globalFormatChanged);
    m_converter->convert(first);
    m_converter->setConverterGlobalFormat(flac);
    QVERIFY(changes.count() > 0);
    QCOMPARE(m_settings->converterGlobalId(), flac);
    QCOMPARE(m_settings->editorGlobalId(), mp3);
    QCOMPARE(m_converter->globalCaption(), QStringLiteral("FLAC - Keep Orignal"));
    QCOMPARE(task(*m_converter, first).format, mp3);
    QCOMPARE(task(*m_converter, second).format, flac);
    QCOMPARE(task(*m_converter, addReady(*m_converter, song())).format, flac);
}

void TestPageFormats::aWaitingTaskTakesTheNewGlobalFormat()
{
    const int first = addReady(*m_converter, song(QStringLiteral("a.wav")));
    for (int i = 0; i < QThread::idealThreadCount(); ++i) {
        addReady(*m_converter, song(QStringLiteral("%1.wav").arg(i)));
    }
    const int last = m_converter->tasks()->tasks().constLast().id;
    m_converter->convertAll();
    QCOMPARE(task(*m_converter, first).state, Task::Running);
    QCOMPARE(task(*m_converter, last).state, Task::Waiting);
    m_converter->setConverterGlobalFormat(flac);
    QCOMPARE(task(*m_converter, first).format, mp3);
    QCOMPARE(task(*m_converter, last).state, Task::Waiting);
    QTRY_VERIFY_WITH_TIMEOUT(!m_converter->isBusy(), patience);
    QVERIFY(task(*m_converter, first).target.endsWith(QStringLiteral(".mp3")));
    QVERIFY(task(*m_converter, last).target.endsWith(QStringLiteral(".flac")));
}

void TestPageFormats::aTaskWithAFormatOfItsOwnKeepsItUntilItFollowsAgain()
{
    const int own = addReady(*m_converter, song(QStringLiteral("a.wav")));
    const int other = addReady(*m_converter, song(QStringLiteral("b.wav")));
    m_converter->setConvertingListTaskFormat(own, flac);
    m_converter->setConverterGlobalFormat(aac);
    QCOMPARE(task(*m_converter, own).format, flac);
    QCOMPARE(task(*m_converter, other).format, aac);
    m_converter->followChosen(own);
    QCOMPARE(task(*m_converter, own).format, aac);
    m_converter->setConverterGlobalFormat(mp3);
    QCOMPARE(task(*m_converter, own).format, mp3);
}

void TestPageFormats::aSongIsNotGivenAVideoFormatNorASilentFilmAnAudioFormat()
{
    const QString film = m_files->filePath(QStringLiteral("silent.mkv"));
    QVERIFY(MediaClips::make(film, QStringLiteral("-f lavfi -i testsrc2=size=320x240:duration=1")));
    m_converter->setConverterGlobalFormat(flac);
    m_converter->setConverterGlobalFormat(mkv);
    const int sung = addReady(*m_converter, song());
    const int silent = addReady(*m_converter, QUrl::fromLocalFile(film));
    QCOMPARE(task(*m_converter, sung).format, flac);
    QCOMPARE(task(*m_converter, silent).format, mkv);
    m_converter->setConverterGlobalFormat(mp3);
    QCOMPARE(task(*m_converter, sung).format, mp3);
    QCOMPARE(task(*m_converter, silent).format, mkv);
}

void TestPageFormats::anImpossibleFormatIsNamedWithTheNearestPossibleOne()
{
    m_converter->setConverterGlobalFormat(flac);
    const int id = addReady(*m_converter, song());
    const auto outlook = [this, id] {
        return m_converter->outlook(id, {}, 0, 0, {}, m_converter->outlookVersion());
    };
    QTRY_COMPARE_WITH_TIMEOUT(outlook().name, QStringLiteral("song.flac"), patience);
    QCOMPARE(outlook().problem, QString());
    QCOMPARE(outlook().nearest, QString());
    m_converter->setConvertingListTaskFormat(id, mp4);
    QVERIFY(outlook().problem.startsWith(QStringLiteral("has no video")));
    QCOMPARE(outlook().nearest, flac);
    m_converter->useFormat(id, outlook().nearest);
    QCOMPARE(outlook().problem, QString());
    // Another name follows from another folder.
    const int version = m_converter->outlookVersion();
    m_converter->setFolder(m_files->path());
    QVERIFY(m_converter->outlookVersion() > version);
}

void TestPageFormats::aTaskHasAFormatOfItsOwn()
{
    const int first = addReady(*m_converter, song(QStringLiteral("a.wav")));
    const int second = addReady(*m_converter, song(QStringLiteral("b.wav")));
    m_converter->setConvertingListTaskFormat(second, flac);
    QCOMPARE(task(*m_converter, first).format, mp3);
    QCOMPARE(task(*m_converter, second).format, flac);
    QCOMPARE(m_settings->converterGlobalId(), mp3);
    m_converter->setConvertingListTaskFormat(second + 1000, flac);
}

void TestPageFormats::choosingAPresetMovesItToTheTopOfTheRecentlyUsed()
{
    const auto head = [this] { return m_store->formats().recentlyFormatsModel()->getId(0); };
    m_converter->setConverterGlobalFormat(flac);
    QCOMPARE(head(), flac);
    m_editor->setEditorGlobalFormat(mkv);
    QCOMPARE(head(), mkv);
    const int id = addReady(*m_editor, song());
    m_editor->setEditingListTaskFormat(id, flac);
    QCOMPARE(head(), flac);
    m_converter->setConvertingListTaskFormat(1, mp3);
    QCOMPARE(head(), mp3);
}

void TestPageFormats::aPresetIsUsedWhileItsTaskIsQueued()
{
    const int first = addReady(*m_converter, song(QStringLiteral("a.wav")));
    const int second = addReady(*m_converter, song(QStringLiteral("b.wav")));
    m_converter->setConvertingListTaskFormat(second, flac);
    QVERIFY(!m_converter->checkFormatUsed(mp3));
    QVERIFY(!m_converter->checkFormatUsed(flac));
    m_converter->convertAll();
    QVERIFY(m_converter->checkFormatUsed(mp3));
    QVERIFY(m_converter->checkFormatUsed(flac));
    QVERIFY(!m_converter->checkFormatUsed(mkv));
    QVERIFY(!m_editor->checkFormatUsed(mp3));
    QTRY_COMPARE_WITH_TIMEOUT(task(*m_converter, first).state, Task::Converted, patience);
    QVERIFY(!m_converter->checkFormatUsed(mp3));
    QTRY_VERIFY_WITH_TIMEOUT(!m_converter->isBusy(), patience);
    QVERIFY(!m_converter->checkFormatUsed(flac));
}

void TestPageFormats::aTaskWhosePresetIsDeletedReturnsToItsFormerChoice()
{
    const QString own =
        m_store->formats().addUserDefineFormat(QStringLiteral("audio"), QStringLiteral("MP3"), mp3,
                                               {{QStringLiteral("title"), QStringLiteral("Mine")}});
    const int id = addReady(*m_converter, song());
    const int chosen = addReady(*m_converter, song(QStringLiteral("chosen.wav")));
    m_converter->setConvertingListTaskFormat(id, own);
    m_converter->setConvertingListTaskFormat(chosen, flac);
    m_converter->setConvertingListTaskFormat(chosen, own);
    QCOMPARE(task(*m_converter, id).formatCaption, QStringLiteral("MP3 - Mine"));
    m_settings->setEditorGlobalId(own);

    m_store->formats().delUserDefineFormat(QStringLiteral("audio"), QStringLiteral("MP3"), own);
    QTRY_COMPARE_WITH_TIMEOUT(task(*m_converter, id).format, mp3, patience);
    QCOMPARE(task(*m_converter, id).formatCaption, QStringLiteral("MP3 - Middle Quality"));
    QCOMPARE(task(*m_converter, chosen).format, flac);
    QCOMPARE(m_editor->globalCaption(), QStringLiteral("MP4 - Keep Orignal"));
}

void TestPageFormats::noPresetChangesAConvertedTask()
{
    FormatsProxy &formats = m_store->formats();
    const QString own =
        formats.addUserDefineFormat(QStringLiteral("audio"), QStringLiteral("MP3"), mp3,
                                    {{QStringLiteral("title"), QStringLiteral("Mine")}});
    const int id = addReady(*m_converter, song());
    const int following = addReady(*m_converter, song(QStringLiteral("b.wav")));
    m_converter->setConvertingListTaskFormat(id, own);
    m_converter->convertAll();
    QTRY_VERIFY_WITH_TIMEOUT(!m_converter->isBusy(), patience);
    const QString target = task(*m_converter, id).target;
    QSignalSpy changes(m_presets.get(), &Presets::changed);
    formats.delUserDefineFormat(QStringLiteral("audio"), QStringLiteral("MP3"), own);
    QTRY_VERIFY_WITH_TIMEOUT(changes.count() > 0, patience);
    m_converter->setConverterGlobalFormat(flac);
    QCOMPARE(task(*m_converter, id).state, Task::Converted);
    QCOMPARE(task(*m_converter, id).formatCaption, QStringLiteral("MP3 - Mine"));
    QCOMPARE(task(*m_converter, id).target, target);
    QCOMPARE(task(*m_converter, following).state, Task::Converted);
    QCOMPARE(task(*m_converter, following).format, mp3);

    // Those that follow can be converted again.
    QCOMPARE(m_converter->offer()->text(), QStringLiteral("Converted already: b.wav"));
    m_converter->offer()->take();
    QTRY_VERIFY_WITH_TIMEOUT(!m_converter->isBusy(), patience);
    QVERIFY(task(*m_converter, following).target.endsWith(QStringLiteral(".flac")));
    QCOMPARE(task(*m_converter, id).target, target);
}

void TestPageFormats::aNewFormatMakesAConvertedTaskReady()
{
    const int id = addReady(*m_converter, song());
    m_converter->convertAll();
    QTRY_COMPARE_WITH_TIMEOUT(task(*m_converter, id).state, Task::Converted, patience);
    m_converter->setConvertingListTaskFormat(id, flac);
    QCOMPARE(task(*m_converter, id).state, Task::Ready);
    QCOMPARE(task(*m_converter, id).target, QString());
    QVERIFY(m_converter->canConvert());
}

void TestPageFormats::aNewFormatDoesNotMakeAnUnreadableFileReady()
{
    m_converter->addFiles({noMedia()});
    const int id = m_converter->tasks()->tasks().constFirst().id;
    QTRY_COMPARE_WITH_TIMEOUT(task(*m_converter, id).state, Task::Failed, patience);
    const QString error = task(*m_converter, id).error;
    m_converter->setConvertingListTaskFormat(id, flac);
    m_converter->setConverterGlobalFormat(flac);
    QCOMPARE(task(*m_converter, id).state, Task::Failed);
    QCOMPARE(task(*m_converter, id).error, error);
}

QTEST_MAIN(TestPageFormats)
#include "tst_page_formats.moc"
