#ifndef APP_CONSOLE_H
#define APP_CONSOLE_H

#include <QString>
#include <QStringList>
#include <QVariant>
#include <QVector>

/*! Standard output and standard error of the command. */
namespace Console {

// Names of files and texts of others may hold what moves a terminal's cursor or forges a line: only
// what is visible reaches the terminal as it is.

void print(const QString &line);
/*! Lines of the command's own, such as its help. */
void printLines(const QString &lines);
void printJson(const QVariant &value);
/*! Columns as wide as their widest cell, two blanks between; the first row is the heading. */
void printTable(const QVector<QStringList> &rows);
/*! One line on standard error, begun with the command's name. */
void printError(const QString &line);

/*!
 * Whether something of standard output got lost, as on a full disk. A reader that went away, such
 * as "head", wanted no more: nothing is lost then.
 */
[[nodiscard]] bool hasFailed();

/*! Whether a person watches standard output, so that a line may be written over. */
[[nodiscard]] bool isTerminal();
/*! Writes over the current line of the terminal; an empty text clears it. */
void overwriteLine(const QString &line);

} // namespace Console

#endif
