#ifndef CONVERT_SUBTITLEPLAN_H
#define CONVERT_SUBTITLEPLAN_H

#include "host/convert/encoderchoice.h"
#include "host/media/mediafacts.h"

/*! How ffmpeg is to write a track of subtitles. */
struct SubtitlePlan
{
    SubtitleTrack track;
    QString encoder; //!< "copy" takes the stream over as it is
    QString disposition;

    /*! The arguments of ffmpeg for the subtitles at \a position in the new file, from 0. */
    [[nodiscard]] QStringList arguments(int position) const;
};

/*! Those of the wanted subtitles that the container can hold. Depends on nothing but its arguments.
 */
[[nodiscard]] QVector<SubtitlePlan> subtitlePlans(const MediaFacts &source,
                                                  const StreamTarget &target);

/*! Whether the container holds the track, as it is or as another kind of text. */
[[nodiscard]] bool holdsSubtitles(const SubtitleTrack &track, const Container &container);

#endif
