#include "formats/models/formatlistmodelproxy.h"

#include "formats/models/formatlistmodel.h"

FormatListModelProxy::FormatListModelProxy(QObject *parent)
    : QSortFilterProxyModel(parent)
{
    setDynamicSortFilter(true);
}

QString FormatListModelProxy::filterKey() const
{
    return m_filterKey;
}

void FormatListModelProxy::setFilterKey(const QString &key)
{
    if (key == m_filterKey) {
        return;
    }
    m_filterKey = key;
    Q_EMIT filterKeyChanged(m_filterKey);
    invalidateFilter();
}

QString FormatListModelProxy::searchKey() const
{
    return m_searchKey;
}

void FormatListModelProxy::setSearchKey(const QString &key)
{
    if (key == m_searchKey) {
        return;
    }
    m_searchKey = key;
    Q_EMIT searchKeyChanged();
    invalidateFilter();
}

int FormatListModelProxy::count() const
{
    return rowCount();
}

bool FormatListModelProxy::isInProxyModel(const QString &title) const
{
    FormatListModelData format;
    for (int row = 0; row < count(); ++row) {
        if (getShownFormat(row, format) && format.title.compare(title, Qt::CaseInsensitive) == 0) {
            return true;
        }
    }
    return false;
}

QString FormatListModelProxy::getTitle(int itemIndex) const
{
    FormatListModelData format;
    return getShownFormat(itemIndex, format) ? format.title : QString();
}

void FormatListModelProxy::setSort(const QString & /*roles*/, bool /*isUp*/) {}

void FormatListModelProxy::moveDrag(int /*srcProxyIndex*/, int /*desProxyIndex*/) {}

bool FormatListModelProxy::filterAcceptsRow(int sourceRow, const QModelIndex &sourceParent) const
{
    const QModelIndex row = sourceModel()->index(sourceRow, 0, sourceParent);
    if (!m_searchKey.isEmpty()) {
        return row.data(FormatListModel::TitleRole)
            .toString()
            .contains(m_searchKey, Qt::CaseInsensitive);
    }
    return row.data(FormatListModel::TagRole)
               .toString()
               .compare(m_filterKey, Qt::CaseInsensitive) == 0;
}

bool FormatListModelProxy::getShownFormat(int row, FormatListModelData &out) const
{
    const auto *formats = qobject_cast<FormatListModel *>(sourceModel());
    return formats && formats->getModelInfoByIndex(mapToSource(index(row, 0)).row(), out);
}
