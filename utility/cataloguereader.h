#ifndef UTILITY_CATALOGUEREADER_H
#define UTILITY_CATALOGUEREADER_H

#include "utility/cataloguesource.h"
#include "utility/settingsreader.h"
#include "utilityglobal.h"

#include <QHash>
#include <QPair>
#include <QString>
#include <QVariantList>
#include <QVector>

/*! The catalogue as it is served; the maps are those of FormatCodecApi. */
struct ExportCatalogue
{
    QVariantList categories;
    QHash<QString, QVariantList> groups;                  //!< by category
    QHash<QPair<QString, QString>, QVariantList> presets; //!< by category and group name
};

struct CatalogueResult
{
    ExportCatalogue catalogue;          //!< what is valid
    QVector<CatalogueMistake> mistakes; //!< in the order of the files

    QHash<QPair<QString, QString>, CataloguePlace> groupPlaces; //!< by category and group name
    QHash<QString, PresetPlaces> presetPlaces;                  //!< by id
};

/*!
 * Makes one catalogue from JSON files in the form that catalogue/README.md describes.
 *
 * Categories are in the order in which they first appear; the groups of a category that several
 * files have follow each other. An invalid value is reported once, and what contains it is left
 * out: the preset, group, template, list or file, and everything that uses it.
 */
[[nodiscard]] VEX_UTILITY_EXPORT CatalogueResult
readCatalogue(const QVector<CatalogueSource> &sources);

#endif
