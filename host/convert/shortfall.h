#ifndef CONVERT_SHORTFALL_H
#define CONVERT_SHORTFALL_H

#include "host/media/mediafacts.h"

/*! Says that \a result, of which \a written seconds could be read, is shorter than the \a expected
 *  ones of its source; empty if it isn't. */
[[nodiscard]] QString shortfallIn(const MediaFacts &source, const MediaFacts &result,
                                  double expected, double written);

#endif
