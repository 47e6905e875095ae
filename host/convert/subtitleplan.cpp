#include "host/convert/subtitleplan.h"

#include <QCoreApplication>
#include <QStringList>

namespace {

struct Texts
{
    Q_DECLARE_TR_FUNCTIONS(SubtitlePlan)
};

/*! Text codecs that ffmpeg can convert to others. */
bool isConvertibleText(const QString &codec)
{
    static const QStringList codecs = {
        QStringLiteral("subrip"),   QStringLiteral("srt"),       QStringLiteral("ass"),
        QStringLiteral("ssa"),      QStringLiteral("mov_text"),  QStringLiteral("webvtt"),
        QStringLiteral("text"),     QStringLiteral("eia_608"),   QStringLiteral("microdvd"),
        QStringLiteral("sami"),     QStringLiteral("subviewer"), QStringLiteral("subviewer1"),
        QStringLiteral("realtext"), QStringLiteral("stl"),       QStringLiteral("mpl2"),
        QStringLiteral("jacosub"),  QStringLiteral("pjs"),       QStringLiteral("vplayer")};
    return codecs.contains(codec);
}

} // namespace

bool holdsSubtitles(const SubtitleTrack &track, const Container &container)
{
    return container.subtitleCodecs.contains(track.codec) ||
           (!container.textSubtitles.isEmpty() && isConvertibleText(track.codec));
}

QVector<SubtitlePlan> subtitlePlans(const MediaFacts &source, const StreamTarget &target)
{
    QVector<SubtitlePlan> plans;
    for (const SubtitleTrack &track : source.subtitleTracks) {
        const bool isWanted = target.settings.hasVideo && target.allowed.subtitles &&
                              target.settings.subtitles.takes(track);
        if (isWanted && holdsSubtitles(track, target.container)) {
            const bool isCopied = target.container.subtitleCodecs.contains(track.codec);
            QStringList flags;
            if (target.settings.subtitles.isDefault(track)) {
                flags << QStringLiteral("default");
            }
            if (track.isForced) {
                flags << QStringLiteral("forced");
            }
            plans.append({track, isCopied ? QStringLiteral("copy") : target.container.textSubtitles,
                          flags.isEmpty() ? QStringLiteral("0") : flags.join(QLatin1Char('+'))});
        }
    }
    return plans;
}

Result<> checkSubtitles(const MediaFacts &source, int number)
{
    const int count = source.subtitleTracks.size();
    return number <= count
               ? Result<>()
               : failed(Texts::tr("has %1 subtitle tracks, so no number %2; choose another one")
                            .arg(count)
                            .arg(number));
}

QStringList SubtitlePlan::arguments(int position) const
{
    // Otherwise ffmpeg would make the first one the default.
    return toArguments(
        {{QStringLiteral("c"), encoder}, {QStringLiteral("disposition"), disposition}},
        QStringLiteral("s:%1").arg(position));
}
