#ifndef CATALOGUE_ALIASTABLE_H
#define CATALOGUE_ALIASTABLE_H

#include "utility/cataloguemistake.h"

#include <QHash>
#include <QString>
#include <QVector>

#include <functional>

/*! The ids that presets have now, by the ids that they had. */
using PresetAliases = QHash<QString, QString>;

/*! Aliases as overlays state them: an alias can lead to another one. */
class AliasTable
{
public:
    using Exists = std::function<bool(const QString &id)>;

    /*! The last one for an old id counts. */
    void add(const QString &oldId, const QString &newId, const CataloguePlace &place);

    /*! Those that lead to a preset; the mistakes in the others are added to \a mistakes, in the
     *  order of adding. \a exists tells whether a preset has an id. */
    [[nodiscard]] PresetAliases resolve(const Exists &exists,
                                        QVector<CatalogueMistake> &mistakes) const;

private:
    struct Alias
    {
        QString target;
        CataloguePlace place;
    };

    [[nodiscard]] QString endOf(const QString &oldId, const Exists &exists) const;

    QVector<QString> m_order;
    QHash<QString, Alias> m_aliases;
};

#endif
