#ifndef CONVERT_SUBTITLEPLAN_H
#define CONVERT_SUBTITLEPLAN_H

#include "host/convert/encoderchoice.h"
#include "host/media/mediafacts.h"

/*! How ffmpeg writes a subtitle track. */
struct SubtitlePlan
{
    SubtitleTrack track;
    QString encoder; //!< "copy" copies the stream
    QString disposition;

    /*! ffmpeg's arguments for the subtitle stream at \a position in the output, from 0. */
    [[nodiscard]] QStringList arguments(int position) const;
};

/*! The plans for the chosen subtitles that the container can hold. A pure function. */
[[nodiscard]] QVector<SubtitlePlan> subtitlePlans(const MediaFacts &source,
                                                  const StreamTarget &target);

/*! Whether the container can hold the track, as it is or converted to another text codec. */
[[nodiscard]] bool holdsSubtitles(const SubtitleTrack &track, const Container &container);

/*! Fails if the source has fewer subtitle tracks than \a number. */
[[nodiscard]] Result<> checkSubtitles(const MediaFacts &source, int number);

#endif
