#include "host/window/outlook.h"

#include "host/convert/audioplan.h"
#include "host/convert/ffmpegarguments.h"
#include "host/convert/losses.h"
#include "host/convert/outputstreams.h"
#include "host/files/visibletext.h"
#include "host/window/tasktexts.h"
#include "host/window/toolfun.h"

#include <algorithm>

namespace {

constexpr double bytesPerKilobit = 125;

double videoKbps(const OutputSettings &settings, const MediaFacts &source, bool isCopied)
{
    if (!isCopied || source.video() == nullptr) {
        return settings.videoKbps;
    }
    // Many containers only tell the bitrate of the whole file.
    const double whole =
        source.duration > 0 ? double(source.bytes) / bytesPerKilobit / source.duration : 0;
    return source.video()->kbps > 0 ? source.video()->kbps : whole;
}

/*! 0: unknown. */
double audioKbps(const OutputSettings &settings, const QVector<AudioTrack> &tracks, bool isCopied)
{
    double sum = 0;
    for (const AudioTrack &track : tracks) {
        const double kbps = isCopied ? track.kbps : sufficientKbps(track, settings, track.channels);
        if (kbps <= 0) {
            return 0;
        }
        sum += kbps;
    }
    return sum;
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

double expectedBytes(const OutputSettings &settings, const MediaFacts &source,
                     const QStringList &arguments)
{
    const double seconds = settings.cutDuration(source.duration);
    const Copies copies = copiesIn(arguments);
    const QSet<QString> encoders;
    const StreamTarget target{settings, *Container::find(settings.extension), encoders};
    const QVector<AudioTrack> tracks = chosenAudio(source, target);
    const bool isAllCopied =
        (copies.video || !settings.hasVideo) && (copies.audio || tracks.isEmpty());
    if (isAllCopied && source.duration > 0) {
        return double(source.bytes) * seconds / source.duration;
    }
    const double video = settings.hasVideo ? videoKbps(settings, source, copies.video) : 0;
    const double audio = audioKbps(settings, tracks, copies.audio);
    const bool isKnown =
        (video > 0 || !settings.hasVideo) && (audio > 0 || tracks.isEmpty()) && seconds > 0;
    constexpr double containerShare = 1.01;
    const double bytes = isKnown ? (video + audio) * bytesPerKilobit * seconds * containerShare : 0;
    if (settings.targetBytes > 0) {
        return isKnown ? std::min(bytes, settings.targetBytes) : settings.targetBytes;
    }
    return bytes;
}

Outlook outlookOf(const ConversionJob &job, const MediaFacts &facts, const QSet<QString> &encoders)
{
    Outlook outlook;
    const Result<QStringList> arguments =
        ffmpegArguments(job.settings, facts, encoders, job.source, QStringLiteral("part"));
    if (!arguments) {
        outlook.problem = arguments.error().text;
        return outlook;
    }
    outlook.name = nameOf(job);
    const double bytes = expectedBytes(job.settings, facts, *arguments);
    if (bytes > 0) {
        outlook.size = ToolFun::text(QStringLiteral("at most %1")).arg(sizeText(bytes));
    }
    outlook.losses = lossesIn(facts, {job.settings, *Container::find(job.settings.extension),
                                      encoders, copiesIn(*arguments)});
    return outlook;
}
