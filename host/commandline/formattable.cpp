#include "host/commandline/formattable.h"

#include "host/commandline/commandline.h"

#include "formats/models/formatdetailmodel.h"
#include "formats/models/formatlistmodel.h"

QVector<QStringList> formatTable(const FormatListModel &formats, const QAbstractItemModel &shown)
{
    QVector<QStringList> table = {
        {CommandLine::tr("Format"), CommandLine::tr("Tag"), CommandLine::tr("Presets")}};
    for (int row = 0; row < shown.rowCount(); ++row) {
        const QModelIndex index = shown.index(row, 0);
        const QString title = index.data(FormatListModel::TitleRole).toString();
        table.append({title, index.data(FormatListModel::TagRole).toString(),
                      QString::number(presetCount(formats, title))});
    }
    return table;
}

int presetCount(const FormatListModel &formats, const QString &title)
{
    const FormatDetailModel *presets = formats.formatDetailModel(title);
    return presets == nullptr ? 0 : presets->rowCount();
}
