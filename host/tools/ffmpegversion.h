#ifndef TOOLS_FFMPEGVERSION_H
#define TOOLS_FFMPEGVERSION_H

#include "host/error.h"

#include <QString>

/*! The version of the ffmpeg on the PATH, such as "5.1.6"; an error if it doesn't tell within
 *  seconds. Waits for the answer. */
[[nodiscard]] Result<QString> ffmpegVersion();

#endif
