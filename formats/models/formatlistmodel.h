#ifndef FORMATS_MODELS_FORMATLISTMODEL_H
#define FORMATS_MODELS_FORMATLISTMODEL_H

#include "formats/formatsglobal.h"
#include "formats/models/formatdetailmodel.h"
#include "formats/models/formatlistmodeldata.h"

#include <QAbstractListModel>
#include <QQueue>
#include <QScopedPointer>

class PresetLists;
template <typename Value>
class KeyIndex;

/*!
 * The output formats in catalogue order, and the presets of each by format title.
 *
 * Titles and ids are case-sensitive. A lookup by preset id takes the same time however many formats
 * and presets there are. The model owns its preset lists and releases them with deleteLater().
 * Renaming a format does not move its presets: they stay under the old title.
 * Nothing throws: a row out of range or an unknown title or id returns false, -1, null, an empty
 * string or list or an invalid variant, and changes nothing.
 */
class VEX_FORMATS_EXPORT FormatListModel : public QAbstractListModel
{
    Q_OBJECT
    Q_PROPERTY(int count READ count WRITE setCount NOTIFY countChanged)
    Q_DISABLE_COPY(FormatListModel)

public:
    enum InvitationRoles {
        TitleRole = Qt::UserRole + 1,
        IconRole,
        TagRole,
    };
    Q_ENUM(InvitationRoles)

    explicit FormatListModel(QObject *parent = nullptr);
    ~FormatListModel() override;

    int rowCount(const QModelIndex &parent = QModelIndex()) const override;
    QVariant data(const QModelIndex &index, int role = Qt::DisplayRole) const override;
    QHash<int, QByteArray> roleNames() const override;

    /*! The presets stored under this title; null if there are none. */
    [[nodiscard]] Q_INVOKABLE FormatDetailModel *formatDetailModel(const QString &name) const;
    [[nodiscard]] Q_INVOKABLE QString getTitle(int index) const;
    [[nodiscard]] Q_INVOKABLE bool isExist(const QString &title) const;

    /*! The number last stored by a change of the rows or by setCount(). */
    [[nodiscard]] int count() const;
    /*! Stores \a count and emits countChanged(), even if the value is unchanged. */
    void setCount(int count);

    /*! The first row with this title; -1 if there is none. */
    [[nodiscard]] int findModelInfoIndex(const QString &title) const;
    /*! Whether any preset has this id. */
    [[nodiscard]] bool containId(const QString &id) const;
    /*! The title, first in alphabetical order, whose presets have this id. */
    [[nodiscard]] QString getGetClass(const QString &id) const;
    /*! The tag of the first row whose presets have this id. */
    [[nodiscard]] QString getTagName(const QString &id) const;
    /*! The icon of the first row whose presets have this id. */
    [[nodiscard]] QString getIcon(const QString &id) const;

    /*!
     * Appends a format with an empty preset list. If the title exists already, the new list
     * replaces the old one for all rows with that title.
     */
    bool addModeInfo(const FormatListModelData &data);
    /*! Like addModeInfo(), but at row 0. */
    bool addModeInfoAtHead(const FormatListModelData &data);
    /*! Removes the row and the presets under its title. */
    bool delModeInfo(int index);
    bool delModelInfoByKey(const QString &title);
    bool delDetailModel(const QString &title);
    void clearDetailModel();
    /*! Removes the rows one by one with their presets, then emits countChanged(0) once more. */
    void clearModeInfo();
    /*! Overwrites the row and emits dataChanged() with all roles. */
    bool updateModeInfo(int index, const FormatListModelData &data);

    /*! Appends a copy of every row to \a out; always true. */
    bool getModelInfo(QQueue<FormatListModelData> &out) const;
    bool getModelInfoByIndex(int index, FormatListModelData &out) const;
    bool getModelInfoByTitle(const QString &title, FormatListModelData &out) const;

    /*! Writes one field of the first row with this title; true whenever the title is known. */
    bool setRoleValue(InvitationRoles role, const QString &title, const QVariant &value);
    [[nodiscard]] QVariant getRoleValue(InvitationRoles role, const QString &title) const;

    /*!
     * One map per format with presets to list: "title", "icon", "tag" and, as "group", the list
     * from its FormatDetailModel. A title without a preset list gets a null one, so that the next
     * delDetailModel() with that title returns true.
     */
    QVariantList toVariantList();
    QVariantList toVariantListForSave();
    QVariantList toVariantListTest();

    /*! The titles of the formats tagged "video" or "audio". */
    [[nodiscard]] QStringList formatList() const;
    [[nodiscard]] QStringList getFormatList(const QString &tag) const;
    /*! Whether \a type in upper case is the title of a format tagged "video". */
    [[nodiscard]] bool isVideoType(const QString &type) const;

    /*! Moves a row without notifying views. */
    void moveDrag(int from, int to);

Q_SIGNALS:
    void countChanged(int count);

private:
    bool hasRow(int index) const;
    void insertCopy(int index, const FormatListModelData &data);
    void updateCount();
    void rename(FormatListModelData *row, const QString &title);
    const FormatListModelData *firstRowWithPreset(const QString &id) const;
    QVariantList nested(QVariantList (FormatDetailModel::*toList)() const);

    QList<FormatListModelData *> m_rows;
    int m_count = 0;
    const QScopedPointer<KeyIndex<FormatListModelData *>> m_rowsByTitle;
    const QScopedPointer<PresetLists> m_presetLists;
};

#endif
