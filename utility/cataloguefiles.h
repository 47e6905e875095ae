#ifndef UTILITY_CATALOGUEFILES_H
#define UTILITY_CATALOGUEFILES_H

#include "utility/cataloguereader.h"
#include "utilityglobal.h"

/*! The file or folder named by VEX_EXPORT_CATALOGUE; empty if that isn't set. */
[[nodiscard]] VEX_UTILITY_EXPORT QString ownCataloguePath();
/*! The folder of the built-in catalogue. */
[[nodiscard]] VEX_UTILITY_EXPORT QString builtInCataloguePath();

/*!
 * The catalogue in a file, or in a folder's *.json files except *.schema.json, in the order of
 * their names. A file that can't be read counts as a mistake, and so does a catalogue without
 * presets.
 */
[[nodiscard]] VEX_UTILITY_EXPORT CatalogueResult readCatalogueAt(const QString &path);

#endif
