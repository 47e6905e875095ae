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
    QString unreadable = {}; //!< why the file couldn't be read; else empty
};

/*! The source's JSON object; if it has none, nothing, and the reason is added to \a mistakes. */
[[nodiscard]] std::optional<QJsonObject> parseSource(const CatalogueSource &source,
                                                     QVector<CatalogueMistake> &mistakes);

#endif
