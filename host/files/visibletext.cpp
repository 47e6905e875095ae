#include "host/files/visibletext.h"

#include <QDir>
#include <QFileInfo>
#include <QVector>

#include <algorithm>

namespace {

constexpr ushort firstStrongIsolate = 0x2068;
constexpr ushort popDirectionalIsolate = 0x2069;

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

QString visibleLine(const QString &line)
{
    QString shown = visibleText(line);
    QVector<int> begun;
    for (int i = 0; i < line.size(); ++i) {
        if (line.at(i).unicode() == firstStrongIsolate) {
            begun << i;
        } else if (line.at(i).unicode() == popDirectionalIsolate && !begun.isEmpty()) {
            shown[begun.takeLast()] = QChar(firstStrongIsolate);
            shown[i] = QChar(popDirectionalIsolate);
        }
    }
    return shown;
}

QString visiblePath(const QString &path)
{
    return isolated(visibleText(QDir::toNativeSeparators(path)));
}

QString isolated(const QString &text)
{
    const bool isMixed = std::any_of(text.begin(), text.end(), [](QChar character) {
        return character.direction() == QChar::DirR || character.direction() == QChar::DirAL;
    });
    return isMixed ? QChar(firstStrongIsolate) + text + QChar(popDirectionalIsolate) : text;
}

QString visibleName(const QString &path)
{
    return isolated(visibleText(QFileInfo(path).fileName()));
}
