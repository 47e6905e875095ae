#ifndef COMMANDLINE_FITTING_H
#define COMMANDLINE_FITTING_H

#include "host/commandline/commandline.h"

#include <QVariantMap>

class FormatsProxy;

/*! The options that describe a wish instead of naming a preset: --type, --format and so on. */
[[nodiscard]] QList<QCommandLineOption> fittingOptions();
[[nodiscard]] bool hasFittingOptions(const QCommandLineParser &options);

/*!
 * The preset closest to the wish; an error where there is none or the wish is incomplete.
 */
[[nodiscard]] Result<QVariantMap> fittingPreset(const QCommandLineParser &options,
                                                const FormatsProxy &formats);

#endif
