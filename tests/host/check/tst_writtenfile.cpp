#include "host/check/writtenfile.h"

#include <QtTest>

#include <functional>

namespace {

using Change = std::function<void(OutputSettings &asked, WrittenFile &file, MediaFacts &source)>;

OutputSettings askedSettings()
{
    OutputSettings asked;
    asked.extension = QStringLiteral("mp4");
    asked.hasVideo = true;
    asked.videoCodec = QStringLiteral("h264");
    asked.box = QSize(1280, 720);
    asked.frameRate = {30000, 1001};
    asked.videoKbps = 4000;
    asked.audioCodec = QStringLiteral("aac");
    asked.channels = 2;
    asked.sampleRate = 48000;
    asked.audioKbps = 192;
    return asked;
}

VideoTrack videoTrack(const char *codec, const QSize &size, const Ratio &rate)
{
    VideoTrack track;
    track.index = 0;
    track.codec = QLatin1String(codec);
    track.storedSize = size;
    track.frameRate = rate;
    return track;
}

AudioTrack audioTrack(const char *codec, int channels, int sampleRate)
{
    AudioTrack track;
    track.index = 1;
    track.codec = QLatin1String(codec);
    track.channels = channels;
    track.sampleRate = sampleRate;
    return track;
}

WrittenFile writtenFile()
{
    WrittenFile file;
    file.facts.container = QStringLiteral("mov,mp4,m4a,3gp,3g2,mj2");
    file.facts.videoTracks = {videoTrack("h264", QSize(1280, 720), {30000, 1001})};
    file.facts.audioTracks = {audioTrack("aac", 2, 48000)};
    file.facts.duration = 1.05;
    file.streamBytes = {{0, 500000}, {1, 24000}};
    return file;
}

MediaFacts sourceFacts()
{
    MediaFacts source;
    source.videoTracks = {videoTrack("utvideo", QSize(1920, 1080), {30000, 1001})};
    source.audioTracks = {audioTrack("adpcm_ms", 2, 44100)};
    source.duration = 1;
    return source;
}

/*! Nothing is asked, and the file is as the source. */
void keepAll(OutputSettings &asked, WrittenFile &file, MediaFacts &)
{
    const QString extension = asked.extension;
    asked = OutputSettings();
    asked.extension = extension;
    asked.hasVideo = true;
    file.facts.videoTracks[0].storedSize = QSize(1920, 1080);
    file.facts.audioTracks[0].sampleRate = 44100;
}

} // namespace

Q_DECLARE_METATYPE(Change)

/*! What a file must have in common with the settings that it was written with. */
class TestWrittenFile : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void aDeviationIsReported_data();
    void aDeviationIsReported();
    void allDeviationsAreReported();
    void packetsAreCountedByStream();
    void implausiblePacketsAreNotCounted();
};

void TestWrittenFile::aDeviationIsReported_data()
{
    QTest::addColumn<Change>("change");
    QTest::addColumn<QString>("deviation");

    const auto row = [](const char *name, const char *deviation, const Change &change) {
        QTest::newRow(name) << change << QString::fromLatin1(deviation);
    };
    const auto settings = [&row](const char *name, const char *deviation, auto change) {
        row(name, deviation,
            [change](OutputSettings &asked, WrittenFile &, MediaFacts &) { change(asked); });
    };
    const auto video = [&row](const char *name, const char *deviation, auto change) {
        row(name, deviation, [change](OutputSettings &, WrittenFile &file, MediaFacts &) {
            change(file.facts.videoTracks[0]);
        });
    };
    const auto audio = [&row](const char *name, const char *deviation, auto change) {
        row(name, deviation, [change](OutputSettings &, WrittenFile &file, MediaFacts &) {
            change(file.facts.audioTracks[0]);
        });
    };
    const auto bytes = [&row](const char *name, const char *deviation, int stream, int count) {
        row(name, deviation, [stream, count](OutputSettings &, WrittenFile &file, MediaFacts &) {
            file.streamBytes[stream] = count;
        });
    };

    settings("as asked", "", [](OutputSettings &) {});
    row("nothing asked, and kept as in the source", "", keepAll);
    row("the default codecs where none are set", "hevc, not h264; mp3, not aac",
        [](OutputSettings &asked, WrittenFile &file, MediaFacts &source) {
            keepAll(asked, file, source);
            file.facts.videoTracks[0].codec = QStringLiteral("hevc");
            file.facts.audioTracks[0].codec = QStringLiteral("mp3");
        });
    row("the source's codecs where the container supports them", "h264, not hevc; aac, not mp3",
        [](OutputSettings &asked, WrittenFile &file, MediaFacts &source) {
            keepAll(asked, file, source);
            source.videoTracks[0].codec = QStringLiteral("hevc");
            source.audioTracks[0].codec = QStringLiteral("mp3");
        });
    row("nothing asked, and all changed",
        "1280x720, not 1920x1080; 25 fps, not 29.97; 48000 Hz, not 44100; 1 channels, "
        "not 2",
        [](OutputSettings &asked, WrittenFile &file, MediaFacts &source) {
            keepAll(asked, file, source);
            file.facts.videoTracks[0].storedSize = QSize(1280, 720);
            file.facts.videoTracks[0].frameRate = {25, 1};
            file.facts.audioTracks[0].sampleRate = 48000;
            file.facts.audioTracks[0].channels = 1;
        });
    row("nothing asked, and bound by codec and container", "",
        [](OutputSettings &asked, WrittenFile &file, MediaFacts &source) {
            keepAll(asked, file, source);
            asked.extension = QStringLiteral("mpg");
            file.facts.container = QStringLiteral("mpeg");
            file.facts.videoTracks[0].codec = QStringLiteral("mpeg2video");
            file.facts.audioTracks[0].codec = QStringLiteral("mp2");
            source.videoTracks[0].frameRate = {15, 1};
            file.facts.videoTracks[0].frameRate = {24000, 1001};
            source.audioTracks[0].sampleRate = 22050;
            source.audioTracks[0].channels = 6;
        });
    row("nothing asked, and channels bound by the container", "",
        [](OutputSettings &asked, WrittenFile &file, MediaFacts &source) {
            keepAll(asked, file, source);
            asked.extension = QStringLiteral("dv");
            file.facts.container = QStringLiteral("dv");
            file.facts.videoTracks[0].codec = QStringLiteral("dvvideo");
            file.facts.audioTracks[0].codec = QStringLiteral("pcm_s16le");
            file.facts.audioTracks[0].sampleRate = 48000;
            source.audioTracks[0].channels = 6;
        });
    settings("unknown container", "\".xyz\" files can't be written",
             [](OutputSettings &asked) { asked.extension = QStringLiteral("xyz"); });
    row("another container", "the file is avi, not mp4",
        [](OutputSettings &, WrittenFile &file, MediaFacts &) {
            file.facts.container = QStringLiteral("avi");
        });

    const auto duration = [&row](const char *name, const char *deviation, double seconds) {
        row(name, deviation, [seconds](OutputSettings &, WrittenFile &file, MediaFacts &) {
            file.facts.duration = seconds;
        });
    };
    duration("too short", "lasts 0.7 s, not 1 s", 0.7);
    duration("too long", "lasts 1.3 s, not 1 s", 1.3);
    duration("just too short", "lasts 0.75 s, not 1 s", 0.75);
    duration("just too long", "lasts 1.25 s, not 1 s", 1.25);
    duration("a little short", "", 0.76);
    duration("a little long", "", 1.24);
    duration("of unknown length", "", 0);

    row("no video", "there is no video",
        [](OutputSettings &, WrittenFile &file, MediaFacts &) { file.facts.videoTracks.clear(); });
    row("a source without video", "there is video",
        [](OutputSettings &, WrittenFile &, MediaFacts &source) { source.videoTracks.clear(); });
    settings("video in an audio file", "there is video",
             [](OutputSettings &asked) { asked.hasVideo = false; });
    video("another video codec", "mpeg4, not h264",
          [](VideoTrack &track) { track.codec = QStringLiteral("mpeg4"); });
    video("larger than the box", "1280x722 isn't scaled to fit 1280x720",
          [](VideoTrack &track) { track.storedSize = QSize(1280, 722); });
    video("smaller than the box", "1278x718 isn't scaled to fit 1280x720",
          [](VideoTrack &track) { track.storedSize = QSize(1278, 718); });
    video("only as high as the box", "",
          [](VideoTrack &track) { track.storedSize = QSize(960, 720); });
    video("only nearly as wide as the box, for the sake of even sizes", "",
          [](VideoTrack &track) { track.storedSize = QSize(1279, 540); });
    video("only nearly as high as the box, for the sake of even sizes", "",
          [](VideoTrack &track) { track.storedSize = QSize(960, 719); });
    video("two pixels lower than the box", "960x718 isn't scaled to fit 1280x720",
          [](VideoTrack &track) { track.storedSize = QSize(960, 718); });
    video("two pixels narrower than the box", "1278x540 isn't scaled to fit 1280x720",
          [](VideoTrack &track) { track.storedSize = QSize(1278, 540); });
    video("one pixel wider than the box", "1281x720 isn't scaled to fit 1280x720",
          [](VideoTrack &track) { track.storedSize = QSize(1281, 720); });
    video("one pixel higher than the box", "1280x721 isn't scaled to fit 1280x720",
          [](VideoTrack &track) { track.storedSize = QSize(1280, 721); });
    const auto kept = [&row](const char *name, const char *deviation, const QSize &size) {
        row(name, deviation, [size](OutputSettings &asked, WrittenFile &file, MediaFacts &source) {
            keepAll(asked, file, source);
            file.facts.videoTracks[0].storedSize = size;
        });
    };
    kept("nothing asked, and nearly the source's size for the sake of even sizes", "",
         QSize(1919, 1079));
    kept("nothing asked, and narrower", "1918x1080, not 1920x1080", QSize(1918, 1080));
    kept("nothing asked, and lower", "1920x1078, not 1920x1080", QSize(1920, 1078));
    row("a source that is smaller than the box", "",
        [](OutputSettings &, WrittenFile &file, MediaFacts &source) {
            source.videoTracks[0].storedSize = QSize(640, 360);
            file.facts.videoTracks[0].storedSize = QSize(640, 360);
        });
    video("pixels that aren't square", "2560x720 isn't scaled to fit 1280x720",
          [](VideoTrack &track) {
              track.pixelAspect = {2, 1};
          });
    row("the pixels of a fixed frame", "",
        [](OutputSettings &asked, WrittenFile &file, MediaFacts &) {
            asked.extension = QStringLiteral("mov");
            asked.videoCodec = QStringLiteral("dvvideo");
            asked.box = QSize(720, 576);
            file.facts.videoTracks[0].codec = QStringLiteral("dvvideo");
            file.facts.videoTracks[0].storedSize = QSize(720, 576);
            file.facts.videoTracks[0].pixelAspect = {64, 45};
        });
    video("another frame rate", "25 fps, not 29.97", [](VideoTrack &track) {
        track.frameRate = {25, 1};
    });
    video("a rounded frame rate", "", [](VideoTrack &track) { track.frameRate = {30, 1}; });
    video("an unknown frame rate", "0 fps, not 29.97",
          [](VideoTrack &track) { track.frameRate = {}; });
    const auto frameRate = [&video](const char *name, const char *deviation, const Ratio &rate) {
        video(name, deviation, [rate](VideoTrack &track) { track.frameRate = rate; });
    };
    frameRate("a frame rate nearly one percent lower", "", {297, 10});
    frameRate("a frame rate nearly one percent higher", "", {302, 10});
    frameRate("a frame rate over one percent lower", "29.6 fps, not 29.97", {296, 10});
    frameRate("a frame rate over one percent higher", "30.3 fps, not 29.97", {303, 10});
    bytes("video of two and a half times the bitrate", "", 0, 1250000);
    bytes("far too much video", "video has 12000 kbps, more than 10000", 0, 1500000);
    bytes("an easy picture far below the bitrate", "", 0, 1000);
    bytes("no video at all", "video has 0 kbps, more than 10000", 0, 0);
    row("video beyond the device's peak", "video has 6400 kbps, more than 6000",
        [](OutputSettings &asked, WrittenFile &file, MediaFacts &) {
            asked.peakKbps = 6000;
            file.streamBytes[0] = 800000;
        });
    row("a level beyond the device's", "the level is 4.2, not 4.1",
        [](OutputSettings &asked, WrittenFile &file, MediaFacts &) {
            asked.level = QStringLiteral("4.1");
            file.facts.videoTracks[0].level = 42;
        });
    const auto bits = [&row](const char *name, const char *deviation, int asked, const char *source,
                             const char *result) {
        row(name, deviation, [=](OutputSettings &preset, WrittenFile &file, MediaFacts &before) {
            preset.bitDepth = asked;
            before.videoTracks[0].pixelFormat = QLatin1String(source);
            file.facts.videoTracks[0].pixelFormat = QLatin1String(result);
        });
    };
    bits("more bits than the device plays", "10 bits per colour, not 8", 8, "yuv420p10le",
         "yuv420p10le");
    bits("as many bits as it plays", "", 8, "yuv420p10le", "yuv420p");
    bits("bits that the device would play", "8 bits per colour, not 10", 10, "yuv420p10le",
         "yuv420p");
    bits("bits that the source doesn't have", "", 10, "yuv420p", "yuv420p");
    bits("any bits", "", 0, "yuv420p10le", "yuv420p");
    row("another tag than the preset's", "the tag is FMP4, not XVID",
        [](OutputSettings &asked, WrittenFile &file, MediaFacts &) {
            asked.videoTag = QStringLiteral("XVID");
            file.facts.videoTracks[0].codecTag = QStringLiteral("FMP4");
        });
    row("no video bitrate of a codec that sets its own", "",
        [](OutputSettings &asked, WrittenFile &file, MediaFacts &) {
            asked.extension = QStringLiteral("mov");
            asked.videoCodec = QStringLiteral("prores");
            file.facts.videoTracks[0].codec = QStringLiteral("prores");
            file.streamBytes[0] = 5000000;
        });
    row("bitrates are for the length of the source", "",
        [](OutputSettings &, WrittenFile &file, MediaFacts &source) {
            source.duration = 10;
            file.facts.duration = 10;
            file.streamBytes = {{0, 5000000}, {1, 240000}};
        });

    row("no audio", "there is no audio",
        [](OutputSettings &, WrittenFile &file, MediaFacts &) { file.facts.audioTracks.clear(); });
    row("a source without audio", "", [](OutputSettings &, WrittenFile &file, MediaFacts &source) {
        source.audioTracks.clear();
        file.facts.audioTracks.clear();
    });
    row("audio in a container without any", "there is audio",
        [](OutputSettings &asked, WrittenFile &file, MediaFacts &) {
            asked.extension = QStringLiteral("gif");
            asked.videoCodec = QStringLiteral("gif");
            file.facts.container = QStringLiteral("gif");
            file.facts.videoTracks[0].codec = QStringLiteral("gif");
            file.facts.videoTracks[0].frameRate = {25, 1};
        });
    audio("another audio codec", "mp3, not aac",
          [](AudioTrack &track) { track.codec = QStringLiteral("mp3"); });
    audio("another sample rate", "44100 Hz, not 48000",
          [](AudioTrack &track) { track.sampleRate = 44100; });
    audio("other channels", "1 channels, not 2", [](AudioTrack &track) { track.channels = 1; });
    bytes("audio of nearly twice the bitrate", "", 1, 47875);
    bytes("audio of twice the bitrate", "audio has 384 kbps, not 192", 1, 48000);
    bytes("audio of little over half the bitrate", "", 1, 12125);
    bytes("audio of half the bitrate", "audio has 96 kbps, not 192", 1, 12000);
    bytes("far too much audio", "audio has 800 kbps, not 192", 1, 100000);
    bytes("far too little audio", "audio has 32 kbps, not 192", 1, 4000);
}

void TestWrittenFile::aDeviationIsReported()
{
    QFETCH(Change, change);
    QFETCH(QString, deviation);
    OutputSettings asked = askedSettings();
    WrittenFile file = writtenFile();
    MediaFacts source = sourceFacts();
    change(asked, file, source);
    QCOMPARE(file.deviations(asked, source).join(QStringLiteral("; ")), deviation);
}

void TestWrittenFile::allDeviationsAreReported()
{
    WrittenFile file = writtenFile();
    file.facts.videoTracks[0].codec = QStringLiteral("hevc");
    file.facts.audioTracks[0].channels = 6;
    QCOMPARE(file.deviations(askedSettings(), sourceFacts()),
             QStringList({QStringLiteral("hevc, not h264"), QStringLiteral("6 channels, not 2")}));
}

void TestWrittenFile::packetsAreCountedByStream()
{
    WrittenFile file;
    file.readPackets("0,1000\n1,20\n0,234,more\r\n\n1,\n2,7");
    QCOMPARE(file.streamBytes, (QHash<int, qint64>{{0, 1234}, {1, 20}, {2, 7}}));
}

void TestWrittenFile::implausiblePacketsAreNotCounted()
{
    WrittenFile file;
    file.readPackets("0,9223372036854775807\n0,9223372036854775807\n0,-5\n-1,5\nN/A,5\n0,8");
    QCOMPARE(file.streamBytes, (QHash<int, qint64>{{0, 8}}));
}

QTEST_GUILESS_MAIN(TestWrittenFile)
#include "tst_writtenfile.moc"
