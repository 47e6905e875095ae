#include "host/files/visibletext.h"

namespace {

bool changesDirection(QChar character)
{
    const ushort code = character.unicode();
    return (code >= 0x202A && code <= 0x202E) || (code >= 0x2066 && code <= 0x2069);
}

bool isPaired(const QString &text, int index)
{
    return text.at(index).isHighSurrogate()
               ? index + 1 < text.size() && text.at(index + 1).isLowSurrogate()
               : index > 0 && text.at(index - 1).isHighSurrogate();
}

} // namespace

bool isVisible(const QString &text, int index)
{
    const QChar character = text.at(index);
    switch (character.category()) {
    case QChar::Other_Surrogate:
        return isPaired(text, index);
    case QChar::Other_Control:
    case QChar::Separator_Line:
    case QChar::Separator_Paragraph:
        return false;
    default:
        return !changesDirection(character);
    }
}

QString visibleText(const QString &text)
{
    QString shown = text;
    for (int i = 0; i < text.size(); ++i) {
        if (!isVisible(text, i)) {
            shown[i] = QChar::ReplacementCharacter;
        }
    }
    return shown;
}
