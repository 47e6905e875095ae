#include "tests/host/window/pagetest.h"

/*! Which presets a page and its tasks have. */
class TestPageFormats : public PageTest
{
    Q_OBJECT

private Q_SLOTS:
    void theGlobalFormatAppliesToAllTasksThatAreNotQueued();
    void aTaskHasAFormatOfItsOwn();
    void choosingAPresetMovesItToTheTopOfTheRecentlyUsed();
    void aPresetIsUsedWhileItsTaskIsQueued();
    void aTaskWhosePresetIsDeletedTakesTheGlobalOne();
    void aNewFormatMakesAConvertedTaskReady();
    void aNewFormatDoesNotMakeAnUnreadableFileReady();
};

void TestPageFormats::theGlobalFormatAppliesToAllTasksThatAreNotQueued()
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

void TestPageFormats::aTaskWhosePresetIsDeletedTakesTheGlobalOne()
{
    const QString own =
        m_store->formats().addUserDefineFormat(QStringLiteral("audio"), QStringLiteral("MP3"), mp3,
                                               {{QStringLiteral("title"), QStringLiteral("Mine")}});
    const int id = addReady(*m_converter, song());
    m_converter->setConvertingListTaskFormat(id, own);
    QCOMPARE(task(*m_converter, id).formatCaption, QStringLiteral("MP3 - Mine"));
    m_settings->setEditorGlobalId(own);

    m_store->formats().delUserDefineFormat(QStringLiteral("audio"), QStringLiteral("MP3"), own);
    QTRY_COMPARE_WITH_TIMEOUT(task(*m_converter, id).format, mp3, patience);
    QCOMPARE(task(*m_converter, id).formatCaption, QStringLiteral("MP3 - Middle Quality"));
    QCOMPARE(m_editor->globalCaption(), QStringLiteral("MP4 - Keep Orignal"));
    QCOMPARE(task(*m_editor, addReady(*m_editor, song())).format, QStringLiteral("Video_MP4_001"));
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
