#include "host/convert/ffmpegarguments.h"

#include "host/convert/codecs.h"
#include "host/convert/containers.h"
#include "host/convert/picturefit.h"
#include "host/convert/textlist.h"
#include "host/media/mediainput.h"
#include "host/tools/tool.h"

#include <QLocale>

#include <algorithm>
#include <cmath>

namespace {

using Arguments = FfmpegArguments;

/*! Appends the options of a table's cell, "crf=20 b=0", each for one stream. */
void appendOptions(QStringList &arguments, const char *cell, const QString &stream)
{
    const QStringList options = words(cell);
    for (const QString &option : options) {
        arguments << QLatin1Char('-') + option.section(QLatin1Char('='), 0, 0) + stream
                  << option.section(QLatin1Char('='), 1);
    }
}

QString kbpsText(double kbps)
{
    // Never as "1e+06", which ffmpeg reads as something else.
    return QString::number(kbps, 'f', QLocale::FloatingPointShortest) + QLatin1Char('k');
}

/*! The allowed value closest to the wanted one, the higher of two; the wanted one without a list.
 */
double nearestAllowed(double wanted, const char *allowed)
{
    double nearest = 0;
    const QStringList values = words(allowed);
    for (const QString &text : values) {
        const double value = text.toDouble();
        if (nearest == 0 || std::abs(value - wanted) <= std::abs(nearest - wanted)) {
            nearest = value;
        }
    }
    return nearest == 0 ? wanted : nearest;
}

/*! The same of rates; one that isn't valid is left to ffmpeg. */
Ratio nearestRate(const Ratio &wanted, const char *allowed)
{
    Ratio nearest;
    const QStringList values = wanted.isValid() ? words(allowed) : QStringList();
    for (const QString &text : values) {
        const Ratio rate = Ratio::fromText(text);
        if (!nearest.isValid() ||
            std::abs(rate.value() - wanted.value()) <= std::abs(nearest.value() - wanted.value())) {
            nearest = rate;
        }
    }
    return nearest.isValid() ? nearest : wanted;
}

bool holds(const char *codecs, const QString &codec)
{
    return words(codecs).contains(codec);
}

QStringList namesOf(const VideoCodec &codec, const QString &name)
{
    QStringList names;
    for (const VideoCodec::Encoder &encoder : codec.encoders) {
        names << QLatin1String(encoder.name);
    }
    return names.isEmpty() ? QStringList{name} : names;
}

QStringList namesOf(const AudioCodec &codec, const QString &name)
{
    QStringList names;
    if (codec.isOnlyCopied) {
        return names;
    }
    for (const char *encoder : codec.encoders) {
        names << QLatin1String(encoder);
    }
    return names.isEmpty() ? QStringList{name} : names;
}

/*! The options in front of the source that keep the wanted part of it. */
QStringList cutArguments(const OutputSettings &settings)
{
    QStringList arguments;
    if (settings.start > 0) {
        arguments << QStringLiteral("-ss") << QString::number(settings.start, 'f', 3);
    }
    if (settings.end > 0) {
        arguments << QStringLiteral("-t") << QString::number(settings.end - settings.start, 'f', 3);
    }
    return arguments;
}

class Former
{
public:
    Former(const OutputSettings &settings, const MediaFacts &source, const QSet<QString> &encoders,
           const Container &container)
        : m_settings(settings)
        , m_source(source)
        , m_encoders(encoders)
        , m_container(container)
    {}

    /*! The streams, their codecs and the muxer; empty with an error set where that can't be. */
    QStringList outputArguments();
    QString error() const { return m_error; }
    bool lacksEncoder() const { return m_lacksEncoder; }

private:
    QVector<AudioTrack> chosenSound() const;
    void mapStream(int index);
    void addPicture(const VideoTrack &track);
    void encodePicture(const VideoTrack &track, const QString &codecName);
    void addSound(const AudioTrack &track, int position);
    void encodeSound(const AudioTrack &track, const QString &codecName, const QString &stream);
    void addCover(const VideoTrack &track);

    /*! A copied stream can begin only at a key frame of the source. */
    bool canCopy() const { return m_settings.start <= 0; }
    bool keepsPicture(const VideoTrack &track) const;
    bool keepsSound(const AudioTrack &track) const;
    QSize boxedSize(const VideoTrack &track) const;
    Ratio wantedRate(const VideoTrack &track) const;
    Ratio encodedRate(const VideoTrack &track, const VideoCodec &codec) const;
    int wantedSampleRate(const AudioTrack &track) const;
    int wantedChannels(const AudioTrack &track) const;

    QString codecToWrite(const QString &chosen, const QString &own, const char *held,
                         const QStringList &ownEncoders) const;
    QString availableEncoder(const QStringList &names, const QString &codec);

    const OutputSettings &m_settings;
    const MediaFacts &m_source;
    const QSet<QString> &m_encoders;
    const Container &m_container;
    QStringList m_maps;
    QStringList m_codecs;
    QString m_error;
    bool m_lacksEncoder = false;
};

QStringList Former::outputArguments()
{
    const VideoTrack *picture = m_settings.hasPicture ? m_source.picture() : nullptr;
    const QVector<AudioTrack> sound = chosenSound();
    if (m_settings.hasPicture && picture == nullptr) {
        m_error = Arguments::tr("has no video; choose an audio preset");
    } else if (picture == nullptr && sound.isEmpty()) {
        m_error = Arguments::tr("has no sound; choose a video preset");
    } else if (picture != nullptr && words(m_container.videoCodecs).isEmpty()) {
        m_error = Arguments::tr("a .%1 file can't hold video; choose an audio preset")
                      .arg(m_settings.extension);
    }
    if (!m_error.isEmpty()) {
        return {};
    }
    if (picture != nullptr) {
        addPicture(*picture);
    }
    for (int position = 0; position < sound.size(); ++position) {
        addSound(sound.at(position), position);
    }
    const VideoTrack *cover = m_source.cover();
    if (picture == nullptr && cover != nullptr && m_container.has(Container::TakesCover)) {
        addCover(*cover);
    }
    if (!m_error.isEmpty()) {
        return {};
    }
    QStringList muxer;
    appendOptions(muxer, m_container.options, QString());
    muxer << QStringLiteral("-f") << QLatin1String(m_container.muxer);
    return m_maps + m_codecs + muxer;
}

QVector<AudioTrack> Former::chosenSound() const
{
    const AudioTrack *sound = m_source.sound();
    if (sound == nullptr || words(m_container.audioCodecs).isEmpty()) {
        return {};
    }
    const bool all = m_settings.allAudioTracks && m_container.has(Container::SeveralAudioTracks);
    return all ? m_source.audioTracks : QVector<AudioTrack>{*sound};
}

void Former::mapStream(int index)
{
    m_maps << QStringLiteral("-map") << QStringLiteral("0:%1").arg(index);
}

void Former::addPicture(const VideoTrack &track)
{
    mapStream(track.index);
    QString codec = track.codec;
    if (keepsPicture(track)) {
        m_codecs << QStringLiteral("-c:v:0") << QStringLiteral("copy");
    } else {
        codec = codecToWrite(m_settings.videoCodec, track.codec, m_container.videoCodecs,
                             namesOf(videoCodec(track.codec), track.codec));
        encodePicture(track, codec);
    }
    if (codec == QLatin1String("hevc") && m_container.has(Container::TagsHevcAsHvc1)) {
        m_codecs << QStringLiteral("-tag:v:0") << QStringLiteral("hvc1");
    }
}

bool Former::keepsPicture(const VideoTrack &track) const
{
    const bool turnIsKept = track.rotation == 0 || m_container.has(Container::KeepsRotation);
    return canCopy() && m_settings.videoCodec.isEmpty() &&
           holds(m_container.videoCodecs, track.codec) && m_settings.videoKbps == 0 &&
           wantedRate(track) == track.frameRate && boxedSize(track).isEmpty() && turnIsKept;
}

/*! The size that the preset's box asks for; empty where the picture may stay as it is. */
QSize Former::boxedSize(const VideoTrack &track) const
{
    const QSize shown = track.displaySize();
    if (m_settings.box.isEmpty() || shown.isEmpty()) {
        return {};
    }
    const QSize fitted = fitIntoBox(shown, m_settings.box);
    const bool isSquare = track.pixelAspect == Ratio{1, 1};
    return fitted == shown && isSquare ? QSize() : fitted;
}

Ratio Former::wantedRate(const VideoTrack &track) const
{
    return m_settings.frameRate.isValid() ? m_settings.frameRate : track.frameRate;
}

Ratio Former::encodedRate(const VideoTrack &track, const VideoCodec &codec) const
{
    // Without a rate of its own ffmpeg would repeat frames to fill the clock of the time stamps.
    const char usual[] = "10 12 15 20 24000/1001 24 25 30000/1001 30 48 50 60000/1001 60 120";
    const bool isAverage = !m_settings.frameRate.isValid() && !track.hasSteadyRate;
    const Ratio wanted = isAverage ? nearestRate(track.frameRate, usual) : wantedRate(track);
    return nearestRate(wanted, codec.frameRates);
}

void Former::encodePicture(const VideoTrack &track, const QString &codecName)
{
    const VideoCodec &codec = videoCodec(codecName);
    const QString encoder = availableEncoder(namesOf(codec, codecName), codecName);
    const QString stream = QStringLiteral(":v:0");
    QString pixelFormat = QLatin1String(codec.pixelFormat);
    Ratio rate = encodedRate(track, codec);
    QStringList filters;
    const auto scaleTo = [&filters](const QSize &size) {
        filters << QStringLiteral("scale=%1:%2").arg(size.width()).arg(size.height());
    };

    const QSize boxed = boxedSize(track);
    const QSize upright =
        track.rotation % 180 == 0 ? track.storedSize : track.storedSize.transposed();
    if (!codec.frames.isEmpty() && !upright.isEmpty()) {
        const FrameFit fit = fitIntoFrame(track.displaySize(), rate, codec.frames);
        const VideoCodec::Frame &frame = fit.frame;
        scaleTo(fit.picture);
        filters << QStringLiteral("pad=%1:%2:(ow-iw)/2:(oh-ih)/2")
                       .arg(frame.size.width())
                       .arg(frame.size.height())
                << QStringLiteral("setsar=%1").arg(frame.pixelAspect.toText());
        rate = frame.frameRate;
        pixelFormat = QLatin1String(frame.pixelFormat);
    } else if (!boxed.isEmpty()) {
        scaleTo(boxed);
        filters << QStringLiteral("setsar=1");
    } else if (!pixelFormat.isEmpty() && !upright.isEmpty() && evenSize(upright) != upright) {
        scaleTo(evenSize(upright));
    }
    if (*codec.filter != '\0') {
        filters << QLatin1String(codec.filter);
    }

    m_codecs << QStringLiteral("-c:v:0") << encoder;
    if (!filters.isEmpty()) {
        m_codecs << QStringLiteral("-filter:v:0") << filters.join(QLatin1Char(','));
    }
    if (rate.isValid() && (rate != track.frameRate || !track.hasSteadyRate)) {
        m_codecs << QStringLiteral("-r:v:0") << rate.toText();
    }
    if (!pixelFormat.isEmpty()) {
        m_codecs << QStringLiteral("-pix_fmt:v:0") << pixelFormat;
    }
    const bool asksBitrate = m_settings.videoKbps > 0 && codec.takesBitrate;
    for (const VideoCodec::Encoder &candidate : codec.encoders) {
        if (encoder == QLatin1String(candidate.name)) {
            appendOptions(m_codecs, candidate.options, stream);
            appendOptions(m_codecs, asksBitrate ? "" : candidate.quality, stream);
        }
    }
    if (asksBitrate) {
        m_codecs << QStringLiteral("-b:v:0") << kbpsText(m_settings.videoKbps);
    }
}

void Former::addSound(const AudioTrack &track, int position)
{
    mapStream(track.index);
    const QString stream = QStringLiteral(":a:%1").arg(position);
    if (keepsSound(track)) {
        m_codecs << QStringLiteral("-c") + stream << QStringLiteral("copy");
        return;
    }
    const QString codec = codecToWrite(m_settings.audioCodec, track.codec, m_container.audioCodecs,
                                       namesOf(audioCodec(track.codec), track.codec));
    encodeSound(track, codec, stream);
}

bool Former::keepsSound(const AudioTrack &track) const
{
    return canCopy() && !m_container.has(Container::SoundInEachFrame) &&
           m_settings.audioCodec.isEmpty() && holds(m_container.audioCodecs, track.codec) &&
           m_settings.audioKbps == 0 && wantedSampleRate(track) == track.sampleRate &&
           wantedChannels(track) == track.channels;
}

int Former::wantedSampleRate(const AudioTrack &track) const
{
    const int wanted = m_settings.sampleRate > 0 ? m_settings.sampleRate : track.sampleRate;
    return wanted == 0 ? 0 : int(nearestAllowed(wanted, m_container.sampleRates));
}

int Former::wantedChannels(const AudioTrack &track) const
{
    if (m_container.channels > 0) {
        return m_container.channels;
    }
    return m_settings.channels > 0 ? m_settings.channels : track.channels;
}

void Former::encodeSound(const AudioTrack &track, const QString &codecName, const QString &stream)
{
    const AudioCodec &codec = audioCodec(codecName);
    const int sampleRate = wantedSampleRate(track) == 0
                               ? 0
                               : int(nearestAllowed(wantedSampleRate(track), codec.sampleRates));
    const int channels = std::min(wantedChannels(track), codec.maxChannels);

    m_codecs << QStringLiteral("-c") + stream
             << availableEncoder(namesOf(codec, codecName), codecName);
    if (sampleRate != track.sampleRate) {
        m_codecs << QStringLiteral("-ar") + stream << QString::number(sampleRate);
    }
    if (channels != track.channels || (channels > 0 && !track.hasLayout)) {
        m_codecs << QStringLiteral("-ac") + stream << QString::number(channels);
    }
    if (m_container.has(Container::SoundInEachFrame)) {
        // The sound comes a frame early, as rounding may make it late, and with silence behind it:
        // ffmpeg would end the file with the sound.
        m_codecs << QStringLiteral("-filter") + stream << QStringLiteral("apad,asetpts=PTS-0.04/TB")
                 << QStringLiteral("-shortest");
    }
    const double asked = codec.takesBitrate ? m_settings.audioKbps : 0;
    double kbps = asked > 0 ? asked : codec.kbpsPerChannel * channels;
    if (kbps > 0) {
        const double kiloSamples = sampleRate * channels / 1000.0;
        if (kiloSamples > 0) {
            kbps = std::min(kbps, std::floor(codec.maxBitsPerSample * kiloSamples));
            const double least = channels == 2 ? codec.minBitsPerSample : codec.minBitsUnlessStereo;
            kbps = std::max(kbps, std::ceil(least * kiloSamples));
        }
        m_codecs << QStringLiteral("-b") + stream << kbpsText(nearestAllowed(kbps, codec.bitrates));
    } else {
        appendOptions(m_codecs, codec.quality, stream);
    }
}

void Former::addCover(const VideoTrack &track)
{
    const QStringList still = {QStringLiteral("mjpeg"), QStringLiteral("png")};
    if (still.contains(track.codec)) {
        mapStream(track.index);
        m_codecs << QStringLiteral("-c:v:0") << QStringLiteral("copy")
                 << QStringLiteral("-disposition:v:0") << QStringLiteral("attached_pic");
    }
}

/*! The preset's codec, else the source's own where the file can hold it, else the usual one. */
QString Former::codecToWrite(const QString &chosen, const QString &own, const char *held,
                             const QStringList &ownEncoders) const
{
    if (!chosen.isEmpty()) {
        return chosen;
    }
    const bool canWriteOwn =
        std::any_of(ownEncoders.begin(), ownEncoders.end(),
                    [this](const QString &name) { return m_encoders.contains(name); });
    return holds(held, own) && canWriteOwn ? own : words(held).constFirst();
}

QString Former::availableEncoder(const QStringList &names, const QString &codec)
{
    for (const QString &name : names) {
        if (m_encoders.contains(name)) {
            return name;
        }
    }
    m_lacksEncoder = !names.isEmpty() && (holds(m_container.videoCodecs, codec) ||
                                          holds(m_container.audioCodecs, codec));
    m_error = Arguments::tr("needs the encoder %1 for %2, which this ffmpeg lacks; choose a preset "
                            "with another encoder or install an ffmpeg that has it")
                  .arg(names.isEmpty() ? codec : names.join(Arguments::tr(" or ")), codec);
    return {};
}

} // namespace

FfmpegArguments FfmpegArguments::form(const OutputSettings &settings, const MediaFacts &source,
                                      const QSet<QString> &encoders, const QString &sourcePath,
                                      const QString &targetPath)
{
    FfmpegArguments result;
    result.error = settings.problem();
    if (!result.error.isEmpty()) {
        return result;
    }
    Former former(settings, source, encoders, *Container::find(settings.extension));
    const QStringList output = former.outputArguments();
    result.error = former.error();
    result.lacksEncoder = former.lacksEncoder();
    if (result.error.isEmpty()) {
        result.arguments = QStringList{QStringLiteral("-nostdin"),  QStringLiteral("-hide_banner"),
                                       QStringLiteral("-v"),        QStringLiteral("error"),
                                       QStringLiteral("-progress"), QStringLiteral("pipe:1"),
                                       QStringLiteral("-y")} +
                           cutArguments(settings) + inputArguments(sourcePath, source.container) +
                           output + QStringList{fileArgument(targetPath)};
    }
    return result;
}
