#ifndef FORMATS_PROXY_PRESETFITTING_P_H
#define FORMATS_PROXY_PRESETFITTING_P_H

#include "formats/models/formatdetailmodeldata.h"

#include <optional>

class FormatDetailModel;

/*!
 * Chooses a preset of one format. A null list counts as an empty one. Of presets that are equally
 * close, the last one wins.
 */
namespace PresetFitting {

/*! The preset with the audio bitrate closest to \a kbps; none only in an empty list. */
[[nodiscard]] std::optional<FormatDetailModelData>
closestInAudioBitrate(const FormatDetailModel *presets, int kbps);

/*! The first preset with this title; case-insensitive. */
[[nodiscard]] std::optional<FormatDetailModelData> titled(const FormatDetailModel *presets,
                                                          const QString &title);

/*! The highest of \a bitrates that does not exceed \a cap (kbps); 0 if all do. */
[[nodiscard]] int highestWithin(int cap, const QVariantList &bitrates);

/*!
 * The catalogue's preset closest in area to a resolution such as "1280x720". With
 * \a preferSource, the first one that keeps the source's resolution wins. User-defined presets are
 * ignored.
 */
[[nodiscard]] std::optional<FormatDetailModelData>
forResolution(const FormatDetailModel *presets, const QString &resolution, bool preferSource);

/*! Like forResolution(), but by audio bitrate. */
[[nodiscard]] std::optional<FormatDetailModelData> forAudioBitrate(const FormatDetailModel *presets,
                                                                   int kbps, bool preferSource);

} // namespace PresetFitting

#endif
