#include "host/window/outlook.h"

#include "host/convert/audiorate.h"
#include "host/convert/ffmpegarguments.h"
#include "host/convert/losses.h"
#include "host/convert/outputstreams.h"
#include "host/convert/sizesample.h"
#include "host/files/visibletext.h"
#include "host/window/tasktexts.h"
#include "host/window/toolfun.h"

#include <algorithm>

namespace {

constexpr double bytesPerKilobit = 125;

/*! Of a video that is copied; 0: unknown. */
double copiedKbps(const MediaFacts &source)
{
    if (source.video()->kbps > 0 || source.duration <= 0) {
        return source.video()->kbps;
    }
    // Many containers only tell the bitrate of the whole file.
    double kbps = double(source.bytes) / bytesPerKilobit / source.duration;
    for (const AudioTrack &track : source.audioTracks) {
        kbps -= track.kbps;
    }
    return std::max(0.0, kbps);
}

/*! The name that the new file would get now; empty if the picture's size is part of it. */
QString nameOf(const ConversionJob &job)
{
    OutputTarget target = job.target;
    target.kept = nullptr; // nothing is promised yet
    OutputName name(job.source, target, job.settings.extension);
    return name.isComplete() && name.choose() ? visibleName(name.path()) : QString();
}

} // namespace

ExpectedSize expectedSize(const MediaFacts &source, const StreamTarget &target)
{
    const OutputSettings &settings = target.settings;
    const double seconds = settings.cutDuration(source.duration);
    const Copies &copies = target.allowed;
    const bool hasAudio = !chosenAudio(source, target).isEmpty();
    if ((copies.video || !settings.hasVideo) && (copies.audio || !hasAudio) &&
        source.duration > 0) {
        return {double(source.bytes) * seconds / source.duration, true};
    }
    const bool copiesVideo = settings.hasVideo && copies.video && source.video() != nullptr;
    const double video = !settings.hasVideo ? 0
                         : copiesVideo      ? copiedKbps(source)
                                            : settings.videoKbps;
    const std::optional<AudioRate> audio = audioRate(source, target);
    const bool isKnown = (video > 0 || !settings.hasVideo) && audio && seconds > 0;
    constexpr double containerShare = 1.01;
    const double bytes =
        isKnown ? (video + audio->kbps) * bytesPerKilobit * seconds * containerShare : 0;
    if (settings.targetBytes > 0) {
        return {isKnown ? std::min(bytes, settings.targetBytes) : settings.targetBytes};
    }
    const bool isConstant =
        settings.hasVideo ? copiesVideo || settings.averagesBitrate : audio && audio->isConstant;
    return {bytes, isKnown && isConstant};
}

Outlook outlookOf(const ConversionJob &job, const MediaFacts &facts, const QSet<QString> &encoders,
                  double sampledBytes)
{
    Outlook outlook;
    const Result<QStringList> arguments =
        ffmpegArguments(job.settings, facts, encoders, job.source, QStringLiteral("part"));
    if (!arguments) {
        outlook.problem = arguments.error().text;
        return outlook;
    }
    outlook.name = nameOf(job);
    const StreamTarget target{job.settings, *Container::find(job.settings.extension), encoders,
                              copiesIn(*arguments)};
    const ExpectedSize size = expectedSize(facts, target);
    if (sampledBytes > 0) {
        const double likely = size.bytes > 0 ? std::min(size.bytes, sampledBytes) : sampledBytes;
        outlook.size = ToolFun::text(QStringLiteral("about %1")).arg(sizeText(likely));
    } else if (size.bytes > 0) {
        outlook.size = (size.isLikely ? ToolFun::text(QStringLiteral("about %1"))
                                      : ToolFun::text(QStringLiteral("at most %1")))
                           .arg(sizeText(size.bytes));
    }
    outlook.needsSample =
        !size.isLikely && sampledBytes == 0 && SizeSample::isUseful(facts, target);
    outlook.losses = lossesIn(facts, target);
    return outlook;
}
