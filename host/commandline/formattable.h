#ifndef COMMANDLINE_FORMATTABLE_H
#define COMMANDLINE_FORMATTABLE_H

#include <QStringList>
#include <QVector>

class FormatListModel;
class QAbstractItemModel;

/*! Rows for Console::printTable(), the heading first: the formats of \a shown, which is \a formats
 *  or a filter of it. */
[[nodiscard]] QVector<QStringList> formatTable(const FormatListModel &formats,
                                               const QAbstractItemModel &shown);

/*! How many presets the format has. */
[[nodiscard]] int presetCount(const FormatListModel &formats, const QString &title);

#endif
