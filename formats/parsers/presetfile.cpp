#include "formats/parsers/presetfile.h"

#include "formats/models/formatlistmodel.h"

#include <QDebug>
#include <QFile>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

namespace {

// Turns JSON into variants; arrays of plain values that are equal become one shared list.
class Decoder
{
public:
    QVariantList decode(const QJsonArray &array)
    {
        if (array.isEmpty() || array.first().isObject() || array.first().isArray()) {
            return convert(array);
        }
        auto shared = m_lists.find(array);
        if (shared == m_lists.end()) {
            shared = m_lists.insert(array, convert(array));
        }
        return *shared;
    }

private:
    QVariantList convert(const QJsonArray &array)
    {
        QVariantList list;
        list.reserve(array.size());
        for (const QJsonValue &value : array) {
            list.append(decode(value));
        }
        return list;
    }

    QVariantMap decode(const QJsonObject &object)
    {
        QVariantMap map;
        for (auto it = object.begin(); it != object.end(); ++it) {
            map.insert(map.cend(), it.key(), decode(it.value()));
        }
        return map;
    }

    QVariant decode(const QJsonValue &value)
    {
        switch (value.type()) {
        case QJsonValue::Array:
            return decode(value.toArray());
        case QJsonValue::Object:
            return decode(value.toObject());
        default:
            return value.toVariant();
        }
    }

    QHash<QJsonArray, QVariantList> m_lists;
};

} // namespace

namespace PresetFile {

QVariantList read(const char *operation, const char *openFailure, const QString &path)
{
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly)) {
        qDebug() << operation << openFailure << path;
        return {};
    }
    const QByteArray json = file.readAll();
    if (json.isEmpty()) {
        qDebug() << operation << "-->strJson is empty!";
        return {};
    }
    const QVariantList elements = decode(json);
    if (elements.isEmpty()) {
        qDebug() << operation << "-->varJson is null!";
    }
    return elements;
}

QVariantList decode(const QByteArray &json)
{
    return Decoder().decode(QJsonDocument::fromJson(json).array());
}

FormatDetailModel &addFormat(FormatListModel &model, const QVariantMap &object)
{
    FormatListModelData format;
    format.title = object.value(QStringLiteral("title")).toString();
    format.icon = object.value(QStringLiteral("icon")).toString();
    format.tag = object.value(QStringLiteral("tag")).toString();
    model.addModeInfo(format);
    return *model.formatDetailModel(format.title);
}

FormatDetailModel &findOrAddFormat(FormatListModel &model, const QVariantMap &object)
{
    const QString title = object.value(QStringLiteral("title")).toString();
    FormatDetailModel *presets = model.formatDetailModel(title);
    return presets ? *presets : addFormat(model, object);
}

void importFormats(const QVariantList &formats, FormatListModel &model,
                   FormatDetailModel &(*presetsOf)(FormatListModel &, const QVariantMap &),
                   const std::function<void(FormatDetailModel &, const QVariantMap &)> &addPreset)
{
    for (const QVariant &format : formats) {
        const QVariantMap object = format.toMap();
        FormatDetailModel &presets = presetsOf(model, object);
        const QVariantList group = object.value(QStringLiteral("group")).toList();
        for (const QVariant &entry : group) {
            addPreset(presets, entry.toMap());
        }
    }
}

void readMembers(FormatDetailModelData &preset, const QVariantMap &object,
                 std::initializer_list<PresetFields::Member> members)
{
    for (const PresetFields::Member &member : members) {
        PresetFields::write(preset, member,
                            object.value(PresetFields::key(PresetFields::of(member))));
    }
}

QVariantList split(const QString &text, QChar separator)
{
    QVariantList parts;
    const QStringList texts = text.split(separator);
    for (const QString &part : texts) {
        parts.append(part);
    }
    return parts;
}

} // namespace PresetFile
