#include "host/check/cataloguelint.h"
#include "host/convert/outputsettings.h"
#include "utility/cataloguesettings.h"

#include <QtTest>

namespace {

// One format with one preset, without a mistake.
const QByteArray right = R"({
  "category": "Video",
  "lists": { "rates": [0, 25, 30] },
  "groups": [{
    "name": "MPEG-2", "icon": "fmt_mp4", "extension": "mpg",
    "videoOptions": {
      "encoderList": ["0", "mpeg2video"],
      "resolutionList": ["0", "1280x720"],
      "frameRateList": "rates",
      "bitrateKbpsList": [0, 1000, 2000, 4000],
      "levelList": [4000, 2000, 1000]
    },
    "videoParam": { "encoder": "mpeg2video", "resolution": "1280x720", "frameRate": 0,
                    "bitrateKbps": 4000 },
    "audioOptions": {
      "encoderList": ["mp2"],
      "channelList": [0, 1, 2],
      "sampleRateList": [0, 44100, 48000],
      "bitrateKbpsList": [0, 192]
    },
    "audioParam": { "encoder": "mp2", "channel": 2, "sampleRate": 48000, "bitrateKbps": 192 },
    "presets": [{ "id": "Video_MPEG2_001", "title": "T" }]
  }]
})";

QStringList mistakesIn(const QList<QByteArray> &files)
{
    QVector<CatalogueSource> sources;
    for (const QByteArray &json : files) {
        sources.append({QStringLiteral("file%1.json").arg(sources.size() + 1), json});
    }
    const CatalogueResult catalogue = readCatalogue(sources);
    QStringList lines;
    for (const CatalogueMistake &mistake :
         catalogue.mistakes + lintCatalogue(catalogue, {QStringLiteral("fmt_mp4")},
                                            {QStringLiteral("video"), QStringLiteral("audio"),
                                             QStringLiteral("device")})) {
        lines << mistake.text();
    }
    return lines;
}

/*! The right file with texts in it exchanged, each for the one behind it. */
QByteArray changed(const QList<QByteArray> &exchanges)
{
    QByteArray json = right;
    for (int i = 0; i < exchanges.size(); i += 2) {
        const QByteArray before = json;
        json.replace(exchanges.at(i), exchanges.at(i + 1));
        if (json == before) {
            return "nothing was exchanged";
        }
    }
    return json;
}

} // namespace

/*! What is wrong with presets that can be served is named with its place. */
class TestCatalogueLint : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void aValidCatalogueHasNoMistakes();
    void everyMistakeIsReported_data();
    void everyMistakeIsReported();
    void offeredValuesHaveTheBoundsOfTheConverter_data();
    void offeredValuesHaveTheBoundsOfTheConverter();
    void aPresetsInvalidValueIsReportedWithThePreset();
    void onlyAContainerWithoutAudioNeedsNoSettings();
    void aCategoryIsATag();
    void aMistakeSharedByPresetsIsReportedOnce();
    void aGroupNameIsUniqueInAllCategories();
    void presetsWithMistakesAreStillServed();
};

void TestCatalogueLint::aValidCatalogueHasNoMistakes()
{
    QCOMPARE(mistakesIn({right}), QStringList());
}

void TestCatalogueLint::everyMistakeIsReported_data()
{
    QTest::addColumn<QByteArray>("json");
    QTest::addColumn<QString>("mistake");

    const auto row = [](const char *name, const QList<QByteArray> &exchanges, const char *mistake) {
        QTest::newRow(name) << changed(exchanges) << QString::fromLatin1(mistake);
    };

    row("an id of another format", {"Video_MPEG2_001", "Video_MP4_001"},
        "groups[0].presets[0].id: must be \"Video_MPEG2_\" followed by three digits");
    row("an id of another category", {"Video_MPEG2_001", "Audio_MPEG2_001"},
        "groups[0].presets[0].id: must be \"Video_MPEG2_\" followed by three digits");
    row("an id of the format's name instead of its own one",
        {R"("name": "MPEG-2",)", R"("name": "MPEG-2", "idName": "MPG",)"},
        "groups[0].presets[0].id: must be \"Video_MPG_\" followed by three digits");
    row("an id of its own name",
        {R"("name": "MPEG-2",)", R"("name": "MPEG-2", "idName": "MPG",)", "Video_MPEG2_001",
         "Video_MPG_001"},
        "");
    row("a status that no device has",
        {R"("name": "MPEG-2",)", R"("name": "MPEG-2", "status": "retired",)"},
        "groups[0].status: must be of the form unconfirmed|discontinued, not retired");
    row("a status and a limit",
        {R"("name": "MPEG-2",)",
         R"("name": "MPEG-2", "status": "discontinued", "limit": "The maker's list",)"},
        "");
    row("an id with two digits", {"Video_MPEG2_001", "Video_MPEG2_01"},
        "groups[0].presets[0].id: must be \"Video_MPEG2_\" followed by three digits");
    row("an id with four digits", {"Video_MPEG2_001", "Video_MPEG2_0001"},
        "groups[0].presets[0].id: must be \"Video_MPEG2_\" followed by three digits");
    row("an icon that doesn't exist", {"fmt_mp4", "fmt_none"},
        "groups[0].icon: there is no icon \"fmt_none\" in formats/qml/image");
    row("a video format in small letters", {"MPEG-2", "mpeg-2"},
        "groups[0].name: must be in upper case: video and audio formats are looked up that way");
    row("an audio format in small letters",
        {R"("Video",)", R"("Audio",)", "Video_", "Audio_", "MPEG-2", "mpeg-2"},
        "groups[0].name: must be in upper case: video and audio formats are looked up that way");
    row("no presets", {R"({ "id": "Video_MPEG2_001", "title": "T" })", ""},
        "groups[0].presets: has no presets");
    row("no icon", {R"("icon": "fmt_mp4", )", ""},
        "groups[0].icon: is missing; the format has no icon");

    row("a level that no codec has",
        {R"("encoder": "mpeg2video",)", R"("encoder": "mpeg2video", "h264Level": "9",)"},
        "groups[0].videoParam.h264Level: must be of the form [1-6](\\.[1-3])?, not 9");
    row("an unknown profile",
        {R"("encoder": "mpeg2video",)", R"("encoder": "mpeg2video", "h264Profile": "best",)"},
        "groups[0].videoParam.h264Profile: must be of the form baseline|main|high, not best");
    row("an impossible peak",
        {R"("encoder": "mpeg2video",)", R"("encoder": "mpeg2video", "peakKbps": 1000001,)"},
        "groups[0].videoParam.peakKbps: must be 0 or a whole number from 1 to 1000000, not "
        "1000001");
    row("limits of a device",
        {R"("encoder": "mpeg2video",)",
         R"("encoder": "mpeg2video", "h264Level": "4.1", "hevcLevel": "5", "h264Profile": "main",
            "mpeg4Tag": "XVID", "quality": "high", "editLists": "none", "peakKbps": 10000,)"},
        "");
    row("an encoder that isn't offered",
        {R"("encoder": "mpeg2video")", R"("encoder": "mpeg1video")"},
        "groups[0].videoParam.encoder: mpeg1video is not one of the values that "
        "videoOptions.encoderList offers");
    row("a resolution that isn't offered",
        {R"("resolution": "1280x720")", R"("resolution": "640x360")"},
        "groups[0].videoParam.resolution: 640x360 is not one of the values that "
        "videoOptions.resolutionList offers");
    row("a frame rate that isn't offered", {R"("frameRate": 0)", R"("frameRate": 24)"},
        "groups[0].videoParam.frameRate: 24 is not one of the values that "
        "videoOptions.frameRateList offers (in the preset Video_MPEG2_001)");
    row("a video bitrate that isn't offered", {R"("bitrateKbps": 4000)", R"("bitrateKbps": 3000)"},
        "groups[0].videoParam.bitrateKbps: 3000 is not one of the values that "
        "videoOptions.bitrateKbpsList offers");
    row("an audio encoder that isn't offered", {R"("encoder": "mp2")", R"("encoder": "ac3")"},
        "groups[0].audioParam.encoder: ac3 is not one of the values that audioOptions.encoderList "
        "offers");
    row("channels that aren't offered", {R"("channel": 2)", R"("channel": 6)"},
        "groups[0].audioParam.channel: 6 is not one of the values that audioOptions.channelList "
        "offers");
    row("a sample rate that isn't offered", {R"("sampleRate": 48000)", R"("sampleRate": 32000)"},
        "groups[0].audioParam.sampleRate: 32000 is not one of the values that "
        "audioOptions.sampleRateList offers");
    row("an audio bitrate that isn't offered", {R"("bitrateKbps": 192)", R"("bitrateKbps": 128)"},
        "groups[0].audioParam.bitrateKbps: 128 is not one of the values that "
        "audioOptions.bitrateKbpsList offers");

    row("an invalid size", {R"(["0", "1280x720"])", R"(["0", "1280x720", "720p"])"},
        "groups[0].videoOptions.resolutionList[2]: must be \"0\" or a size like \"1920x1080\", up "
        "to \"16384x16384\", not 720p");
    row("an id with a line break", {R"("Video_MPEG2_001")", R"("Video_MPEG2_001\n")"},
        "groups[0].presets[0].id: must be \"Video_MPEG2_\" followed by three digits");
    row("a size with a line break", {R"(["0", "1280x720"])", R"(["0", "1280x720", "640x360\n"])"},
        "groups[0].videoOptions.resolutionList[2]: must be \"0\" or a size like \"1920x1080\", up "
        "to \"16384x16384\", not 640x360 ");
    row("too many frames", {"[0, 25, 30]", "[0, 301]"},
        "lists.rates[1]: must be 0 or a number from 1 to 300, not 301");
    row("too few frames", {"[0, 25, 30]", "[0, 0.5]"},
        "lists.rates[1]: must be 0 or a number from 1 to 300, not 0.5");
    row("negative channels", {"[0, 1, 2]", "[-1, 0, 1, 2]"},
        "groups[0].audioOptions.channelList[0]: must be 0 or a whole number from 1 to 64, not -1");
    row("half a channel", {"[0, 1, 2]", "[0, 1, 2, 2.5]"},
        "groups[0].audioOptions.channelList[3]: must be 0 or a whole number from 1 to 64, not 2.5");
    row("a huge number", {"[0, 192]", "[0, 192, 1e300]"},
        "groups[0].audioOptions.bitrateKbpsList[2]: must be 0 or a whole number from 1 to 100000, "
        "not 1e+300");
    row("a side of too many pixels", {R"(["0", "1280x720"])", R"(["0", "1280x720", "2x16385"])"},
        "groups[0].videoOptions.resolutionList[2]: must be \"0\" or a size like \"1920x1080\", up "
        "to \"16384x16384\", not 2x16385");
    row("a codec's name in another case", {R"(["mp2"])", R"(["mp2", "AC3"])"},
        "groups[0].audioOptions.encoderList[1]: must be \"0\" or ffmpeg's name of a codec, like "
        "\"h264\", not AC3");
    row("too low a sample rate", {"[0, 44100, 48000]", "[0, 999, 44100, 48000]"},
        "groups[0].audioOptions.sampleRateList[1]: must be 0 or a whole number from 1000 to "
        "768000, not 999");
    row("too high a video bitrate", {"[0, 1000, 2000, 4000]", "[0, 1000, 2000, 4000, 1000001]"},
        "groups[0].videoOptions.bitrateKbpsList[4]: must be 0 or a whole number from 1 to "
        "1000000, not 1000001");
    row("an option twice", {"[0, 1, 2]", "[0, 1, 2, 1]"},
        "groups[0].audioOptions.channelList[3]: 1 is listed twice");
    row("a level that isn't offered", {"[4000, 2000, 1000]", "[4000, 3000, 1000]"},
        "groups[0].videoOptions.levelList[1]: 3000 is not one of the values that "
        "videoOptions.bitrateKbpsList offers");
    for (const char *levels :
         {"[1000, 2000, 4000]", "[2000, 4000, 1000]", "[4000, 1000, 2000]", "[1000, 0, 2000]"}) {
        row(levels, {"[4000, 2000, 1000]", levels},
            "groups[0].videoOptions.levelList: must descend from the high to the low bitrate; only "
            "the middle one can be 0 instead");
    }
    row("the middle level is the source's", {"[4000, 2000, 1000]", "[4000, 0, 1000]"}, "");

    row("a kind of file that can't be written", {R"("mpg")", R"("mpx")"},
        "groups[0].extension: \".mpx\" files can't be written");
    row("a video encoder that the container doesn't support",
        {R"(["0", "mpeg2video"])", R"(["0", "mpeg2video", "h264"])"},
        "groups[0].videoOptions.encoderList[2]: a .mpg file doesn't support h264, only mpeg2video, "
        "mpeg1video");
    row("an audio encoder that the container doesn't support", {R"(["mp2"])", R"(["mp2", "aac"])"},
        "groups[0].audioOptions.encoderList[1]: a .mpg file doesn't support aac, only mp2, ac3, "
        "mp3");
    row("video in an audio file", {R"("mpg")", R"("mp2")"},
        "groups[0].videoOptions.encoderList: a .mp2 file can't contain video");
    row("audio in a file without any",
        {R"("mpg")", R"("gif")", R"(["0", "mpeg2video"])", R"(["gif"])",
         R"("encoder": "mpeg2video")", R"("encoder": "gif")", "[0, 25, 30]", "[0, 25]",
         "[0, 1000, 2000, 4000]", "[0]", "[4000, 2000, 1000]", "[0, 0, 0]",
         R"("bitrateKbps": 4000)", R"("bitrateKbps": 0)", R"(["mp2"])", R"(["0"])",
         R"("encoder": "mp2")", R"("encoder": "0")"},
        "groups[0].audioOptions.encoderList: a .gif file can't contain audio");
    row("a codec that is only copied",
        {R"("mpg")", R"("mkv")", R"(["mp2"])", R"(["dts"])", R"("encoder": "mp2")",
         R"("encoder": "dts")", "[0, 192]", "[0]", R"("bitrateKbps": 192)", R"("bitrateKbps": 0)"},
        "groups[0].audioOptions.encoderList: dts can only be copied from the source");
    row("a bitrate that only nearly is an encoder's",
        {R"("mpg")",
         R"("3gp")",
         R"(["0", "mpeg2video"])",
         R"(["mpeg4"])",
         R"("encoder": "mpeg2video")",
         R"("encoder": "mpeg4")",
         R"(["mp2"])",
         R"(["amr_nb"])",
         R"("encoder": "mp2")",
         R"("encoder": "amr_nb")",
         "[0, 1, 2]",
         "[1]",
         R"("channel": 2)",
         R"("channel": 1)",
         "[0, 44100, 48000]",
         "[8000]",
         R"("sampleRate": 48000)",
         R"("sampleRate": 8000)",
         "[0, 192]",
         "[12, 13]",
         R"("bitrateKbps": 192)",
         R"("bitrateKbps": 12)"},
        "groups[0].audioOptions.bitrateKbpsList[1]: amr_nb doesn't support 13 kbps, only 5, 6, 7, "
        "8, 10, "
        "12");
    row("a frame rate that an encoder doesn't have", {"[0, 25, 30]", "[0, 15]"},
        "lists.rates[1]: mpeg2video doesn't support 15 fps, only 24000/1001, 24, 25, "
        "30000/1001, 30, 50, 60000/1001, 60 (in the preset Video_MPEG2_001)");
    row("a frame rate that the container's default encoder doesn't have",
        {R"(["0", "mpeg2video"])", R"(["0"])", R"("encoder": "mpeg2video")", R"("encoder": "0")",
         "[0, 25, 30]", "[0, 15]"},
        "lists.rates[1]: mpeg2video doesn't support 15 fps, only 24000/1001, 24, 25, "
        "30000/1001, 30, 50, 60000/1001, 60 (in the preset Video_MPEG2_001)");
    row("a sample rate that an encoder doesn't have", {"[0, 44100, 48000]", "[0, 22050, 48000]"},
        "groups[0].audioOptions.sampleRateList[1]: mp2 doesn't support 22050 Hz, only 32000, "
        "44100, 48000");
    row("more channels than an encoder has", {"[0, 1, 2]", "[0, 2, 6]"},
        "groups[0].audioOptions.channelList[2]: mp2 doesn't support 6-channel audio, only 1, 2");
    row("a bitrate that an encoder doesn't have", {"[0, 192]", "[0, 192, 200]"},
        "groups[0].audioOptions.bitrateKbpsList[2]: mp2 doesn't support 200 kbps, only 32, 48, 56, "
        "64, 80, 96, 112, 128, 160, 192, 224, 256, 320, 384");

    // In a container and with an encoder of studios, where nearly everything is fixed.
    const QList<QByteArray> dv = {R"(["0", "mpeg2video"])",
                                  R"(["dvvideo"])",
                                  R"("encoder": "mpeg2video")",
                                  R"("encoder": "dvvideo")",
                                  R"(["0", "1280x720"])",
                                  R"(["720x576"])",
                                  R"("resolution": "1280x720")",
                                  R"("resolution": "720x576")",
                                  "[0, 1000, 2000, 4000]",
                                  "[0]",
                                  "[4000, 2000, 1000]",
                                  "[0, 0, 0]",
                                  R"("bitrateKbps": 4000)",
                                  R"("bitrateKbps": 0)",
                                  R"(["mp2"])",
                                  R"(["pcm_s16le"])",
                                  R"("encoder": "mp2")",
                                  R"("encoder": "pcm_s16le")",
                                  "[0, 192]",
                                  "[0]",
                                  R"("bitrateKbps": 192)",
                                  R"("bitrateKbps": 0)",
                                  "[0, 44100, 48000]",
                                  "[48000]",
                                  "[0, 1, 2]",
                                  "[2]",
                                  R"("mpg")",
                                  R"("dv")"};
    row("nothing", dv, "");
    row("a size that an encoder doesn't have",
        dv + QList<QByteArray>{R"(["720x576"])", R"(["720x576", "640x480"])"},
        "groups[0].videoOptions.resolutionList[1]: dvvideo doesn't support the size 640x480, only "
        "720x576, 720x480");
    row("a video bitrate where the encoder sets it itself",
        dv + QList<QByteArray>{R"("bitrateKbpsList": [0],
      "levelList")",
                               R"("bitrateKbpsList": [0, 25000],
      "levelList")"},
        "groups[0].videoOptions.bitrateKbpsList[1]: dvvideo doesn't support 25000 kbps, only 0");
    row("an audio bitrate where the encoder sets it itself",
        dv + QList<QByteArray>{R"("bitrateKbpsList": [0]
    })",
                               R"("bitrateKbpsList": [0, 1536] })"},
        "groups[0].audioOptions.bitrateKbpsList[1]: pcm_s16le doesn't support 1536 kbps, only 0");
    row("a sample rate that the container doesn't have",
        dv + QList<QByteArray>{"[48000]", "[44100, 48000]"},
        "groups[0].audioOptions.sampleRateList[0]: a .dv file doesn't support 44100 Hz, only "
        "48000");
    row("channels that the container doesn't have", dv + QList<QByteArray>{"[2]", "[1, 2]"},
        "groups[0].audioOptions.channelList[0]: a .dv file doesn't support 1-channel audio, only "
        "2");
}

void TestCatalogueLint::everyMistakeIsReported()
{
    QFETCH(QByteArray, json);
    QFETCH(QString, mistake);
    const QStringList expected =
        mistake.isEmpty() ? QStringList() : QStringList{QStringLiteral("file1.json: ") + mistake};
    QCOMPARE(mistakesIn({json}), expected);
}

void TestCatalogueLint::offeredValuesHaveTheBoundsOfTheConverter_data()
{
    QTest::addColumn<int>("setting");
    QTest::addColumn<QString>("value");
    QTest::addColumn<bool>("isPossible");

    const auto rows = [](CatalogueSetting::Id setting, std::initializer_list<const char *> possible,
                         std::initializer_list<const char *> impossible) {
        const QString path = CatalogueSetting::of(setting).paramPath();
        for (const auto &values : {possible, impossible}) {
            for (const char *value : values) {
                QTest::addRow("%s %s", qPrintable(path), value)
                    << int(setting) << QString::fromLatin1(value)
                    << (values.begin() == possible.begin());
            }
        }
    };
    rows(CatalogueSetting::Resolution, {"0", "1x1", "16384x16384", "9999x16299", "10000x8000"},
         {"0x720", "1280x0", "16385x2", "2x16385", "2x16390", "2x20000", "100000x2", "-1x2"});
    rows(CatalogueSetting::FrameRate, {"0", "1", "23.976", "300"}, {"-1", "0.5", "0.99", "301"});
    rows(CatalogueSetting::VideoBitrate, {"0", "1", "1000000"}, {"-1", "1000001"});
    rows(CatalogueSetting::Channels, {"0", "1", "64"}, {"-1", "65"});
    rows(CatalogueSetting::SampleRate, {"0", "1000", "768000"}, {"-1", "1", "999", "768001"});
    rows(CatalogueSetting::AudioBitrate, {"0", "1", "100000"}, {"-1", "100001"});
}

void TestCatalogueLint::offeredValuesHaveTheBoundsOfTheConverter()
{
    QFETCH(int, setting);
    QFETCH(QString, value);
    QFETCH(bool, isPossible);
    const CatalogueSetting &row = CatalogueSetting::of(CatalogueSetting::Id(setting));
    QCOMPARE(row.accepts(value), isPossible);

    const bool isOfVideo = row.param == CatalogueBlock::videoParam;
    const bool isAudioBitrate = row.id == CatalogueSetting::AudioBitrate;
    const QVariantMap settings{
        {isAudioBitrate ? QStringLiteral("bitrate") : QString(row.key), value}};
    const QVariantMap preset{
        {QStringLiteral("extension"), QStringLiteral("mkv")},
        {isOfVideo ? QStringLiteral("video") : QStringLiteral("audio"), settings},
        {QStringLiteral("outPutNode"), QVariantMap{{row.param, settings}}}};
    QCOMPARE(OutputSettings::fromPreset(preset).validate().has_value(), isPossible);
}

void TestCatalogueLint::aPresetsInvalidValueIsReportedWithThePreset()
{
    const QByteArray json = changed({R"("title": "T" }])", R"("title": "T" },
        { "id": "Video_MPEG2_002", "title": "T", "audioOptions": { "channelList": [0, 1] } },
        { "id": "Video_MPEG2_003", "title": "T", "extension": "vob" }])",
                                     R"(["mp2"])", R"(["mp2", "mp3"])"});
    QCOMPARE(
        mistakesIn({json}),
        QStringList({QStringLiteral("file1.json: groups[0].audioParam.channel: 2 is not one of "
                                    "the values that audioOptions.channelList offers (in the "
                                    "preset Video_MPEG2_002)"),
                     QStringLiteral("file1.json: groups[0].audioOptions.encoderList[1]: a .vob "
                                    "file doesn't support mp3, only ac3, mp2 (in the preset "
                                    "Video_MPEG2_003)")}));
}

void TestCatalogueLint::onlyAContainerWithoutAudioNeedsNoSettings()
{
    const QByteArray json = changed({R"("audioOptions")", R"("a")", R"("audioParam")", R"("b")"});
    QCOMPARE(
        mistakesIn({json}).constLast(),
        QStringLiteral("file1.json: groups[0].extension: a .mpg file contains audio, but there "
                       "are no audio settings (in the preset Video_MPEG2_001)"));
}

void TestCatalogueLint::aCategoryIsATag()
{
    const QByteArray json = changed({R"("Video",)", R"("Image",)", "Video_", "Image_"});
    QCOMPARE(
        mistakesIn({json}),
        QStringList({QStringLiteral("file1.json: category: must be one of video, audio, device, in "
                                    "upper or lower case, to be shown")}));
}

void TestCatalogueLint::aMistakeSharedByPresetsIsReportedOnce()
{
    const QByteArray json = changed({R"("title": "T" }])", R"("title": "T" },
        { "id": "Video_MPEG2_002", "title": "T",
          "videoParam": { "encoder": "0" }, "audioParam": { "channel": 6 } }])",
                                     R"(["mp2"])", R"(["mp2", "aac"])"});
    QCOMPARE(
        mistakesIn({json}),
        QStringList(
            {QStringLiteral("file1.json: groups[0].audioOptions.encoderList[1]: a .mpg "
                            "file doesn't support aac, only mp2, ac3, mp3"),
             QStringLiteral("file1.json: groups[0].presets[1].audioParam.channel: 6 is "
                            "not one of the values that audioOptions.channelList offers (in the "
                            "preset Video_MPEG2_002)")}));
}

void TestCatalogueLint::aGroupNameIsUniqueInAllCategories()
{
    const QByteArray other = changed({R"("Video",)", R"("Device",)", "Video_", "Device_"});
    QCOMPARE(
        mistakesIn({right, other}),
        QStringList({QStringLiteral("file2.json: groups[0].name: another category also has a group "
                                    "\"MPEG-2\", and formats are found by name only; "
                                    "rename this one")}));
}

void TestCatalogueLint::presetsWithMistakesAreStillServed()
{
    const CatalogueResult catalogue =
        readCatalogue({{QStringLiteral("f"), changed({"fmt_mp4", "fmt_none"})}});
    const QVector<CatalogueMistake> mistakes =
        lintCatalogue(catalogue, {QStringLiteral("fmt_mp4")},
                      {QStringLiteral("video"), QStringLiteral("audio"), QStringLiteral("device")});
    QCOMPARE(mistakes.size(), 1);
    QVERIFY(mistakes.constFirst().isServed);
}

QTEST_GUILESS_MAIN(TestCatalogueLint)
#include "tst_cataloguelint.moc"
