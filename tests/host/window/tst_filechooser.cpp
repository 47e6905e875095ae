#include "host/app/languages.h"
#include "host/window/mainwindow.h"
#include "host/window/pageproxies.h"
#include "tests/host/window/windowuser.h"
#include "tests/support/mediaclips.h"

#include <QApplication>
#include <QComboBox>
#include <QDialogButtonBox>
#include <QFileDialog>
#include <QFileSystemModel>
#include <QPushButton>
#include <QQuickWindow>
#include <QScreen>
#include <QTemporaryDir>
#include <QTreeView>
#include <QtTest>

using namespace WindowUser;

namespace {

constexpr int patience = 60000; // ms, on a busy machine

/*!
 * The dialog that is open and has the focus; null when there is none in time. To
 * QTest::qWaitForWindowActive() a dialog is active while its window still has the focus, and what
 * is typed then gets selected when the dialog takes it.
 */
QFileDialog *openDialog()
{
    QFileDialog *dialog = nullptr;
    const bool hasFocus = QTest::qWaitFor(
        [&dialog] {
            dialog = qobject_cast<QFileDialog *>(QApplication::activeModalWidget());
            return dialog != nullptr && QApplication::activeWindow() == dialog;
        },
        patience);
    return hasFocus ? dialog : nullptr;
}

void clickWidget(const QFileDialog *dialog, const QWidget *widget, const QPoint &place,
                 Qt::KeyboardModifiers keys = Qt::NoModifier)
{
    QTest::mouseClick(dialog->windowHandle(), Qt::LeftButton, keys, widget->mapTo(dialog, place));
}

QTreeView *filesOf(const QFileDialog *dialog)
{
    return dialog->findChild<QTreeView *>(QStringLiteral("treeView"));
}

QModelIndex rowOf(const QAbstractItemView *list, const QString &name)
{
    const QAbstractItemModel *rows = list->model();
    for (int i = 0; i < rows->rowCount(list->rootIndex()); ++i) {
        const QModelIndex row = rows->index(i, 0, list->rootIndex());
        if (row.data().toString() == name) {
            return row;
        }
    }
    return {};
}

bool clickFile(const QFileDialog *dialog, const QString &name, Qt::KeyboardModifiers keys)
{
    const QTreeView *list = filesOf(dialog);
    const auto place = [list, &name] { return list->visualRect(rowOf(list, name)).center(); };
    const QRect shown = list->viewport()->rect();
    QPoint last;
    const bool isThere = QTest::qWaitFor(
        [&] {
            const QPoint before = last;
            last = place();
            return rowOf(list, name).isValid() && last == before && shown.contains(last);
        },
        patience);
    if (isThere) {
        clickWidget(dialog, list->viewport(), last, keys);
    }
    return isThere;
}

void clickButton(const QFileDialog *dialog, QDialogButtonBox::StandardButton which)
{
    const auto *box = dialog->findChild<QDialogButtonBox *>();
    const QPushButton *button = box->button(which);
    clickWidget(dialog, button, button->rect().center());
}

} // namespace

/*! The window's file dialogs, which are Qt's own here, by mouse and by keyboard. */
class TestFileChooser : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void init();
    void cleanup();

    void filesChosenByMouseAreAddedOnce_data();
    void filesChosenByMouseAreAddedOnce();
    void filesTypedByKeyboardAreAddedOnce_data();
    void filesTypedByKeyboardAreAddedOnce();
    void aFolderClickedAfterTypingIsOpened();
    void theCurrentPageGetsTheFiles();
    void cancelAddsNothing_data();
    void cancelAddsNothing();
    void theDialogStartsInTheVideosFolderElseAtHome();
    void theNextDialogStartsInTheFolderOfTheLastFiles();
    void theDialogBelongsToTheWindow();
    void otherFilesAreHiddenUntilAllAreRequested();
    void theOutputFolderIsChosenByMouse();
    void theOutputFolderIsTypedByKeyboard();
    void theFolderDialogStartsInTheCurrentFolder();
    void theFolderOfBothPagesIsChosenInThePreferences();

private:
    QStringList names() const;
    QString homePath(const char *name) const { return m_home->filePath(QString::fromLatin1(name)); }

    QTemporaryDir m_config;
    std::unique_ptr<QTemporaryDir> m_home;
    std::unique_ptr<MainWindow> m_main;
    QQuickWindow *m_window = nullptr;
};

void TestFileChooser::initTestCase()
{
    Languages::install(QStringLiteral("en"));
    // The dialog keeps settings of its own.
    qputenv("XDG_CONFIG_HOME", m_config.path().toLocal8Bit());
    collectWarnings();
}

void TestFileChooser::init()
{
    m_home = std::make_unique<QTemporaryDir>();
    qputenv("HOME", m_home->path().toLocal8Bit());
    for (const char *name : {"one.wav", "two.WAV", "three.wav"}) {
        QVERIFY(MediaClips::makeSong(homePath(name)));
    }
    QVERIFY(QDir(m_home->path()).mkdir(QStringLiteral("results")));
    QFile::remove(m_config.filePath(QStringLiteral("vexconvert/queue.json")));
    m_main = std::make_unique<MainWindow>(m_config.filePath(QStringLiteral("vexconvert")));
    QVERIFY(m_main->open());
    m_main->converter().setFolder({});
    m_window = m_main->window();
    QVERIFY(QTest::qWaitForWindowActive(m_window));
}

void TestFileChooser::cleanup()
{
    delete QApplication::activeModalWidget();
    m_main.reset();
    QCOMPARE(takeWarnings(), QString());
}

QStringList TestFileChooser::names() const
{
    QStringList names;
    for (const Task &task : m_main->converter().tasks()->tasks()) {
        names << QFileInfo(task.source).fileName();
    }
    names.sort();
    return names;
}

void TestFileChooser::filesChosenByMouseAreAddedOnce_data()
{
    QTest::addColumn<int>("button"); // the one at the top, or the empty page's
    QTest::addColumn<QStringList>("chosen");
    const QStringList one = {QStringLiteral("one.wav")};
    const QStringList several = one + QStringList{QStringLiteral("two.WAV")};
    QTest::newRow("button, one") << 0 << one;
    QTest::newRow("button, several") << 0 << several;
    QTest::newRow("empty page, one") << 1 << one;
    QTest::newRow("empty page, several") << 1 << several;
}

void TestFileChooser::filesChosenByMouseAreAddedOnce()
{
    QFETCH(int, button);
    QFETCH(QStringList, chosen);
    QVERIFY(click(m_window, QStringLiteral("Add files"), button));
    QFileDialog *dialog = openDialog();
    QVERIFY(dialog != nullptr);
    for (const QString &name : chosen) {
        QVERIFY(clickFile(dialog, name,
                          name == chosen.constFirst() ? Qt::NoModifier : Qt::ControlModifier));
    }
    clickButton(dialog, QDialogButtonBox::Open);
    QTRY_COMPARE_WITH_TIMEOUT(names(), chosen, patience);
    QTRY_VERIFY_WITH_TIMEOUT(QApplication::activeModalWidget() == nullptr, patience);
    QVERIFY(QTest::qWaitForWindowActive(m_window));
    QTRY_COMPARE_WITH_TIMEOUT(m_main->converter().tasks()->tasks().constLast().state, Task::Ready,
                              patience);
    QCOMPARE(names(), chosen);
}

void TestFileChooser::filesTypedByKeyboardAreAddedOnce_data()
{
    QTest::addColumn<QString>("typed");
    QTest::addColumn<QStringList>("chosen");
    const QString one = QStringLiteral("one.wav");
    const QString two = QStringLiteral("two.WAV");
    QTest::newRow("one") << one << QStringList{one};
    QTest::newRow("several") << QStringLiteral("\"one.wav\" \"two.WAV\"") << QStringList{one, two};
    QTest::newRow("several, one not in the list")
        << QStringLiteral("\"one.wav\" \"take\"") << QStringList{one, QStringLiteral("take")};
    QTest::newRow("with its path") << QStringLiteral("%1/one.wav") << QStringList{one};
}

void TestFileChooser::filesTypedByKeyboardAreAddedOnce()
{
    QFETCH(QString, typed);
    QFETCH(QStringList, chosen);
    if (typed.contains(QStringLiteral("%1"))) {
        typed = typed.arg(m_home->path());
    }
    QVERIFY(
        QFile::copy(homePath("one.wav"), homePath("take"))); // its name isn't that of a media file
    QTest::keyClick(m_window, Qt::Key_O, Qt::ControlModifier);
    QFileDialog *dialog = openDialog();
    QVERIFY(dialog != nullptr);
    type(dialog->windowHandle(), typed);
    press(dialog->windowHandle(), Qt::Key_Return);
    QTRY_COMPARE_WITH_TIMEOUT(names(), chosen, patience);
    QTRY_VERIFY_WITH_TIMEOUT(QApplication::activeModalWidget() == nullptr, patience);
    QVERIFY(QTest::qWaitForWindowActive(m_window));
    QCOMPARE(names(), chosen);
}

void TestFileChooser::aFolderClickedAfterTypingIsOpened()
{
    QTest::keyClick(m_window, Qt::Key_O, Qt::ControlModifier);
    QFileDialog *dialog = openDialog();
    QVERIFY(dialog != nullptr);
    type(dialog->windowHandle(), QStringLiteral("elsewhere")); // completed to nothing
    QVERIFY(clickFile(dialog, QStringLiteral("results"), Qt::NoModifier));
    clickButton(dialog, QDialogButtonBox::Open);
    QTRY_COMPARE_WITH_TIMEOUT(dialog->directory().path(), homePath("results"), patience);
    QCOMPARE(names(), QStringList());
}

void TestFileChooser::theCurrentPageGetsTheFiles()
{
    QVERIFY(click(m_window, QStringLiteral("Editor")));
    QTest::keyClick(m_window, Qt::Key_O, Qt::ControlModifier);
    QFileDialog *dialog = openDialog();
    QVERIFY(dialog != nullptr);
    type(dialog->windowHandle(), QStringLiteral("one.wav"));
    press(dialog->windowHandle(), Qt::Key_Return);
    QTRY_COMPARE_WITH_TIMEOUT(m_main->editor().tasks()->count(), 1, patience);
    QCOMPARE(m_main->converter().tasks()->count(), 0);
}

void TestFileChooser::cancelAddsNothing_data()
{
    QTest::addColumn<bool>("byMouse");
    QTest::newRow("button") << true;
    QTest::newRow("Escape") << false;
}

void TestFileChooser::cancelAddsNothing()
{
    QFETCH(bool, byMouse);
    QVERIFY(click(m_window, QStringLiteral("Add files")));
    QFileDialog *dialog = openDialog();
    QVERIFY(dialog != nullptr);
    QVERIFY(clickFile(dialog, QStringLiteral("one.wav"), Qt::NoModifier));
    if (byMouse) {
        clickButton(dialog, QDialogButtonBox::Cancel);
    } else {
        press(dialog->windowHandle(), Qt::Key_Escape);
    }
    QTRY_VERIFY_WITH_TIMEOUT(QApplication::activeModalWidget() == nullptr, patience);
    QVERIFY(QTest::qWaitForWindowActive(m_window));
    QCOMPARE(names(), QStringList());
}

void TestFileChooser::theDialogStartsInTheVideosFolderElseAtHome()
{
    QVERIFY(click(m_window, QStringLiteral("Add files")));
    QFileDialog *dialog = openDialog();
    QVERIFY(dialog != nullptr);
    QCOMPARE(dialog->directory().path(), m_home->path());
    press(dialog->windowHandle(), Qt::Key_Escape);
    QTRY_VERIFY_WITH_TIMEOUT(QApplication::activeModalWidget() == nullptr, patience);

    QVERIFY(QDir(m_home->path()).mkdir(QStringLiteral("Videos")));
    QVERIFY(click(m_window, QStringLiteral("Add files")));
    dialog = openDialog();
    QVERIFY(dialog != nullptr);
    QCOMPARE(dialog->directory().path(), homePath("Videos"));
}

void TestFileChooser::theNextDialogStartsInTheFolderOfTheLastFiles()
{
    QVERIFY(MediaClips::makeSong(homePath("results/four.wav")));
    QTest::keyClick(m_window, Qt::Key_O, Qt::ControlModifier);
    QFileDialog *dialog = openDialog();
    QVERIFY(dialog != nullptr);
    type(dialog->windowHandle(), homePath("results/four.wav"));
    press(dialog->windowHandle(), Qt::Key_Return);
    QTRY_COMPARE_WITH_TIMEOUT(names(), QStringList{QStringLiteral("four.wav")}, patience);
    QTRY_VERIFY_WITH_TIMEOUT(QApplication::activeModalWidget() == nullptr, patience);

    QVERIFY(click(m_window, QStringLiteral("Add files")));
    dialog = openDialog();
    QVERIFY(dialog != nullptr);
    QCOMPARE(dialog->directory().path(), homePath("results"));
}

void TestFileChooser::theDialogBelongsToTheWindow()
{
    QVERIFY(click(m_window, QStringLiteral("Add files")));
    const QFileDialog *dialog = openDialog();
    QVERIFY(dialog != nullptr);
    QCOMPARE(dialog->windowHandle()->transientParent(), m_window);
    const QRect screen = m_window->screen()->availableGeometry();
    const QPoint off = dialog->geometry().center() - m_window->geometry().center();
    QVERIFY(screen.contains(dialog->geometry()));
    // A screen that is smaller than the window, as the one of the tests without a display, has
    // no room for the dialog in its middle.
    if (screen.contains(m_window->geometry())) {
        QVERIFY2(off.manhattanLength() < 4, qPrintable(QString::number(off.manhattanLength())));
    }
}

void TestFileChooser::otherFilesAreHiddenUntilAllAreRequested()
{
    QFile note(homePath("note.txt"));
    QVERIFY(note.open(QIODevice::WriteOnly));
    QVERIFY(click(m_window, QStringLiteral("Add files")));
    const QFileDialog *dialog = openDialog();
    QVERIFY(dialog != nullptr);
    const QTreeView *list = filesOf(dialog);
    QTRY_VERIFY_WITH_TIMEOUT(rowOf(list, QStringLiteral("one.wav")).isValid(), patience);
    QTRY_VERIFY_WITH_TIMEOUT(rowOf(list, QStringLiteral("two.WAV")).isValid(), patience);
    QVERIFY(!rowOf(list, QStringLiteral("note.txt")).isValid());

    const auto *kinds = dialog->findChild<QComboBox *>(QStringLiteral("fileTypeCombo"));
    QCOMPARE(kinds->currentText(), QStringLiteral("Video and audio files"));
    const auto choose = [dialog, kinds](Qt::Key step) {
        clickWidget(dialog, kinds, kinds->rect().center());
        QVERIFY(
            QTest::qWaitFor([] { return QApplication::activePopupWidget() != nullptr; }, patience));
        QWindow *popup = QApplication::activePopupWidget()->windowHandle();
        QTest::keyClick(popup, step);
        press(popup, Qt::Key_Return);
        QTRY_VERIFY_WITH_TIMEOUT(QApplication::activePopupWidget() == nullptr, patience);
    };
    choose(Qt::Key_Down);
    QTRY_COMPARE_WITH_TIMEOUT(kinds->currentText(), QStringLiteral("All files"), patience);
    QTRY_VERIFY_WITH_TIMEOUT(rowOf(list, QStringLiteral("note.txt")).isValid(), patience);
    choose(Qt::Key_Up);
    QTRY_VERIFY_WITH_TIMEOUT(!rowOf(list, QStringLiteral("note.txt")).isValid(), patience);
    QVERIFY(rowOf(list, QStringLiteral("one.wav")).isValid());
}

void TestFileChooser::theOutputFolderIsChosenByMouse()
{
    QVERIFY(click(m_window, QStringLiteral("Same folder as the source")));
    const QFileDialog *dialog = openDialog();
    QVERIFY(dialog != nullptr);
    QVERIFY(clickFile(dialog, QStringLiteral("results"), Qt::NoModifier));
    clickButton(dialog, QDialogButtonBox::Open);
    QTRY_COMPARE_WITH_TIMEOUT(m_main->converter().folder(), homePath("results"), patience);
    QTRY_VERIFY_WITH_TIMEOUT(
        !itemsNamed(m_window->contentItem(), QStringLiteral("results")).isEmpty(), patience);
}

void TestFileChooser::theOutputFolderIsTypedByKeyboard()
{
    for (int i = 0; i < 40 && nameOf(m_window->activeFocusItem()) !=
                                  QStringLiteral("Save to: Same folder as the source");
         ++i) {
        QTest::keyClick(m_window, Qt::Key_Tab);
    }
    QTest::keyClick(m_window, Qt::Key_Space);
    QFileDialog *dialog = openDialog();
    QVERIFY(dialog != nullptr);
    type(dialog->windowHandle(), homePath("results"));
    press(dialog->windowHandle(), Qt::Key_Return);
    QTRY_COMPARE_WITH_TIMEOUT(m_main->converter().folder(), homePath("results"), patience);
    QTRY_VERIFY_WITH_TIMEOUT(QApplication::activeModalWidget() == nullptr, patience);
    QVERIFY(QTest::qWaitForWindowActive(m_window));
}

void TestFileChooser::theFolderDialogStartsInTheCurrentFolder()
{
    m_main->converter().setFolder(homePath("results"));
    QVERIFY(click(m_window, QStringLiteral("results")));
    QFileDialog *dialog = openDialog();
    QVERIFY(dialog != nullptr);
    QCOMPARE(dialog->directory().path(), homePath("results"));
    press(dialog->windowHandle(), Qt::Key_Escape);
    QTRY_VERIFY_WITH_TIMEOUT(QApplication::activeModalWidget() == nullptr, patience);
    QCOMPARE(m_main->converter().folder(), homePath("results"));

    // One that is gone.
    m_main->converter().setFolder(homePath("elsewhere"));
    QVERIFY(click(m_window, QStringLiteral("elsewhere")));
    dialog = openDialog();
    QVERIFY(dialog != nullptr);
    QCOMPARE(dialog->directory().path(), m_home->path());
}

void TestFileChooser::theFolderOfBothPagesIsChosenInThePreferences()
{
    QVERIFY(click(m_window, QStringLiteral("Preferences")));
    QTRY_VERIFY_WITH_TIMEOUT(m_main->dialog() != nullptr, patience);
    QQuickWindow *preferences = m_main->dialog()->window();
    QVERIFY(QTest::qWaitForWindowActive(preferences));
    QVERIFY(click(preferences, QStringLiteral("Save to: Same folder as the source")));
    const QFileDialog *dialog = openDialog();
    QVERIFY(dialog != nullptr);
    QCOMPARE(dialog->windowHandle()->transientParent(), preferences);
    QVERIFY(clickFile(dialog, QStringLiteral("results"), Qt::NoModifier));
    clickButton(dialog, QDialogButtonBox::Open);
    QTRY_COMPARE_WITH_TIMEOUT(m_main->editor().folder(), homePath("results"), patience);
    QCOMPARE(m_main->converter().folder(), homePath("results"));
    QTRY_VERIFY_WITH_TIMEOUT(QApplication::activeModalWidget() == nullptr, patience);
    QVERIFY(QTest::qWaitForWindowActive(preferences));

    QVERIFY(click(preferences, QStringLiteral("Same folder as the source")));
    QTRY_COMPARE_WITH_TIMEOUT(m_main->editor().folder(), QString(), patience);
    QCOMPARE(m_main->converter().folder(), QString());
}

QTEST_MAIN(TestFileChooser)
#include "tst_filechooser.moc"
