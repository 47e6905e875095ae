#include "host/media/mediafacts.h"
#include "tests/support/messagelog.h"

#include <QtTest>

#include <optional>

class TestProbeTracks : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init() { m_log.emplace(); }
    void cleanup()
    {
        QCOMPARE(m_log->takeAll(), QStringList());
        m_log.reset();
    }

    void anHdrTrackHasItsLightLevel();
    void theFieldOrderIsTheDisplayOrder_data();
    void theFieldOrderIsTheDisplayOrder();
    void aLosslessTrackHasItsBitDepth();
    void theDisplaySizeIsUprightWithSquarePixels_data();
    void theDisplaySizeIsUprightWithSquarePixels();
    void theRotationIsClockwise_data();
    void theRotationIsClockwise();
    void aVariableRateIsTheAverage();
    void aRateFasterThanCamerasIsNotSteady_data();
    void aRateFasterThanCamerasIsNotSteady();
    void theRateIsUnknownIfTheFileDoesNotSay();

private:
    static MediaFacts probe(const QByteArray &stream)
    {
        return MediaFacts::fromProbe("{\"streams\": [" + stream + "]}");
    }

    std::optional<MessageLog> m_log;
};

void TestProbeTracks::anHdrTrackHasItsLightLevel()
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

void TestProbeTracks::theFieldOrderIsTheDisplayOrder_data()
{
    QTest::addColumn<QByteArray>("fieldOrder");
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

void TestProbeTracks::theFieldOrderIsTheDisplayOrder()
{
    QFETCH(QByteArray, fieldOrder);
    const MediaFacts facts =
        probe(R"({"codec_type": "video", "field_order": ")" + fieldOrder + R"("})");
    QTEST(int(facts.videoTracks.constFirst().fieldOrder), "order");
}

void TestProbeTracks::aLosslessTrackHasItsBitDepth()
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

void TestProbeTracks::theDisplaySizeIsUprightWithSquarePixels_data()
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

void TestProbeTracks::theDisplaySizeIsUprightWithSquarePixels()
{
    QFETCH(QByteArray, more);
    QFETCH(QSize, shown);
    const MediaFacts facts =
        probe(R"({"codec_type": "video", "width": 720, "height": 480, )" + more + "}");
    QCOMPARE(facts.video()->displaySize(), shown);
    QCOMPARE(facts.video()->storedSize, QSize(720, 480));
}

void TestProbeTracks::theRotationIsClockwise_data()
{
    QTest::addColumn<QByteArray>("said");
    QTest::addColumn<int>("rotation");
    // The matrix counts to the left, the tag to the right.
    QTest::newRow("matrix, right") << QByteArray(R"("side_data_list": [{"rotation": -90}])") << 90;
    QTest::newRow("matrix, left") << QByteArray(R"("side_data_list": [{"rotation": 90}])") << 270;
    QTest::newRow("matrix, upside down")
        << QByteArray(R"("side_data_list": [{"rotation": -180}])") << 180;
    QTest::newRow("tag, right") << QByteArray(R"("tags": {"rotate": "90"})") << 90;
    QTest::newRow("tag, left") << QByteArray(R"("tags": {"rotate": "270"})") << 270;
    QTest::newRow("tag, left, negative") << QByteArray(R"("tags": {"rotate": "-90"})") << 270;
}

void TestProbeTracks::theRotationIsClockwise()
{
    QFETCH(QByteArray, said);
    QTEST(probe(R"({"codec_type": "video", )" + said + "}").video()->rotation, "rotation");
}

void TestProbeTracks::aRateFasterThanCamerasIsNotSteady_data()
{
    QTest::addColumn<QByteArray>("nominal");
    QTest::addColumn<bool>("isSteady");
    QTest::newRow("fastest") << QByteArray("240/1") << true;
    QTest::newRow("faster") << QByteArray("241/1") << false;
}

void TestProbeTracks::aRateFasterThanCamerasIsNotSteady()
{
    QFETCH(QByteArray, nominal);
    QFETCH(bool, isSteady);
    const MediaFacts facts = probe(R"({"codec_type": "video", "r_frame_rate": ")" + nominal +
                                   R"(", "avg_frame_rate": "30/1"})");
    QCOMPARE(facts.video()->hasSteadyRate, isSteady);
    QCOMPARE(facts.video()->frameRate.value(), isSteady ? 240.0 : 30.0);
}

void TestProbeTracks::aVariableRateIsTheAverage()
{
    const MediaFacts facts = probe(
        R"({"codec_type": "video", "r_frame_rate": "90000/1", "avg_frame_rate": "2997/100"})");
    QVERIFY(!facts.video()->hasSteadyRate);
    QCOMPARE(facts.video()->frameRate.value(), 29.97);
}

void TestProbeTracks::theRateIsUnknownIfTheFileDoesNotSay()
{
    const MediaFacts facts =
        probe(R"({"codec_type": "video", "r_frame_rate": "0/0", "avg_frame_rate": "0/0"})");
    QVERIFY(!facts.video()->frameRate.isValid());
    QVERIFY(!facts.video()->hasSteadyRate);
}

QTEST_GUILESS_MAIN(TestProbeTracks)
#include "tst_probetracks.moc"
