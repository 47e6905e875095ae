#include "host/presets/find/presetindex.h"

#include "host/presets/find/foldedwords.h"
#include "host/presets/find/presetindexbuilder.h"
#include "host/presets/find/synonyms.h"

#include "formats/models/formatdetailmodel.h"
#include "formats/proxy/formatsproxy.h"

#include <algorithm>
#include <limits>
#include <numeric>
#include <tuple>

namespace {

constexpr int mostWordsToRegroup = 8; // each further word would make one more reading

/*! How much a match counts: first how alike the words are, then the field, then a synonym's order.
 */
quint16 scoreOf(WordIndex::Likeness likeness, Field field, quint8 order)
{
    constexpr int orders = 64;
    const int fieldRank = fieldCount - int(field);
    return quint16((int(likeness) * (fieldCount + 1) + fieldRank) * orders -
                   std::min<int>(order, orders - 1));
}

/*! Without the words that say nothing about a preset, unless there are no others. */
QStringList telling(const QStringList &words)
{
    QStringList kept;
    std::copy_if(words.begin(), words.end(), std::back_inserter(kept),
                 [](const QString &word) { return !Synonyms::builtIn().ignored.contains(word); });
    return kept.isEmpty() ? words : kept;
}

} // namespace

PresetIndex::PresetIndex(FormatsProxy &formats, const PresetExtras &extras)
    : PresetIndex(PresetIndexBuilder(formats, extras).finish())
{}

void PresetIndex::prefer(const QStringList &favorites, FormatsProxy &formats)
{
    QStringList ids = favorites;
    const FormatDetailModel &recent = *formats.recentlyFormatsModel();
    for (int row = 0; row < recent.rowCount(); ++row) {
        ids << recent.getId(row);
    }
    m_preferred.clear();
    for (const QString &id : qAsConst(ids)) {
        const auto found = std::find_if(m_presets.cbegin(), m_presets.cend(),
                                        [&id](const Preset &preset) { return preset.id == id; });
        const int preset = int(found - m_presets.cbegin());
        if (found != m_presets.cend() && !m_preferred.contains(preset)) {
            m_preferred.append(preset);
        }
    }
}

PresetMatches PresetIndex::find(const PresetQuery &query, int limit) const
{
    const Reading restricted = wanted(phrasesJoined(foldedWords(query.kind)), Field::Kind) +
                               wanted(phrasesJoined(foldedWords(query.codec)), Field::Codec) +
                               wanted(phrasesJoined(foldedWords(query.size)), Field::Size) +
                               wanted(foldedWords(query.category), Field::Category);
    PresetMatches matches;
    const auto tryWords = [&](const QStringList &words, WordIndex::Accept accept) {
        const Reading reading = wanted(words, {}) + restricted;
        const TermScores scores = termScores(reading, accept);
        const QVector<quint32> presets = presetScores(scores);
        matches.count = presets.size() - int(std::count(presets.begin(), presets.end(), 0U));
        const QVector<int> best = ranked(presets, std::min(limit, matches.count));
        for (const int preset : best) {
            matches.best.append(match(preset, reading, scores));
        }
        return matches.count > 0;
    };
    const QVector<QStringList> readings = readingsOf(foldedWords(query.text));
    for (const QStringList &words : readings) {
        if (tryWords(words, WordIndex::Accept::Prefixes)) {
            return matches;
        }
    }
    const QStringList &likeliest = readings.constFirst();
    if (!tryWords(likeliest, WordIndex::Accept::Typos)) {
        const auto unknown =
            std::find_if(likeliest.begin(), likeliest.end(), [this](const QString &word) {
                return m_words.find(word, WordIndex::Accept::Typos).isEmpty();
            });
        matches.unknown = unknown == likeliest.end() ? QString() : *unknown;
    }
    return matches;
}

/*! The ways to read what was typed, the likeliest first, without words that say nothing. */
QVector<QStringList> PresetIndex::readingsOf(const QStringList &typed) const
{
    const QStringList words = telling(typed);
    QVector<QStringList> readings = {telling(phrasesJoined(typed))};
    const auto add = [&readings](const QStringList &reading) {
        if (!readings.contains(reading)) {
            readings.append(reading);
        }
    };
    add(words);
    if (words.size() > mostWordsToRegroup) {
        return readings;
    }
    for (int index = 0; index + 1 < words.size(); ++index) { // with a blank too many
        QStringList joined = words;
        joined[index] += joined.takeAt(index + 1);
        add(joined);
    }
    add(split(words));
    return readings;
}

/*! With words that make a known one, such as "full hd" or "you tube", as that one. */
QStringList PresetIndex::phrasesJoined(const QStringList &typed) const
{
    constexpr int longestPhrase = 4;
    QStringList words;
    for (int index = 0; index < typed.size();) {
        int length = std::min(longestPhrase, typed.size() - index);
        while (length > 1 && !m_words.contains(typed.mid(index, length).join(QString()))) {
            --length;
        }
        words.append(typed.mid(index, length).join(QString()));
        index += length;
    }
    return words;
}

/*! With blanks where somebody left them out. */
QStringList PresetIndex::split(const QStringList &words) const
{
    QStringList all;
    for (const QString &word : words) {
        const bool isKnown = !m_words.find(word, WordIndex::Accept::Prefixes).isEmpty();
        const QStringList pieces = isKnown ? QStringList() : m_words.split(word);
        all += pieces.isEmpty() ? QStringList(word) : pieces;
    }
    return all;
}

PresetIndex::Reading PresetIndex::wanted(const QStringList &words, std::optional<Field> onlyIn)
{
    Reading reading;
    for (const QString &word : words) {
        reading.append({word, onlyIn});
    }
    return reading;
}

PresetIndex::TermScores PresetIndex::termScores(const Reading &reading,
                                                WordIndex::Accept accept) const
{
    TermScores scores;
    for (const Wanted &each : reading) {
        const QVector<WordIndex::Likeness> likeness = m_words.find(each.word, accept);
        if (likeness.isEmpty()) {
            return {}; // no preset has all words
        }
        QVector<quint16> ofWord(m_terms.size(), 0);
        for (int term = 0; term < likeness.size(); ++term) {
            const Term &of = m_terms.at(term);
            const bool counts =
                each.onlyIn ? of.field == *each.onlyIn && likeness.at(term) == WordIndex::Exact
                            : likeness.at(term) != WordIndex::None;
            if (counts) {
                ofWord[term] = scoreOf(likeness.at(term), of.field, of.order);
            }
        }
        scores.append(ofWord);
    }
    return scores;
}

/*! The score of each preset, 0 if it lacks a word. */
QVector<quint32> PresetIndex::presetScores(const TermScores &scores) const
{
    QVector<quint32> total(m_presets.size(), 0);
    QVector<quint16> ofProfiles(m_profileStarts.size() - 1);
    for (const QVector<quint16> &ofTerms : scores) {
        const bool isFirst = &ofTerms == &scores.constFirst();
        for (int profile = 0; profile < ofProfiles.size(); ++profile) {
            ofProfiles[profile] =
                std::accumulate(firstTerm(quint32(profile)), endOfTerms(quint32(profile)),
                                quint16(0), [&ofTerms](quint16 best, quint32 term) {
                                    return std::max(best, ofTerms.at(int(term)));
                                });
        }
        for (int index = 0; index < m_presets.size(); ++index) {
            const Preset &preset = m_presets.at(index);
            const quint16 score =
                std::max(ofTerms.at(int(preset.title)), ofProfiles.at(int(preset.profile)));
            const bool hasOthers = isFirst || total.at(index) > 0;
            total[index] = score > 0 && hasOthers ? total.at(index) + score : 0;
        }
    }
    return total;
}

QVector<int> PresetIndex::ranked(const QVector<quint32> &scores, int limit) const
{
    struct Rank
    {
        int preferred;
        quint32 score;
        int preset;
    };
    QVector<Rank> ranks;
    for (int preset = 0; preset < scores.size(); ++preset) {
        if (scores.at(preset) > 0) {
            const int place = m_preferred.indexOf(preset);
            ranks.append(
                {place < 0 ? std::numeric_limits<int>::max() : place, scores.at(preset), preset});
        }
    }
    std::partial_sort(ranks.begin(), ranks.begin() + limit, ranks.end(),
                      [](const Rank &one, const Rank &other) {
                          return std::tie(one.preferred, other.score, one.preset) <
                                 std::tie(other.preferred, one.score, other.preset);
                      });
    QVector<int> best;
    for (int index = 0; index < limit; ++index) {
        best.append(ranks.at(index).preset);
    }
    return best;
}

PresetMatch PresetIndex::match(int preset, const Reading &reading, const TermScores &scores) const
{
    const Preset &found = m_presets.at(preset);
    const quint32 *const terms = firstTerm(found.profile);
    PresetMatch match = {found.id,
                         m_terms.at(int(found.title)).text,
                         m_terms.at(int(terms[0])).text,
                         m_terms.at(int(terms[1])).text,
                         {}};
    for (int word = 0; word < reading.size(); ++word) {
        const QVector<quint16> &ofTerms = scores.at(word);
        quint32 best = found.title;
        for (const quint32 *term = terms; term != endOfTerms(found.profile); ++term) {
            if (ofTerms.at(int(*term)) > ofTerms.at(int(best))) {
                best = *term;
            }
        }
        const Term &why = m_terms.at(int(best));
        match.why.append({reading.at(word).word, why.field, why.text});
    }
    return match;
}

const quint32 *PresetIndex::firstTerm(quint32 profile) const
{
    return m_profileTerms.constData() + m_profileStarts.at(int(profile));
}

const quint32 *PresetIndex::endOfTerms(quint32 profile) const
{
    return m_profileTerms.constData() + m_profileStarts.at(int(profile) + 1);
}
