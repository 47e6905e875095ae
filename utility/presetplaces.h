#ifndef UTILITY_PRESETPLACES_H
#define UTILITY_PRESETPLACES_H

#include "utility/cataloguemistake.h"
#include "utilityglobal.h"

#include <QHash>
#include <QStringList>
#include <QVector>

/*! The place of each value of a preset, by key ("id" or "videoParam.encoder"). Presets share the
 *  places of what they inherit, as a catalogue may hold 100,000 of them. */
class PresetPlaces
{
public:
    VEX_UTILITY_EXPORT void insert(const QString &key, const CataloguePlace &place);
    /*! Adds those of \a over, which win. */
    void add(const PresetPlaces &over);

    [[nodiscard]] VEX_UTILITY_EXPORT bool contains(const QString &key) const;
    /*! An empty place for an unknown key. */
    [[nodiscard]] VEX_UTILITY_EXPORT CataloguePlace value(const QString &key) const;
    /*! In no particular order. */
    [[nodiscard]] VEX_UTILITY_EXPORT QStringList keys() const;

private:
    using Layer = QHash<QString, CataloguePlace>;

    QVector<Layer> m_layers; // the first that has a key wins
};

#endif
