#include "host/catalogue/aliastable.h"

namespace {

constexpr int longestChain = 16;

} // namespace

void AliasTable::add(const QString &oldId, const QString &newId, const CataloguePlace &place)
{
    if (m_aliases.contains(oldId)) {
        m_order.removeOne(oldId);
    }
    m_order.append(oldId);
    m_aliases.insert(oldId, {newId, place});
}

PresetAliases AliasTable::resolve(const Exists &exists, QVector<CatalogueMistake> &mistakes) const
{
    PresetAliases resolved;
    for (const QString &oldId : m_order) {
        const CataloguePlace place = m_aliases.value(oldId).place;
        const QString end = endOf(oldId, exists);
        if (exists(oldId)) {
            mistakes.append({place, QStringLiteral("is the id of a preset, which is found by it; "
                                                   "hide that preset or remove the alias")});
        } else if (end.isEmpty()) {
            mistakes.append({place, QStringLiteral("leads back to itself, or through more than %1 "
                                                   "others; name a preset instead")
                                        .arg(longestChain)});
        } else if (!exists(end)) {
            mistakes.append({place, QStringLiteral("no preset has the id \"%1\"; \"vexconvert "
                                                   "presets\" lists the ids")
                                        .arg(end)});
        } else {
            resolved.insert(oldId, end);
        }
    }
    return resolved;
}

/*! The preset, or the unknown id, at the end of the chain; empty if the chain has none. */
QString AliasTable::endOf(const QString &oldId, const Exists &exists) const
{
    QString id = oldId;
    for (int step = 0; step < longestChain; ++step) {
        id = m_aliases.value(id).target;
        if (exists(id) || !m_aliases.contains(id)) {
            return id;
        }
    }
    return {};
}
