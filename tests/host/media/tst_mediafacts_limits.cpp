#include "host/media/mediafacts.h"

#include <QtTest>

/*! A file can say anything: what can't be true counts as unknown. */
class TestMediaFactsLimits : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void implausibleVideoValuesAreUnknown_data();
    void implausibleVideoValuesAreUnknown();
    void anImplausibleFrameRateIsUnknown_data();
    void anImplausibleFrameRateIsUnknown();
    void implausibleAudioValuesAreUnknown_data();
    void implausibleAudioValuesAreUnknown();
    void anImplausibleDurationIsUnknown_data();
    void anImplausibleDurationIsUnknown();
    void anImplausibleContainerIsUnknown_data();
    void anImplausibleContainerIsUnknown();

private:
    static MediaFacts probe(const QByteArray &stream, const QByteArray &format = {})
    {
        return MediaFacts::fromProbe("{\"streams\": [" + stream + "], \"format\": {" + format +
                                     "}}");
    }
};

void TestMediaFactsLimits::implausibleVideoValuesAreUnknown_data()
{
    QTest::addColumn<QByteArray>("stream");
    QTest::addColumn<QSize>("stored");
    QTest::addColumn<QSize>("shown");
    QTest::addColumn<int>("rotation");

    const auto row = [](const char *name, const char *stream, const QSize &stored,
                        const QSize &shown, int rotation) {
        QTest::newRow(name) << QByteArray(stream) << stored << shown << rotation;
    };
    const QSize unknown(0, 0);
    row("largest", R"("width": 65536, "height": 1)", QSize(65536, 1), QSize(65536, 1), 0);
    row("too wide", R"("width": 65537, "height": 480)", unknown, unknown, 0);
    row("too high", R"("width": 720, "height": 2147483647)", unknown, unknown, 0);
    row("negative", R"("width": -720, "height": 480)", unknown, unknown, 0);
    row("beyond numbers", R"("width": 1e300, "height": 480)", unknown, unknown, 0);

    const QSize film(720, 480);
    const auto aspect = [&film](const char *name, const QByteArray &text, const QSize &shown) {
        QTest::newRow(name) << QByteArray(R"("width": 720, "height": 480, )") +
                                   R"("sample_aspect_ratio": ")" + text + '"'
                            << film << shown << 0;
    };
    aspect("widest pixels", "100:1", QSize(72000, 480));
    aspect("pixels too wide", "101:1", film);
    aspect("pixels far too wide", "2147483647:1", film);
    aspect("narrowest pixels", "1:100", QSize(7, 480));
    aspect("pixels too narrow", "1:101", film);

    const auto matrix = [&film](const char *name, const QByteArray &degrees, const QSize &shown,
                                int rotation) {
        QTest::newRow(name) << QByteArray(R"("width": 720, "height": 480, )") +
                                   R"("side_data_list": [{"rotation": )" + degrees + "}]"
                            << film << shown << rotation;
    };
    matrix("a full turn", "-360", film, 0);
    matrix("more than a turn", "450", film, 0);
    matrix("beyond numbers to the right", "-1e300", film, 0);
    matrix("beyond numbers to the left", "1e300", film, 0);
    const auto tag = [&film](const char *name, const QByteArray &text) {
        QTest::newRow(name) << QByteArray(R"("width": 720, "height": 480, )") +
                                   R"("tags": {"rotate": ")" + text + "\"}"
                            << film << film << 0;
    };
    tag("a huge tag", "9e18");
    tag("an infinite tag", "inf");
    tag("a tag that is no number", "nan");
}

void TestMediaFactsLimits::implausibleVideoValuesAreUnknown()
{
    QFETCH(QByteArray, stream);
    const MediaFacts facts = probe(R"({"codec_type": "video", )" + stream + "}");
    QTEST(facts.video()->storedSize, "stored");
    QTEST(facts.video()->displaySize(), "shown");
    QTEST(facts.video()->rotation, "rotation");
}

void TestMediaFactsLimits::anImplausibleFrameRateIsUnknown_data()
{
    QTest::addColumn<QByteArray>("average");
    QTest::addColumn<QString>("rate");
    QTest::newRow("fastest") << QByteArray("1000/1") << QStringLiteral("1000");
    QTest::newRow("too fast") << QByteArray("1001/1") << QString();
    QTest::newRow("far too fast") << QByteArray("2147483647/1") << QString();
    QTest::newRow("beyond numbers") << QByteArray("99999999999/1") << QString();
}

void TestMediaFactsLimits::anImplausibleFrameRateIsUnknown()
{
    QFETCH(QByteArray, average);
    QFETCH(QString, rate);
    const MediaFacts facts =
        probe(R"({"codec_type": "video", "r_frame_rate": "90000/1", "avg_frame_rate": ")" +
              average + "\"}");
    const Ratio read = facts.video()->frameRate;
    QCOMPARE(read.isValid() ? read.toText() : QString(), rate);
    QVERIFY(!facts.video()->hasSteadyRate);
}

void TestMediaFactsLimits::implausibleAudioValuesAreUnknown_data()
{
    QTest::addColumn<QByteArray>("stream");
    QTest::addColumn<int>("sampleRate");
    QTest::addColumn<int>("channels");
    QTest::newRow("most") << QByteArray(R"("sample_rate": "10000000", "channels": 512)") << 10000000
                          << 512;
    QTest::newRow("too much") << QByteArray(R"("sample_rate": "10000001", "channels": 513)") << 0
                              << 0;
    QTest::newRow("negative") << QByteArray(R"("sample_rate": "-48000", "channels": -2)") << 0 << 0;
    QTest::newRow("beyond numbers")
        << QByteArray(R"("sample_rate": "1e300", "channels": 1e300)") << 0 << 0;
}

void TestMediaFactsLimits::implausibleAudioValuesAreUnknown()
{
    QFETCH(QByteArray, stream);
    const MediaFacts facts = probe(R"({"codec_type": "audio", "index": -1, )" + stream + "}");
    QTEST(facts.audio()->sampleRate, "sampleRate");
    QTEST(facts.audio()->channels, "channels");
    QCOMPARE(facts.audio()->index, 0);
}

void TestMediaFactsLimits::anImplausibleDurationIsUnknown_data()
{
    QTest::addColumn<QByteArray>("duration");
    QTest::addColumn<double>("seconds");
    QTest::newRow("ten years") << QByteArray("315360000") << 315360000.0;
    QTest::newRow("twenty years") << QByteArray("630720000") << 0.0;
    QTest::newRow("huge") << QByteArray("1e300") << 0.0;
    QTest::newRow("infinite") << QByteArray("inf") << 0.0;
    QTest::newRow("not a number") << QByteArray("nan") << 0.0;
}

void TestMediaFactsLimits::anImplausibleDurationIsUnknown()
{
    QFETCH(QByteArray, duration);
    const QByteArray said = R"("duration": ")" + duration + R"(", "size": "-9223372036854775808")";
    const MediaFacts inFile = probe(R"({"codec_type": "audio"})", said);
    QTEST(inFile.duration, "seconds");
    QCOMPARE(inFile.bytes, 0);
    QTEST(probe(R"({"codec_type": "audio", )" + said + "}").duration, "seconds");
}

void TestMediaFactsLimits::anImplausibleContainerIsUnknown_data()
{
    QTest::addColumn<QByteArray>("name");
    QTest::addColumn<QString>("container");
    QTest::newRow("names of demuxers")
        << QByteArray("mov,mp4,m4a,3gp") << QStringLiteral("mov,mp4,m4a,3gp");
    QTest::newRow("none") << QByteArray() << QString();
    QTest::newRow("control character") << QByteArray("\\u0000v,mp4") << QString();
    QTest::newRow("line break") << QByteArray("mp4\\n") << QString();
}

void TestMediaFactsLimits::anImplausibleContainerIsUnknown()
{
    QFETCH(QByteArray, name);
    const MediaFacts facts = probe({}, R"("format_name": ")" + name + '"');
    QTEST(facts.container, "container");
}

QTEST_GUILESS_MAIN(TestMediaFactsLimits)
#include "tst_mediafacts_limits.moc"
