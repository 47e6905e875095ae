#include "utility/cataloguereader.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QSet>

#include <algorithm>
#include <array>

namespace {

struct Setting
{
    QLatin1String block;
    QLatin1String key;
    QJsonValue::Type type; //!< of a list, that of its elements
};

const QLatin1String videoParam("videoParam");
const QLatin1String videoOptions("videoOptions");
const QLatin1String audioParam("audioParam");
const QLatin1String audioOptions("audioOptions");
const QLatin1String levelList("levelList");

const std::array<Setting, 17> settings{{
    {videoParam, QLatin1String("encoder"), QJsonValue::String},
    {videoParam, QLatin1String("resolution"), QJsonValue::String},
    {videoParam, QLatin1String("frameRate"), QJsonValue::Double},
    {videoParam, QLatin1String("bitrateKbps"), QJsonValue::Double},
    {videoOptions, QLatin1String("encoderList"), QJsonValue::String},
    {videoOptions, QLatin1String("resolutionList"), QJsonValue::String},
    {videoOptions, QLatin1String("frameRateList"), QJsonValue::Double},
    {videoOptions, QLatin1String("bitrateKbpsList"), QJsonValue::Double},
    {videoOptions, levelList, QJsonValue::Double},
    {audioParam, QLatin1String("encoder"), QJsonValue::String},
    {audioParam, QLatin1String("channel"), QJsonValue::Double},
    {audioParam, QLatin1String("sampleRate"), QJsonValue::Double},
    {audioParam, QLatin1String("bitrateKbps"), QJsonValue::Double},
    {audioOptions, QLatin1String("encoderList"), QJsonValue::String},
    {audioOptions, QLatin1String("channelList"), QJsonValue::Double},
    {audioOptions, QLatin1String("sampleRateList"), QJsonValue::Double},
    {audioOptions, QLatin1String("bitrateKbpsList"), QJsonValue::Double},
}};

const std::array<QLatin1String, 4> blocks{videoParam, videoOptions, audioParam, audioOptions};
const std::array<QLatin1String, 3> presetTexts{QLatin1String("id"), QLatin1String("extension"),
                                               QLatin1String("title")};

QString typeName(QJsonValue::Type type)
{
    switch (type) {
    case QJsonValue::Null:
        return QStringLiteral("null");
    case QJsonValue::Bool:
        return QStringLiteral("true or false");
    case QJsonValue::Double:
        return QStringLiteral("a number");
    case QJsonValue::String:
        return QStringLiteral("a text");
    case QJsonValue::Array:
        return QStringLiteral("a list");
    case QJsonValue::Object:
        return QStringLiteral("an object");
    case QJsonValue::Undefined:
        break;
    }
    return QStringLiteral("missing");
}

QString lineAndColumn(const QByteArray &json, int offset)
{
    const int lineStart = offset > 0 ? json.lastIndexOf('\n', offset - 1) + 1 : 0;
    return QStringLiteral("%1:%2")
        .arg(json.left(offset).count('\n') + 1)
        .arg(QString::fromUtf8(json.mid(lineStart, offset - lineStart)).toUcs4().size() + 1);
}

// Qt says "unterminated" also where a quote or a comma is missing.
QString reasonOf(const QJsonParseError &error)
{
    switch (error.error) {
    case QJsonParseError::UnterminatedObject:
        return QStringLiteral("expected a comma, a closing brace or a key in double quotes");
    case QJsonParseError::UnterminatedArray:
        return QStringLiteral("expected a comma or a closing bracket");
    default:
        return error.errorString();
    }
}

QString syntaxError(const QByteArray &json, const QJsonParseError &error)
{
    if (json.trimmed().isEmpty()) {
        return QStringLiteral("1:1: the file is empty");
    }
    // Qt has already read the byte that it rejects, except behind the end of the document.
    const int offset =
        error.error == QJsonParseError::GarbageAtEnd ? error.offset : std::max(0, error.offset - 1);
    return QStringLiteral("%1: %2").arg(lineAndColumn(json, offset), reasonOf(error));
}

QString member(const QString &path, const QString &key)
{
    return path + QLatin1Char('.') + key;
}

QString element(const QString &path, int index)
{
    return path + QLatin1Char('[') + QString::number(index) + QLatin1Char(']');
}

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

// Keeps the first error; what it reads after that is thrown away.
class Reader
{
public:
    void read(const CatalogueSource &source);

    CatalogueResult result;

private:
    void readFile(const QJsonObject &file);
    void readLists(const QJsonObject &lists);
    void readTemplates(const QJsonObject &templates);
    void readGroup(const QString &category, QJsonObject group, const QString &path);
    QVariantMap readWithTemplate(QJsonObject from, const QString &path);
    QVariantMap readSettings(const QJsonObject &from, const QString &path);
    QVariantMap readBlock(QLatin1String block, const QJsonValue &value, const QString &path);
    QVariantList readOptions(const QJsonValue &value, QJsonValue::Type type, const QString &path);
    void complete(QVariantMap &preset, const QString &path);

    QVariantList shared(const QJsonArray &array);
    QJsonObject objectOrNone(const QJsonObject &file, const QString &key);
    QString text(const QJsonValue &value, const QString &path);
    void expect(QJsonValue::Type type, const QJsonValue &value, const QString &path);
    void expectElements(QJsonValue::Type type, const QJsonArray &array, const QString &path);
    void raise(const QString &path, const QString &reason);

    QString m_source;
    QHash<QString, QJsonArray> m_lists;
    QHash<QString, QVariantMap> m_templates;
    QHash<QByteArray, QVariantList> m_shared;
    QSet<QString> m_ids;
};

void Reader::read(const CatalogueSource &source)
{
    m_source = source.name;
    QJsonParseError error;
    const QJsonDocument document = QJsonDocument::fromJson(source.json, &error);
    if (error.error != QJsonParseError::NoError) {
        result.error = QStringLiteral("%1:%2").arg(m_source, syntaxError(source.json, error));
    } else if (!document.isObject()) {
        result.error =
            QStringLiteral("%1: the file must hold an object but holds a list").arg(m_source);
    } else {
        readFile(document.object());
    }
}

void Reader::readFile(const QJsonObject &file)
{
    readLists(objectOrNone(file, QStringLiteral("lists")));
    readTemplates(objectOrNone(file, QStringLiteral("templates")));

    const QString categoryPath = QStringLiteral("category");
    const QString category = text(file.value(categoryPath), categoryPath);
    if (!result.catalogue.groups.contains(category)) {
        result.catalogue.groups.insert(category, {});
        result.catalogue.categories.append(category);
    }

    const QString groupsPath = QStringLiteral("groups");
    expect(QJsonValue::Array, file.value(groupsPath), groupsPath);
    const QJsonArray groups = file.value(groupsPath).toArray();
    for (int i = 0; i < groups.size(); ++i) {
        const QString path = element(groupsPath, i);
        expect(QJsonValue::Object, groups.at(i), path);
        readGroup(category, groups.at(i).toObject(), path);
    }
}

void Reader::readLists(const QJsonObject &lists)
{
    for (auto it = lists.constBegin(); it != lists.constEnd(); ++it) {
        const QString path = member(QStringLiteral("lists"), it.key());
        expect(QJsonValue::Array, it.value(), path);
        const QJsonArray list = it.value().toArray();
        expectElements(list.first().isString() ? QJsonValue::String : QJsonValue::Double, list,
                       path);
        m_lists.insert(it.key(), list);
    }
}

void Reader::readTemplates(const QJsonObject &templates)
{
    for (auto it = templates.constBegin(); it != templates.constEnd(); ++it) {
        const QString path = member(QStringLiteral("templates"), it.key());
        expect(QJsonValue::Object, it.value(), path);
        m_templates.insert(it.key(), readSettings(it.value().toObject(), path));
    }
}

void Reader::readGroup(const QString &category, QJsonObject group, const QString &path)
{
    const QString namePath = member(path, QStringLiteral("name"));
    const QString name = text(group.take(QStringLiteral("name")), namePath);
    if (result.catalogue.presets.contains({category, name})) {
        raise(namePath, QStringLiteral("the category \"%1\" already has a group \"%2\"; put the "
                                       "presets into that one or give this one a name of its own")
                            .arg(category, name));
    }

    const QJsonValue icon = group.take(QStringLiteral("icon"));
    if (!icon.isUndefined()) {
        expect(QJsonValue::String, icon, member(path, QStringLiteral("icon")));
    }

    const QJsonValue list = group.take(QStringLiteral("presets"));
    const QString presetsPath = member(path, QStringLiteral("presets"));
    expect(QJsonValue::Array, list, presetsPath);

    const QVariantMap usual = readWithTemplate(group, path);
    QVariantList maps;
    const QJsonArray presets = list.toArray();
    for (int i = 0; i < presets.size(); ++i) {
        const QString presetPath = element(presetsPath, i);
        expect(QJsonValue::Object, presets.at(i), presetPath);
        QVariantMap map = merged(usual, readWithTemplate(presets.at(i).toObject(), presetPath));
        complete(map, presetPath);
        maps.append(map);
    }

    result.catalogue.presets.insert({category, name}, maps);
    result.catalogue.groups[category].append(QVariantMap{
        {QStringLiteral("category"), category},
        {QStringLiteral("name"), name},
        {QStringLiteral("icon"), icon.toString()},
    });
}

/*! The settings of a group or a preset, over those of the template that it names. */
QVariantMap Reader::readWithTemplate(QJsonObject from, const QString &path)
{
    const QJsonValue base = from.take(QStringLiteral("template"));
    const QVariantMap own = readSettings(from, path);
    if (base.isUndefined()) {
        return own;
    }
    const QString basePath = member(path, QStringLiteral("template"));
    const QString name = text(base, basePath);
    if (!m_templates.contains(name)) {
        raise(basePath, QStringLiteral("there is no template \"%1\" in \"templates\"").arg(name));
    }
    return merged(m_templates.value(name), own);
}

/*! The settings of a group, a template or a preset; further keys travel along as they are. */
QVariantMap Reader::readSettings(const QJsonObject &from, const QString &path)
{
    QVariantMap map;
    for (auto it = from.constBegin(); it != from.constEnd(); ++it) {
        const QString valuePath = member(path, it.key());
        const auto block = std::find(blocks.cbegin(), blocks.cend(), it.key());
        if (block != blocks.cend()) {
            map.insert(it.key(), readBlock(*block, it.value(), valuePath));
        } else if (std::find(presetTexts.cbegin(), presetTexts.cend(), it.key()) !=
                   presetTexts.cend()) {
            map.insert(it.key(), text(it.value(), valuePath));
        } else {
            map.insert(it.key(), it.value().toVariant());
        }
    }
    return map;
}

QVariantMap Reader::readBlock(QLatin1String block, const QJsonValue &value, const QString &path)
{
    expect(QJsonValue::Object, value, path);
    const QJsonObject object = value.toObject();
    QVariantMap map = object.toVariantMap();
    for (const Setting &setting : settings) {
        const auto found = object.constFind(setting.key);
        if (setting.block != block || found == object.constEnd()) {
            continue;
        }
        const QString valuePath = member(path, setting.key);
        if (block == videoParam || block == audioParam) {
            expect(setting.type, *found, valuePath);
            continue;
        }
        const QVariantList options = readOptions(*found, setting.type, valuePath);
        if (setting.key == levelList && options.size() != 3) {
            raise(valuePath, QStringLiteral("must hold three bitrates: high, middle and low"));
        }
        map.insert(setting.key, options);
    }
    return map;
}

/*! An option list, written as such or as the name of a list. */
QVariantList Reader::readOptions(const QJsonValue &value, QJsonValue::Type type,
                                 const QString &path)
{
    const QString name = value.toString();
    if (value.isString() && !m_lists.contains(name)) {
        raise(path, QStringLiteral("there is no list \"%1\" in \"lists\"").arg(name));
    } else if (!value.isString()) {
        expect(QJsonValue::Array, value, path);
    }
    const QJsonArray array = value.isString() ? m_lists.value(name) : value.toArray();
    expectElements(type, array, path);
    return shared(array);
}

/*! Adds what the preset may leave out; raises an error for what it may not. */
void Reader::complete(QVariantMap &preset, const QString &path)
{
    for (const QLatin1String key : presetTexts) {
        if (!preset.contains(key)) {
            raise(member(path, key), QStringLiteral("is missing from the preset and its group"));
        }
    }
    const QString id = preset.value(QStringLiteral("id")).toString();
    if (m_ids.contains(id)) {
        raise(member(path, QStringLiteral("id")),
              QStringLiteral("\"%1\" is already the id of another preset").arg(id));
    }
    m_ids.insert(id);

    const bool hasVideo = preset.contains(videoParam) || preset.contains(videoOptions);
    const bool hasAudio = preset.contains(audioParam) || preset.contains(audioOptions);
    if (!hasVideo && !hasAudio) {
        raise(path, QStringLiteral("has neither video nor audio settings"));
    }
    for (const Setting &setting : settings) {
        const bool isOfVideo = setting.block == videoParam || setting.block == videoOptions;
        if ((isOfVideo ? hasVideo : hasAudio) &&
            !preset.value(setting.block).toMap().contains(setting.key)) {
            raise(member(member(path, setting.block), setting.key),
                  QStringLiteral("is missing from the preset and its group"));
        }
    }
    if (!hasAudio) {
        preset.insert(audioParam, QVariantMap());
        preset.insert(audioOptions, QVariantMap());
    }
}

// By the JSON text, as the variants "0" and 0 compare equal.
QVariantList Reader::shared(const QJsonArray &array)
{
    QVariantList &list = m_shared[QJsonDocument(array).toJson(QJsonDocument::Compact)];
    if (list.isEmpty()) {
        list = array.toVariantList();
    }
    return list;
}

QJsonObject Reader::objectOrNone(const QJsonObject &file, const QString &key)
{
    if (file.contains(key)) {
        expect(QJsonValue::Object, file.value(key), key);
    }
    return file.value(key).toObject();
}

QString Reader::text(const QJsonValue &value, const QString &path)
{
    expect(QJsonValue::String, value, path);
    if (value.toString().isEmpty()) {
        raise(path, QStringLiteral("must not be empty"));
    }
    return value.toString();
}

void Reader::expect(QJsonValue::Type type, const QJsonValue &value, const QString &path)
{
    if (value.type() != type) {
        raise(path,
              QStringLiteral("must be %1 but is %2").arg(typeName(type), typeName(value.type())));
    }
}

void Reader::expectElements(QJsonValue::Type type, const QJsonArray &array, const QString &path)
{
    for (int i = 0; i < array.size(); ++i) {
        expect(type, array.at(i), element(path, i));
    }
}

void Reader::raise(const QString &path, const QString &reason)
{
    if (result.error.isEmpty()) {
        result.error = QStringLiteral("%1: %2: %3").arg(m_source, path, reason);
    }
}

} // namespace

CatalogueResult readCatalogue(const QVector<CatalogueSource> &sources)
{
    Reader reader;
    for (const CatalogueSource &source : sources) {
        reader.read(source);
        if (!reader.result.error.isEmpty()) {
            return {{}, reader.result.error};
        }
    }
    return reader.result;
}
