#ifndef APP_CONSOLE_H
#define APP_CONSOLE_H

#include <QString>
#include <QStringList>
#include <QVariant>
#include <QVector>

/*! Standard output and standard error of the command. */
namespace Console {

// File names and text from outside can contain characters that move the terminal's cursor or forge
// a line, so all of these functions print visibleText().

void print(const QString &line);
/*! Prints text of several lines, such as the help. */
void printLines(const QString &lines);
void printJson(const QVariant &value);
/*! Prints a compact JSON text on one line. Every name in it can be read back. */
void printJsonLine(const QByteArray &json);
/*! Prints columns as wide as their widest cell, two blanks apart; the first row is the heading. */
void printTable(const QVector<QStringList> &rows);
/*! Prints one line on standard error, after the command's name. */
void printError(const QString &line);
/*! Prints the lines of a log on standard error, as they are. */
void printLog(const QString &lines);

/*!
 * Whether some standard output was lost, for example on a full disk. Output that a closed pipe such
 * as "head" didn't read doesn't count.
 */
[[nodiscard]] bool hasFailed();

/*! Whether standard output is a terminal on which a line can be overwritten: not TERM=dumb. */
[[nodiscard]] bool isTerminal();
/*! The terminal's lines; 24 if it doesn't tell. */
[[nodiscard]] int terminalHeight();
/*! Overwrites the current line of the terminal; an empty string clears it. */
void overwriteLine(const QString &line);

} // namespace Console

#endif
