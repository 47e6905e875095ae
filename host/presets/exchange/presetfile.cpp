#include "host/presets/exchange/presetfile.h"

#include "host/presets/configlist.h"
#include "host/presets/exchange/handbrake.h"
#include "host/presets/exchange/melt.h"

#include <QCoreApplication>
#include <QFileInfo>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

#include <algorithm>

namespace {

struct Texts
{
    Q_DECLARE_TR_FUNCTIONS(PresetFile)
};

constexpr qint64 largestFile = 8LL * 1024 * 1024;
constexpr int mostPresets = 2000;
constexpr int version = 1;
const QLatin1String schemaKey("$schema");
const QLatin1String schemaName("presets.schema.json");
const QLatin1String versionKey("version");
const QLatin1String presetsKey("presets");
const QLatin1String titleKey("title");
const QLatin1String noteKey("note");
const QLatin1String baseKey("base");
const QLatin1String formatKey("format");
const QLatin1String extensionKey("extension");
const QLatin1String valuesKey("settings");

const QLatin1String knownKeys[] = {titleKey, noteKey, baseKey, formatKey, extensionKey, valuesKey};

/*! Why the object isn't a preset; empty if it is one. */
QString mistakeIn(const QJsonObject &json)
{
    for (auto member = json.begin(); member != json.end(); ++member) {
        const bool isKnown = std::find(std::begin(knownKeys), std::end(knownKeys), member.key()) !=
                             std::end(knownKeys);
        if (!isKnown) {
            return Texts::tr("\"%1\" is not a known key").arg(member.key());
        }
        const bool isObject = member.key() == valuesKey;
        if (isObject ? !member->isObject() : !member->isString()) {
            return (isObject ? Texts::tr("\"%1\" must be an object")
                             : Texts::tr("\"%1\" must be a text"))
                .arg(member.key());
        }
    }
    const QJsonObject values = json.value(valuesKey).toObject();
    const QStringList names = valueNames();
    for (auto value = values.begin(); value != values.end(); ++value) {
        if (!names.contains(value.key())) {
            return Texts::tr("\"settings.%1\" is not a known key").arg(value.key());
        }
        if (!value->isString()) {
            return Texts::tr("\"settings.%1\" must be a text").arg(value.key());
        }
    }
    return {};
}

PortablePreset presetFrom(const QJsonObject &json)
{
    PortablePreset preset;
    preset.title = json.value(titleKey).toString();
    preset.note = json.value(noteKey).toString();
    preset.base = json.value(baseKey).toString();
    preset.format = json.value(formatKey).toString();
    preset.extension = json.value(extensionKey).toString();
    const QJsonObject values = json.value(valuesKey).toObject();
    for (auto value = values.begin(); value != values.end(); ++value) {
        preset.values.insert(value.key(), value->toString());
    }
    return preset;
}

PortablePresets readOwn(const QJsonArray &list)
{
    PortablePresets presets;
    for (int index = 0; index < list.size(); ++index) {
        const QJsonObject json = list.at(index).toObject();
        const QString title = json.value(titleKey).toString();
        const QString mistake = !list.at(index).isObject() ? Texts::tr("must be an object")
                                : index >= mostPresets
                                    ? Texts::tr("is one of more than %1").arg(mostPresets)
                                    : mistakeIn(json);
        if (mistake.isEmpty()) {
            presets.presets.append(presetFrom(json));
        } else {
            presets.refused.append(
                {title.isEmpty() ? QStringLiteral("presets[%1]").arg(index) : title, mistake});
        }
    }
    return presets;
}

Result<PortablePresets> readJson(const QByteArray &content, const QString &name)
{
    QJsonParseError error;
    const QJsonObject root = QJsonDocument::fromJson(content, &error).object();
    if (error.error != QJsonParseError::NoError) {
        return failed(
            Texts::tr("%1: %2 at byte %3").arg(name, error.errorString()).arg(error.offset));
    }
    if (isHandBrake(root)) {
        return readHandBrake(root);
    }
    if (!root.value(presetsKey).isArray()) {
        return failed(Texts::tr("%1 has neither a list \"presets\" nor a list \"PresetList\"; it "
                                "is no file of presets")
                          .arg(name));
    }
    if (root.value(versionKey).toInt() != version) {
        return failed(Texts::tr("%1 has the version %2, and only version %3 can be read; export "
                                "it again with this version of vexconvert")
                          .arg(name, root.value(versionKey).toVariant().toString())
                          .arg(version));
    }
    return readOwn(root.value(presetsKey).toArray());
}

} // namespace

Result<PortablePresets> readPresetFile(const QString &path)
{
    return readSmallFile(path, largestFile).and_then([&path](const QByteArray &content) {
        return readPresets(content, path);
    });
}

Result<PortablePresets> readPresets(const QByteArray &content, const QString &name)
{
    const QByteArray start = content.trimmed().left(1);
    if (start == "{" || start == "[") {
        return readJson(content, name);
    }
    PortablePresets presets;
    if (start == "<") {
        presets = readKdenlive(content);
    } else if (content.contains("acodec=") || content.contains("vcodec=")) {
        presets = readShotcut(content, QFileInfo(name).completeBaseName());
    }
    if (presets.presets.isEmpty() && presets.refused.isEmpty()) {
        return failed(Texts::tr("%1 is no file of presets of vexconvert, HandBrake, Kdenlive or "
                                "Shotcut")
                          .arg(name));
    }
    return presets;
}

QByteArray presetFile(const QVector<PortablePreset> &presets)
{
    QJsonArray list;
    for (const PortablePreset &preset : presets) {
        QJsonObject values;
        for (auto value = preset.values.begin(); value != preset.values.end(); ++value) {
            values.insert(value.key(), *value);
        }
        list.append(QJsonObject{{titleKey, preset.title},
                                {noteKey, preset.note},
                                {baseKey, preset.base},
                                {formatKey, preset.format},
                                {extensionKey, preset.extension},
                                {valuesKey, values}});
    }
    return QJsonDocument(
               QJsonObject{{schemaKey, schemaName}, {versionKey, version}, {presetsKey, list}})
        .toJson();
}
