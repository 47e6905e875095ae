#ifndef CONVERT_CHOSENTRACKS_H
#define CONVERT_CHOSENTRACKS_H

#include "host/convert/trackchoice.h"

/*! What is made of the tracks of a source. */
struct ChosenTracks
{
    TrackChoice audio = {};
    TrackChoice subtitles = {};
    int burnedSubtitles = 0; //!< the number of the track drawn onto the video; 0: none
};

#endif
