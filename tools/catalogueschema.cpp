#include "utility/cataloguesettings.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

#include <cstdio>

namespace {

// The fixed part; the definitions of a preset's settings and strings come from their tables.
const char frame[] = R"({
  "$schema": "http://json-schema.org/draft-07/schema#",
  "title": "Export catalogue",
  "description": "One file of an export catalogue; README.md says what the keys mean. What stands in several places, such as names of lists and templates or repeated ids, only the reader checks. Written by tools/catalogueschema.cpp.",
  "type": "object",
  "required": ["category", "groups"],
  "additionalProperties": false,
  "properties": {
    "$schema": { "type": "string" },
    "category": { "type": "string", "pattern": "^[A-Za-z]+$" },
    "lists": {
      "type": "object",
      "additionalProperties": {
        "type": "array",
        "anyOf": [
          { "items": { "type": "string" } },
          { "items": { "type": "number" } }
        ]
      }
    },
    "templates": {
      "type": "object",
      "additionalProperties": { "$ref": "#/definitions/template" }
    },
    "groups": { "type": "array", "items": { "$ref": "#/definitions/group" } }
  }
})";

const char group[] = R"({
  "name": { "type": "string", "minLength": 1 },
  "icon": { "type": "string", "pattern": "^fmt_[a-z0-9]+$" },
  "presets": { "type": "array", "items": { "$ref": "#/definitions/preset" } }
})";

QJsonObject parsed(const char *json)
{
    return QJsonDocument::fromJson(json).object();
}

QString wholeText(const QString &pattern)
{
    return QStringLiteral("^(%1)$").arg(pattern);
}

/*! An object with these properties and no others. */
QJsonObject objectOf(const QJsonObject &properties, const QJsonArray &required = {})
{
    QJsonObject object{{QStringLiteral("type"), QStringLiteral("object")},
                       {QStringLiteral("additionalProperties"), false},
                       {QStringLiteral("properties"), properties}};
    if (!required.isEmpty()) {
        object.insert(QStringLiteral("required"), required);
    }
    return object;
}

QJsonObject textSchema(const QString &pattern = {})
{
    return {{QStringLiteral("type"), QStringLiteral("string")},
            pattern.isEmpty()
                ? QPair<QString, QJsonValue>(QStringLiteral("minLength"), 1)
                : QPair<QString, QJsonValue>(QStringLiteral("pattern"), wholeText(pattern))};
}

// With alternatives, an invalid value gives a single error.
QJsonObject numberSchema(const CatalogueSetting &setting)
{
    const bool isWhole = setting.form == CatalogueSetting::WholeNumber;
    const QJsonObject zero{{QStringLiteral("const"), 0}};
    const QJsonObject number{
        {QStringLiteral("type"), isWhole ? QStringLiteral("integer") : QStringLiteral("number")},
        {QStringLiteral("minimum"), setting.least},
        {QStringLiteral("maximum"), setting.most}};
    return {{QStringLiteral("anyOf"), QJsonArray{zero, number}}};
}

QJsonObject valueSchema(const CatalogueSetting &setting)
{
    QJsonObject schema = setting.type() == QJsonValue::String ? textSchema(setting.pattern())
                                                              : numberSchema(setting);
    schema.insert(QStringLiteral("description"), setting.meaning);
    return schema;
}

/*! A list, or the name of one in "lists". */
QJsonObject listSchema(const CatalogueSetting &setting)
{
    QJsonObject schema{
        {QStringLiteral("type"), QJsonArray{QStringLiteral("string"), QStringLiteral("array")}},
        {QStringLiteral("items"), valueSchema(setting)},
        {QStringLiteral("minLength"), 1},
        {QStringLiteral("minItems"), setting.length > 0 ? setting.length : 1}};
    if (setting.length > 0) {
        schema.insert(QStringLiteral("maxItems"), setting.length);
    } else {
        schema.insert(QStringLiteral("uniqueItems"), true);
    }
    return schema;
}

QJsonObject detailSchema(const CatalogueDetail &detail)
{
    QJsonObject schema = detail.type() == QJsonValue::String
                             ? textSchema(detail.pattern)
                             : numberSchema(CatalogueSetting::of(CatalogueSetting::VideoBitrate));
    schema.insert(QStringLiteral("description"), detail.meaning);
    return schema;
}

QJsonObject blockSchema(QLatin1String block)
{
    QJsonObject properties;
    for (const CatalogueSetting &setting : CatalogueSetting::all()) {
        const QLatin1String key = setting.keyIn(block);
        if (!key.isEmpty()) {
            properties.insert(key,
                              setting.param == block ? valueSchema(setting) : listSchema(setting));
        }
    }
    if (block == CatalogueBlock::videoParam) {
        for (const CatalogueDetail &detail : CatalogueDetail::all()) {
            properties.insert(detail.key, detailSchema(detail));
        }
    }
    return objectOf(properties);
}

/*! What templates, groups and presets have in common. */
QJsonObject inheritedProperties()
{
    QJsonObject properties;
    for (const CatalogueText &text : CatalogueText::all()) {
        if (text.isInherited) {
            properties.insert(text.key, textSchema(text.pattern));
        }
    }
    for (const QLatin1String block : CatalogueBlock::all) {
        properties.insert(
            block, QJsonObject{{QStringLiteral("$ref"), QStringLiteral("#/definitions/") + block}});
    }
    return properties;
}

QJsonObject definitions()
{
    const QJsonObject ofTemplate = inheritedProperties();
    QJsonObject ofPreset = ofTemplate;
    ofPreset.insert(QStringLiteral("template"), textSchema());
    QJsonObject ofGroup = ofPreset;
    const QJsonObject own = parsed(group);
    for (auto it = own.begin(); it != own.end(); ++it) {
        ofGroup.insert(it.key(), it.value());
    }
    QJsonArray required;
    for (const CatalogueText &text : CatalogueText::all()) {
        if (!text.isInherited) {
            ofPreset.insert(text.key, textSchema(text.pattern));
            required.append(text.key);
        }
    }
    QJsonObject all{
        {QStringLiteral("template"), objectOf(ofTemplate)},
        {QStringLiteral("group"),
         objectOf(ofGroup, {QStringLiteral("name"), QStringLiteral("presets")})},
        {QStringLiteral("preset"), objectOf(ofPreset, required)},
    };
    for (const QLatin1String block : CatalogueBlock::all) {
        all.insert(block, blockSchema(block));
    }
    return all;
}

} // namespace

/*! Prints the JSON Schema of a catalogue file: utility/catalogue/catalogue.schema.json. */
int main()
{
    QJsonObject schema = parsed(frame);
    schema.insert(QStringLiteral("definitions"), definitions());
    const QByteArray json = QJsonDocument(schema).toJson();
    return std::fwrite(json.constData(), 1, size_t(json.size()), stdout) == size_t(json.size()) ? 0
                                                                                                : 1;
}
