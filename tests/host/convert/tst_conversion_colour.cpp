#include "tests/host/convert/conversiontest.h"

#include <QProcess>
#include <QRegularExpression>

/*! The colours, depth, light, alpha and fields of what a conversion makes, judged by decoding it.
 */
class TestConversionColour : public ConversionTest
{
    Q_OBJECT

private Q_SLOTS:
    void hdrBecomesTheOrdinaryPicture_data();
    void hdrBecomesTheOrdinaryPicture();
    void theSourcesLightStaysBehind();
    void hdrStaysWhereItCan_data();
    void hdrStaysWhereItCan();
    void tenBitsStay_data();
    void tenBitsStay();
    void fieldsAreJoinedOrKept_data();
    void fieldsAreJoinedOrKept();
    void flatColoursStay_data();
    void flatColoursStay();
    void alphaStays_data();
    void alphaStays();
    void aFilmGetsAPaletteOfItsOwn();

private:
    QString clip(const char *name, const QString &arguments) const
    {
        const QString file = path(QLatin1String(name));
        return MediaClips::make(file, arguments) ? file : QString();
    }
    QString ordinaryClip() const
    {
        return clip(
            "sdr.mkv",
            QStringLiteral(
                "-f lavfi -i testsrc2=size=160x96:rate=10:duration=1 -vf "
                "gblur=sigma=3,hue=s=0.5,scale=out_color_matrix=bt709:out_range=tv,format=yuv444p "
                "-color_primaries bt709 -color_trc bt709 -colorspace bt709 "
                "-color_range tv -c:v ffv1"));
    }
    /*! The ordinary clip with the light of \a transfer, its white at so many cd/m². */
    QString hdrClip(const QString &transfer, int white = 203) const
    {
        return clip(
            "hdr.mkv",
            QStringLiteral("-i %2 -vf zscale=t=linear:npl=%3,format=gbrpf32le,"
                           "zscale=p=bt2020:t=%1:m=bt2020nc:r=limited:npl=%3,format=yuv420p10le "
                           "-color_primaries bt2020 -color_trc %1 -colorspace bt2020nc "
                           "-color_range tv -c:v libx265 -x265-params log-level=error:hdr10=1:"
                           "master-display=G(13250,34500)B(7500,3000)R(34000,16000)WP(15635,16450)"
                           "L(10000000,50):max-cll=1000,400")
                .arg(transfer, ordinaryClip())
                .arg(white));
    }
    MediaFacts converted(const QString &source, const char *extension, const char *codec)
    {
        OutputSettings settings = video(QLatin1String(extension));
        settings.videoCodec = QLatin1String(codec);
        const Outcome outcome = convert(job(source, settings));
        m_result = outcome ? outcome->target : outcome.error().text;
        return outcome ? outcome->facts : MediaFacts();
    }
    static QString printed(const char *program, const QString &arguments)
    {
        QProcess process;
        process.setProcessChannelMode(QProcess::MergedChannels);
        process.start(QLatin1String(program), arguments.split(QLatin1Char(' ')));
        process.waitForFinished(-1);
        return QString::fromUtf8(process.readAll());
    }
    /*! How much the result looks like \a original, in dB. */
    double likeness(const QString &original) const
    {
        const QString text =
            printed("ffmpeg", QStringLiteral("-hide_banner -nostdin -i %1 -i %2 -filter_complex "
                                             "[0:v]format=gbrp[a];[1:v]format=gbrp[b];[a][b]psnr "
                                             "-f null -")
                                  .arg(m_result, original));
        return lastNumber(text, QStringLiteral("average:"));
    }
    /*! How many frames of the result show two moments, in alternate lines. */
    double combedFrames() const
    {
        const QString text = printed("ffmpeg", QStringLiteral("-hide_banner -nostdin -i %1 -vf "
                                                              "idet,metadata=mode=print -f null -")
                                                   .arg(m_result));
        return lastNumber(text, QStringLiteral("idet.multiple.tff=")) +
               lastNumber(text, QStringLiteral("idet.multiple.bff="));
    }
    static double lastNumber(const QString &text, const QString &key)
    {
        const int at = text.lastIndexOf(key);
        static const QRegularExpression number(QStringLiteral("[0-9.]+|inf"));
        return at < 0 ? qQNaN() : number.match(text, at + key.size()).captured().toDouble();
    }

    QString m_result;
};

void TestConversionColour::hdrBecomesTheOrdinaryPicture_data()
{
    QTest::addColumn<QString>("transfer");
    QTest::addColumn<int>("white");
    QTest::newRow("HDR10, dim") << "smpte2084" << 100;
    QTest::newRow("HDR10") << "smpte2084" << 203;
    QTest::newRow("HDR10, as bright as it gets") << "smpte2084" << 1000;
    QTest::newRow("HLG") << "arib-std-b67" << 203;
    QTest::newRow("HLG, as bright as it gets") << "arib-std-b67" << 1000;
}

void TestConversionColour::hdrBecomesTheOrdinaryPicture()
{
    QFETCH(QString, transfer);
    QFETCH(int, white);
    const MediaFacts facts = converted(hdrClip(transfer, white), "mp4", "h264");
    QVERIFY2(facts.video() != nullptr, qPrintable(m_result));
    QCOMPARE(facts.video()->colour.transfer, QStringLiteral("bt709"));
    QCOMPARE(facts.video()->colour.matrix, QStringLiteral("bt709"));
    const double found = likeness(path(QStringLiteral("sdr.mkv")));
    QVERIFY2(found >= 20, qPrintable(QString::number(found)));
}

void TestConversionColour::theSourcesLightStaysBehind()
{
    OutputSettings settings = video(QStringLiteral("mp4"));
    settings.videoCodec = QStringLiteral("h264");
    ConversionJob planned = job(hdrClip(QStringLiteral("smpte2084")), settings);
    planned.planOnly = true;
    const Outcome outcome = convert(planned);
    QVERIFY2(outcome, qPrintable(errorOf(outcome)));
    // Of a graph with one input ffmpeg writes the display and light that its container tells.
    const QStringList arguments = outcome->plan.constFirst().arguments;
    const int graph = arguments.indexOf(QStringLiteral("-filter_complex")) + 1;
    QCOMPARE(arguments.value(graph).count(QStringLiteral("[0:0]")), 2);
}

void TestConversionColour::hdrStaysWhereItCan_data()
{
    QTest::addColumn<QString>("transfer");
    QTest::newRow("HDR10") << "smpte2084";
    QTest::newRow("HLG") << "arib-std-b67";
}

void TestConversionColour::hdrStaysWhereItCan()
{
    QFETCH(QString, transfer);
    OutputSettings settings = video(QStringLiteral("mp4"));
    settings.videoCodec = QStringLiteral("hevc");
    settings.box = QSize(80, 48);
    const Outcome outcome = convert(job(hdrClip(transfer), settings));
    QVERIFY2(outcome, qPrintable(errorOf(outcome)));
    const VideoTrack &track = *outcome->facts.video();
    QCOMPARE(track.pixelFormat, QStringLiteral("yuv420p10le"));
    QCOMPARE(track.colour.transfer, transfer);
    QCOMPARE(track.colour.primaries, QStringLiteral("bt2020"));
    const QString frame = printed(
        "ffprobe", QStringLiteral("-v error -show_frames -read_intervals %+#1 ") + outcome->target);
    const bool isHdr10 = transfer == QLatin1String("smpte2084");
    QCOMPARE(frame.contains(QLatin1String("max_luminance=10000000/10000")), isHdr10);
    QCOMPARE(frame.contains(QLatin1String("max_content=1000")), isHdr10);
}

void TestConversionColour::tenBitsStay_data()
{
    QTest::addColumn<QByteArray>("extension");
    QTest::addColumn<QByteArray>("codec");
    QTest::addColumn<QString>("pixels");
    const auto row = [](const char *extension, const char *codec, const char *pixels) {
        QTest::newRow(codec) << QByteArray(extension) << QByteArray(codec)
                             << QString::fromLatin1(pixels);
    };
    row("mkv", "hevc", "yuv420p10le");
    row("webm", "vp9", "yuv420p10le");
    row("mkv", "av1", "yuv420p10le");
    row("mov", "prores", "yuv422p10le");
    row("mov", "dnxhd", "yuv422p10le");
    row("mp4", "h264", "yuv420p");
}

void TestConversionColour::tenBitsStay()
{
    QFETCH(QByteArray, extension);
    QFETCH(QByteArray, codec);
    const QString source =
        clip("deep.mkv", QStringLiteral("-f lavfi -i testsrc2=size=256x120:rate=10:duration=0.5 "
                                        "-pix_fmt yuv422p10le -c:v ffv1"));
    const MediaFacts facts = converted(source, extension.constData(), codec.constData());
    QVERIFY2(facts.video() != nullptr, qPrintable(m_result));
    QTEST(facts.video()->pixelFormat, "pixels");
}

void TestConversionColour::fieldsAreJoinedOrKept_data()
{
    QTest::addColumn<QByteArray>("extension");
    QTest::addColumn<QByteArray>("codec");
    QTest::addColumn<bool>("keeps");
    QTest::newRow("joined for a player") << QByteArray("mp4") << QByteArray("h264") << false;
    QTest::newRow("kept on a disc") << QByteArray("vob") << QByteArray("mpeg2video") << true;
    QTest::newRow("kept on a tape") << QByteArray("dv") << QByteArray("dvvideo") << true;
}

void TestConversionColour::fieldsAreJoinedOrKept()
{
    QFETCH(QByteArray, extension);
    QFETCH(QByteArray, codec);
    QFETCH(bool, keeps);
    const QString source = clip(
        "fields.mpg", QStringLiteral("-f lavfi -i testsrc2=size=1440x576:rate=50:duration=1 -vf "
                                     "crop=720:576:x=n*12:y=0,interlace=scan=tff:lowpass=off "
                                     "-c:v mpeg2video -q:v 2 -flags +ildct+ilme"));
    QVERIFY2(converted(source, extension.constData(), codec.constData()).video() != nullptr,
             qPrintable(m_result));
    const double combed = combedFrames();
    QVERIFY2(keeps ? combed > 15 : combed <= 4, qPrintable(QString::number(combed)));
}

void TestConversionColour::flatColoursStay_data()
{
    QTest::addColumn<QString>("pixels");
    QTest::newRow("RGB, SD") << "scale=96:64,format=gbrp";
    QTest::newRow("RGB, HD") << "scale=1280:64,format=gbrp";
    QTest::newRow("untagged, SD") << "scale=96:64:out_color_matrix=smpte170m,format=yuv444p";
    QTest::newRow("untagged, HD") << "scale=1280:64:out_color_matrix=bt709,format=yuv444p";
}

void TestConversionColour::flatColoursStay()
{
    QFETCH(QString, pixels);
    const QString source =
        clip("flat.mkv", QStringLiteral("-f lavfi -i color=0xC83C1E:size=96x64:rate=10:duration=0.5"
                                        ",format=gbrp -vf %1 -c:v ffv1")
                             .arg(pixels));
    const MediaFacts facts = converted(source, "mp4", "h264");
    QVERIFY2(facts.video() != nullptr, qPrintable(m_result));
    QProcess shown;
    shown.start(QStringLiteral("ffmpeg"),
                QStringLiteral("-v error -nostdin -i %1 -frames:v 1 -vf "
                               "scale=in_color_matrix=%2:in_range=tv,format=rgb24 -f rawvideo -")
                    .arg(m_result, facts.video()->colour.matrix)
                    .split(QLatin1Char(' ')));
    QVERIFY(shown.waitForFinished(-1));
    const QByteArray rgb = shown.readAllStandardOutput().left(3);
    QCOMPARE(rgb.size(), 3);
    const int expected[] = {0xC8, 0x3C, 0x1E};
    for (int i = 0; i < 3; ++i) {
        QVERIFY2(qAbs(int(uchar(rgb.at(i))) - expected[i]) <= 2, rgb.toHex().constData());
    }
}

void TestConversionColour::alphaStays_data()
{
    QTest::addColumn<QString>("source");
    QTest::addColumn<QByteArray>("extension");
    QTest::addColumn<QByteArray>("codec");
    const QString vp9 = QStringLiteral("a.webm -pix_fmt yuva420p -c:v libvpx-vp9 -auto-alt-ref 0");
    const QString ffv1 = QStringLiteral("a.mkv -pix_fmt bgra -c:v ffv1");
    QTest::newRow("VP9 to ProRes") << vp9 << QByteArray("mov") << QByteArray("prores");
    QTest::newRow("VP9 to VP8") << vp9 << QByteArray("webm") << QByteArray("vp8");
    QTest::newRow("RGB to VP9") << ffv1 << QByteArray("webm") << QByteArray("vp9");
}

void TestConversionColour::alphaStays()
{
    QFETCH(QString, source);
    QFETCH(QByteArray, extension);
    QFETCH(QByteArray, codec);
    const QString name = source.section(QLatin1Char(' '), 0, 0);
    const QString made = clip(
        qPrintable(name),
        QStringLiteral("-f lavfi -i color=red@0.5:size=96x64:rate=10:duration=0.5,format=rgba ") +
            source.section(QLatin1Char(' '), 1));
    const MediaFacts facts = converted(made, extension.constData(), codec.constData());
    QVERIFY2(facts.video() != nullptr, qPrintable(m_result));
    QVERIFY2(facts.video()->pixelFormat.startsWith(QLatin1String("yuva")),
             qPrintable(facts.video()->pixelFormat));
}

void TestConversionColour::aFilmGetsAPaletteOfItsOwn()
{
    const QString source =
        clip("film.mkv", QStringLiteral("-f lavfi -i testsrc2=size=160x96:rate=10:duration=1 "
                                        "-pix_fmt gbrp -c:v ffv1"));
    QVERIFY2(converted(source, "gif", "gif").video() != nullptr, qPrintable(m_result));
    const double found = likeness(source);
    QVERIFY2(found >= 30, qPrintable(QString::number(found)));
}

QTEST_GUILESS_MAIN(TestConversionColour)
#include "tst_conversion_colour.moc"
