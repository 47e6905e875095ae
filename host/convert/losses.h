#ifndef CONVERT_LOSSES_H
#define CONVERT_LOSSES_H

#include "host/convert/encoderchoice.h"
#include "host/media/mediafacts.h"

/*! One line that names what of the source doesn't come along although nobody chose so, why, and
 * what would hold it; empty where all does. */
[[nodiscard]] QString lossesIn(const MediaFacts &source, const StreamTarget &target);

#endif
