#include "host/media/mediainput.h"
#include "tests/host/convert/plannedcommand.h"

using namespace PlannedCommand;

class TestFfmpegArguments : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void whatMayStayIsKept_data();
    void whatMayStayIsKept() { compareWithRow(); }
    void aCoverIsKeptWhereItCanBe_data();
    void aCoverIsKeptWhereItCanBe() { compareWithRow(); }
    void editListsAreLeftOutWhereAsked_data();
    void editListsAreLeftOutWhereAsked() { compareWithRow(); }
    void whatCannotBeDoneIsSaid_data();
    void whatCannotBeDoneIsSaid();
    void anotherEncoderOfTheCodecIsTaken();
    void pathsAreTakenAsFiles();
    void aCutIsReadFromTheSource_data();
    void aCutIsReadFromTheSource();
    void aSourceOfUnknownContainerMayBeReadByAnyDemuxer();
};

void TestFfmpegArguments::whatMayStayIsKept_data()
{
    addColumns();
    row("all kept", video("mp4"), film(),
        "-map 0:0 -map 0:1 -c:v:0 copy -c:a:0 copy -movflags +faststart -f mp4");
    OutputSettings stated = video("mp4");
    stated.mustEncode = true;
    row("not where the preset states how to encode", stated, film(),
        "-map 0:0 -map 0:1 -c:v:0 libx264 -fps_mode:v:0 vfr -pix_fmt:v:0 yuv420p -preset:v:0 "
        "medium -crf:v:0 21.5 -c:a:0 copy -movflags +faststart -f mp4");
    row("kept hevc gets the tag of all players", video("mov"),
        facts(film(), [](MediaFacts &f) { f.videoTracks[0].codec = QStringLiteral("hevc"); }),
        "-map 0:0 -map 0:1 -c:v:0 copy -tag:v:0 hvc1 -c:a:0 copy -movflags +faststart -f mov");
    row("codecs that the file can't hold become the usual ones", video("webm"), film(),
        "-map 0:0 -map 0:1 -c:v:0 libvpx-vp9 -fps_mode:v:0 vfr -pix_fmt:v:0 yuv420p -deadline:v:0 "
        "good "
        "-cpu-used:v:0 5 -row-mt:v:0 1 -max-intra-rate:v:0 200 -crf:v:0 31 -b:v:0 0 -c:a:0 libopus "
        "-b:a:0 128k -f webm");
    row("kept codec, other size",
        with(video("mkv"), [](OutputSettings &s) { s.box = QSize(1280, 720); }), film(),
        "-map 0:0 -map 0:1 -c:v:0 libx264 -fps_mode:v:0 vfr -filter:v:0 scale=1280:720,setsar=1 "
        "-pix_fmt:v:0 yuv420p "
        "-preset:v:0 medium "
        "-crf:v:0 21.5 -c:a:0 copy -f matroska");
    row("kept codec, box larger than the picture",
        with(video("mkv"), [](OutputSettings &s) { s.box = QSize(3840, 2160); }), film(),
        "-map 0:0 -map 0:1 -c:v:0 copy -c:a:0 copy -f matroska");
    row("kept codec, other rate",
        with(video("mkv"),
             [](OutputSettings &s) {
                 s.frameRate = {20, 1};
             }),
        film(),
        "-map 0:0 -map 0:1 -c:v:0 libx264 -r:v:0 20 -fps_mode:v:0 vfr -filter:v:0 "
        "select=isnan(prev_t)+gt(floor(t*20+0.25)\\,floor(prev_t*20+0.25)) "
        "-pix_fmt:v:0 yuv420p -preset:v:0 medium "
        "-crf:v:0 21.5 -c:a:0 copy -f matroska");
    row("kept codec, the source's rate",
        with(video("mkv"),
             [](OutputSettings &s) {
                 s.frameRate = {25, 1};
             }),
        film(), "-map 0:0 -map 0:1 -c:v:0 copy -c:a:0 copy -f matroska");
    row("kept codec, a bitrate",
        with(video("mkv"),
             [](OutputSettings &s) {
                 s.videoKbps = 1500;
                 s.audioKbps = 96;
             }),
        film(),
        "-map 0:0 -map 0:1 -c:v:0 libx264 -fps_mode:v:0 vfr -pix_fmt:v:0 yuv420p -preset:v:0 "
        "medium "
        "-crf:v:0 21.5 -maxrate:v:0 1500k -bufsize:v:0 1500k -c:a:0 aac -b:a:0 96k -f matroska");
    row("kept codec without an encoder becomes the usual one",
        with(video("mkv"),
             [](OutputSettings &s) {
                 s.videoKbps = 1500;
                 s.sampleRate = 44100;
             }),
        facts(film(),
              [](MediaFacts &f) {
                  f.videoTracks[0].codec = QStringLiteral("wmv1");
                  f.audioTracks[0].codec = QStringLiteral("dts");
              }),
        "-map 0:0 -map 0:1 -c:v:0 libx264 -fps_mode:v:0 vfr -pix_fmt:v:0 yuv420p -preset:v:0 "
        "medium "
        "-crf:v:0 21.5 -maxrate:v:0 1500k -bufsize:v:0 1500k -c:a:0 aac -ar:a:0 44100 -b:a:0 192k "
        "-f matroska");
    const MediaFacts turned = facts(film(), [](MediaFacts &f) { f.videoTracks[0].rotation = 90; });
    row("a turned picture is kept where the turn is", video("mp4"), turned,
        "-map 0:0 -map 0:1 -c:v:0 copy -c:a:0 copy -movflags +faststart -f mp4");
    row("and written upright elsewhere", video("mkv"), turned,
        "-map 0:0 -map 0:1 -c:v:0 libx264 -fps_mode:v:0 vfr -pix_fmt:v:0 yuv420p -preset:v:0 "
        "medium "
        "-crf:v:0 21.5 -c:a:0 copy -f matroska");
}

void TestFfmpegArguments::aCoverIsKeptWhereItCanBe_data()
{
    addColumns();
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

void TestFfmpegArguments::editListsAreLeftOutWhereAsked_data()
{
    addColumns();
    const std::function<void(OutputSettings &)> without = [](OutputSettings &s) {
        s.hasEditLists = false;
    };
    row("of a container that knows them", with(video("mp4"), without), film(),
        "-map 0:0 -map 0:1 -c:v:0 copy -c:a:0 copy -movflags +faststart+negative_cts_offsets "
        "-use_editlist 0 -f mp4");
    row("of one that doesn't", with(video("mkv"), without), film(),
        "-map 0:0 -map 0:1 -c:v:0 copy -c:a:0 copy -f matroska");
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
        << audio("mp3") << silent << QStringLiteral("has no audio; choose a video preset");
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
    const Result<QStringList> formed = ffmpegArguments(
        settings, source, usualEncoders(), QStringLiteral("/in"), QStringLiteral("/out"));
    QVERIFY(!formed);
    QCOMPARE(formed.error().text, error);
    // The other encoders that it names don't exist.
    const bool isMissing = error.contains(QStringLiteral("libopencore_amrnb"));
    QCOMPARE(formed.error().kind, isMissing ? Error::EncoderMissing : Error::Failed);
}

void TestFfmpegArguments::anotherEncoderOfTheCodecIsTaken()
{
    const auto encoderOf = [](const QSet<QString> &encoders) {
        const Result<QStringList> formed = ffmpegArguments(
            video("mkv", "av1"), film(), encoders, QStringLiteral("/in"), QStringLiteral("/out"));
        return formed ? formed->value(formed->indexOf(QStringLiteral("-c:v:0")) + 1)
                      : formed.error().text;
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
    const Result<QStringList> formed =
        ffmpegArguments(video("mp4"), film(), usualEncoders(), QStringLiteral("/a/-b:%d.mp4"),
                        QStringLiteral("/c/-d.mp4"));
    QVERIFY(formed);
    QVERIFY(formed->contains(QStringLiteral("file:/a/-b:%d.mp4")));
    QCOMPARE(formed->constLast(), QStringLiteral("file:/c/-d.mp4"));
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
    const Result<QStringList> formed = ffmpegArguments(
        settings, film(), usualEncoders(), QStringLiteral("/in"), QStringLiteral("/out"));
    QVERIFY(formed);
    const QString line = formed->join(QLatin1Char(' '));
    const QString input = QStringLiteral("-protocol_whitelist file -format_whitelist mov,mp4 "
                                         "-i file:/in ");
    QVERIFY2(line.contains(QStringLiteral(" -y ") + options + input), qUtf8Printable(line));
    QCOMPARE(line.contains(QStringLiteral("-c:v:0 copy")), isCopied);
    QCOMPARE(line.contains(QStringLiteral("-c:a:0 copy")), isCopied);
}

void TestFfmpegArguments::aSourceOfUnknownContainerMayBeReadByAnyDemuxer()
{
    const QString path = QStringLiteral("/in");
    const Result<QStringList> formed =
        ffmpegArguments(video("mkv"), facts(film(), [](MediaFacts &f) { f.container.clear(); }),
                        usualEncoders(), path, QStringLiteral("/out"));
    QVERIFY(formed);
    const int whitelist = formed->indexOf(QStringLiteral("-format_whitelist"));
    QCOMPARE(formed->value(whitelist + 1), demuxersFor(path));
}

QTEST_GUILESS_MAIN(TestFfmpegArguments)
#include "tst_ffmpegarguments.moc"
