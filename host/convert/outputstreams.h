#ifndef CONVERT_OUTPUTSTREAMS_H
#define CONVERT_OUTPUTSTREAMS_H

#include "host/convert/encoderchoice.h"
#include "host/error.h"
#include "host/media/mediafacts.h"

/*! Which of a source's streams are written, and how. */
struct OutputStreams
{
    QStringList arguments;     //!< select the streams and their codecs
    QString decoder;           //!< of the video; empty: the usual one
    bool needsPalette = false; //!< as a second input

    /*! Those of \a source for \a target. Fails if there is nothing to write, or the container can't
     *  hold it. A pure function. */
    [[nodiscard]] static Result<OutputStreams> make(const MediaFacts &source,
                                                    const StreamTarget &target);
};

/*! The audio tracks that are written. */
[[nodiscard]] QVector<AudioTrack> chosenAudio(const MediaFacts &source, const StreamTarget &target);

/*! Whether the cover is copied: if it is a still image that the container can hold. */
[[nodiscard]] bool keepsCover(const VideoTrack &cover, const Container &container);

#endif
