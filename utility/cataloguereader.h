#ifndef UTILITY_CATALOGUEREADER_H
#define UTILITY_CATALOGUEREADER_H

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

/*! One catalogue file: its name as errors show it, and its bytes. */
struct CatalogueSource
{
    QString name;
    QByteArray json;
};

struct CatalogueResult
{
    ExportCatalogue catalogue;
    /*!
     * Empty when all went well; then the catalogue is valid. Else one line: source name, position
     * (line:column of a JSON error, counted from 1, or the JSON path of a wrong value) and reason.
     */
    QString error;
};

/*!
 * Makes one catalogue of JSON files of the shape that catalogue/README.md describes.
 *
 * Categories stand in the order in which they first appear, and groups of one category in several
 * files follow each other. Stops at the first error.
 */
[[nodiscard]] CatalogueResult readCatalogue(const QVector<CatalogueSource> &sources);

#endif
