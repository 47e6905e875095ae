#include "host/app/languages.h"
#include "host/window/mainwindow.h"
#include "host/window/pageproxies.h"
#include "host/window/windowsettings.h"

#include "tests/host/window/windowuser.h"
#include "tests/support/mediaclips.h"
#include "tests/support/patience.h"

#include <QClipboard>
#include <QDir>
#include <QGuiApplication>
#include <QQuickItem>
#include <QQuickWindow>
#include <QTemporaryDir>
#include <QtTest>

using namespace WindowUser;

/*! The window's own dialogs: preferences, about, logs, and names in use. */
class TestDialogs : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void init();
    void cleanup();

    void preferencesHoldAtOnce();
    void preferencesNameTheResultsOfBothPages();
    void preferencesFitTheSmallestScreen_data();
    void preferencesFitTheSmallestScreen();
    void aboutNamesVersionsAndLicences();
    void aFailedRowShowsItsLog();
    void namesInUseAreAskedAbout();
    void returnKeepsBothOfTwoResultsOfTheSameName();
    void withoutAnAnswerNothingStarts();
    void ctrlQClosesTheWindow();

private:
    QString path(const char *name) const { return m_work.filePath(QString::fromLatin1(name)); }
    /*! Presses Ctrl and the key in the window; the dialog that this opens. */
    QQuickWindow *openBy(Qt::Key key);
    QQuickWindow *dialog() const;
    QString allTexts(QQuickItem *root) const;
    /*! Adds a song whose result is there already, and asks for its conversion. */
    void convertOntoAnEarlierResult();

    QTemporaryDir m_work;
    std::unique_ptr<MainWindow> m_main;
    QQuickWindow *m_window = nullptr;
};

void TestDialogs::initTestCase()
{
    Languages::install(QStringLiteral("en"));
    QVERIFY(MediaClips::makeSong(path("song.wav")));
    collectWarnings();
}

void TestDialogs::init()
{
    QDir(path("config")).removeRecursively();
    QFile::remove(path("song.mp3"));
    m_main = std::make_unique<MainWindow>(path("config"));
    QVERIFY(m_main->open());
    m_window = m_main->window();
    QVERIFY(QTest::qWaitForWindowActive(m_window));
}

void TestDialogs::cleanup()
{
    m_main.reset();
    QFile::remove(path("song.mp3"));
    Languages::install(QStringLiteral("en"));
    QCOMPARE(takeWarnings(), QString());
}

QQuickWindow *TestDialogs::dialog() const
{
    return m_main->dialog() == nullptr ? nullptr : m_main->dialog()->window();
}

QQuickWindow *TestDialogs::openBy(Qt::Key key)
{
    QTest::keyClick(m_window, key, Qt::ControlModifier);
    return QTest::qWaitFor([this] { return dialog() != nullptr && dialog()->isActive(); }, patience)
               ? dialog()
               : nullptr;
}

QString TestDialogs::allTexts(QQuickItem *root) const
{
    QString texts = root->property("text").toString() + QLatin1Char('\n');
    for (QQuickItem *child : root->childItems()) {
        texts += allTexts(child);
    }
    return texts;
}

void TestDialogs::preferencesHoldAtOnce()
{
    QQuickWindow *preferences = openBy(Qt::Key_Comma);
    QVERIFY(preferences != nullptr);
    QVERIFY(click(preferences, QStringLiteral("Show no animations")));
    QVERIFY(m_main->settings().isStill());
    QVERIFY(click(preferences, QStringLiteral("Theme"), 1)); // after its caption
    QTest::keyClick(preferences, Qt::Key_End);
    QTest::keyClick(preferences, Qt::Key_Return);
    QTRY_COMPARE(m_main->settings().theme(), WindowSettings::DarkTheme);
    QVERIFY(m_window->property("color").value<QColor>().lightness() < 128);
    QVERIFY(click(preferences, QStringLiteral("Close")));
    QTRY_VERIFY(m_main->dialog() == nullptr);
}

void TestDialogs::preferencesNameTheResultsOfBothPages()
{
    m_main->converter().output()->setNameTemplate(QStringLiteral("{name} large"));
    QQuickWindow *preferences = openBy(Qt::Key_Comma);
    QVERIFY(preferences != nullptr);
    QCOMPARE(m_main->converter().output()->nameTemplate(), QStringLiteral("{name} large"));
    QVERIFY(click(preferences, QStringLiteral("Names"), 1)); // after its caption
    type(preferences, QStringLiteral("{n} {siz"));
    type(preferences, QStringLiteral("e}"));
    QTRY_VERIFY(allTexts(preferences->contentItem())
                    .contains(QStringLiteral("There is no field {size}; use {name}")));
    QCOMPARE(m_main->editor().output()->nameTemplate(), QStringLiteral("{n} {size"));
    for (int i = 0; i < 6; ++i) {
        QTest::keyClick(preferences, Qt::Key_Backspace);
    }
    type(preferences, QStringLiteral("{name}"));
    QTRY_VERIFY(allTexts(preferences->contentItem()).contains(QStringLiteral("1 Holidays.")));
    QCOMPARE(m_main->converter().output()->nameTemplate(), QStringLiteral("{n} {name}"));
    QCOMPARE(m_main->editor().output()->nameTemplate(), QStringLiteral("{n} {name}"));

    QVERIFY(click(preferences, QStringLiteral("If a name is in use"), 1));
    QTest::keyClick(preferences, Qt::Key_Down);
    QTest::keyClick(preferences, Qt::Key_Return);
    QTRY_COMPARE(m_main->editor().output()->ifInUse(), int(WindowSettings::Ask));
    QCOMPARE(m_main->converter().output()->ifInUse(), int(WindowSettings::Ask));
}

void TestDialogs::preferencesFitTheSmallestScreen_data()
{
    QTest::addColumn<QString>("language");
    for (const QString &language : Languages::all()) {
        QTest::newRow(qPrintable(language)) << language;
    }
}

void TestDialogs::preferencesFitTheSmallestScreen()
{
    QFETCH(QString, language);
    Languages::install(language);
    m_main->settings().setFolder(std::nullopt, path("gone"));
    QQuickWindow *preferences = openBy(Qt::Key_Comma);
    QVERIFY(preferences != nullptr);
    QVERIFY(click(preferences, ToolFun::text(QStringLiteral("Names")), 1));
    type(preferences, QStringLiteral("{resolution}"));
    const OutputChoice &output = *m_main->converter().output();
    for (const QString &mistake :
         {output.folderMistake(), output.mistakeIn(QStringLiteral("{resolution}"))}) {
        QTRY_VERIFY2(allTexts(preferences->contentItem()).contains(mistake), qPrintable(mistake));
    }
    QVERIFY(preferences->width() <= 760);
    QVERIFY2(preferences->height() <= 480, qPrintable(QString::number(preferences->height())));
}

void TestDialogs::aboutNamesVersionsAndLicences()
{
    QQuickWindow *preferences = openBy(Qt::Key_Comma);
    QVERIFY(preferences != nullptr);
    QVERIFY(click(preferences, QStringLiteral("About VexConvert")));
    QTRY_VERIFY(dialog() != nullptr && dialog() != preferences);
    const QString texts = allTexts(dialog()->contentItem());
    for (const QString &part :
         {QStringLiteral("Qt ") + QString::fromLatin1(qVersion()), QStringLiteral("ffmpeg "),
          QStringLiteral("MIT"), QStringLiteral("LGPL")}) {
        QVERIFY2(texts.contains(part), qPrintable(part));
    }
}

void TestDialogs::aFailedRowShowsItsLog()
{
    m_main->settings().setConverterGlobalId(QStringLiteral("Audio_MP3_003"));
    m_main->converter().setFolder(path("gone"));
    m_main->converter().addPaths({path("song.wav")});
    QTRY_COMPARE_WITH_TIMEOUT(m_main->converter().tasks()->tasks().at(0).state, Task::Ready,
                              patience);
    m_main->converter().convertAll();
    QTRY_COMPARE_WITH_TIMEOUT(m_main->converter().tasks()->tasks().at(0).state, Task::Failed,
                              patience);
    QVERIFY(click(m_window, QStringLiteral("Show log")));
    QTRY_VERIFY(dialog() != nullptr);
    QVERIFY(allTexts(dialog()->contentItem())
                .contains(QStringLiteral("ffmpeg hasn’t run for this file yet")));
    m_main->dialog()->cancelClicked();

    m_main->converter().setFolder({});
    m_main->converter().convertAll();
    QTRY_COMPARE_WITH_TIMEOUT(m_main->converter().tasks()->tasks().at(0).state, Task::Converted,
                              patience);
    m_main->converter().logs()->show(m_main->converter().tasks()->tasks().at(0).id);
    QTRY_VERIFY(dialog() != nullptr);
    QVERIFY(allTexts(dialog()->contentItem()).contains(path("song.wav")));
    QVERIFY(click(dialog(), QStringLiteral("Copy")));
    QVERIFY(QGuiApplication::clipboard()->text().startsWith(QStringLiteral("ffmpeg ")));
}

void TestDialogs::convertOntoAnEarlierResult()
{
    QVERIFY(QFile::copy(path("song.wav"), path("song.mp3")));
    m_main->settings().setConverterGlobalId(QStringLiteral("Audio_MP3_003"));
    m_main->converter().output()->setIfInUse(WindowSettings::Ask);
    m_main->converter().addPaths({path("song.wav")});
    QTRY_COMPARE_WITH_TIMEOUT(m_main->converter().tasks()->tasks().at(0).state, Task::Ready,
                              patience);
    QVERIFY(click(m_window, QStringLiteral("Convert All")));
    QTRY_VERIFY(dialog() != nullptr);
    QVERIFY(allTexts(dialog()->contentItem()).contains(QStringLiteral("song.mp3")));
}

void TestDialogs::namesInUseAreAskedAbout()
{
    convertOntoAnEarlierResult();
    QVERIFY(click(dialog(), QStringLiteral("Replace")));
    QTRY_COMPARE_WITH_TIMEOUT(m_main->converter().tasks()->tasks().at(0).state, Task::Converted,
                              patience);
    QCOMPARE(MediaClips::factsOf(path("song.mp3")).audio()->codec, QStringLiteral("mp3"));
}

void TestDialogs::returnKeepsBothOfTwoResultsOfTheSameName()
{
    convertOntoAnEarlierResult();
    press(dialog(), Qt::Key_Return);
    QTRY_COMPARE_WITH_TIMEOUT(m_main->converter().tasks()->tasks().at(0).state, Task::Converted,
                              patience);
    QVERIFY(m_main->converter().tasks()->tasks().at(0).target != path("song.mp3"));
    QVERIFY(QFile::exists(path("song.mp3")));
}

void TestDialogs::withoutAnAnswerNothingStarts()
{
    convertOntoAnEarlierResult();
    press(dialog(), Qt::Key_Escape);
    QTRY_VERIFY(m_main->dialog() == nullptr);
    QCOMPARE(m_main->converter().tasks()->tasks().at(0).state, Task::Ready);
}

void TestDialogs::ctrlQClosesTheWindow()
{
    QTest::keyClick(m_window, Qt::Key_Q, Qt::ControlModifier);
    QTRY_VERIFY(!m_window->isVisible());
}

QTEST_MAIN(TestDialogs)
#include "tst_dialogs.moc"
