#ifndef QUEUE_CORESTOBUSY_H
#define QUEUE_CORESTOBUSY_H

#include "host/convert/outputsettings.h"

/*! The processor cores that a conversion to \a settings keeps busy if it has them; at least 1. */
[[nodiscard]] int coresToBusy(const OutputSettings &settings);

#endif
