#include "host/catalogue/overlaypreset.h"

#include <QJsonDocument>
#include <QRegularExpression>

namespace {

const QString groupsKey = QStringLiteral("groups");
const QString presetsKey = QStringLiteral("presets");

QJsonObject merged(QJsonObject base, const QJsonObject &over)
{
    for (auto it = over.begin(); it != over.end(); ++it) {
        if (it->isNull()) {
            base.remove(it.key());
        } else if (it->isObject() && base.value(it.key()).isObject()) {
            base.insert(it.key(), merged(base.value(it.key()).toObject(), it->toObject()));
        } else {
            base.insert(it.key(), *it);
        }
    }
    return base;
}

QJsonValue toJson(const OverlayGroup &group)
{
    QJsonObject json = group.own.toObject();
    if (!json.value(presetsKey).isArray()) {
        return group.own; // which the reader refuses
    }
    QJsonArray presets;
    for (const OverlayPreset &preset : group.presets) {
        presets.append(preset.toJson());
    }
    json.insert(presetsKey, presets);
    return json;
}

/*! Where a place of the file that was read stands in the overlay. */
struct Found
{
    int group;                   //!< negative outside the groups
    const OverlayPreset *preset; //!< null outside the presets
    QString key;                 //!< of the preset; empty: the preset itself
    QString path;                //!< in the overlay
};

Found find(const QString &path, const QVector<OverlayGroup> &groups)
{
    static const QRegularExpression start(
        QStringLiteral(R"(^groups\[(\d+)\](?:\.presets\[(\d+)\])?)"));
    const QRegularExpressionMatch match = start.match(path);
    if (!match.hasMatch()) {
        return {-1, nullptr, {}, path};
    }
    const int index = match.captured(1).toInt();
    const QString rest = path.mid(match.capturedEnd());
    if (match.captured(2).isEmpty()) {
        return {index, nullptr, {}, groups.at(index).path + path.mid(match.capturedEnd(1) + 1)};
    }
    const OverlayPreset &preset = groups.at(index).presets.at(match.captured(2).toInt());
    return {index, &preset, rest.mid(1), preset.path + rest};
}

PresetPlaces placesIn(const PresetPlaces &read, const QVector<OverlayGroup> &groups)
{
    PresetPlaces places;
    const QStringList keys = read.keys();
    for (const QString &key : keys) {
        const CataloguePlace place = read.value(key);
        const Found found = find(place.path, groups);
        const bool isInherited = found.preset != nullptr && !found.preset->states(key) &&
                                 found.preset->basePlaces.contains(key);
        places.insert(key, isInherited ? found.preset->basePlaces.value(key)
                                       : CataloguePlace{place.source, found.path});
    }
    return places;
}

} // namespace

QJsonValue OverlayPreset::toJson() const
{
    return own.isObject() && !base.isEmpty() ? merged(base, own.toObject()) : own;
}

bool OverlayPreset::states(const QString &key) const
{
    const QString name = key.section(QLatin1Char('['), 0, 0);
    const QJsonValue value = own.toObject().value(name.section(QLatin1Char('.'), 0, 0));
    const QString inner = name.section(QLatin1Char('.'), 1);
    return value.isObject() && !inner.isEmpty() ? value.toObject().contains(inner)
                                                : !value.isUndefined();
}

OverlayReading readOverlayGroups(const QString &source, const QJsonObject &file,
                                 const QVector<OverlayGroup> &groups)
{
    QJsonArray list;
    for (const OverlayGroup &group : groups) {
        list.append(toJson(group));
    }
    QJsonObject json = file;
    if (!file.contains(groupsKey) || file.value(groupsKey).isArray()) {
        json.insert(groupsKey, list);
    }
    const CatalogueResult read = readCatalogue({{source, QJsonDocument(json).toJson()}});

    OverlayReading reading;
    for (CatalogueMistake mistake : read.mistakes) {
        const Found found = find(mistake.place.path, groups);
        // What the base has beyond the known keys is not the overlay's.
        if (mistake.isServed && found.preset != nullptr && !found.preset->states(found.key)) {
            continue;
        }
        mistake.place.path = found.path;
        reading.mistakes.append(mistake);
    }
    const QString category = json.value(QStringLiteral("category")).toString();
    const QVariantList all = read.catalogue.groups.value(category);
    for (const QVariant &each : all) {
        const QVariantMap map = each.toMap();
        const QPair<QString, QString> key(category, map.value(QStringLiteral("name")).toString());
        OverlayReading::Group group{find(read.groupPlaces.value(key).path, groups).group,
                                    map.value(QStringLiteral("icon")).toString(),
                                    {}};
        const QVariantList presets = read.catalogue.presets.value(key);
        for (const QVariant &preset : presets) {
            const QVariantMap values = preset.toMap();
            const QString id = values.value(QStringLiteral("id")).toString();
            group.presets.append({values, placesIn(read.presetPlaces.value(id), groups)});
        }
        reading.groups.append(group);
    }
    return reading;
}
