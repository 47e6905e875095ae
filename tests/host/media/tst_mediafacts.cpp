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

    void aProbedFilmTellsItsTracks();
    void subtitlesAttachmentsAndChaptersAreTold();
    void anHdrPictureTellsItsLight();
    void theFieldOrderIsThatOfDisplay_data();
    void theFieldOrderIsThatOfDisplay();
    void aLosslessTrackTellsItsBits();
    void whatIsNoProbeHoldsNothing_data();
    void whatIsNoProbeHoldsNothing();
    void theShownSizeIsUprightWithSquarePixels_data();
    void theShownSizeIsUprightWithSquarePixels();
    void theRotationIsTheTurnToTheRight_data();
    void theRotationIsTheTurnToTheRight();
    void aVariableRateIsTheAverage();
    void aRateFasterThanCamerasIsNoSteadyOne_data();
    void aRateFasterThanCamerasIsNoSteadyOne();
    void theRateIsUnknownWhenTheFileDoesNotSay();
    void aCoverIsNoPicture();
    void theDefaultTrackComesFirst();
    void withoutADefaultTheFirstTrackIsTaken();
    void theDurationComesFromATrackWhenTheFileHasNone();
    void otherStreamsAreLeftOut();
    void theSummaryIsOneLineForPeople_data();
    void theSummaryIsOneLineForPeople();

private:
    static MediaFacts probe(const QByteArray &streams,
                            const QByteArray &format = R"("duration": "2.5")")
    {
        return MediaFacts::fromProbe("{\"streams\": [" + streams + "], \"format\": {" + format +
                                     "}}");
    }

    std::optional<MessageLog> m_log;
};

void TestMediaFacts::aProbedFilmTellsItsTracks()
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

void TestMediaFacts::subtitlesAttachmentsAndChaptersAreTold()
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

void TestMediaFacts::anHdrPictureTellsItsLight()
{
    const MediaFacts facts = probe(R"({"codec_type": "video", "codec_name": "hevc",
        "codec_tag_string": "hvc1", "profile": "Main 10", "level": 150,
        "pix_fmt": "yuv420p10le", "color_range": "tv", "color_space": "bt2020nc",
        "color_transfer": "smpte2084", "color_primaries": "unknown",
        "side_data_list": [
            {"side_data_type": "Mastering display metadata", "red_x": "34000/50000",
             "red_y": "16000/50000", "green_x": "13250/50000", "green_y": "34500/50000",
             "blue_x": "7500/50000", "blue_y": "3000/50000", "white_point_x": "15635/50000",
             "white_point_y": "16450/50000", "min_luminance": "50/10000",
             "max_luminance": "10000000/10000"},
            {"side_data_type": "Content light level metadata", "max_content": 1000,
             "max_average": 400}]})");
    const VideoTrack &track = facts.videoTracks.constFirst();
    QCOMPARE(track.codecTag, QStringLiteral("hvc1"));
    QCOMPARE(track.profile, QStringLiteral("Main 10"));
    QCOMPARE(track.level, 150);
    QCOMPARE(track.pixelFormat, QStringLiteral("yuv420p10le"));
    QCOMPARE(track.colour.range, QStringLiteral("tv"));
    QCOMPARE(track.colour.matrix, QStringLiteral("bt2020nc"));
    QCOMPARE(track.colour.primaries, QString());
    QVERIFY(track.colour.isHdr());
    QVERIFY(track.masteringDisplay.has_value());
    QVERIFY((track.masteringDisplay->green.y == Ratio{345, 500}));
    QVERIFY((track.masteringDisplay->white.x == Ratio{15635, 50000}));
    QVERIFY((track.masteringDisplay->brightest == Ratio{1000, 1}));
    QVERIFY(track.lightLevel.has_value());
    QCOMPARE(track.lightLevel->brightestPixel, 1000);
    QCOMPARE(track.lightLevel->brightestFrame, 400);
    QVERIFY(!probe(R"({"codec_type": "video"})").videoTracks.constFirst().colour.isHdr());
}

void TestMediaFacts::theFieldOrderIsThatOfDisplay_data()
{
    QTest::addColumn<QByteArray>("told");
    QTest::addColumn<int>("order");
    QTest::newRow("frames") << QByteArray("progressive") << int(VideoTrack::Progressive);
    QTest::newRow("top") << QByteArray("tt") << int(VideoTrack::TopFieldFirst);
    QTest::newRow("bottom") << QByteArray("bb") << int(VideoTrack::BottomFieldFirst);
    QTest::newRow("stored top, shown bottom first")
        << QByteArray("tb") << int(VideoTrack::BottomFieldFirst);
    QTest::newRow("stored bottom, shown top first")
        << QByteArray("bt") << int(VideoTrack::TopFieldFirst);
    QTest::newRow("nothing") << QByteArray("unknown") << int(VideoTrack::UnknownOrder);
}

void TestMediaFacts::theFieldOrderIsThatOfDisplay()
{
    QFETCH(QByteArray, told);
    const MediaFacts facts = probe(R"({"codec_type": "video", "field_order": ")" + told + R"("})");
    QTEST(int(facts.videoTracks.constFirst().fieldOrder), "order");
}

void TestMediaFacts::aLosslessTrackTellsItsBits()
{
    const auto bits = [](const QByteArray &keys) {
        return probe(R"({"codec_type": "audio", )" + keys + "}").audioTracks.constFirst();
    };
    QCOMPARE(bits(R"("bits_per_raw_sample": "24", "bits_per_sample": 0)").bitsPerSample, 24);
    QCOMPARE(bits(R"("bits_per_sample": 16, "sample_fmt": "s16")").bitsPerSample, 16);
    QCOMPARE(bits(R"("bits_per_sample": 0, "sample_fmt": "fltp")").bitsPerSample, 0);
    QCOMPARE(bits(R"("bits_per_raw_sample": "99")").bitsPerSample, 0);
    QCOMPARE(bits(R"("bit_rate": "128000")").kbps, 128.0);
}

void TestMediaFacts::whatIsNoProbeHoldsNothing_data()
{
    QTest::addColumn<QByteArray>("json");
    QTest::newRow("empty") << QByteArray();
    QTest::newRow("empty object") << QByteArray("{}");
    QTest::newRow("list") << QByteArray("[1]");
    QTest::newRow("no JSON") << QByteArray("ffprobe: error");
    QTest::newRow("wrong types") << QByteArray(R"({"streams": 3, "format": "x"})");
}

void TestMediaFacts::whatIsNoProbeHoldsNothing()
{
    QFETCH(QByteArray, json);
    const MediaFacts facts = MediaFacts::fromProbe(json);
    QVERIFY(facts.isEmpty());
    QCOMPARE(facts.duration, 0.0);
    QVERIFY(facts.video() == nullptr);
    QVERIFY(facts.audio() == nullptr);
    QVERIFY(facts.cover() == nullptr);
}

void TestMediaFacts::theShownSizeIsUprightWithSquarePixels_data()
{
    QTest::addColumn<QByteArray>("more");
    QTest::addColumn<QSize>("shown");

    QTest::newRow("plain") << QByteArray(R"("sample_aspect_ratio": "1:1")") << QSize(720, 480);
    QTest::newRow("aspect unknown")
        << QByteArray(R"("sample_aspect_ratio": "0:1")") << QSize(720, 480);
    QTest::newRow("narrow pixels")
        << QByteArray(R"("sample_aspect_ratio": "8:9")") << QSize(640, 480);
    QTest::newRow("wide pixels") << QByteArray(R"("sample_aspect_ratio": "32:27")")
                                 << QSize(853, 480);
    QTest::newRow("turned by the matrix")
        << QByteArray(
               R"("side_data_list": [{"side_data_type": "Display Matrix", "rotation": -90}])")
        << QSize(480, 720);
    QTest::newRow("turned behind other side data")
        << QByteArray(R"("side_data_list": [{"side_data_type": "CPB"}, {"rotation": 90}])")
        << QSize(480, 720);
    QTest::newRow("upside down") << QByteArray(R"("side_data_list": [{"rotation": 180}])")
                                 << QSize(720, 480);
    QTest::newRow("turned by the tag")
        << QByteArray(R"("tags": {"rotate": "270"})") << QSize(480, 720);
    QTest::newRow("turned with narrow pixels")
        << QByteArray(R"("sample_aspect_ratio": "8:9", "side_data_list": [{"rotation": 90}])")
        << QSize(480, 640);
}

void TestMediaFacts::theShownSizeIsUprightWithSquarePixels()
{
    QFETCH(QByteArray, more);
    QFETCH(QSize, shown);
    const MediaFacts facts =
        probe(R"({"codec_type": "video", "width": 720, "height": 480, )" + more + "}");
    QCOMPARE(facts.video()->displaySize(), shown);
    QCOMPARE(facts.video()->storedSize, QSize(720, 480));
}

void TestMediaFacts::theRotationIsTheTurnToTheRight_data()
{
    QTest::addColumn<QByteArray>("said");
    QTest::addColumn<int>("rotation");
    // The matrix counts to the left, the tag to the right.
    QTest::newRow("matrix, right") << QByteArray(R"("side_data_list": [{"rotation": -90}])") << 90;
    QTest::newRow("matrix, left") << QByteArray(R"("side_data_list": [{"rotation": 90}])") << 270;
    QTest::newRow("matrix, over") << QByteArray(R"("side_data_list": [{"rotation": -180}])") << 180;
    QTest::newRow("tag, right") << QByteArray(R"("tags": {"rotate": "90"})") << 90;
    QTest::newRow("tag, left") << QByteArray(R"("tags": {"rotate": "270"})") << 270;
    QTest::newRow("tag, left, negative") << QByteArray(R"("tags": {"rotate": "-90"})") << 270;
}

void TestMediaFacts::theRotationIsTheTurnToTheRight()
{
    QFETCH(QByteArray, said);
    QTEST(probe(R"({"codec_type": "video", )" + said + "}").video()->rotation, "rotation");
}

void TestMediaFacts::aRateFasterThanCamerasIsNoSteadyOne_data()
{
    QTest::addColumn<QByteArray>("nominal");
    QTest::addColumn<bool>("isSteady");
    QTest::newRow("fastest") << QByteArray("240/1") << true;
    QTest::newRow("faster") << QByteArray("241/1") << false;
}

void TestMediaFacts::aRateFasterThanCamerasIsNoSteadyOne()
{
    QFETCH(QByteArray, nominal);
    QFETCH(bool, isSteady);
    const MediaFacts facts = probe(R"({"codec_type": "video", "r_frame_rate": ")" + nominal +
                                   R"(", "avg_frame_rate": "30/1"})");
    QCOMPARE(facts.video()->hasSteadyRate, isSteady);
    QCOMPARE(facts.video()->frameRate.value(), isSteady ? 240.0 : 30.0);
}

void TestMediaFacts::aVariableRateIsTheAverage()
{
    const MediaFacts facts = probe(
        R"({"codec_type": "video", "r_frame_rate": "90000/1", "avg_frame_rate": "2997/100"})");
    QVERIFY(!facts.video()->hasSteadyRate);
    QCOMPARE(facts.video()->frameRate.value(), 29.97);
}

void TestMediaFacts::theRateIsUnknownWhenTheFileDoesNotSay()
{
    const MediaFacts facts =
        probe(R"({"codec_type": "video", "r_frame_rate": "0/0", "avg_frame_rate": "0/0"})");
    QVERIFY(!facts.video()->frameRate.isValid());
    QVERIFY(!facts.video()->hasSteadyRate);
}

void TestMediaFacts::aCoverIsNoPicture()
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

void TestMediaFacts::theSummaryIsOneLineForPeople_data()
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

void TestMediaFacts::theSummaryIsOneLineForPeople()
{
    QFETCH(QByteArray, streams);
    QFETCH(QString, summary);
    QCOMPARE(probe(streams, R"("duration": "61.6", "size": "1536")").summary(), summary);
}

QTEST_GUILESS_MAIN(TestMediaFacts)
#include "tst_mediafacts.moc"
