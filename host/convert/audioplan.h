#ifndef CONVERT_AUDIOPLAN_H
#define CONVERT_AUDIOPLAN_H

#include "host/convert/encoderchoice.h"
#include "host/convert/tooloptions.h"
#include "host/media/mediafacts.h"

/*! How ffmpeg is to write a track of sound. */
struct AudioPlan
{
    QString encoder;     //!< "copy" takes the stream over as it is
    int sampleRate = 0;  //!< Hz; 0: the source's
    int channels = 0;    //!< 0: the source's
    QString layout = {}; //!< empty: the source's, or the usual one
    double kbps = 0;     //!< 0: as good as the quality says
    ToolOptions quality = {};
    bool isPadded = false; //!< comes a frame early, with silence behind it

    /*! The plan for \a track. Depends on nothing but its arguments. */
    [[nodiscard]] static Result<AudioPlan> make(const AudioTrack &track,
                                                const StreamTarget &target);

    /*! The arguments of ffmpeg for the audio stream at \a position in the new file, from 0. */
    [[nodiscard]] QStringList arguments(int position) const;
};

/*! The bitrate that \a settings ask for in kbps, where there are only \a channels: fewer than the
 *  preset's need less. 0: any. */
[[nodiscard]] double askedKbps(const OutputSettings &settings, int channels);

#endif
