#include "tests/host/convert/conversiontest.h"

#include <QProcess>

/*! What a conversion makes of moving pictures, judged by decoding it. */
class TestConversionPicture : public ConversionTest
{
    Q_OBJECT

private Q_SLOTS:
    void everyFrameOfAVariableRateComesOnce_data();
    void everyFrameOfAVariableRateComesOnce();
    void aLateStartRepeatsNoFrame();
    void withoutEditListsALateStartIsShownFromTheBeginning();
    void aCeilingThinsAVariableRate();

private:
    QString clip(const QString &name, const QString &arguments) const
    {
        return MediaClips::make(path(name), arguments) ? path(name) : QString();
    }
    QString converted(const QString &source, const OutputSettings &settings) const
    {
        const Outcome outcome = convert(job(source, settings));
        return outcome ? outcome->target : outcome.error().text;
    }
    static OutputSettings videoOf(const char *extension, const char *codec)
    {
        OutputSettings settings = video(QLatin1String(extension));
        settings.videoCodec = QLatin1String(codec);
        return settings;
    }
    static QString printed(const QString &program, const QStringList &arguments)
    {
        QProcess process;
        process.setProcessChannelMode(QProcess::MergedChannels);
        process.start(program, arguments);
        process.waitForFinished(-1);
        return QString::fromUtf8(process.readAll());
    }
    /*! When each frame is shown, in seconds. */
    static QVector<double> frameTimes(const QString &file)
    {
        QVector<double> times;
        const QStringList lines =
            printed(QStringLiteral("ffprobe"),
                    {QStringLiteral("-v"), QStringLiteral("error"),
                     QStringLiteral("-select_streams"), QStringLiteral("v"),
                     QStringLiteral("-show_entries"), QStringLiteral("frame=pts_time"),
                     QStringLiteral("-of"), QStringLiteral("csv=p=0"), file})
                .split(QLatin1Char('\n'), Qt::SkipEmptyParts);
        for (const QString &line : lines) {
            times << line.section(QLatin1Char(','), 0, 0).toDouble();
        }
        return times;
    }
};

void TestConversionPicture::everyFrameOfAVariableRateComesOnce_data()
{
    QTest::addColumn<OutputSettings>("settings");
    QTest::addColumn<double>("precision");
    QTest::newRow("any time") << videoOf("mp4", "h264") << 0.001;
    QTest::newRow("hevc") << videoOf("mkv", "hevc") << 0.002;
    QTest::newRow("vp9") << videoOf("webm", "vp9") << 0.002;
    QTest::newRow("steps of a rate") << videoOf("mp4", "mpeg4") << 0.034;
}

void TestConversionPicture::everyFrameOfAVariableRateComesOnce()
{
    QFETCH(OutputSettings, settings);
    QFETCH(double, precision);
    const QString source =
        clip(QStringLiteral("phone.mp4"),
             QStringLiteral("-f lavfi -i testsrc2=size=128x96:rate=30:duration=2 -vf "
                            "select='lt(n\\,20)+not(mod(n\\,3))',setpts=PTS+0.004*sin(N)/TB "
                            "-fps_mode passthrough -enc_time_base 1/90000 -c:v libx264 -bf 0"));
    const QVector<double> expected = frameTimes(source);
    const QVector<double> times = frameTimes(converted(source, settings));
    QVERIFY(expected.size() > 30);
    QCOMPARE(times.size(), expected.size());
    for (int frame = 0; frame < times.size(); ++frame) {
        const double strays =
            (times.at(frame) - times.first()) - (expected.at(frame) - expected.first());
        QVERIFY2(qAbs(strays) < precision, qPrintable(QString::number(frame)));
    }
}

void TestConversionPicture::aLateStartRepeatsNoFrame()
{
    const QString source =
        clip(QStringLiteral("late.mkv"),
             QStringLiteral("-f lavfi -i sine=duration=1 -itsoffset 0.2 -f lavfi -i "
                            "testsrc2=size=128x96:rate=25:duration=1 -c:v ffv1 -map 0 -map 1"));
    const QVector<double> times = frameTimes(converted(source, videoOf("mp4", "h264")));
    QCOMPARE(times.size(), 25);
    QVERIFY(qAbs(times.first() - 0.2) < 0.03);
}

void TestConversionPicture::withoutEditListsALateStartIsShownFromTheBeginning()
{
    const QString source =
        clip(QStringLiteral("late.mkv"),
             QStringLiteral("-f lavfi -i sine=duration=1 -itsoffset 0.2 -f lavfi -i "
                            "testsrc2=size=128x96:rate=25:duration=1 -c:v ffv1 -map 0 -map 1"));
    OutputSettings settings = videoOf("mp4", "h264");
    settings.hasEditLists = false;
    const QVector<double> times = frameTimes(converted(source, settings));
    QCOMPARE(times.size(), 25);
    QVERIFY(times.first() < 0.03);
    QVERIFY(qAbs(times.at(1) - 0.24) < 0.03);
}

void TestConversionPicture::aCeilingThinsAVariableRate()
{
    const QString source =
        clip(QStringLiteral("fast.mkv"),
             QStringLiteral("-f lavfi -i testsrc2=size=128x96:rate=60:duration=2 -vf "
                            "select='lt(n\\,60)+not(mod(n\\,4))' -fps_mode passthrough -c:v ffv1"));
    OutputSettings settings = videoOf("mp4", "h264");
    settings.frameRate = {30, 1};
    const QVector<double> times = frameTimes(converted(source, settings));
    QCOMPARE(times.size(), 30 + 15);
    for (int frame = 1; frame < times.size(); ++frame) {
        QVERIFY(times.at(frame) - times.at(frame - 1) > 0.03);
    }
}

QTEST_GUILESS_MAIN(TestConversionPicture)
#include "tst_conversion_picture.moc"
