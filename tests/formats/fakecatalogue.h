#ifndef TESTS_FORMATS_FAKECATALOGUE_H
#define TESTS_FORMATS_FAKECATALOGUE_H

#include <QStringList>
#include <QVariant>

/*!
 * The host's export catalogue as a test wants it. A test that compiles fakecatalogue.cpp in
 * replaces FormatCodecApi for the whole process: the library asks this catalogue instead.
 */
struct FakeCatalogue
{
    /*! A group map and its preset maps. */
    struct Group
    {
        QVariantMap map;
        QVariantList contents;
    };

    /*! The one that is served; empty at first. */
    static FakeCatalogue &served();

    QVariantList categories;
    QMap<QString, QList<Group>> groups; //!< by category
    QStringList calls; //!< every request so far, such as "groups Video" and "contents MP4"
};

#endif
