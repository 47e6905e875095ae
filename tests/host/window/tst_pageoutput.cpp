#include "tests/host/window/pagetest.h"

/*! Names and places of a page's results. */
class TestPageOutput : public PageTest
{
    Q_OBJECT

private Q_SLOTS:
    void resultsAreCalledAsTheTemplateSays();
    void aMistakeInATemplateIsNamed_data();
    void aMistakeInATemplateIsNamed();
    void aTemplateWithAMistakeIsNotKept();
    void thePreviewIsTheFirstFilesResult();
    void aNameInUseGetsANumber();
    void aNameInUseIsSkipped();
    void aNameInUseIsReplaced();
    void aSourceIsNeverReplaced();
    void theUserIsAskedOnceAboutAllNamesInUse();
    void anAnswerHoldsForItsOwnRun();
    void namesThatAreFreeNeedNoAnswer();
    void addedFoldersKeepTheirTree();
    void withoutTheTreeAllResultsShareTheFolder();
    void earlierResultsAreNoSources();
    void eachPageHasItsOwnSettings();

private:
    PageOutput &output() { return *m_converter->output(); }
    QString path(const char *name) const { return m_files->filePath(QString::fromLatin1(name)); }
    /*! Converts the file and returns the result's name. */
    QString convert(int id);
    void writeEarlier(const char *name);
    bool isEarlier(const char *name);
    /*! Adds a folder with songs at two depths. */
    void addTree();
    void convertAll();
};

QString TestPageOutput::convert(int id)
{
    m_converter->convert(id);
    [&] { QTRY_COMPARE_WITH_TIMEOUT(task(*m_converter, id).state, Task::Converted, patience); }();
    return QFileInfo(task(*m_converter, id).target).fileName();
}

void TestPageOutput::writeEarlier(const char *name)
{
    QFile file(path(name));
    QVERIFY(file.open(QIODevice::WriteOnly));
    file.write("earlier");
}

bool TestPageOutput::isEarlier(const char *name)
{
    QFile file(path(name));
    return file.open(QIODevice::ReadOnly) && file.readAll() == "earlier";
}

void TestPageOutput::addTree()
{
    for (const char *name : {"in", "in/deep", "in/deep/er", "out"}) {
        QVERIFY(QDir(m_files->path()).mkdir(QString::fromLatin1(name)));
    }
    QVERIFY(song(QStringLiteral("in/a.wav")).isValid());
    QVERIFY(song(QStringLiteral("in/deep/er/b.wav")).isValid());
    m_converter->setFolder(path("out"));
    m_converter->addPaths({path("in")});
    QCOMPARE(m_converter->tasks()->count(), 2);
    QTRY_COMPARE_WITH_TIMEOUT(m_converter->tasks()->tasks().at(1).state, Task::Ready, patience);
}

void TestPageOutput::convertAll()
{
    m_converter->convertAll();
    QTRY_VERIFY_WITH_TIMEOUT(!m_converter->isBusy(), patience);
}

void TestPageOutput::resultsAreCalledAsTheTemplateSays()
{
    output().setNameTemplate(QStringLiteral("{n}-{name} {preset}"));
    const int id = addReady(*m_converter, song());
    QCOMPARE(convert(id), QStringLiteral("1-song Audio_MP3_003.mp3"));
    m_converter->setFolder(path("gone"));
    m_converter->convert(id);
    QTRY_COMPARE_WITH_TIMEOUT(task(*m_converter, id).state, Task::Failed, patience);
    QVERIFY(!QFile::exists(path("gone")));
}

void TestPageOutput::aMistakeInATemplateIsNamed_data()
{
    QTest::addColumn<QString>("nameTemplate");
    QTest::addColumn<QString>("mistake");
    QTest::newRow("none") << QStringLiteral("{name}-{width}") << QString();
    QTest::newRow("the source's name") << QString() << QString();
    QTest::newRow("folder") << QStringLiteral("a/{name}")
                            << QStringLiteral("A name has no \"/\"; choose the folder in "
                                              "\"Save to\"");
    QTest::newRow("field") << QStringLiteral("{name} {size}")
                           << QStringLiteral("There is no field {size}; use {name} {preset} "
                                             "{date} {n} {width} {height}");
}

void TestPageOutput::aMistakeInATemplateIsNamed()
{
    QFETCH(QString, nameTemplate);
    QTEST(output().mistakeIn(nameTemplate), "mistake");
}

void TestPageOutput::aTemplateWithAMistakeIsNotKept()
{
    output().setNameTemplate(QStringLiteral("{name} x"));
    output().setNameTemplate(QStringLiteral("{name} {x"));
    QCOMPARE(output().nameTemplate(), QStringLiteral("{name} {x"));
    output().setNameTemplate(QStringLiteral("{name} {x}"));
    QCOMPARE(output().nameTemplate(), QStringLiteral("{name} {x"));
}

void TestPageOutput::thePreviewIsTheFirstFilesResult()
{
    QCOMPARE(output().preview(QStringLiteral("{name}-{width}")),
             QStringLiteral("Holidays-{width}.mp3"));
    addReady(*m_converter, song());
    QCOMPARE(output().preview(QStringLiteral("{n}. {name}")), QStringLiteral("1. song.mp3"));
    QCOMPARE(output().preview(QString()), QStringLiteral("song.mp3"));
}

void TestPageOutput::aNameInUseGetsANumber()
{
    writeEarlier("song.mp3");
    QCOMPARE(convert(addReady(*m_converter, song())), QStringLiteral("song (2).mp3"));
    QVERIFY(isEarlier("song.mp3"));
}

void TestPageOutput::aNameInUseIsSkipped()
{
    output().setIfInUse(WindowSettings::Skip);
    writeEarlier("song.mp3");
    const int id = addReady(*m_converter, song());
    QCOMPARE(convert(id), QStringLiteral("song.mp3"));
    QVERIFY(isEarlier("song.mp3"));
    QCOMPARE(task(*m_converter, id).note, QStringLiteral("was there already"));
}

void TestPageOutput::aNameInUseIsReplaced()
{
    output().setIfInUse(WindowSettings::Overwrite);
    writeEarlier("song.mp3");
    const int id = addReady(*m_converter, song());
    QCOMPARE(convert(id), QStringLiteral("song.mp3"));
    QVERIFY(!isEarlier("song.mp3"));
    // In another run, that result is one to replace, too.
    QCOMPARE(convert(id), QStringLiteral("song.mp3"));
}

void TestPageOutput::aSourceIsNeverReplaced()
{
    output().setIfInUse(WindowSettings::Overwrite);
    addReady(*m_converter, song(QStringLiteral("song.mp3")));
    QCOMPARE(convert(addReady(*m_converter, song())), QStringLiteral("song (2).mp3"));
}

void TestPageOutput::theUserIsAskedOnceAboutAllNamesInUse()
{
    output().setIfInUse(WindowSettings::Ask);
    QSignalSpy asked(&output(), &PageOutput::asked);
    writeEarlier("a.mp3");
    writeEarlier("b.mp3");
    for (const char *name : {"a.wav", "b.wav", "c.wav"}) {
        addReady(*m_converter, song(QString::fromLatin1(name)));
    }
    m_converter->convertAll();
    QCOMPARE(asked.count(), 1);
    QCOMPARE(asked.at(0).at(0).toStringList(),
             (QStringList{QStringLiteral("a.mp3"), QStringLiteral("b.mp3")}));
    QVERIFY(!m_converter->isBusy());

    output().answer(WindowSettings::Skip);
    QTRY_VERIFY_WITH_TIMEOUT(!m_converter->isBusy(), patience);
    QVERIFY(isEarlier("a.mp3"));
    QVERIFY(isEarlier("b.mp3"));
    QVERIFY(QFile::exists(path("c.mp3")));
}

void TestPageOutput::anAnswerHoldsForItsOwnRun()
{
    output().setIfInUse(WindowSettings::Ask);
    QSignalSpy asked(&output(), &PageOutput::asked);
    writeEarlier("song.mp3");
    const int id = addReady(*m_converter, song());
    for (int run = 1; run <= 2; ++run) {
        m_converter->convert(id);
        QCOMPARE(asked.count(), run);
        output().answer(WindowSettings::Overwrite);
        QTRY_COMPARE_WITH_TIMEOUT(task(*m_converter, id).state, Task::Converted, patience);
    }
}

void TestPageOutput::namesThatAreFreeNeedNoAnswer()
{
    output().setIfInUse(WindowSettings::Ask);
    QSignalSpy asked(&output(), &PageOutput::asked);
    QCOMPARE(convert(addReady(*m_converter, song())), QStringLiteral("song.mp3"));
    QCOMPARE(asked.count(), 0);
}

void TestPageOutput::addedFoldersKeepTheirTree()
{
    addTree();
    convertAll();
    QVERIFY(QFile::exists(path("out/a.mp3")));
    QVERIFY(QFile::exists(path("out/deep/er/b.mp3")));
}

void TestPageOutput::withoutTheTreeAllResultsShareTheFolder()
{
    output().setKeepsTree(false);
    addTree();
    convertAll();
    QVERIFY(QFile::exists(path("out/a.mp3")));
    QVERIFY(QFile::exists(path("out/b.mp3")));
}

void TestPageOutput::earlierResultsAreNoSources()
{
    addTree();
    convertAll();
    m_converter->addPaths({m_files->path()});
    QCOMPARE(m_converter->tasks()->count(), 2);
    m_converter->addPaths({path("out")});
    QCOMPARE(m_converter->tasks()->count(), 4);
}

void TestPageOutput::eachPageHasItsOwnSettings()
{
    output().setNameTemplate(QStringLiteral("{name} small"));
    output().setIfInUse(WindowSettings::Skip);
    output().setKeepsTree(false);
    QCOMPARE(m_editor->output()->nameTemplate(), QString());
    QCOMPARE(m_editor->output()->ifInUse(), int(WindowSettings::Rename));
    QVERIFY(m_editor->output()->keepsTree());
    const WindowSettings later(m_config.filePath(QStringLiteral("vexconvert.ini")));
    QCOMPARE(later.nameTemplate(PageKind::Converter), QStringLiteral("{name} small"));
    QCOMPARE(later.ifInUse(PageKind::Converter), WindowSettings::Skip);
    QVERIFY(!later.keepsTree(PageKind::Converter));
}

QTEST_MAIN(TestPageOutput)
#include "tst_pageoutput.moc"
