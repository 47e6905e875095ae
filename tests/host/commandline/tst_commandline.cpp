#include "tests/host/commandline/commandlinetest.h"

#include <QDir>
#include <QProcess>

/*! What all subcommands have in common. */
class TestCommandLine : public CommandLineTest
{
    Q_OBJECT

private Q_SLOTS:
    void helpIsPrinted_data();
    void helpIsPrinted();
    void theVersionsAreReported();
    void theVersionIsReportedWithoutFfmpeg();
    void wrongUsageIsExplained_data();
    void wrongUsageIsExplained();
    void lostOutputIsReported();
    void closedStandardStreamsNeverWriteToFiles();
    void aClosedPipeIsNotAnError_data();
    void aClosedPipeIsNotAnError();
    void readOnlyCommandsWriteNothing();
    void anUnusableConfigFolderIsReported();
    void theDefaultConfigFolderIsThePlatforms();
    void theConfigOptionMayFollowTheSubcommand();
};

void TestCommandLine::helpIsPrinted_data()
{
    QTest::addColumn<QString>("line");
    QTest::addColumn<QString>("start");
    QTest::newRow("all") << QStringLiteral("--help")
                         << QStringLiteral("Usage: vexconvert [options] [FILE...]\n");
    QTest::newRow("short") << QStringLiteral("-h")
                           << QStringLiteral("Usage: vexconvert [options] [FILE...]\n");
    for (const char *name : {"formats", "search", "presets", "show", "fit", "convert", "recent",
                             "user", "check-catalogue"}) {
        QTest::newRow(name) << QString::fromLatin1(name) + QStringLiteral(" --help")
                            << QStringLiteral("Usage: vexconvert ") + QString::fromLatin1(name);
    }
    QTest::newRow("before other mistakes")
        << QStringLiteral("show --bogus --help") << QStringLiteral("Usage: vexconvert show");
}

void TestCommandLine::helpIsPrinted()
{
    QFETCH(QString, line);
    QFETCH(QString, start);
    const CommandRun result = run(line.split(QLatin1Char(' ')));
    QCOMPARE(result.exitCode, 0);
    QVERIFY2(result.out.startsWith(start), qPrintable(result.out));
    QVERIFY(result.out.contains(QStringLiteral("--config <DIR>")));
    QCOMPARE(result.err, QString());
}

void TestCommandLine::theVersionsAreReported()
{
    const CommandRun result = run("--version");
    QCOMPARE(result.exitCode, 0);
    const QStringList lines = result.out.split(QLatin1Char('\n'));
    QCOMPARE(lines.size(), 4);
    QCOMPARE(lines.at(0), QStringLiteral("vexconvert " VEX_VERSION));
    QCOMPARE(lines.at(1), QStringLiteral("Qt ") + QString::fromLatin1(qVersion()));
    QProcess ffmpeg;
    ffmpeg.start(QStringLiteral("ffmpeg"), {QStringLiteral("-version")});
    QVERIFY(ffmpeg.waitForFinished(patience));
    const QStringList words = QString::fromUtf8(ffmpeg.readLine()).split(QLatin1Char(' '));
    QCOMPARE(lines.at(2), QStringLiteral("ffmpeg ") + words.value(2));
    QCOMPARE(lines.at(3), QString());
}

void TestCommandLine::theVersionIsReportedWithoutFfmpeg()
{
    m_environment.insert(QStringLiteral("PATH"), path(QStringLiteral("empty")));
    const CommandRun result = run("--version");
    QCOMPARE(result.exitCode, 0);
    QVERIFY(result.out.startsWith(QStringLiteral("vexconvert " VEX_VERSION "\n")));
    QVERIFY2(result.out.contains(QStringLiteral("\nffmpeg is not on the PATH")),
             qPrintable(result.out));
    QCOMPARE(result.err, QString());
}

void TestCommandLine::wrongUsageIsExplained_data()
{
    QTest::addColumn<QString>("line");
    QTest::addColumn<QString>("error");

    const auto row = [](const char *line, const char *error) {
        QTest::newRow(line) << QString::fromLatin1(line) << QString::fromLatin1(error);
    };
    row("bogus", "there is no subcommand \"bogus\"; \"vexconvert --help\" lists them");
    row("--bogus", "Unknown option 'bogus'; see \"vexconvert --help\"");
    row("formats --bogus", "Unknown option 'bogus'; see \"vexconvert formats --help\"");
    row("formats MP4", "\"formats\" takes no arguments but options");
    row("formats --tag bogus",
        "there is no tag \"bogus\"; choose one of video, audio, device, socialvideo");
    row("formats --tag recently", "there is no tag \"recently\"");
    row("search", "give one text to search for");
    row("search mp --kind image", "--kind must be video or audio");
    row("presets MP4 MKV", "give one format");
    row("presets bogus", "there is no format \"bogus\"; \"vexconvert formats\" lists them, "
                         "\"vexconvert search TEXT\" finds one");
    row("show", "give one preset id");
    row("show bogus", "no preset has the id \"bogus\"; \"vexconvert search TEXT\"");
    row("fit --type image --format MP4 --target 1", "--type must be \"video\" or \"audio\"");
    row("fit --type video --target 1x1", "--format is missing");
    row("fit --type video --format MP4 --target 720", "--target must be a size for video");
    row("fit --type audio --format MP3 --target 1x1",
        "--target must be a bitrate in kbps for audio");
    row("convert --preset V_MP4_1", "name the files to convert");
    row("convert film.mp4", "choose a preset: either --preset ID or --type, --format and --target");
    row("convert film.mp4 --preset V_MP4_1 --type video", "choose a preset: either");
    row("convert film.mp4 --preset bogus", "no preset has the id \"bogus\"");
    row("convert film.mp4 --type video --format MP4", "--target must be a size for video");
    row("recent bogus", "use \"vexconvert recent\" or");
    row("recent delete bogus", "\"bogus\" is not among the recently used presets");
    row("user bogus", "\"user bogus\" doesn't exist; it is one of list, add");
    row("user add", "use \"vexconvert user add BASE_ID --title TITLE");
    row("user add bogus --title x", "no preset has the id \"bogus\"");
    row("user add V_MP4_2", "give the new preset a title");
    row("user add V_MP4_2 --title=", "--title must not be empty");
    row("user add V_MP4_2 --title x --resolution 1x1",
        "--resolution 1x1 is not offered by preset V_MP4_2; choose one of 0, 1280x720, 160x90");
    row("user add V_MP4_2 --title x --frame-rate 30",
        "--frame-rate 30 is not offered by preset V_MP4_2; choose one of 0, 25, 29.97");
    row("user add V_MP4_2 --title x --audio-encoder=",
        "--audio-encoder  is not offered by preset V_MP4_2; choose one of 0, aac, mp3");
    row("user add A_MP3_1 --title x --video-bitrate 0",
        "--video-bitrate doesn't apply: preset A_MP3_1 is audio-only");
    row("user change V_MP4_2 --title x",
        "preset V_MP4_2 isn't yours and can't be changed; \"vexconvert user add V_MP4_2");
    row("user delete V_MP4_2", "preset V_MP4_2 isn't yours and can't be changed");
    row("check-catalogue MP4", "\"check-catalogue\" takes no arguments but options");
    row("user delete bogus", "no preset has the id \"bogus\"");
}

void TestCommandLine::wrongUsageIsExplained()
{
    QFETCH(QString, line);
    QFETCH(QString, error);
    const CommandRun result = run(line.split(QLatin1Char(' ')));
    QCOMPARE(result.exitCode, 2);
    QCOMPARE(result.out, QString());
    QVERIFY2(result.err.startsWith(QStringLiteral("vexconvert: ") + error), qPrintable(result.err));
    QCOMPARE(result.err.count(QLatin1Char('\n')), 1);
    QCOMPARE(everything(), QStringList{QStringLiteral("film.mp4")});
    QVERIFY(!QFile::exists(config() + QStringLiteral("/formatCache.json")));
}

void TestCommandLine::lostOutputIsReported()
{
    QProcess process;
    process.setStandardOutputFile(QStringLiteral("/dev/full"));
    start(process, words("formats"));
    const CommandRun result = CommandRun::of(process);
    QCOMPARE(result.exitCode, 1);
    QCOMPARE(result.err, QStringLiteral("vexconvert: the output couldn't be written\n"));
}

void TestCommandLine::closedStandardStreamsNeverWriteToFiles()
{
    ProcessWithoutStreams process;
    start(process,
          {QStringLiteral("--config"), config(), QStringLiteral("user"), QStringLiteral("add"),
           QStringLiteral("V_MP4_2"), QStringLiteral("--title"), QStringLiteral("Mine")});
    QCOMPARE(CommandRun::of(process).exitCode, 1);
    QVERIFY(run("user list").out.contains(QStringLiteral("Mine")));
    const QDir folder(config());
    const QStringList names = folder.entryList(QDir::Files);
    for (const QString &name : names) {
        QVERIFY2(!contentOf(folder.filePath(name)).contains("added to"), qUtf8Printable(name));
    }
}

void TestCommandLine::aClosedPipeIsNotAnError_data()
{
    QTest::addColumn<QString>("line");
    QTest::addColumn<int>("exitCode");
    QTest::addColumn<QString>("written");
    const QString film = QStringLiteral("film.mp4");
    QTest::newRow("list") << QStringLiteral("presets MP4") << 0 << film;
    QTest::newRow("conversion") << QStringLiteral("convert film.mp4 --preset V_MKV_1") << 0
                                << QStringLiteral("film.mkv|film.mp4");
    QTest::newRow("other mistake")
        << QStringLiteral("convert film.mp4 missing.mp4 --preset V_MKV_1") << 1
        << QStringLiteral("film.mkv|film.mp4");
}

void TestCommandLine::aClosedPipeIsNotAnError()
{
    QFETCH(QString, line);
    QFETCH(int, exitCode);
    QFETCH(QString, written);
    ProcessWithoutReader process;
    start(process,
          QStringList{QStringLiteral("--config"), config()} + line.split(QLatin1Char(' ')));
    const CommandRun result = CommandRun::of(process);
    QCOMPARE(result.exitCode, exitCode);
    QVERIFY2(!result.err.contains(QStringLiteral("the output")), qPrintable(result.err));
    QCOMPARE(result.err.count(QLatin1Char('\n')), exitCode);
    QCOMPARE(everything(), written.split(QLatin1Char('|')));
}

void TestCommandLine::readOnlyCommandsWriteNothing()
{
    for (const char *line : {"formats", "presets MP4", "show V_MP4_1", "recent", "user list",
                             "fit --type audio --format MP3 --target 1"}) {
        QCOMPARE(run(line).exitCode, 0);
    }
    QVERIFY(!QFile::exists(config()));
}

void TestCommandLine::anUnusableConfigFolderIsReported()
{
    QVERIFY(writeFile(config(), "a file"));
    const CommandRun result = run("user add V_MP4_1 --title x");
    QCOMPARE(result.exitCode, 1);
    QCOMPARE(result.err, QStringLiteral("vexconvert: can't write into the configuration folder %1 "
                                        "(Not a directory); name another one\n")
                             .arg(config()));
    QCOMPARE(contentOf(config()), QByteArray("a file"));
    QCOMPARE(run("convert film.mp4 --preset V_MKV_1").exitCode, 0);
}

void TestCommandLine::theDefaultConfigFolderIsThePlatforms()
{
    m_environment.insert(QStringLiteral("XDG_CONFIG_HOME"), path(QStringLiteral("home")));
    QProcess process;
    start(process, words("user add V_MP4_1 --title x"));
    QCOMPARE(CommandRun::of(process).exitCode, 0);
    QVERIFY(QFile::exists(path(QStringLiteral("home/vexconvert/formatCache.json"))));
}

void TestCommandLine::theConfigOptionMayFollowTheSubcommand()
{
    QCOMPARE(run("user add V_MP4_1 --title x").exitCode, 0);
    m_environment.insert(QStringLiteral("XDG_CONFIG_HOME"), path(QStringLiteral("home")));
    QProcess process;
    start(process, words("user list --config") << config());
    QVERIFY(CommandRun::of(process).out.contains(QStringLiteral("1001")));
}

QTEST_GUILESS_MAIN(TestCommandLine)
#include "tst_commandline.moc"
