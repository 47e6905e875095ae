#ifndef MEDIA_PROBETRACKS_H
#define MEDIA_PROBETRACKS_H

#include "host/media/tracks.h"

#include <QJsonArray>
#include <QJsonObject>

// Each reads an object of ffprobe's "streams". What a file says that can't be true is unknown.

[[nodiscard]] VideoTrack videoTrackFromProbe(const QJsonObject &stream);
[[nodiscard]] AudioTrack audioTrackFromProbe(const QJsonObject &stream);
[[nodiscard]] SubtitleTrack subtitleTrackFromProbe(const QJsonObject &stream);
[[nodiscard]] Attachment attachmentFromProbe(const QJsonObject &stream);

/*! Takes the mastering display and the light level from a "side_data_list", of a stream or of a
 *  frame. */
void readHdrSideData(const QJsonArray &sideData, VideoTrack &track);

/*! The text or number of \a key as text; empty where it is missing. */
[[nodiscard]] QString probeText(const QJsonObject &object, QLatin1String key);

#endif
