#include "tests/support/commandrun.h"
#include "tests/support/mediaclips.h"

#include <QApplication>
#include <QDir>
#include <QDrag>
#include <QMimeData>
#include <QTemporaryDir>
#include <QtTest>
#include <QUrl>
#include <QWidget>

#include <csignal>

namespace {

QByteArray contentOf(const QString &path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

/*! What a run of xdotool prints, while this process goes on handling its events. */
QString xdotool(const QStringList &arguments)
{
    QProcess tool;
    tool.start(QStringLiteral("xdotool"), arguments);
    const bool hasEnded =
        QTest::qWaitFor([&tool] { return tool.state() == QProcess::NotRunning; }, patience);
    return hasEnded ? QString::fromUtf8(tool.readAllStandardOutput()).trimmed() : QString();
}

/*! The id of the process' only visible window of this title; empty when it doesn't come. */
QString windowOf(const QProcess &program, const char *title = "VexConvert")
{
    QString id;
    const bool isThere = QTest::qWaitFor(
        [&program, &id, title] {
            id = xdotool({QStringLiteral("search"), QStringLiteral("--all"),
                          QStringLiteral("--onlyvisible"), QStringLiteral("--pid"),
                          QString::number(program.processId()), QStringLiteral("--name"),
                          QStringLiteral("^%1$").arg(QLatin1String(title))});
            return !id.isEmpty() && !id.contains(QLatin1Char('\n'));
        },
        patience);
    return isThere ? id : QString();
}

QRect placeOf(const QString &window)
{
    QHash<QString, int> values;
    const QStringList lines =
        xdotool({QStringLiteral("getwindowgeometry"), QStringLiteral("--shell"), window})
            .split(QLatin1Char('\n'));
    for (const QString &line : lines) {
        values.insert(line.section(QLatin1Char('='), 0, 0),
                      line.section(QLatin1Char('='), 1).toInt());
    }
    return {values.value(QStringLiteral("X")), values.value(QStringLiteral("Y")),
            values.value(QStringLiteral("WIDTH")), values.value(QStringLiteral("HEIGHT"))};
}

/*! Lets files be dragged out of it, as a file manager does. */
class FileSource : public QWidget
{
public:
    explicit FileSource(const QList<QUrl> &urls)
        : m_urls(urls)
    {
        setGeometry(0, 0, 60, 60);
        setWindowFlag(Qt::BypassWindowManagerHint);
        setWindowFlag(Qt::WindowStaysOnTopHint);
    }

protected:
    void mousePressEvent(QMouseEvent *) override
    {
        auto *files = new QMimeData;
        files->setUrls(m_urls);
        auto *drag = new QDrag(this);
        drag->setMimeData(files);
        drag->exec(Qt::CopyAction);
    }

private:
    const QList<QUrl> m_urls;
};

} // namespace

/*! The program among others on a real display, with real keys, mouse and signals. */
class TestDesktop : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void init();

    void aSignalClosesTheWindow_data();
    void aSignalClosesTheWindow();
    void aKilledWindowKeepsItsList();
    void losingTheDisplayLeavesNothingBehind();
    void anIgnoredHangupEndsNothing();
    void aFolderInUseIsReportedInADialog();
    void filesAreDroppedFromAnotherProgram();
    void aFileIsAddedByTypingItsPath();

private:
    QString path(const char *name) const { return m_work->filePath(QString::fromLatin1(name)); }
    void prepare(QProcess &program, const QStringList &arguments) const;
    /*! The accessible names of the thumbnails of the files that the window has read. */
    QStringList thumbnails() const;
    /*! Starts the conversion of the window's only film; the converter's process id, 0 on failure.
     */
    pid_t convertIn(const QString &window) const;
    /*! What there is besides the film and the presets: pieces, thumbnails, sockets. */
    QStringList leftBehind() const;

    std::unique_ptr<QTemporaryDir> m_work;
};

void TestDesktop::initTestCase()
{
    QVERIFY(!xdotool({QStringLiteral("version")}).isEmpty());
}

void TestDesktop::init()
{
    m_work = std::make_unique<QTemporaryDir>();
    for (const char *name : {"tmp", "bin", "films"}) {
        QVERIFY(QDir(m_work->path()).mkdir(QString::fromLatin1(name)));
    }
    QVERIFY(MediaClips::makeFilm(path("films/film.mp4"), 30));
    // A conversion's process id is noted, and its pace is that of a player.
    QVERIFY(
        MediaClips::makeStandIn(path("bin"), QStringLiteral("case \"$*\" in */part) echo $$ >'%1'; "
                                                            "exec $REAL -re \"$@\";; esac\n"
                                                            "exec $REAL \"$@\"")
                                                 .arg(path("converter"))));
}

void TestDesktop::prepare(QProcess &program, const QStringList &arguments) const
{
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    environment.insert(QStringLiteral("PATH"),
                       QString::fromLocal8Bit(MediaClips::pathWith(path("bin"))));
    environment.insert(QStringLiteral("TMPDIR"), path("tmp"));
    environment.insert(QStringLiteral("XDG_RUNTIME_DIR"), m_work->path());
    program.setProcessEnvironment(environment);
    program.setProgram(QStringLiteral(VEXCONVERT));
    program.setArguments(QStringList{QStringLiteral("--config"), path("config"),
                                     QStringLiteral("--language"), QStringLiteral("en")} +
                         arguments);
}

QStringList TestDesktop::thumbnails() const
{
    QStringList names;
    QDirIterator files(path("tmp"), {QStringLiteral("*.png")}, QDir::Files | QDir::Hidden,
                       QDirIterator::Subdirectories);
    while (files.hasNext()) {
        names << QFileInfo(files.next()).fileName();
    }
    return names;
}

pid_t TestDesktop::convertIn(const QString &window) const
{
    if (!QTest::qWaitFor([this] { return thumbnails().size() == 1; }, patience)) {
        return 0;
    }
    // "Convert All" is in the corner, at the same place in windows of any scale.
    const QRect place = placeOf(window);
    const double scale = place.width() / 1040.0;
    xdotool({QStringLiteral("mousemove"), QStringLiteral("--window"), window,
             QString::number(qRound(place.width() - 92 * scale)),
             QString::number(qRound(place.height() - 36 * scale)), QStringLiteral("click"),
             QStringLiteral("1")});
    const bool isRunning =
        QTest::qWaitFor([this] { return contentOf(path("converter")).endsWith('\n'); }, patience);
    return isRunning ? contentOf(path("converter")).trimmed().toInt() : 0;
}

QStringList TestDesktop::leftBehind() const
{
    const QDir::Filters all = QDir::AllEntries | QDir::Hidden | QDir::System | QDir::NoDotAndDotDot;
    QStringList names = QDir(path("films")).entryList(all) + QDir(path("tmp")).entryList(all) +
                        QDir(m_work->path()).entryList(QDir::System);
    names.removeOne(QStringLiteral("film.mp4"));
    return names;
}

void TestDesktop::aSignalClosesTheWindow_data()
{
    QTest::addColumn<int>("signalNumber");
    QTest::newRow("terminate") << SIGTERM;
    QTest::newRow("hang up") << SIGHUP;
    QTest::newRow("Ctrl-C") << SIGINT;
}

void TestDesktop::aSignalClosesTheWindow()
{
    QFETCH(int, signalNumber);
    GroupProcess program;
    prepare(program, {path("films/film.mp4")});
    program.start();
    const QString window = windowOf(program);
    QVERIFY(!window.isEmpty());
    const pid_t converter = convertIn(window);
    QVERIFY(converter > 0);

    QCOMPARE(::kill(pid_t(program.processId()), signalNumber), 0);
    QVERIFY(program.waitForFinished(patience));
    QCOMPARE(program.exitStatus(), QProcess::NormalExit);
    QCOMPARE(program.exitCode(), 0);
    QVERIFY(::kill(converter, 0) != 0);
    QCOMPARE(leftBehind(), QStringList());
}

void TestDesktop::aKilledWindowKeepsItsList()
{
    GroupProcess program;
    prepare(program, {path("films/film.mp4")});
    program.start();
    pid_t converter = convertIn(windowOf(program));
    QVERIFY(converter > 0);
    QTRY_VERIFY_WITH_TIMEOUT(contentOf(path("config/queue.json")).contains("\"interrupted\""),
                             patience);
    program.kill();
    QVERIFY(program.waitForFinished(patience));
    QTRY_VERIFY_WITH_TIMEOUT(::kill(converter, 0) != 0, patience);
    QVERIFY(QFile::remove(path("converter")));

    // The list is there again, and goes on.
    GroupProcess next;
    prepare(next, {});
    next.start();
    converter = convertIn(windowOf(next));
    QVERIFY(converter > 0);
    next.terminate();
    QVERIFY(next.waitForFinished(patience));
    QCOMPARE(leftBehind(), QStringList());
}

void TestDesktop::losingTheDisplayLeavesNothingBehind()
{
    QProcess display;
    display.start(QStringLiteral("Xvfb"),
                  {QStringLiteral("-displayfd"), QStringLiteral("1"), QStringLiteral("-screen"),
                   QStringLiteral("0"), QStringLiteral("1280x900x24")});
    QTRY_VERIFY_WITH_TIMEOUT(display.bytesAvailable() > 0, patience);
    const QByteArray usual = qgetenv("DISPLAY");
    qputenv("DISPLAY", ":" + display.readAllStandardOutput().trimmed());
    GroupProcess program;
    prepare(program, {path("films/film.mp4")});
    program.start();
    const QString window = windowOf(program);
    const pid_t converter = convertIn(window);
    qputenv("DISPLAY", usual);
    QVERIFY(converter > 0);

    display.kill();
    QVERIFY(program.waitForFinished(patience));
    QVERIFY(::kill(converter, 0) != 0);
    QCOMPARE(leftBehind(), QStringList());
    QVERIFY(display.waitForFinished(patience));
}

void TestDesktop::anIgnoredHangupEndsNothing()
{
    GroupProcess program;
    prepare(program, {});
    program.setArguments(QStringList{program.program()} + program.arguments());
    program.setProgram(QStringLiteral("nohup"));
    program.start();
    QVERIFY(!windowOf(program).isEmpty());
    QCOMPARE(::kill(pid_t(program.processId()), SIGHUP), 0);

    QProcess second;
    prepare(second, {});
    second.start();
    QCOMPARE(CommandRun::of(second).exitCode, 0);
    QCOMPARE(program.state(), QProcess::Running);
    program.terminate();
    QVERIFY(program.waitForFinished(patience));
    QCOMPARE(program.exitCode(), 0);
}

void TestDesktop::aFolderInUseIsReportedInADialog()
{
    GroupProcess first;
    prepare(first, {});
    first.start();
    QVERIFY(!windowOf(first).isEmpty());
    QCOMPARE(::kill(pid_t(first.processId()), SIGSTOP), 0); // it hangs

    QProcess second;
    prepare(second, {});
    second.start();
    const QString dialog = windowOf(second);
    QVERIFY(!dialog.isEmpty());
    QCOMPARE(second.state(), QProcess::Running);
    const auto confirm = [&second, &dialog] {
        xdotool({QStringLiteral("windowfocus"), dialog, QStringLiteral("key"),
                 QStringLiteral("Return")});
        return second.state() == QProcess::NotRunning;
    };
    QTRY_VERIFY_WITH_TIMEOUT(confirm(), patience);
    QCOMPARE(second.exitStatus(), QProcess::NormalExit);
    QCOMPARE(second.exitCode(), 1);
    const QByteArray error = second.readAllStandardError();
    QVERIFY2(error.contains(" is using the presets in "), error.constData());
    first.kill();
    QVERIFY(first.waitForFinished(patience));
}

void TestDesktop::filesAreDroppedFromAnotherProgram()
{
    QVERIFY(MediaClips::makeFilm(path("films/another film.mp4")));
    GroupProcess program;
    prepare(program, {});
    program.start();
    const QString window = windowOf(program);
    QVERIFY(!window.isEmpty());

    FileSource source({QUrl::fromLocalFile(path("films/film.mp4")),
                       QUrl::fromLocalFile(path("films/another film.mp4"))});
    source.show();
    source.raise();
    QVERIFY(QTest::qWaitForWindowExposed(&source));
    const QPoint from = source.geometry().center();
    const QPoint to = placeOf(window).center();
    const auto moveTo = [](const QPoint &place) {
        return QStringList{QStringLiteral("mousemove"), QString::number(place.x()),
                           QString::number(place.y()), QStringLiteral("sleep"),
                           QStringLiteral("0.3")};
    };
    xdotool(moveTo(from) + QStringList{QStringLiteral("mousedown"), QStringLiteral("1")} +
            moveTo((from + to) / 2) + moveTo(to) + moveTo(to + QPoint(5, 5)) +
            QStringList{QStringLiteral("mouseup"), QStringLiteral("1")});
    QTRY_COMPARE_WITH_TIMEOUT(thumbnails().size(), 2, patience);
    program.terminate();
    QVERIFY(program.waitForFinished(patience));
}

void TestDesktop::aFileIsAddedByTypingItsPath()
{
    GroupProcess program;
    prepare(program, {});
    program.start();
    const QString window = windowOf(program);
    QVERIFY(!window.isEmpty());
    xdotool(
        {QStringLiteral("windowfocus"), window, QStringLiteral("key"), QStringLiteral("ctrl+o")});
    const QString dialog = windowOf(program, "Add files");
    QVERIFY(!dialog.isEmpty());
    xdotool({QStringLiteral("type"), path("films/film.mp4")});
    xdotool({QStringLiteral("key"), QStringLiteral("Return")});
    QTRY_COMPARE_WITH_TIMEOUT(thumbnails().size(), 1, patience);
    program.terminate();
    QVERIFY(program.waitForFinished(patience));
}

QTEST_MAIN(TestDesktop)
#include "tst_desktop.moc"
