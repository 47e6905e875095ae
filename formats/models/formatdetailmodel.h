#ifndef FORMATS_MODELS_FORMATDETAILMODEL_H
#define FORMATS_MODELS_FORMATDETAILMODEL_H

#include "formats/formatsglobal.h"
#include "formats/models/formatdetailmodeldata.h"

#include <QAbstractListModel>
#include <QQueue>
#include <QScopedPointer>

template <typename Value>
class KeyIndex;

/*!
 * A list of output presets: those of one format, or the recently used ones.
 *
 * Ids are case-sensitive and need not be unique; a lookup by id finds the first matching row, in
 * constant time. Every insertion or removal of rows sets `count` and emits countChanged(). Nothing
 * throws: a row out of range or an unknown id returns false, -1, an empty string or an invalid
 * variant, and changes nothing.
 */
class VEX_FORMATS_EXPORT FormatDetailModel : public QAbstractListModel
{
    Q_OBJECT
    Q_PROPERTY(int count READ count WRITE setCount NOTIFY countChanged)
    Q_DISABLE_COPY(FormatDetailModel)

public:
    enum InvitationRoles {
        ExtensionRole = Qt::UserRole + 1,
        IdRole,
        TitleRole,
        IconRole,
        UserDefineRole,
        VideoEncoderRole,
        VideoEncodersRole,
        VideoFrameRateRole,
        VideoFrameRatesRole,
        VideoResolutionRole,
        VideoResolutionsRole,
        VideoBitrateLowRole,
        VideoBitrateMidRole,
        VideoBitrateHighRole,
        VideoBitratesRole,
        AudioEncoderRole,
        AudioEncodersRole,
        AudioSampleRateRole,
        AudioSampleRatesRole,
        AudioChannelRole,
        AudioChannelsRole,
        AudioBitrateRole,
        AudioBitratesRole,
        IsLoselessRole,
        SupportMultiTrackRole,
        ParamRole,
    };
    Q_ENUM(InvitationRoles)

    explicit FormatDetailModel(QObject *parent = nullptr);
    ~FormatDetailModel() override;

    int rowCount(const QModelIndex &parent = QModelIndex()) const override;
    QVariant data(const QModelIndex &index, int role = Qt::DisplayRole) const override;
    QHash<int, QByteArray> roleNames() const override;

    /*! The row's id; empty if there is no such row. */
    [[nodiscard]] Q_INVOKABLE QString getId(int index) const;
    [[nodiscard]] Q_INVOKABLE bool isExist(const QString &id) const;

    /*! The number last stored by a change of the rows or by setCount(). */
    [[nodiscard]] int count() const;
    /*! Stores \a count and emits countChanged(), even if the value is unchanged. */
    void setCount(int count);

    [[nodiscard]] bool containId(const QString &id) const;
    /*! The first row with this id; -1 if there is none. */
    [[nodiscard]] int findModelInfoIndex(const QString &id) const;
    /*! The highest numeric id of a user-defined preset so far, across all lists. */
    [[nodiscard]] int getIdIndex() const;
    [[nodiscard]] int userDefineCount() const;

    /*! Appends the preset; a user-defined one with a higher numeric id raises getIdIndex(). */
    bool addModeInfo(const FormatDetailModelData &data);
    bool addModeInfo(FormatDetailModelData &&data);
    /*! Like addModeInfo(), but at row 0. */
    bool addModeInfoAtHead(const FormatDetailModelData &data);
    bool delModeInfo(int index);
    bool delModelInfoByKey(const QString &id);
    /*! Overwrites the row and emits dataChanged() with all roles. */
    bool updateModeInfo(int index, const FormatDetailModelData &data);
    /*! Removes the rows one by one, then emits countChanged(0) once more. */
    void clearModeInfo();

    /*! Appends a copy of every row to \a out; always true. */
    bool getModelInfo(QQueue<FormatDetailModelData> &out) const;
    bool getModelInfoByIndex(int index, FormatDetailModelData &out) const;
    bool getModelInfoById(const QString &id, FormatDetailModelData &out) const;

    /*! Writes the extension, the only writable role; true whenever the id is known. */
    bool setRoleValue(InvitationRoles role, const QString &id, const QVariant &value);
    /*! The extension, the only role that can be read by id; an invalid variant for any other. */
    [[nodiscard]] QVariant getRoleValue(InvitationRoles role, const QString &id) const;

    /*! toVarMap() of each user-defined preset. */
    [[nodiscard]] QVariantList toVariantList() const;
    /*! toVarMapForSave() of each user-defined preset. */
    [[nodiscard]] QVariantList toVariantListForSave() const;
    /*! toVarMap() of every preset, with an id from the running number s_idForTest. */
    [[nodiscard]] QVariantList toVariantListForTest() const;

    static int s_userDefineId;
    static int s_idForTest;

Q_SIGNALS:
    void countChanged(int count);

private:
    friend class FormatsProxyPrivate;
    friend class PresetLists;

    // The first row with this id, valid until the rows change; null if there is none.
    [[nodiscard]] const FormatDetailModelData *find(const QString &id) const;

    bool hasRow(int index) const;
    void insertData(int index, FormatDetailModelData &&data);
    void addToIndex(FormatDetailModelData *row, bool atHead);
    void removeFromIndex(const QString &id, FormatDetailModelData *row);
    void updateCount();
    QVariantList userDefined(QVariantMap (FormatDetailModelData::*toMap)() const) const;

    // Between joining, while still empty, and leaving, every id of this list is in the catalogue's
    // index.
    void joinCatalogue(KeyIndex<QString> &titlesById, const QString &title);
    void leaveCatalogue();

    QQueue<FormatDetailModelData *> m_rows;
    int m_count = 0;
    const QScopedPointer<KeyIndex<FormatDetailModelData *>> m_rowsById;
    KeyIndex<QString> *m_titlesById = nullptr; // of the catalogue that this list belongs to
    QString m_title;                           // this list's format there
};

#endif
