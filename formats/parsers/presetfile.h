#ifndef FORMATS_PARSERS_PRESETFILE_H
#define FORMATS_PARSERS_PRESETFILE_H

#include "formats/models/presetfields.h"

#include <functional>

class FormatDetailModel;
class FormatListModel;

/*! What every parser needs to read a JSON file of presets. */
namespace PresetFile {

/*!
 * The elements of the file's top-level array. Empty when there is none to read, after a debug
 * line that begins with \a operation and says why; \a openFailure words a failed open.
 */
QVariantList read(const char *operation, const char *openFailure, const QString &path);

/*! The elements of the top-level array; empty for anything else. Equal option lists are shared. */
QVariantList decode(const QByteArray &json);

/*! Adds the format with the object's "title", "icon" and "tag" and returns its presets. */
FormatDetailModel &addFormat(FormatListModel &model, const QVariantMap &object);

/*! The presets under the object's "title"; a format is added only where the title is unknown. */
FormatDetailModel &findOrAddFormat(FormatListModel &model, const QVariantMap &object);

/*!
 * Calls \a addPreset with each entry of each format object's "group" and with the presets that
 * \a presetsOf gives for the object. What is no object counts as an empty one.
 */
void importFormats(const QVariantList &formats, FormatListModel &model,
                   FormatDetailModel &(*presetsOf)(FormatListModel &, const QVariantMap &),
                   const std::function<void(FormatDetailModel &, const QVariantMap &)> &addPreset);

/*! Reads each member from the key that the field table gives it, whichever map \a object is. */
void readMembers(FormatDetailModelData &preset, const QVariantMap &object,
                 std::initializer_list<PresetFields::Member> members);

/*! \a text split at every \a separator, empty parts kept. */
QVariantList split(const QString &text, QChar separator);

} // namespace PresetFile

#endif
