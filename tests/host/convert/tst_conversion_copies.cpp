#include "host/convert/copycheck.h"
#include "host/tools/tool.h"
#include "tests/host/convert/conversiontest.h"
#include "tests/support/mediaclips.h"
#include "tests/support/testfiles.h"

#include <QProcess>

#include <algorithm>
#include <limits>

/*! What becomes of streams that may stay as they are. */
class TestConversionCopies : public ConversionTest
{
    Q_OBJECT

private Q_SLOTS:
    void itShowsWhatItsSourceShows_data();
    void itShowsWhatItsSourceShows();
    void framesThatShareAPacketAreSplit();
    void whatTheMuxerRefusesIsEncoded();
    void soundThatItsContainerLacksIsEncodedAlone();
    void whatItHoldsComesAlong();
    void subtitlesThatArePicturesNeedAnMkv();
    void onlyTheSubtitlesThatAreRefusedAreLeftOut();
    void aSourceThatEndsEarlyIsSaid();
    void aPictureIsShownForSoLong();

private:
    static QByteArray firstFramesOf(const QString &path);
    static int smallestVideoPacket(const QString &path);
};

QByteArray TestConversionCopies::firstFramesOf(const QString &path)
{
    const ToolCall call = ffmpegCall(firstFramesArguments(MediaClips::factsOf(path), path));
    QProcess ffmpeg;
    ffmpeg.start(call.program, call.arguments);
    ffmpeg.waitForFinished();
    return ffmpeg.readAllStandardOutput();
}

/*! In bytes. */
int TestConversionCopies::smallestVideoPacket(const QString &path)
{
    QProcess ffprobe;
    ffprobe.start(QStringLiteral("ffprobe"),
                  QStringLiteral("-v error -select_streams v -show_entries packet=size -of csv=p=0")
                          .split(QLatin1Char(' ')) +
                      QStringList{path});
    ffprobe.waitForFinished();
    int smallest = std::numeric_limits<int>::max();
    for (const QByteArray &line : ffprobe.readAllStandardOutput().split('\n')) {
        smallest = line.isEmpty() ? smallest : std::min(smallest, line.toInt());
    }
    return smallest;
}

void TestConversionCopies::itShowsWhatItsSourceShows_data()
{
    QTest::addColumn<QString>("source");
    QTest::addColumn<QString>("arguments");
    QTest::addColumn<QString>("extension");
    QTest::addColumn<bool>("isCopied");
    const QString pictures =
        QStringLiteral("-f lavfi -i testsrc2=size=128x96:rate=25:duration=2 -f lavfi -i "
                       "sine=duration=2:sample_rate=48000 -pix_fmt yuv420p ");
    const QString h264 = pictures + QStringLiteral("-c:v libx264 -bf 2 -g 25 -c:a aac");
    const QString mpeg4 = pictures + QStringLiteral("-c:v mpeg4 -bf 2 -q:v 4 -c:a libmp3lame");
    QTest::newRow("without time stamps, into mp4")
        << QStringLiteral("a.avi") << mpeg4 << QStringLiteral("mp4") << true;
    QTest::newRow("without time stamps, into mkv")
        << QStringLiteral("a.avi") << mpeg4 << QStringLiteral("mkv") << true;
    QTest::newRow("some without time stamps")
        << QStringLiteral("a.mpg")
        << pictures + QStringLiteral("-c:v mpeg2video -bf 2 -q:v 4 -c:a mp2")
        << QStringLiteral("mkv") << true;
    QTest::newRow("start codes") << QStringLiteral("a.ts") << h264 << QStringLiteral("mp4") << true;
    QTest::newRow("frames out of order where there are no time stamps")
        << QStringLiteral("a.mp4") << h264 << QStringLiteral("avi") << true;
    QTest::newRow("a raw stream") << QStringLiteral("a.h264")
                                  << pictures + QStringLiteral("-map 0 -c:v libx264 -bf 2")
                                  << QStringLiteral("mp4") << false;
    QTest::newRow("ten bits") << QStringLiteral("a.mkv")
                              << pictures + QStringLiteral("-pix_fmt yuv420p10le -c:v libx265 "
                                                           "-x265-params log-level=error -c:a aac")
                              << QStringLiteral("mp4") << true;
}

void TestConversionCopies::itShowsWhatItsSourceShows()
{
    QFETCH(QString, source);
    QFETCH(QString, arguments);
    QFETCH(QString, extension);
    QFETCH(bool, isCopied);
    QVERIFY(MediaClips::make(path(source), arguments));
    const Outcome outcome = convert(job(path(source), video(extension)));
    QCOMPARE(errorOf(outcome), QString());
    QVERIFY(qAbs(outcome->facts.duration - 2.0) < 0.2);
    const QByteArray frames = firstFramesOf(path(source));
    QCOMPARE(beginsAlike(frames, firstFramesOf(outcome->target)), isCopied);
}

void TestConversionCopies::framesThatShareAPacketAreSplit()
{
    // After two frames in one packet comes an empty one, which only players of AVI expect.
    constexpr int emptyPacket = 16;
    const QString late = path(QStringLiteral("late.avi"));
    QVERIFY(
        MediaClips::make(late, QStringLiteral("-f lavfi -i testsrc2=size=128x96:rate=25:duration=1 "
                                              "-pix_fmt yuv420p -c:v libxvid -bf 2 -q:v 4")));
    // ffmpeg leaves a gap after the first frame, other programs don't.
    const QString source = path(QStringLiteral("packed.avi"));
    QVERIFY(MediaClips::make(
        source, QStringLiteral("-fflags +genpts -i %1 -c copy -bsf:v setts=ts=N/25/TB").arg(late)));
    QVERIFY(smallestVideoPacket(source) < emptyPacket);
    const Outcome outcome = convert(job(source, video(QStringLiteral("mp4"))));
    QCOMPARE(errorOf(outcome), QString());
    QVERIFY(beginsAlike(firstFramesOf(source), firstFramesOf(outcome->target)));
    QVERIFY(smallestVideoPacket(outcome->target) > emptyPacket);
}

void TestConversionCopies::whatTheMuxerRefusesIsEncoded()
{
    // The film starts between two key frames, which only its own container can say.
    const QString source = path(QStringLiteral("cut.mp4"));
    QVERIFY(MediaClips::make(source, QStringLiteral("-ss 5.4 -t 2 -i %1 -c copy")
                                         .arg(m_clips->filePath(QStringLiteral("long.mp4")))));
    const double seconds = MediaClips::factsOf(source).duration;
    const Outcome outcome = convert(job(source, video(QStringLiteral("mkv"))));
    QCOMPARE(errorOf(outcome), QString());
    QVERIFY2(qAbs(outcome->facts.duration - seconds) < 0.15,
             qPrintable(QString::number(outcome->facts.duration)));
}

void TestConversionCopies::soundThatItsContainerLacksIsEncodedAlone()
{
    const QString source = copyOf(QStringLiteral("film.mp4"), QStringLiteral("film.mp4"));
    standIn(QStringLiteral("case \"$*\" in *'-c:a:0 copy'*) echo refused >&2; exit 1;; esac\n"
                           "exec $REAL \"$@\""));
    const Outcome outcome = convert(job(source, video(QStringLiteral("mkv"))));
    QCOMPARE(errorOf(outcome), QString());
    QVERIFY(beginsAlike(firstFramesOf(source), firstFramesOf(outcome->target)));
}

void TestConversionCopies::whatItHoldsComesAlong()
{
    QFile text(path(QStringLiteral("text.srt")));
    QVERIFY(text.open(QIODevice::WriteOnly));
    text.write("1\n00:00:00,100 --> 00:00:00,900\nGood evening\n");
    text.close();
    const QString source = path(QStringLiteral("film.mkv"));
    QVERIFY(MediaClips::make(
        source,
        QStringLiteral("-i %1 -i %2 -map 0 -map 1 -map 1 -c copy -metadata:s:s:1 language=ger "
                       "-metadata:s:a:1 title=Comment -disposition:s:1 forced "
                       "-metadata creation_time=2020-05-06T07:08:09Z "
                       "-metadata location=+48.1000+011.5000/")
            .arg(m_clips->filePath(QStringLiteral("dubbed.mkv")), text.fileName())));
    for (const char *extension : {"mp4", "mkv", "webm"}) {
        const Outcome outcome = convert(job(source, video(QLatin1String(extension))));
        QCOMPARE(errorOf(outcome), QString());
        const MediaFacts &facts = outcome->facts;
        QCOMPARE(outcome->notes(), QStringList());
        QCOMPARE(facts.audioTracks.size(), 2);
        QCOMPARE(facts.subtitleTracks.size(), 2);
        QCOMPARE(facts.subtitleTracks.at(1).language, QStringLiteral("ger"));
        QVERIFY(facts.subtitleTracks.at(1).isForced);
        QVERIFY(facts.creationTime.startsWith(QStringLiteral("2020-05-06T07:08:09")));
        QVERIFY(facts.location.startsWith(QStringLiteral("+48.1")));
    }
    OutputSettings burned = video(QStringLiteral("mkv"));
    burned.burnedSubtitles = 1;
    burned.subtitles = {TrackChoice::None};
    const Outcome drawn = convert(job(source, burned));
    QCOMPARE(errorOf(drawn), QString());
    QVERIFY(drawn->facts.subtitleTracks.isEmpty());
}

void TestConversionCopies::subtitlesThatArePicturesNeedAnMkv()
{
    // A segment that ends a picture, shown after half a second, as Blu-rays have it.
    QFile pictures(path(QStringLiteral("pictures.sup")));
    QVERIFY(pictures.open(QIODevice::WriteOnly));
    pictures.write(QByteArray::fromHex("50470000afc800000000800000"));
    pictures.close();
    const QString source = path(QStringLiteral("film.mkv"));
    QVERIFY(MediaClips::make(
        source, QStringLiteral("-i %1 -i %2 -map 0 -map 1 -c copy")
                    .arg(m_clips->filePath(QStringLiteral("film.mp4")), pictures.fileName())));
    const QString kind = QStringLiteral("hdmv_pgs_subtitle");
    QCOMPARE(MediaClips::factsOf(source).subtitleTracks.at(0).codec, kind);

    const Outcome kept = convert(job(source, video(QStringLiteral("mkv"))));
    QCOMPARE(errorOf(kept), QString());
    QCOMPARE(kept->notes(), QStringList());
    QCOMPARE(kept->facts.subtitleTracks.at(0).codec, kind);

    const Outcome lost = convert(job(source, video(QStringLiteral("mp4"))));
    QCOMPARE(errorOf(lost), QString());
    QCOMPARE(lost->notes(),
             QStringList(QStringLiteral("left out: subtitle tracks: 1 (hdmv_pgs_subtitle; .mp4 "
                                        "doesn't hold them, .mkv does)")));
    QVERIFY(lost->facts.subtitleTracks.isEmpty());
}

void TestConversionCopies::aSourceThatEndsEarlyIsSaid()
{
    const QString whole = path(QStringLiteral("whole.mkv"));
    QVERIFY(MediaClips::make(
        whole,
        QStringLiteral("-t 6 -i %1 -c copy").arg(m_clips->filePath(QStringLiteral("long.mp4")))));
    const QString source = path(QStringLiteral("short.mkv"));
    QFile cut(source);
    QVERIFY(cut.open(QIODevice::WriteOnly));
    const QByteArray bytes = contentOf(whole);
    cut.write(bytes.left(bytes.size() / 2));
    cut.close();
    OutputSettings small = video(QStringLiteral("mp4"));
    small.box = QSize(160, 120);
    for (const OutputSettings &settings : {video(QStringLiteral("mp4")), small}) {
        const Outcome outcome = convert(job(source, settings));
        QCOMPARE(errorOf(outcome), QString());
        QVERIFY2(outcome->shortfall.endsWith(
                     QStringLiteral("of 6.0 s: the source ends early or is damaged")),
                 qPrintable(outcome->shortfall));
        QVERIFY(QFile::exists(outcome->target));
    }
    QCOMPARE(convert(job(whole, video(QStringLiteral("mp4"))))->shortfall, QString());
}

void TestConversionCopies::aPictureIsShownForSoLong()
{
    const QString source = copyOf(QStringLiteral("cover.png"), QStringLiteral("cover.png"));
    OutputSettings settings = video(QStringLiteral("mp4"));
    QVERIFY(errorOf(convert(job(source, settings))).startsWith(QStringLiteral("is a single")));
    settings.stillSeconds = 1.5;
    const Outcome outcome = convert(job(source, settings));
    QCOMPARE(errorOf(outcome), QString());
    QVERIFY(qAbs(outcome->facts.duration - 1.5) < 0.1);
}

void TestConversionCopies::onlyTheSubtitlesThatAreRefusedAreLeftOut()
{
    QVERIFY(
        writeFile(path(QStringLiteral("words.srt")), "1\n00:00:00,100 --> 00:00:00,900\nHello\n"));
    const QString source = path(QStringLiteral("subtitled.mkv"));
    QVERIFY(MediaClips::make(source, QStringLiteral("-i %1 -i %2 -c copy")
                                         .arg(m_clips->filePath(QStringLiteral("film.mp4")),
                                              path(QStringLiteral("words.srt")))));
    standIn(QStringLiteral("case \"$*\" in *-c:s:0*) echo 'not this text' >&2; exit 1;; esac\n"
                           "exec $REAL \"$@\""));
    const Outcome outcome = convert(job(source, video(QStringLiteral("mp4"))));
    QVERIFY2(outcome, qPrintable(errorOf(outcome)));
    QVERIFY(outcome->facts.subtitleTracks.isEmpty());
    QCOMPARE(outcome->facts.video()->codec, QStringLiteral("h264"));
    QCOMPARE(outcome->notes(),
             QStringList(QStringLiteral("left out: subtitle tracks: 1 (subrip; they can't be "
                                        "written into this .mp4)")));
}

QTEST_GUILESS_MAIN(TestConversionCopies)
#include "tst_conversion_copies.moc"
