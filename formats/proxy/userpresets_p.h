#ifndef FORMATS_PROXY_USERPRESETS_P_H
#define FORMATS_PROXY_USERPRESETS_P_H

#include "formats/models/formatdetailmodeldata.h"

/*! Turns a preset into a user-defined one. */
namespace UserPresets {

/*!
 * Writes the values of FormatsProxy::addUserDefineFormat() to the preset's fields and to the
 * converter's settings; a missing value counts as empty.
 */
void applyValues(FormatDetailModelData &preset, const QVariantMap &values);

/*! Marks the preset user-defined and sets its id, also in the converter's settings. */
void applyId(FormatDetailModelData &preset, const QString &id);

} // namespace UserPresets

#endif
