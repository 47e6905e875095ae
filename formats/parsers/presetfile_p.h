#ifndef FORMATS_PARSERS_PRESETFILE_P_H
#define FORMATS_PARSERS_PRESETFILE_P_H

#include "formats/models/presetfields_p.h"

#include <QJsonArray>
#include <QJsonObject>

#include <functional>

class FormatDetailModel;
class FormatListModel;

/*! What every parser needs to read a JSON file of presets. */
namespace PresetFile {

/*!
 * The file's top-level array. If there is none, it is empty and the reason is logged as one debug
 * line that starts with \a operation; \a openFailure is the reason for a file that cannot be
 * opened.
 */
[[nodiscard]] QJsonArray read(const char *operation, const char *openFailure, const QString &path);

/*! Adds the format with the object's "title", "icon" and "tag" and returns its presets. */
[[nodiscard]] FormatDetailModel &addFormat(FormatListModel &model, const QJsonObject &format);

/*! The presets under the object's "title"; adds the format if the title is unknown. */
[[nodiscard]] FormatDetailModel &findOrAddFormat(FormatListModel &model, const QJsonObject &format);

/*!
 * Calls \a addPreset for each entry of each format's "group", with the model that \a presetsOf
 * returns for the format. An element that is not an object counts as an empty one. Equal option
 * lists share their data.
 */
void importFormats(const QJsonArray &formats, FormatListModel &model,
                   FormatDetailModel &(*presetsOf)(FormatListModel &, const QJsonObject &),
                   const std::function<void(FormatDetailModel &, const QVariantMap &)> &addPreset);

/*! Calls \a addPreset for each entry, as importFormats() does. */
void importPresets(const QJsonArray &entries,
                   const std::function<void(const QVariantMap &)> &addPreset);

/*! Reads each member from its key in the field table, whichever map \a object is. */
void readMembers(FormatDetailModelData &preset, const QVariantMap &object,
                 std::initializer_list<PresetFields::Member> members);

/*! \a text split at every \a separator, empty parts kept. */
[[nodiscard]] QVariantList split(const QString &text, QChar separator);

} // namespace PresetFile

#endif
