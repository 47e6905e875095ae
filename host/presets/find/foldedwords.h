#ifndef PRESETS_FIND_FOLDEDWORDS_H
#define PRESETS_FIND_FOLDEDWORDS_H

#include <QString>
#include <QStringList>

/*!
 * The words of \a text in the form in which they are compared: without case, accents, width of the
 * letters and punctuation within a word, so that "H.265" and "ｈ265" are both "h265". Blanks and
 * the signs that separate words, such as "/" and ",", end a word.
 */
[[nodiscard]] QStringList foldedWords(const QString &text);

/*! The same as one word: "hevcmp4" for "HEVC MP4". */
[[nodiscard]] QString foldedWord(const QString &text);

#endif
