#ifndef UTILITY_CATALOGUEREADER_H
#define UTILITY_CATALOGUEREADER_H

#include "utilityglobal.h"

#include <QByteArray>
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

/*! One catalogue file. */
struct CatalogueSource
{
    QString name; //!< as mistakes show it
    QByteArray json;
    QString unreadable = {}; //!< why there are no bytes
};

/*! Where something stands in the catalogue's files. */
struct CataloguePlace
{
    QString source;
    QString path;          //!< "groups[0].presets[2].id"; empty: the whole file
    QString position = {}; //!< "line:column", counted from 1, of what is no JSON; else empty
};

struct CatalogueMistake
{
    CataloguePlace place;
    QString reason;
    bool isServed = false; //!< served as it is; else left out, with what it stands in

    /*! One line: the source's name, the place in it and the reason. */
    [[nodiscard]] VEX_UTILITY_EXPORT QString text() const;
};

/*! By key, "id" or "videoParam.encoder": where a preset's value stands, inherited or not. */
using PresetPlaces = QHash<QString, CataloguePlace>;

struct CatalogueResult
{
    ExportCatalogue catalogue;          //!< what is sound
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
