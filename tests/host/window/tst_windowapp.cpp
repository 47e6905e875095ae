#include "host/commandline/commandline.h"
#include "host/files/workfolder.h"

#include "tests/support/forkedprocess.h"

#include <QDir>
#include <QLocalSocket>
#include <QProcess>
#include <QSettings>
#include <QTemporaryDir>
#include <QtTest>

#include <algorithm>
#include <csignal>

namespace {

constexpr int patience = 60000;

struct Run
{
    int exitCode = -1;
    QString out;
    QString err;
};

QString runtimeFolder()
{
    static const QTemporaryDir folder;
    return folder.path();
}

void prepare(QProcess &program, const QStringList &arguments, const QString &platform)
{
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    environment.remove(QStringLiteral("DISPLAY"));
    environment.remove(QStringLiteral("WAYLAND_DISPLAY"));
    environment.insert(QStringLiteral("XDG_RUNTIME_DIR"), runtimeFolder());
    environment.insert(QStringLiteral("QT_QPA_PLATFORM"), platform);
    program.setProcessEnvironment(environment);
    program.setProgram(QStringLiteral(VEXCONVERT));
    program.setArguments(arguments);
}

/*! Whether any window waits for later starts. */
bool isWindowListening()
{
    const QDir folder(runtimeFolder());
    const QStringList sockets = folder.entryList(QDir::System);
    return std::any_of(sockets.begin(), sockets.end(), [&folder](const QString &name) {
        QLocalSocket socket;
        socket.connectToServer(folder.filePath(name));
        return socket.waitForConnected(0);
    });
}

Run run(const QStringList &arguments, const QString &platform = QStringLiteral("offscreen"))
{
    QProcess program;
    prepare(program, arguments, platform);
    program.start();
    Run result;
    if (program.waitForFinished(patience) && program.exitStatus() == QProcess::NormalExit) {
        result.exitCode = program.exitCode();
    }
    result.out = QString::fromUtf8(program.readAllStandardOutput());
    result.err = QString::fromUtf8(program.readAllStandardError());
    return result;
}

} // namespace

/*! The start of the program, as its caller sees it. */
class TestWindowApp : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void withoutASubcommandTheWindowOpens_data();
    void withoutASubcommandTheWindowOpens();
    void aMissingDisplayIsReported();
    void theWindowOpensWithoutOpenGl();
    void subcommandsNeedNoDisplay();
    void fileArgumentsArePassedToTheWindow_data();
    void fileArgumentsArePassedToTheWindow();
    void aSecondInstanceExitsCleanly();
    void aFolderAllowsOneWindow();
    void aDamagedFileIsLogged();
    void theNextWindowRemovesWhatAKilledProcessLeft();
    void badOptionsAreRefused_data();
    void badOptionsAreRefused();
    void theHelpMentionsTheWindow();

private:
    QTemporaryDir m_work;
};

void TestWindowApp::withoutASubcommandTheWindowOpens_data()
{
    QTest::addColumn<QStringList>("arguments");
    QTest::addColumn<bool>("isForWindow");
    const auto row = [](const char *line, bool isForWindow) {
        QTest::newRow(line) << QString::fromLatin1(line).split(QLatin1Char(' '), Qt::SkipEmptyParts)
                            << isForWindow;
    };
    row("", true);
    row("--config /folder --language de", true);
    row("--help", false);
    row("--version", false);
    row("--bogus", false);
    row("--language tlh", false);
    row("--config /folder formats", false);
    row("formats", false);
}

void TestWindowApp::withoutASubcommandTheWindowOpens()
{
    QFETCH(QStringList, arguments);
    QFETCH(bool, isForWindow);
    const auto options = CommandLine::windowOptions(arguments);
    QCOMPARE(options.has_value(), isForWindow);
    if (!arguments.isEmpty() && isForWindow) {
        QCOMPARE(options->configFolder, QStringLiteral("/folder"));
        QCOMPARE(options->language, QStringLiteral("de"));
    }
}

void TestWindowApp::aMissingDisplayIsReported()
{
    const Run result = run({}, QStringLiteral("xcb"));
    QCOMPARE(result.exitCode, 2);
    QCOMPARE(result.out, QString());
    QCOMPARE(result.err, QStringLiteral("vexconvert: there is no display to show the window on; "
                                        "start it in a desktop, or use a subcommand: \"vexconvert "
                                        "--help\" lists them\n"));
}

void TestWindowApp::theWindowOpensWithoutOpenGl()
{
    const QTemporaryDir folder;
    QProcess window;
    prepare(window, {QStringLiteral("--config"), folder.path()}, QStringLiteral("offscreen"));
    QProcessEnvironment environment = window.processEnvironment();
    environment.remove(QStringLiteral("QT_QUICK_BACKEND"));
    window.setProcessEnvironment(environment);
    window.start();
    QTRY_VERIFY_WITH_TIMEOUT(isWindowListening() || window.state() == QProcess::NotRunning,
                             patience);
    window.terminate();
    QVERIFY(window.waitForFinished(patience));
    QCOMPARE(window.exitStatus(), QProcess::NormalExit);
    QCOMPARE(window.exitCode(), 0);
}

void TestWindowApp::subcommandsNeedNoDisplay()
{
    const Run result = run({QStringLiteral("formats")}, QStringLiteral("xcb"));
    QCOMPARE(result.exitCode, 0);
    QVERIFY(result.out.contains(QStringLiteral("MP4")));
    QCOMPARE(result.err, QString());
}

void TestWindowApp::fileArgumentsArePassedToTheWindow_data()
{
    QTest::addColumn<QStringList>("arguments");
    QTest::addColumn<QStringList>("files"); // none: not for the window
    const QString file = m_work.filePath(QStringLiteral("a b.wav"));
    const QString folder = m_work.path();
    const QString url = QUrl::fromLocalFile(file).toString(QUrl::FullyEncoded);
    const QString relative = QDir::current().relativeFilePath(file);
    QTest::newRow("file") << QStringList{file} << QStringList{file};
    QTest::newRow("folder and file") << QStringList{folder, file} << QStringList{folder, file};
    QTest::newRow("URL") << QStringList{url} << QStringList{file};
    QTest::newRow("from the caller's folder") << QStringList{relative} << QStringList{file};
    QTest::newRow("missing") << QStringList{folder + QStringLiteral("/none.wav")} << QStringList();
    QTest::newRow("one missing") << QStringList{file, QStringLiteral("none.wav")} << QStringList();
    QTest::newRow("subcommand") << QStringList{QStringLiteral("convert"), file} << QStringList();
}

void TestWindowApp::fileArgumentsArePassedToTheWindow()
{
    QFETCH(QStringList, arguments);
    QFETCH(QStringList, files);
    QFile file(m_work.filePath(QStringLiteral("a b.wav")));
    QVERIFY(file.open(QIODevice::WriteOnly));
    const auto options = CommandLine::windowOptions(arguments);
    QCOMPARE(options.has_value(), !files.isEmpty());
    QCOMPARE(options ? options->files : QStringList(), files);
}

void TestWindowApp::aSecondInstanceExitsCleanly()
{
    QTemporaryDir folder;
    const QStringList call = {QStringLiteral("--config"), folder.path()};
    QProcess first;
    prepare(first, call, QStringLiteral("offscreen"));
    first.start();
    QTRY_VERIFY_WITH_TIMEOUT(isWindowListening(), 60000);

    const Run second = run(call);
    QCOMPARE(second.err, QString());
    QCOMPARE(second.exitCode, 0);
    QCOMPARE(first.state(), QProcess::Running);
    first.kill();
    first.waitForFinished();

    // What the killed one left behind keeps nobody out.
    QProcess third;
    prepare(third, call, QStringLiteral("offscreen"));
    third.start();
    QTRY_VERIFY_WITH_TIMEOUT(isWindowListening(), 60000);
    QCOMPARE(run(call).exitCode, 0);
    QCOMPARE(third.state(), QProcess::Running);
    third.kill();
    third.waitForFinished();
}

void TestWindowApp::aFolderAllowsOneWindow()
{
    QTemporaryDir folder;
    const QStringList call = {QStringLiteral("--config"), folder.path(),
                              QStringLiteral("--language"), QStringLiteral("en")};
    QProcess first;
    prepare(first, call, QStringLiteral("offscreen"));
    first.start();
    QTRY_VERIFY_WITH_TIMEOUT(isWindowListening(), 60000);
    QCOMPARE(::kill(pid_t(first.processId()), SIGSTOP), 0); // it hangs

    const Run second = run(call);
    QCOMPARE(second.exitCode, 1);
    QVERIFY2(second.err.startsWith(QStringLiteral("vexconvert: vexconvert (process %1 on %2) is "
                                                  "using the presets in ")
                                       .arg(first.processId())
                                       .arg(QSysInfo::machineHostName())),
             qUtf8Printable(second.err));
    QCOMPARE(first.state(), QProcess::Running);
    first.kill();
    first.waitForFinished();
}

void TestWindowApp::aDamagedFileIsLogged()
{
    QTemporaryDir folder;
    QFile file(folder.filePath(QStringLiteral("recently.json")));
    QVERIFY(file.open(QIODevice::WriteOnly));
    file.write("[ {");
    file.close();

    QProcess window;
    prepare(window,
            {QStringLiteral("--config"), folder.path(), QStringLiteral("--language"),
             QStringLiteral("en")},
            QStringLiteral("offscreen"));
    window.start();
    QByteArray log;
    QTRY_VERIFY((log += window.readAllStandardError()).endsWith('\n'));
    QVERIFY2(log.contains("recently.json was damaged"), log.constData());
    window.kill();
    window.waitForFinished();
}

void TestWindowApp::theNextWindowRemovesWhatAKilledProcessLeft()
{
    const QTemporaryDir folder;
    const QStringList places = {QStringLiteral("tmp"), QStringLiteral("results")};
    QStringList left;
    for (const QString &place : places) {
        const QString path = folder.filePath(place);
        QVERIFY(QDir().mkdir(path));
        left << ForkedProcess([&path](const auto &report) {
                    report(WorkFolder::make(path)->path());
                }).report();
        QVERIFY(QFile::exists(left.constLast()));
    }
    QSettings settings(folder.filePath(QStringLiteral("vexconvert.ini")), QSettings::IniFormat);
    settings.setValue(QStringLiteral("editor/folder"), folder.filePath(places.at(1)));
    settings.sync();

    QProcess window;
    prepare(window, {QStringLiteral("--config"), folder.path()}, QStringLiteral("offscreen"));
    QProcessEnvironment environment = window.processEnvironment();
    environment.insert(QStringLiteral("TMPDIR"), folder.filePath(places.at(0)));
    window.setProcessEnvironment(environment);
    window.start();
    for (const QString &path : left) {
        QTRY_VERIFY_WITH_TIMEOUT(!QFile::exists(path), patience);
    }
    window.kill();
    window.waitForFinished();
}

void TestWindowApp::badOptionsAreRefused_data()
{
    QTest::addColumn<QStringList>("arguments");
    QTest::addColumn<int>("exitCode");
    QTest::addColumn<QString>("error");
    QTest::newRow("unknown language")
        << QStringList{QStringLiteral("--language"), QStringLiteral("tlh")} << 2
        << QStringLiteral("vexconvert: --language is one of: en, zh, de, es, fr, ja\n");
    QTest::newRow("unknown language, with a file")
        << QStringList{QStringLiteral("--language"), QStringLiteral("tlh"), QStringLiteral("/")}
        << 2 << QStringLiteral("vexconvert: --language is one of: en, zh, de, es, fr, ja\n");
    QTest::newRow("for the window, with a subcommand")
        << QStringList{QStringLiteral("--language"), QStringLiteral("de"),
                       QStringLiteral("formats")}
        << 2
        << QStringLiteral("vexconvert: --language is only for the window; leave it out with a "
                          "subcommand\n");
    QTest::newRow("neither subcommand nor file")
        << QStringList{QStringLiteral("none.wav")} << 2
        << QStringLiteral("vexconvert: there is no subcommand \"none.wav\"; \"vexconvert --help\" "
                          "lists them\n");
    QTest::newRow("a missing file")
        << QStringList{QStringLiteral("/"), QStringLiteral("none.wav")} << 2
        << QStringLiteral("vexconvert: there is no file \"none.wav\"; check its name, and put "
                          "options before the files\n");
    QTest::newRow("folder that can't be created")
        << QStringList{QStringLiteral("--config"), QStringLiteral("/dev/null/x"),
                       QStringLiteral("--language"), QStringLiteral("en")}
        << 1
        << QStringLiteral("vexconvert: can't write into the configuration folder /dev/null/x (Not "
                          "a directory); name another one\n");
}

void TestWindowApp::badOptionsAreRefused()
{
    QFETCH(QStringList, arguments);
    QFETCH(int, exitCode);
    QFETCH(QString, error);
    const Run result = run(arguments);
    QCOMPARE(result.err, error);
    QCOMPARE(result.exitCode, exitCode);
}

void TestWindowApp::theHelpMentionsTheWindow()
{
    const QString help = run({QStringLiteral("--help")}).out;
    QVERIFY(help.contains(QStringLiteral("--language <LANG>")));
    QVERIFY(help.contains(QStringLiteral("vexconvert [options] [FILE...]")));
}

QTEST_GUILESS_MAIN(TestWindowApp)
#include "tst_windowapp.moc"
