#include "host/presets/find/foldedwords.h"

#include <QVector>

namespace {

bool endsWord(uint letter)
{
    // The last three are the commas of Chinese and Japanese, after the folding of their widths.
    static const QString separators = QStringLiteral("/,;|&+()[]\u3001\u3002\u30fb");
    return QChar::isSpace(letter) || (letter <= 0xffff && separators.contains(QChar(letter)));
}

} // namespace

QStringList foldedWords(const QString &text)
{
    QStringList words;
    QString word;
    const auto endWord = [&words, &word] {
        if (!word.isEmpty()) {
            words.append(word);
        }
        word.clear();
    };
    const QVector<uint> letters =
        text.normalized(QString::NormalizationForm_KD).toCaseFolded().toUcs4();
    for (const uint letter : letters) {
        if (endsWord(letter)) {
            endWord();
        } else if (letter == 0xd7) { // the sign between width and height
            word.append(QLatin1Char('x'));
        } else if (letter == 0xdf) { // the sharp s of German
            word.append(QLatin1String("ss"));
        } else if (QChar::isLetterOrNumber(letter)) {
            word.append(QString::fromUcs4(&letter, 1));
        }
    }
    endWord();
    return words;
}

QString foldedWord(const QString &text)
{
    return foldedWords(text).join(QString());
}
