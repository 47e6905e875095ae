#ifndef COMMANDLINE_FITTING_H
#define COMMANDLINE_FITTING_H

#include "host/commandline/commandline.h"

#include <QVariantMap>

class FormatsProxy;

/*! The options that describe a preset instead of naming it: --type, --format and so on. */
[[nodiscard]] QList<QCommandLineOption> fittingOptions();
[[nodiscard]] bool hasFittingOptions(const Options &options);

/*! The closest preset; an error if there is none or an option is missing or invalid. */
[[nodiscard]] Result<QVariantMap> fittingPreset(const Options &options,
                                                const FormatsProxy &formats);

#endif
