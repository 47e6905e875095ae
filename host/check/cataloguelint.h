#ifndef CHECK_CATALOGUELINT_H
#define CHECK_CATALOGUELINT_H

#include "utility/cataloguereader.h"

#include <QStringList>

/*!
 * Mistakes in presets that are served regardless: chosen values that aren't offered, options that
 * the container or one of the encoders doesn't support, ids that don't match their group, groups
 * whose icon isn't among the \a icons, categories that aren't among the \a tags (ignoring case).
 * Each mistake is reported once, at the place of the value, even if several presets inherit it.
 */
[[nodiscard]] QVector<CatalogueMistake>
lintCatalogue(const CatalogueResult &catalogue, const QStringList &icons, const QStringList &tags);

#endif
