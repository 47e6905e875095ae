#ifndef CONVERT_COPYCHECK_H
#define CONVERT_COPYCHECK_H

#include "host/convert/encoderchoice.h"
#include "host/media/mediafacts.h"

#include <QByteArray>
#include <QStringList>

/*! The arguments for ffmpegCall() that print the first frames of the picture: a hash of what is
 * seen of each, and when. */
[[nodiscard]] QStringList firstFramesArguments(const MediaFacts &file, const QString &path);

/*! Whether a copy begins with the very frames that its source begins with, each at its time. Lists
 *  are what ffmpeg prints with firstFramesArguments(). */
[[nodiscard]] bool beginsAlike(const QByteArray &sourceFrames, const QByteArray &copyFrames);

/*! Those of the \a copied streams that last as long as in the source. \a seconds are what was to be
 *  kept of it. */
[[nodiscard]] Copies copiesThatLast(const Copies &copied, const MediaFacts &source,
                                    const MediaFacts &result, double seconds);

/*! What is worth trying after a try with \a copied streams was refused: sound is encoded soonest
 * and with the least harm. */
[[nodiscard]] Copies fewerCopies(const Copies &first, const Copies &copied);

#endif
