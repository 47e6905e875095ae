#include "host/check/writtenfile.h"

#include "host/convert/audioplan.h"
#include "host/convert/codecs.h"
#include "host/convert/colourplan.h"
#include "host/convert/containers.h"
#include "host/convert/frametiming.h"
#include "host/convert/nearest.h"
#include "host/media/mediainput.h"
#include "host/media/sizetext.h"

#include <algorithm>
#include <cmath>

namespace {

// The buffer may be full when the second starts, and some encoders only aim at the bitrate.
constexpr double videoTolerance = 2.5;
constexpr double audioTolerance = 2;

bool supports(const QVector<int> &allowed, int value)
{
    return allowed.isEmpty() || allowed.contains(value);
}

class Comparison
{
public:
    Comparison(const WrittenFile &file, const OutputSettings &asked, const MediaFacts &source)
        : m_file(file)
        , m_asked(asked)
        , m_source(source)
    {}

    void compareContainer(const Container &container);
    void compareDuration();
    void compareVideo(const Container &container);
    void compareAudio(const Container &container);
    QStringList deviations() const { return m_deviations; }

private:
    void compareSize(const VideoTrack &track, const QSize &sourceSize);
    void compareCodec(const QString &codec, const QString &asked, const QString &source,
                      const QStringList &supported);
    void compareCeiling(const VideoTrack &track, const VideoCodec &codec);
    void compareStream(const VideoTrack &track);
    void compareBitrate(const QString &what, int stream, double asked, double tolerance);
    void expect(bool isAsAsked, const QString &deviation);

    const WrittenFile &m_file;
    const OutputSettings &m_asked;
    const MediaFacts &m_source;
    QStringList m_deviations;
};

void Comparison::compareContainer(const Container &container)
{
    expect(m_file.facts.container.split(QLatin1Char(',')).contains(container.demuxer),
           QStringLiteral("the file is %1, not %2").arg(m_file.facts.container, container.demuxer));
}

void Comparison::compareDuration()
{
    // Video and audio needn't end at exactly the same time.
    constexpr double tolerance = 0.25;
    const double seconds = m_file.facts.duration;
    expect(seconds == 0 || std::abs(seconds - m_source.duration) < tolerance,
           QStringLiteral("lasts %1 s, not %2 s").arg(seconds).arg(m_source.duration));
}

void Comparison::compareVideo(const Container &container)
{
    const VideoTrack *track = m_file.facts.video();
    const bool isWanted = m_asked.hasVideo && m_source.video() != nullptr;
    if (track == nullptr || !isWanted) {
        expect(!isWanted, QStringLiteral("there is no video"));
        expect(track == nullptr, QStringLiteral("there is video"));
        return;
    }
    const VideoTrack *source = m_source.video();
    const VideoCodec codec = videoCodec(track->codec);
    compareCodec(track->codec, m_asked.videoCodec, source->codec, container.videoCodecs);
    compareSize(*track, source->displaySize());
    const double rate = track->frameRate.value();
    const double wanted =
        nearestAllowed(resultRate(source->frameRate, m_asked), codec.frameRates).value();
    expect(!codec.frames.isEmpty() || std::abs(rate - wanted) < wanted / 100,
           QStringLiteral("%1 fps, not %2").arg(rate).arg(wanted));
    compareCeiling(*track, codec);
    compareStream(*track);
}

void Comparison::compareSize(const VideoTrack &track, const QSize &sourceSize)
{
    // The pixels of a fixed frame needn't be square.
    const QVector<VideoCodec::Frame> frames = videoCodec(track.codec).frames;
    const QSize size = frames.isEmpty() ? track.displaySize() : track.storedSize;
    const QSize sourceRoom = sourceSize - size;
    const bool isWhole = std::max(sourceRoom.width(), sourceRoom.height()) < 2;
    if (m_asked.box.isEmpty()) {
        expect(!frames.isEmpty() || isWhole,
               QStringLiteral("%1, not %2").arg(sizeText(size), sizeText(sourceSize)));
        return;
    }
    const QSize room = m_asked.box - size;
    const bool isWithin = room.width() >= 0 && room.height() >= 0;
    const bool fills = room.width() < 2 || room.height() < 2;
    expect(isWithin && (fills || isWhole),
           QStringLiteral("%1 isn't scaled to fit %2").arg(sizeText(size), sizeText(m_asked.box)));
}

void Comparison::compareAudio(const Container &container)
{
    const AudioTrack *track = m_file.facts.audio();
    const AudioTrack *source = m_source.audio();
    const bool isAsked = !container.audioCodecs.isEmpty() && source != nullptr;
    if (track == nullptr || !isAsked) {
        expect(!isAsked, QStringLiteral("there is no audio"));
        expect(track == nullptr, QStringLiteral("there is audio"));
        return;
    }
    const AudioCodec codec = audioCodec(track->codec);
    compareCodec(track->codec, m_asked.audioCodec, source->codec, container.audioCodecs);

    // If none is set, the nearest rate that the container and the codec support is used.
    const bool canKeepRate = supports(container.sampleRates, source->sampleRate) &&
                             supports(codec.sampleRates, source->sampleRate);
    const int rate = m_asked.sampleRate > 0 ? m_asked.sampleRate : source->sampleRate;
    expect((m_asked.sampleRate == 0 && !canKeepRate) || track->sampleRate == rate,
           QStringLiteral("%1 Hz, not %2").arg(track->sampleRate).arg(rate));

    const int wanted =
        m_asked.channels > 0 ? std::min(m_asked.channels, source->channels) : source->channels;
    const int channels =
        container.channels > 0 ? container.channels : std::min(wanted, codec.maxChannels);
    expect(track->channels == channels,
           QStringLiteral("%1 channels, not %2").arg(track->channels).arg(channels));
    compareBitrate(QStringLiteral("audio"), track->index,
                   codec.takesBitrate ? askedKbps(m_asked, channels) : 0, audioTolerance);
}

/*! If none is set, the source's codec is kept if the container supports it, else its default one is
 *  used. */
void Comparison::compareCodec(const QString &codec, const QString &asked, const QString &source,
                              const QStringList &supported)
{
    const QString fallback = supported.contains(source) ? source : supported.value(0);
    const QString wanted = asked.isEmpty() ? fallback : asked;
    expect(codec == wanted, QStringLiteral("%1, not %2").arg(codec, wanted));
}

/*! The clip lasts a second, so that its bitrate is the peak, too. */
void Comparison::compareCeiling(const VideoTrack &track, const VideoCodec &codec)
{
    const double kbps =
        double(m_file.streamBytes.value(track.index)) * 8 / 1000 / m_source.duration;
    const double ceiling =
        m_asked.peakKbps > 0 ? m_asked.peakKbps : m_asked.videoKbps * videoTolerance;
    expect(kbps > 0 && (ceiling == 0 || !codec.takesBitrate || kbps <= ceiling),
           QStringLiteral("video has %1 kbps, more than %2").arg(kbps, 0, 'f', 0).arg(ceiling));
}

/*! What the device needs of the stream. */
void Comparison::compareStream(const VideoTrack &track)
{
    // H.264 counts levels in tenths, HEVC in thirtieths.
    const double unit = track.codec == QLatin1String("hevc") ? 30 : 10;
    expect(m_asked.level.isEmpty() || track.level <= qRound(m_asked.level.toDouble() * unit),
           QStringLiteral("the level is %1, not %2").arg(track.level / unit).arg(m_asked.level));
    const bool isSourceDeep = isDeep(m_source.video()->pixelFormat);
    const int depth = isDeep(track.pixelFormat) ? 10 : 8;
    expect(m_asked.bitDepth == 0 || depth == (isSourceDeep ? m_asked.bitDepth : 8),
           QStringLiteral("%1 bits per colour, not %2").arg(depth).arg(m_asked.bitDepth));
    expect(m_asked.videoTag.isEmpty() || track.codecTag == m_asked.videoTag,
           QStringLiteral("the tag is %1, not %2").arg(track.codecTag, m_asked.videoTag));
}

void Comparison::compareBitrate(const QString &what, int stream, double asked, double tolerance)
{
    const double kbps = double(m_file.streamBytes.value(stream)) * 8 / 1000 / m_source.duration;
    expect(asked == 0 || (kbps > asked / tolerance && kbps < asked * tolerance),
           QStringLiteral("%1 has %2 kbps, not %3").arg(what).arg(kbps, 0, 'f', 0).arg(asked));
}

void Comparison::expect(bool isAsAsked, const QString &deviation)
{
    if (!isAsAsked) {
        m_deviations << deviation;
    }
}

} // namespace

void WrittenFile::readPackets(const QByteArray &list)
{
    // Each packet is "0,1234": the stream's index and the packet's size, possibly followed by more.
    const QList<QByteArray> lines = list.split('\n');
    for (const QByteArray &line : lines) {
        const QList<QByteArray> cells = line.trimmed().split(',');
        if (cells.size() > 1) {
            bool isStream = false;
            const int stream = cells.at(0).toInt(&isStream);
            if (isStream && stream >= 0) {
                streamBytes[stream] += std::max(0, cells.at(1).toInt());
            }
        }
    }
}

QStringList WrittenFile::deviations(const OutputSettings &asked, const MediaFacts &source) const
{
    const Container *container = Container::find(asked.extension);
    if (container == nullptr) {
        return {QStringLiteral("\".%1\" files can't be written").arg(asked.extension)};
    }
    Comparison comparison(*this, asked, source);
    comparison.compareContainer(*container);
    comparison.compareDuration();
    comparison.compareVideo(*container);
    comparison.compareAudio(*container);
    return comparison.deviations();
}

QStringList packetListArguments(const QString &path)
{
    return QStringList{QStringLiteral("-show_entries"), QStringLiteral("packet=stream_index,size"),
                       QStringLiteral("-of"), QStringLiteral("csv=print_section=0")} +
           inputArguments(path, demuxersFor(path));
}
