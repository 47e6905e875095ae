#include "host/media/mediafacts.h"

#include "host/media/clocktext.h"
#include "host/media/probetracks.h"
#include "host/media/sizetext.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QRegularExpression>
#include <QStringList>

#include <algorithm>
#include <cmath>

namespace {

// A file can claim anything. Beyond this limit a duration counts as unknown.
constexpr double longestSeconds = 10 * 366.0 * 24 * 3600;

/*! Keeps "mov,mp4,m4a"; empty for anything but demuxer names. */
QString demuxerNames(const QString &text)
{
    static const QRegularExpression form(QStringLiteral("\\A[A-Za-z0-9_.,-]+\\z"));
    return form.match(text).hasMatch() ? text : QString();
}

/*! The first default track among those that `wanted` accepts, else the first of those. */
template <typename AnyTrack, typename Wanted>
const AnyTrack *defaultOrFirst(const QVector<AnyTrack> &tracks, Wanted wanted)
{
    const AnyTrack *first = nullptr;
    for (const AnyTrack &track : tracks) {
        if (!wanted(track)) {
            continue;
        }
        if (track.isDefault) {
            return &track;
        }
        if (first == nullptr) {
            first = &track;
        }
    }
    return first;
}

template <typename AnyTrack>
void append(QVector<AnyTrack> &tracks, AnyTrack track)
{
    track.number = tracks.size() + 1;
    tracks.append(track);
}

template <typename AnyTrack>
double longest(const QVector<AnyTrack> &tracks)
{
    double seconds = 0;
    for (const AnyTrack &track : tracks) {
        seconds = std::max(seconds, track.duration);
    }
    return seconds;
}

QString channelText(int channels)
{
    switch (channels) {
    case 1:
        return MediaFacts::tr("mono");
    case 2:
        return MediaFacts::tr("stereo");
    default:
        return MediaFacts::tr("%1 channels").arg(channels);
    }
}

} // namespace

MediaFacts MediaFacts::fromProbe(const QByteArray &json)
{
    MediaFacts facts;
    const QJsonObject probe = QJsonDocument::fromJson(json).object();
    const QJsonObject format = probe.value(QLatin1String("format")).toObject();
    facts.container = demuxerNames(probeText(format, QLatin1String("format_name")));
    facts.duration = plausibleSeconds(probeText(format, QLatin1String("duration")).toDouble());
    facts.bytes = std::max(0LL, probeText(format, QLatin1String("size")).toLongLong());

    const QJsonObject tags = format.value(QLatin1String("tags")).toObject();
    facts.creationTime = probeText(tags, QLatin1String("creation_time"));
    for (const char *key : {"location", "LOCATION", "com.apple.quicktime.location.ISO6709"}) {
        if (facts.location.isEmpty()) {
            facts.location = probeText(tags, QLatin1String(key));
        }
    }

    const QJsonArray streams = probe.value(QLatin1String("streams")).toArray();
    for (const QJsonValue &value : streams) {
        const QJsonObject stream = value.toObject();
        const QString type = probeText(stream, QLatin1String("codec_type"));
        if (type == QLatin1String("video")) {
            append(facts.videoTracks, videoTrackFromProbe(stream));
        } else if (type == QLatin1String("audio")) {
            append(facts.audioTracks, audioTrackFromProbe(stream));
        } else if (type == QLatin1String("subtitle")) {
            append(facts.subtitleTracks, subtitleTrackFromProbe(stream));
        } else if (type == QLatin1String("attachment")) {
            facts.attachments.append(attachmentFromProbe(stream));
        }
    }
    facts.chapters = probe.value(QLatin1String("chapters")).toArray().size();
    if (facts.duration == 0) {
        facts.duration = std::max(longest(facts.videoTracks), longest(facts.audioTracks));
    }
    return facts;
}

const VideoTrack *MediaFacts::video() const
{
    return defaultOrFirst(videoTracks, [](const VideoTrack &track) { return !track.isCover; });
}

const VideoTrack *MediaFacts::cover() const
{
    return defaultOrFirst(videoTracks, [](const VideoTrack &track) { return track.isCover; });
}

const AudioTrack *MediaFacts::audio() const
{
    return defaultOrFirst(audioTracks, [](const AudioTrack &) { return true; });
}

bool MediaFacts::isStill() const
{
    return container.endsWith(QLatin1String("_pipe")) || container == QLatin1String("image2");
}

bool MediaFacts::hasGuessedDuration() const
{
    static const QStringList withoutLength = {
        QStringLiteral("aac"),    QStringLiteral("ac3"),       QStringLiteral("dts"),
        QStringLiteral("eac3"),   QStringLiteral("h264"),      QStringLiteral("hevc"),
        QStringLiteral("m4v"),    QStringLiteral("mp3"),       QStringLiteral("mpeg"),
        QStringLiteral("mpegts"), QStringLiteral("mpegvideo"), QStringLiteral("truehd")};
    return withoutLength.contains(container);
}

QString MediaFacts::summary() const
{
    QStringList parts;
    if (const VideoTrack *track = video()) {
        QString line = track->codec + QLatin1Char(' ') + sizeText(track->displaySize());
        if (track->frameRate.isValid()) {
            line += tr(" %1 fps").arg(QString::number(track->frameRate.value(), 'g', 4));
        }
        parts << line;
    }
    if (const AudioTrack *track = audio()) {
        QString line = tr("%1 %2 Hz %3")
                           .arg(track->codec)
                           .arg(track->sampleRate)
                           .arg(channelText(track->channels));
        if (audioTracks.size() > 1) {
            line += tr(" (%1 audio tracks)").arg(audioTracks.size());
        }
        parts << line;
    }
    if (duration > 0) {
        parts << clockText(duration);
    }
    parts << bytesText(double(bytes));
    return parts.join(QStringLiteral(", "));
}

double plausibleSeconds(double seconds)
{
    return seconds >= 0 && seconds <= longestSeconds ? seconds : 0;
}
