#ifndef CONVERT_LOSSES_H
#define CONVERT_LOSSES_H

#include "host/convert/encoderchoice.h"
#include "host/media/mediafacts.h"

/*! One line that says which parts of the source are left out although the user didn't choose so,
 *  why, and which container would hold them; empty if there are none. */
[[nodiscard]] QString lossesIn(const MediaFacts &source, const StreamTarget &target);

#endif
