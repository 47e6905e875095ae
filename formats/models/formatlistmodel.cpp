#include "formats/models/formatlistmodel.h"

#include "formats/models/keyindex_p.h"
#include "formats/models/presetlists_p.h"

#include <algorithm>
#include <memory>

namespace {

struct Field
{
    int role;
    const char *roleName;
    QString FormatListModelData::*member;
};

constexpr Field fields[] = {
    {FormatListModel::TitleRole, "title", &FormatListModelData::title},
    {FormatListModel::IconRole, "icon", &FormatListModelData::icon},
    {FormatListModel::TagRole, "tag", &FormatListModelData::tag},
};

const Field *fieldOfRole(int role)
{
    const auto *field = std::find_if(std::begin(fields), std::end(fields),
                                     [role](const Field &f) { return f.role == role; });
    return field == std::end(fields) ? nullptr : field;
}

QStringList titlesTagged(const QList<FormatListModelData *> &rows, const QStringList &tags)
{
    QStringList titles;
    for (const FormatListModelData *row : rows) {
        if (tags.contains(row->tag)) {
            titles.append(row->title);
        }
    }
    return titles;
}

} // namespace

FormatListModel::FormatListModel(QObject *parent)
    : QAbstractListModel(parent)
    , m_rowsByTitle(new KeyIndex<FormatListModelData *>)
    , m_presetLists(new PresetLists(this))
{}

FormatListModel::~FormatListModel()
{
    clearModeInfo();
}

int FormatListModel::rowCount(const QModelIndex & /*parent*/) const
{
    return m_rows.size();
}

QVariant FormatListModel::data(const QModelIndex &index, int role) const
{
    const Field *field = fieldOfRole(role);
    if (!field || !hasRow(index.row())) {
        return {};
    }
    return m_rows.at(index.row())->*field->member;
}

QHash<int, QByteArray> FormatListModel::roleNames() const
{
    QHash<int, QByteArray> names;
    for (const Field &field : fields) {
        names.insert(field.role, field.roleName);
    }
    return names;
}

FormatDetailModel *FormatListModel::formatDetailModel(const QString &name) const
{
    return m_presetLists->find(name);
}

QString FormatListModel::getTitle(int index) const
{
    return hasRow(index) ? m_rows.at(index)->title : QString();
}

bool FormatListModel::isExist(const QString &title) const
{
    return m_rowsByTitle->contains(title);
}

int FormatListModel::count() const
{
    return m_count;
}

void FormatListModel::setCount(int count)
{
    m_count = count;
    Q_EMIT countChanged(m_count);
}

int FormatListModel::findModelInfoIndex(const QString &title) const
{
    return m_rows.indexOf(m_rowsByTitle->first(title));
}

bool FormatListModel::containId(const QString &id) const
{
    return m_presetLists->containId(id);
}

QString FormatListModel::getGetClass(const QString &id) const
{
    const QList<QString> titles = m_presetLists->titlesOfId(id);
    return titles.isEmpty() ? QString() : *std::min_element(titles.cbegin(), titles.cend());
}

QString FormatListModel::getTagName(const QString &id) const
{
    const FormatListModelData *row = firstRowWithPreset(id);
    return row ? row->tag : QString();
}

QString FormatListModel::getIcon(const QString &id) const
{
    const FormatListModelData *row = firstRowWithPreset(id);
    return row ? row->icon : QString();
}

bool FormatListModel::addModeInfo(const FormatListModelData &data)
{
    insertCopy(m_rows.size(), data);
    return true;
}

bool FormatListModel::addModeInfoAtHead(const FormatListModelData &data)
{
    insertCopy(0, data);
    return true;
}

bool FormatListModel::delModeInfo(int index)
{
    if (!hasRow(index)) {
        return false;
    }
    beginRemoveRows(QModelIndex(), index, index);
    const std::unique_ptr<FormatListModelData> row(m_rows.takeAt(index));
    m_rowsByTitle->remove(row->title, row.get());
    delDetailModel(row->title);
    endRemoveRows();
    updateCount();
    return true;
}

bool FormatListModel::delModelInfoByKey(const QString &title)
{
    return delModeInfo(findModelInfoIndex(title));
}

bool FormatListModel::delDetailModel(const QString &title)
{
    return m_presetLists->remove(title);
}

void FormatListModel::clearDetailModel()
{
    m_presetLists->clear();
}

void FormatListModel::clearModeInfo()
{
    while (delModeInfo(0)) {
    }
    clearDetailModel();
    updateCount();
}

bool FormatListModel::updateModeInfo(int index, const FormatListModelData &data)
{
    if (!hasRow(index)) {
        return false;
    }
    FormatListModelData *row = m_rows.at(index);
    rename(row, data.title);
    *row = data;
    const QModelIndex changed = this->index(index);
    Q_EMIT dataChanged(changed, changed, {TitleRole, IconRole, TagRole});
    return true;
}

bool FormatListModel::getModelInfo(QQueue<FormatListModelData> &out) const
{
    for (const FormatListModelData *row : m_rows) {
        out.enqueue(*row);
    }
    return true;
}

bool FormatListModel::getModelInfoByIndex(int index, FormatListModelData &out) const
{
    if (!hasRow(index)) {
        return false;
    }
    out = *m_rows.at(index);
    return true;
}

bool FormatListModel::getModelInfoByTitle(const QString &title, FormatListModelData &out) const
{
    return getModelInfoByIndex(findModelInfoIndex(title), out);
}

bool FormatListModel::setRoleValue(InvitationRoles role, const QString &title,
                                   const QVariant &value)
{
    FormatListModelData *row = m_rowsByTitle->first(title);
    if (!row) {
        return false;
    }
    if (const Field *field = fieldOfRole(role)) {
        if (role == TitleRole) {
            rename(row, value.toString());
        } else {
            row->*field->member = value.toString();
        }
        const QModelIndex changed = index(m_rows.indexOf(row));
        Q_EMIT dataChanged(changed, changed, {role});
    }
    return true;
}

QVariant FormatListModel::getRoleValue(InvitationRoles role, const QString &title) const
{
    return data(index(findModelInfoIndex(title)), role);
}

QVariantList FormatListModel::toVariantList()
{
    return nested(&FormatDetailModel::toVariantList);
}

QVariantList FormatListModel::toVariantListForSave()
{
    return nested(&FormatDetailModel::toVariantListForSave);
}

QVariantList FormatListModel::toVariantListTest()
{
    return nested(&FormatDetailModel::toVariantListForTest);
}

QStringList FormatListModel::formatList() const
{
    return titlesTagged(m_rows, {QStringLiteral("video"), QStringLiteral("audio")});
}

QStringList FormatListModel::getFormatList(const QString &tag) const
{
    return titlesTagged(m_rows, {tag});
}

bool FormatListModel::isVideoType(const QString &type) const
{
    return getFormatList(QStringLiteral("video")).contains(type.toUpper());
}

void FormatListModel::moveDrag(int from, int to)
{
    if (from != to && hasRow(from) && hasRow(to)) {
        m_rows.move(from, to);
        m_rowsByTitle->sort(m_rows.at(to)->title, m_rows);
    }
}

bool FormatListModel::hasRow(int index) const
{
    return index >= 0 && index < m_rows.size();
}

void FormatListModel::insertCopy(int index, const FormatListModelData &data)
{
    beginInsertRows(QModelIndex(), index, index);
    auto *row = new FormatListModelData(data);
    m_rows.insert(index, row);
    index == 0 ? m_rowsByTitle->prepend(row->title, row) : m_rowsByTitle->append(row->title, row);
    m_presetLists->add(row->title);
    endInsertRows();
    updateCount();
}

void FormatListModel::updateCount()
{
    setCount(m_rows.size());
}

void FormatListModel::rename(FormatListModelData *row, const QString &title)
{
    m_rowsByTitle->remove(row->title, row);
    row->title = title;
    m_rowsByTitle->append(row->title, row);
    m_rowsByTitle->sort(row->title, m_rows);
}

const FormatListModelData *FormatListModel::firstRowWithPreset(const QString &id) const
{
    FormatListModelData *first = nullptr;
    const QList<QString> titles = m_presetLists->titlesOfId(id);
    for (const QString &title : titles) {
        FormatListModelData *row = m_rowsByTitle->first(title);
        if (row && (!first || m_rows.indexOf(row) < m_rows.indexOf(first))) {
            first = row;
        }
    }
    return first;
}

QVariantList FormatListModel::nested(QVariantList (FormatDetailModel::*toList)() const)
{
    QVariantList list;
    for (const FormatListModelData *row : qAsConst(m_rows)) {
        const FormatDetailModel *presets = m_presetLists->findOrInsertNull(row->title);
        const QVariantList group = presets ? (presets->*toList)() : QVariantList();
        if (!group.isEmpty()) {
            QVariantMap format = row->toVarMap();
            format.insert(QStringLiteral("group"), group);
            list.append(format);
        }
    }
    return list;
}
