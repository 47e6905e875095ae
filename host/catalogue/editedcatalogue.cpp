#include "host/catalogue/editedcatalogue.h"

#include "utility/cataloguesettings.h"

#include <algorithm>

namespace {

const QString idKey = QStringLiteral("id");

QString idOf(const QVariant &preset)
{
    return preset.toMap().value(idKey).toString();
}

template <typename List>
auto withId(List &presets, const QString &id)
{
    return std::find_if(presets.begin(), presets.end(),
                        [&id](const QVariant &preset) { return idOf(preset) == id; });
}

} // namespace

QJsonObject presetToJson(const QVariantMap &preset)
{
    QJsonObject json = QJsonObject::fromVariantMap(preset);
    for (const QLatin1String block : CatalogueBlock::all) {
        // What has no audio is served with empty blocks, which a file must not have.
        if (json.value(block).toObject().isEmpty()) {
            json.remove(block);
        }
    }
    return json;
}

EditedCatalogue::EditedCatalogue(const CatalogueResult &catalogue)
    : m_result(catalogue)
{
    const auto &groups = m_result.catalogue.presets;
    for (auto group = groups.begin(); group != groups.end(); ++group) {
        for (const QVariant &preset : *group) {
            m_groups.insert(idOf(preset), group.key());
        }
    }
}

bool EditedCatalogue::has(const Group &group) const
{
    return m_result.catalogue.presets.contains(group);
}

QVariantMap EditedCatalogue::preset(const QString &id) const
{
    const QVariantList presets = m_result.catalogue.presets.value(m_groups.value(id));
    const auto preset = withId(presets, id);
    return preset == presets.end() ? QVariantMap() : preset->toMap();
}

PresetPlaces EditedCatalogue::places(const QString &id) const
{
    return m_result.presetPlaces.value(id);
}

void EditedCatalogue::add(const Group &group, const QString &icon, const CataloguePlace &place)
{
    ExportCatalogue &catalogue = m_result.catalogue;
    const QString &category = group.first;
    if (!catalogue.categories.contains(category)) {
        catalogue.categories.append(category);
    }
    catalogue.groups[category].append(QVariantMap{
        {QStringLiteral("category"), category},
        {QStringLiteral("name"), group.second},
        {QStringLiteral("icon"), icon},
    });
    catalogue.presets.insert(group, {});
    m_result.groupPlaces.insert(group, place);
}

void EditedCatalogue::add(const Group &group, const QVariantMap &preset, const PresetPlaces &places)
{
    m_result.catalogue.presets[group].append(preset);
    m_groups.insert(idOf(preset), group);
    m_result.presetPlaces.insert(idOf(preset), places);
}

void EditedCatalogue::replace(const QVariantMap &preset, const PresetPlaces &places)
{
    QVariantList &presets = m_result.catalogue.presets[m_groups.value(idOf(preset))];
    *withId(presets, idOf(preset)) = preset;
    m_result.presetPlaces.insert(idOf(preset), places);
}

void EditedCatalogue::remove(const QString &id)
{
    const Group group = m_groups.take(id);
    QVariantList &presets = m_result.catalogue.presets[group];
    presets.erase(withId(presets, id));
    m_result.presetPlaces.remove(id);
    if (presets.isEmpty()) {
        removeGroup(group);
    }
}

bool EditedCatalogue::removeGroups(const QString &name)
{
    const QList<Group> all = m_result.catalogue.presets.keys();
    bool isRemoved = false;
    for (const Group &group : all) {
        if (group.second == name) {
            removeGroup(group);
            isRemoved = true;
        }
    }
    return isRemoved;
}

void EditedCatalogue::removeGroup(const Group &group)
{
    const QVariantList presets = m_result.catalogue.presets.take(group);
    for (const QVariant &preset : presets) {
        m_groups.remove(idOf(preset));
        m_result.presetPlaces.remove(idOf(preset));
    }
    QVariantList &groups = m_result.catalogue.groups[group.first];
    groups.erase(std::find_if(groups.begin(), groups.end(), [&group](const QVariant &map) {
        return map.toMap().value(QStringLiteral("name")) == group.second;
    }));
    m_result.groupPlaces.remove(group);
}
