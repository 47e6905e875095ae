#include "tests/host/convert/plannedcommand.h"

using namespace PlannedCommand;

class TestSubtitlePlan : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void subtitlesTravelAsTheContainerHoldsThem_data();
    void subtitlesTravelAsTheContainerHoldsThem() { compareWithRow(); }
    void burnedSubtitlesAreDrawnOnThePicture_data();
    void burnedSubtitlesAreDrawnOnThePicture() { compareWithRow(); }
};

/*! The film with text in French, shown by default, and forced pictures in German. */
static MediaFacts subtitled()
{
    return facts(film(), [](MediaFacts &f) {
        SubtitleTrack text;
        text.index = 2;
        text.number = 1;
        text.codec = QStringLiteral("subrip");
        text.language = QStringLiteral("fre");
        text.isDefault = true;
        SubtitleTrack pictures = text;
        pictures.index = 3;
        pictures.number = 2;
        pictures.codec = QStringLiteral("hdmv_pgs_subtitle");
        pictures.language = QStringLiteral("ger");
        pictures.isDefault = false;
        pictures.isForced = true;
        f.subtitleTracks = {text, pictures};
    });
}

void TestSubtitlePlan::subtitlesTravelAsTheContainerHoldsThem_data()
{
    addColumns();
    row("as they are", video("mkv"), subtitled(),
        "-map 0:0 -map 0:1 -map 0:2 -map 0:3 -c:v:0 copy -c:a:0 copy -c:s:0 copy "
        "-disposition:s:0 default -c:s:1 copy -disposition:s:1 forced "
        "-default_mode infer_no_subs -f matroska");
    row("as other text, without pictures", video("mp4"), subtitled(),
        "-map 0:0 -map 0:1 -map 0:2 -c:v:0 copy -c:a:0 copy -c:s:0 mov_text "
        "-disposition:s:0 default -movflags +faststart -f mp4");
    row("not at all", video("flv"), subtitled(),
        "-map 0:0 -map 0:1 -c:v:0 copy -c:a:0 copy -f flv");
    row("none on demand",
        with(video("mkv"), [](OutputSettings &s) { s.subtitles = {TrackChoice::None}; }),
        subtitled(), "-map 0:0 -map 0:1 -c:v:0 copy -c:a:0 copy -f matroska");
    row("those of a language",
        with(video("mkv"),
             [](OutputSettings &s) {
                 s.subtitles = {TrackChoice::OfLanguage, QStringLiteral("de")};
             }),
        subtitled(),
        "-map 0:0 -map 0:1 -map 0:3 -c:v:0 copy -c:a:0 copy -c:s:0 copy "
        "-disposition:s:0 forced -default_mode infer_no_subs -f matroska");
    row("those with these numbers, and none shown by itself",
        with(video("mkv"),
             [](OutputSettings &s) {
                 s.subtitles = *TrackChoice::fromText(QStringLiteral("1,2/0"));
             }),
        subtitled(),
        "-map 0:0 -map 0:1 -map 0:2 -map 0:3 -c:v:0 copy -c:a:0 copy -c:s:0 copy "
        "-disposition:s:0 0 -c:s:1 copy -disposition:s:1 forced "
        "-default_mode infer_no_subs -f matroska");
    row("none beside sound alone", audio("mka"), subtitled(), "-map 0:1 -c:a:0 copy -f matroska");
}

void TestSubtitlePlan::burnedSubtitlesAreDrawnOnThePicture_data()
{
    addColumns();
    const auto burning = [](int number) {
        return with(video("mp4"), [number](OutputSettings &s) {
            s.burnedSubtitles = number;
            s.subtitles = {TrackChoice::None};
            s.box = QSize(1280, 720);
        });
    };
    row("text", burning(1), subtitled(),
        "-map 0:0 -map 0:1 -c:v:0 libx264 -fps_mode:v:0 vfr -filter:v:0 "
        "scale=1280:720,setsar=1,subtitles=filename=/in:si=0 -pix_fmt:v:0 yuv420p "
        "-preset:v:0 medium "
        "-crf:v:0 21.5 -c:a:0 copy -movflags +faststart -f mp4");
    row("pictures", burning(2), subtitled(),
        "-filter_complex [0:0][0:3]overlay=eof_action=pass,scale=1280:720,setsar=1[drawn] "
        "-map [drawn] -map 0:1 -map_metadata:s:v:0 0:s:0 -c:v:0 libx264 -fps_mode:v:0 vfr "
        "-pix_fmt:v:0 yuv420p -preset:v:0 medium "
        "-crf:v:0 21.5 -c:a:0 copy -movflags +faststart -f mp4");
}

QTEST_GUILESS_MAIN(TestSubtitlePlan)
#include "tst_subtitleplan.moc"
