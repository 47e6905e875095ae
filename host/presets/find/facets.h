#ifndef PRESETS_FIND_FACETS_H
#define PRESETS_FIND_FACETS_H

#include "host/presets/find/field.h"

#include <QString>
#include <QStringList>
#include <QVector>

class FormatDetailModelData;
class FormatListModelData;

/*! Something that a preset has in common with others, such as its codec. */
struct Facet
{
    QString key; //!< as synonyms.json names it: "codec/hevc"
    Field field;
    QString text;      //!< as it is shown
    QStringList words; //!< the folded words that find it
};

/*! The facets of a preset, without its title; its format and tag are the first two. */
[[nodiscard]] QVector<Facet> facetsOf(const FormatDetailModelData &preset,
                                      const FormatListModelData &format);

#endif
