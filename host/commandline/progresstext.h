#ifndef COMMANDLINE_PROGRESSTEXT_H
#define COMMANDLINE_PROGRESSTEXT_H

#include "host/convert/progress.h"

#include <QString>

/*! "40%, 3.2x, 0:05 left", without what is unknown; for an unknown length, the time done. */
[[nodiscard]] QString progressText(const Progress &progress);

/*! "[########------------]"; empty if the source's length is unknown. */
[[nodiscard]] QString progressBar(const Progress &progress);

#endif
