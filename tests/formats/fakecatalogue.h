#ifndef TESTS_FORMATS_FAKECATALOGUE_H
#define TESTS_FORMATS_FAKECATALOGUE_H

#include <QStringList>
#include <QVariant>

/*!
 * A configurable export catalogue. Linking fakecatalogue.cpp replaces FormatCodecApi for the whole
 * process: the library reads this catalogue instead.
 */
struct FakeCatalogue
{
    /*! A group map and its preset maps. */
    struct Group
    {
        QVariantMap map;
        QVariantList contents;
    };

    /*! The catalogue that is served; initially empty. */
    static FakeCatalogue &served();

    QVariantList categories;
    QMap<QString, QList<Group>> groups; //!< by category
    QStringList calls; //!< every request so far, such as "groups Video" and "contents MP4"
};

#endif
