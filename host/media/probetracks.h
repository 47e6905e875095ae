#ifndef MEDIA_PROBETRACKS_H
#define MEDIA_PROBETRACKS_H

#include "host/media/tracks.h"

#include <QJsonArray>
#include <QJsonObject>

// Each reads an object of ffprobe's "streams". Implausible values count as unknown.

[[nodiscard]] VideoTrack videoTrackFromProbe(const QJsonObject &stream);
[[nodiscard]] AudioTrack audioTrackFromProbe(const QJsonObject &stream);
[[nodiscard]] SubtitleTrack subtitleTrackFromProbe(const QJsonObject &stream);
[[nodiscard]] Attachment attachmentFromProbe(const QJsonObject &stream);

/*! Reads the mastering display and the light level from the "side_data_list" of a stream or
 *  frame. */
void readHdrSideData(const QJsonArray &sideData, VideoTrack &track);

/*! The value of \a key, a text or number, as text; empty if it is missing. */
[[nodiscard]] QString probeText(const QJsonObject &object, QLatin1String key);

#endif
