#include "host/convert/audioplan.h"

#include "host/convert/codecs.h"
#include "host/convert/nearest.h"

#include <algorithm>
#include <cmath>

namespace {

/*! In Hz; 0 if neither preset nor source state it. */
int wantedSampleRate(const AudioTrack &track, const StreamTarget &target)
{
    const int asked = target.settings.sampleRate;
    const int wanted = asked > 0 ? asked : track.sampleRate;
    return wanted == 0 ? 0 : nearestAllowed(wanted, target.container.sampleRates);
}

/*! Never more than the source has, unless the container requires them. */
int wantedChannels(const AudioTrack &track, const StreamTarget &target)
{
    if (target.container.channels > 0) {
        return target.container.channels;
    }
    const int asked = target.settings.channels;
    const bool isFewer = asked > 0 && (asked < track.channels || track.channels == 0);
    return isFewer ? asked : track.channels;
}

bool isPcm(const QString &codec)
{
    return codec.startsWith(QLatin1String("pcm_"));
}

bool isLossless(const AudioTrack &track)
{
    return track.bitsPerSample >= 16;
}

/*! The supported PCM codec that keeps all bits of the track, with the byte order of \a like. */
QString pcmAsDeep(const AudioTrack &track, const QString &like, const QStringList &held)
{
    const QString order = like.right(2);
    const bool isFloat = track.sampleFormat.startsWith(QLatin1String("flt")) ||
                         track.sampleFormat.startsWith(QLatin1String("dbl"));
    QStringList deepEnough;
    if (!isFloat && track.bitsPerSample <= 16) {
        deepEnough << QStringLiteral("pcm_s16");
    }
    if (!isFloat && track.bitsPerSample <= 24) {
        deepEnough << QStringLiteral("pcm_s24");
    }
    if (isFloat) {
        deepEnough << QStringLiteral("pcm_f32");
    }
    // The deepest one, if none is deep enough.
    deepEnough << QStringLiteral("pcm_s32") << QStringLiteral("pcm_s24");
    for (const QString &pcm : qAsConst(deepEnough)) {
        if (held.contains(pcm + order)) {
            return pcm + order;
        }
    }
    return like;
}

/*! A lossless codec for a lossless track whose codec the container doesn't support; empty if it
 *  supports none. */
QString losslessCodec(const AudioTrack &track, const QStringList &held)
{
    QString flac = QStringLiteral("flac");
    if (!isPcm(track.codec) && held.contains(flac)) {
        return flac;
    }
    const auto pcm = std::find_if(held.begin(), held.end(), isPcm);
    return pcm == held.end() ? QString() : pcmAsDeep(track, *pcm, held);
}

/*! The preset's codec for the track; empty: the source's, or the container's usual one. */
QString wantedCodec(const AudioTrack &track, const StreamTarget &target)
{
    const QStringList &held = target.container.audioCodecs;
    const QString &chosen = target.settings.audioCodec;
    if (!isLossless(track)) {
        return chosen;
    }
    if (chosen.isEmpty() && !held.contains(track.codec)) {
        return losslessCodec(track, held);
    }
    // A video preset's 16-bit PCM stands for PCM of any depth.
    const bool isDeeper = target.settings.hasVideo && track.bitsPerSample > 16;
    return isDeeper && chosen.startsWith(QLatin1String("pcm_s16")) ? pcmAsDeep(track, chosen, held)
                                                                   : chosen;
}

/*! Whether the track has no more than the preset asks for: in a film the bitrate is a ceiling. */
bool isBelowCeiling(const AudioTrack &track, const OutputSettings &settings)
{
    // Encoders, too, miss a bitrate by so much.
    constexpr double tolerance = 1.02;
    return settings.hasVideo && track.kbps > 0 && !isLossless(track) &&
           track.kbps <= askedKbps(settings, track.channels) * tolerance;
}

bool canBeCopied(const AudioTrack &track, const QString &wanted, const StreamTarget &target)
{
    const OutputSettings &settings = target.settings;
    const bool isOwnCodec = wanted.isEmpty() ? target.container.audioCodecs.contains(track.codec)
                                             : wanted == track.codec;
    return target.allowsAudioCopy() && !target.container.hasAudioInFrames && isOwnCodec &&
           (settings.audioKbps == 0 || isBelowCeiling(track, settings)) &&
           wantedSampleRate(track, target) == track.sampleRate &&
           wantedChannels(track, target) == track.channels;
}

/*! The channel layout that replaces the track's for the encoder; empty: none. */
QString layoutToWrite(const AudioTrack &track, const AudioCodec &codec, int channels)
{
    // These encoders don't distinguish side from back speakers.
    const QString atSides = QStringLiteral("(side)");
    const bool isOther =
        channels == track.channels && !codec.knowsSideSpeakers && track.layout.endsWith(atSides);
    return isOther ? track.layout.chopped(atSides.size()) : QString();
}

/*! The bitrate for the encoder that is closest to the requested one; 0 if its quality sets the
 *  bitrate. */
double encodedKbps(const AudioCodec &codec, double asked, int sampleRate, int channels)
{
    const bool isAsked = codec.takesBitrate && asked > 0;
    double kbps = isAsked ? asked : codec.kbpsPerChannel * channels;
    if (kbps <= 0) {
        return 0;
    }
    const double kiloSamples = sampleRate * channels / 1000.0;
    if (kiloSamples > 0) {
        kbps = std::min(kbps, std::floor(codec.maxBitsPerSample * kiloSamples));
        const double least = channels == 2 ? codec.minBitsPerSample : codec.minBitsUnlessStereo;
        kbps = std::max(kbps, std::ceil(least * kiloSamples));
    }
    return nearestAllowed(kbps, codec.bitrates);
}

} // namespace

double askedKbps(const OutputSettings &settings, int channels)
{
    const bool areFewer = settings.channels > channels && channels > 0;
    return areFewer ? settings.audioKbps * channels / settings.channels : settings.audioKbps;
}

double sufficientKbps(const AudioTrack &track, const OutputSettings &settings, int channels)
{
    // Enough in any codec, as some need more than the source's for the same quality.
    constexpr double enoughPerChannel = 64;
    const double asked = askedKbps(settings, channels);
    const bool isCeiling = settings.hasVideo && track.kbps > 0 && !isLossless(track);
    return isCeiling ? std::min(asked, std::max(std::ceil(track.kbps), enoughPerChannel * channels))
                     : asked;
}

Result<AudioPlan> AudioPlan::make(const AudioTrack &track, const StreamTarget &target)
{
    const QString wantedName = wantedCodec(track, target);
    if (canBeCopied(track, wantedName, target)) {
        return AudioPlan{QStringLiteral("copy")};
    }
    const AudioCodec codec =
        audioCodec(codecToWrite(wantedName, track.codec, audioCodec(track.codec).encoderNames(),
                                target.container.audioCodecs, target));
    const Result<QString> encoder = availableEncoder(codec.encoderNames(), codec.name, target);
    if (!encoder) {
        return tl::make_unexpected(encoder.error());
    }
    const int wanted = wantedSampleRate(track, target);
    const int sampleRate = wanted == 0 ? 0 : nearestAllowed(wanted, codec.sampleRates);
    const int channels = std::min(wantedChannels(track, target), codec.maxChannels);

    AudioPlan plan{*encoder};
    plan.sampleRate = sampleRate == track.sampleRate ? 0 : sampleRate;
    // Channels without a layout get the default one for their number.
    plan.channels = channels == track.channels && !track.layout.isEmpty() ? 0 : channels;
    plan.layout = layoutToWrite(track, codec, channels);
    plan.kbps =
        encodedKbps(codec, sufficientKbps(track, target.settings, channels), sampleRate, channels);
    plan.isConstant = plan.kbps > 0 && codec.hasConstantBitrate;
    plan.quality = codec.quality;
    plan.isPadded = target.container.hasAudioInFrames;
    return plan;
}

QStringList AudioPlan::arguments(int position) const
{
    const QString stream = QStringLiteral("a:%1").arg(position);
    ToolOptions format = {{QStringLiteral("c"), encoder}};
    if (sampleRate > 0) {
        format.append({QStringLiteral("ar"), QString::number(sampleRate)});
    }
    if (channels > 0) {
        format.append({QStringLiteral("ac"), QString::number(channels)});
    }
    if (!layout.isEmpty()) {
        format.append(
            {QStringLiteral("filter"), QStringLiteral("aformat=channel_layouts=%1").arg(layout)});
    }
    QStringList arguments = toArguments(format, stream);
    if (isPadded) {
        // The audio starts a frame early, as rounding may make it late, and ends with silence, as
        // ffmpeg would end the file with the audio.
        arguments += toArguments(
            {{QStringLiteral("filter"), QStringLiteral("apad,asetpts=PTS-0.04/TB")}}, stream);
        arguments << QStringLiteral("-shortest");
    }
    return arguments +
           toArguments(kbps > 0 ? ToolOptions{{QStringLiteral("b"), kbpsText(kbps)}} : quality,
                       stream);
}
