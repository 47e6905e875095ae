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

/*!
 * The arguments for ffmpegCall() that encode the video and the audio in the same way, in one pass,
 * and print a line per packet instead of writing a file; see PieceSizes.
 */
[[nodiscard]] Result<QStringList> packetArguments(const OutputSettings &settings,
                                                  const MediaFacts &source,
                                                  const QSet<QString> &encoders,
                                                  const QString &sourcePath);

/*! Which streams these arguments copy. */
[[nodiscard]] Copies copiesIn(const QStringList &arguments);

#endif
