#ifndef CONVERT_COPYCHECK_H
#define CONVERT_COPYCHECK_H

#include "host/convert/encoderchoice.h"
#include "host/media/mediafacts.h"

#include <QByteArray>
#include <QStringList>

/*! The arguments for ffmpegCall() that list the first video frames: the hash of each decoded frame
 *  and its timestamp. */
[[nodiscard]] QStringList firstFramesArguments(const MediaFacts &file, const QString &path);

/*! Whether a copy begins with the same frames as its source, at the same times. Both lists are
 *  output of ffmpeg with firstFramesArguments(). */
[[nodiscard]] bool beginsAlike(const QByteArray &sourceFrames, const QByteArray &copyFrames);

/*! Those of the \a copied streams that are as long as in the source, of which \a seconds should
 *  have been kept. */
[[nodiscard]] Copies copiesThatLast(const Copies &copied, const MediaFacts &source,
                                    const MediaFacts &result, double seconds);

/*! The copies to try after those in \a copied failed. Audio is encoded first, as that is fastest
 * and does the least harm. */
[[nodiscard]] Copies fewerCopies(const Copies &first, const Copies &copied);

#endif
