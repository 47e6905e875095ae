#include "host/convert/colourplan.h"

#include <QtTest>

Q_DECLARE_METATYPE(VideoTrack)

class TestColourPlan : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void whatASourceDoesNotTellIsTheUsual_data();
    void whatASourceDoesNotTellIsTheUsual();
    void colours_data();
    void colours();
    void unknownPixelsAreLeftAlone();
    void onlyHdr10TellsItsDisplayAndLight_data();
    void onlyHdr10TellsItsDisplayAndLight();
};

static VideoTrack track(const char *pixels, const QSize &size, const Colour &colour = {})
{
    VideoTrack made;
    made.storedSize = size;
    made.pixelFormat = QLatin1String(pixels);
    made.colour = colour;
    return made;
}

static Colour colour(const char *range, const char *matrix, const char *transfer,
                     const char *primaries)
{
    return {QLatin1String(range), QLatin1String(matrix), QLatin1String(transfer),
            QLatin1String(primaries)};
}

static QString textOf(const Colour &colour)
{
    return QStringList{colour.range, colour.matrix, colour.transfer, colour.primaries}.join(
        QLatin1Char(' '));
}

static const QSize hd(1280, 720);
static const QSize ntsc(720, 480);
static const QSize pal(720, 576);

static VideoTrack hdr10()
{
    return track("yuv420p10le", hd, colour("tv", "bt2020nc", "smpte2084", "bt2020"));
}

void TestColourPlan::whatASourceDoesNotTellIsTheUsual_data()
{
    QTest::addColumn<VideoTrack>("source");
    QTest::addColumn<QString>("shown");
    const auto row = [](const char *name, const VideoTrack &source, const char *shown) {
        QTest::newRow(name) << source << QString::fromLatin1(shown);
    };
    row("HD", track("yuv420p", hd), "tv bt709 bt709 bt709");
    row("portrait HD", track("yuv420p", hd.transposed()), "tv bt709 bt709 bt709");
    row("525 lines", track("yuv420p", ntsc), "tv smpte170m smpte170m smpte170m");
    row("625 lines", track("yuv420p", pal), "tv bt470bg smpte170m bt470bg");
    row("JPEG", track("yuvj420p", ntsc), "pc smpte170m smpte170m smpte170m");
    row("a matrix that the size doesn't have", track("yuv420p", ntsc, colour("", "bt709", "", "")),
        "tv bt709 bt709 bt709");
    row("only HDR's transfer", track("yuv420p10le", hd, colour("", "", "smpte2084", "")),
        "tv bt2020nc smpte2084 bt2020");
    row("all told", track("yuv420p", hd, colour("pc", "smpte170m", "bt709", "bt470bg")),
        "pc smpte170m bt709 bt470bg");
}

void TestColourPlan::whatASourceDoesNotTellIsTheUsual()
{
    QFETCH(VideoTrack, source);
    QFETCH(QString, shown);
    QCOMPARE(textOf(shownColour(source)), shown);
}

void TestColourPlan::colours_data()
{
    QTest::addColumn<VideoTrack>("source");
    QTest::addColumn<QSize>("size");
    QTest::addColumn<QString>("codec");
    QTest::addColumn<QString>("extension");
    QTest::addColumn<QString>("scaling");
    QTest::addColumn<QString>("pixels");
    QTest::addColumn<QString>("result");
    QTest::addColumn<QString>("hdr");
    const auto row = [](const char *name, const VideoTrack &source, const QSize &size,
                        const char *codec, const char *extension, const char *scaling,
                        const char *pixels, const char *result, const char *hdr = "") {
        QTest::newRow(name) << source << size << QString::fromLatin1(codec)
                            << QString::fromLatin1(extension) << QString::fromLatin1(scaling)
                            << QString::fromLatin1(pixels) << QString::fromLatin1(result)
                            << QString::fromLatin1(hdr);
    };
    const char accurate[] = ":flags=bicubic+accurate_rnd+full_chroma_int";
    const auto scaled = [&accurate](const char *options) { return QByteArray(options) + accurate; };
    row("nothing to convert", track("yuv420p", hd), hd, "h264", "mp4", "", "yuv420p",
        "tv bt709 bt709 bt709");
    row("a smaller size keeps the matrix where players are told", track("yuv420p", hd), ntsc,
        "h264", "mp4", "", "yuv420p", "tv bt709 bt709 bt709");
    row("a smaller size has its own where they guess", track("yuv420p", hd), ntsc, "mpeg4", "avi",
        scaled("in_color_matrix=bt709:in_range=tv:out_color_matrix=smpte170m:out_range=tv")
            .constData(),
        "yuv420p", "tv smpte170m bt709 bt709");
    row("the full range becomes the limited one", track("yuvj420p", hd), hd, "h264", "mp4",
        scaled("in_color_matrix=bt709:in_range=pc:out_color_matrix=bt709:out_range=tv").constData(),
        "yuv420p", "tv bt709 bt709 bt709");
    row("RGB", track("rgb24", hd), hd, "h264", "mp4",
        scaled("out_color_matrix=bt709:out_range=tv").constData(), "yuv420p",
        "tv bt709 bt709 bt709");
    row("into RGB", track("yuv420p", hd), hd, "gif", "gif",
        scaled("in_color_matrix=bt709:in_range=tv").constData(), "", "   ");
    row("a codec with its own matrix and range", track("yuv420p", hd), hd, "mjpeg", "avi",
        scaled("in_color_matrix=bt709:in_range=tv:out_color_matrix=smpte170m:out_range=pc")
            .constData(),
        "yuvj420p", "pc bt470bg bt709 bt709");
    row("10 bits stay where they can", track("yuv420p10le", hd), hd, "hevc", "mp4", "",
        "yuv420p10le", "tv bt709 bt709 bt709");
    row("else they become 8", track("yuv420p10le", hd), hd, "h264", "mp4", "", "yuv420p",
        "tv bt709 bt709 bt709");
    row("alpha stays where it can", track("yuva420p", hd), hd, "vp9", "webm", "", "yuva420p",
        "tv bt709 bt709 bt709");
    row("else it goes", track("yuva420p", hd), hd, "vp9", "mp4", "", "yuv420p",
        "tv bt709 bt709 bt709");
    row("HDR stays where it can", hdr10(), hd, "hevc", "mp4", "", "yuv420p10le",
        "tv bt2020nc smpte2084 bt2020", "kept");
    row("else it is mapped", hdr10(), hd, "h264", "mp4", "", "yuv420p", "tv bt709 bt709 bt709",
        "mapped");
}

void TestColourPlan::colours()
{
    QFETCH(VideoTrack, source);
    QFETCH(QSize, size);
    QFETCH(QString, codec);
    QFETCH(QString, extension);
    QFETCH(QString, scaling);
    QFETCH(QString, pixels);
    QFETCH(QString, result);
    QFETCH(QString, hdr);
    const ColourPlan plan =
        ColourPlan::make(source, size, videoCodec(codec), *Container::find(extension));
    QCOMPARE(plan.scaling, scaling);
    QCOMPARE(plan.pixels.format, pixels);
    QCOMPARE(textOf(plan.result), result);
    QCOMPARE(plan.isHdrKept, hdr == QLatin1String("kept"));
    QCOMPARE(plan.isToneMapped, hdr == QLatin1String("mapped"));
    QCOMPARE(plan.filters.join(QLatin1Char(',')).contains(QLatin1String("tonemap")),
             plan.isToneMapped);
}

void TestColourPlan::unknownPixelsAreLeftAlone()
{
    const ColourPlan plan =
        ColourPlan::make(track("", hd), ntsc, videoCodec(QStringLiteral("mpeg4")),
                         *Container::find(QStringLiteral("avi")));
    QVERIFY(plan.scaling.isEmpty());
    QVERIFY(plan.filters.isEmpty());
    QVERIFY(plan.tags().isEmpty());
}

void TestColourPlan::onlyHdr10TellsItsDisplayAndLight_data()
{
    QTest::addColumn<VideoTrack>("source");
    QTest::addColumn<QString>("encoder");
    QTest::addColumn<QString>("options");
    VideoTrack lit = hdr10();
    lit.lightLevel = LightLevel{1000, 400};
    VideoTrack hlg = lit;
    hlg.colour.transfer = QStringLiteral("arib-std-b67");
    QTest::newRow("HEVC") << lit << QStringLiteral("libx265")
                          << QStringLiteral(
                                 "x265-params=hdr10=1:repeat-headers=1:max-cll=1000,400");
    QTest::newRow("AV1") << lit << QStringLiteral("libsvtav1")
                         << QStringLiteral("svtav1-params=content-light=1000,400");
    QTest::newRow("an encoder that can't") << lit << QStringLiteral("libvpx-vp9") << QString();
    QTest::newRow("HLG") << hlg << QStringLiteral("libx265") << QString();
}

void TestColourPlan::onlyHdr10TellsItsDisplayAndLight()
{
    QFETCH(VideoTrack, source);
    QFETCH(QString, encoder);
    QFETCH(QString, options);
    ToolOptions told;
    addLight(told, encoder, source);
    QStringList texts;
    for (const ToolOption &option : qAsConst(told)) {
        texts << option.name + QLatin1Char('=') + option.value;
    }
    QCOMPARE(texts.join(QLatin1Char(' ')), options);
}

QTEST_GUILESS_MAIN(TestColourPlan)
#include "tst_colourplan.moc"
