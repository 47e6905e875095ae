#include "tests/support/mediaclips.h"

#include "host/media/mediaprobe.h"
#include "host/tools/encoderlist.h"

#include <QEventLoop>
#include <QFile>
#include <QProcess>
#include <QStandardPaths>

namespace {

const QString blank = QStringLiteral(" ");

QString ffmpegPath()
{
    static const QString path = QStandardPaths::findExecutable(QStringLiteral("ffmpeg"));
    return path;
}

} // namespace

bool MediaClips::make(const QString &path, const QString &arguments)
{
    return QProcess::execute(
               ffmpegPath(),
               QStringLiteral("-nostdin -v error -y ").split(blank, Qt::SkipEmptyParts) +
                   arguments.split(blank) + QStringList{path}) == 0;
}

QVector<MediaClips::Kind> MediaClips::kinds()
{
    QVector<Kind> kinds;
    const QString video = QStringLiteral("-f lavfi -i testsrc2=size=352x288:rate=25:duration=1");
    const QString sine = QStringLiteral(" -f lavfi -i sine=duration=1:sample_rate=48000");
    const auto row = [&kinds](const char *name, const QString &arguments) {
        kinds.append({QString::fromLatin1(name), arguments});
    };
    for (const char *name : {"film.mov", "film.mkv", "film.avi", "film.ts", "film.mpg", "film.vob",
                             "film.nut", "film.ogv", "film.mxf"}) {
        row(name, video + sine);
    }
    row("film.wmv", video + sine + QStringLiteral(" -c:v wmv2 -c:a wmav2"));
    row("film.m2ts", video + sine + QStringLiteral(" -mpegts_m2ts_mode 1"));
    row("film.flv", video + sine + QStringLiteral(" -ar 44100"));
    row("film.webm", video + sine + QStringLiteral(" -c:v vp8 -deadline realtime -cpu-used 8"));
    row("film.dv", video + sine + QStringLiteral(" -s 720x576 -pix_fmt yuv420p -ac 2"));
    row("film.3gp", video + sine + QStringLiteral(" -c:v h263 -c:a aac"));
    row("timecode.mov", video + QStringLiteral(" -timecode 01:00:00:00"));
    for (const char *name : {"film.h264", "film.m2v", "film.m1v", "film.mjpeg", "film.ivf",
                             "film.gif", "film.apng", "film.y4m", "film.swf"}) {
        row(name, video + QStringLiteral(" -pix_fmt yuv420p -s 320x240"));
    }
    row("film.hevc", video + QStringLiteral(" -preset ultrafast -x265-params log-level=error"));
    row("still.jpg", video + QStringLiteral(" -frames:v 1 -update 1"));
    row("still.tga", video + QStringLiteral(" -frames:v 1 -update 1"));
    row("still.png", video + QStringLiteral(" -frames:v 1 -update 1"));
    row("still.webp", video + QStringLiteral(" -frames:v 1"));
    row("still.tiff", video + QStringLiteral(" -frames:v 1 -update 1"));
    row("still.bmp", video + QStringLiteral(" -frames:v 1 -update 1"));
    for (const char *name :
         {"song.wav", "song.w64",  "song.aiff", "song.au",  "song.caf", "song.flac",
          "song.mp3", "song.mp2",  "song.aac",  "song.m4a", "song.ac3", "song.eac3",
          "song.ogg", "song.opus", "song.spx",  "song.tta", "song.wv",  "song.wma",
          "song.mka", "song.voc",  "song.sox",  "song.g722"}) {
        row(name, sine.trimmed());
    }
    row("song.dts", sine.trimmed() + QStringLiteral(" -strict -2 -c:a dca"));
    row("song.thd", sine.trimmed() + QStringLiteral(" -strict -2 -c:a truehd -f truehd"));
    row("song.amr", sine.trimmed() + QStringLiteral(" -c:a libopencore_amrnb -ar 8000"));
    row("song.gsm", sine.trimmed() + QStringLiteral(" -c:a libgsm -ar 8000"));
    return kinds;
}

bool MediaClips::makeFilm(const QString &path, int seconds)
{
    return make(path, QStringLiteral("-f lavfi -i testsrc2=size=320x240:rate=25:duration=%1 "
                                     "-f lavfi -i sine=duration=%1 -c:v libx264 -pix_fmt yuv420p "
                                     "-preset ultrafast -c:a aac")
                          .arg(seconds));
}

bool MediaClips::makeSong(const QString &path)
{
    return make(path, QStringLiteral("-f lavfi -i sine=duration=1"));
}

MediaFacts MediaClips::factsOf(const QString &path)
{
    MediaProbe probe;
    QEventLoop loop;
    MediaFacts facts;
    QObject::connect(&probe, &MediaProbe::finished, &loop,
                     [&facts, &loop](const Result<MediaFacts> &probed) {
                         facts = probed.value_or(MediaFacts());
                         loop.quit();
                     });
    probe.start(path);
    loop.exec();
    return facts;
}

bool MediaClips::hasEncoder(const QString &name)
{
    static const QSet<QString> encoders = [] {
        QProcess ffmpeg;
        ffmpeg.start(ffmpegPath(), {QStringLiteral("-hide_banner"), QStringLiteral("-encoders")});
        ffmpeg.waitForFinished();
        return encodersInListing(ffmpeg.readAllStandardOutput());
    }();
    return encoders.contains(name);
}

bool MediaClips::makeStandIn(const QString &folder, const QString &script, const QString &lacking,
                             const QString &tool)
{
    QFile file(folder + QLatin1Char('/') + tool);
    if (!file.open(QIODevice::WriteOnly)) {
        return false;
    }
    const QString text =
        QStringLiteral("#!/bin/sh\n"
                       "REAL=%1\n"
                       "case \"$*\" in *-encoders*) $REAL \"$@\" | grep -v -w -e %2; exit;; esac\n"
                       "%3\n")
            .arg(QStandardPaths::findExecutable(tool), lacking, script);
    file.write(text.toUtf8());
    return file.setPermissions(QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner);
}

QByteArray MediaClips::pathWith(const QString &folder)
{
    return folder.toLocal8Bit() + ':' + qgetenv("PATH");
}
