#include "host/convert/losses.h"

#include "host/convert/outputstreams.h"
#include "host/convert/subtitleplan.h"

#include <QCoreApplication>

#include <algorithm>

namespace {

struct Texts
{
    Q_DECLARE_TR_FUNCTIONS(Losses)
};

/*! The distinct names of the codecs. */
QString codecNames(const QVector<SubtitleTrack> &tracks)
{
    QStringList names;
    for (const SubtitleTrack &track : tracks) {
        names << track.codec;
    }
    names.removeDuplicates();
    return names.join(QStringLiteral(", "));
}

QVector<SubtitleTrack> lostSubtitles(const MediaFacts &source, const StreamTarget &target)
{
    QVector<SubtitleTrack> lost;
    std::copy_if(source.subtitleTracks.begin(), source.subtitleTracks.end(),
                 std::back_inserter(lost), [&target](const SubtitleTrack &track) {
                     return target.settings.subtitles.takes(track) &&
                            (!target.allowed.subtitles || !holdsSubtitles(track, target.container));
                 });
    return lost;
}

QString textOf(const QVector<SubtitleTrack> &lost, const StreamTarget &target)
{
    const QString extension = target.settings.extension;
    if (!target.allowed.subtitles) {
        return Texts::tr("subtitle tracks: %1 (%2; they can't be written into this .%3)")
            .arg(lost.size())
            .arg(codecNames(lost), extension);
    }
    for (const char *other : {"mkv", "m2ts"}) {
        const Container &container = *Container::find(QLatin1String(other));
        const bool holdsAll =
            std::all_of(lost.begin(), lost.end(), [&](const SubtitleTrack &track) {
                return holdsSubtitles(track, container);
            });
        if (holdsAll) {
            return Texts::tr("subtitle tracks: %1 (%2; .%3 doesn't hold them, .%4 does)")
                .arg(lost.size())
                .arg(codecNames(lost), extension, QLatin1String(other));
        }
    }
    return Texts::tr("subtitle tracks: %1 (%2; no format holds them)")
        .arg(lost.size())
        .arg(codecNames(lost));
}

QStringList lossesOfFilm(const MediaFacts &source, const StreamTarget &target)
{
    const QString extension = target.settings.extension;
    QStringList losses;
    const QVector<SubtitleTrack> subtitles = lostSubtitles(source, target);
    if (!subtitles.isEmpty()) {
        losses << textOf(subtitles, target);
    }
    const int films = int(std::count_if(source.videoTracks.begin(), source.videoTracks.end(),
                                        [](const VideoTrack &track) { return !track.isCover; }));
    if (films > 1) {
        losses << Texts::tr("more video tracks: %1 (a result has one)").arg(films - 1);
    }
    if (!source.attachments.isEmpty() && !target.container.holdsAttachments) {
        losses << Texts::tr("attachments: %1 (.%2 doesn't hold them, .mkv does)")
                      .arg(source.attachments.size())
                      .arg(extension);
    }
    return losses;
}

} // namespace

QString lossesIn(const MediaFacts &source, const StreamTarget &target)
{
    const OutputSettings &settings = target.settings;
    QStringList losses;
    const int chosen = int(std::count_if(
        source.audioTracks.begin(), source.audioTracks.end(),
        [&settings](const AudioTrack &track) { return settings.audioTracks.takes(track); }));
    const int written = chosenAudio(source, target).size();
    if (settings.audioTracks.kind != TrackChoice::First && written < chosen) {
        losses << Texts::tr("%1 of %2 audio tracks (.%3 holds %4, .%5 holds all)")
                      .arg(chosen - written)
                      .arg(chosen)
                      .arg(settings.extension)
                      .arg(written)
                      .arg(settings.hasVideo ? QStringLiteral("mkv") : QStringLiteral("mka"));
    }
    if (settings.hasVideo) {
        losses += lossesOfFilm(source, target);
    }
    if (source.chapters > 0 && !target.container.holdsChapters) {
        losses << Texts::tr("chapters: %1 (.%2 doesn't hold them, .%3 does)")
                      .arg(source.chapters)
                      .arg(settings.extension,
                           settings.hasVideo ? QStringLiteral("mkv") : QStringLiteral("m4a"));
    }
    if (source.cover() != nullptr && !keepsCover(*source.cover(), target.container)) {
        losses << Texts::tr("the cover (.%1 doesn't hold it, .%2 does)")
                      .arg(settings.extension,
                           settings.hasVideo ? QStringLiteral("mp4") : QStringLiteral("m4a"));
    }
    return losses.isEmpty() ? QString()
                            : Texts::tr("left out: %1").arg(losses.join(QStringLiteral("; ")));
}
