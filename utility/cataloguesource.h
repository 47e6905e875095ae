#ifndef UTILITY_CATALOGUESOURCE_H
#define UTILITY_CATALOGUESOURCE_H

#include "utility/cataloguemistake.h"

#include <QByteArray>
#include <QJsonObject>
#include <QVector>

#include <optional>

/*! One catalogue file. */
struct CatalogueSource
{
    QString name; //!< as mistakes show it
    QByteArray json;
    QString unreadable = {}; //!< why there are no bytes
};

/*! The object that a source holds; nothing, and a mistake more, where it holds none. */
[[nodiscard]] std::optional<QJsonObject> parseSource(const CatalogueSource &source,
                                                     QVector<CatalogueMistake> &mistakes);

#endif
