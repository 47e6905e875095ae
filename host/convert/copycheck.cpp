#include "host/convert/copycheck.h"

#include "host/media/mediainput.h"

#include <algorithm>
#include <cmath>

namespace {

struct SeenFrame
{
    double seconds = 0;
    QByteArray hash;
};

/*! Reads "0, 40, 40, 1, 28800, 7c1f0b2a": stream, two times in milliseconds, duration, size, hash.
 */
QVector<SeenFrame> framesIn(const QByteArray &list)
{
    QVector<SeenFrame> frames;
    const QList<QByteArray> lines = list.split('\n');
    for (const QByteArray &line : lines) {
        const QList<QByteArray> cells = line.split(',');
        if (!line.startsWith('#') && cells.size() >= 6) {
            frames.append({cells.at(2).trimmed().toDouble() / 1000, cells.at(5).trimmed()});
        }
    }
    return frames;
}

/*! Whether a track is as long as its source; true if a duration is unknown. */
bool lasts(const Track *source, const Track *result, double seconds)
{
    // The last video and audio packets needn't end together.
    constexpr double tolerance = 0.25;
    if (source == nullptr || result == nullptr || source->duration <= 0 || result->duration <= 0) {
        return true;
    }
    const double expected = seconds > 0 ? std::min(seconds, source->duration) : source->duration;
    return std::abs(result->duration - expected) < tolerance;
}

} // namespace

QStringList firstFramesArguments(const MediaFacts &file, const QString &path)
{
    return QStringList{QStringLiteral("-t"), QStringLiteral("1")} +
           inputArguments(path, file.container) +
           QStringList{QStringLiteral("-map"),
                       QStringLiteral("0:%1").arg(file.video()->index),
                       QStringLiteral("-fps_mode"),
                       QStringLiteral("passthrough"),
                       QStringLiteral("-enc_time_base"),
                       QStringLiteral("1/1000"),
                       QStringLiteral("-f"),
                       QStringLiteral("framehash"),
                       QStringLiteral("-hash"),
                       QStringLiteral("crc32"),
                       QStringLiteral("pipe:1")};
}

bool beginsAlike(const QByteArray &sourceFrames, const QByteArray &copyFrames)
{
    constexpr double noticed = 0.05; // seconds that video and audio may drift apart
    const QVector<SeenFrame> source = framesIn(sourceFrames);
    const QVector<SeenFrame> copy = framesIn(copyFrames);
    const int both = std::min(source.size(), copy.size());
    for (int i = 0; i < both; ++i) {
        if (source.at(i).hash != copy.at(i).hash ||
            std::abs(source.at(i).seconds - copy.at(i).seconds) > noticed) {
            return false;
        }
    }
    return both > 0 || source.isEmpty();
}

Copies copiesThatLast(const Copies &copied, const MediaFacts &source, const MediaFacts &result,
                      double seconds)
{
    if (source.hasGuessedDuration() || result.hasGuessedDuration()) {
        return copied;
    }
    // If only the files state a duration, the longer track may be the video.
    constexpr double tolerance = 0.25;
    const bool isFileLonger =
        seconds > 0 && result.duration > 0 && result.duration > seconds + tolerance;
    return {copied.video && !isFileLonger && lasts(source.video(), result.video(), seconds),
            copied.audio && !isFileLonger && lasts(source.audio(), result.audio(), seconds),
            copied.subtitles};
}

Copies fewerCopies(const Copies &first, const Copies &copied)
{
    if (copied.video && copied.audio) {
        return {true, false, copied.subtitles};
    }
    return {false, copied.video && first.audio, copied.subtitles};
}
