#ifndef COMMANDLINE_NEARESTWORD_H
#define COMMANDLINE_NEARESTWORD_H

#include <QString>
#include <QStringList>

/*! The word of \a known that \a typed was probably meant to be; empty if none is close. Upper and
 *  lower case don't differ. */
[[nodiscard]] QString nearestWord(const QString &typed, const QStringList &known);

/*! The end of a message about \a typed: "; did you mean "x"?", or empty. */
[[nodiscard]] QString didYouMean(const QString &typed, const QStringList &known);

#endif
