#include "tests/host/convert/conversiontest.h"

#include "host/check/writtenfile.h"
#include "host/tools/toolcall.h"
#include "tests/support/testfiles.h"

#include <QProcess>

/*! What a preset's bitrate comes to in the file. */
class TestConversionRate : public ConversionTest
{
    Q_OBJECT

private Q_SLOTS:
    void noSecondExceedsTheCeilingByMoreThanTheBuffer_data();
    void noSecondExceedsTheCeilingByMoreThanTheBuffer();
    void anEasyPictureStaysFarBelowTheCeiling_data();
    void anEasyPictureStaysFarBelowTheCeiling();
    void theHighQualityIsTheLargerFile();
    void theResultHasTheAskedSize_data();
    void theResultHasTheAskedSize();
    void theBestOfAnUnsteadyEncoderIsTaken();
    void anotherWayOfWritingBeginsTheSizeAnew();
    void keyFramesAreNoFurtherApartThanAsked_data();
    void keyFramesAreNoFurtherApartThanAsked();

private:
    QString noise(int seconds = 3) const;
    QString easy() const;
    static QList<QByteArray> packetsOf(const QString &file, const char *entry);
    static QVector<double> secondsOf(const QString &file);
    static void addCodecs();
    static OutputSettings settingsOfRow(double kbps);
};

QString TestConversionRate::noise(int seconds) const
{
    const QString file = path(QStringLiteral("noise.mkv"));
    return MediaClips::make(file, QStringLiteral("-f lavfi -i testsrc2=size=320x240:rate=25 -vf "
                                                 "noise=alls=40:allf=t -t %1 -c:v ffv1")
                                      .arg(seconds))
               ? file
               : QString();
}

QString TestConversionRate::easy() const
{
    const QString file = path(QStringLiteral("easy.mkv"));
    return MediaClips::make(file, QStringLiteral("-f lavfi -i testsrc=size=320x240:rate=25 -t 2 "
                                                 "-c:v ffv1"))
               ? file
               : QString();
}

/*! What ffprobe says of each packet of the video. */
QList<QByteArray> TestConversionRate::packetsOf(const QString &file, const char *entry)
{
    QProcess ffprobe;
    ffprobe.start(QStringLiteral("ffprobe"),
                  {QStringLiteral("-v"), QStringLiteral("error"), QStringLiteral("-select_streams"),
                   QStringLiteral("v:0"), QStringLiteral("-show_entries"),
                   QStringLiteral("packet=") + QLatin1String(entry), QStringLiteral("-of"),
                   QStringLiteral("csv=print_section=0"), file});
    ffprobe.waitForFinished();
    QList<QByteArray> entries;
    const QList<QByteArray> lines = ffprobe.readAllStandardOutput().split('\n');
    for (const QByteArray &line : lines) {
        if (!line.trimmed().isEmpty()) {
            entries << line.split(',').constFirst();
        }
    }
    return entries;
}

/*! The kbit of video in each second. */
QVector<double> TestConversionRate::secondsOf(const QString &file)
{
    constexpr int framesPerSecond = 25;
    QVector<double> seconds;
    int frame = 0;
    const QList<QByteArray> sizes = packetsOf(file, "size");
    for (const QByteArray &size : sizes) {
        seconds.resize(frame / framesPerSecond + 1);
        seconds.last() += size.toDouble() * 8 / 1000;
        ++frame;
    }
    return seconds;
}

void TestConversionRate::addCodecs()
{
    QTest::addColumn<QString>("extension");
    QTest::addColumn<QString>("codec");
    const char *rows[][2] = {{"mp4", "h264"}, {"mkv", "hevc"},       {"webm", "vp9"},
                             {"webm", "vp8"}, {"avi", "mpeg4"},      {"wmv", "wmv2"},
                             {"flv", "flv1"}, {"mpg", "mpeg2video"}, {"mkv", "av1"}};
    for (const auto &row : rows) {
        QTest::newRow(row[1]) << QString::fromLatin1(row[0]) << QString::fromLatin1(row[1]);
    }
}

OutputSettings TestConversionRate::settingsOfRow(double kbps)
{
    QFETCH(QString, extension);
    QFETCH(QString, codec);
    OutputSettings settings = video(extension);
    settings.videoCodec = codec;
    settings.videoKbps = kbps;
    return settings;
}

void TestConversionRate::noSecondExceedsTheCeilingByMoreThanTheBuffer_data()
{
    addCodecs();
}

void TestConversionRate::noSecondExceedsTheCeilingByMoreThanTheBuffer()
{
    const double ceiling = 800;
    const OutputSettings settings = settingsOfRow(ceiling);
    const Outcome outcome = convert(job(noise(), settings));
    QVERIFY2(outcome, qPrintable(errorOf(outcome)));
    const QVector<double> seconds = secondsOf(outcome->target);
    QVERIFY(seconds.size() >= 3);
    // One second of the bitrate is in the buffer.
    QVERIFY(*std::max_element(seconds.begin(), seconds.end()) <= 2 * ceiling);
    QVERIFY(seconds.constLast() <= 1.5 * ceiling);
}

void TestConversionRate::anEasyPictureStaysFarBelowTheCeiling_data()
{
    addCodecs();
}

void TestConversionRate::anEasyPictureStaysFarBelowTheCeiling()
{
    const double ceiling = 8000;
    const Outcome outcome = convert(job(easy(), settingsOfRow(ceiling)));
    QVERIFY2(outcome, qPrintable(errorOf(outcome)));
    const QVector<double> seconds = secondsOf(outcome->target);
    QVERIFY(!seconds.isEmpty());
    QVERIFY(*std::max_element(seconds.begin(), seconds.end()) <= ceiling / 6);
}

void TestConversionRate::theHighQualityIsTheLargerFile()
{
    QVector<qint64> sizes;
    for (const double quality : {-1.0, 0.0, 1.0}) {
        OutputSettings settings = video(QStringLiteral("mkv"));
        settings.videoCodec = QStringLiteral("h264");
        settings.videoKbps = 8000;
        settings.quality = quality;
        const Outcome outcome = convert(job(easy(), settings));
        QVERIFY2(outcome, qPrintable(errorOf(outcome)));
        sizes << QFileInfo(outcome->target).size();
        QVERIFY(QFile::remove(outcome->target));
    }
    QVERIFY(sizes.at(0) < sizes.at(1));
    QVERIFY(sizes.at(1) < sizes.at(2));
}

void TestConversionRate::theResultHasTheAskedSize_data()
{
    addCodecs();
}

void TestConversionRate::theResultHasTheAskedSize()
{
    OutputSettings settings = settingsOfRow(0);
    // This encoder writes another size each time, the more so the shorter the film is.
    const int seconds = settings.videoCodec == QLatin1String("av1") ? 12 : 3;
    settings.targetBytes = 100000.0 * seconds;
    const Outcome outcome = convert(job(noise(seconds), settings));
    QVERIFY2(outcome, qPrintable(errorOf(outcome)));
    const qint64 bytes = QFileInfo(outcome->target).size();
    QVERIFY2(bytes <= settings.targetBytes * 1.0, qPrintable(QString::number(bytes)));
    QVERIFY2(bytes >= settings.targetBytes * 0.98, qPrintable(QString::number(bytes)));
}

void TestConversionRate::theBestOfAnUnsteadyEncoderIsTaken()
{
    // The first result is 3 % too small, each later one too large.
    standIn(QStringLiteral("$REAL \"$@\" || exit 1\n"
                           "for file; do :; done\n"
                           "file=${file#file:}\n"
                           "truncate -s $((1000 * $(cat %1))) \"$file\"\n"
                           "echo 320 > %1")
                .arg(path(QStringLiteral("sizes"))));
    QVERIFY(writeFile(path(QStringLiteral("sizes")), "291"));
    OutputSettings settings = video(QStringLiteral("mkv"));
    settings.videoCodec = QStringLiteral("mpeg4");
    settings.targetBytes = 300000;
    const Outcome outcome = convert(job(easy(), settings));
    QVERIFY2(outcome, qPrintable(errorOf(outcome)));
    QCOMPARE(QFileInfo(outcome->target).size(), 291000);
}

void TestConversionRate::anotherWayOfWritingBeginsTheSizeAnew()
{
    // The first result has the size and can't be played; the one without copies is smaller.
    standIn(QStringLiteral("$REAL \"$@\" || exit 1\n"
                           "for file; do :; done\n"
                           "file=${file#file:}\n"
                           "if [ -e %1 ]; then truncate -s 297000 \"$file\"; exit; fi\n"
                           "head -c 299000 /dev/zero >\"$file\"\n"
                           "touch %1")
                .arg(path(QStringLiteral("tried"))));
    const QString film = path(QStringLiteral("film.mkv"));
    QVERIFY(
        MediaClips::make(film, QStringLiteral("-f lavfi -i testsrc=size=320x240:rate=25 -f lavfi "
                                              "-i sine -t 2 -c:v ffv1 -c:a aac")));
    OutputSettings settings = video(QStringLiteral("mkv"));
    settings.videoCodec = QStringLiteral("mpeg4");
    settings.targetBytes = 300000;
    const Outcome outcome = convert(job(film, settings));
    QVERIFY2(outcome, qPrintable(errorOf(outcome)));
    QCOMPARE(QFileInfo(outcome->target).size(), 297000);
}

void TestConversionRate::keyFramesAreNoFurtherApartThanAsked_data()
{
    addCodecs();
}

void TestConversionRate::keyFramesAreNoFurtherApartThanAsked()
{
    OutputSettings settings = settingsOfRow(0);
    settings.keyFrameInterval = 8;
    const Outcome outcome = convert(job(easy(), settings));
    QVERIFY2(outcome, qPrintable(errorOf(outcome)));
    const QList<QByteArray> packets = packetsOf(outcome->target, "flags");
    QVERIFY(packets.size() >= 50);
    int sinceKeyFrame = settings.keyFrameInterval;
    for (const QByteArray &flags : packets) {
        sinceKeyFrame = flags.startsWith('K') ? 1 : sinceKeyFrame + 1;
        QVERIFY(sinceKeyFrame <= settings.keyFrameInterval);
    }
}

QTEST_GUILESS_MAIN(TestConversionRate)
#include "tst_conversion_rate.moc"
