#include "host/media/mediafacts.h"
#include "tests/support/messagelog.h"

#include <QtTest>

#include <optional>

class TestMediaFacts : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init() { m_log.emplace(); }
    void cleanup()
    {
        QCOMPARE(m_log->takeAll(), QStringList());
        m_log.reset();
    }

    void aProbedFilmHasItsTracks();
    void subtitlesAttachmentsAndChaptersAreRead();
    void anythingButProbeOutputHasNoTracks_data();
    void anythingButProbeOutputHasNoTracks();
    void aCoverIsNotTheVideo();
    void theDefaultTrackComesFirst();
    void withoutADefaultTheFirstTrackIsTaken();
    void theDurationComesFromATrackWhenTheFileHasNone();
    void otherStreamsAreLeftOut();
    void theSummaryIsOneLine_data();
    void theSummaryIsOneLine();

private:
    static MediaFacts probe(const QByteArray &streams,
                            const QByteArray &format = R"("duration": "2.5")")
    {
        return MediaFacts::fromProbe("{\"streams\": [" + streams + "], \"format\": {" + format +
                                     "}}");
    }

    std::optional<MessageLog> m_log;
};

void TestMediaFacts::aProbedFilmHasItsTracks()
{
    const MediaFacts facts = probe(
        R"({"index": 0, "codec_type": "video", "codec_name": "h264", "width": 720, "height": 576,
            "sample_aspect_ratio": "16:11", "r_frame_rate": "25/1", "avg_frame_rate": "25/1",
            "disposition": {"default": 1, "attached_pic": 0}},
           {"index": 1, "codec_type": "audio", "codec_name": "aac", "sample_rate": "44100",
            "channels": 2, "channel_layout": "stereo", "disposition": {"default": 1}})",
        R"("format_name": "mpegts", "duration": "12.345", "size": "95012")");
    QVERIFY(!facts.isEmpty());
    QCOMPARE(facts.container, QStringLiteral("mpegts"));
    QCOMPARE(facts.duration, 12.345);
    QCOMPARE(facts.bytes, 95012);

    QCOMPARE(facts.videoTracks.size(), 1);
    const VideoTrack &video = facts.videoTracks.constFirst();
    QCOMPARE(video.index, 0);
    QCOMPARE(video.codec, QStringLiteral("h264"));
    QCOMPARE(video.storedSize, QSize(720, 576));
    QVERIFY((video.pixelAspect == Ratio{16, 11}));
    QVERIFY((video.frameRate == Ratio{25, 1}));
    QVERIFY(video.hasSteadyRate);
    QVERIFY(video.isDefault);
    QVERIFY(!video.isCover);

    QCOMPARE(facts.audioTracks.size(), 1);
    const AudioTrack &audio = facts.audioTracks.constFirst();
    QCOMPARE(audio.index, 1);
    QCOMPARE(audio.codec, QStringLiteral("aac"));
    QCOMPARE(audio.sampleRate, 44100);
    QCOMPARE(audio.channels, 2);
    QCOMPARE(audio.layout, QStringLiteral("stereo"));
}

void TestMediaFacts::subtitlesAttachmentsAndChaptersAreRead()
{
    const MediaFacts facts = MediaFacts::fromProbe(R"({"streams": [
        {"index": 2, "codec_type": "subtitle", "codec_name": "subrip",
         "disposition": {"default": 0, "forced": 1},
         "tags": {"language": "ger", "title": "Untertitel"}},
        {"index": 3, "codec_type": "subtitle", "codec_name": "hdmv_pgs_subtitle"},
        {"index": 4, "codec_type": "attachment", "codec_name": "ttf",
         "tags": {"filename": "a.ttf", "mimetype": "font/ttf"}}],
        "chapters": [{"id": 0}, {"id": 1}]})");
    QCOMPARE(facts.subtitleTracks.size(), 2);
    const SubtitleTrack &text = facts.subtitleTracks.at(0);
    QCOMPARE(text.index, 2);
    QCOMPARE(text.language, QStringLiteral("ger"));
    QCOMPARE(text.title, QStringLiteral("Untertitel"));
    QVERIFY(text.isForced && text.isText());
    QVERIFY(!facts.subtitleTracks.at(1).isForced && !facts.subtitleTracks.at(1).isText());
    QCOMPARE(facts.attachments.size(), 1);
    QCOMPARE(facts.attachments.at(0).name, QStringLiteral("a.ttf"));
    QCOMPARE(facts.attachments.at(0).mimeType, QStringLiteral("font/ttf"));
    QCOMPARE(facts.chapters, 2);
}

void TestMediaFacts::anythingButProbeOutputHasNoTracks_data()
{
    QTest::addColumn<QByteArray>("json");
    QTest::newRow("empty") << QByteArray();
    QTest::newRow("empty object") << QByteArray("{}");
    QTest::newRow("list") << QByteArray("[1]");
    QTest::newRow("not JSON") << QByteArray("ffprobe: error");
    QTest::newRow("wrong types") << QByteArray(R"({"streams": 3, "format": "x"})");
}

void TestMediaFacts::anythingButProbeOutputHasNoTracks()
{
    QFETCH(QByteArray, json);
    const MediaFacts facts = MediaFacts::fromProbe(json);
    QVERIFY(facts.isEmpty());
    QCOMPARE(facts.duration, 0.0);
    QVERIFY(facts.video() == nullptr);
    QVERIFY(facts.audio() == nullptr);
    QVERIFY(facts.cover() == nullptr);
}

void TestMediaFacts::aCoverIsNotTheVideo()
{
    const MediaFacts facts = probe(
        R"({"index": 0, "codec_type": "audio", "codec_name": "mp3"},
           {"index": 1, "codec_type": "video", "disposition": {"attached_pic": 1, "default": 1}})");
    QVERIFY(facts.video() == nullptr);
    QCOMPARE(facts.cover()->index, 1);
}

void TestMediaFacts::theDefaultTrackComesFirst()
{
    const MediaFacts facts = probe(
        R"({"index": 0, "codec_type": "audio", "disposition": {"default": 0}},
           {"index": 1, "codec_type": "audio", "disposition": {"default": 1}},
           {"index": 2, "codec_type": "video", "disposition": {"default": 0}},
           {"index": 3, "codec_type": "video", "disposition": {"default": 1}})");
    QCOMPARE(facts.audio()->index, 1);
    QCOMPARE(facts.video()->index, 3);
}

void TestMediaFacts::withoutADefaultTheFirstTrackIsTaken()
{
    const MediaFacts facts = probe(R"({"index": 4, "codec_type": "audio"},
                                      {"index": 5, "codec_type": "audio"},
                                      {"index": 6, "codec_type": "video"},
                                      {"index": 7, "codec_type": "video"})");
    QCOMPARE(facts.audio()->index, 4);
    QCOMPARE(facts.video()->index, 6);
}

void TestMediaFacts::theDurationComesFromATrackWhenTheFileHasNone()
{
    const MediaFacts facts = probe(
        R"({"codec_type": "subtitle", "duration": "99"}, {"codec_type": "audio", "duration": "3.5"})",
        R"("size": "1")");
    QCOMPARE(facts.duration, 3.5);
    QCOMPARE(probe(R"({"codec_type": "audio"})", R"("duration": "N/A")").duration, 0.0);
    QCOMPARE(probe(R"({"codec_type": "audio"})", R"("duration": "-1")").duration, 0.0);
}

void TestMediaFacts::otherStreamsAreLeftOut()
{
    QVERIFY(probe(R"({"codec_type": "subtitle"}, {"codec_type": "data"}, {})").isEmpty());
}

void TestMediaFacts::theSummaryIsOneLine_data()
{
    QTest::addColumn<QByteArray>("streams");
    QTest::addColumn<QString>("summary");

    const QByteArray video = R"({"codec_type": "video", "codec_name": "h264", "width": 1280,
                                 "height": 720, "r_frame_rate": "30000/1001"})";
    const QByteArray audio =
        R"({"codec_type": "audio", "codec_name": "aac", "sample_rate": "48000", "channels": 2})";
    QTest::newRow("film") << video + "," + audio
                          << QStringLiteral("h264 1280x720 29.97 fps, aac 48000 Hz stereo, 1:02, "
                                            "1.5 kB");
    QTest::newRow("silent film") << video
                                 << QStringLiteral("h264 1280x720 29.97 fps, 1:02, 1.5 kB");
    QTest::newRow("several tracks")
        << audio + "," + audio
        << QStringLiteral("aac 48000 Hz stereo (2 audio tracks), 1:02, 1.5 kB");
    QTest::newRow("mono")
        << QByteArray(R"({"codec_type": "audio", "codec_name": "mp3", "sample_rate": "8000",
                          "channels": 1})")
        << QStringLiteral("mp3 8000 Hz mono, 1:02, 1.5 kB");
    QTest::newRow("surround")
        << QByteArray(R"({"codec_type": "audio", "codec_name": "ac3", "sample_rate": "48000",
                          "channels": 6})")
        << QStringLiteral("ac3 48000 Hz 6 channels, 1:02, 1.5 kB");
}

void TestMediaFacts::theSummaryIsOneLine()
{
    QFETCH(QByteArray, streams);
    QFETCH(QString, summary);
    QCOMPARE(probe(streams, R"("duration": "61.6", "size": "1536")").summary(), summary);
}

QTEST_GUILESS_MAIN(TestMediaFacts)
#include "tst_mediafacts.moc"
