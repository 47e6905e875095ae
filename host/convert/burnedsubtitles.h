#ifndef CONVERT_BURNEDSUBTITLES_H
#define CONVERT_BURNEDSUBTITLES_H

#include "host/convert/outputsettings.h"
#include "host/error.h"
#include "host/media/mediafacts.h"

/*!
 * The filters that draw the subtitles onto the video before it is scaled; empty if there are none
 * to draw. Text is read from \a sourcePath. Bitmap subtitles are overlaid: the filters then begin
 * with the labels of both streams and belong in a filter graph.
 */
[[nodiscard]] Result<QString> burnFilter(const MediaFacts &source, const OutputSettings &settings,
                                         const QString &sourcePath);

#endif
