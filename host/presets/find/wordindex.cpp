#include "host/presets/find/wordindex.h"

#include <algorithm>

namespace {

constexpr int fewestLettersForTypo = 5;
constexpr int mostLetters = 64; // nobody types longer words

/*! Whether \a word begins with \a typed after a letter is changed, added, left out or swapped with
 *  the next one. */
bool beginsWithTypo(QStringView word, QStringView typed)
{
    const int common = int(
        std::mismatch(word.begin(), word.end(), typed.begin(), typed.end()).first - word.begin());
    const QStringView restOfWord = word.mid(common);
    const QStringView rest = typed.mid(common);
    if (rest.isEmpty() || restOfWord.isEmpty()) {
        return rest.size() <= 1;
    }
    const QStringView next = restOfWord.mid(1);
    return next.startsWith(rest.mid(1)) || restOfWord.startsWith(rest.mid(1)) ||
           next.startsWith(rest) ||
           (rest.size() > 1 && restOfWord.size() > 1 && rest.at(0) == restOfWord.at(1) &&
            rest.at(1) == restOfWord.at(0) && restOfWord.mid(2).startsWith(rest.mid(2)));
}

/*! Single letters are words by chance in most writing systems. */
bool canStandAlone(QStringView piece)
{
    constexpr ushort firstOfEastAsia = 0x2e80;
    return piece.size() > 1 || piece.at(0).isDigit() || piece.at(0).unicode() >= firstOfEastAsia;
}

} // namespace

WordIndex::WordIndex(QVector<QPair<QString, quint32>> entries, int numbers)
    : m_numberCount(numbers)
{
    std::sort(entries.begin(), entries.end());
    entries.erase(std::unique(entries.begin(), entries.end()), entries.end());
    m_wordStarts.clear();
    m_numberStarts.clear();
    m_numbers.reserve(entries.size());
    for (int entry = 0; entry < entries.size(); ++entry) {
        const QString &word = entries.at(entry).first;
        if (entry == 0 || word != entries.at(entry - 1).first) {
            m_wordStarts.append(quint32(m_text.size()));
            m_numberStarts.append(quint32(m_numbers.size()));
            m_text += word;
        }
        m_numbers.append(entries.at(entry).second);
    }
    m_wordStarts.append(quint32(m_text.size()));
    m_numberStarts.append(quint32(m_numbers.size()));
    m_text.squeeze();
    m_wordStarts.squeeze();
    m_numberStarts.squeeze();
}

QVector<WordIndex::Likeness> WordIndex::find(const QString &typed, Accept accept) const
{
    QVector<Likeness> found;
    if (typed.isEmpty() || typed.size() > mostLetters) {
        return found;
    }
    const auto add = [this, &found](int index, Likeness likeness) {
        if (found.isEmpty()) {
            found.fill(None, m_numberCount);
        }
        for (quint32 at = m_numberStarts.at(index); at < m_numberStarts.at(index + 1); ++at) {
            Likeness &best = found[int(m_numbers.at(int(at)))];
            best = std::max(best, likeness);
        }
    };
    for (int index = firstNotBefore(typed); index < wordCount() && word(index).startsWith(typed);
         ++index) {
        add(index, word(index).size() == typed.size() ? Exact : Prefix);
    }
    if (!found.isEmpty() || accept == Accept::Prefixes || typed.size() < fewestLettersForTypo) {
        return found;
    }
    for (int index = 0; index < wordCount(); ++index) {
        if (beginsWithTypo(word(index), typed)) {
            add(index, Typo);
        }
    }
    return found;
}

QStringList WordIndex::split(const QString &typed) const
{
    QStringList pieces;
    if (typed.size() > mostLetters) {
        return pieces;
    }
    QStringView rest(typed);
    while (!rest.isEmpty()) {
        auto length = int(rest.size());
        // The longest known word is the one that was meant.
        while (length > 0 && !(canStandAlone(rest.left(length)) &&
                               bestOf(rest.left(length)) >=
                                   (length == rest.size() && !pieces.isEmpty() ? Prefix : Exact))) {
            --length;
        }
        if (length == 0) {
            return {};
        }
        pieces.append(rest.left(length).toString());
        rest = rest.mid(length);
    }
    return pieces;
}

QStringList WordIndex::words() const
{
    QStringList all;
    for (int index = 0; index < wordCount(); ++index) {
        all.append(word(index).toString());
    }
    return all;
}

QStringView WordIndex::word(int index) const
{
    const quint32 start = m_wordStarts.at(index);
    return QStringView(m_text).mid(int(start), int(m_wordStarts.at(index + 1) - start));
}

int WordIndex::firstNotBefore(QStringView typed) const
{
    int first = 0;
    int end = wordCount();
    while (first < end) {
        const int middle = first + (end - first) / 2;
        if (word(middle).compare(typed) < 0) {
            first = middle + 1;
        } else {
            end = middle;
        }
    }
    return first;
}

WordIndex::Likeness WordIndex::bestOf(QStringView typed) const
{
    const int index = firstNotBefore(typed);
    if (index == wordCount() || !word(index).startsWith(typed)) {
        return None;
    }
    return word(index).size() == typed.size() ? Exact : Prefix;
}
