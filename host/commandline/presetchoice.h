#ifndef COMMANDLINE_PRESETCHOICE_H
#define COMMANDLINE_PRESETCHOICE_H

#include "host/commandline/commandline.h"

/*! The options that choose a preset: its id, or what describes it. */
[[nodiscard]] QList<QCommandLineOption> presetOptions();

/*! Whether a preset that is chosen becomes the most recently used one. */
enum class Noting { AsUsed, Nowhere };

/*! The preset that the options choose. A failure to note it is only told. */
[[nodiscard]] Result<FoundPreset> chosenPreset(const Call &call, Noting noting);

#endif
