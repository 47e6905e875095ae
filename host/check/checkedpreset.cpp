#include "host/check/checkedpreset.h"

#include <QRegularExpression>

CheckedPreset::CheckedPreset(const QVariantMap &preset, const PresetPlaces &places,
                             MistakeCollector &collector)
    : m_preset(preset)
    , m_places(places)
    , m_collector(collector)
{}

QString CheckedPreset::text(const QString &key) const
{
    return m_preset.value(key).toString();
}

QVariant CheckedPreset::chosen(const CatalogueSetting &setting) const
{
    return m_preset.value(setting.param).toMap().value(setting.key);
}

QVariant CheckedPreset::stated(const CatalogueDetail &detail) const
{
    return m_preset.value(CatalogueBlock::videoParam).toMap().value(detail.key);
}

QStringList CheckedPreset::offered(const CatalogueSetting &setting) const
{
    return m_preset.value(setting.options).toMap().value(setting.listKey).toStringList();
}

void CheckedPreset::note(const QString &key, const QString &reason, const QString &otherKey)
{
    m_collector.note(m_places.value(key), reason, nameWhereApart(key, otherKey));
}

void CheckedPreset::noteOffered(const CatalogueSetting &setting, int index, const QString &reason,
                                const QString &otherKey)
{
    const QString key = setting.optionsPath();
    CataloguePlace place = m_places.value(key);
    place.path += QStringLiteral("[%1]").arg(index);
    m_collector.note(place, reason, nameWhereApart(key, otherKey));
}

void CheckedPreset::expectForm(const QString &key, const QString &value, const QString &pattern)
{
    const QRegularExpression form(QRegularExpression::anchoredPattern(pattern));
    if (!form.match(value).hasMatch()) {
        note(key, QStringLiteral("must be of the form %1, not %2").arg(pattern, value));
    }
}

/*! The group, template or preset that sets the value. */
QString CheckedPreset::holderOf(const QString &key) const
{
    const CataloguePlace place = m_places.value(key);
    QString path = place.path;
    path.chop(path.endsWith(key) ? key.size() : 0);
    return place.source + path;
}

QString CheckedPreset::nameWhereApart(const QString &key, const QString &otherKey) const
{
    const bool isTogether = otherKey.isEmpty() || holderOf(key) == holderOf(otherKey);
    return isTogether ? QString() : QStringLiteral(" (in the preset %1)").arg(id());
}
