#include "tests/host/commandline/commandlinetest.h"

#include "tests/support/mediaclips.h"

#include <QDir>
#include <QJsonArray>
#include <QJsonDocument>

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

void CommandLineTest::initTestCase()
{
    QVERIFY(MediaClips::makeFilm(m_clips.filePath(QStringLiteral("film.mp4"))));
    QVERIFY(QDir(m_clips.path()).mkdir(QStringLiteral("catalogue")));
    QVERIFY(writeFile(m_clips.filePath(QStringLiteral("catalogue/1.json")), catalogue));
    QVERIFY(writeFile(m_clips.filePath(QStringLiteral("catalogue/2.json")), audioCatalogue));
}

void CommandLineTest::init()
{
    m_folder.emplace();
    QVERIFY(m_folder->isValid());
    m_environment = QProcessEnvironment::systemEnvironment();
    m_environment.insert(QStringLiteral("VEX_EXPORT_CATALOGUE"),
                         m_clips.filePath(QStringLiteral("catalogue")));
    QVERIFY(QFile::copy(m_clips.filePath(QStringLiteral("film.mp4")),
                        path(QStringLiteral("film.mp4"))));
}

void CommandLineTest::cleanup()
{
    m_folder.reset();
}

QStringList CommandLineTest::everything() const
{
    const QDir folder(m_folder->path());
    return folder.entryList({QStringLiteral(".*")},
                            QDir::Dirs | QDir::Hidden | QDir::NoDotAndDotDot) +
           folder.entryList(QDir::Files | QDir::Hidden, QDir::Name);
}

void CommandLineTest::start(QProcess &process, const QStringList &arguments) const
{
    process.setProcessEnvironment(m_environment);
    process.setWorkingDirectory(m_folder->path());
    process.start(QStringLiteral(VEXCONVERT), arguments);
}

CommandRun CommandLineTest::run(const QStringList &arguments) const
{
    QProcess process;
    start(process, QStringList{QStringLiteral("--config"), config()} + arguments);
    return CommandRun::of(process);
}

QStringList CommandLineTest::recentIds() const
{
    QStringList ids;
    const QJsonArray list = QJsonDocument::fromJson(run("recent --json").out.toUtf8()).array();
    for (const QJsonValue &preset : list) {
        ids << preset[QStringLiteral("id")].toString();
    }
    return ids;
}
