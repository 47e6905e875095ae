#ifndef PRESETS_FIND_WORDINDEX_H
#define PRESETS_FIND_WORDINDEX_H

#include <QPair>
#include <QString>
#include <QStringList>
#include <QVector>

/*!
 * Folded words, each with the numbers that it stands for.
 *
 * The words are sorted in one string, so that those with the same beginning are found by binary
 * search; only a word that begins none of them is compared to all.
 */
class WordIndex
{
public:
    /*! How well a typed word matches, the worst first. */
    enum Likeness : quint8 { None, Typo, Prefix, Exact };
    enum class Accept { Prefixes, Typos };

    WordIndex() = default;
    /*! Every number is less than \a numbers. */
    WordIndex(QVector<QPair<QString, quint32>> entries, int numbers);

    /*! How well \a typed matches the words of each number; empty if it matches none. A word of five
     *  or more letters that begins no word may, if accepted, have one typing error. */
    [[nodiscard]] QVector<Likeness> find(const QString &typed, Accept accept) const;
    [[nodiscard]] bool contains(const QString &word) const { return bestOf(word) == Exact; }
    /*! The known words that \a typed consists of, where nobody typed blanks: "playstation5". Empty
     *  if it doesn't. The last one may be the beginning of a word. */
    [[nodiscard]] QStringList split(const QString &typed) const;
    /*! All words, in alphabetical order. */
    [[nodiscard]] QStringList words() const;

private:
    [[nodiscard]] int wordCount() const { return m_wordStarts.size() - 1; }
    [[nodiscard]] QStringView word(int index) const;
    [[nodiscard]] int firstNotBefore(QStringView typed) const;
    [[nodiscard]] Likeness bestOf(QStringView typed) const;

    QString m_text;                        // the words, one after the other
    QVector<quint32> m_wordStarts = {0};   // in m_text, and its end
    QVector<quint32> m_numberStarts = {0}; // of each word in m_numbers, and its end
    QVector<quint32> m_numbers;
    int m_numberCount = 0;
};

#endif
