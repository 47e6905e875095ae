#include "host/media/mediainput.h"
#include "host/tools/toolcall.h"
#include "tests/support/mediaclips.h"
#include "tests/support/patience.h"
#include "tests/support/testfiles.h"

#include <QFile>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QProcess>
#include <QTemporaryDir>
#include <QtTest>

/*! What vexprobe says of real files, beside what ffprobe says. */
class TestMediaReport : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();

    void theReportIsThatOfFfprobe_data();
    void theReportIsThatOfFfprobe();
    void noOtherFileIsOpened_data();
    void noOtherFileIsOpened();
    void aFileThatCannotBeReadHasNoReport_data();
    void aFileThatCannotBeReadHasNoReport();
    void noFileCanBeWritten();
    void itEndsWithItsInput();

private:
    QString path(const QString &name) const { return m_folder.filePath(name); }
    QByteArray question(const QString &name) const
    {
        return demuxersFor(path(name)).toLatin1() + '\0' +
               QFile::encodeName(fileArgument(path(name))) + '\0';
    }
    /*! The answer with its line end; what came until the program ended if there is none. */
    QByteArray answer(const QString &name)
    {
        m_vexprobe.write(question(name));
        while (!m_vexprobe.canReadLine() && m_vexprobe.waitForReadyRead(patience)) {
        }
        return m_vexprobe.readLine();
    }
    QJsonObject ffprobeReport(const QString &name) const;

    QTemporaryDir m_folder;
    QProcess m_vexprobe;
};

namespace {

/*! \a object with only the members of these names. */
QJsonObject restricted(const QJsonObject &object, const char *names)
{
    const QStringList kept = QString::fromLatin1(names).split(QLatin1Char(' '));
    QJsonObject result;
    for (const QString &name : kept) {
        if (object.contains(name)) {
            result.insert(name, object.value(name));
        }
    }
    return result;
}

QJsonArray restricted(const QJsonArray &array, const char *names)
{
    QJsonArray result;
    for (const QJsonValue &value : array) {
        result.append(restricted(value.toObject(), names));
    }
    return result;
}

/*! \a report without what MediaFacts doesn't read. */
QJsonObject keysOfFacts(const QJsonObject &report)
{
    QJsonArray streams = restricted(
        report.value(QLatin1String("streams")).toArray(),
        "index codec_name codec_type codec_tag_string profile start_time duration bit_rate width "
        "height sample_aspect_ratio pix_fmt level color_range color_space color_transfer "
        "color_primaries field_order r_frame_rate avg_frame_rate sample_fmt sample_rate channels "
        "channel_layout bits_per_sample bits_per_raw_sample disposition tags side_data_list");
    const QLatin1String sideData("side_data_list");
    for (QJsonValueRef value : streams) {
        QJsonObject stream = value.toObject();
        if (stream.contains(sideData)) {
            stream.insert(sideData,
                          restricted(stream.value(sideData).toArray(),
                                     "side_data_type rotation red_x red_y green_x green_y blue_x "
                                     "blue_y white_point_x white_point_y min_luminance "
                                     "max_luminance max_content max_average"));
            value = stream;
        }
    }
    return {{QStringLiteral("streams"), streams},
            {QStringLiteral("chapters"),
             restricted(report.value(QLatin1String("chapters")).toArray(), "")},
            {QStringLiteral("format"), restricted(report.value(QLatin1String("format")).toObject(),
                                                  "format_name duration size tags")}};
}

} // namespace

QJsonObject TestMediaReport::ffprobeReport(const QString &name) const
{
    QProcess ffprobe;
    ffprobe.start(QStringLiteral("ffprobe"),
                  QStringLiteral("-v error -print_format json -show_format -show_streams "
                                 "-show_chapters")
                          .split(QLatin1Char(' ')) +
                      inputArguments(path(name), demuxersFor(path(name))));
    ffprobe.waitForFinished(patience);
    return QJsonDocument::fromJson(ffprobe.readAllStandardOutput()).object();
}

void TestMediaReport::initTestCase()
{
    QVERIFY(MediaClips::makeFilm(path(QStringLiteral("film.mp4"))));
    QVERIFY(MediaClips::make(path(QStringLiteral("cover.png")),
                             QStringLiteral("-f lavfi -i testsrc2=size=64x64 -frames:v 1")));
    QVERIFY(writeFile(path(QStringLiteral("chapters.txt")),
                      ";FFMETADATA1\ntitle=\"Film\"\\\n\t\xC3\xA9\xFF\x01\n"
                      "creation_time=2020-05-17T10:11:12.000000Z\n"
                      "location=+48.1371+011.5754/\n"
                      "[CHAPTER]\nTIMEBASE=1/1000\nSTART=0\nEND=400\ntitle=One\n"
                      "[CHAPTER]\nTIMEBASE=1/1000\nSTART=400\nEND=1000\ntitle=Two\n"));
    QVERIFY(
        writeFile(path(QStringLiteral("lines.srt")), "1\n00:00:00,100 --> 00:00:00,500\nHello\n"));
    m_vexprobe.start(QStringLiteral(VEXPROBE), QStringList());
    QVERIFY(m_vexprobe.waitForStarted(patience));
}

void TestMediaReport::theReportIsThatOfFfprobe_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<QString>("arguments");
    QTest::addColumn<bool>("isCommon"); // any ffmpeg can write it

    const QVector<MediaClips::Kind> kinds = MediaClips::kinds();
    for (const MediaClips::Kind &kind : kinds) {
        QTest::newRow(qPrintable(kind.name)) << kind.name << kind.arguments << false;
    }
    const QString video = QStringLiteral("-f lavfi -i testsrc2=size=320x240:rate=25:duration=1 ");
    const QString sine = QStringLiteral("-f lavfi -i sine=duration=1:sample_rate=48000 ");
    const QString h264 = QStringLiteral("-c:v libx264 -preset ultrafast -pix_fmt yuv420p ");
    const QString hevc10 = QStringLiteral("-c:v libx265 -preset ultrafast -pix_fmt yuv420p10le "
                                          "-x265-params log-level=error:colorprim=bt2020:"
                                          "colormatrix=bt2020nc:");
    const auto row = [](const char *rule, const char *name, const QString &arguments) {
        QTest::newRow(rule) << QString::fromLatin1(name) << arguments.trimmed() << true;
    };
    const QString hdr10 =
        QStringLiteral("transfer=smpte2084:master-display=G(13250,34500)B(7500,3000)R(34000,16000)"
                       "WP(15635,16450)L(10000000,50):max-cll=1000,400");
    row("HDR10 in MP4", "hdr10.mp4", video + hevc10 + hdr10);
    row("HDR10 in Matroska", "hdr10.mkv", video + hevc10 + hdr10);
    row("HLG", "hlg.mp4", video + hevc10 + QStringLiteral("transfer=arib-std-b67"));
    row("rotation", "turned.mov",
        QStringLiteral("-i %1 -c copy -metadata:s:v rotate=90")
            .arg(path(QStringLiteral("film.mp4"))));
    row("cover", "cover.mp3",
        sine + QStringLiteral("-i %1 -map 0 -map 1 -c:v copy -disposition:v attached_pic "
                              "-metadata title=Song")
                   .arg(path(QStringLiteral("cover.png"))));
    for (const char *name : {"rich.mkv", "rich.mp4"}) {
        row(name, name,
            video + sine +
                QStringLiteral("-i %1 -i %2 -map 0 -map 1 -map 1 -map 2 -map_metadata 3 "
                               "-metadata:s:a:0 language=eng -metadata:s:a:1 language=fra "
                               "-metadata:s:a:1 title=Kommentar -disposition:s forced "
                               "-c:s %3 ")
                    .arg(path(QStringLiteral("lines.srt")), path(QStringLiteral("chapters.txt")),
                         QLatin1String(name).endsWith(QLatin1String("mkv"))
                             ? QStringLiteral("subrip")
                             : QStringLiteral("mov_text")) +
                h264);
    }
    row("attachment", "font.mkv",
        video + h264 +
            QStringLiteral("-attach %1 -metadata:s:t mimetype=font/ttf")
                .arg(path(QStringLiteral("lines.srt"))));
    row("odd ratios", "wide.mkv", video + QStringLiteral("-vf setsar=64/45 -r 24000/1001 ") + h264);
    row("alpha in ProRes", "alpha.mov",
        video + QStringLiteral("-c:v prores_ks -profile:v 4444 -pix_fmt yuva444p10le"));
    row("alpha in VP9", "alpha.webm", video + QStringLiteral("-c:v libvpx-vp9 -pix_fmt yuva420p"));
    row("interlaced MPEG-2", "broadcast.ts",
        video + sine + QStringLiteral("-c:v mpeg2video -flags +ilme+ildct -top 1 -c:a ac3 -ac 6"));
    row("interlaced H.264", "fields.mkv", video + h264 + QStringLiteral("-flags +ilme+ildct"));
    row("variable rate", "variable.mp4",
        video + QStringLiteral("-vf select='gt(mod(n\\,5)\\,1)' -fps_mode vfr ") + h264);
    row("RGB", "screen.mkv", video + QStringLiteral("-c:v libx264rgb -preset ultrafast"));
    row("tagged colours", "tagged.mp4",
        video +
            QStringLiteral("-color_primaries bt709 -color_trc bt709 -colorspace bt709 "
                           "-color_range pc ") +
            h264);
    row("24 bits", "studio.flac",
        sine + QStringLiteral("-ar 96000 -sample_fmt s32 -bits_per_raw_sample 24"));
    row("5.1", "surround.wav", sine + QStringLiteral("-ac 6 -c:a pcm_s24le"));
    row("two programs", "programs.ts",
        video + sine +
            QStringLiteral("-map 0 -map 1 -map 0 -c:v mpeg2video -program st=0:st=1 "
                           "-program st=2"));
}

void TestMediaReport::theReportIsThatOfFfprobe()
{
    QFETCH(QString, name);
    QFETCH(QString, arguments);
    QFETCH(bool, isCommon);
    const QString file = QStringLiteral("clip-") + name;
    const bool isMade = MediaClips::make(path(file), arguments);
    if (!isMade && !isCommon) {
        QSKIP("this ffmpeg can't write it");
    }
    QVERIFY(isMade);
    const QJsonObject expected = keysOfFacts(ffprobeReport(file));
    QVERIFY(!expected.value(QLatin1String("streams")).toArray().isEmpty());
    QCOMPARE(
        QString::fromUtf8(QJsonDocument(QJsonDocument::fromJson(answer(file)).object()).toJson()),
        QString::fromUtf8(QJsonDocument(expected).toJson()));
}

void TestMediaReport::noOtherFileIsOpened_data()
{
    QTest::addColumn<QByteArray>("content");
    QTest::newRow("concat list") << QByteArray("ffconcat version 1.0\nfile film.mp4\n");
    QTest::newRow("HLS") << QByteArray("#EXTM3U\n#EXT-X-VERSION:3\n#EXT-X-TARGETDURATION:1\n"
                                       "#EXTINF:1.0,\nfilm.mp4\n#EXT-X-ENDLIST\n");
    QTest::newRow("SDP") << QByteArray("v=0\no=- 0 0 IN IP4 127.0.0.1\ns=x\nc=IN IP4 127.0.0.1\n"
                                       "t=0 0\nm=video 5004 RTP/AVP 96\na=rtpmap:96 H264/90000\n");
}

void TestMediaReport::noOtherFileIsOpened()
{
    QFETCH(QByteArray, content);
    QVERIFY(writeFile(path(QStringLiteral("holiday.mp4")), content));
    QCOMPARE(answer(QStringLiteral("holiday.mp4")), QByteArray("\n"));
}

void TestMediaReport::aFileThatCannotBeReadHasNoReport_data()
{
    QTest::addColumn<QString>("name");
    QTest::newRow("missing") << QStringLiteral("missing.mp4");
    QTest::newRow("folder") << QString();
    QTest::newRow("text") << QStringLiteral("lines.srt");
}

void TestMediaReport::aFileThatCannotBeReadHasNoReport()
{
    QFETCH(QString, name);
    QCOMPARE(answer(name), QByteArray("\n"));
    QVERIFY(answer(QStringLiteral("film.mp4")).startsWith('{'));
}

void TestMediaReport::noFileCanBeWritten()
{
    // It sets its limits before it answers.
    QVERIFY(answer(QStringLiteral("film.mp4")).startsWith('{'));
    const QByteArray limits =
        contentOf(QStringLiteral("/proc/%1/limits").arg(m_vexprobe.processId()));
    QVERIFY2(limits.contains("Max file size             0 "), limits.constData());
}

void TestMediaReport::itEndsWithItsInput()
{
    m_vexprobe.closeWriteChannel();
    QVERIFY(m_vexprobe.waitForFinished(patience));
    QCOMPARE(m_vexprobe.exitStatus(), QProcess::NormalExit);
    QCOMPARE(m_vexprobe.exitCode(), 0);
}

QTEST_GUILESS_MAIN(TestMediaReport)
#include "tst_mediareport.moc"
