#include "host/app/console.h"

#include "host/files/visibletext.h"

#include <QJsonDocument>

#include <algorithm>
#include <cerrno>
#include <cstdio>

#ifdef Q_OS_UNIX
#include <sys/ioctl.h>
#include <unistd.h>
#endif

namespace {

bool isOutputLost = false;

/*! Writes to standard output and flushes it. */
void write(const QString &text)
{
    const QByteArray bytes = text.toUtf8();
    const auto size = size_t(bytes.size());
    if (std::fwrite(bytes.constData(), 1, size, stdout) != size || std::fflush(stdout) != 0) {
        isOutputLost = isOutputLost || errno != EPIPE;
    }
}

/*! What becomes of lone surrogates, which stand for the invalid bytes of file names. */
enum class Surrogates { Replaced, Kept };

/*! Makes Qt's JSON visible, which escapes lone surrogates but hardly any control characters. */
QString visibleJson(const QString &json, Surrogates surrogates)
{
    const QLatin1Char backslash('\\');
    QString text;
    for (int i = 0; i < json.size(); ++i) {
        const QChar character = json.at(i);
        if (character == backslash) {
            const int length = json.at(i + 1) == QLatin1Char('u') ? 6 : 2;
            const QStringRef escape = json.midRef(i, length);
            const bool isSurrogate =
                length == 6 && QChar::isSurrogate(escape.mid(2).toUInt(nullptr, 16));
            text += isSurrogate && surrogates == Surrogates::Replaced
                        ? QString(QChar::ReplacementCharacter)
                        : escape.toString();
            i += length - 1;
        } else if (character == QLatin1Char('\n') || isVisible(json, i)) {
            text += character;
        } else {
            text += QStringLiteral("\\u%1").arg(character.unicode(), 4, 16, QLatin1Char('0'));
        }
    }
    return text;
}

struct TerminalSize
{
    int columns = 80;
    int lines = 24;
};

TerminalSize terminalSize()
{
    TerminalSize size;
#ifdef Q_OS_UNIX
    winsize told = {};
    if (ioctl(STDOUT_FILENO, TIOCGWINSZ, &told) == 0) {
        size.columns = told.ws_col > 0 ? told.ws_col : size.columns;
        size.lines = told.ws_row > 0 ? told.ws_row : size.lines;
    }
#endif
    return size;
}

} // namespace

void Console::print(const QString &line)
{
    write(visibleText(line) + QLatin1Char('\n'));
}

void Console::printLines(const QString &lines)
{
    const QStringList all = lines.split(QLatin1Char('\n'));
    for (const QString &line : all) {
        print(line);
    }
}

void Console::printJson(const QVariant &value)
{
    write(visibleJson(QString::fromUtf8(QJsonDocument::fromVariant(value).toJson()),
                      Surrogates::Replaced));
}

void Console::printJsonLine(const QByteArray &json)
{
    write(visibleJson(QString::fromUtf8(json), Surrogates::Kept) + QLatin1Char('\n'));
}

void Console::printTable(const QVector<QStringList> &rows)
{
    QVector<int> widths;
    for (const QStringList &row : rows) {
        widths.resize(std::max(widths.size(), row.size()));
        for (int column = 0; column < row.size(); ++column) {
            widths[column] = std::max(widths.at(column), row.at(column).size());
        }
    }
    for (const QStringList &row : rows) {
        QString line;
        for (int column = 0; column < row.size(); ++column) {
            line += row.at(column).leftJustified(widths.at(column) + 2);
        }
        while (line.endsWith(QLatin1Char(' '))) {
            line.chop(1);
        }
        print(line);
    }
}

void Console::printError(const QString &line)
{
    const QByteArray bytes = visibleText(line).toUtf8();
    std::fprintf(stderr, "vexconvert: %s\n", bytes.constData());
}

void Console::printLog(const QString &lines)
{
    const QStringList all = lines.split(QLatin1Char('\n'), Qt::SkipEmptyParts);
    for (const QString &line : all) {
        std::fprintf(stderr, "%s\n", visibleText(line).toUtf8().constData());
    }
}

bool Console::hasFailed()
{
    return isOutputLost;
}

bool Console::isTerminal()
{
#ifdef Q_OS_UNIX
    const QByteArray kind = qgetenv("TERM");
    return isatty(STDOUT_FILENO) != 0 && !kind.isEmpty() && kind != "dumb";
#else
    return false;
#endif
}

int Console::terminalHeight()
{
    return terminalSize().lines;
}

void Console::overwriteLine(const QString &line)
{
    write(QStringLiteral("\r\x1b[K") + visibleText(line.left(terminalSize().columns - 1)));
}
