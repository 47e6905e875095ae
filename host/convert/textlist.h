#ifndef CONVERT_TEXTLIST_H
#define CONVERT_TEXTLIST_H

#include <QString>
#include <QStringList>

/*! The words of a table's cell: "24 25 30" or "crf=20 b=0". */
[[nodiscard]] inline QStringList words(const char *cell)
{
    return QString::fromLatin1(cell).split(QLatin1Char(' '), Qt::SkipEmptyParts);
}

#endif
