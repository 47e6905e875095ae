#include "host/convert/audiorate.h"

#include "host/convert/audioplan.h"
#include "host/convert/codecs.h"
#include "host/convert/outputstreams.h"

#include <algorithm>

namespace {

/*! Of PCM; 0 for other codecs. */
double pcmKbps(const AudioTrack &track, const AudioPlan &plan, const QString &codec)
{
    const int bits = codec.contains(QLatin1String("24"))   ? 24
                     : codec.contains(QLatin1String("32")) ? 32
                                                           : 16;
    const int channels = plan.channels > 0 ? plan.channels : track.channels;
    const int rate = plan.sampleRate > 0 ? plan.sampleRate : track.sampleRate;
    return codec.startsWith(QLatin1String("pcm_")) ? double(bits) * channels * rate / 1000 : 0;
}

} // namespace

std::optional<AudioRate> audioRate(const MediaFacts &source, const StreamTarget &target)
{
    AudioRate sum;
    for (const AudioTrack &track : chosenAudio(source, target)) {
        const Result<AudioPlan> plan = AudioPlan::make(track, target);
        if (!plan) {
            return std::nullopt;
        }
        const bool isCopied = plan->encoder == QLatin1String("copy");
        const double pcm =
            isCopied ? pcmKbps(track, {}, track.codec) : pcmKbps(track, *plan, plan->encoder);
        const double kbps = isCopied && track.kbps > 0 ? track.kbps : std::max(plan->kbps, pcm);
        if (kbps <= 0) {
            return std::nullopt;
        }
        sum.kbps += kbps;
        sum.isConstant = sum.isConstant && (isCopied || pcm > 0 || plan->isConstant);
    }
    return sum;
}
