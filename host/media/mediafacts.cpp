#include "host/media/mediafacts.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QLocale>
#include <QRegularExpression>
#include <QStringList>

#include <algorithm>
#include <cmath>

namespace {

// A file can say anything. What lies beyond these limits can't be true and counts as unknown.
constexpr double longestSeconds = 10 * 366.0 * 24 * 3600;
constexpr int largestSide = 65536;                // pixels
constexpr double mostStretchedPixel = 100;        // one side to the other
constexpr double fastestRate = 1000;              // frames a second
constexpr int fastestSampling = 10 * 1000 * 1000; // Hz
constexpr int mostChannels = 512;

/*! \a number where it is one from 0 to \a most, else 0. */
template <typename Number>
Number plausible(Number number, Number most)
{
    return number >= 0 && number <= most ? number : 0;
}

QString text(const QJsonObject &object, QLatin1String key)
{
    return object.value(key).toVariant().toString();
}

bool hasDisposition(const QJsonObject &stream, QLatin1String name)
{
    return stream.value(QLatin1String("disposition")).toObject().value(name).toInt() == 1;
}

int quarterTurn(double degrees)
{
    if (!(std::abs(degrees) <= 360)) {
        return 0;
    }
    const int turn = int(std::lround(degrees / 90.0)) * 90 % 360;
    return turn < 0 ? turn + 360 : turn;
}

int rotationOf(const QJsonObject &stream)
{
    const QJsonArray sideData = stream.value(QLatin1String("side_data_list")).toArray();
    for (const QJsonValue &entry : sideData) {
        const QJsonValue rotation = entry.toObject().value(QLatin1String("rotation"));
        if (rotation.isDouble()) {
            return quarterTurn(-rotation.toDouble());
        }
    }
    const QJsonObject tags = stream.value(QLatin1String("tags")).toObject();
    return quarterTurn(text(tags, QLatin1String("rotate")).toDouble());
}

QSize sizeOf(const QJsonObject &stream)
{
    const QSize size(plausible(stream.value(QLatin1String("width")).toInt(), largestSide),
                     plausible(stream.value(QLatin1String("height")).toInt(), largestSide));
    return size.isEmpty() ? QSize(0, 0) : size;
}

Ratio pixelAspectOf(const QJsonObject &stream)
{
    const Ratio aspect = Ratio::fromText(text(stream, QLatin1String("sample_aspect_ratio")));
    const double wide = aspect.value();
    const bool isPlausible = wide >= 1 / mostStretchedPixel && wide <= mostStretchedPixel;
    return isPlausible ? aspect : Ratio{1, 1};
}

Ratio frameRateOf(const QJsonObject &stream, QLatin1String key)
{
    const Ratio rate = Ratio::fromText(text(stream, key));
    return rate.value() <= fastestRate ? rate : Ratio();
}

void readFrameRate(const QJsonObject &stream, VideoTrack &track)
{
    // With a variable rate the nominal one may be the clock of the time stamps (say 90000).
    constexpr double fastestPlausible = 240;
    track.frameRate = frameRateOf(stream, QLatin1String("r_frame_rate"));
    track.hasSteadyRate = track.frameRate.isValid() && track.frameRate.value() <= fastestPlausible;
    if (!track.hasSteadyRate) {
        track.frameRate = frameRateOf(stream, QLatin1String("avg_frame_rate"));
    }
}

/*! "mov,mp4,m4a" as it is; empty for a text that names no demuxers. */
QString demuxerNames(const QString &text)
{
    static const QRegularExpression form(QStringLiteral("\\A[A-Za-z0-9_.,-]+\\z"));
    return form.match(text).hasMatch() ? text : QString();
}

VideoTrack videoTrack(const QJsonObject &stream)
{
    VideoTrack track;
    track.index = std::max(0, stream.value(QLatin1String("index")).toInt());
    track.codec = text(stream, QLatin1String("codec_name"));
    track.storedSize = sizeOf(stream);
    track.pixelAspect = pixelAspectOf(stream);
    track.rotation = rotationOf(stream);
    readFrameRate(stream, track);
    track.isDefault = hasDisposition(stream, QLatin1String("default"));
    track.isCover = hasDisposition(stream, QLatin1String("attached_pic"));
    return track;
}

AudioTrack audioTrack(const QJsonObject &stream)
{
    AudioTrack track;
    track.index = std::max(0, stream.value(QLatin1String("index")).toInt());
    track.codec = text(stream, QLatin1String("codec_name"));
    track.sampleRate =
        plausible(text(stream, QLatin1String("sample_rate")).toInt(), fastestSampling);
    track.channels = plausible(stream.value(QLatin1String("channels")).toInt(), mostChannels);
    track.hasLayout = stream.contains(QLatin1String("channel_layout"));
    track.isDefault = hasDisposition(stream, QLatin1String("default"));
    return track;
}

/*! The first track that `wanted` accepts and the file marks as default, else the first accepted. */
template <typename Track, typename Wanted>
const Track *defaultOrFirst(const QVector<Track> &tracks, Wanted wanted)
{
    const Track *first = nullptr;
    for (const Track &track : tracks) {
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

QSize VideoTrack::displaySize() const
{
    const int width = int(std::lround(storedSize.width() * pixelAspect.value()));
    const QSize shown(width, storedSize.height());
    return rotation % 180 == 0 ? shown : shown.transposed();
}

MediaFacts MediaFacts::fromProbe(const QByteArray &json)
{
    MediaFacts facts;
    const QJsonObject probe = QJsonDocument::fromJson(json).object();
    const QJsonObject format = probe.value(QLatin1String("format")).toObject();
    facts.container = demuxerNames(text(format, QLatin1String("format_name")));
    facts.duration = plausibleSeconds(text(format, QLatin1String("duration")).toDouble());
    facts.bytes = std::max(0LL, text(format, QLatin1String("size")).toLongLong());

    const QJsonArray streams = probe.value(QLatin1String("streams")).toArray();
    for (const QJsonValue &value : streams) {
        const QJsonObject stream = value.toObject();
        const QString type = text(stream, QLatin1String("codec_type"));
        if (type == QLatin1String("video")) {
            facts.videoTracks.append(videoTrack(stream));
        } else if (type == QLatin1String("audio")) {
            facts.audioTracks.append(audioTrack(stream));
        } else {
            continue;
        }
        if (facts.duration == 0) {
            facts.duration = plausibleSeconds(text(stream, QLatin1String("duration")).toDouble());
        }
    }
    return facts;
}

const VideoTrack *MediaFacts::picture() const
{
    return defaultOrFirst(videoTracks, [](const VideoTrack &track) { return !track.isCover; });
}

const VideoTrack *MediaFacts::cover() const
{
    return defaultOrFirst(videoTracks, [](const VideoTrack &track) { return track.isCover; });
}

const AudioTrack *MediaFacts::sound() const
{
    return defaultOrFirst(audioTracks, [](const AudioTrack &) { return true; });
}

QString MediaFacts::summary() const
{
    QStringList parts;
    if (const VideoTrack *video = picture()) {
        QString line = video->codec + QLatin1Char(' ') + sizeText(video->displaySize());
        if (video->frameRate.isValid()) {
            line += tr(" %1 fps").arg(QString::number(video->frameRate.value(), 'g', 4));
        }
        parts << line;
    }
    if (const AudioTrack *audio = sound()) {
        QString line = tr("%1 %2 Hz %3")
                           .arg(audio->codec)
                           .arg(audio->sampleRate)
                           .arg(channelText(audio->channels));
        if (audioTracks.size() > 1) {
            line += tr(" (%1 audio tracks)").arg(audioTracks.size());
        }
        parts << line;
    }
    if (duration > 0) {
        parts << clockText(duration);
    }
    parts << QLocale::c().formattedDataSize(bytes, 1, QLocale::DataSizeTraditionalFormat);
    return parts.join(QStringLiteral(", "));
}

QString sizeText(const QSize &size)
{
    return QStringLiteral("%1x%2").arg(size.width()).arg(size.height());
}

double plausibleSeconds(double seconds)
{
    return plausible(seconds, longestSeconds);
}

QString clockText(double seconds)
{
    const qint64 whole = std::llround(plausibleSeconds(seconds));
    const QLatin1Char zero('0');
    const QString tail = QStringLiteral("%1:%2");
    const qint64 minutes = whole / 60;
    if (minutes < 60) {
        return tail.arg(minutes).arg(whole % 60, 2, 10, zero);
    }
    return QStringLiteral("%1:").arg(minutes / 60) +
           tail.arg(minutes % 60, 2, 10, zero).arg(whole % 60, 2, 10, zero);
}
