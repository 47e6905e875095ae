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
 * Ids are compared exactly and need not be unique; a look-up by id takes the first row that has
 * it, and costs the same however long the list is. Every change of the rows sets `count` and
 * emits countChanged(). Nothing throws: a row out of range or an unknown id gives false, -1, an
 * empty text or an invalid variant and changes nothing.
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

    /*! The row's id; empty when there is no such row. */
    [[nodiscard]] Q_INVOKABLE QString getId(int index) const;
    [[nodiscard]] Q_INVOKABLE bool isExist(const QString &id) const;

    /*! The number last stored by a change of rows or by setCount(). */
    [[nodiscard]] int count() const;
    /*! Stores \a count and emits countChanged(), also for an unchanged value. */
    void setCount(int count);

    [[nodiscard]] bool containId(const QString &id) const;
    /*! The first row with this id; -1 when there is none. */
    [[nodiscard]] int findModelInfoIndex(const QString &id) const;
    /*! The highest number that a user-defined preset of any list has had as its id so far. */
    [[nodiscard]] int getIdIndex() const;
    [[nodiscard]] int userDefineCount() const;

    /*! Appends a copy; a user-defined preset with a higher numeric id raises getIdIndex(). */
    bool addModeInfo(const FormatDetailModelData &data);
    bool addModeInfo(FormatDetailModelData &&data);
    /*! The same at row 0. */
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
    /*! The extension, the only role that can be read by id; else an invalid variant. */
    [[nodiscard]] QVariant getRoleValue(InvitationRoles role, const QString &id) const;

    /*! toVarMap() of each user-defined preset. */
    [[nodiscard]] QVariantList toVariantList() const;
    /*! toVarMapForSave() of each user-defined preset. */
    [[nodiscard]] QVariantList toVariantListForSave() const;
    /*! toVarMap() of every preset, its id taken from s_idForTest, which counts on. */
    [[nodiscard]] QVariantList toVariantListForTest() const;

    static int s_userDefineId;
    static int s_idForTest;

Q_SIGNALS:
    void countChanged(int count);

private:
    friend class FormatsProxyPrivate;
    friend class PresetLists;

    // The first row with this id, valid until the rows change; null when there is none.
    [[nodiscard]] const FormatDetailModelData *find(const QString &id) const;

    bool hasRow(int index) const;
    void insertData(int index, FormatDetailModelData &&data);
    void learnId(FormatDetailModelData *row, bool atHead);
    void forgetId(const QString &id, FormatDetailModelData *row);
    void updateCount();
    QVariantList userDefined(QVariantMap (FormatDetailModelData::*toMap)() const) const;

    // From joining, while still empty, to leaving, the catalogue's index has every id of this list.
    void joinCatalogue(KeyIndex<QString> &titlesById, const QString &title);
    void leaveCatalogue();

    QQueue<FormatDetailModelData *> m_rows;
    int m_count = 0;
    const QScopedPointer<KeyIndex<FormatDetailModelData *>> m_rowsById;
    KeyIndex<QString> *m_titlesById = nullptr; // of the catalogue that this list stands in
    QString m_title;                           // this list's format there
};

#endif
