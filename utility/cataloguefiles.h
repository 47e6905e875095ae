#ifndef UTILITY_CATALOGUEFILES_H
#define UTILITY_CATALOGUEFILES_H

#include "utility/cataloguereader.h"
#include "utilityglobal.h"

/*! What VEX_EXPORT_CATALOGUE names, a file or a folder; empty where that isn't set. */
[[nodiscard]] VEX_UTILITY_EXPORT QString ownCataloguePath();
/*! The folder of the built-in catalogue. */
[[nodiscard]] VEX_UTILITY_EXPORT QString builtInCataloguePath();

/*!
 * The catalogue in a file, or in a folder's *.json files but *.schema.json, in the order of their
 * names. A file that can't be read is a mistake like others, and so is a catalogue without a
 * preset.
 */
[[nodiscard]] VEX_UTILITY_EXPORT CatalogueResult readCatalogueAt(const QString &path);

#endif
