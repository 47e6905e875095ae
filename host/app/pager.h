#ifndef APP_PAGER_H
#define APP_PAGER_H

#include <QString>

/*!
 * Prints a text of several lines. One that is longer than the terminal is shown in $PAGER, or in
 * "less" if that is unset; where output goes anywhere else, or the terminal has no cursor to move
 * (TERM=dumb), it is printed as it is.
 */
void printPaged(const QString &lines);

#endif
