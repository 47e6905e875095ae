#include "host/commandline/presetchoice.h"

#include "host/app/console.h"
#include "host/commandline/favorites.h"
#include "host/commandline/fitting.h"

#include "formats/proxy/formatsproxy.h"

namespace {

const QLatin1String presetOption("preset");

/*! Opens the presets for noting what is used. A conversion waits for no other process: where one
 *  is writing the presets, they are only read, and nothing can be noted. */
Result<> openToNote(PresetStore &presets)
{
    const Result<> locked = presets.lock(0);
    const Result<> opened = presets.open(locked ? PresetStore::ReadWrite : PresetStore::ReadOnly);
    return locked ? opened : locked;
}

/*! Makes the preset the most recently used one. */
Result<> noteAsUsed(PresetStore &presets, const FoundPreset &preset)
{
    presets.formats().add2Recently(preset.tag, preset.className,
                                   preset.map.value(QStringLiteral("id")).toString());
    return presets.save();
}

/*! The user's default for the files that are named; empty without one. */
QString defaultPreset(const Call &call, const PresetStore &presets)
{
    const std::optional<SourceKind> kind = sourceKindOf(call.arguments);
    return kind ? favoritesOf(presets).defaultFor(*kind) : QString();
}

} // namespace

QList<QCommandLineOption> presetOptions()
{
    const QList<QCommandLineOption> own = {
        valueOption(presetOption,
                    CommandLine::tr("The preset with this id; \"vexconvert presets FORMAT\" lists "
                                    "ids. It is noted as recently used."),
                    CommandLine::tr("ID")),
    };
    return own + fittingOptions();
}

Result<FoundPreset> chosenPreset(const Call &call, Noting noting)
{
    const bool isDescribed = hasFittingOptions(call.options);
    // What is given on the command line comes before a default.
    const bool isNamed = call.options.isGiven(presetOption) || !isDescribed;
    const QString named = isNamed ? call.options.value(presetOption) : QString();
    PresetStore presets = presetsOf(call);
    const QString id = named.isEmpty() && !isDescribed ? defaultPreset(call, presets) : named;
    if (id.isEmpty() == !isDescribed) {
        return wrongUsage(CommandLine::tr("choose a preset: either --preset ID or --type, "
                                          "--format and --target; \"vexconvert default\" chooses "
                                          "one for the next time"));
    }
    if (id.isEmpty()) {
        openWhatCanBeRead(presets);
        return fittingPreset(call.options, presets.formats())
            .and_then([&presets](const QVariantMap &fitting) {
                return findPreset(presets, fitting.value(QStringLiteral("id")).toString());
            });
    }
    if (noting == Noting::Nowhere) {
        openWhatCanBeRead(presets);
        return findPreset(presets, id);
    }
    const Result<> opened = openToNote(presets);
    Result<FoundPreset> preset = findPreset(presets, id);
    if (preset) {
        // A failure is told and hurts nothing else.
        const Result<> noted = opened ? noteAsUsed(presets, *preset) : opened;
        if (!noted) {
            Console::printError(CommandLine::tr("the preset isn't noted as recently used: %1")
                                    .arg(noted.error().text));
        }
    }
    return preset;
}
