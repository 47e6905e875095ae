#ifndef PRESETS_FIND_SYNONYMS_H
#define PRESETS_FIND_SYNONYMS_H

#include "host/presets/find/field.h"

#include <QHash>
#include <QSet>
#include <QString>
#include <QStringList>
#include <QVector>

/*! Other words for what some presets have in common: names of a codec, devices, purposes, ... */
struct Synonym
{
    Field field = Field::Purpose;
    QString name; //!< shown as what was matched: "hevc", "small"
    /*! The presets meant, the best first: those with all the facets of one of these lists. */
    QVector<QStringList> fits;
    QHash<QString, QStringList> phrases; //!< by language; "" has those that all languages share
};

/*! The words that people search with besides those of the catalogue, in all languages at once. */
struct Synonyms
{
    QVector<Synonym> all;
    QSet<QString> ignored; //!< folded words that say nothing about a preset: "for", "mit"

    /*! Those that are built in, from synonyms.json. */
    [[nodiscard]] static const Synonyms &builtIn();
};

#endif
