#ifndef FORMATS_PARSERS_CATALOGUE_H
#define FORMATS_PARSERS_CATALOGUE_H

#include "formats/models/presetfields.h"

class FormatDetailModel;
class FormatListModel;

/*! What every parser needs to import the host's export catalogue. */
namespace Catalogue {

/*! The group maps of an export category. */
QVariantList groups(const QString &category);

/*! The preset maps of a group. */
QVariantList contents(const QVariantMap &group);

/*!
 * Adds the group as a format and returns its presets; null when a format of that name is there
 * already: the first group of a name wins.
 */
FormatDetailModel *addFormat(FormatListModel &model, const QVariantMap &group, const QString &tag);

/*! The value under \a key. A key that is absent stays in the map with a null value. */
const QVariant &lookUp(QVariantMap &map, const QString &key);

/*! Reads "id", "extension", "title" and the audio settings; the icon is the group's. */
FormatDetailModelData readPreset(QVariantMap &entry, const QString &icon);

/*! Reads "videoParam" and "videoOptions". */
void readVideo(FormatDetailModelData &preset, QVariantMap &entry);

} // namespace Catalogue

#endif
