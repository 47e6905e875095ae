#ifndef COMMANDLINE_PROGRESSTEXT_H
#define COMMANDLINE_PROGRESSTEXT_H

#include "host/convert/progress.h"

#include <QString>

/*! "40%, 3.2x, 0:05 left"; what isn't known is left out, without a length the time done is told. */
[[nodiscard]] QString progressText(const Progress &progress);

/*! "[########------------]"; empty when the source's length is unknown. */
[[nodiscard]] QString progressBar(const Progress &progress);

#endif
