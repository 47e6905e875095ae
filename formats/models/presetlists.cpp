#include "formats/models/presetlists_p.h"

#include "formats/models/formatdetailmodel.h"

PresetLists::PresetLists(QObject *owner)
    : m_owner(owner)
{}

FormatDetailModel *PresetLists::find(const QString &title) const
{
    return m_lists.value(title);
}

FormatDetailModel *PresetLists::findOrInsertNull(const QString &title)
{
    return m_lists[title];
}

void PresetLists::add(const QString &title)
{
    FormatDetailModel *&presets = m_lists[title];
    if (presets) {
        presets->leaveCatalogue();
    }
    presets = new FormatDetailModel(m_owner);
    presets->joinCatalogue(m_titlesById, title);
}

bool PresetLists::remove(const QString &title)
{
    const auto presets = m_lists.find(title);
    if (presets == m_lists.end()) {
        return false;
    }
    release(*presets);
    m_lists.erase(presets);
    return true;
}

void PresetLists::clear()
{
    for (FormatDetailModel *presets : qAsConst(m_lists)) {
        release(presets);
    }
    m_lists.clear();
}

bool PresetLists::containId(const QString &id) const
{
    return m_titlesById.contains(id);
}

QList<QString> PresetLists::titlesOfId(const QString &id) const
{
    return m_titlesById.all(id);
}

void PresetLists::release(FormatDetailModel *presets)
{
    if (presets) {
        presets->leaveCatalogue();
        presets->deleteLater();
    }
}
