#include "tests/support/commandrun.h"
#include "tests/support/mediaclips.h"
#include "tests/support/testfiles.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QTemporaryDir>
#include <QtTest>

#include <csignal>
#include <optional>

namespace {

const char catalogue[] = R"({
  "category": "Video",
  "groups": [
    {
      "name": "AVI", "icon": "fmt_avi", "extension": "avi",
      "videoOptions": {
        "encoderList": ["0", "mpeg4"], "resolutionList": ["0", "160x90"],
        "frameRateList": [0, 25], "bitrateKbpsList": [0, 300, 400, 500], "levelList": [500, 400, 300]
      },
      "videoParam": { "encoder": "mpeg4", "resolution": "160x90", "frameRate": 25,
                      "bitrateKbps": 0 },
      "audioOptions": {
        "encoderList": ["mp3"], "channelList": [0, 1, 2], "sampleRateList": [0, 48000],
        "bitrateKbpsList": [0, 96]
      },
      "audioParam": { "encoder": "mp3", "channel": 1, "sampleRate": 48000, "bitrateKbps": 96 },
      "presets": [
        { "id": "Video_AVI_001", "title": "First" },
        { "id": "Video_AVI_002", "title": "Second" }
      ]
    },
    {
      "name": "AMR", "icon": "fmt_amr", "extension": "amr",
      "audioOptions": {
        "encoderList": ["amr_nb"], "channelList": [1], "sampleRateList": [8000],
        "bitrateKbpsList": [0]
      },
      "audioParam": { "encoder": "amr_nb", "channel": 1, "sampleRate": 8000, "bitrateKbps": 0 },
      "presets": [ { "id": "Video_AMR_001", "title": "Voice" } ]
    }
  ]
})";

} // namespace

/*! The subcommand "check-catalogue", run over a small catalogue of its own. */
class TestCheckCommand : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();

    void everyPresetIsConverted();
    void presetsWithEqualSettingsShareAConversion();
    void quickChecksTheLastPresetOfEachFormat();
    void failuresAreNamedWithTheirReasons_data();
    void failuresAreNamedWithTheirReasons();
    void aResultThatCannotBeMeasuredFails();
    void aHiddenFormatFails();
    void mistakesAreNamedAndTheRestIsConverted();
    void withoutAValidPresetNothingIsConverted();
    void theReportCanBePrintedAsJson();
    void interruptingLeavesNothing();
    void theNextCheckRemovesWhatAKilledOneLeft();
    void withoutFfmpegItSaysWhatToInstall();

private:
    QString path(const QString &name) const { return m_folder->filePath(name); }
    void writeCatalogue(const QByteArray &json) const
    {
        QVERIFY(writeFile(path(QStringLiteral("own.json")), json));
    }
    /*! The catalogue with one text in it exchanged. */
    void writeCatalogue(const QByteArray &before, const QByteArray &after) const
    {
        QByteArray json = catalogue;
        QVERIFY(json.contains(before));
        writeCatalogue(json.replace(before, after));
    }
    /*! The catalogue has a preset for an encoder that this ffmpeg never has. */
    void putInPlaceOfFfmpeg(const QString &script) const
    {
        QVERIFY(
            MediaClips::makeStandIn(m_folder->path(), script, QStringLiteral("libopencore_amrnb")));
    }
    void start(QProcess &process, const QStringList &options) const
    {
        process.setProcessEnvironment(m_environment);
        process.start(QStringLiteral(VEXCONVERT),
                      QStringList{QStringLiteral("check-catalogue")} + options);
    }
    CommandRun run(const QStringList &options = {}) const
    {
        QProcess process;
        start(process, options);
        return CommandRun::of(process);
    }
    void startEndless(QProcess &process) const;
    QStringList temporaryFiles() const
    {
        return QDir(path(QStringLiteral("tmp")))
            .entryList(QDir::AllEntries | QDir::Hidden | QDir::NoDotAndDotDot);
    }

    QProcessEnvironment m_environment;
    std::optional<QTemporaryDir> m_folder;
};

void TestCheckCommand::init()
{
    m_folder.emplace();
    QVERIFY(QDir(m_folder->path()).mkdir(QStringLiteral("tmp")));
    m_environment = QProcessEnvironment::systemEnvironment();
    m_environment.insert(QStringLiteral("TMPDIR"), path(QStringLiteral("tmp")));
    m_environment.insert(QStringLiteral("VEX_EXPORT_CATALOGUE"), path(QStringLiteral("own.json")));
    m_environment.insert(QStringLiteral("PATH"),
                         QString::fromLocal8Bit(MediaClips::pathWith(m_folder->path())));
    writeCatalogue(catalogue);
    putInPlaceOfFfmpeg(QStringLiteral("exec $REAL \"$@\""));
}

void TestCheckCommand::cleanup()
{
    QCOMPARE(temporaryFiles(), QStringList());
    m_folder.reset();
}

void TestCheckCommand::everyPresetIsConverted()
{
    const CommandRun result = run();
    QCOMPARE(result.out,
             QStringLiteral(
                 "No mistakes in the catalogue's files.\n"
                 "\n"
                 "Format  Tag    Presets  Converted  Encoder missing  Failed\n"
                 "AVI     video  2        2          0                0\n"
                 "AMR     video  1        0          1                0\n"
                 "\n"
                 "Video_AMR_001  needs the encoder libopencore_amrnb for amr_nb, which this ffmpeg "
                 "lacks; choose a preset with another encoder or install an ffmpeg that has it\n"
                 "\n"
                 "2 of 3 presets convert as expected, 1 need an encoder that this ffmpeg lacks, 0 "
                 "failed.\n"));
    QCOMPARE(result.err, QString());
    QCOMPARE(result.exitCode, 0);
}

void TestCheckCommand::presetsWithEqualSettingsShareAConversion()
{
    const QString conversions = path(QStringLiteral("conversions"));
    putInPlaceOfFfmpeg(QStringLiteral("case \"$*\" in *libmp3lame*) echo x >> %1;; esac\n"
                                      "exec $REAL \"$@\"")
                           .arg(conversions));
    const auto conversionsOf = [this, &conversions](const QByteArray &ofSecond) {
        QFile::remove(conversions);
        writeCatalogue(R"("title": "Second" })", R"("title": "Second")" + ofSecond + " }");
        run();
        QFile file(conversions);
        return file.open(QIODevice::ReadOnly) ? file.readAll().count('x') : 0;
    };
    QCOMPARE(conversionsOf(""), 1);
    QCOMPARE(conversionsOf(R"(, "audioParam": { "channel": 2 })"), 2);
}

void TestCheckCommand::quickChecksTheLastPresetOfEachFormat()
{
    const QJsonObject json =
        QJsonDocument::fromJson(
            run({QStringLiteral("--quick"), QStringLiteral("--json")}).out.toUtf8())
            .object();
    QStringList ids;
    for (const QJsonValue &preset : json[QStringLiteral("presets")].toArray()) {
        ids << preset[QStringLiteral("id")].toString();
    }
    QCOMPARE(ids, QStringList({QStringLiteral("Video_AVI_002"), QStringLiteral("Video_AMR_001")}));
}

void TestCheckCommand::failuresAreNamedWithTheirReasons_data()
{
    QTest::addColumn<QString>("script");
    QTest::addColumn<QString>("reason");
    QTest::newRow("ffmpeg can't")
        << QStringLiteral("case \"$*\" in *mpeg4*) echo 'no luck' >&2; exit 1;; esac\n"
                          "exec $REAL \"$@\"")
        << QStringLiteral("ffmpeg couldn't convert it (no luck); check the file or try another "
                          "preset");
    QTest::newRow("the result isn't as asked")
        << QStringLiteral(
               "for word; do shift\n"
               "  case $word in *scale=160:90*) word=scale=64:36;; 48000) word=44100;; esac\n"
               "  set -- \"$@\" \"$word\"\n"
               "done\n"
               "exec $REAL \"$@\"")
        << QStringLiteral("64x36 isn't scaled to fit 160x90; 44100 Hz, not 48000");
}

void TestCheckCommand::failuresAreNamedWithTheirReasons()
{
    QFETCH(QString, script);
    QFETCH(QString, reason);
    putInPlaceOfFfmpeg(script);
    const CommandRun result = run({QStringLiteral("--quick")});
    QCOMPARE(result.exitCode, 1);
    QVERIFY2(result.out.contains(QStringLiteral("\nAVI     video  1        0          0            "
                                                "    1\n")),
             qPrintable(result.out));
    QVERIFY2(result.out.contains(QStringLiteral("\nVideo_AVI_002  %1\n").arg(reason)),
             qPrintable(result.out));
    QVERIFY(result.out.endsWith(QStringLiteral(
        "\n0 of 2 presets convert as expected, 1 need an encoder that this ffmpeg lacks, 1 "
        "failed.\n")));
}

void TestCheckCommand::aResultThatCannotBeMeasuredFails()
{
    QVERIFY(MediaClips::makeStandIn(
        m_folder->path(),
        QStringLiteral("case \"$*\" in *packet*) echo 'no luck' >&2; exit 1;; esac\n"
                       "exec $REAL \"$@\""),
        QStringLiteral("nothing"), QStringLiteral("ffprobe")));
    const CommandRun result = run({QStringLiteral("--quick")});
    QCOMPARE(result.exitCode, 1);
    QVERIFY2(result.out.contains(QStringLiteral("\nVideo_AVI_002  no luck\n")),
             qPrintable(result.out));
}

void TestCheckCommand::aHiddenFormatFails()
{
    writeCatalogue(R"("name": "AMR")", R"("name": "优酷")");
    const CommandRun result = run({QStringLiteral("--quick")});
    QCOMPARE(result.exitCode, 1);
    QVERIFY2(result.out.contains(QStringLiteral(
                 "\nVideo_AMR_001  the library has no such preset in this format\n")),
             qPrintable(result.out));
}

void TestCheckCommand::mistakesAreNamedAndTheRestIsConverted()
{
    writeCatalogue(R"("title": "First" })",
                   R"("title": "First", "videoParam": { "frameRate": "25" } })");
    const CommandRun wrongType = run();
    const QString file = path(QStringLiteral("own.json"));
    QVERIFY2(wrongType.out.startsWith(
                 file + QStringLiteral(": groups[0].presets[0].videoParam.frameRate: must be a "
                                       "number but is a string; left out\n"
                                       "Mistakes in the catalogue's files: 1\n")),
             qPrintable(wrongType.out));
    QVERIFY(wrongType.out.contains(QStringLiteral("\n1 of 2 presets convert as expected")));
    QCOMPARE(wrongType.exitCode, 1);

    writeCatalogue(R"("channel": 1, "sampleRate": 48000)", R"("channel": 6, "sampleRate": 48000)");
    const CommandRun notOffered = run({QStringLiteral("--quick")});
    QVERIFY2(notOffered.out.startsWith(
                 file + QStringLiteral(": groups[0].audioParam.channel: 6 is not one of the values "
                                       "that audioOptions.channelList offers\n"
                                       "Mistakes in the catalogue's files: 1\n")),
             qPrintable(notOffered.out));
    QVERIFY2(notOffered.out.contains(QStringLiteral("\n1 of 2 presets convert as expected")),
             qPrintable(notOffered.out));
    QCOMPARE(notOffered.exitCode, 1);
}

void TestCheckCommand::withoutAValidPresetNothingIsConverted()
{
    writeCatalogue("{ \"category\": \"Video\" ");
    const CommandRun result = run();
    QCOMPARE(result.out,
             path(QStringLiteral("own.json")) +
                 QStringLiteral(":1:22: expected a comma, a closing brace or a key in double "
                                "quotes; left out\n"
                                "Mistakes in the catalogue's files: 1\n"));
    QCOMPARE(result.exitCode, 1);
}

void TestCheckCommand::theReportCanBePrintedAsJson()
{
    writeCatalogue(R"("fmt_amr")", R"("fmt_none")");
    const CommandRun result = run({QStringLiteral("--quick"), QStringLiteral("--json")});
    QCOMPARE(result.exitCode, 1);
    const QJsonObject json = QJsonDocument::fromJson(result.out.toUtf8()).object();
    QCOMPARE(json[QStringLiteral("mistakes")].toArray(),
             QJsonArray({QJsonObject{
                 {QStringLiteral("file"), path(QStringLiteral("own.json"))},
                 {QStringLiteral("position"), QString()},
                 {QStringLiteral("path"), QStringLiteral("groups[1].icon")},
                 {QStringLiteral("reason"),
                  QStringLiteral("there is no icon \"fmt_none\" in formats/qml/image")},
                 {QStringLiteral("leftOut"), false}}}));
    const QJsonArray presets = json[QStringLiteral("presets")].toArray();
    QCOMPARE(presets.size(), 2);
    QCOMPARE(presets.at(0).toObject(),
             (QJsonObject{{QStringLiteral("format"), QStringLiteral("AVI")},
                          {QStringLiteral("tag"), QStringLiteral("video")},
                          {QStringLiteral("id"), QStringLiteral("Video_AVI_002")},
                          {QStringLiteral("result"), QStringLiteral("converted")},
                          {QStringLiteral("reason"), QString()}}));
    QCOMPARE(presets.at(1)[QStringLiteral("result")].toString(), QStringLiteral("encoder missing"));
}

/*! Starts a check that stays in the middle of a conversion. */
void TestCheckCommand::startEndless(QProcess &process) const
{
    putInPlaceOfFfmpeg(
        QStringLiteral("case \"$*\" in *mpeg4*) touch \"$0.runs\"; exec sleep 60;; esac\n"
                       "exec $REAL \"$@\""));
    start(process, {});
    QTRY_VERIFY_WITH_TIMEOUT(QFile::exists(path(QStringLiteral("ffmpeg.runs"))), patience);
    QVERIFY(!temporaryFiles().isEmpty());
}

void TestCheckCommand::theNextCheckRemovesWhatAKilledOneLeft()
{
    QProcess process;
    startEndless(process);
    process.kill();
    QVERIFY(process.waitForFinished());
    QVERIFY(!temporaryFiles().isEmpty());
    putInPlaceOfFfmpeg(QStringLiteral("exec $REAL \"$@\""));
    QCOMPARE(run({QStringLiteral("--quick")}).exitCode, 0);
}

void TestCheckCommand::interruptingLeavesNothing()
{
    GroupProcess process;
    startEndless(process);
    QCOMPARE(::kill(-pid_t(process.processId()), SIGINT), 0);
    const CommandRun ended = CommandRun::of(process);
    QCOMPARE(ended.exitCode, 1);
    QCOMPARE(ended.err, QStringLiteral("vexconvert: interrupted\n"));
}

void TestCheckCommand::withoutFfmpegItSaysWhatToInstall()
{
    m_environment.insert(QStringLiteral("PATH"), path(QStringLiteral("tmp")));
    const CommandRun result = run();
    QCOMPARE(result.exitCode, 1);
    QCOMPARE(
        result.err,
        QStringLiteral("vexconvert: couldn't make a clip to convert: ffmpeg is not on the PATH; "
                       "install ffmpeg (Debian: apt-get install ffmpeg) and try "
                       "again\n"));
    const QJsonObject json =
        QJsonDocument::fromJson(run({QStringLiteral("--json")}).out.toUtf8()).object();
    QVERIFY(json[QStringLiteral("error")].toString().startsWith(
        QStringLiteral("couldn't make a clip to convert: ffmpeg is not on the PATH")));
}

QTEST_GUILESS_MAIN(TestCheckCommand)
#include "tst_checkcommand.moc"
