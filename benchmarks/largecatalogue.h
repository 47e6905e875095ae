#ifndef BENCHMARKS_LARGECATALOGUE_H
#define BENCHMARKS_LARGECATALOGUE_H

#include <QVariant>

/*!
 * A catalogue of any size: linking it replaces FormatCodecApi for the whole process. Every format
 * has presetsPerFormat presets, all with the same option lists and each with a title of its own,
 * "Preset 12x34" of "FORMAT12".
 */
namespace LargeCatalogue {

constexpr int presetsPerFormat = 100;

/*! Creates the catalogue that is served from now on. */
void serve(int formats);

QVariantList groups();
QVariantList contents(const QVariantMap &group);

/*! The id of a preset, both counted from 0. */
QString presetId(int format, int preset);

} // namespace LargeCatalogue

#endif
