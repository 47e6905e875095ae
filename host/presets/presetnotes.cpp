#include "host/presets/presetnotes.h"

#include "formats/models/formatdetailmodel.h"

#include <algorithm>

namespace {

const QLatin1String idKey("id");
const QLatin1String baseKey("base");
const QLatin1String valuesKey("baseValues");
const QLatin1String textKey("text");

int differences(const PresetValues &one, const PresetValues &other)
{
    const QStringList names = valueNames();
    return int(std::count_if(names.begin(), names.end(), [&one, &other](const QString &name) {
        return one.value(name) != other.value(name);
    }));
}

/*! How many lists of choices are the same. */
int sameChoices(const QVariantMap &one, const QVariantMap &other)
{
    const QVector<PresetSetting> &all = presetSettings();
    return int(std::count_if(all.begin(), all.end(), [&one, &other](const PresetSetting &setting) {
        return setting.choices(one) == setting.choices(other);
    }));
}

} // namespace

QJsonObject PresetNote::toJson() const
{
    QJsonObject values;
    for (auto value = baseValues.begin(); value != baseValues.end(); ++value) {
        values.insert(value.key(), *value);
    }
    return {{baseKey, base}, {valuesKey, values}, {textKey, text}};
}

PresetNote PresetNote::fromJson(const QJsonObject &json)
{
    PresetNote note{json.value(baseKey).toString(), {}, json.value(textKey).toString()};
    const QJsonObject values = json.value(valuesKey).toObject();
    for (auto value = values.begin(); value != values.end(); ++value) {
        note.baseValues.insert(value.key(), value->toString());
    }
    return note;
}

PresetNote PresetNote::about(const FormatDetailModelData &base)
{
    return {base.id, base.id.isEmpty() ? PresetValues() : valuesOf(base.toVarMap()), {}};
}

void PresetNotes::keepOnly(const QStringList &ids)
{
    QHash<QString, PresetNote> kept;
    for (const QString &id : ids) {
        if (m_notes.contains(id)) {
            kept.insert(id, m_notes.value(id));
        }
    }
    m_notes = kept;
}

void PresetNotes::renameBases(const std::function<QString(const QString &)> &idNow)
{
    for (PresetNote &note : m_notes) {
        note.base = idNow(note.base);
    }
}

QHash<QString, QString> PresetNotes::texts() const
{
    QHash<QString, QString> texts;
    for (auto note = m_notes.begin(); note != m_notes.end(); ++note) {
        if (!note->text.isEmpty()) {
            texts.insert(note.key(), note->text);
        }
    }
    return texts;
}

QJsonArray PresetNotes::toJson() const
{
    QStringList ids = m_notes.keys();
    ids.sort();
    QJsonArray entries;
    for (const QString &id : qAsConst(ids)) {
        QJsonObject entry = m_notes.value(id).toJson();
        entry.insert(idKey, id);
        entries.append(entry);
    }
    return entries;
}

void PresetNotes::read(const QJsonArray &entries)
{
    for (const QJsonValue &value : entries) {
        const QString id = value.toObject().value(idKey).toString();
        if (!id.isEmpty()) {
            m_notes.insert(id, PresetNote::fromJson(value.toObject()));
        }
    }
}

FormatDetailModelData likelyBase(const FormatDetailModelData &own, const FormatDetailModel &list)
{
    const QVariantMap ownMap = own.toVarMap();
    const PresetValues ownValues = valuesOf(ownMap);
    QQueue<FormatDetailModelData> presets;
    list.getModelInfo(presets);
    FormatDetailModelData best;
    int bestLikeness = 0;
    for (const FormatDetailModelData &preset : qAsConst(presets)) {
        const QVariantMap map = preset.toVarMap();
        const int likeness =
            1000 + 100 * sameChoices(ownMap, map) - differences(ownValues, valuesOf(map));
        if (!preset.userDefine && likeness > bestLikeness) {
            best = preset;
            bestLikeness = likeness;
        }
    }
    return best;
}
