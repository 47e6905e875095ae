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
 * The file's top-level array. Empty when there is none to read, after a debug line that begins
 * with \a operation and says why; \a openFailure words a failed open.
 */
[[nodiscard]] QJsonArray read(const char *operation, const char *openFailure, const QString &path);

/*! Adds the format with the object's "title", "icon" and "tag" and returns its presets. */
[[nodiscard]] FormatDetailModel &addFormat(FormatListModel &model, const QJsonObject &format);

/*! The presets under the object's "title"; a format is added only where the title is unknown. */
[[nodiscard]] FormatDetailModel &findOrAddFormat(FormatListModel &model, const QJsonObject &format);

/*!
 * Calls \a addPreset with each entry of each format's "group" and with the presets that
 * \a presetsOf gives for the format. An element that is no object counts as an empty one. Option
 * lists that are equal are one shared list.
 */
void importFormats(const QJsonArray &formats, FormatListModel &model,
                   FormatDetailModel &(*presetsOf)(FormatListModel &, const QJsonObject &),
                   const std::function<void(FormatDetailModel &, const QVariantMap &)> &addPreset);

/*! Calls \a addPreset with each entry, as importFormats() does. */
void importPresets(const QJsonArray &entries,
                   const std::function<void(const QVariantMap &)> &addPreset);

/*! Reads each member from the key that the field table gives it, whichever map \a object is. */
void readMembers(FormatDetailModelData &preset, const QVariantMap &object,
                 std::initializer_list<PresetFields::Member> members);

/*! \a text split at every \a separator, empty parts kept. */
[[nodiscard]] QVariantList split(const QString &text, QChar separator);

} // namespace PresetFile

#endif
