#ifndef CONVERT_FRAMETIMING_H
#define CONVERT_FRAMETIMING_H

#include "host/convert/codecs.h"
#include "host/convert/containers.h"
#include "host/convert/outputsettings.h"
#include "host/media/tracks.h"

/*! When the frames of a result are shown. */
struct FrameTiming
{
    QString filter = {};     //!< drops frames; empty: none
    Ratio rate = {};         //!< not valid: the source's
    bool isConstant = false; //!< frames are repeated and dropped to keep the rate
    Ratio clock = {};        //!< seconds between two possible times; not valid: one frame

    [[nodiscard]] static FrameTiming make(const VideoTrack &track, const VideoCodec &codec,
                                          const Container &container,
                                          const OutputSettings &settings);

    /*! At this rate, whatever the source has. */
    [[nodiscard]] static FrameTiming constant(const Ratio &rate);

    [[nodiscard]] ToolOptions options() const;
};

/*! The rate of a result whose source has \a rate; not valid where that isn't known. */
[[nodiscard]] Ratio resultRate(const Ratio &rate, const OutputSettings &settings);

#endif
