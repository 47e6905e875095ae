#ifndef PRESETS_PRESETCOMPARISON_H
#define PRESETS_PRESETCOMPARISON_H

#include "host/presets/presetstore.h"

/*! A preset of the user's beside its base. */
struct PresetComparison
{
    FoundPreset preset;
    QString baseId;
    bool hasBase = false; //!< the catalogue still has it
    PresetValues own;
    PresetValues base;       //!< as the catalogue has it; if it is gone, as it was
    PresetValues formerBase; //!< as it was when the preset was made
};

/*! Fails where \a id is no preset, or where nothing is known of its base. */
[[nodiscard]] Result<PresetComparison> compareToBase(PresetStore &store, const QString &id);

/*! The names of the settings and details that differ, in the order of valueNames(). */
[[nodiscard]] QStringList differingNames(const PresetValues &one, const PresetValues &other);

/*! Gives the preset the base's values of the settings with these names again. To be saved. */
void resetToBase(PresetStore &store, const PresetComparison &compared, const QStringList &names);

#endif
