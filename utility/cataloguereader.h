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

/*! The catalogue in the form in which it is served; the shapes are those of FormatCodecApi. */
struct ExportCatalogue
{
    QVariantList categories;
    QHash<QString, QVariantList> groups;                  //!< by category
    QHash<QPair<QString, QString>, QVariantList> presets; //!< by category and group name
};

struct CatalogueResult
{
    ExportCatalogue catalogue;          //!< what is right
    QVector<CatalogueMistake> mistakes; //!< in the order of the files

    QHash<QPair<QString, QString>, CataloguePlace> groupPlaces; //!< by category and group name
    QHash<QString, PresetPlaces> presetPlaces;                  //!< by id
};

/*!
 * Makes one catalogue of JSON files of the shape that catalogue/README.md describes.
 *
 * Categories stand in the order in which they first appear, and groups of one category in several
 * files follow each other. A wrong value is named once, and what it stands in is left out: the
 * preset, the group, the template, the list or the file, and whatever starts from that.
 */
[[nodiscard]] VEX_UTILITY_EXPORT CatalogueResult
readCatalogue(const QVector<CatalogueSource> &sources);

#endif
