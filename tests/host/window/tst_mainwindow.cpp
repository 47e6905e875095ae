#include "host/app/languages.h"
#include "host/window/mainwindow.h"
#include "host/window/pageproxies.h"

#include "formats/proxy/formatsproxy.h"
#include "tests/host/window/windowuser.h"
#include "tests/support/mediaclips.h"

#include <QGuiApplication>
#include <QProcess>
#include <QQuickWindow>
#include <QTemporaryDir>
#include <QtTest>

#include <csignal>

using namespace WindowUser;

namespace {

constexpr int patience = 60000; // ms, on a busy machine

QByteArray contentOf(const QString &path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

} // namespace

/*! The window and what is outside of it: other starts, the file manager, its end. */
class TestMainWindow : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void init();
    void cleanup();
    void cleanupTestCase();

    void aSecondInstancePassesItsFiles();
    void aSecondInstanceRaisesTheWindow();
    void aFolderWithoutMediaIsReported();
    void theFilesInSightGetThumbnails();
    void aResultIsShownInTheFileManager();
    void aPresetInUseIsNotDeleted();
    void closingWhileConvertingAsks();
    void atItsSmallestNothingIsCutOff();
    void closingTheWindowStopsItsConversion();

private:
    QString path(const char *name) const { return m_files->filePath(QString::fromLatin1(name)); }
    const QVector<Task> &tasks() const { return m_main->converter().tasks()->tasks(); }
    /*! Starts the program with these arguments; the exit code, -1 when it doesn't end. */
    int startAgain(const QStringList &arguments);
    /*! Adds a film and converts it, at the pace of a player. */
    void convertSlowly();

    QTemporaryDir m_work;
    QByteArray m_path;
    std::unique_ptr<QTemporaryDir> m_files;
    std::unique_ptr<MainWindow> m_main;
    QQuickWindow *m_window = nullptr;
};

void TestMainWindow::initTestCase()
{
    Languages::install(QStringLiteral("en"));
    qputenv("XDG_RUNTIME_DIR", m_work.path().toLocal8Bit());
    // The file manager's stand-in notes what it is to show.
    QFile opener(m_work.filePath(QStringLiteral("xdg-open")));
    QVERIFY(opener.open(QIODevice::WriteOnly));
    opener.write("#!/bin/sh\necho \"$1\" >>\"$VEX_OPENED\"\n");
    opener.setPermissions(QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner);
    // A conversion's process id is noted, and its pace is that of a player.
    QVERIFY(MediaClips::makeStandIn(
        m_work.path(), QStringLiteral("case \"$*\" in *slow*/part) echo $$ >\"$VEX_CONVERTER\"; "
                                      "exec $REAL -re \"$@\";; esac\n"
                                      "exec $REAL \"$@\"")));
    m_path = qgetenv("PATH");
    qputenv("PATH", MediaClips::pathWith(m_work.path()));
    collectWarnings();
}

void TestMainWindow::init()
{
    m_files = std::make_unique<QTemporaryDir>(QDir::tempPath() + QStringLiteral("/slow-XXXXXX"));
    qputenv("VEX_OPENED", path("opened").toLocal8Bit());
    qputenv("VEX_CONVERTER", path("converter").toLocal8Bit());
    QFile::remove(m_work.filePath(QStringLiteral("config/queue.json")));
    m_main = std::make_unique<MainWindow>(m_work.filePath(QStringLiteral("config")));
    QVERIFY(m_main->open());
    m_window = m_main->window();
    QVERIFY(QTest::qWaitForWindowActive(m_window));
}

void TestMainWindow::cleanup()
{
    m_main.reset();
    QCOMPARE(takeWarnings(), QString());
}

void TestMainWindow::cleanupTestCase()
{
    qputenv("PATH", m_path);
}

int TestMainWindow::startAgain(const QStringList &arguments)
{
    QProcess program;
    program.setWorkingDirectory(m_files->path());
    program.start(
        QStringLiteral(VEXCONVERT),
        QStringList{QStringLiteral("--config"), m_work.filePath(QStringLiteral("config"))} +
            arguments);
    const bool hasEnded =
        QTest::qWaitFor([&program] { return program.state() == QProcess::NotRunning; }, patience);
    return hasEnded && program.exitStatus() == QProcess::NormalExit ? program.exitCode() : -1;
}

void TestMainWindow::convertSlowly()
{
    const QString film = path("film.mp4");
    QVERIFY(MediaClips::makeFilm(film, 30));
    m_main->converter().addPaths({film});
    QTRY_COMPARE_WITH_TIMEOUT(tasks().at(0).state, Task::Ready, patience);
    QVERIFY(click(m_window, QStringLiteral("Convert All")));
    QTRY_VERIFY_WITH_TIMEOUT(!contentOf(path("converter")).isEmpty(), patience);
}

void TestMainWindow::aSecondInstancePassesItsFiles()
{
    QVERIFY(QDir(m_files->path()).mkdir(QStringLiteral("album")));
    for (const char *name : {"a b.wav", "c.wav", "album/d.wav"}) {
        QVERIFY(MediaClips::makeSong(path(name)));
    }
    QVERIFY(click(m_window, QStringLiteral("Editor")));
    QTRY_COMPARE_WITH_TIMEOUT(m_window->property("currentPage").toInt(), 1, patience);
    QCOMPARE(startAgain({QStringLiteral("a b.wav"),
                         QUrl::fromLocalFile(path("c.wav")).toString(QUrl::FullyEncoded),
                         QStringLiteral("album")}),
             0);
    QCOMPARE(tasks().size(), 3);
    QCOMPARE(tasks().at(0).source, path("a b.wav"));
    QCOMPARE(tasks().at(1).source, path("c.wav"));
    QCOMPARE(tasks().at(2).source, path("album/d.wav"));
    QCOMPARE(m_window->property("currentPage").toInt(), 0);
    QCOMPARE(m_main->editor().tasks()->count(), 0);
}

void TestMainWindow::aSecondInstanceRaisesTheWindow()
{
    QVERIFY(click(m_window, QStringLiteral("Editor")));
    m_window->showMinimized();
    QTRY_COMPARE_WITH_TIMEOUT(m_window->visibility(), QWindow::Minimized, patience);
    QCOMPARE(startAgain({}), 0);
    QTRY_COMPARE_WITH_TIMEOUT(m_window->visibility(), QWindow::Windowed, patience);
    QVERIFY(QTest::qWaitForWindowActive(m_window));
    QCOMPARE(m_window->property("currentPage").toInt(), 1);
    QCOMPARE(tasks().size(), 0);
}

void TestMainWindow::aFolderWithoutMediaIsReported()
{
    drop(m_window, {QUrl::fromLocalFile(m_files->path())});
    const QString line =
        QStringLiteral(
            "There are no video or audio files in the folder %1; add the files themselves")
            .arg(m_files->path());
    QTRY_VERIFY_WITH_TIMEOUT(!itemsNamed(m_window->contentItem(), line).isEmpty(), patience);
    QCOMPARE(takeWarnings(), line);
}

void TestMainWindow::theFilesInSightGetThumbnails()
{
    QVERIFY(MediaClips::makeFilm(path("film.mp4")));
    KeptTask film;
    film.source = path("film.mp4");
    m_main->converter().restore(QVector<KeptTask>(60, film));
    QTRY_VERIFY_WITH_TIMEOUT(!tasks().constFirst().thumbnail.isEmpty(), patience);
    QVERIFY(tasks().constLast().thumbnail.isEmpty());
    const int last = tasks().constLast().id;
    while (tasks().constFirst().id != last) {
        m_main->converter().remove(tasks().constFirst().id);
    }
    QTRY_VERIFY_WITH_TIMEOUT(!tasks().constFirst().thumbnail.isEmpty(), patience);
}

void TestMainWindow::aResultIsShownInTheFileManager()
{
    QVERIFY(MediaClips::makeSong(path("song.wav")));
    m_main->converter().setConverterGlobalFormat(QStringLiteral("Audio_MP3_003"));
    m_main->converter().addPaths({path("song.wav")});
    QVERIFY(click(m_window, QStringLiteral("Convert All")));
    QTRY_VERIFY_WITH_TIMEOUT(tasks().at(0).hasEnded(), patience);
    QCOMPARE(tasks().at(0).state, Task::Converted);
    QVERIFY(click(m_window, QStringLiteral("Show in folder")));
    if (QGuiApplication::platformName() != QLatin1String("offscreen")) {
        const QByteArray folder = QUrl::fromLocalFile(m_files->path()).toEncoded();
        QTRY_COMPARE_WITH_TIMEOUT(contentOf(path("opened")).trimmed(), folder, patience);
        return;
    }
    // Without a desktop there is no file manager, which is said.
    const QString line =
        QStringLiteral("No file manager could be started to show the folder %1; open it by hand")
            .arg(m_files->path());
    QTRY_VERIFY_WITH_TIMEOUT(!itemsNamed(m_window->contentItem(), line).isEmpty(), patience);
    QCOMPARE(takeWarnings(), line);
}

void TestMainWindow::aPresetInUseIsNotDeleted()
{
    FormatsProxy &formats = *FormatsProxy::getInstance();
    const QString own = formats.addUserDefineFormat(
        QStringLiteral("video"), QStringLiteral("MKV"), QStringLiteral("Video_MKV_001"),
        {{QStringLiteral("title"), QStringLiteral("Mine")}});
    m_main->converter().setConverterGlobalFormat(own);
    convertSlowly();

    auto *picker = m_window->property("picker").value<QObject *>();
    QVERIFY(click(m_window, QStringLiteral("Convert all to: MKV - Mine")));
    QTRY_VERIFY_WITH_TIMEOUT(picker->property("opened").toBool(), patience);
    QVERIFY(click(m_window, QStringLiteral("Video")));
    QVERIFY(click(m_window, QStringLiteral("Delete")));
    QTRY_VERIFY_WITH_TIMEOUT(m_main->dialog() != nullptr, patience);
    QQuickWindow *dialog = m_main->dialog()->window();
    QVERIFY(QTest::qWaitForWindowActive(dialog));
    QVERIFY(!itemsNamed(dialog->contentItem(),
                        QStringLiteral("The selected format cannot be deleted because it is in "
                                       "use."))
                 .isEmpty());
    // Without a window manager the focus may still move between the two windows.
    QVERIFY(QTest::qWaitFor(
        [this, open = QPointer<QQuickWindow>(dialog)] {
            if (open != nullptr) {
                press(open, Qt::Key_Return);
            }
            return m_main->dialog() == nullptr;
        },
        patience));
    QVERIFY(!formats.getFormat(own).isEmpty());
    QCOMPARE(tasks().at(0).state, Task::Running);
}

void TestMainWindow::closingWhileConvertingAsks()
{
    convertSlowly();
    m_window->close();
    QVERIFY(click(m_window, QStringLiteral("Keep converting")));
    QVERIFY(m_window->isVisible());
    QCOMPARE(tasks().at(0).state, Task::Running);
    m_main->converter().cancelAll();
    QTRY_VERIFY_WITH_TIMEOUT(!m_main->converter().isBusy(), patience);
    m_window->close();
    QVERIFY(!m_window->isVisible());
}

void TestMainWindow::atItsSmallestNothingIsCutOff()
{
    QCOMPARE(m_window->minimumSize(), QSize(760, 480));
    m_window->resize(m_window->minimumSize());
    m_main->converter().setFolder(m_files->path());
    for (const char *name : {"Add folder", "Add files", "Preferences", "Names of the results",
                             "Same folder as the source", "Convert All"}) {
        QTRY_VERIFY2(!itemsNamed(m_window->contentItem(), QString::fromLatin1(name)).isEmpty(),
                     name);
    }
    const auto placeOf = [this](const char *name) {
        const auto *button =
            itemsNamed(m_window->contentItem(), QString::fromLatin1(name)).value(0);
        return button->mapRectToScene({0, 0, button->width(), button->height()}).toAlignedRect();
    };
    const QRect names = placeOf("Names of the results");
    QVERIFY(!names.intersects(placeOf("Convert All")));
    QVERIFY(!names.intersects(placeOf("Same folder as the source")));
    QVERIFY(placeOf("Same folder as the source").left() > 400); // room for the folder's name
    m_main->converter().setFolder({});
}

void TestMainWindow::closingTheWindowStopsItsConversion()
{
    convertSlowly();
    const pid_t converter = contentOf(path("converter")).trimmed().toInt();
    const QStringList piece = {QStringLiteral(".vexconvert-*")};
    const QDir folder(m_files->path());
    QCOMPARE(::kill(converter, 0), 0);
    QCOMPARE(folder.entryList(piece, QDir::Dirs | QDir::Hidden).size(), 1);
    m_window->close();
    QTimer::singleShot(0, m_window,
                       [this] { QVERIFY(click(m_window, QStringLiteral("Stop and close"))); });
    QCOMPARE(QCoreApplication::exec(), 0);
    m_main.reset();
    QVERIFY(::kill(converter, 0) != 0);
    QCOMPARE(folder.entryList(piece, QDir::Dirs | QDir::Hidden), QStringList());
    QVERIFY(QFile::exists(path("film.mp4")));
}

QTEST_MAIN(TestMainWindow)
#include "tst_mainwindow.moc"
