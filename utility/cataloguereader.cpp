#include "utility/cataloguereader.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QSet>

#include <algorithm>
#include <array>
#include <optional>

namespace {

struct SettingKey
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

const std::array<SettingKey, 17> settingsKeys{{
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
const std::array<QLatin1String, 5> fileKeys{QLatin1String("$schema"), QLatin1String("category"),
                                            QLatin1String("lists"), QLatin1String("templates"),
                                            QLatin1String("groups")};
const std::array<QLatin1String, 3> presetTexts{QLatin1String("id"), QLatin1String("extension"),
                                               QLatin1String("title")};

const QString missing = QStringLiteral("is missing from the preset and its group");

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

CatalogueMistake syntaxMistake(const CatalogueSource &source, const QJsonParseError &error)
{
    if (source.json.trimmed().isEmpty()) {
        return {{source.name, {}, QStringLiteral("1:1")}, QStringLiteral("the file is empty")};
    }
    // Qt has already read the byte that it rejects, except behind the end of the document.
    const int offset =
        error.error == QJsonParseError::GarbageAtEnd ? error.offset : std::max(0, error.offset - 1);
    return {{source.name, {}, lineAndColumn(source.json, offset)}, reasonOf(error)};
}

QString member(const QString &path, const QString &key)
{
    return path + QLatin1Char('.') + key;
}

QString element(const QString &path, int index)
{
    return path + QLatin1Char('[') + QString::number(index) + QLatin1Char(']');
}

template <typename Names>
bool isIn(const Names &names, const QString &name)
{
    return std::find(names.cbegin(), names.cend(), name) != names.cend();
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

/*! What a group, a template or a preset states, and where. */
struct Settings
{
    QVariantMap values;
    PresetPlaces places;

    void add(const Settings &over)
    {
        values = merged(values, over.values);
        for (auto it = over.places.cbegin(); it != over.places.cend(); ++it) {
            places.insert(it.key(), *it);
        }
    }
};

/*! A list of values, and where it stands. */
struct OptionList
{
    QJsonArray values;
    CataloguePlace place;
};

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
    QVariantList readPresets(const QJsonArray &presets, const Settings *usual, const QString &path);
    Settings readWithTemplate(QJsonObject from, const QString &path);
    Settings readSettings(const QJsonObject &from, const QString &path);
    void readBlock(QLatin1String block, const QJsonValue &value, const QString &path,
                   Settings &settings);
    OptionList readOptions(const QJsonValue &value, QJsonValue::Type type, const QString &path);
    void complete(QVariantMap &preset, const QString &path);
    void completeBlock(QLatin1String block, const QVariantMap &preset, const QString &path);

    QVariantList shared(const QJsonArray &array);
    QJsonObject objectOrNone(const QJsonObject &file, const QString &key);
    QString text(const QJsonValue &value, const QString &path);
    void expect(QJsonValue::Type type, const QJsonValue &value, const QString &path);
    void expectElements(QJsonValue::Type type, const QJsonArray &array, const QString &path);

    /*! The value that a name stands for; empty and refused where there is none. */
    template <typename Value>
    Value named(const QHash<QString, std::optional<Value>> &values, const QString &name,
                const QString &refusal, const QString &path);
    void refuse(const QString &path, const QString &reason);
    void refuse(const CataloguePlace &place, const QString &reason);
    void noteFurtherKey(const QString &path);

    QString m_source;
    // Without a value where that is wrong: it is named already where it stands.
    QHash<QString, std::optional<OptionList>> m_lists;
    QHash<QString, std::optional<Settings>> m_templates;
    QHash<QByteArray, QVariantList> m_shared;
    int m_refusals = 0;
};

void Reader::read(const CatalogueSource &source)
{
    m_source = source.name;
    if (!source.unreadable.isEmpty()) {
        refuse(QString(), source.unreadable);
        return;
    }
    QJsonParseError error;
    const QJsonDocument document = QJsonDocument::fromJson(source.json, &error);
    if (error.error != QJsonParseError::NoError) {
        result.mistakes.append(syntaxMistake(source, error));
    } else if (!document.isObject()) {
        refuse(QString(), QStringLiteral("the file must hold an object but holds a list"));
    } else {
        readFile(document.object());
    }
}

void Reader::readFile(const QJsonObject &file)
{
    for (auto it = file.constBegin(); it != file.constEnd(); ++it) {
        if (!isIn(fileKeys, it.key())) {
            noteFurtherKey(it.key());
        }
    }
    readLists(objectOrNone(file, QStringLiteral("lists")));
    readTemplates(objectOrNone(file, QStringLiteral("templates")));

    const QString categoryPath = QStringLiteral("category");
    const QString category = text(file.value(categoryPath), categoryPath);
    if (!category.isEmpty() && !result.catalogue.groups.contains(category)) {
        result.catalogue.groups.insert(category, {});
        result.catalogue.categories.append(category);
    }

    const QString groupsPath = QStringLiteral("groups");
    expect(QJsonValue::Array, file.value(groupsPath), groupsPath);
    const QJsonArray groups = file.value(groupsPath).toArray();
    for (int i = 0; i < groups.size(); ++i) {
        const QString path = element(groupsPath, i);
        expect(QJsonValue::Object, groups.at(i), path);
        if (groups.at(i).isObject()) {
            readGroup(category, groups.at(i).toObject(), path);
        }
    }
}

void Reader::readLists(const QJsonObject &lists)
{
    for (auto it = lists.constBegin(); it != lists.constEnd(); ++it) {
        const int before = m_refusals;
        const QString path = member(QStringLiteral("lists"), it.key());
        expect(QJsonValue::Array, it.value(), path);
        const QJsonArray list = it.value().toArray();
        expectElements(list.first().isString() ? QJsonValue::String : QJsonValue::Double, list,
                       path);
        m_lists.insert(it.key(), m_refusals == before
                                     ? std::make_optional(OptionList{list, {m_source, path}})
                                     : std::nullopt);
    }
}

void Reader::readTemplates(const QJsonObject &templates)
{
    for (auto it = templates.constBegin(); it != templates.constEnd(); ++it) {
        const int before = m_refusals;
        const QString path = member(QStringLiteral("templates"), it.key());
        expect(QJsonValue::Object, it.value(), path);
        const Settings settings = readSettings(it.value().toObject(), path);
        m_templates.insert(it.key(),
                           m_refusals == before ? std::make_optional(settings) : std::nullopt);
    }
}

void Reader::readGroup(const QString &category, QJsonObject group, const QString &path)
{
    const int before = m_refusals;
    const QJsonValue icon = group.take(QStringLiteral("icon"));
    if (!icon.isUndefined()) {
        expect(QJsonValue::String, icon, member(path, QStringLiteral("icon")));
    }
    const QString namePath = member(path, QStringLiteral("name"));
    const QString name = text(group.take(QStringLiteral("name")), namePath);
    if (result.catalogue.presets.contains({category, name})) {
        refuse(namePath, QStringLiteral("the category \"%1\" already has a group \"%2\"; put the "
                                        "presets into that one or give this one a name of its own")
                             .arg(category, name));
    }
    const QJsonValue presets = group.take(QStringLiteral("presets"));
    const QString presetsPath = member(path, QStringLiteral("presets"));
    expect(QJsonValue::Array, presets, presetsPath);
    const Settings usual = readWithTemplate(group, path);
    const bool isSound = m_refusals == before && !category.isEmpty();

    const QVariantList maps =
        readPresets(presets.toArray(), isSound ? &usual : nullptr, presetsPath);
    const bool hasLostAll = maps.isEmpty() && !presets.toArray().isEmpty();
    if (!isSound || hasLostAll) {
        return;
    }
    result.catalogue.presets.insert({category, name}, maps);
    result.catalogue.groups[category].append(QVariantMap{
        {QStringLiteral("category"), category},
        {QStringLiteral("name"), name},
        {QStringLiteral("icon"), icon.toString()},
    });
    result.groupPlaces.insert({category, name}, {m_source, path});
}

/*! The sound presets. Without usual settings, those of a group that is wrong: only their own
 *  mistakes are looked for. */
QVariantList Reader::readPresets(const QJsonArray &presets, const Settings *usual,
                                 const QString &path)
{
    QVariantList maps;
    for (int i = 0; i < presets.size(); ++i) {
        const int before = m_refusals;
        const QString presetPath = element(path, i);
        expect(QJsonValue::Object, presets.at(i), presetPath);
        Settings preset = usual == nullptr ? Settings() : *usual;
        preset.add(readWithTemplate(presets.at(i).toObject(), presetPath));
        const QString id = preset.values.value(QStringLiteral("id")).toString();
        if (result.presetPlaces.contains(id)) {
            refuse(preset.places.value(QStringLiteral("id")),
                   QStringLiteral("\"%1\" is already the id of another preset").arg(id));
        }
        if (usual == nullptr || m_refusals != before) {
            continue;
        }
        complete(preset.values, presetPath);
        if (m_refusals == before) {
            maps.append(preset.values);
            result.presetPlaces.insert(id, preset.places);
        }
    }
    return maps;
}

/*! The settings of a group or a preset, over those of the template that it names. */
Settings Reader::readWithTemplate(QJsonObject from, const QString &path)
{
    const QJsonValue base = from.take(QStringLiteral("template"));
    Settings own = readSettings(from, path);
    if (base.isUndefined()) {
        return own;
    }
    const QString basePath = member(path, QStringLiteral("template"));
    const QString name = text(base, basePath);
    if (name.isEmpty()) {
        return own;
    }
    Settings settings =
        named(m_templates, name, QStringLiteral("there is no template \"%1\" in \"templates\""),
              basePath);
    settings.add(own);
    return settings;
}

/*! The settings of a group, a template or a preset; further keys travel along as they are. */
Settings Reader::readSettings(const QJsonObject &from, const QString &path)
{
    Settings settings;
    for (auto it = from.constBegin(); it != from.constEnd(); ++it) {
        const QString valuePath = member(path, it.key());
        const auto block = std::find(blocks.cbegin(), blocks.cend(), it.key());
        if (block != blocks.cend()) {
            readBlock(*block, it.value(), valuePath, settings);
            continue;
        }
        const bool isText = isIn(presetTexts, it.key());
        settings.values.insert(it.key(),
                               isText ? text(it.value(), valuePath) : it.value().toVariant());
        settings.places.insert(it.key(), {m_source, valuePath});
        if (!isText) {
            noteFurtherKey(valuePath);
        }
    }
    return settings;
}

void Reader::readBlock(QLatin1String block, const QJsonValue &value, const QString &path,
                       Settings &settings)
{
    expect(QJsonValue::Object, value, path);
    const QJsonObject object = value.toObject();
    QVariantMap map = object.toVariantMap();
    for (auto it = object.constBegin(); it != object.constEnd(); ++it) {
        const QString valuePath = member(path, it.key());
        CataloguePlace &place = settings.places[member(block, it.key())];
        place = {m_source, valuePath};
        const auto known = std::find_if(
            settingsKeys.cbegin(), settingsKeys.cend(), [&](const SettingKey &setting) {
                return setting.block == block && setting.key == it.key();
            });
        if (known == settingsKeys.cend()) {
            noteFurtherKey(valuePath);
        } else if (block == videoParam || block == audioParam) {
            expect(known->type, it.value(), valuePath);
        } else {
            const int before = m_refusals;
            const OptionList options = readOptions(it.value(), known->type, valuePath);
            if (known->key == levelList && options.values.size() != 3 && m_refusals == before) {
                refuse(valuePath, QStringLiteral("must hold three bitrates: high, middle and low"));
            }
            place = options.place;
            map.insert(it.key(), shared(options.values));
        }
    }
    settings.values.insert(block, map);
}

/*! An option list, written as such or as the name of a list. */
OptionList Reader::readOptions(const QJsonValue &value, QJsonValue::Type type, const QString &path)
{
    OptionList list{value.toArray(), {m_source, path}};
    if (value.isString()) {
        list = named(m_lists, value.toString(),
                     QStringLiteral("there is no list \"%1\" in \"lists\""), path);
    } else {
        expect(QJsonValue::Array, value, path);
    }
    expectElements(type, list.values, path);
    return list;
}

/*! Adds what the preset may leave out; refuses it without what it may not. */
void Reader::complete(QVariantMap &preset, const QString &path)
{
    for (const QLatin1String key : presetTexts) {
        if (!preset.contains(key)) {
            refuse(member(path, key), missing);
        }
    }
    const bool hasVideo = preset.contains(videoParam) || preset.contains(videoOptions);
    const bool hasAudio = preset.contains(audioParam) || preset.contains(audioOptions);
    if (!hasVideo && !hasAudio) {
        refuse(path, QStringLiteral("has neither video nor audio settings"));
    }
    for (const QLatin1String block : blocks) {
        const bool isOfVideo = block == videoParam || block == videoOptions;
        if (isOfVideo ? hasVideo : hasAudio) {
            completeBlock(block, preset, path);
        }
    }
    if (!hasAudio) {
        preset.insert(audioParam, QVariantMap());
        preset.insert(audioOptions, QVariantMap());
    }
}

void Reader::completeBlock(QLatin1String block, const QVariantMap &preset, const QString &path)
{
    const QString blockPath = member(path, block);
    if (!preset.contains(block)) {
        refuse(blockPath, missing);
        return;
    }
    const QVariantMap values = preset.value(block).toMap();
    for (const SettingKey &setting : settingsKeys) {
        if (setting.block == block && !values.contains(setting.key)) {
            refuse(member(blockPath, setting.key), missing);
        }
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
    if (value.isString() && value.toString().isEmpty()) {
        refuse(path, QStringLiteral("must not be empty"));
    }
    return value.toString();
}

void Reader::expect(QJsonValue::Type type, const QJsonValue &value, const QString &path)
{
    if (value.type() != type) {
        refuse(path,
               QStringLiteral("must be %1 but is %2").arg(typeName(type), typeName(value.type())));
    }
}

void Reader::expectElements(QJsonValue::Type type, const QJsonArray &array, const QString &path)
{
    for (int i = 0; i < array.size(); ++i) {
        expect(type, array.at(i), element(path, i));
    }
}

template <typename Value>
Value Reader::named(const QHash<QString, std::optional<Value>> &values, const QString &name,
                    const QString &refusal, const QString &path)
{
    const auto found = values.constFind(name);
    if (found == values.constEnd()) {
        refuse(path, refusal.arg(name));
        return {};
    }
    if (!*found) {
        ++m_refusals;
    }
    return found->value_or(Value());
}

void Reader::refuse(const QString &path, const QString &reason)
{
    refuse(CataloguePlace{m_source, path}, reason);
}

void Reader::refuse(const CataloguePlace &place, const QString &reason)
{
    ++m_refusals;
    result.mistakes.append({place, reason});
}

void Reader::noteFurtherKey(const QString &path)
{
    result.mistakes.append({{m_source, path}, QStringLiteral("is none of the known keys"), true});
}

} // namespace

QString CatalogueMistake::text() const
{
    QString line = place.source;
    if (!place.position.isEmpty()) {
        line += QLatin1Char(':') + place.position;
    }
    line += QStringLiteral(": ");
    if (!place.path.isEmpty()) {
        line += place.path + QStringLiteral(": ");
    }
    line += reason;
    // Names and keys may hold line breaks, what moves a terminal's cursor and what turns its text.
    static const QVector<QChar::Category> invisible = {QChar::Other_Control, QChar::Other_Format,
                                                       QChar::Separator_Line,
                                                       QChar::Separator_Paragraph};
    for (QChar &character : line) {
        character = invisible.contains(character.category()) ? QLatin1Char(' ') : character;
    }
    return line;
}

CatalogueResult readCatalogue(const QVector<CatalogueSource> &sources)
{
    Reader reader;
    for (const CatalogueSource &source : sources) {
        reader.read(source);
    }
    return reader.result;
}
