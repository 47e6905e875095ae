#include "host/convert/losses.h"
#include "tests/host/convert/plannedcommand.h"

using namespace PlannedCommand;

/*! What is said of what doesn't come along. */
class TestLosses : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void whatIsLeftOutIsNamed_data();
    void whatIsLeftOutIsNamed();
};

void TestLosses::whatIsLeftOutIsNamed_data()
{
    QTest::addColumn<OutputSettings>("settings");
    QTest::addColumn<MediaFacts>("source");
    QTest::addColumn<QString>("line");

    const MediaFacts rich = facts(film(), [](MediaFacts &f) {
        SubtitleTrack subtitles;
        subtitles.codec = QStringLiteral("hdmv_pgs_subtitle");
        f.subtitleTracks = {subtitles};
        f.audioTracks.append(sound(QStringLiteral("aac"), 2));
        f.attachments = {Attachment()};
        f.chapters = 3;
    });
    QTest::newRow("nothing") << video("mkv") << rich << QString();
    QTest::newRow("what mp4 lacks")
        << video("mp4") << rich
        << QStringLiteral("left out: subtitle tracks: 1 (hdmv_pgs_subtitle; .mp4 doesn't hold "
                          "them, .mkv does); attachments: 1 (.mp4 doesn't hold them, .mkv does)");
    QTest::newRow("not what nobody wants") << with(video("flv"), [](OutputSettings &s) {
        s.subtitles = {TrackChoice::None};
        s.audioTracks = {TrackChoice::First};
    }) << facts(rich, [](MediaFacts &f) {
        f.attachments.clear();
    }) << QStringLiteral("left out: chapters: 3 (.flv doesn't hold them, .mkv does)");
    QTest::newRow("sound alone")
        << audio("wav") << rich
        << QStringLiteral("left out: 1 of 2 audio tracks (.wav holds 1, .mka holds all); "
                          "chapters: 3 (.wav doesn't hold them, .m4a does)");
    QTest::newRow("a cover")
        << audio("wav")
        << facts(song(QStringLiteral("flac")),
                 [](MediaFacts &f) {
                     f.videoTracks = {picture(QStringLiteral("png"), QSize(8, 8))};
                     f.videoTracks[0].isCover = true;
                 })
        << QStringLiteral("left out: the cover (.wav doesn't hold it, .m4a does)");
}

void TestLosses::whatIsLeftOutIsNamed()
{
    QFETCH(OutputSettings, settings);
    QFETCH(MediaFacts, source);
    QFETCH(QString, line);
    const QSet<QString> encoders = usualEncoders();
    QCOMPARE(lossesIn(source, {settings, *Container::find(settings.extension), encoders}), line);
}

QTEST_GUILESS_MAIN(TestLosses)
#include "tst_losses.moc"
