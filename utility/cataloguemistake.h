#ifndef UTILITY_CATALOGUEMISTAKE_H
#define UTILITY_CATALOGUEMISTAKE_H

#include "utilityglobal.h"

#include <QString>

/*! A place in the catalogue's files. */
struct CataloguePlace
{
    QString source;
    QString path;          //!< "groups[0].presets[2].id"; empty: the whole file
    QString position = {}; //!< "line:column", counted from 1, of a JSON syntax error; else empty
};

struct CatalogueMistake
{
    CataloguePlace place;
    QString reason;
    bool isServed = false; //!< served as it is; else left out, with what contains it

    /*! One line: the source's name, the place in it and the reason. */
    [[nodiscard]] VEX_UTILITY_EXPORT QString text() const;
};

#endif
