#ifndef MEDIA_LIGHTSAMPLE_H
#define MEDIA_LIGHTSAMPLE_H

#include "host/media/mediafacts.h"

#include <QByteArray>
#include <QStringList>

#include <optional>

/*! The arguments for ffmpegCall() that print how bright a few pictures of \a track are, which are
 *  spread over the file at \a path. */
[[nodiscard]] QStringList lightSampleArguments(const MediaFacts &facts, const VideoTrack &track,
                                               const QString &path);

/*! The light in such a sample, where \a colour is the track's and HDR; nothing if the sample has no
 *  pictures. */
[[nodiscard]] std::optional<SeenLight> seenLightIn(const QByteArray &sample, const Colour &colour);

#endif
