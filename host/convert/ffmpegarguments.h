#ifndef CONVERT_FFMPEGARGUMENTS_H
#define CONVERT_FFMPEGARGUMENTS_H

#include "host/convert/encoderchoice.h"
#include "host/convert/outputsettings.h"
#include "host/error.h"
#include "host/media/mediafacts.h"

#include <QSet>
#include <QStringList>

/*!
 * The arguments for ffmpegCall() that convert \a source with \a settings, or why that is
 * impossible. \a encoders are the names of ffmpeg's encoders. Streams that already fit are copied
 * if \a allowed permits it. The first of two passes writes only what the second needs. A pure
 * function.
 */
[[nodiscard]] Result<QStringList>
ffmpegArguments(const OutputSettings &settings, const MediaFacts &source,
                const QSet<QString> &encoders, const QString &sourcePath, const QString &targetPath,
                Copies allowed = {}, const EncodingPass &pass = {});

/*! Which streams these arguments copy. */
[[nodiscard]] Copies copiesIn(const QStringList &arguments);

#endif
