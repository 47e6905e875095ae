#include "host/commandline/console.h"

#include <QJsonDocument>
#include <QTextStream>

#include <algorithm>
#include <cstdio>

#ifdef Q_OS_UNIX
#include <sys/ioctl.h>
#include <unistd.h>
#endif

namespace {

QTextStream &output()
{
    static QTextStream stream(stdout);
    return stream;
}

/*! Titles may hold line breaks and what moves the terminal's cursor. */
QString withoutControls(QString text)
{
    for (QChar &character : text) {
        character = character.category() == QChar::Other_Control ? QLatin1Char(' ') : character;
    }
    return text;
}

int terminalWidth()
{
    constexpr int usual = 80;
#ifdef Q_OS_UNIX
    winsize size = {};
    if (ioctl(STDOUT_FILENO, TIOCGWINSZ, &size) == 0 && size.ws_col > 0) {
        return size.ws_col;
    }
#endif
    return usual;
}

} // namespace

void Console::print(const QString &line)
{
    output() << line << '\n';
    output().flush();
}

void Console::printJson(const QVariant &value)
{
    output() << QString::fromUtf8(QJsonDocument::fromVariant(value).toJson());
    output().flush();
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
            line += withoutControls(row.at(column)).leftJustified(widths.at(column) + 2);
        }
        while (line.endsWith(QLatin1Char(' '))) {
            line.chop(1);
        }
        print(line);
    }
}

void Console::printError(const QString &line)
{
    QTextStream(stderr) << "vexconvert: " << line << '\n';
}

bool Console::hasFailed()
{
    return std::ferror(stdout) != 0;
}

bool Console::isTerminal()
{
#ifdef Q_OS_UNIX
    return isatty(STDOUT_FILENO) != 0;
#else
    return false;
#endif
}

void Console::overwriteLine(const QString &line)
{
    output() << "\r\x1b[K" << line.left(terminalWidth() - 1);
    output().flush();
}
