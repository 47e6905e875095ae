#include "formats/parsers/presetfile_p.h"

#include "formats/models/formatlistmodel.h"

#include <QDebug>
#include <QFile>
#include <QJsonDocument>

namespace {

// Converts JSON to variants; equal arrays of plain values share their data.
class Decoder
{
public:
    QVariantMap decode(const QJsonObject &object)
    {
        QVariantMap map;
        for (auto it = object.begin(); it != object.end(); ++it) {
            map.insert(map.cend(), it.key(), decode(it.value()));
        }
        return map;
    }

private:
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

    QVariantList convert(const QJsonArray &array)
    {
        QVariantList list;
        list.reserve(array.size());
        for (const QJsonValue &value : array) {
            list.append(decode(value));
        }
        return list;
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

QString textOf(const QJsonObject &object, QLatin1String key)
{
    return object.value(key).toVariant().toString();
}

const QLatin1String titleKey("title");

} // namespace

namespace PresetFile {

QJsonArray read(const char *operation, const char *openFailure, const QString &path)
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
    QJsonArray elements = QJsonDocument::fromJson(json).array();
    if (elements.isEmpty()) {
        qDebug() << operation << "-->varJson is null!";
    }
    return elements;
}

FormatDetailModel &addFormat(FormatListModel &model, const QJsonObject &format)
{
    FormatListModelData data;
    data.title = textOf(format, titleKey);
    data.icon = textOf(format, QLatin1String("icon"));
    data.tag = textOf(format, QLatin1String("tag"));
    model.addModeInfo(data);
    return *model.formatDetailModel(data.title);
}

FormatDetailModel &findOrAddFormat(FormatListModel &model, const QJsonObject &format)
{
    FormatDetailModel *presets = model.formatDetailModel(textOf(format, titleKey));
    return presets ? *presets : addFormat(model, format);
}

void importFormats(const QJsonArray &formats, FormatListModel &model,
                   FormatDetailModel &(*presetsOf)(FormatListModel &, const QJsonObject &),
                   const std::function<void(FormatDetailModel &, const QVariantMap &)> &addPreset)
{
    Decoder decoder;
    for (const QJsonValue &element : formats) {
        const QJsonObject format = element.toObject();
        FormatDetailModel &presets = presetsOf(model, format);
        const QJsonArray group = format.value(QLatin1String("group")).toArray();
        for (const QJsonValue &entry : group) {
            addPreset(presets, decoder.decode(entry.toObject()));
        }
    }
}

void importPresets(const QJsonArray &entries,
                   const std::function<void(const QVariantMap &)> &addPreset)
{
    Decoder decoder;
    for (const QJsonValue &entry : entries) {
        addPreset(decoder.decode(entry.toObject()));
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
