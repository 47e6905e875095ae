#ifndef PRESETS_FIND_PRESETINDEX_H
#define PRESETS_FIND_PRESETINDEX_H

#include "host/presets/find/presetquery.h"
#include "host/presets/find/wordindex.h"

#include <QString>
#include <QStringList>
#include <QVector>

#include <optional>

class FormatsProxy;

/*!
 * Finds presets by what people know of them: titles, formats, codecs, sizes, devices, purposes, in
 * the languages of the window.
 *
 * A snapshot: it knows the presets, and which were used recently, of the time when it was made.
 */
class PresetIndex
{
public:
    explicit PresetIndex(FormatsProxy &formats, const PresetExtras &extras = {});

    /*!
     * The presets that match all words, at most \a limit of them. First the favourites, then those
     * recently used, then those that match best: whole words before beginnings of words before
     * words with a typing error, and titles before other fields; then in catalogue order. An empty
     * query finds nothing.
     */
    [[nodiscard]] PresetMatches find(const PresetQuery &query, int limit) const;
    /*! All words that find something, folded. */
    [[nodiscard]] QStringList words() const { return m_words.words(); }

    /*! Ranks these favourites, and then the recently used presets, before all others. */
    void prefer(const QStringList &favorites, FormatsProxy &formats);

private:
    friend class PresetIndexBuilder;

    PresetIndex() = default;

    // A value of a field. All presets that have it share it.
    struct Term
    {
        QString text;
        Field field;
        quint8 order; // a synonym's: 0 for the presets that it means first
    };
    struct Preset
    {
        QString id;
        quint32 title;   // a term
        quint32 profile; // what it shares with the other presets of its settings
    };
    struct Wanted
    {
        QString word;
        std::optional<Field> onlyIn;
    };
    using Reading = QVector<Wanted>;
    // For each word of a reading the score of each term, 0 if it doesn't match; empty if one of the
    // words matches none.
    using TermScores = QVector<QVector<quint16>>;

    [[nodiscard]] QVector<QStringList> readingsOf(const QStringList &typed) const;
    [[nodiscard]] QStringList phrasesJoined(const QStringList &typed) const;
    [[nodiscard]] QStringList split(const QStringList &words) const;
    [[nodiscard]] static Reading wanted(const QStringList &words, std::optional<Field> onlyIn);
    [[nodiscard]] TermScores termScores(const Reading &reading, WordIndex::Accept accept) const;
    [[nodiscard]] QVector<quint32> presetScores(const TermScores &scores) const;
    [[nodiscard]] QVector<int> ranked(const QVector<quint32> &scores, int limit) const;
    [[nodiscard]] PresetMatch match(int preset, const Reading &reading,
                                    const TermScores &scores) const;
    [[nodiscard]] const quint32 *firstTerm(quint32 profile) const;
    [[nodiscard]] const quint32 *endOfTerms(quint32 profile) const;

    WordIndex m_words; // the numbers are terms
    QVector<Term> m_terms;
    QVector<quint32> m_profileTerms;        // of all profiles; a format and its tag come first
    QVector<quint32> m_profileStarts = {0}; // in m_profileTerms, and its end
    QVector<Preset> m_presets;              // in catalogue order
    QVector<int> m_preferred;               // presets: the favourites, and the last used
};

#endif
