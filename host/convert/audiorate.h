#ifndef CONVERT_AUDIORATE_H
#define CONVERT_AUDIORATE_H

#include "host/convert/encoderchoice.h"
#include "host/media/mediafacts.h"

#include <optional>

/*! The bitrate of all audio of a result. */
struct AudioRate
{
    double kbps = 0;
    bool isConstant = true; //!< it has just as much, whatever is heard; else that is the most
};

/*! That of the audio that is made of \a source; nothing where an encoder's quality decides. */
[[nodiscard]] std::optional<AudioRate> audioRate(const MediaFacts &source,
                                                 const StreamTarget &target);

#endif
