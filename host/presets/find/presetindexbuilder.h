#ifndef PRESETS_FIND_PRESETINDEXBUILDER_H
#define PRESETS_FIND_PRESETINDEXBUILDER_H

#include "host/presets/find/facets.h"
#include "host/presets/find/presetindex.h"
#include "host/presets/find/synonyms.h"

#include <QHash>
#include <QPair>
#include <QSet>

/*! Makes a PresetIndex, in parts if need be: a large catalogue takes about a second. What only this
 *  needs is gone with it. */
class PresetIndexBuilder
{
public:
    /*! \a formats outlives this object and doesn't change. */
    explicit PresetIndexBuilder(FormatsProxy &formats, const PresetExtras &extras = {});

    /*! Adds at least \a count presets, those of whole formats. False if none are left then. */
    bool addSome(int count);
    /*! Adds what is left. Call it once. */
    [[nodiscard]] PresetIndex finish();

private:
    struct Title
    {
        quint32 term = 0;
        QStringList keys; // "title/voice" for each word that a synonym names
    };

    void addFormat(int row);
    void addPreset(const FormatDetailModelData &preset, const FormatListModelData &format);
    Title title(const QString &text);
    quint32 profile(const QVector<Facet> &facets, const QStringList &titleKeys);
    void addSynonyms(const QSet<QString> &keys);
    quint32 addTerm(const QString &key, const PresetIndex::Term &term, const QStringList &words);

    FormatsProxy &m_formats;
    const PresetExtras m_extras;
    const Synonyms &m_synonyms;
    PresetIndex m_index;
    int m_nextFormat = 0;      // its row
    QSet<QString> m_titleKeys; // all that synonyms name
    QHash<QString, Title> m_titles;
    QHash<QString, quint32> m_terms;    // by a key of each
    QHash<QString, quint32> m_profiles; // by the keys of their facets
    QVector<QPair<QString, quint32>> m_entries;
};

#endif
