#include "formats/models/formatdetailmodel.h"

#include "formats/models/keyindex_p.h"
#include "formats/models/presetfields_p.h"

#include <algorithm>
#include <memory>
#include <numeric>

int FormatDetailModel::s_userDefineId = 1000;
int FormatDetailModel::s_idForTest = 1001;

FormatDetailModel::FormatDetailModel(QObject *parent)
    : QAbstractListModel(parent)
    , m_rowsById(new KeyIndex<FormatDetailModelData *>)
{}

FormatDetailModel::~FormatDetailModel()
{
    clearModeInfo();
}

int FormatDetailModel::rowCount(const QModelIndex & /*parent*/) const
{
    return m_rows.size();
}

QVariant FormatDetailModel::data(const QModelIndex &index, int role) const
{
    const PresetFields::Field *field = PresetFields::ofRole(role);
    if (!field || !hasRow(index.row())) {
        return {};
    }
    return PresetFields::read(*m_rows.at(index.row()), field->member);
}

QHash<int, QByteArray> FormatDetailModel::roleNames() const
{
    QHash<int, QByteArray> names;
    for (const PresetFields::Field &field : PresetFields::all) {
        if (field.role != PresetFields::noRole) {
            names.insert(field.role, field.roleName);
        }
    }
    return names;
}

QString FormatDetailModel::getId(int index) const
{
    return hasRow(index) ? m_rows.at(index)->id : QString();
}

bool FormatDetailModel::isExist(const QString &id) const
{
    return containId(id);
}

int FormatDetailModel::count() const
{
    return m_count;
}

void FormatDetailModel::setCount(int count)
{
    m_count = count;
    Q_EMIT countChanged(m_count);
}

bool FormatDetailModel::containId(const QString &id) const
{
    return m_rowsById->contains(id);
}

int FormatDetailModel::findModelInfoIndex(const QString &id) const
{
    return m_rows.indexOf(m_rowsById->first(id));
}

int FormatDetailModel::getIdIndex() const
{
    return s_userDefineId;
}

int FormatDetailModel::userDefineCount() const
{
    return int(std::count_if(m_rows.cbegin(), m_rows.cend(),
                             [](const FormatDetailModelData *row) { return row->userDefine; }));
}

bool FormatDetailModel::addModeInfo(const FormatDetailModelData &data)
{
    return addModeInfo(FormatDetailModelData(data));
}

bool FormatDetailModel::addModeInfo(FormatDetailModelData &&data)
{
    insertData(m_rows.size(), std::move(data));
    return true;
}

bool FormatDetailModel::addModeInfoAtHead(const FormatDetailModelData &data)
{
    insertData(0, FormatDetailModelData(data));
    return true;
}

bool FormatDetailModel::delModeInfo(int index)
{
    if (!hasRow(index)) {
        return false;
    }
    beginRemoveRows(QModelIndex(), index, index);
    const std::unique_ptr<FormatDetailModelData> row(m_rows.takeAt(index));
    removeFromIndex(row->id, row.get());
    endRemoveRows();
    updateCount();
    return true;
}

bool FormatDetailModel::delModelInfoByKey(const QString &id)
{
    return delModeInfo(findModelInfoIndex(id));
}

bool FormatDetailModel::updateModeInfo(int index, const FormatDetailModelData &data)
{
    if (!hasRow(index)) {
        return false;
    }
    FormatDetailModelData *row = m_rows.at(index);
    const QString oldId = row->id;
    *row = data;
    if (row->id != oldId) {
        removeFromIndex(oldId, row);
        addToIndex(row, false);
        m_rowsById->sort(row->id, m_rows);
    }

    QVector<int> roles(PresetFields::lastRole - PresetFields::firstRole + 1);
    std::iota(roles.begin(), roles.end(), PresetFields::firstRole);
    const QModelIndex changed = this->index(index);
    Q_EMIT dataChanged(changed, changed, roles);
    return true;
}

void FormatDetailModel::clearModeInfo()
{
    while (delModeInfo(0)) {
    }
    updateCount();
}

bool FormatDetailModel::getModelInfo(QQueue<FormatDetailModelData> &out) const
{
    for (const FormatDetailModelData *row : m_rows) {
        out.enqueue(*row);
    }
    return true;
}

bool FormatDetailModel::getModelInfoByIndex(int index, FormatDetailModelData &out) const
{
    if (!hasRow(index)) {
        return false;
    }
    out = *m_rows.at(index);
    return true;
}

bool FormatDetailModel::getModelInfoById(const QString &id, FormatDetailModelData &out) const
{
    const FormatDetailModelData *row = find(id);
    if (!row) {
        return false;
    }
    out = *row;
    return true;
}

bool FormatDetailModel::setRoleValue(InvitationRoles role, const QString &id, const QVariant &value)
{
    FormatDetailModelData *row = m_rowsById->first(id);
    if (!row) {
        return false;
    }
    if (role == ExtensionRole) {
        row->extension = value.toString();
        const QModelIndex changed = index(m_rows.indexOf(row));
        Q_EMIT dataChanged(changed, changed, {ExtensionRole});
    }
    return true;
}

QVariant FormatDetailModel::getRoleValue(InvitationRoles role, const QString &id) const
{
    const FormatDetailModelData *row = find(id);
    return row && role == ExtensionRole ? QVariant(row->extension) : QVariant();
}

QVariantList FormatDetailModel::toVariantList() const
{
    return userDefined(&FormatDetailModelData::toVarMap);
}

QVariantList FormatDetailModel::toVariantListForSave() const
{
    return userDefined(&FormatDetailModelData::toVarMapForSave);
}

QVariantList FormatDetailModel::toVariantListForTest() const
{
    QVariantList list;
    for (const FormatDetailModelData *row : m_rows) {
        QVariantMap map = row->toVarMap();
        map.insert(QStringLiteral("id"), QString::number(s_idForTest++));
        list.append(map);
    }
    return list;
}

const FormatDetailModelData *FormatDetailModel::find(const QString &id) const
{
    return m_rowsById->first(id);
}

bool FormatDetailModel::hasRow(int index) const
{
    return index >= 0 && index < m_rows.size();
}

void FormatDetailModel::insertData(int index, FormatDetailModelData &&data)
{
    beginInsertRows(QModelIndex(), index, index);
    auto *row = new FormatDetailModelData(std::move(data));
    m_rows.insert(index, row);
    addToIndex(row, index == 0);
    if (row->userDefine) {
        s_userDefineId = std::max(s_userDefineId, row->id.toInt());
    }
    endInsertRows();
    updateCount();
}

void FormatDetailModel::addToIndex(FormatDetailModelData *row, bool atHead)
{
    const bool isNew =
        atHead ? m_rowsById->prepend(row->id, row) : m_rowsById->append(row->id, row);
    if (isNew && m_titlesById) {
        m_titlesById->append(row->id, m_title);
    }
}

void FormatDetailModel::removeFromIndex(const QString &id, FormatDetailModelData *row)
{
    const bool isGone = m_rowsById->remove(id, row);
    if (isGone && m_titlesById) {
        m_titlesById->remove(id, m_title);
    }
}

void FormatDetailModel::updateCount()
{
    setCount(m_rows.size());
}

QVariantList FormatDetailModel::userDefined(QVariantMap (FormatDetailModelData::*toMap)()
                                                const) const
{
    QVariantList list;
    for (const FormatDetailModelData *row : m_rows) {
        if (row->userDefine) {
            list.append((row->*toMap)());
        }
    }
    return list;
}

void FormatDetailModel::joinCatalogue(KeyIndex<QString> &titlesById, const QString &title)
{
    m_titlesById = &titlesById;
    m_title = title;
}

void FormatDetailModel::leaveCatalogue()
{
    for (const FormatDetailModelData *row : qAsConst(m_rows)) {
        m_titlesById->remove(row->id, m_title);
    }
    m_titlesById = nullptr;
}
