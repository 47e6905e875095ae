#ifndef PRESETS_FIND_PRESETINDEXBUILDER_H
#define PRESETS_FIND_PRESETINDEXBUILDER_H

#include "host/presets/find/facets.h"
#include "host/presets/find/presetindex.h"
#include "host/presets/find/synonyms.h"

#include <QHash>
#include <QPair>
#include <QSet>

/*! Fills a PresetIndex; what only this needs is gone afterwards. */
class PresetIndexBuilder
{
public:
    PresetIndexBuilder(PresetIndex &index, const Synonyms &synonyms, const PresetExtras &extras);

    void build(FormatsProxy &formats);

private:
    struct Title
    {
        quint32 term = 0;
        QStringList keys; // "title/voice" for each word that a synonym names
    };

    void addPreset(const FormatDetailModelData &preset, const FormatListModelData &format);
    void prefer(const QString &id);
    Title title(const QString &text);
    quint32 profile(const QVector<Facet> &facets, const QStringList &titleKeys);
    void addSynonyms(const QSet<QString> &keys);
    quint32 addTerm(const QString &key, const PresetIndex::Term &term, const QStringList &words);

    PresetIndex &m_index;
    const Synonyms &m_synonyms;
    const PresetExtras &m_extras;
    QSet<QString> m_titleKeys; // all that synonyms name
    QHash<QString, Title> m_titles;
    QHash<QString, quint32> m_terms;    // by a key of each
    QHash<QString, quint32> m_profiles; // by the keys of their facets
    QVector<QPair<QString, quint32>> m_entries;
};

#endif
