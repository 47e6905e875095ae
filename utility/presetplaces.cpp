#include "utility/presetplaces.h"

#include <algorithm>

void PresetPlaces::insert(const QString &key, const CataloguePlace &place)
{
    if (m_layers.isEmpty()) {
        m_layers.resize(1);
    }
    m_layers.first().insert(key, place);
}

void PresetPlaces::add(const PresetPlaces &over)
{
    m_layers = over.m_layers + m_layers;
}

bool PresetPlaces::contains(const QString &key) const
{
    return std::any_of(m_layers.begin(), m_layers.end(),
                       [&key](const Layer &layer) { return layer.contains(key); });
}

CataloguePlace PresetPlaces::value(const QString &key) const
{
    for (const Layer &layer : m_layers) {
        const auto place = layer.constFind(key);
        if (place != layer.constEnd()) {
            return *place;
        }
    }
    return {};
}

QStringList PresetPlaces::keys() const
{
    QStringList keys;
    for (const Layer &layer : m_layers) {
        keys += layer.keys();
    }
    keys.removeDuplicates();
    return keys;
}
