#ifndef CONVERT_BURNEDSUBTITLES_H
#define CONVERT_BURNEDSUBTITLES_H

#include "host/convert/outputsettings.h"
#include "host/error.h"
#include "host/media/mediafacts.h"

/*!
 * The filters that draw the subtitles onto the picture, before it is scaled; empty where none are
 * to be drawn. Text is read from \a sourcePath; subtitles that are pictures are laid over the
 * picture, for which the filters begin with the labels of both streams and must stand in a graph.
 */
[[nodiscard]] Result<QString> burnFilter(const MediaFacts &source, const OutputSettings &settings,
                                         const QString &sourcePath);

#endif
