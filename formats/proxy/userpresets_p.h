#ifndef FORMATS_PROXY_USERPRESETS_P_H
#define FORMATS_PROXY_USERPRESETS_P_H

#include "formats/models/formatdetailmodeldata.h"

/*! What makes a preset the user's own. */
namespace UserPresets {

/*!
 * Writes the values of FormatsProxy::addUserDefineFormat() into the preset's fields and into the
 * converter's settings; a missing value counts as empty.
 */
void applyValues(FormatDetailModelData &preset, const QVariantMap &values);

/*! Gives the preset an id of the user's own, also in the converter's settings. */
void applyId(FormatDetailModelData &preset, const QString &id);

} // namespace UserPresets

#endif
