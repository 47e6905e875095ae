#ifndef CONVERT_AUDIOPLAN_H
#define CONVERT_AUDIOPLAN_H

#include "host/convert/encoderchoice.h"
#include "host/convert/tooloptions.h"
#include "host/media/mediafacts.h"

/*! How ffmpeg writes an audio track. */
struct AudioPlan
{
    QString encoder;         //!< "copy" copies the stream
    int sampleRate = 0;      //!< Hz; 0: the source's
    int channels = 0;        //!< 0: the source's
    QString layout = {};     //!< empty: the source's, or the default one
    double kbps = 0;         //!< 0: set by the quality
    bool isConstant = false; //!< each frame has just that bitrate
    ToolOptions quality = {};
    bool isPadded = false; //!< starts a frame early and ends with silence

    /*! The plan for \a track. A pure function. */
    [[nodiscard]] static Result<AudioPlan> make(const AudioTrack &track,
                                                const StreamTarget &target);

    /*! ffmpeg's arguments for the audio stream at \a position in the output, from 0. */
    [[nodiscard]] QStringList arguments(int position) const;
};

/*! The bitrate that \a settings ask for in kbps, where there are only \a channels: fewer than the
 *  preset's need less. 0: any. */
[[nodiscard]] double askedKbps(const OutputSettings &settings, int channels);

/*! The same for \a track. In a film the bitrate is a ceiling: a lossy track of fewer kbps, which
 * more couldn't improve, gets its own. 0: any. */
[[nodiscard]] double sufficientKbps(const AudioTrack &track, const OutputSettings &settings,
                                    int channels);

#endif
