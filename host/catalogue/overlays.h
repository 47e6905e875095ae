#ifndef CATALOGUE_OVERLAYS_H
#define CATALOGUE_OVERLAYS_H

#include "host/catalogue/aliastable.h"
#include "utility/cataloguereader.h"

/*! A catalogue to which overlays were applied. */
struct OverlaidCatalogue
{
    CatalogueResult result; //!< its mistakes are followed by those of the overlays
    PresetAliases aliases;
};

/*!
 * Applies overlays, in their order: JSON files that hide, change and add presets and give old ids
 * to presets, in the form that docs/overlays.md describes. An invalid value is reported once, and
 * leaves out what contains it: the change, preset, group, list, alias or file. The catalogue is
 * otherwise as it was.
 */
[[nodiscard]] OverlaidCatalogue withOverlays(const CatalogueResult &catalogue,
                                             const QVector<CatalogueSource> &overlays);

#endif
