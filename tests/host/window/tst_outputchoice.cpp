#include "tests/host/window/pagetest.h"

/*! Where results go and how they are called, for both pages and for one of them. */
class TestOutputChoice : public PageTest
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();

    void aChoiceForBothPagesHoldsForEach();
    void resultsFollowTheChoiceForBothPages();
    void aPagesOwnChoiceComesFirst();
    void aPageCanSaveBesideItsSourcesAlone();
    void aLaterChoiceForBothPagesReplacesTheirOwn();
    void whatIsNotChosenAgainStays();
    void choicesSurviveARestart();
    void aTemplateWithAMistakeIsNotTaken();
    void aFolderThatIsGoneIsNamed();

private:
    std::unique_ptr<OutputChoice> m_both;
};

void TestOutputChoice::init()
{
    PageTest::init();
    m_both = std::make_unique<OutputChoice>(*m_settings);
}

void TestOutputChoice::cleanup()
{
    m_both.reset();
    PageTest::cleanup();
}

void TestOutputChoice::aChoiceForBothPagesHoldsForEach()
{
    QSignalSpy converter(m_converter->output(), &OutputChoice::changed);
    QSignalSpy editor(m_editor->output(), &OutputChoice::changed);
    m_both->setFolder(m_files->path());
    m_both->setNameTemplate(QStringLiteral("{name} small"));
    m_both->setIfInUse(WindowSettings::Skip);
    m_both->setKeepsTree(false);
    QCOMPARE(converter.count(), 4);
    QCOMPARE(editor.count(), 4);
    for (const OutputChoice *output :
         {m_both.get(), static_cast<OutputChoice *>(m_converter->output()),
          static_cast<OutputChoice *>(m_editor->output())}) {
        QCOMPARE(output->folder(), m_files->path());
        QCOMPARE(output->nameTemplate(), QStringLiteral("{name} small"));
        QCOMPARE(output->ifInUse(), int(WindowSettings::Skip));
        QVERIFY(!output->keepsTree());
    }
}

void TestOutputChoice::resultsFollowTheChoiceForBothPages()
{
    const QTemporaryDir results;
    m_both->setFolder(results.path());
    m_both->setNameTemplate(QStringLiteral("{name} small"));
    for (Page *page :
         {static_cast<Page *>(m_converter.get()), static_cast<Page *>(m_editor.get())}) {
        const int id = addReady(*page, song());
        page->convert(id);
        QTRY_COMPARE_WITH_TIMEOUT(task(*page, id).state, Task::Converted, patience);
    }
    QVERIFY(QFile::exists(results.filePath(QStringLiteral("song small.mp3"))));
    QVERIFY(QFile::exists(results.filePath(QStringLiteral("song small (2).mp3"))));
}

void TestOutputChoice::aPagesOwnChoiceComesFirst()
{
    m_both->setNameTemplate(QStringLiteral("{name} small"));
    m_both->setKeepsTree(false);
    m_converter->output()->setNameTemplate(QStringLiteral("{name} large"));
    m_converter->output()->setKeepsTree(true);
    QCOMPARE(m_converter->output()->nameTemplate(), QStringLiteral("{name} large"));
    QVERIFY(m_converter->output()->keepsTree());
    QCOMPARE(m_editor->output()->nameTemplate(), QStringLiteral("{name} small"));
    QVERIFY(!m_editor->output()->keepsTree());
    QCOMPARE(m_both->nameTemplate(), QStringLiteral("{name} small"));
}

void TestOutputChoice::aPageCanSaveBesideItsSourcesAlone()
{
    m_both->setFolder(m_files->path());
    m_converter->setFolder({});
    QCOMPARE(m_converter->folder(), QString());
    QCOMPARE(m_editor->folder(), m_files->path());
}

void TestOutputChoice::aLaterChoiceForBothPagesReplacesTheirOwn()
{
    m_converter->output()->setIfInUse(WindowSettings::Skip);
    m_editor->output()->setIfInUse(WindowSettings::Ask);
    m_both->setIfInUse(WindowSettings::Overwrite);
    QCOMPARE(m_converter->output()->ifInUse(), int(WindowSettings::Overwrite));
    QCOMPARE(m_editor->output()->ifInUse(), int(WindowSettings::Overwrite));
}

void TestOutputChoice::whatIsNotChosenAgainStays()
{
    m_converter->setFolder(m_files->path());
    m_both->setNameTemplate(QStringLiteral("{name} small"));
    QCOMPARE(m_converter->folder(), m_files->path());
}

void TestOutputChoice::choicesSurviveARestart()
{
    m_converter->output()->setNameTemplate(QStringLiteral("{name} large"));
    m_both->setNameTemplate(QStringLiteral("{name} small"));
    m_both->setFolder(m_files->path());
    m_editor->setFolder({});
    WindowSettings later(m_config.filePath(QStringLiteral("vexconvert.ini")));
    QCOMPARE(OutputChoice(later).nameTemplate(), QStringLiteral("{name} small"));
    QCOMPARE(OutputChoice(later, PageKind::Converter).nameTemplate(),
             QStringLiteral("{name} small"));
    QCOMPARE(OutputChoice(later, PageKind::Converter).folder(), m_files->path());
    QCOMPARE(OutputChoice(later, PageKind::Editor).folder(), QString());
}

void TestOutputChoice::aTemplateWithAMistakeIsNotTaken()
{
    m_both->setNameTemplate(QStringLiteral("{name} small"));
    m_both->setNameTemplate(QStringLiteral("{name} {size}"));
    m_both->setNameTemplate(QStringLiteral("a/{name}"));
    QCOMPARE(m_both->nameTemplate(), QStringLiteral("{name} small"));
    QCOMPARE(m_converter->output()->nameTemplate(), QStringLiteral("{name} small"));
}

void TestOutputChoice::aFolderThatIsGoneIsNamed()
{
    QCOMPARE(m_both->folderMistake(), QString());
    m_both->setFolder(m_files->path());
    QCOMPARE(m_both->folderMistake(), QString());
    m_both->setFolder(m_files->filePath(QStringLiteral("gone")));
    QCOMPARE(m_both->folderMistake(),
             QStringLiteral("This folder isn't there; choose another one"));
}

QTEST_MAIN(TestOutputChoice)
#include "tst_outputchoice.moc"
