#include "utility/settingsreader.h"

#include "utility/cataloguesettings.h"

#include <QJsonDocument>

#include <algorithm>

namespace {

QVariantMap merged(QVariantMap base, const QVariantMap &over)
{
    for (auto it = over.cbegin(); it != over.cend(); ++it) {
        QVariant &value = base[it.key()];
        if (value.type() == QVariant::Map && it->type() == QVariant::Map) {
            value = merged(value.toMap(), it->toMap());
        } else {
            value = *it;
        }
    }
    return base;
}

bool isPresetText(const QString &key)
{
    const auto &texts = CatalogueText::all();
    return std::any_of(texts.begin(), texts.end(),
                       [&key](const CatalogueText &text) { return text.key == key; });
}

} // namespace

void PresetSettings::add(const PresetSettings &over)
{
    values = merged(values, over.values);
    places.add(over.places);
}

void SettingsReader::readLists(const QJsonObject &lists)
{
    for (auto it = lists.constBegin(); it != lists.constEnd(); ++it) {
        const int before = m_inspector.refusals();
        const QString path = memberPath(QStringLiteral("lists"), it.key());
        m_inspector.expect(QJsonValue::Array, it.value(), path);
        const QJsonArray list = it.value().toArray();
        m_inspector.expectElements(
            list.first().isString() ? QJsonValue::String : QJsonValue::Double, list, path);
        m_lists.insert(it.key(),
                       m_inspector.refusals() == before
                           ? std::make_optional(OptionList{list, m_inspector.placeOf(path)})
                           : std::nullopt);
    }
}

void SettingsReader::readTemplates(const QJsonObject &templates)
{
    for (auto it = templates.constBegin(); it != templates.constEnd(); ++it) {
        const int before = m_inspector.refusals();
        const QString path = memberPath(QStringLiteral("templates"), it.key());
        m_inspector.expect(QJsonValue::Object, it.value(), path);
        const PresetSettings settings = readOwn(it.value().toObject(), path);
        m_templates.insert(it.key(), m_inspector.refusals() == before ? std::make_optional(settings)
                                                                      : std::nullopt);
    }
}

PresetSettings SettingsReader::readTemplate(const QJsonValue &name, const QString &path)
{
    const QString known = name.isUndefined() ? QString() : m_inspector.text(name, path);
    return known.isEmpty()
               ? PresetSettings()
               : named(m_templates, known,
                       QStringLiteral("there is no template \"%1\" in \"templates\""), path);
}

PresetSettings SettingsReader::readOwn(const QJsonObject &from, const QString &path)
{
    PresetSettings settings;
    for (auto it = from.constBegin(); it != from.constEnd(); ++it) {
        const QString valuePath = memberPath(path, it.key());
        const auto &blocks = CatalogueBlock::all;
        const auto block = std::find(blocks.begin(), blocks.end(), it.key());
        if (block != blocks.end()) {
            readBlock(*block, it.value(), valuePath, settings);
            continue;
        }
        const bool isText = isPresetText(it.key());
        settings.values.insert(it.key(), isText ? m_inspector.text(it.value(), valuePath)
                                                : it.value().toVariant());
        settings.places.insert(it.key(), m_inspector.placeOf(valuePath));
        if (!isText) {
            m_inspector.noteUnknownKey(valuePath);
        }
    }
    return settings;
}

void SettingsReader::readBlock(QLatin1String block, const QJsonValue &value, const QString &path,
                               PresetSettings &settings)
{
    m_inspector.expect(QJsonValue::Object, value, path);
    const QJsonObject object = value.toObject();
    QVariantMap map = object.toVariantMap();
    for (auto it = object.constBegin(); it != object.constEnd(); ++it) {
        const QString valuePath = memberPath(path, it.key());
        CataloguePlace place = m_inspector.placeOf(valuePath);
        const CatalogueSetting *setting = CatalogueSetting::find(block, it.key());
        const CatalogueDetail *detail =
            block == CatalogueBlock::videoParam ? CatalogueDetail::find(it.key()) : nullptr;
        if (detail != nullptr) {
            m_inspector.expect(detail->type(), it.value(), valuePath);
        } else if (setting == nullptr) {
            m_inspector.noteUnknownKey(valuePath);
        } else if (setting->param == block) {
            m_inspector.expect(setting->type(), it.value(), valuePath);
        } else {
            const int before = m_inspector.refusals();
            const OptionList options = readOptions(it.value(), setting->type(), valuePath);
            const bool hasRightLength =
                setting->length == 0 || options.values.size() == setting->length;
            if (!hasRightLength && m_inspector.refusals() == before) {
                m_inspector.refuse(
                    valuePath, QStringLiteral("must hold three bitrates: high, middle and low"));
            }
            place = options.place;
            map.insert(it.key(), shared(options.values));
        }
        settings.places.insert(memberPath(block, it.key()), place);
    }
    settings.values.insert(block, map);
}

/*! An option list, written out or as the name of a list. */
SettingsReader::OptionList SettingsReader::readOptions(const QJsonValue &value,
                                                       QJsonValue::Type type, const QString &path)
{
    OptionList list{value.toArray(), m_inspector.placeOf(path)};
    if (value.isString()) {
        list = named(m_lists, value.toString(),
                     QStringLiteral("there is no list \"%1\" in \"lists\""), path);
    } else {
        m_inspector.expect(QJsonValue::Array, value, path);
    }
    m_inspector.expectElements(type, list.values, path);
    return list;
}

// Keyed by the JSON, as the variants "0" and 0 compare equal.
QVariantList SettingsReader::shared(const QJsonArray &array)
{
    QVariantList &list = m_shared[QJsonDocument(array).toJson(QJsonDocument::Compact)];
    if (list.isEmpty()) {
        list = array.toVariantList();
    }
    return list;
}

template <typename Value>
Value SettingsReader::named(const Named<Value> &values, const QString &name, const QString &refusal,
                            const QString &path)
{
    const auto found = values.constFind(name);
    if (found == values.constEnd()) {
        m_inspector.refuse(path, refusal.arg(name));
        return {};
    }
    if (!*found) {
        m_inspector.refuseSilently();
    }
    return found->value_or(Value());
}
