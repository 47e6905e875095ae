#include "host/convert/ffmpegarguments.h"

#include <QtTest>

#include <functional>

namespace {

const char input[] = "-protocol_whitelist file -format_whitelist mov,mp4 -i file:/in ";
const char frame[] = "-nostdin -hide_banner -v error -progress pipe:1 -y %1%2 file:/out";

QSet<QString> usualEncoders()
{
    QSet<QString> encoders;
    const QStringList names =
        QStringLiteral("libx264 libx265 libvpx libvpx-vp9 libsvtav1 libaom-av1 mpeg4 mpeg2video "
                       "mpeg1video wmv2 flv libtheora prores dnxhd gif dvvideo msmpeg4 aac "
                       "libmp3lame mp2 ac3 flac alac libvorbis libopus wmav2 pcm_s16le pcm_s24le "
                       "tta truehd")
            .split(QLatin1Char(' '));
    for (const QString &name : names) {
        encoders.insert(name);
    }
    return encoders;
}

VideoTrack picture(const QString &codec, const QSize &size)
{
    VideoTrack track;
    track.index = 0;
    track.codec = codec;
    track.storedSize = size;
    track.frameRate = {25, 1};
    return track;
}

AudioTrack sound(const QString &codec, int index = 1, int sampleRate = 48000, int channels = 2)
{
    AudioTrack track;
    track.index = index;
    track.codec = codec;
    track.sampleRate = sampleRate;
    track.channels = channels;
    track.hasLayout = true;
    return track;
}

/*! A film of h264 and aac, full HD, 25 fps, 48000 Hz stereo. */
MediaFacts film()
{
    MediaFacts facts;
    facts.container = QStringLiteral("mov,mp4");
    facts.videoTracks = {picture(QStringLiteral("h264"), QSize(1920, 1080))};
    facts.audioTracks = {sound(QStringLiteral("aac"))};
    return facts;
}

MediaFacts song(const QString &codec, int sampleRate = 44100, int channels = 2)
{
    MediaFacts facts;
    facts.container = QStringLiteral("mov,mp4");
    facts.audioTracks = {sound(codec, 0, sampleRate, channels)};
    return facts;
}

OutputSettings video(const char *extension, const char *videoCodec = "",
                     const char *audioCodec = "")
{
    OutputSettings settings;
    settings.extension = QLatin1String(extension);
    settings.hasPicture = true;
    settings.videoCodec = QLatin1String(videoCodec);
    settings.audioCodec = QLatin1String(audioCodec);
    return settings;
}

OutputSettings audio(const char *extension, const char *audioCodec = "")
{
    OutputSettings settings = video(extension, "", audioCodec);
    settings.hasPicture = false;
    return settings;
}

template <typename Thing>
Thing changed(Thing thing, const std::function<void(Thing &)> &change)
{
    change(thing);
    return thing;
}

} // namespace

Q_DECLARE_METATYPE(OutputSettings)
Q_DECLARE_METATYPE(MediaFacts)

class TestFfmpegArguments : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void aPresetBecomesACommand_data();
    void aPresetBecomesACommand();
    void whatCannotBeDoneIsSaid_data();
    void whatCannotBeDoneIsSaid();
    void anotherEncoderOfTheCodecIsTaken();
    void pathsAreTakenAsFiles();
    void aCutIsReadFromTheSource_data();
    void aCutIsReadFromTheSource();
};

void TestFfmpegArguments::aPresetBecomesACommand_data()
{
    QTest::addColumn<OutputSettings>("settings");
    QTest::addColumn<MediaFacts>("source");
    QTest::addColumn<QString>("output");

    const auto row = [](const char *name, const OutputSettings &settings, const MediaFacts &source,
                        const char *output) {
        QTest::newRow(name) << settings << source << QString::fromLatin1(output);
    };
    using Change = std::function<void(OutputSettings &)>;
    using Turn = std::function<void(MediaFacts &)>;
    const auto settings = [](const OutputSettings &base, const Change &change) {
        return changed<OutputSettings>(base, change);
    };
    const auto facts = [](const MediaFacts &base, const Turn &change) {
        return changed<MediaFacts>(base, change);
    };

    // Keeping the source.
    row("all kept", video("mp4"), film(),
        "-map 0:0 -map 0:1 -c:v:0 copy -c:a:0 copy -movflags +faststart -f mp4");
    row("kept hevc gets the tag of all players", video("mov"),
        facts(film(), [](MediaFacts &f) { f.videoTracks[0].codec = QStringLiteral("hevc"); }),
        "-map 0:0 -map 0:1 -c:v:0 copy -tag:v:0 hvc1 -c:a:0 copy -movflags +faststart -f mov");
    row("codecs that the file can't hold become the usual ones", video("webm"), film(),
        "-map 0:0 -map 0:1 -c:v:0 libvpx-vp9 -pix_fmt:v:0 yuv420p -deadline:v:0 good "
        "-cpu-used:v:0 5 -row-mt:v:0 1 -crf:v:0 31 -b:v:0 0 -c:a:0 libopus -b:a:0 128k -f webm");
    row("kept codec, other size",
        settings(video("mkv"), [](OutputSettings &s) { s.box = QSize(1280, 720); }), film(),
        "-map 0:0 -map 0:1 -c:v:0 libx264 -filter:v:0 scale=1280:720,setsar=1 -pix_fmt:v:0 yuv420p "
        "-preset:v:0 veryfast -crf:v:0 20 -c:a:0 copy -f matroska");
    row("kept codec, box larger than the picture",
        settings(video("mkv"), [](OutputSettings &s) { s.box = QSize(3840, 2160); }), film(),
        "-map 0:0 -map 0:1 -c:v:0 copy -c:a:0 copy -f matroska");
    row("kept codec, other rate",
        settings(video("mkv"),
                 [](OutputSettings &s) {
                     s.frameRate = {30000, 1001};
                 }),
        film(),
        "-map 0:0 -map 0:1 -c:v:0 libx264 -r:v:0 30000/1001 -pix_fmt:v:0 yuv420p "
        "-preset:v:0 veryfast -crf:v:0 20 -c:a:0 copy -f matroska");
    row("kept codec, the source's rate",
        settings(video("mkv"),
                 [](OutputSettings &s) {
                     s.frameRate = {25, 1};
                 }),
        film(), "-map 0:0 -map 0:1 -c:v:0 copy -c:a:0 copy -f matroska");
    row("kept codec, a bitrate",
        settings(video("mkv"),
                 [](OutputSettings &s) {
                     s.videoKbps = 1500;
                     s.audioKbps = 96;
                 }),
        film(),
        "-map 0:0 -map 0:1 -c:v:0 libx264 -pix_fmt:v:0 yuv420p -preset:v:0 veryfast "
        "-b:v:0 1500k -c:a:0 aac -b:a:0 96k -f matroska");
    row("kept codec without an encoder becomes the usual one",
        settings(video("mkv"),
                 [](OutputSettings &s) {
                     s.videoKbps = 1500;
                     s.sampleRate = 44100;
                 }),
        facts(film(),
              [](MediaFacts &f) {
                  f.videoTracks[0].codec = QStringLiteral("wmv1");
                  f.audioTracks[0].codec = QStringLiteral("dts");
              }),
        "-map 0:0 -map 0:1 -c:v:0 libx264 -pix_fmt:v:0 yuv420p -preset:v:0 veryfast "
        "-b:v:0 1500k -c:a:0 aac -ar:a:0 44100 -b:a:0 192k -f matroska");
    const MediaFacts turned = facts(film(), [](MediaFacts &f) { f.videoTracks[0].rotation = 90; });
    row("a turned picture is kept where the turn is", video("mp4"), turned,
        "-map 0:0 -map 0:1 -c:v:0 copy -c:a:0 copy -movflags +faststart -f mp4");
    row("and written upright elsewhere", video("mkv"), turned,
        "-map 0:0 -map 0:1 -c:v:0 libx264 -pix_fmt:v:0 yuv420p -preset:v:0 veryfast "
        "-crf:v:0 20 -c:a:0 copy -f matroska");

    // Sizes.
    row("portrait by its turn",
        settings(video("mp4", "h264"), [](OutputSettings &s) { s.box = QSize(1280, 720); }), turned,
        "-map 0:0 -map 0:1 -c:v:0 libx264 -filter:v:0 scale=720:1280,setsar=1 "
        "-pix_fmt:v:0 yuv420p -preset:v:0 veryfast -crf:v:0 20 -c:a:0 copy -movflags +faststart "
        "-f mp4");
    row("wide pixels become square in a box",
        settings(video("mp4", "h264"), [](OutputSettings &s) { s.box = QSize(1920, 1080); }),
        facts(film(),
              [](MediaFacts &f) {
                  f.videoTracks[0].storedSize = QSize(720, 576);
                  f.videoTracks[0].pixelAspect = {64, 45};
              }),
        "-map 0:0 -map 0:1 -c:v:0 libx264 -filter:v:0 scale=1024:576,setsar=1 "
        "-pix_fmt:v:0 yuv420p -preset:v:0 veryfast -crf:v:0 20 -c:a:0 copy -movflags +faststart "
        "-f mp4");
    const MediaFacts odd =
        facts(film(), [](MediaFacts &f) { f.videoTracks[0].storedSize = QSize(321, 241); });
    row("an odd size is made even", video("mp4", "h264"), odd,
        "-map 0:0 -map 0:1 -c:v:0 libx264 -filter:v:0 scale=320:240 -pix_fmt:v:0 yuv420p "
        "-preset:v:0 veryfast -crf:v:0 20 -c:a:0 copy -movflags +faststart -f mp4");
    row("an odd size stays where it may", video("gif"), odd,
        "-map 0:0 -c:v:0 gif -filter:v:0 split[picture][sample];[sample]palettegen[palette];"
        "[picture][palette]paletteuse -f gif");
    row("an unknown size is left alone",
        settings(video("mp4", "h264"), [](OutputSettings &s) { s.box = QSize(640, 360); }),
        facts(film(), [](MediaFacts &f) { f.videoTracks[0].storedSize = QSize(); }),
        "-map 0:0 -map 0:1 -c:v:0 libx264 -pix_fmt:v:0 yuv420p -preset:v:0 veryfast -crf:v:0 20 "
        "-c:a:0 copy -movflags +faststart -f mp4");
    row("a fixed frame keeps the picture's shape", video("dv"),
        facts(film(), [](MediaFacts &f) { f.videoTracks[0].storedSize = QSize(1920, 800); }),
        "-map 0:0 -map 0:1 -c:v:0 dvvideo -filter:v:0 "
        "scale=720:426,pad=720:576:(ow-iw)/2:(oh-ih)/2,setsar=64/45 -pix_fmt:v:0 yuv420p "
        "-c:a:0 pcm_s16le -filter:a:0 apad,asetpts=PTS-0.04/TB -shortest -f dv");

    // Rates of frames.
    row("the nearest rate that the codec has", video("mpg"),
        facts(film(),
              [](MediaFacts &f) {
                  f.videoTracks[0].frameRate = {15, 1};
              }),
        "-map 0:0 -map 0:1 -c:v:0 mpeg2video -r:v:0 24000/1001 -pix_fmt:v:0 yuv420p -q:v:0 4 "
        "-c:a:0 mp2 -b:a:0 256k -f mpeg");
    row("an asked rate that the codec lacks",
        settings(video("mpg"),
                 [](OutputSettings &s) {
                     s.frameRate = {48, 1};
                 }),
        film(),
        "-map 0:0 -map 0:1 -c:v:0 mpeg2video -r:v:0 50 -pix_fmt:v:0 yuv420p -q:v:0 4 "
        "-c:a:0 mp2 -b:a:0 256k -f mpeg");
    row("an average becomes a usual rate", video("avi", "mpeg4"),
        facts(film(),
              [](MediaFacts &f) {
                  f.videoTracks[0].frameRate = {359640, 11999};
                  f.videoTracks[0].hasSteadyRate = false;
              }),
        "-map 0:0 -map 0:1 -c:v:0 mpeg4 -r:v:0 30000/1001 -pix_fmt:v:0 yuv420p -q:v:0 4 "
        "-c:a:0 copy -f avi");
    row("an unknown rate is left to ffmpeg", video("mpg", "mpeg2video"),
        facts(film(),
              [](MediaFacts &f) {
                  f.videoTracks[0].frameRate = Ratio();
                  f.videoTracks[0].hasSteadyRate = false;
                  f.audioTracks.clear();
              }),
        "-map 0:0 -c:v:0 mpeg2video -pix_fmt:v:0 yuv420p -q:v:0 4 -f mpeg");

    // Encoders and bitrates.
    row("hevc", video("mp4", "hevc", "aac"), film(),
        "-map 0:0 -map 0:1 -c:v:0 libx265 -pix_fmt:v:0 yuv420p -preset:v:0 veryfast "
        "-x265-params:v:0 log-level=error -crf:v:0 23 -tag:v:0 hvc1 -c:a:0 aac -b:a:0 192k "
        "-movflags +faststart -f mp4");
    row("hevc outside of mp4 has no tag", video("mkv", "hevc"), film(),
        "-map 0:0 -map 0:1 -c:v:0 libx265 -pix_fmt:v:0 yuv420p -preset:v:0 veryfast "
        "-x265-params:v:0 log-level=error -crf:v:0 23 -c:a:0 copy -f matroska");
    row("prores knows no bitrate",
        settings(video("mov", "prores", "pcm_s16le"),
                 [](OutputSettings &s) {
                     s.videoKbps = 8000;
                     s.audioKbps = 192;
                 }),
        film(),
        "-map 0:0 -map 0:1 -c:v:0 prores -pix_fmt:v:0 yuv422p10le -c:a:0 pcm_s16le "
        "-movflags +faststart -f mov");
    row("a bitrate replaces the quality",
        settings(video("wmv", "wmv2", "wmav2"),
                 [](OutputSettings &s) {
                     s.videoKbps = 2000;
                     s.audioKbps = 100;
                 }),
        film(),
        "-map 0:0 -map 0:1 -c:v:0 wmv2 -pix_fmt:v:0 yuv420p -b:v:0 2000k -c:a:0 wmav2 "
        "-b:a:0 96k -f asf");

    // Sound.
    const MediaFacts dubbed = facts(film(), [](MediaFacts &f) {
        f.audioTracks = {sound(QStringLiteral("aac"), 1),
                         sound(QStringLiteral("opus"), 2, 48000, 6),
                         sound(QStringLiteral("mp3"), 3, 22050, 1)};
        f.audioTracks[1].isDefault = true;
    });
    const Change allTracks = [](OutputSettings &s) {
        s.audioCodec = QStringLiteral("ac3");
        s.allAudioTracks = true;
    };
    row("one track: the default one", video("mp4"), dubbed,
        "-map 0:0 -map 0:2 -c:v:0 copy -c:a:0 copy -movflags +faststart -f mp4");
    row("all tracks, each with its own settings", settings(video("mp4"), allTracks), dubbed,
        "-map 0:0 -map 0:1 -map 0:2 -map 0:3 -c:v:0 copy -c:a:0 ac3 -b:a:0 192k "
        "-c:a:1 ac3 -b:a:1 576k -c:a:2 ac3 -ar:a:2 32000 -b:a:2 96k -movflags +faststart -f mp4");
    row("all tracks where the file holds one", settings(video("flv"), allTracks), dubbed,
        "-map 0:0 -map 0:2 -c:v:0 copy -c:a:0 ac3 -b:a:0 576k -f flv");
    row("a film without sound", video("mp4"),
        facts(film(), [](MediaFacts &f) { f.audioTracks.clear(); }),
        "-map 0:0 -c:v:0 copy -movflags +faststart -f mp4");
    row("the sound of a film", audio("mp3", "mp3"), film(),
        "-map 0:1 -c:a:0 libmp3lame -q:a:0 2 -f mp3");
    row("only as many channels as the codec has", audio("mp3", "mp3"),
        song(QStringLiteral("flac"), 96000, 6),
        "-map 0:0 -c:a:0 libmp3lame -ar:a:0 48000 -ac:a:0 2 -q:a:0 2 -f mp3");
    row("as asked",
        settings(audio("m4a", "aac"),
                 [](OutputSettings &s) {
                     s.sampleRate = 22050;
                     s.channels = 1;
                     s.audioKbps = 64;
                 }),
        song(QStringLiteral("flac")),
        "-map 0:0 -c:a:0 aac -ar:a:0 22050 -ac:a:0 1 -b:a:0 64k -movflags +faststart -f ipod");
    row("kept sound", audio("m4a"), song(QStringLiteral("alac")),
        "-map 0:0 -c:a:0 copy -movflags +faststart -f ipod");
    row("kept codec, other rate of samples",
        settings(audio("flac"), [](OutputSettings &s) { s.sampleRate = 44100; }),
        song(QStringLiteral("flac"), 96000), "-map 0:0 -c:a:0 flac -ar:a:0 44100 -f flac");
    row("copied sound of a codec that isn't written", audio("mka"), song(QStringLiteral("truehd")),
        "-map 0:0 -c:a:0 copy -f matroska");
    row("another codec than one that isn't written",
        settings(audio("mka"), [](OutputSettings &s) { s.channels = 1; }),
        song(QStringLiteral("truehd")), "-map 0:0 -c:a:0 aac -ac:a:0 1 -b:a:0 96k -f matroska");
    row("the nearest rate that the codec has", audio("opus", "opus"), song(QStringLiteral("mp3")),
        "-map 0:0 -c:a:0 libopus -ar:a:0 48000 -b:a:0 128k -f opus");
    row("the container's only rate", video("mxf", "mpeg2video", "pcm_s16le"),
        facts(film(), [](MediaFacts &f) { f.audioTracks[0].sampleRate = 44100; }),
        "-map 0:0 -map 0:1 -c:v:0 mpeg2video -pix_fmt:v:0 yuv420p -q:v:0 4 -c:a:0 pcm_s16le "
        "-ar:a:0 48000 -f mxf");
    row("the container's only number of channels", video("dv"),
        facts(film(), [](MediaFacts &f) { f.audioTracks[0].channels = 1; }),
        "-map 0:0 -map 0:1 -c:v:0 dvvideo -filter:v:0 "
        "scale=720:576,pad=720:576:(ow-iw)/2:(oh-ih)/2,setsar=64/45 -pix_fmt:v:0 yuv420p "
        "-c:a:0 pcm_s16le -ac:a:0 2 -filter:a:0 apad,asetpts=PTS-0.04/TB -shortest -f dv");
    row("more bits than the encoder starts with",
        settings(audio("ogg", "vorbis"), [](OutputSettings &s) { s.audioKbps = 320; }),
        song(QStringLiteral("mp3"), 22050, 1), "-map 0:0 -c:a:0 libvorbis -b:a:0 85k -f ogg");
    row("fewer bits than the encoder starts with",
        settings(audio("ogg", "vorbis"), [](OutputSettings &s) { s.audioKbps = 16; }),
        song(QStringLiteral("mp3")), "-map 0:0 -c:a:0 libvorbis -b:a:0 67k -f ogg");
    row("sound that isn't stereo needs more",
        settings(audio("ogg", "vorbis"), [](OutputSettings &s) { s.audioKbps = 16; }),
        song(QStringLiteral("mp3"), 44100, 1), "-map 0:0 -c:a:0 libvorbis -b:a:0 49k -f ogg");
    row("lossless knows no bitrate",
        settings(audio("wav", "pcm_s24le"), [](OutputSettings &s) { s.audioKbps = 320; }),
        song(QStringLiteral("mp3")), "-map 0:0 -c:a:0 pcm_s24le -f wav");
    row("channels without a layout get the usual one", audio("m4a", "aac"),
        facts(song(QStringLiteral("tta")),
              [](MediaFacts &f) { f.audioTracks[0].hasLayout = false; }),
        "-map 0:0 -c:a:0 aac -ac:a:0 2 -b:a:0 192k -movflags +faststart -f ipod");
    row("unknown rate and channels are left to ffmpeg", audio("m4a", "aac"),
        song(QStringLiteral("mp3"), 0, 0), "-map 0:0 -c:a:0 aac -movflags +faststart -f ipod");

    // Covers.
    const MediaFacts covered = facts(song(QStringLiteral("flac")), [](MediaFacts &f) {
        f.videoTracks = {picture(QStringLiteral("mjpeg"), QSize(500, 500))};
        f.videoTracks[0].index = 1;
        f.videoTracks[0].isCover = true;
    });
    row("a cover is kept", audio("mp3", "mp3"), covered,
        "-map 0:0 -map 0:1 -c:a:0 libmp3lame -q:a:0 2 -c:v:0 copy -disposition:v:0 attached_pic "
        "-f mp3");
    row("a cover is dropped where none is held", audio("wav", "pcm_s16le"), covered,
        "-map 0:0 -c:a:0 pcm_s16le -f wav");
    row("a cover that is no still picture is dropped", audio("mp3", "mp3"),
        facts(covered, [](MediaFacts &f) { f.videoTracks[0].codec = QStringLiteral("h264"); }),
        "-map 0:0 -c:a:0 libmp3lame -q:a:0 2 -f mp3");
}

void TestFfmpegArguments::aPresetBecomesACommand()
{
    QFETCH(OutputSettings, settings);
    QFETCH(MediaFacts, source);
    QFETCH(QString, output);
    const FfmpegArguments formed = FfmpegArguments::form(
        settings, source, usualEncoders(), QStringLiteral("/in"), QStringLiteral("/out"));
    QCOMPARE(formed.error, QString());
    QCOMPARE(formed.arguments.join(QLatin1Char(' ')),
             QString::fromLatin1(frame).arg(QLatin1String(input), output));
}

void TestFfmpegArguments::whatCannotBeDoneIsSaid_data()
{
    QTest::addColumn<OutputSettings>("settings");
    QTest::addColumn<MediaFacts>("source");
    QTest::addColumn<QString>("error");

    const MediaFacts silent =
        changed<MediaFacts>(film(), [](MediaFacts &f) { f.audioTracks.clear(); });
    QTest::newRow("no picture for a video")
        << video("mp4") << song(QStringLiteral("mp3"))
        << QStringLiteral("has no video; choose an audio preset");
    QTest::newRow("a cover is no picture")
        << video("mp4")
        << changed<MediaFacts>(film(), [](MediaFacts &f) { f.videoTracks[0].isCover = true; })
        << QStringLiteral("has no video; choose an audio preset");
    QTest::newRow("no sound for audio")
        << audio("mp3") << silent << QStringLiteral("has no sound; choose a video preset");
    QTest::newRow("video into a sound file")
        << video("mp3") << film()
        << QStringLiteral("a .mp3 file can't hold video; choose an audio preset");
    QTest::newRow("unknown kind of file")
        << video("xyz") << film()
        << QStringLiteral("files of the kind \".xyz\" can't be written; choose another preset");
    QTest::newRow("no video encoder")
        << video("flv", "flv2") << film()
        << QStringLiteral("needs the encoder flv2 for flv2, which this ffmpeg lacks; choose a "
                          "preset with another encoder or install an ffmpeg that has it");
    QTest::newRow("a codec that isn't written")
        << audio("mka", "truehd") << film()
        << QStringLiteral("needs the encoder truehd for truehd, which this ffmpeg lacks; choose a "
                          "preset with another encoder or install an ffmpeg that has it");
    QTest::newRow("no audio encoder")
        << audio("amr", "amr_nb") << film()
        << QStringLiteral("needs the encoder libopencore_amrnb for amr_nb, which this ffmpeg "
                          "lacks; choose a preset with another encoder or install an ffmpeg that "
                          "has it");
}

void TestFfmpegArguments::whatCannotBeDoneIsSaid()
{
    QFETCH(OutputSettings, settings);
    QFETCH(MediaFacts, source);
    QFETCH(QString, error);
    const FfmpegArguments formed = FfmpegArguments::form(
        settings, source, usualEncoders(), QStringLiteral("/in"), QStringLiteral("/out"));
    QCOMPARE(formed.error, error);
    QCOMPARE(formed.arguments, QStringList());
    // The other encoders that it names don't exist.
    QCOMPARE(formed.lacksEncoder, error.contains(QStringLiteral("libopencore_amrnb")));
}

void TestFfmpegArguments::anotherEncoderOfTheCodecIsTaken()
{
    const auto encoderOf = [](const QSet<QString> &encoders) {
        const FfmpegArguments formed = FfmpegArguments::form(
            video("mkv", "av1"), film(), encoders, QStringLiteral("/in"), QStringLiteral("/out"));
        const int at = formed.arguments.indexOf(QStringLiteral("-c:v:0"));
        return at < 0 ? formed.error : formed.arguments.at(at + 1);
    };
    const QString first = QStringLiteral("libsvtav1");
    const QString second = QStringLiteral("libaom-av1");
    QCOMPARE(encoderOf({first, second}), first);
    QCOMPARE(encoderOf({second}), second);
    QVERIFY(encoderOf({}).startsWith(
        QStringLiteral("needs the encoder libsvtav1 or libaom-av1 for av1")));
}

void TestFfmpegArguments::pathsAreTakenAsFiles()
{
    const FfmpegArguments formed =
        FfmpegArguments::form(video("mp4"), film(), usualEncoders(), QStringLiteral("/a/-b:%d.mp4"),
                              QStringLiteral("/c/-d.mp4"));
    QVERIFY(formed.arguments.contains(QStringLiteral("file:/a/-b:%d.mp4")));
    QCOMPARE(formed.arguments.constLast(), QStringLiteral("file:/c/-d.mp4"));
}

void TestFfmpegArguments::aCutIsReadFromTheSource_data()
{
    QTest::addColumn<double>("start");
    QTest::addColumn<double>("end");
    QTest::addColumn<QString>("options");
    QTest::addColumn<bool>("isCopied");

    QTest::newRow("nothing cut") << 0.0 << 0.0 << QString() << true;
    QTest::newRow("the beginning, exact only when encoded")
        << 1.5 << 0.0 << QStringLiteral("-ss 1.500 ") << false;
    QTest::newRow("the end") << 0.0 << 4.0 << QStringLiteral("-t 4.000 ") << true;
    QTest::newRow("both") << 1.5 << 4.0 << QStringLiteral("-ss 1.500 -t 2.500 ") << false;
}

void TestFfmpegArguments::aCutIsReadFromTheSource()
{
    QFETCH(double, start);
    QFETCH(double, end);
    QFETCH(QString, options);
    QFETCH(bool, isCopied);
    OutputSettings settings = video("mkv");
    settings.start = start;
    settings.end = end;
    const QString line = FfmpegArguments::form(settings, film(), usualEncoders(),
                                               QStringLiteral("/in"), QStringLiteral("/out"))
                             .arguments.join(QLatin1Char(' '));
    QVERIFY2(line.contains(QStringLiteral(" -y ") + options + QLatin1String(input)),
             qUtf8Printable(line));
    QCOMPARE(line.contains(QStringLiteral("-c:v:0 copy")), isCopied);
    QCOMPARE(line.contains(QStringLiteral("-c:a:0 copy")), isCopied);
}

QTEST_GUILESS_MAIN(TestFfmpegArguments)
#include "tst_ffmpegarguments.moc"
