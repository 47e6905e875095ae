#include "host/convert/audioplan.h"

#include "host/convert/codecs.h"
#include "host/convert/nearest.h"

#include <algorithm>
#include <cmath>

namespace {

/*! In Hz; 0 where neither preset nor source tell. */
int wantedSampleRate(const AudioTrack &track, const StreamTarget &target)
{
    const int asked = target.settings.sampleRate;
    const int wanted = asked > 0 ? asked : track.sampleRate;
    return wanted == 0 ? 0 : nearestAllowed(wanted, target.container.sampleRates);
}

int wantedChannels(const AudioTrack &track, const StreamTarget &target)
{
    if (target.container.channels > 0) {
        return target.container.channels;
    }
    return target.settings.channels > 0 ? target.settings.channels : track.channels;
}

bool canBeCopied(const AudioTrack &track, const StreamTarget &target)
{
    return target.allowsCopies() && !target.container.hasSoundInFrames &&
           target.settings.audioCodec.isEmpty() &&
           target.container.audioCodecs.contains(track.codec) && target.settings.audioKbps == 0 &&
           wantedSampleRate(track, target) == track.sampleRate &&
           wantedChannels(track, target) == track.channels;
}

/*! The bitrate that the encoder is to be given, closest to what is asked; 0 where its quality says
 *  it. */
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

Result<AudioPlan> AudioPlan::make(const AudioTrack &track, const StreamTarget &target)
{
    if (canBeCopied(track, target)) {
        return AudioPlan{QStringLiteral("copy")};
    }
    const AudioCodec codec = audioCodec(codecToWrite(target.settings.audioCodec, track.codec,
                                                     audioCodec(track.codec).encoderNames(),
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
    // Channels without a layout get the usual one of their number.
    plan.channels = channels == track.channels && !track.layout.isEmpty() ? 0 : channels;
    plan.kbps = encodedKbps(codec, target.settings.audioKbps, sampleRate, channels);
    plan.quality = codec.quality;
    plan.isPadded = target.container.hasSoundInFrames;
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
    QStringList arguments = toArguments(format, stream);
    if (isPadded) {
        // The sound comes a frame early, as rounding may make it late, and with silence behind it:
        // ffmpeg would end the file with the sound.
        arguments += toArguments(
            {{QStringLiteral("filter"), QStringLiteral("apad,asetpts=PTS-0.04/TB")}}, stream);
        arguments << QStringLiteral("-shortest");
    }
    return arguments +
           toArguments(kbps > 0 ? ToolOptions{{QStringLiteral("b"), kbpsText(kbps)}} : quality,
                       stream);
}
