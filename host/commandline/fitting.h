#ifndef COMMANDLINE_FITTING_H
#define COMMANDLINE_FITTING_H

#include "host/commandline/commandline.h"

#include <QVariantMap>

class FormatsProxy;

/*! The options that describe a wish instead of naming a preset: --type, --format and so on. */
[[nodiscard]] QList<QCommandLineOption> fittingOptions();
[[nodiscard]] bool hasFittingOptions(const QCommandLineParser &options);

/*!
 * The preset closest to the wish. Where there is none, or the wish is incomplete, prints why and
 * returns an empty map with the exit code in \a exitCode.
 */
[[nodiscard]] QVariantMap fittingPreset(const QCommandLineParser &options,
                                        const FormatsProxy &formats, ExitCode &exitCode);

#endif
