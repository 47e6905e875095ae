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
