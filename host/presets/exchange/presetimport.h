#ifndef PRESETS_EXCHANGE_PRESETIMPORT_H
#define PRESETS_EXCHANGE_PRESETIMPORT_H

#include "host/error.h"
#include "host/presets/exchange/portablepreset.h"

class PresetStore;

/*! A preset that is to be imported, and what becomes of it. */
struct PlannedImport
{
    enum State {
        New,
        Same,     //!< the user has an equal one
        Conflict, //!< the user has another one with this title in the same format
        Refused
    };

    PortablePreset preset; //!< with the values of all settings, unless it is refused
    QString className = {};
    QVariantMap base = {};
    State state = New;
    QString existing = {}; //!< id of the user's equal or other one
    QString reason = {};   //!< why it is refused, or what else is to be said; else empty
};

enum class OnConflict { KeepBoth, Replace, Skip };

/*! What becomes of each preset, the refused ones last. Nothing is changed. */
[[nodiscard]] QVector<PlannedImport> planImport(PresetStore &store, const PortablePresets &presets);

/*! Adds what is planned to the store, which is to be saved, and returns the ids; nothing if one of
 *  them is refused. */
[[nodiscard]] Result<QStringList>
importPresets(PresetStore &store, const QVector<PlannedImport> &plan, OnConflict onConflict);

/*! A preset of the user's as it travels. */
[[nodiscard]] Result<PortablePreset> portable(PresetStore &store, const QString &id);

#endif
