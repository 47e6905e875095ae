#include "host/tools/shelltext.h"

#include "host/files/visibletext.h"

#include <QFile>
#include <QRegularExpression>

namespace {

/*! In the shell's quotes that take the code of a byte, for what can't be typed. */
QString quotedByCodes(const QString &word)
{
    QString quoted;
    for (int i = 0; i < word.size(); ++i) {
        const QChar character = word.at(i);
        if (character == QLatin1Char('\'') || character == QLatin1Char('\\')) {
            quoted += QLatin1Char('\\');
        }
        if (isVisible(word, i)) {
            quoted += character;
            continue;
        }
        const QByteArray bytes = QFile::encodeName(QString(character));
        for (const char byte : bytes) {
            quoted += QStringLiteral("\\x%1").arg(uchar(byte), 2, 16, QLatin1Char('0'));
        }
    }
    return QStringLiteral("$'%1'").arg(quoted);
}

/*! As a person would type it into a shell. */
QString shellWord(QString word)
{
    static const QRegularExpression plain(QStringLiteral("\\A[A-Za-z0-9_@%+=:,./-]+\\z"));
    if (plain.match(word).hasMatch()) {
        return word;
    }
    if (visibleText(word) != word) {
        return quotedByCodes(word);
    }
    word.replace(QLatin1Char('\''), QStringLiteral("'\\''"));
    return QLatin1Char('\'') + word + QLatin1Char('\'');
}

} // namespace

QString shellText(const ToolCall &call)
{
    QStringList words = {call.program};
    for (const QString &argument : call.arguments) {
        words << shellWord(argument);
    }
    return words.join(QLatin1Char(' '));
}
