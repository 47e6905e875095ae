#ifndef FORMATS_MODELS_FORMATLISTMODELPROXY_H
#define FORMATS_MODELS_FORMATLISTMODELPROXY_H

#include "formats/formatsglobal.h"

#include <QSortFilterProxyModel>

class FormatListModelData;

/*!
 * The formats of one tag or, while a search text is set, those of any tag whose title contains it.
 * Matching is case-insensitive. The source must be a FormatListModel; with any other model the
 * lookups find nothing.
 */
class VEX_FORMATS_EXPORT FormatListModelProxy : public QSortFilterProxyModel
{
    Q_OBJECT
    Q_PROPERTY(QString filterKey READ filterKey WRITE setFilterKey NOTIFY filterKeyChanged)
    Q_PROPERTY(QString searchKey READ searchKey WRITE setSearchKey NOTIFY searchKeyChanged)
    Q_DISABLE_COPY(FormatListModelProxy)

public:
    explicit FormatListModelProxy(QObject *parent = nullptr);

    [[nodiscard]] QString filterKey() const;
    /*! Emits filterKeyChanged(), then filters the rows again. An equal key does nothing. */
    void setFilterKey(const QString &key);
    [[nodiscard]] QString searchKey() const;
    /*! Emits searchKeyChanged(), then filters the rows again. An equal key does nothing. */
    void setSearchKey(const QString &key);

    /*! The number of rows shown. */
    [[nodiscard]] Q_INVOKABLE int count() const;
    /*! Whether a format with this title is shown; case-insensitive. */
    [[nodiscard]] Q_INVOKABLE bool isInProxyModel(const QString &title) const;
    /*! The title of a shown row; empty if there is no such row. */
    [[nodiscard]] Q_INVOKABLE QString getTitle(int itemIndex) const;
    /*! Does nothing: the order is always the catalogue's. */
    Q_INVOKABLE void setSort(const QString &roles, bool isUp);
    /*! Does nothing: the order is always the catalogue's. */
    Q_INVOKABLE void moveDrag(int srcProxyIndex, int desProxyIndex);

Q_SIGNALS:
    void filterKeyChanged(const QString &filterKey);
    void searchKeyChanged();

protected:
    bool filterAcceptsRow(int sourceRow, const QModelIndex &sourceParent) const override;

private:
    bool getShownFormat(int row, FormatListModelData &out) const;

    QString m_filterKey;
    QString m_searchKey;
};

#endif
