#ifndef COMMANDLINE_USERPRESETS_H
#define COMMANDLINE_USERPRESETS_H

#include "host/commandline/commandline.h"

/*! What "vexconvert user" can do: a word and what follows it. */
struct UserAction
{
    enum Needs { Nothing, Reading, Writing };

    QLatin1String name;
    QString syntax;        //!< what follows the name
    int least = 0;         //!< how many arguments follow
    int most = 0;          //!< the same; -1: any number
    Needs needs = Nothing; //!< how the presets are opened before
    Result<ExitCode> (*run)(const Call &call, PresetStore &store, const QStringList &arguments);
};

[[nodiscard]] QVector<UserAction> ownPresetActions();
[[nodiscard]] QVector<UserAction> exchangeActions();
[[nodiscard]] QVector<UserAction> historyActions();

[[nodiscard]] QList<QCommandLineOption> ownPresetOptions();
[[nodiscard]] QList<QCommandLineOption> exchangeOptions();

/*! Opens the presets for saving. If another process is writing them, says so and waits. */
[[nodiscard]] Result<> openToWrite(PresetStore &presets);
/*! Saves, and prints \a done. */
[[nodiscard]] Result<ExitCode> saveAndTell(PresetStore &store, const QString &done);
/*! The user's preset with this id; an error if there is none, or if it is the catalogue's. */
[[nodiscard]] Result<FoundPreset> findOwn(const PresetStore &store, const QString &id);

#endif
