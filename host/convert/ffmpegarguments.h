#ifndef CONVERT_FFMPEGARGUMENTS_H
#define CONVERT_FFMPEGARGUMENTS_H

#include "host/convert/encoderchoice.h"
#include "host/convert/outputsettings.h"
#include "host/error.h"
#include "host/media/mediafacts.h"

#include <QSet>
#include <QStringList>

/*!
 * The arguments for ffmpegCall() that write \a source with \a settings, or why it can't be
 * converted so. \a encoders are the names of the encoders that ffmpeg has. Streams that may stay as
 * they are get copied where \a allowed lets them. Depends on nothing but its arguments.
 */
[[nodiscard]] Result<QStringList> ffmpegArguments(const OutputSettings &settings,
                                                  const MediaFacts &source,
                                                  const QSet<QString> &encoders,
                                                  const QString &sourcePath,
                                                  const QString &targetPath, Copies allowed = {});

/*! The tracks of sound that are written. */
[[nodiscard]] QVector<AudioTrack> chosenAudio(const MediaFacts &source, const StreamTarget &target);

/*! Whether the cover comes along, as it is: where it is a still picture that the file can hold. */
[[nodiscard]] bool keepsCover(const VideoTrack &cover, const Container &container);

/*! Which streams these arguments copy. */
[[nodiscard]] Copies copiesIn(const QStringList &arguments);

#endif
