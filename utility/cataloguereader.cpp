#include "utility/cataloguereader.h"

#include "utility/cataloguesettings.h"

#include <algorithm>

namespace {

const std::array<QLatin1String, 5> fileKeys{QLatin1String("$schema"), QLatin1String("category"),
                                            QLatin1String("lists"), QLatin1String("templates"),
                                            QLatin1String("groups")};

const QString missing = QStringLiteral("is missing from the preset and its group");

const QString templateKey = QStringLiteral("template");

using Blocks = QVector<QLatin1String>;

/*! What presets with the same group and template start from. */
struct PresetBase
{
    PresetSettings settings;
    Blocks unfinished; //!< those that lack a setting
};

/*! The keys of the settings that a block of a preset lacks. */
QStringList gaps(QLatin1String block, const QVariantMap &preset)
{
    QStringList keys;
    const QVariantMap values = preset.value(block).toMap();
    for (const CatalogueSetting &setting : CatalogueSetting::all()) {
        const QLatin1String key = setting.keyIn(block);
        if (!key.isEmpty() && !values.contains(key)) {
            keys << key;
        }
    }
    return keys;
}

PresetBase baseOf(const PresetSettings &group, const PresetSettings &named)
{
    PresetBase base{group, {}};
    base.settings.add(named);
    std::copy_if(
        CatalogueBlock::all.begin(), CatalogueBlock::all.end(), std::back_inserter(base.unfinished),
        [&base](QLatin1String block) { return !gaps(block, base.settings.values).isEmpty(); });
    return base;
}

class Reader
{
public:
    void read(const CatalogueSource &source);

    CatalogueResult result;

private:
    void readFile(const QJsonObject &file);
    void readGroup(const QString &category, QJsonObject group, const QString &path);
    QVariantList readPresets(const QJsonArray &presets, const PresetSettings *inherited,
                             const QString &path);
    void complete(QVariantMap &preset, const Blocks &unfinished, const QString &path);
    void refuseGaps(QLatin1String block, const QVariantMap &preset, const QString &path);

    CatalogueInspector m_inspector{result.mistakes};
    SettingsReader m_settings{m_inspector};
};

void Reader::read(const CatalogueSource &source)
{
    m_inspector.setSource(source.name);
    if (const auto file = parseSource(source, result.mistakes)) {
        readFile(*file);
    }
}

void Reader::readFile(const QJsonObject &file)
{
    for (auto it = file.constBegin(); it != file.constEnd(); ++it) {
        if (std::find(fileKeys.begin(), fileKeys.end(), it.key()) == fileKeys.end()) {
            m_inspector.noteUnknownKey(it.key());
        }
    }
    m_settings.readLists(m_inspector.optionalObject(file, QStringLiteral("lists")));
    m_settings.readTemplates(m_inspector.optionalObject(file, QStringLiteral("templates")));

    const QString categoryPath = QStringLiteral("category");
    const QString category = m_inspector.text(file.value(categoryPath), categoryPath);
    if (!category.isEmpty() && !result.catalogue.groups.contains(category)) {
        result.catalogue.groups.insert(category, {});
        result.catalogue.categories.append(category);
    }

    const QString groupsPath = QStringLiteral("groups");
    m_inspector.expect(QJsonValue::Array, file.value(groupsPath), groupsPath);
    const QJsonArray groups = file.value(groupsPath).toArray();
    for (int i = 0; i < groups.size(); ++i) {
        const QString path = elementPath(groupsPath, i);
        m_inspector.expect(QJsonValue::Object, groups.at(i), path);
        if (groups.at(i).isObject()) {
            readGroup(category, groups.at(i).toObject(), path);
        }
    }
}

void Reader::readGroup(const QString &category, QJsonObject group, const QString &path)
{
    const int before = m_inspector.refusals();
    const QJsonValue icon = group.take(QStringLiteral("icon"));
    if (!icon.isUndefined()) {
        m_inspector.expect(QJsonValue::String, icon, memberPath(path, QStringLiteral("icon")));
    }
    const QString namePath = memberPath(path, QStringLiteral("name"));
    const QString name = m_inspector.text(group.take(QStringLiteral("name")), namePath);
    if (result.catalogue.presets.contains({category, name})) {
        m_inspector.refuse(
            namePath, QStringLiteral("the category \"%1\" already has a group \"%2\"; move the "
                                     "presets to that group or rename this one")
                          .arg(category, name));
    }
    const QJsonValue presets = group.take(QStringLiteral("presets"));
    const QString presetsPath = memberPath(path, QStringLiteral("presets"));
    m_inspector.expect(QJsonValue::Array, presets, presetsPath);
    const QJsonValue templateName = group.take(templateKey);
    const PresetSettings own = m_settings.readOwn(group, path);
    PresetSettings inherited = m_settings.readTemplate(templateName, memberPath(path, templateKey));
    inherited.add(own);
    const bool isValid = m_inspector.refusals() == before && !category.isEmpty();

    const QVariantList maps =
        readPresets(presets.toArray(), isValid ? &inherited : nullptr, presetsPath);
    const bool hasLostAll = maps.isEmpty() && !presets.toArray().isEmpty();
    if (!isValid || hasLostAll) {
        return;
    }
    result.catalogue.presets.insert({category, name}, maps);
    result.catalogue.groups[category].append(QVariantMap{
        {QStringLiteral("category"), category},
        {QStringLiteral("name"), name},
        {QStringLiteral("icon"), icon.toString()},
    });
    result.groupPlaces.insert({category, name}, m_inspector.placeOf(path));
}

/*! The valid presets. \a inherited is null in an invalid group, whose presets are only checked for
 *  mistakes of their own. */
QVariantList Reader::readPresets(const QJsonArray &presets, const PresetSettings *inherited,
                                 const QString &path)
{
    QVariantList maps;
    QHash<QString, PresetBase> bases; // by the template's name
    for (int i = 0; i < presets.size(); ++i) {
        const int before = m_inspector.refusals();
        const QString presetPath = elementPath(path, i);
        m_inspector.expect(QJsonValue::Object, presets.at(i), presetPath);
        QJsonObject object = presets.at(i).toObject();
        const QJsonValue templateName = object.take(templateKey);
        const PresetSettings own = m_settings.readOwn(object, presetPath);
        const PresetSettings named =
            m_settings.readTemplate(templateName, memberPath(presetPath, templateKey));
        auto base = bases.find(templateName.toString());
        if (base == bases.end()) {
            base =
                bases.insert(templateName.toString(),
                             baseOf(inherited == nullptr ? PresetSettings() : *inherited, named));
        }
        PresetSettings preset = base->settings;
        preset.add(own);
        const QString id = preset.values.value(QStringLiteral("id")).toString();
        if (result.presetPlaces.contains(id)) {
            m_inspector.refuse(
                preset.places.value(QStringLiteral("id")),
                QStringLiteral("\"%1\" is already the id of another preset").arg(id));
        }
        if (inherited == nullptr || m_inspector.refusals() != before) {
            continue;
        }
        complete(preset.values, base->unfinished, presetPath);
        if (m_inspector.refusals() == before) {
            maps.append(preset.values);
            result.presetPlaces.insert(id, preset.places);
        }
    }
    return maps;
}

/*! Adds what a preset can omit, and refuses it if something else is missing. Only the blocks that
 *  its base left unfinished can lack something. */
void Reader::complete(QVariantMap &preset, const Blocks &unfinished, const QString &path)
{
    using namespace CatalogueBlock;
    for (const CatalogueText &text : CatalogueText::all()) {
        if (text.isRequired && !preset.contains(text.key)) {
            m_inspector.refuse(memberPath(path, text.key), missing);
        }
    }
    const bool hasVideo = preset.contains(videoParam) || preset.contains(videoOptions);
    const bool hasAudio = preset.contains(audioParam) || preset.contains(audioOptions);
    if (!hasVideo && !hasAudio) {
        m_inspector.refuse(path, QStringLiteral("has neither video nor audio settings"));
    }
    for (const QLatin1String block : unfinished) {
        const bool isVideoBlock = block == videoParam || block == videoOptions;
        if (isVideoBlock ? hasVideo : hasAudio) {
            refuseGaps(block, preset, path);
        }
    }
    if (!hasAudio) {
        preset.insert(audioParam, QVariantMap());
        preset.insert(audioOptions, QVariantMap());
    }
}

void Reader::refuseGaps(QLatin1String block, const QVariantMap &preset, const QString &path)
{
    const QString blockPath = memberPath(path, block);
    if (!preset.contains(block)) {
        m_inspector.refuse(blockPath, missing);
        return;
    }
    const QStringList keys = gaps(block, preset);
    for (const QString &key : keys) {
        m_inspector.refuse(memberPath(blockPath, key), missing);
    }
}

} // namespace

CatalogueResult readCatalogue(const QVector<CatalogueSource> &sources)
{
    Reader reader;
    for (const CatalogueSource &source : sources) {
        reader.read(source);
    }
    return reader.result;
}
