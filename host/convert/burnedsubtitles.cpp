#include "host/convert/burnedsubtitles.h"

#include "host/convert/subtitleplan.h"

#include <QFileInfo>

namespace {

QString withBackslashes(const QString &text, const QString &special)
{
    QString escaped;
    for (const QChar character : text) {
        if (special.contains(character)) {
            escaped += QLatin1Char('\\');
        }
        escaped += character;
    }
    return escaped;
}

/*! Escapes a path as a filter option, twice: for the filter graph and for the filter. */
QString filterValue(const QString &path)
{
    return withBackslashes(withBackslashes(path, QStringLiteral("\\':")),
                           QStringLiteral("\\'[],;"));
}

} // namespace

Result<QString> burnFilter(const MediaFacts &source, const OutputSettings &settings,
                           const QString &sourcePath)
{
    const int number = settings.burnedSubtitles;
    if (number == 0) {
        return QString();
    }
    if (const Result<> found = checkSubtitles(source, number); !found) {
        return failed(found);
    }
    const SubtitleTrack &track = source.subtitleTracks.at(number - 1);
    const VideoTrack *picture = source.video();
    if (!track.isText() && picture != nullptr) {
        return QStringLiteral("[0:%1][0:%2]overlay=eof_action=pass")
            .arg(picture->index)
            .arg(track.index);
    }
    const QString drawn = QStringLiteral("subtitles=filename=%1:si=%2")
                              .arg(filterValue(QFileInfo(sourcePath).absoluteFilePath()))
                              .arg(number - 1);
    // The filter uses the subtitles' original times, but the cut video starts at 0.
    const QString start = QString::number(settings.start, 'f', 3);
    return settings.start > 0
               ? QStringLiteral("setpts=PTS+%1/TB,%2,setpts=PTS-%1/TB").arg(start, drawn)
               : drawn;
}
