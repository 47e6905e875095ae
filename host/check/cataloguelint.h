#ifndef CHECK_CATALOGUELINT_H
#define CHECK_CATALOGUELINT_H

#include "utility/cataloguereader.h"

#include <QStringList>

/*!
 * What is wrong with presets that are served all the same: chosen values that they don't offer,
 * options that their container or one of their encoders doesn't support, ids that don't name their
 * group, groups whose icon is none of the \a pictures, categories that are none of the \a tags in
 * whatever case. Each mistake is named once, where the value stands, also when several presets
 * inherit it.
 */
[[nodiscard]] QVector<CatalogueMistake> lintCatalogue(const CatalogueResult &catalogue,
                                                      const QStringList &pictures,
                                                      const QStringList &tags);

#endif
