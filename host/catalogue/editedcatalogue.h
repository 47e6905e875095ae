#ifndef CATALOGUE_EDITEDCATALOGUE_H
#define CATALOGUE_EDITEDCATALOGUE_H

#include "utility/cataloguereader.h"

#include <QJsonObject>

/*! A preset as a catalogue's file states it in full. */
[[nodiscard]] QJsonObject presetToJson(const QVariantMap &preset);

/*! A catalogue whose presets are added, replaced and removed, each with the places of its values.
 */
class EditedCatalogue
{
public:
    using Group = QPair<QString, QString>; //!< its category and name

    explicit EditedCatalogue(const CatalogueResult &catalogue);

    [[nodiscard]] const CatalogueResult &result() const { return m_result; }
    void note(const CatalogueMistake &mistake) { m_result.mistakes.append(mistake); }

    [[nodiscard]] bool has(const QString &id) const { return m_groups.contains(id); }
    [[nodiscard]] bool has(const Group &group) const;
    /*! Empty for an unknown id, and so are its places. */
    [[nodiscard]] QVariantMap preset(const QString &id) const;
    [[nodiscard]] PresetPlaces places(const QString &id) const;

    /*! Adds a group without presets behind the others of its category. */
    void add(const Group &group, const QString &icon, const CataloguePlace &place);
    /*! Adds a preset with a new id at the end of a known group. */
    void add(const Group &group, const QVariantMap &preset, const PresetPlaces &places);
    /*! Puts a preset in the place of the one with its id. */
    void replace(const QVariantMap &preset, const PresetPlaces &places);
    /*! Removes a preset with a known id; with its last preset, the group goes, too. */
    void remove(const QString &id);
    /*! Removes all groups of that name with their presets; false if there is none. */
    bool removeGroups(const QString &name);

private:
    void removeGroup(const Group &group);

    CatalogueResult m_result;
    QHash<QString, Group> m_groups; //!< by the ids of their presets
};

#endif
