#ifndef FORMATS_PARSERS_CATALOGUE_P_H
#define FORMATS_PARSERS_CATALOGUE_P_H

#include "formats/models/presetfields_p.h"

class FormatDetailModel;
class FormatListModel;

/*! What every parser needs to import the host's export catalogue. */
namespace Catalogue {

/*! The group maps of an export category. */
[[nodiscard]] QVariantList groups(const QString &category);

/*! The preset maps of a group. */
[[nodiscard]] QVariantList contents(const QVariantMap &group);

/*!
 * Adds the group as a format and returns its presets; null if a format of that name exists already:
 * the first group of a name wins.
 */
[[nodiscard]] FormatDetailModel *addFormat(FormatListModel &model, const QVariantMap &group,
                                           const QString &tag);

/*! The value under \a key; inserts null for a missing key. */
[[nodiscard]] const QVariant &findOrInsertNull(QVariantMap &map, const QString &key);

/*! Reads "id", "extension", "title" and the audio settings; \a icon is the group's. */
[[nodiscard]] FormatDetailModelData readPreset(QVariantMap &entry, const QString &icon);

/*! Reads "videoParam" and "videoOptions". */
void readVideo(FormatDetailModelData &preset, QVariantMap &entry);

} // namespace Catalogue

#endif
