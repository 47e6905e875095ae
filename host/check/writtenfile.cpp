#include "host/check/writtenfile.h"

#include "host/convert/codecs.h"
#include "host/convert/containers.h"
#include "host/convert/textlist.h"
#include "host/media/tool.h"

#include <cmath>

namespace {

// An encoder finds its bitrate only after a while: within a second some miss it by two and a half.
constexpr double videoTolerance = 3;
constexpr double audioTolerance = 2;

QString sizeText(const QSize &size)
{
    return QStringLiteral("%1x%2").arg(size.width()).arg(size.height());
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
    void comparePicture(const Container &container);
    void compareSound(const Container &container);
    QStringList deviations() const { return m_deviations; }

private:
    void compareSize(const VideoTrack &track);
    void compareCodec(const QString &codec, const QString &asked, const char *held);
    void compareBitrate(const QString &what, int stream, double asked, double tolerance);
    void expect(bool isAsAsked, const QString &deviation);

    const WrittenFile &m_file;
    const OutputSettings &m_asked;
    const MediaFacts &m_source;
    QStringList m_deviations;
};

void Comparison::compareContainer(const Container &container)
{
    const QString demuxer = QLatin1String(container.demuxer);
    expect(m_file.facts.container.split(QLatin1Char(',')).contains(demuxer),
           QStringLiteral("the file is %1, not %2").arg(m_file.facts.container, demuxer));
}

void Comparison::compareDuration()
{
    // The last frames of picture and sound needn't end together.
    constexpr double tolerance = 0.25;
    const double seconds = m_file.facts.duration;
    expect(seconds == 0 || std::abs(seconds - m_source.duration) < tolerance,
           QStringLiteral("lasts %1 s, not %2 s").arg(seconds).arg(m_source.duration));
}

void Comparison::comparePicture(const Container &container)
{
    const VideoTrack *track = m_file.facts.picture();
    if (track == nullptr || !m_asked.hasPicture) {
        expect(!m_asked.hasPicture, QStringLiteral("there is no picture"));
        expect(track == nullptr, QStringLiteral("there is a picture"));
        return;
    }
    compareCodec(track->codec, m_asked.videoCodec, container.videoCodecs);
    compareSize(*track);
    const double rate = track->frameRate.value();
    const double askedRate = m_asked.frameRate.value();
    expect(!m_asked.frameRate.isValid() || std::abs(rate - askedRate) < askedRate / 100,
           QStringLiteral("%1 frames a second, not %2").arg(rate).arg(askedRate));
    compareBitrate(QStringLiteral("video"), track->index,
                   videoCodec(track->codec).takesBitrate ? m_asked.videoKbps : 0, videoTolerance);
}

void Comparison::compareSize(const VideoTrack &track)
{
    const QSize box = m_asked.box;
    if (box.isEmpty()) {
        return;
    }
    // The pixels of a fixed frame needn't be square.
    const bool isFixed = !videoCodec(track.codec).frames.isEmpty();
    const QSize size = isFixed ? track.storedSize : track.displaySize();
    const QSize room = box - size;
    const bool isWithin = room.width() >= 0 && room.height() >= 0;
    const bool fills = room.width() < 2 || room.height() < 2;
    const bool isWhole = m_source.picture() != nullptr && size == m_source.picture()->displaySize();
    expect(isWithin && (fills || isWhole),
           QStringLiteral("%1 isn't fitted into %2").arg(sizeText(size), sizeText(box)));
}

void Comparison::compareSound(const Container &container)
{
    const AudioTrack *track = m_file.facts.sound();
    const bool isAsked = *container.audioCodecs != '\0' && m_source.sound() != nullptr;
    if (track == nullptr || !isAsked) {
        expect(!isAsked, QStringLiteral("there is no sound"));
        expect(track == nullptr, QStringLiteral("there is sound"));
        return;
    }
    compareCodec(track->codec, m_asked.audioCodec, container.audioCodecs);
    expect(m_asked.sampleRate == 0 || track->sampleRate == m_asked.sampleRate,
           QStringLiteral("%1 Hz, not %2").arg(track->sampleRate).arg(m_asked.sampleRate));
    expect(m_asked.channels == 0 || track->channels == m_asked.channels,
           QStringLiteral("%1 channels, not %2").arg(track->channels).arg(m_asked.channels));
    compareBitrate(QStringLiteral("audio"), track->index,
                   audioCodec(track->codec).takesBitrate ? m_asked.audioKbps : 0, audioTolerance);
}

/*! A preset that keeps the source's codec may come out in any that the container holds. */
void Comparison::compareCodec(const QString &codec, const QString &asked, const char *held)
{
    const QStringList expected = asked.isEmpty() ? words(held) : QStringList{asked};
    expect(expected.contains(codec),
           QStringLiteral("%1, not %2").arg(codec, expected.join(QStringLiteral(" or "))));
}

void Comparison::compareBitrate(const QString &what, int stream, double asked, double tolerance)
{
    const double kbps = m_file.streamBytes.value(stream) * 8 / 1000.0 / m_source.duration;
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
    // "0,1234" a packet: the stream's index and the packet's bytes, perhaps with more behind.
    for (const QByteArray &line : list.split('\n')) {
        const QList<QByteArray> cells = line.trimmed().split(',');
        if (cells.size() > 1) {
            streamBytes[cells.at(0).toInt()] += cells.at(1).toLongLong();
        }
    }
}

QStringList WrittenFile::deviations(const OutputSettings &asked, const MediaFacts &source) const
{
    const Container *container = Container::find(asked.extension);
    if (container == nullptr) {
        return {QStringLiteral("no container has the extension .%1").arg(asked.extension)};
    }
    Comparison comparison(*this, asked, source);
    comparison.compareContainer(*container);
    comparison.compareDuration();
    comparison.comparePicture(*container);
    comparison.compareSound(*container);
    return comparison.deviations();
}

QStringList packetListArguments(const QString &path)
{
    return {QStringLiteral("-v"),
            QStringLiteral("error"),
            QStringLiteral("-show_entries"),
            QStringLiteral("packet=stream_index,size"),
            QStringLiteral("-of"),
            QStringLiteral("csv=print_section=0"),
            fileArgument(path)};
}
