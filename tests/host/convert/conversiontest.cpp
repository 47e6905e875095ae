#include "tests/host/convert/conversiontest.h"

#include "tests/support/mediaclips.h"
#include "tests/support/patience.h"

#include <QEventLoop>

void ConversionTest::initTestCase()
{
    m_path = qgetenv("PATH");
    m_clips = std::make_unique<QTemporaryDir>();
    const auto clip = [this](const char *name) { return m_clips->filePath(QLatin1String(name)); };
    const QString twoTracks =
        QStringLiteral("-f lavfi -i testsrc2=size=320x240:rate=25:duration=1 "
                       "-f lavfi -i sine=duration=1 -f lavfi -i sine=duration=1:frequency=880 "
                       "-map 0 -map 1 -map 2 -c:v libx264 -preset ultrafast -pix_fmt yuv420p "
                       "-c:a aac -ac:a:1 2 -disposition:a:0 0 -disposition:a:1 default");
    QVERIFY(MediaClips::makeFilm(clip("film.mp4")));
    QVERIFY(MediaClips::makeFilm(clip("long.mp4"), 20));
    QVERIFY(MediaClips::make(clip("silent.mp4"),
                             QStringLiteral("-f lavfi -i testsrc2=size=320x240:rate=25:duration=1 "
                                            "-c:v libx264 -preset ultrafast -pix_fmt yuv420p")));
    QVERIFY(MediaClips::make(clip("turned.mp4"), QStringLiteral("-i %1 -c copy -metadata:s:v "
                                                                "rotate=90")
                                                     .arg(clip("film.mp4"))));
    QVERIFY(MediaClips::make(clip("wide.mkv"),
                             QStringLiteral("-f lavfi -i testsrc2=size=720x576:rate=25:duration=1 "
                                            "-vf setsar=64/45 -c:v mpeg2video -q:v 4")));
    QVERIFY(MediaClips::make(clip("dubbed.mkv"), twoTracks));
    QVERIFY(MediaClips::make(clip("raw.mkv"),
                             QStringLiteral("-f lavfi -i testsrc2=size=320x240:rate=25:duration=1 "
                                            "-f lavfi -i sine=duration=1:sample_rate=22050 "
                                            "-c:v ffv1 -c:a tta")));
    QVERIFY(MediaClips::makeSong(clip("song.flac")));
    QVERIFY(MediaClips::make(clip("cover.png"),
                             QStringLiteral("-f lavfi -i testsrc2=size=64x64 -frames:v 1")));
    QVERIFY(
        MediaClips::make(clip("covered.flac"), QStringLiteral("-i %1 -i %2 -map 0 -map 1 -c copy "
                                                              "-disposition:v attached_pic")
                                                   .arg(clip("song.flac"), clip("cover.png"))));
}

void ConversionTest::init()
{
    m_folder.emplace();
    m_tools.emplace();
    QVERIFY(m_folder->isValid());
    QVERIFY(m_tools->isValid());
    m_log.emplace();
}

void ConversionTest::cleanup()
{
    qputenv("PATH", m_path);
    QCOMPARE(m_log->takeAll(), QStringList());
    m_log.reset();
    m_folder.reset();
    m_tools.reset();
}

ConversionTest::Outcome ConversionTest::outcomeOf(Conversion &conversion)
{
    Outcome result = failed(QStringLiteral("(did not end)"));
    QEventLoop loop;
    QObject::connect(&conversion, &Conversion::finished, &loop,
                     [&result, &loop](const Outcome &outcome) {
                         result = outcome;
                         loop.quit();
                     });
    QTimer::singleShot(patience, &loop, &QEventLoop::quit);
    conversion.start();
    loop.exec();
    return result;
}

ConversionTest::Outcome ConversionTest::convert(const ConversionJob &job)
{
    Conversion conversion(job);
    return outcomeOf(conversion);
}

OutputSettings ConversionTest::video(const QString &extension)
{
    OutputSettings settings;
    settings.extension = extension;
    settings.hasVideo = true;
    return settings;
}

OutputSettings ConversionTest::audio(const QString &extension)
{
    OutputSettings settings;
    settings.extension = extension;
    return settings;
}
