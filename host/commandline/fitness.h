#ifndef COMMANDLINE_FITNESS_H
#define COMMANDLINE_FITNESS_H

#include "host/error.h"
#include "host/presets/fitness.h"

#include <QCommandLineOption>
#include <QString>

/*! Asks ffmpeg for its encoders, and looks at the source unless \a source is empty. Fails where
 *  that can't be read. Waits for both. */
[[nodiscard]] Result<Fitness> fitnessFor(const QString &source);

/*! One line that names a preset, its problem and what can be used instead. */
[[nodiscard]] QString problemInWords(const QString &id, const QString &problem,
                                     const QString &instead);
/*! The option --for of several subcommands. */
[[nodiscard]] QCommandLineOption sourceOption();

#endif
