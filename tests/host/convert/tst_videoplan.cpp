#include "host/convert/frametiming.h"
#include "host/convert/videoplan.h"
#include "tests/host/convert/plannedcommand.h"

using namespace PlannedCommand;

Q_DECLARE_METATYPE(Ratio)

class TestVideoPlan : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void thePictureHasTheAskedSize_data();
    void thePictureHasTheAskedSize() { compareWithRow(); }
    void thePictureHasARateOfItsCodec_data();
    void thePictureHasARateOfItsCodec() { compareWithRow(); }
    void aPresetsRateIsACeiling_data();
    void aPresetsRateIsACeiling();
    void aVariableRateStaysVariableWhereItCan_data();
    void aVariableRateStaysVariableWhereItCan();
    void aVariableRateBecomesConstantOnDemand();
    void theEncoderGetsItsOptions_data();
    void theEncoderGetsItsOptions() { compareWithRow(); }
    void theFirstPassWritesOnlyWhatTheSecondNeeds_data();
    void theFirstPassWritesOnlyWhatTheSecondNeeds();
    void aCopyHasNoMoreBitsThanTheDevicePlays();
};

void TestVideoPlan::thePictureHasTheAskedSize_data()
{
    addColumns();
    const MediaFacts turned = facts(film(), [](MediaFacts &f) { f.videoTracks[0].rotation = 90; });
    row("portrait by its turn",
        with(video("mp4", "h264"), [](OutputSettings &s) { s.box = QSize(1280, 720); }), turned,
        "-map 0:0 -map 0:1 -c:v:0 libx264 -fps_mode:v:0 vfr -filter:v:0 scale=720:1280,setsar=1 "
        "-pix_fmt:v:0 yuv420p -preset:v:0 medium "
        "-crf:v:0 21.5 -c:a:0 copy -movflags +faststart "
        "-f mp4");
    row("wide pixels become square in a box",
        with(video("mp4", "h264"), [](OutputSettings &s) { s.box = QSize(1920, 1080); }),
        facts(film(),
              [](MediaFacts &f) {
                  f.videoTracks[0].storedSize = QSize(720, 576);
                  f.videoTracks[0].pixelAspect = {64, 45};
              }),
        "-map 0:0 -map 0:1 -c:v:0 libx264 -fps_mode:v:0 vfr -filter:v:0 scale=1024:576,setsar=1 "
        "-pix_fmt:v:0 yuv420p -preset:v:0 medium "
        "-crf:v:0 21.5 -c:a:0 copy -movflags +faststart "
        "-f mp4");
    const MediaFacts odd =
        facts(film(), [](MediaFacts &f) { f.videoTracks[0].storedSize = QSize(321, 241); });
    row("an odd size is made even", video("mp4", "h264"),
        facts(odd, [](MediaFacts &f) { f.videoTracks[0].codec = QStringLiteral("vp9"); }),
        "-map 0:0 -map 0:1 -c:v:0 libx264 -fps_mode:v:0 vfr -filter:v:0 scale=320:240 "
        "-pix_fmt:v:0 yuv420p "
        "-preset:v:0 medium "
        "-crf:v:0 21.5 -c:a:0 copy -movflags +faststart -f mp4");
    row("an odd size stays where it may", video("gif"), odd,
        "-f png_pipe -i file: -filter_complex [0:0]null[picture];[picture][1:0]paletteuse[drawn] "
        "-map [drawn] -map_metadata:s:v:0 0:s:0 -c:v:0 gif -fps_mode:v:0 vfr -f gif");
    row("an unknown size is left alone",
        with(video("mp4", "h264"), [](OutputSettings &s) { s.box = QSize(640, 360); }),
        facts(film(),
              [](MediaFacts &f) {
                  f.videoTracks[0].codec = QStringLiteral("vp9");
                  f.videoTracks[0].storedSize = QSize();
              }),
        "-map 0:0 -map 0:1 -c:v:0 libx264 -fps_mode:v:0 vfr -pix_fmt:v:0 yuv420p "
        "-preset:v:0 medium "
        "-crf:v:0 21.5 "
        "-c:a:0 copy -movflags +faststart -f mp4");
    row("a fixed frame keeps the picture's shape", video("dv"),
        facts(film(), [](MediaFacts &f) { f.videoTracks[0].storedSize = QSize(1920, 800); }),
        "-map 0:0 -map 0:1 -c:v:0 dvvideo -r:v:0 25 -fps_mode:v:0 cfr -filter:v:0 "
        "scale=720:426,pad=720:576:(ow-iw)/2:(oh-ih)/2,setsar=64/45 -pix_fmt:v:0 yuv420p "
        "-c:a:0 pcm_s16le -filter:a:0 apad,asetpts=PTS-0.04/TB -shortest -f dv");

    row("an odd size is made even as it is shown", video("mkv", "h264"),
        facts(odd,
              [](MediaFacts &f) {
                  f.videoTracks[0].storedSize = QSize(320, 241);
                  f.videoTracks[0].rotation = 90;
              }),
        "-map 0:0 -map 0:1 -c:v:0 libx264 -fps_mode:v:0 vfr -filter:v:0 scale=240:320 -pix_fmt:v:0 "
        "yuv420p "
        "-preset:v:0 medium "
        "-crf:v:0 21.5 -c:a:0 copy -f matroska");
}

void TestVideoPlan::thePictureHasARateOfItsCodec_data()
{
    addColumns();
    row("the nearest rate that the codec has", video("mpg"),
        facts(film(),
              [](MediaFacts &f) {
                  f.videoTracks[0].frameRate = {15, 1};
              }),
        "-map 0:0 -map 0:1 -c:v:0 mpeg2video -r:v:0 24000/1001 -fps_mode:v:0 cfr -pix_fmt:v:0 "
        "yuv420p -q:v:0 4 "
        "-c:a:0 mp2 -b:a:0 256k -f mpeg");
    row("an asked rate that the codec lacks",
        with(video("mpg"),
             [](OutputSettings &s) {
                 s.frameRate = {48, 1};
                 s.frameRateMode = OutputSettings::FrameRateMode::Fixed;
             }),
        film(),
        "-map 0:0 -map 0:1 -c:v:0 mpeg2video -r:v:0 50 -fps_mode:v:0 cfr -pix_fmt:v:0 yuv420p "
        "-q:v:0 4 "
        "-c:a:0 mp2 -b:a:0 256k -f mpeg");
    row("an average becomes a usual rate", video("avi", "mpeg4"),
        facts(film(),
              [](MediaFacts &f) {
                  f.videoTracks[0].frameRate = {359640, 11999};
                  f.videoTracks[0].hasSteadyRate = false;
              }),
        "-map 0:0 -map 0:1 -c:v:0 mpeg4 -r:v:0 30000/1001 -fps_mode:v:0 cfr -filter:v:0 "
        "fps=30000/1001 -pix_fmt:v:0 yuv420p "
        "-q:v:0 4 "
        "-c:a:0 copy -avoid_negative_ts disabled -f avi");
    row("an unknown rate is left to ffmpeg", video("mpg", "mpeg2video"),
        facts(film(),
              [](MediaFacts &f) {
                  f.videoTracks[0].frameRate = Ratio();
                  f.videoTracks[0].hasSteadyRate = false;
                  f.audioTracks.clear();
              }),
        "-map 0:0 -c:v:0 mpeg2video -fps_mode:v:0 vfr -pix_fmt:v:0 yuv420p -q:v:0 4 -f mpeg");

    row("of two rates as near the higher one", video("gif"),
        facts(film(),
              [](MediaFacts &f) {
                  f.videoTracks[0].frameRate = {27, 2};
              }),
        "-f png_pipe -i file: -filter_complex [0:0]null[picture];[picture][1:0]paletteuse[drawn] "
        "-map [drawn] -map_metadata:s:v:0 0:s:0 -c:v:0 gif -r:v:0 15 -fps_mode:v:0 cfr -f gif");
}

void TestVideoPlan::aPresetsRateIsACeiling_data()
{
    QTest::addColumn<Ratio>("source");
    QTest::addColumn<Ratio>("asked");
    QTest::addColumn<Ratio>("result");
    const auto row = [](const char *name, Ratio source, Ratio asked, Ratio result) {
        QTest::newRow(name) << source << asked << result;
    };
    row("a slower source", {24, 1}, {30, 1}, {24, 1});
    row("the same to a player", {30, 1}, {30000, 1001}, {30, 1});
    row("half", {60, 1}, {30, 1}, {30, 1});
    row("half, below the ceiling", {50, 1}, {30, 1}, {25, 1});
    row("half of the television's", {60000, 1001}, {30, 1}, {30000, 1001});
    row("a quarter", {120, 1}, {30, 1}, {30, 1});
    row("half would be far below", {30, 1}, {25, 1}, {25, 1});
    row("nothing asked", {50, 1}, {}, {50, 1});
}

void TestVideoPlan::aPresetsRateIsACeiling()
{
    QFETCH(Ratio, source);
    QFETCH(Ratio, asked);
    OutputSettings settings = video("mp4", "h264");
    settings.frameRate = asked;
    QTEST(resultRate(source, settings), "result");
    settings.frameRateMode = OutputSettings::FrameRateMode::Fixed;
    QCOMPARE(resultRate(source, settings), asked.isValid() ? asked : source);
}

void TestVideoPlan::aVariableRateStaysVariableWhereItCan_data()
{
    QTest::addColumn<OutputSettings>("settings");
    QTest::addColumn<QString>("options");
    const auto row = [](const char *name, const OutputSettings &settings, const char *options) {
        QTest::newRow(name) << settings << QString::fromLatin1(options);
    };
    row("any time", video("mp4", "h264"), "-fps_mode vfr -enc_time_base 1/90000");
    row("a codec of steps", video("mp4", "mpeg4"), "-r 60 -fps_mode vfr");
    row("a container of steps", video("avi", "mpeg4"), "-r 24000/1001 -fps_mode cfr");
    row("a codec of few rates", video("mpg", "mpeg2video"), "-r 24000/1001 -fps_mode cfr");
}

void TestVideoPlan::aVariableRateStaysVariableWhereItCan()
{
    QFETCH(OutputSettings, settings);
    VideoTrack track = picture(QStringLiteral("h264"), QSize(1920, 1080));
    track.frameRate = {90, 1};
    track.averageFrameRate = {239, 10};
    const FrameTiming timing = FrameTiming::make(track, videoCodec(settings.videoCodec),
                                                 *Container::find(settings.extension), settings);
    QTEST(toArguments(timing.options()).join(QLatin1Char(' ')), "options");
}

void TestVideoPlan::aVariableRateBecomesConstantOnDemand()
{
    VideoTrack track = picture(QStringLiteral("h264"), QSize(1920, 1080));
    track.frameRate = {90, 1};
    track.averageFrameRate = {239, 10};
    OutputSettings settings = video("mp4", "h264");
    settings.keepsVariableRate = false;
    const FrameTiming timing = FrameTiming::make(track, videoCodec(settings.videoCodec),
                                                 *Container::find(settings.extension), settings);
    QVERIFY(timing.isConstant);
    QCOMPARE(timing.rate.toText(), QStringLiteral("24000/1001"));
    QCOMPARE(timing.filter, QStringLiteral("fps=24000/1001"));
    const QSet<QString> encoders = usualEncoders();
    const StreamTarget target{settings, *Container::find(settings.extension), encoders};
    QVERIFY(VideoPlan::make(track, target)->encoder != QLatin1String("copy"));
}

void TestVideoPlan::theEncoderGetsItsOptions_data()
{
    addColumns();
    row("hevc", video("mp4", "hevc", "ac3"), film(),
        "-map 0:0 -map 0:1 -c:v:0 libx265 -fps_mode:v:0 vfr -pix_fmt:v:0 yuv420p "
        "-preset:v:0 veryfast "
        "-x265-params:v:0 log-level=error -crf:v:0 23 -tag:v:0 hvc1 -c:a:0 ac3 -b:a:0 192k "
        "-movflags +faststart -f mp4");
    row("hevc outside of mp4 has no tag", video("mkv", "hevc"), film(),
        "-map 0:0 -map 0:1 -c:v:0 libx265 -fps_mode:v:0 vfr -pix_fmt:v:0 yuv420p -preset:v:0 "
        "veryfast "
        "-x265-params:v:0 log-level=error -crf:v:0 23 -c:a:0 copy -f matroska");
    row("prores takes its colours from the frames", video("mov", "prores", "aac"),
        facts(film(),
              [](MediaFacts &f) { f.videoTracks[0].pixelFormat = QStringLiteral("yuv420p"); }),
        "-map 0:0 -map 0:1 -c:v:0 prores -fps_mode:v:0 vfr -filter:v:0 "
        "setparams=colorspace=bt709:color_primaries=bt709:color_trc=bt709 "
        "-pix_fmt:v:0 yuv422p10le -color_range:v:0 tv -colorspace:v:0 bt709 "
        "-color_primaries:v:0 bt709 -color_trc:v:0 bt709 -c:a:0 copy -movflags +faststart -f mov");
    row("prores knows no bitrate",
        with(video("mov", "prores", "pcm_s16le"),
             [](OutputSettings &s) {
                 s.videoKbps = 8000;
                 s.audioKbps = 192;
             }),
        film(),
        "-map 0:0 -map 0:1 -c:v:0 prores -fps_mode:v:0 vfr -pix_fmt:v:0 yuv422p10le -c:a:0 "
        "pcm_s16le "
        "-movflags +faststart -f mov");
    row("a bitrate is a ceiling",
        with(video("wmv", "wmv2", "wmav2"),
             [](OutputSettings &s) {
                 s.videoKbps = 2000;
                 s.audioKbps = 100;
             }),
        film(),
        "-map 0:0 -map 0:1 -c:v:0 wmv2 -fps_mode:v:0 vfr -pix_fmt:v:0 yuv420p -b:v:0 2000k "
        "-qmin:v:0 4 -maxrate:v:0 2000k -bufsize:v:0 2000k -c:a:0 "
        "wmav2 "
        "-b:a:0 96k -f asf");
}

void TestVideoPlan::theFirstPassWritesOnlyWhatTheSecondNeeds_data()
{
    QTest::addColumn<OutputSettings>("settings");
    QTest::addColumn<int>("pass");
    QTest::addColumn<QString>("command");
    const auto row = [](const char *name, const OutputSettings &settings, int pass,
                        const char *command) {
        QTest::newRow(name) << settings << pass << QString::fromLatin1(command);
    };
    const auto atKbps = [](const char *codec) {
        return with(video("mkv", codec, "ac3"), [](OutputSettings &s) {
            s.videoKbps = 900;
            s.averagesBitrate = true;
            s.targetBytes = 1000000;
        });
    };
    row("ffmpeg's options", atKbps("h264"), 1,
        "-map 0:0 -c:v:0 libx264 -fps_mode:v:0 vfr -pix_fmt:v:0 yuv420p -preset:v:0 medium "
        "-b:v:0 900k -pass:v:0 1 -passlogfile:v:0 /a:b -f null -");
    row("the same again", atKbps("h264"), 2,
        "-map 0:0 -map 0:1 -c:v:0 libx264 -fps_mode:v:0 vfr -pix_fmt:v:0 yuv420p "
        "-preset:v:0 medium -b:v:0 900k -pass:v:0 2 -passlogfile:v:0 /a:b -c:a:0 ac3 -b:a:0 192k "
        "-f matroska file:/out");
    row("an encoder's own, with a safe name", atKbps("hevc"), 1,
        "-map 0:0 -c:v:0 libx265 -fps_mode:v:0 vfr -pix_fmt:v:0 yuv420p -preset:v:0 veryfast "
        "-x265-params:v:0 log-level=error:pass=1:stats=/a\\:b -b:v:0 900k -f null -");
    row("a palette", video("gif"), 1,
        "-filter_complex [0:0]null,split[seen][all];[all]palettegen[own];"
        "color=size=16x16:duration=0.04[first];[first][own]concat[palette] -map [palette] "
        "-fps_mode passthrough -c:v png -f image2 -update 1 file:/a:b -map [seen] -f null -");
}

void TestVideoPlan::theFirstPassWritesOnlyWhatTheSecondNeeds()
{
    QFETCH(OutputSettings, settings);
    QFETCH(int, pass);
    QFETCH(QString, command);
    const Result<QStringList> formed =
        ffmpegArguments(settings, film(), usualEncoders(), QStringLiteral("/in"),
                        QStringLiteral("/out"), {}, {pass, QStringLiteral("/a:b")});
    QVERIFY2(formed, formed ? "" : qPrintable(formed.error().text));
    QCOMPARE(formed->join(QLatin1Char(' ')), head + command);
}

void TestVideoPlan::aCopyHasNoMoreBitsThanTheDevicePlays()
{
    const QSet<QString> encoders = usualEncoders();
    OutputSettings settings = video("mp4", "hevc");
    VideoTrack track = picture(QStringLiteral("hevc"), QSize(1280, 720));
    track.pixelFormat = QStringLiteral("yuv420p10le");
    const auto planned = [&] {
        const StreamTarget target{settings, *Container::find(settings.extension), encoders};
        return *VideoPlan::make(track, target);
    };
    QCOMPARE(planned().encoder, QStringLiteral("copy"));
    settings.bitDepth = 10;
    QCOMPARE(planned().encoder, QStringLiteral("copy"));
    settings.bitDepth = 8;
    QCOMPARE(planned().encoder, QStringLiteral("libx265"));
    QCOMPARE(planned().pixelFormat, QStringLiteral("yuv420p"));
}

QTEST_GUILESS_MAIN(TestVideoPlan)
#include "tst_videoplan.moc"
