#include "host/presets/folderlock.h"
#include "tests/host/commandrun.h"
#include "tests/host/mediaclips.h"
#include "tests/host/runningprocess.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QProcess>
#include <QTemporaryDir>
#include <QtTest>

#include <csignal>
#include <memory>
#include <optional>

namespace {

const char catalogue[] = R"({
  "category": "Video",
  "groups": [
    {
      "name": "MP4", "icon": "fmt_mp4", "extension": "mp4",
      "videoOptions": {
        "encoderList": ["0", "h264", "mpeg4"], "resolutionList": ["0", "1280x720", "160x90"],
        "frameRateList": [0, 25, 29.97], "bitrateKbpsList": [0, 500, 4000],
        "levelList": [4000, 500, 250]
      },
      "audioOptions": {
        "encoderList": ["0", "aac", "mp3"], "channelList": [0, 1, 2],
        "sampleRateList": [0, 48000], "bitrateKbpsList": [0, 96, 192]
      },
      "audioParam": { "encoder": "aac", "channel": 2, "sampleRate": 48000, "bitrateKbps": 96 },
      "presets": [
        { "id": "V_MP4_1", "title": "Same as source",
          "videoParam": { "encoder": "0", "resolution": "0", "frameRate": 0, "bitrateKbps": 0 },
          "audioParam": { "encoder": "0", "channel": 0, "sampleRate": 0, "bitrateKbps": 0 } },
        { "id": "V_MP4_2", "title": "Tiny",
          "videoParam": { "encoder": "h264", "resolution": "160x90", "frameRate": 25,
                          "bitrateKbps": 500 } }
      ]
    },
    {
      "name": "MKV", "icon": "fmt_mkv", "extension": "mkv",
      "videoOptions": {
        "encoderList": ["mpeg4"], "resolutionList": ["0"], "frameRateList": [0],
        "bitrateKbpsList": [0], "levelList": [0, 0, 0]
      },
      "audioOptions": {
        "encoderList": ["mp3"], "channelList": [0], "sampleRateList": [0], "bitrateKbpsList": [0]
      },
      "videoParam": { "encoder": "mpeg4", "resolution": "0", "frameRate": 0, "bitrateKbps": 0 },
      "audioParam": { "encoder": "mp3", "channel": 0, "sampleRate": 0, "bitrateKbps": 0 },
      "presets": [ { "id": "V_MKV_1", "title": "Plain" } ]
    }
  ]
})";

const char audioCatalogue[] = R"({
  "category": "Audio",
  "groups": [
    {
      "name": "MP3", "icon": "fmt_mp3", "extension": "mp3",
      "audioOptions": {
        "encoderList": ["mp3"], "channelList": [0, 1, 2], "sampleRateList": [0, 44100],
        "bitrateKbpsList": [0, 128, 320]
      },
      "audioParam": { "encoder": "mp3", "channel": 2, "sampleRate": 44100, "bitrateKbps": 320 },
      "presets": [
        { "id": "A_MP3_1", "title": "High" },
        { "id": "A_MP3_2", "title": "Middle", "audioParam": { "bitrateKbps": 128 } }
      ]
    }
  ]
})";

} // namespace

/*! The command itself, run as a user runs it, over a small catalogue of its own. */
class TestCommandLine : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void init();
    void cleanup();

    void helpIsPrinted_data();
    void helpIsPrinted();
    void theVersionIsPrinted();
    void aWrongCallIsExplained_data();
    void aWrongCallIsExplained();

    void formatsAreListedInColumns();
    void outputThatGetsLostIsSaid();
    void closedStreamsSendNoOutputIntoFiles();
    void aReaderThatWantsNoMoreIsNoError_data();
    void aReaderThatWantsNoMoreIsNoError();
    void formatsAreListedByTag();
    void formatsAreFoundByTheirTitle();
    void presetsAreListedInColumns_data();
    void presetsAreListedInColumns();
    void aPresetIsShownWithItsChoices();
    void listsComeAsJson_data();
    void listsComeAsJson();
    void theFittingPresetIsPrinted_data();
    void theFittingPresetIsPrinted();
    void anUnknownFormatIsReplacedAndSaid();

    void aFileIsConverted();
    void aFittingPresetConverts();
    void oneBadFileDoesNotStopTheOthers();
    void resultsOfOneRunAreNotOverwritten();
    void aDryRunOnlyPrintsTheCommand();
    void aNameInUseIsNumberedUnlessOverwriting();
    void interruptingLeavesNothing_data();
    void interruptingLeavesNothing();
    void killedItLeavesNoToolRunning();
    void withoutFfmpegItSaysWhatToInstall();
    void shortOfFileDescriptorsItSaysSo();
    void aPlaylistIsRefused();
    void aDamagedPresetIsRefused_data();
    void aDamagedPresetIsRefused();

    void usedPresetsAreListedLatestFirst();
    void aUsedPresetIsForgotten();
    void aUsersPresetIsMadeChangedAndDeleted();
    void aUsersAudioPresetConverts();
    void aDeletedPresetIsStillUsableFromTheRecentOnes();
    void readingWritesNothing();
    void aDamagedFileIsNeverWrittenOver_data();
    void aDamagedFileIsNeverWrittenOver();
    void theGoodCopyOfADamagedFileIsUsedAndSaid();
    void presetsThatCannotBeUsedAreKeptBeside();
    void aConversionDoesNotWaitForThePresets();
    void aConfigFolderThatCannotBeIsSaid();
    void theUsualConfigFolderIsThePlatforms();
    void theConfigFolderMayFollowTheSubcommand_data();
    void theConfigFolderMayFollowTheSubcommand();

private:
    QString path(const QString &name) const { return m_folder->filePath(name); }
    QString config() const { return path(QStringLiteral("config")); }
    QStringList words(const char *line) const
    {
        return QString::fromUtf8(line).split(QLatin1Char(' '));
    }
    void write(const QString &file, const QByteArray &content) const
    {
        QFile opened(file);
        QVERIFY(opened.open(QIODevice::WriteOnly));
        QCOMPARE(opened.write(content), qint64(content.size()));
    }
    QByteArray contentOf(const QString &file) const
    {
        QFile opened(file);
        return opened.open(QIODevice::ReadOnly) ? opened.readAll() : QByteArray("unreadable");
    }
    /*! The names of all files in the test's folder, and of what is hidden there. */
    QStringList everything() const
    {
        const QDir folder(m_folder->path());
        return folder.entryList({QStringLiteral(".*")},
                                QDir::Dirs | QDir::Hidden | QDir::NoDotAndDotDot) +
               folder.entryList(QDir::Files | QDir::Hidden, QDir::Name);
    }
    void start(QProcess &process, const QStringList &arguments) const
    {
        process.setProcessEnvironment(m_environment);
        process.setWorkingDirectory(m_folder->path());
        process.start(QStringLiteral(VEXCONVERT), arguments);
    }
    CommandRun run(const QStringList &arguments) const
    {
        QProcess process;
        start(process, QStringList{QStringLiteral("--config"), config()} + arguments);
        return CommandRun::of(process);
    }
    CommandRun run(const char *line) const { return run(words(line)); }
    QStringList recentIds() const
    {
        QStringList ids;
        const QJsonArray list = QJsonDocument::fromJson(run("recent --json").out.toUtf8()).array();
        for (const QJsonValue &preset : list) {
            ids << preset[QStringLiteral("id")].toString();
        }
        return ids;
    }

    QProcessEnvironment m_environment;
    std::unique_ptr<QTemporaryDir> m_clips;
    std::optional<QTemporaryDir> m_folder;
};

void TestCommandLine::initTestCase()
{
    m_clips = std::make_unique<QTemporaryDir>();
    QVERIFY(MediaClips::makeFilm(m_clips->filePath(QStringLiteral("film.mp4"))));
    QVERIFY(MediaClips::makeFilm(m_clips->filePath(QStringLiteral("long.mp4")), 20));
    QVERIFY(QDir(m_clips->path()).mkdir(QStringLiteral("catalogue")));
    write(m_clips->filePath(QStringLiteral("catalogue/1.json")), catalogue);
    write(m_clips->filePath(QStringLiteral("catalogue/2.json")), audioCatalogue);
}

void TestCommandLine::init()
{
    m_folder.emplace();
    QVERIFY(m_folder->isValid());
    m_environment = QProcessEnvironment::systemEnvironment();
    m_environment.insert(QStringLiteral("VEX_EXPORT_CATALOGUE"),
                         m_clips->filePath(QStringLiteral("catalogue")));
    QVERIFY(QFile::copy(m_clips->filePath(QStringLiteral("film.mp4")),
                        path(QStringLiteral("film.mp4"))));
}

void TestCommandLine::cleanup()
{
    m_folder.reset();
}

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
    const CommandRun told = run(line.split(QLatin1Char(' ')));
    QCOMPARE(told.exitCode, 0);
    QVERIFY2(told.out.startsWith(start), qPrintable(told.out));
    QVERIFY(told.out.contains(QStringLiteral("--config <DIR>")));
    QCOMPARE(told.err, QString());
}

void TestCommandLine::theVersionIsPrinted()
{
    const CommandRun told = run("--version");
    QCOMPARE(told.exitCode, 0);
    QCOMPARE(told.out, QStringLiteral("vexconvert " VEX_VERSION "\n"));
}

void TestCommandLine::aWrongCallIsExplained_data()
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
    row("search", "name the text to search for");
    row("presets", "name one format");
    row("presets MP4 MKV", "name one format");
    row("presets bogus", "there is no format \"bogus\"; \"vexconvert formats\" lists them, "
                         "\"vexconvert search TEXT\" finds one");
    row("show", "name one preset");
    row("show bogus", "no preset has the id \"bogus\"; \"vexconvert search TEXT\"");
    row("fit --type image --format MP4 --target 1", "--type is \"video\" or \"audio\"");
    row("fit --type video --target 1x1", "--format names a format");
    row("fit --type video --format MP4 --target 720", "--target of a video is a size");
    row("fit --type audio --format MP3 --target 1x1", "--target of audio is a bitrate in kbps");
    row("convert --preset V_MP4_1", "name the files to convert");
    row("convert film.mp4", "choose a preset: either --preset ID or --type, --format and --target");
    row("convert film.mp4 --preset V_MP4_1 --type video", "choose a preset: either");
    row("convert film.mp4 --preset bogus", "no preset has the id \"bogus\"");
    row("convert film.mp4 --type video --format MP4", "--target of a video is a size");
    row("recent bogus", "it is \"vexconvert recent\" or");
    row("recent delete bogus", "\"bogus\" is not among the recently used presets");
    row("user bogus", "it is \"vexconvert user list\", or");
    row("user add", "it is \"vexconvert user list\", or");
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
        "--video-bitrate doesn't apply: preset A_MP3_1 is for audio only");
    row("user change V_MP4_2 --title x",
        "preset V_MP4_2 isn't yours and stays as it is; \"vexconvert user add V_MP4_2");
    row("user delete V_MP4_2", "preset V_MP4_2 isn't yours and stays as it is");
    row("check-catalogue MP4", "\"check-catalogue\" takes no arguments but options");
    row("user delete bogus", "no preset has the id \"bogus\"");
}

void TestCommandLine::aWrongCallIsExplained()
{
    QFETCH(QString, line);
    QFETCH(QString, error);
    const CommandRun told = run(line.split(QLatin1Char(' ')));
    QCOMPARE(told.exitCode, 2);
    QCOMPARE(told.out, QString());
    QVERIFY2(told.err.startsWith(QStringLiteral("vexconvert: ") + error), qPrintable(told.err));
    QCOMPARE(told.err.count(QLatin1Char('\n')), 1);
    QCOMPARE(everything(), QStringList{QStringLiteral("film.mp4")});
    QVERIFY(!QFile::exists(config() + QStringLiteral("/formatCache.json")));
}

void TestCommandLine::formatsAreListedInColumns()
{
    const CommandRun told = run("formats");
    QCOMPARE(told.exitCode, 0);
    QCOMPARE(told.out, QStringLiteral("Format  Tag    Presets\n"
                                      "MP4     video  2\n"
                                      "MKV     video  1\n"
                                      "MP3     audio  2\n"));
    QCOMPARE(told.err, QString());
}

void TestCommandLine::outputThatGetsLostIsSaid()
{
    QProcess process;
    process.setStandardOutputFile(QStringLiteral("/dev/full"));
    start(process, words("formats"));
    const CommandRun told = CommandRun::of(process);
    QCOMPARE(told.exitCode, 1);
    QCOMPARE(told.err, QStringLiteral("vexconvert: the output couldn't be written\n"));
}

void TestCommandLine::closedStreamsSendNoOutputIntoFiles()
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

void TestCommandLine::aReaderThatWantsNoMoreIsNoError_data()
{
    QTest::addColumn<QString>("line");
    QTest::addColumn<int>("exitCode");
    QTest::addColumn<QString>("result");
    const QString film = QStringLiteral("film.mp4");
    QTest::newRow("list") << QStringLiteral("presets MP4") << 0 << film;
    QTest::newRow("conversion") << QStringLiteral("convert film.mp4 --preset V_MKV_1") << 0
                                << QStringLiteral("film.mkv|film.mp4");
    QTest::newRow("other mistake")
        << QStringLiteral("convert film.mp4 missing.mp4 --preset V_MKV_1") << 1
        << QStringLiteral("film.mkv|film.mp4");
}

void TestCommandLine::aReaderThatWantsNoMoreIsNoError()
{
    QFETCH(QString, line);
    QFETCH(int, exitCode);
    QFETCH(QString, result);
    ProcessWithoutReader process;
    start(process,
          QStringList{QStringLiteral("--config"), config()} + line.split(QLatin1Char(' ')));
    const CommandRun told = CommandRun::of(process);
    QCOMPARE(told.exitCode, exitCode);
    QVERIFY2(!told.err.contains(QStringLiteral("the output")), qPrintable(told.err));
    QCOMPARE(told.err.count(QLatin1Char('\n')), exitCode);
    QCOMPARE(everything(), result.split(QLatin1Char('|')));
}

void TestCommandLine::formatsAreListedByTag()
{
    QCOMPARE(run("formats --tag audio").out, QStringLiteral("Format  Tag    Presets\n"
                                                            "MP3     audio  2\n"));
    const CommandRun none = run("formats --tag device");
    QCOMPARE(none.exitCode, 0);
    QCOMPARE(none.out, QStringLiteral("Format  Tag  Presets\n"));
}

void TestCommandLine::formatsAreFoundByTheirTitle()
{
    QCOMPARE(run("search mp").out, QStringLiteral("Format  Tag    Presets\n"
                                                  "MP4     video  2\n"
                                                  "MP3     audio  2\n"));
    const CommandRun none = run("search bogus");
    QCOMPARE(none.exitCode, 0);
    QCOMPARE(none.out, QStringLiteral("No format has \"bogus\" in its title.\n"));
}

void TestCommandLine::presetsAreListedInColumns_data()
{
    QTest::addColumn<QString>("format");
    QTest::addColumn<QString>("table");
    const QString mp4 = QStringLiteral(
        "Id       Title           File  Video   Size    Fps     Video kbps  Audio   Channels  "
        "Hz      Audio kbps\n"
        "V_MP4_1  Same as source  mp4   source  source  source  auto        source  source    "
        "source  auto\n"
        "V_MP4_2  Tiny            mp4   h264    160x90  25      500         aac     2         "
        "48000   96\n");
    QTest::newRow("video") << QStringLiteral("MP4") << mp4;
    QTest::newRow("in whatever case") << QStringLiteral("mp4") << mp4;
    QTest::newRow("audio") << QStringLiteral("MP3")
                           << QStringLiteral(
                                  "Id       Title   File  Audio  Channels  Hz     Audio "
                                  "kbps\n"
                                  "A_MP3_1  High    mp3   mp3    2         44100  320\n"
                                  "A_MP3_2  Middle  mp3   mp3    2         44100  128\n");
}

void TestCommandLine::presetsAreListedInColumns()
{
    QFETCH(QString, format);
    QFETCH(QString, table);
    QCOMPARE(run({QStringLiteral("presets"), format}).out, table);
}

void TestCommandLine::aPresetIsShownWithItsChoices()
{
    QCOMPARE(run("show V_MP4_2").out,
             QStringLiteral("Id       V_MP4_2\n"
                            "Title    Tiny\n"
                            "Format   MP4\n"
                            "Tag      video\n"
                            "File     mp4\n"
                            "Made by  the catalogue\n"
                            "\n"
                            "Setting     Value   Choices\n"
                            "Video       h264    0 (source), h264, mpeg4\n"
                            "Size        160x90  0 (source), 1280x720, 160x90\n"
                            "Fps         25      0 (source), 25, 29.97\n"
                            "Video kbps  500     0 (auto), 500, 4000\n"
                            "Audio       aac     0 (source), aac, mp3\n"
                            "Channels    2       0 (source), 1, 2\n"
                            "Hz          48000   0 (source), 48000\n"
                            "Audio kbps  96      0 (auto), 96, 192\n"));
    QVERIFY(!run("show A_MP3_1").out.contains(QStringLiteral("Video")));
}

void TestCommandLine::listsComeAsJson_data()
{
    QTest::addColumn<QString>("line");
    QTest::addColumn<int>("size");
    QTest::newRow("formats") << QStringLiteral("formats --json") << 3;
    QTest::newRow("search") << QStringLiteral("search bogus --json") << 0;
    QTest::newRow("presets") << QStringLiteral("presets MP4 --json") << 2;
    QTest::newRow("recent") << QStringLiteral("recent --json") << 0;
    QTest::newRow("user") << QStringLiteral("user list --json") << 0;
}

void TestCommandLine::listsComeAsJson()
{
    QFETCH(QString, line);
    QFETCH(int, size);
    const CommandRun told = run(line.split(QLatin1Char(' ')));
    QCOMPARE(told.exitCode, 0);
    const QJsonDocument json = QJsonDocument::fromJson(told.out.toUtf8());
    QVERIFY2(json.isArray(), qPrintable(told.out));
    QCOMPARE(json.array().size(), size);
}

void TestCommandLine::theFittingPresetIsPrinted_data()
{
    QTest::addColumn<QString>("wish");
    QTest::addColumn<QString>("id");
    QTest::newRow("size") << QStringLiteral("--type video --format MP4 --target 320x180")
                          << QStringLiteral("V_MP4_2");
    QTest::newRow("the source's size before all")
        << QStringLiteral("--type video --format MP4 --target 160x90 --prefer-source")
        << QStringLiteral("V_MP4_1");
    QTest::newRow("bitrate") << QStringLiteral("--type audio --format mp3 --target 150")
                             << QStringLiteral("A_MP3_2");
}

void TestCommandLine::theFittingPresetIsPrinted()
{
    QFETCH(QString, wish);
    QFETCH(QString, id);
    const CommandRun told = run(QStringList{QStringLiteral("fit")} + wish.split(QLatin1Char(' ')));
    QCOMPARE(told.exitCode, 0);
    const QJsonObject preset = QJsonDocument::fromJson(told.out.toUtf8()).object();
    QCOMPARE(preset.value(QStringLiteral("id")).toString(), id);
    QCOMPARE(told.err, QString());
}

void TestCommandLine::anUnknownFormatIsReplacedAndSaid()
{
    const CommandRun told = run("fit --type audio --format bogus --target 320");
    QCOMPARE(told.exitCode, 0);
    QVERIFY(told.out.contains(QStringLiteral("A_MP3_1")));
    QCOMPARE(told.err, QStringLiteral("vexconvert: there is no format \"bogus\"; the usual one for "
                                      "audio is taken instead\n"));
}

void TestCommandLine::aFileIsConverted()
{
    const CommandRun told = run("convert film.mp4 --preset V_MKV_1");
    QCOMPARE(told.err, QString());
    QCOMPARE(told.exitCode, 0);
    const QString target = path(QStringLiteral("film.mkv"));
    const MediaFacts facts = MediaClips::factsOf(target);
    QCOMPARE(facts.video()->codec, QStringLiteral("mpeg4"));
    const QStringList lines = told.out.trimmed().split(QLatin1Char('\n'));
    QVERIFY(lines.size() >= 2);
    QCOMPARE(lines.at(lines.size() - 2), QStringLiteral("film.mp4 -> ") + target);
    QCOMPARE(lines.constLast(), QStringLiteral("  ") + facts.summary());
    QVERIFY2(lines.constFirst().startsWith(QStringLiteral("film.mp4: ")),
             qPrintable(lines.constFirst()));
    QVERIFY(!told.out.contains(QLatin1Char('\r')));
}

void TestCommandLine::aFittingPresetConverts()
{
    const CommandRun told = run("convert film.mp4 --type audio --format MP3 --target 320");
    QCOMPARE(told.exitCode, 0);
    QCOMPARE(MediaClips::factsOf(path(QStringLiteral("film.mp3"))).audio()->codec,
             QStringLiteral("mp3"));
    QCOMPARE(recentIds(), QStringList());
}

void TestCommandLine::oneBadFileDoesNotStopTheOthers()
{
    write(path(QStringLiteral("bad.avi")), "no media");
    const CommandRun told = run("convert missing.mp4 bad.avi film.mp4 --preset V_MKV_1");
    QCOMPARE(told.exitCode, 1);
    QVERIFY(
        told.err.startsWith(QStringLiteral("vexconvert: missing.mp4: no such file; check its name\n"
                                           "vexconvert: bad.avi: cannot be read as media (")));
    QCOMPARE(told.err.count(QLatin1Char('\n')), 2);
    QVERIFY(told.out.endsWith(QStringLiteral("1 of 3 files converted\n")));
    QCOMPARE(everything(), words("bad.avi film.mkv film.mp4"));
}

void TestCommandLine::resultsOfOneRunAreNotOverwritten()
{
    QVERIFY(QFile::copy(path(QStringLiteral("film.mp4")), path(QStringLiteral("film.mov"))));
    QCOMPARE(run("convert film.mp4 film.mov --preset V_MKV_1 --overwrite").exitCode, 0);
    QVERIFY(QFile::exists(path(QStringLiteral("film.mkv"))));
    QVERIFY(QFile::exists(path(QStringLiteral("film (2).mkv"))));

    // Nor is a file that is still to be converted.
    QVERIFY(QFile::copy(path(QStringLiteral("film.mp4")), path(QStringLiteral("film.m4v"))));
    const QByteArray before = contentOf(path(QStringLiteral("film.mp4")));
    QCOMPARE(run("convert film.m4v film.mp4 --preset V_MP4_2 --overwrite").exitCode, 0);
    QCOMPARE(contentOf(path(QStringLiteral("film.mp4"))), before);
}

void TestCommandLine::aDryRunOnlyPrintsTheCommand()
{
    QVERIFY(QFile::rename(path(QStringLiteral("film.mp4")), path(QStringLiteral("it's.mp4"))));
    const CommandRun told =
        run({QStringLiteral("convert"), QStringLiteral("it's.mp4"), QStringLiteral("--preset"),
             QStringLiteral("V_MP4_1"), QStringLiteral("--dry-run")});
    QCOMPARE(told.exitCode, 0);
    QCOMPARE(told.out,
             QStringLiteral(
                 "ffmpeg -nostdin -hide_banner -v error -progress pipe:1 -y "
                 "-protocol_whitelist file -format_whitelist "
                 "mov,mp4,m4a,3gp,3g2,mj2 -i 'file:%1/it'\\''s.mp4' -map 0:0 -map 0:1 -c:v:0 copy "
                 "-c:a:0 copy -movflags +faststart -f mp4 'file:%1/it'\\''s "
                 "(2).mp4'\n")
                 .arg(m_folder->path()));
    QCOMPARE(everything(), QStringList{QStringLiteral("it's.mp4")});
    QVERIFY(!QFile::exists(config()));
}

void TestCommandLine::aNameInUseIsNumberedUnlessOverwriting()
{
    write(path(QStringLiteral("film.mkv")), "mine");
    QCOMPARE(run("convert film.mp4 --preset V_MKV_1").exitCode, 0);
    QCOMPARE(contentOf(path(QStringLiteral("film.mkv"))), QByteArray("mine"));
    QVERIFY(QFile::exists(path(QStringLiteral("film (2).mkv"))));
    QCOMPARE(run("convert film.mp4 --preset V_MKV_1 --overwrite").exitCode, 0);
    QVERIFY(contentOf(path(QStringLiteral("film.mkv"))) != QByteArray("mine"));
    QCOMPARE(everything().size(), 3);
}

void TestCommandLine::interruptingLeavesNothing_data()
{
    QTest::addColumn<int>("signalNumber");
    QTest::newRow("Ctrl-C") << SIGINT;
    QTest::newRow("terminate") << SIGTERM;
    QTest::newRow("terminal closed") << SIGHUP;
}

void TestCommandLine::interruptingLeavesNothing()
{
    QFETCH(int, signalNumber);
    const QTemporaryDir tools;
    QVERIFY(QFile::copy(m_clips->filePath(QStringLiteral("long.mp4")),
                        path(QStringLiteral("long.mp4"))));
    const QByteArray before = contentOf(path(QStringLiteral("long.mp4")));
    QVERIFY(MediaClips::makeStandIn(tools.path(), QStringLiteral("exec $REAL -re \"$@\"")));
    m_environment.insert(QStringLiteral("PATH"),
                         QString::fromLocal8Bit(MediaClips::pathWith(tools.path())));

    GroupProcess process;
    start(process, QStringList{QStringLiteral("--config"), config()} +
                       words("convert long.mp4 film.mp4 --preset V_MKV_1"));
    QByteArray told;
    while (!told.contains("long.mp4: ") && process.waitForReadyRead(CommandRun::patience)) {
        told += process.readAllStandardOutput();
    }
    QCOMPARE(everything().size(), 3);
    QCOMPARE(::kill(-pid_t(process.processId()), signalNumber), 0);
    const CommandRun ended = CommandRun::of(process);
    QCOMPARE(ended.exitCode, 1);
    QCOMPARE(ended.err, QStringLiteral("vexconvert: long.mp4: stopped; nothing was written\n"));
    QCOMPARE(ended.out, QStringLiteral("0 of 2 files converted\n"));
    QCOMPARE(everything(), words("film.mp4 long.mp4"));
    QCOMPARE(contentOf(path(QStringLiteral("long.mp4"))), before);
}

void TestCommandLine::killedItLeavesNoToolRunning()
{
    const QTemporaryDir tools;
    QVERIFY(QFile::copy(m_clips->filePath(QStringLiteral("long.mp4")),
                        path(QStringLiteral("long.mp4"))));
    // A helper that the tool starts outlives it, unless somebody ends it.
    QVERIFY(MediaClips::makeStandIn(tools.path(),
                                    QStringLiteral("sleep 1000 & echo $! > \"${0%/*}/helper\"\n"
                                                   "exec $REAL -re \"$@\"")));
    m_environment.insert(QStringLiteral("PATH"),
                         QString::fromLocal8Bit(MediaClips::pathWith(tools.path())));
    QProcess process;
    start(process, QStringList{QStringLiteral("--config"), config()} +
                       words("convert long.mp4 --preset V_MKV_1"));
    QByteArray told;
    while (!told.contains("long.mp4: ") && process.waitForReadyRead(CommandRun::patience)) {
        told += process.readAllStandardOutput();
    }
    const qint64 helper =
        contentOf(tools.filePath(QStringLiteral("helper"))).trimmed().toLongLong();
    QVERIFY(isRunning(helper));
    process.kill();
    QVERIFY(process.waitForFinished(CommandRun::patience));
    QTRY_VERIFY_WITH_TIMEOUT(!isRunning(helper), CommandRun::patience);
}

void TestCommandLine::withoutFfmpegItSaysWhatToInstall()
{
    m_environment.insert(QStringLiteral("PATH"), m_folder->path());
    const CommandRun told = run("convert film.mp4 --preset V_MKV_1");
    QCOMPARE(told.exitCode, 1);
    QCOMPARE(told.err, QStringLiteral("vexconvert: film.mp4: ffprobe is not on the PATH; install "
                                      "ffmpeg (Debian: apt-get install ffmpeg) and try again\n"));
    QCOMPARE(run("formats").exitCode, 0);
}

void TestCommandLine::shortOfFileDescriptorsItSaysSo()
{
    const QString reason = QStringLiteral("vexconvert: film.mp4: ffprobe couldn't be started (");
    bool isSaid = false;
    for (int limit = 6; limit <= 18; ++limit) {
        QProcess process;
        process.setProcessEnvironment(m_environment);
        process.setWorkingDirectory(m_folder->path());
        process.start(
            QStringLiteral("/bin/sh"),
            {QStringLiteral("-c"), QStringLiteral("ulimit -n %1; exec \"$0\" \"$@\"").arg(limit),
             QStringLiteral(VEXCONVERT), QStringLiteral("--config"), config(),
             QStringLiteral("convert"), QStringLiteral("film.mp4"), QStringLiteral("--preset"),
             QStringLiteral("V_MKV_1"), QStringLiteral("--dry-run")});
        const CommandRun told = CommandRun::of(process);
        QVERIFY2(!told.err.contains(QStringLiteral("PATH")), qPrintable(told.err));
        QVERIFY2(told.err.count(QStringLiteral("film.mp4: ")) <= 1, qPrintable(told.err));
        isSaid = isSaid || (told.exitCode == 1 && told.err.contains(reason));
    }
    QVERIFY(isSaid);
}

void TestCommandLine::aPlaylistIsRefused()
{
    write(path(QStringLiteral("holiday.mp4")), "#EXTM3U\n#EXT-X-TARGETDURATION:1\n#EXTINF:1,\n"
                                               "film.mp4\n#EXT-X-ENDLIST\n");
    const CommandRun told = run("convert holiday.mp4 --preset V_MKV_1");
    QCOMPARE(told.exitCode, 1);
    QCOMPARE(told.err, QStringLiteral("vexconvert: holiday.mp4: is a playlist; choose the files "
                                      "that it lists\n"));
    QCOMPARE(everything(), words("film.mp4 holiday.mp4"));
}

void TestCommandLine::aDamagedPresetIsRefused_data()
{
    QTest::addColumn<QByteArray>("good");
    QTest::addColumn<QByteArray>("bad");
    QTest::newRow("extension") << QByteArray("\"mkv\"") << '"' + QByteArray(300, 'x') + '"';
    QTest::newRow("path") << QByteArray("\"mkv\"") << QByteArray("\"../mkv\"");
    QTest::newRow("encoder") << QByteArray("\"mpeg4\"") << QByteArray("\"mpeg4 -y\"");
}

void TestCommandLine::aDamagedPresetIsRefused()
{
    QFETCH(QByteArray, good);
    QFETCH(QByteArray, bad);
    QCOMPARE(run({QStringLiteral("user"), QStringLiteral("add"), QStringLiteral("V_MKV_1"),
                  QStringLiteral("--title"), QStringLiteral("Mine")})
                 .exitCode,
             0);
    const QString file = config() + QStringLiteral("/formatCache.json");
    QByteArray presets = contentOf(file);
    QVERIFY2(presets.contains(good), presets.constData());
    write(file, presets.replace(good, bad));
    const QString id =
        run("user list").out.section(QLatin1Char('\n'), 1).section(QLatin1Char(' '), 0, 0);
    const CommandRun told = run(
        {QStringLiteral("convert"), QStringLiteral("film.mp4"), QStringLiteral("--preset"), id});
    QCOMPARE(told.exitCode, 1);
    QVERIFY2(told.err.endsWith(QStringLiteral("; choose another preset\n")), qPrintable(told.err));
    QCOMPARE(told.err.count(QLatin1Char('\n')), 1);
    QCOMPARE(everything(), words("film.mp4"));
}

void TestCommandLine::usedPresetsAreListedLatestFirst()
{
    QCOMPARE(run("recent").out, QStringLiteral("No preset was used yet.\n"));
    for (const char *line :
         {"convert missing.mp4 --preset V_MKV_1", "convert missing.mp4 --preset A_MP3_1",
          "convert missing.mp4 --preset V_MP4_2", "convert missing.mp4 --preset V_MKV_1"}) {
        QCOMPARE(run(line).exitCode, 1);
    }
    QCOMPARE(run("recent").out,
             QStringLiteral("Id       Title  File  Video  Size    Fps     Video kbps  Audio  "
                            "Channels  Hz      Audio kbps\n"
                            "V_MKV_1  Plain  mkv   mpeg4  source  source  auto        mp3    "
                            "source    source  auto\n"
                            "V_MP4_2  Tiny   mp4   h264   160x90  25      500         aac    2     "
                            "    48000   96\n"
                            "A_MP3_1  High   mp3   -      -       -       -           mp3    2     "
                            "    44100   320\n"));
}

void TestCommandLine::aUsedPresetIsForgotten()
{
    run("convert missing.mp4 --preset V_MKV_1");
    run("convert missing.mp4 --preset A_MP3_1");
    const CommandRun told = run("recent delete V_MKV_1");
    QCOMPARE(told.exitCode, 0);
    QCOMPARE(told.out, QStringLiteral("V_MKV_1 is no longer listed as recently used\n"));
    QCOMPARE(recentIds(), QStringList{QStringLiteral("A_MP3_1")});
}

void TestCommandLine::aUsersPresetIsMadeChangedAndDeleted()
{
    QVERIFY(run("user list").out.startsWith(QStringLiteral("You have made no preset yet; ")));
    const CommandRun added =
        run({QStringLiteral("user"), QStringLiteral("add"), QStringLiteral("V_MP4_2"),
             QStringLiteral("--title"), QStringLiteral("My own"), QStringLiteral("--video-encoder"),
             QStringLiteral("mpeg4"), QStringLiteral("--frame-rate"), QStringLiteral("29.97"),
             QStringLiteral("--audio-bitrate"), QStringLiteral("192")});
    QCOMPARE(added.err, QString());
    QCOMPARE(added.out, QStringLiteral("1001 added to MP4\n"));
    QCOMPARE(run("user list").out,
             QStringLiteral("Id    Title   File  Video  Size    Fps    Video kbps  Audio  Channels "
                            " Hz     Audio kbps\n"
                            "1001  My own  mp4   mpeg4  160x90  29.97  500         aac    2        "
                            " 48000  192\n"));
    QVERIFY(run("presets MP4").out.contains(QStringLiteral("\n1001     My own")));
    QVERIFY(run("show 1001").out.contains(QStringLiteral("Made by  you")));
    QCOMPARE(run("convert film.mp4 --preset 1001").exitCode, 0);
    const MediaFacts facts = MediaClips::factsOf(path(QStringLiteral("film (2).mp4")));
    QCOMPARE(facts.video()->codec, QStringLiteral("mpeg4"));
    QCOMPARE(facts.video()->frameRate.toText(), QStringLiteral("30000/1001"));
    QCOMPARE(facts.video()->displaySize(), QSize(120, 90));

    const CommandRun changed = run("user change 1001 --video-bitrate 4000 --title New");
    QCOMPARE(changed.out, QStringLiteral("1001 changed\n"));
    const QString list = run("user list").out;
    QVERIFY2(
        list.contains(QStringLiteral("1001  New    mp4   mpeg4  160x90  29.97  4000        aac")),
        qPrintable(list));

    QCOMPARE(run("user delete 1001").out, QStringLiteral("1001 deleted\n"));
    QCOMPARE(recentIds(), QStringList());
    QCOMPARE(run("show 1001").exitCode, 2);
}

void TestCommandLine::aUsersAudioPresetConverts()
{
    QCOMPARE(run("user add A_MP3_1 --title Low --audio-bitrate 128 --channel 1").exitCode, 0);
    QCOMPARE(run("convert film.mp4 --preset 1001").exitCode, 0);
    const MediaFacts facts = MediaClips::factsOf(path(QStringLiteral("film.mp3")));
    QVERIFY(facts.videoTracks.isEmpty());
    QCOMPARE(facts.audio()->channels, 1);
}

void TestCommandLine::aDeletedPresetIsStillUsableFromTheRecentOnes()
{
    // A preset of a catalogue that is no longer served lives on among the recently used ones.
    QCOMPARE(run("convert film.mp4 --preset V_MKV_1").exitCode, 0);
    QCOMPARE(run("convert missing.mp4 --preset A_MP3_1").exitCode, 1);
    m_environment.insert(QStringLiteral("VEX_EXPORT_CATALOGUE"),
                         m_clips->filePath(QStringLiteral("catalogue/2.json")));
    QVERIFY(run("show V_MKV_1").out.contains(QStringLiteral("only among the recently used")));
    QCOMPARE(run("convert film.mp4 --preset V_MKV_1").exitCode, 0);
    QVERIFY(QFile::exists(path(QStringLiteral("film (2).mkv"))));
    QCOMPARE(recentIds(), words("V_MKV_1 A_MP3_1"));
    const CommandRun refused = run("user add V_MKV_1 --title x");
    QCOMPARE(refused.exitCode, 2);
    QVERIFY(refused.err.contains(QStringLiteral("is only among the recently used ones")));
}

void TestCommandLine::readingWritesNothing()
{
    for (const char *line : {"formats", "presets MP4", "show V_MP4_1", "recent", "user list",
                             "fit --type audio --format MP3 --target 1"}) {
        QCOMPARE(run(line).exitCode, 0);
    }
    QVERIFY(!QFile::exists(config()));
}

void TestCommandLine::aDamagedFileIsNeverWrittenOver_data()
{
    QTest::addColumn<QString>("file");
    QTest::addColumn<QByteArray>("content");
    for (const char *file : {"recently.json", "formatCache.json"}) {
        QTest::addRow("%s, cut off", file) << QString::fromLatin1(file) << QByteArray("[{\"id\": ");
        QTest::addRow("%s, no list", file) << QString::fromLatin1(file) << QByteArray("{}");
    }
}

void TestCommandLine::aDamagedFileIsNeverWrittenOver()
{
    QFETCH(QString, file);
    QFETCH(QByteArray, content);
    QVERIFY(QDir().mkpath(config()));
    const QString damaged = config() + QLatin1Char('/') + file;
    write(damaged, content);
    const QString complaint = QStringLiteral("%1 is damaged and there is no good copy of it; fix "
                                             "it, or move it away to start anew\n")
                                  .arg(damaged);

    for (const char *line : {"user add V_MP4_1 --title x", "user list --json", "recent --json"}) {
        const CommandRun refused = run(line);
        QCOMPARE(refused.exitCode, 1);
        QCOMPARE(refused.out, QString());
        QCOMPARE(refused.err, QStringLiteral("vexconvert: ") + complaint);
    }
    const CommandRun formats = run("formats");
    QCOMPARE(formats.exitCode, 0);
    QCOMPARE(formats.err, QStringLiteral("vexconvert: ") + complaint);
    // A conversion needs no file of the user's.
    const CommandRun convert = run("convert film.mp4 --preset V_MKV_1");
    QCOMPARE(convert.exitCode, 0);
    QCOMPARE(convert.err,
             QStringLiteral("vexconvert: the preset isn't noted as recently used: ") + complaint);

    QCOMPARE(contentOf(damaged), content);
    QCOMPARE(QDir(config()).entryList({QStringLiteral("*.json*")}, QDir::Files), QStringList{file});
}

void TestCommandLine::theGoodCopyOfADamagedFileIsUsedAndSaid()
{
    QCOMPARE(run("user add V_MP4_1 --title x").exitCode, 0);
    const QString file = config() + QStringLiteral("/formatCache.json");
    write(file, {});
    const CommandRun list = run("user list");
    QCOMPARE(list.exitCode, 0);
    QCOMPARE(list.err, QStringLiteral("vexconvert: %1 was empty; its last good copy, "
                                      "formatCache.json.bak, is in its place\n")
                           .arg(file));
    QVERIFY(list.out.contains(QStringLiteral("\n1001  x")));
    QCOMPARE(run("user list").err, QString());
}

void TestCommandLine::presetsThatCannotBeUsedAreKeptBeside()
{
    QVERIFY(QDir().mkpath(config()));
    const QString file = config() + QStringLiteral("/formatCache.json");
    write(file, "[{\"title\": \"MP4\", \"group\": [{\"id\": \"unusable\"}]}]");
    const CommandRun add = run("user add V_MP4_1 --title x");
    QCOMPARE(add.exitCode, 0);
    QCOMPARE(add.err, QStringLiteral("vexconvert: %1 holds presets without settings "
                                     "(\"outPutNode\"), which can't be used; they are kept in "
                                     "formatCache.json.unusable\n")
                          .arg(file));
    QVERIFY(contentOf(file).contains("1001"));
    QVERIFY(contentOf(file + QStringLiteral(".unusable")).contains("\"unusable\""));
    QCOMPARE(run("user delete 1001").err, QString());
}

void TestCommandLine::aConversionDoesNotWaitForThePresets()
{
    FolderLock lock;
    QVERIFY(lock.lock(config(), 0));
    const QString holder = QStringLiteral("tst_commandline (process %1 on %2)")
                               .arg(QCoreApplication::applicationPid())
                               .arg(QSysInfo::machineHostName());
    const CommandRun convert = run("convert film.mp4 --preset V_MKV_1");
    QCOMPARE(convert.exitCode, 0);
    QCOMPARE(convert.err,
             QStringLiteral("vexconvert: the preset isn't noted as recently used: %1 is using the "
                            "presets in %2; close it, or try again when it is done\n")
                 .arg(holder, config()));
    QVERIFY(QFile::exists(path(QStringLiteral("film.mkv"))));
    QCOMPARE(run("user list").err, QString());
}

void TestCommandLine::aConfigFolderThatCannotBeIsSaid()
{
    write(config(), "a file");
    const CommandRun told = run("user add V_MP4_1 --title x");
    QCOMPARE(told.exitCode, 1);
    QCOMPARE(told.err, QStringLiteral("vexconvert: can't write into the configuration folder %1 "
                                      "(Not a directory); name another one\n")
                           .arg(config()));
    QCOMPARE(contentOf(config()), QByteArray("a file"));
    QCOMPARE(run("convert film.mp4 --preset V_MKV_1").exitCode, 0);
}

void TestCommandLine::theUsualConfigFolderIsThePlatforms()
{
    m_environment.insert(QStringLiteral("XDG_CONFIG_HOME"), path(QStringLiteral("home")));
    QProcess process;
    start(process, words("user add V_MP4_1 --title x"));
    QCOMPARE(CommandRun::of(process).exitCode, 0);
    QVERIFY(QFile::exists(path(QStringLiteral("home/vexconvert/formatCache.json"))));

    // Also behind the subcommand.
    QProcess after;
    start(after, words("user list --config") << path(QStringLiteral("home/vexconvert")));
    QVERIFY(CommandRun::of(after).out.contains(QStringLiteral("1001")));
}

void TestCommandLine::theConfigFolderMayFollowTheSubcommand_data()
{
    QTest::addColumn<QString>("line");
    QTest::newRow("alone") << QStringLiteral("user --config %1 add V_MP4_2 --title Mine");
    QTest::newRow("in the place of another one")
        << QStringLiteral("--config %2 user add V_MP4_2 --title Mine --config %1");
}

void TestCommandLine::theConfigFolderMayFollowTheSubcommand()
{
    QFETCH(QString, line);
    const QString other = path(QStringLiteral("other"));
    QProcess process;
    start(process, line.replace(QStringLiteral("%1"), config())
                       .replace(QStringLiteral("%2"), other)
                       .split(QLatin1Char(' ')));
    QCOMPARE(CommandRun::of(process).exitCode, 0);
    QVERIFY(QFile::exists(config() + QStringLiteral("/formatCache.json")));
    QVERIFY(!QFile::exists(other));
}

QTEST_GUILESS_MAIN(TestCommandLine)
#include "tst_commandline.moc"
