#include "host/catalogue/overlays.h"

#include "host/catalogue/editedcatalogue.h"
#include "host/catalogue/overlayfile.h"
#include "host/catalogue/overlaypreset.h"

#include <QJsonDocument>

namespace {

const QString idKey = QStringLiteral("id");
const QString likeKey = QStringLiteral("like");
const QString templateKey = QStringLiteral("template");
const QString categoryKey = QStringLiteral("category");
const QString groupsKey = QStringLiteral("groups");
const QString presetsKey = QStringLiteral("presets");
const QString formatsKey = QStringLiteral("formats");
const QString hideKey = QStringLiteral("hide");
const QString changeKey = QStringLiteral("change");
const QString aliasesKey = QStringLiteral("aliases");
const QStringList sharedKeys{QStringLiteral("$schema"), categoryKey, QStringLiteral("lists"),
                             QStringLiteral("templates"), groupsKey};

/*! Applies one overlay to a catalogue. */
class Overlay
{
public:
    Overlay(const QString &name, const QJsonObject &json, EditedCatalogue &catalogue)
        : m_catalogue(catalogue)
        , m_file(name, json,
                 [&catalogue](const CatalogueMistake &mistake) { catalogue.note(mistake); })
    {}

    void apply(AliasTable &aliases);

private:
    void hide();
    void change();
    void add();
    void noteAliases(AliasTable &aliases);

    QVector<OverlayPreset> presetsOf(const QJsonArray &presets, const QString &path);
    bool startsFromAnother(OverlayPreset &preset);
    void addGroup(const OverlayReading::Group &group, const OverlayGroup &stated);
    QVector<OverlayPreset> changes();

    EditedCatalogue &m_catalogue;
    OverlayFile m_file;
};

void Overlay::apply(AliasTable &aliases)
{
    m_file.expectOnly(sharedKeys + QStringList{hideKey, changeKey, aliasesKey});
    m_file.expectOnly({presetsKey, formatsKey}, hideKey);
    hide();
    change();
    add();
    noteAliases(aliases);
}

void Overlay::hide()
{
    if (m_file.object(hideKey).isEmpty()) {
        return;
    }
    const QVector<OverlayFile::Text> ids = m_file.texts(hideKey, presetsKey);
    for (const OverlayFile::Text &id : ids) {
        if (m_catalogue.has(id.text)) {
            m_catalogue.remove(id.text);
        } else {
            m_file.refuseUnknown(id.path, id.text);
        }
    }
    const QVector<OverlayFile::Text> names = m_file.texts(hideKey, formatsKey);
    for (const OverlayFile::Text &name : names) {
        if (!m_catalogue.removeGroups(name.text)) {
            m_file.refuse(name.path, QStringLiteral("there is no format \"%1\"; \"vexconvert "
                                                    "formats\" lists them")
                                         .arg(name.text));
        }
    }
}

void Overlay::change()
{
    QJsonObject file = m_file.part(sharedKeys);
    file.insert(categoryKey, changeKey);
    file.remove(groupsKey);
    const OverlayGroup group{
        changeKey, QJsonObject{{QStringLiteral("name"), changeKey}, {presetsKey, QJsonArray()}},
        changes()};
    if (group.presets.isEmpty()) {
        return;
    }
    const OverlayReading reading = readOverlayGroups(m_file.name(), file, {group});
    for (const CatalogueMistake &mistake : reading.mistakes) {
        // add() reads the rest of the file, too.
        if (mistake.place.path.startsWith(memberOf(changeKey, {}))) {
            m_catalogue.note(mistake);
        }
    }
    for (const OverlayReading::Group &read : reading.groups) {
        for (const ReadPreset &preset : read.presets) {
            m_catalogue.replace(preset.values, preset.places);
        }
    }
}

/*! The presets with the changes to them. */
QVector<OverlayPreset> Overlay::changes()
{
    QVector<OverlayPreset> presets;
    const QJsonObject all = m_file.object(changeKey);
    for (auto each = all.begin(); each != all.end(); ++each) {
        const QString &id = each.key();
        const QString path = memberOf(changeKey, id);
        const QJsonObject own = each->toObject();
        if (!m_catalogue.has(id)) {
            m_file.refuseUnknown(path, id);
        } else if (!each->isObject()) {
            m_file.refuse(path, QStringLiteral("must be an object of the values that change"));
        } else if (own.contains(idKey)) {
            m_file.refuse(
                memberOf(path, idKey),
                QStringLiteral("can't be changed; hide the preset, add it again under \"groups\" "
                               "and give it its old id under \"aliases\""));
        } else if (own.contains(templateKey)) {
            m_file.refuse(memberOf(path, templateKey),
                          QStringLiteral("can't be changed; state the values themselves"));
        } else {
            presets.append(
                {path, own, presetToJson(m_catalogue.preset(id)), m_catalogue.places(id)});
        }
    }
    return presets;
}

void Overlay::add()
{
    QJsonObject file = m_file.part(sharedKeys);
    if (!file.contains(groupsKey)) {
        file.insert(categoryKey, groupsKey); // only the lists and templates are there to be read
    }
    QVector<OverlayGroup> groups;
    const QJsonArray list = file.value(groupsKey).toArray();
    for (int i = 0; i < list.size(); ++i) {
        const QString path = elementOf(groupsKey, i);
        groups.append({path, list.at(i),
                       presetsOf(list.at(i).toObject().value(presetsKey).toArray(),
                                 memberOf(path, presetsKey))});
    }
    const OverlayReading reading = readOverlayGroups(m_file.name(), file, groups);
    for (const CatalogueMistake &mistake : reading.mistakes) {
        m_catalogue.note(mistake);
    }
    for (const OverlayReading::Group &group : reading.groups) {
        addGroup(group, groups.at(group.index));
    }
}

/*! The presets of a group, without those that start from an unknown one. */
QVector<OverlayPreset> Overlay::presetsOf(const QJsonArray &presets, const QString &path)
{
    QVector<OverlayPreset> all;
    for (int i = 0; i < presets.size(); ++i) {
        OverlayPreset preset{elementOf(path, i), presets.at(i)};
        if (startsFromAnother(preset)) {
            all.append(preset);
        }
    }
    return all;
}

/*! Gives the preset what it starts from, if it names that; false if it can't. */
bool Overlay::startsFromAnother(OverlayPreset &preset)
{
    QJsonObject own = preset.own.toObject();
    if (!own.contains(likeKey)) {
        return true;
    }
    const QString path = memberOf(preset.path, likeKey);
    const QJsonValue like = own.take(likeKey);
    if (!like.isString()) {
        m_file.refuse(path, QStringLiteral("must be the id of a preset"));
        return false;
    }
    const QString id = like.toString();
    if (own.contains(templateKey)) {
        m_file.refuse(path,
                      QStringLiteral("a preset starts from another one or from a template, not "
                                     "both; leave one of them out"));
        return false;
    }
    if (!m_catalogue.has(id)) {
        m_file.refuseUnknown(path, id);
        return false;
    }
    preset.own = own;
    preset.base = presetToJson(m_catalogue.preset(id));
    preset.base.remove(idKey);
    preset.basePlaces = m_catalogue.places(id);
    return true;
}

void Overlay::addGroup(const OverlayReading::Group &group, const OverlayGroup &stated)
{
    const QString name = stated.own.toObject().value(QStringLiteral("name")).toString();
    const EditedCatalogue::Group key(m_file.part(sharedKeys).value(categoryKey).toString(), name);
    QVector<ReadPreset> presets;
    for (const ReadPreset &preset : group.presets) {
        const QString id = preset.values.value(idKey).toString();
        if (m_catalogue.has(id)) {
            m_catalogue.note({preset.places.value(idKey),
                              QStringLiteral("\"%1\" is already the id of a preset; change that "
                                             "under \"change\", or hide it first")
                                  .arg(id)});
        } else {
            presets.append(preset);
        }
    }
    const bool hasLostAll =
        presets.isEmpty() && !stated.own.toObject().value(presetsKey).toArray().isEmpty();
    if (!m_catalogue.has(key) && !hasLostAll) {
        m_catalogue.add(key, group.icon, {m_file.name(), stated.path});
    } else if (!group.icon.isEmpty() && !hasLostAll) {
        m_catalogue.note(
            {{m_file.name(), memberOf(stated.path, QStringLiteral("icon"))},
             QStringLiteral("is not used, as the format \"%1\" has one; leave it out").arg(name),
             true});
    }
    for (const ReadPreset &preset : qAsConst(presets)) {
        m_catalogue.add(key, preset.values, preset.places);
    }
}

void Overlay::noteAliases(AliasTable &aliases)
{
    const QJsonObject all = m_file.object(aliasesKey);
    for (auto alias = all.begin(); alias != all.end(); ++alias) {
        const QString path = memberOf(aliasesKey, alias.key());
        if (alias->toString().isEmpty() || alias.key().isEmpty()) {
            m_file.refuse(path, QStringLiteral("must be the id that the preset has now"));
        } else {
            aliases.add(alias.key(), alias->toString(), {m_file.name(), path});
        }
    }
}

} // namespace

OverlaidCatalogue withOverlays(const CatalogueResult &catalogue,
                               const QVector<CatalogueSource> &overlays)
{
    EditedCatalogue edited(catalogue);
    AliasTable aliases;
    for (const CatalogueSource &source : overlays) {
        const QJsonDocument document = QJsonDocument::fromJson(source.json);
        if (document.isObject()) {
            Overlay(source.name, document.object(), edited).apply(aliases);
            continue;
        }
        // The reader of catalogues says why it is none.
        const CatalogueResult refused = readCatalogue({source});
        for (const CatalogueMistake &mistake : refused.mistakes) {
            edited.note(mistake);
        }
    }
    OverlaidCatalogue overlaid{edited.result(), {}};
    overlaid.aliases = aliases.resolve([&edited](const QString &id) { return edited.has(id); },
                                       overlaid.result.mistakes);
    return overlaid;
}
