#include "host/app/console.h"
#include "host/commandline/commandline.h"
#include "host/commandline/favorites.h"
#include "host/commandline/presettable.h"
#include "host/commandline/userpresets.h"

#include <algorithm>
#include <functional>

namespace {

const QLatin1String jsonFlag("json");
const QLatin1String none("none");

/*! Changes the favourites while no other process writes, and saves them. */
Result<ExitCode> changeFavorites(const Call &call, const QString &done,
                                 const std::function<Result<>(PresetStore &, Favorites &)> &change)
{
    PresetStore store = presetsOf(call);
    const Result<> opened = openToWrite(store);
    if (!opened) {
        return failed(opened);
    }
    Favorites favorites = favoritesOf(store);
    return change(store, favorites).and_then([&] { return favorites.save(); }).map([&done] {
        Console::print(done);
        return Success;
    });
}

Result<ExitCode> listFavorites(const Call &call)
{
    PresetStore store = presetsOf(call);
    openWhatCanBeRead(store);
    QVector<QVariantMap> presets;
    const QStringList ids = favoritesOf(store).ids();
    for (const QString &id : ids) {
        // A favourite may be one of another catalogue.
        if (const std::optional<FoundPreset> preset = store.find(id)) {
            presets.append(preset->map);
        }
    }
    printPresets(presets, call.options.isSet(jsonFlag),
                 CommandLine::tr("You have no favorites yet; \"vexconvert favorite add ID\" makes "
                                 "a preset one. \"search\" lists them first."));
    return Success;
}

Result<ExitCode> runFavorite(const Call &call)
{
    const QString action = call.arguments.value(0, QStringLiteral("list"));
    const QStringList ids = call.arguments.mid(1);
    if (action == QLatin1String("list") && ids.isEmpty()) {
        return listFavorites(call);
    }
    const bool isAdded = action == QLatin1String("add");
    if (ids.isEmpty() || (!isAdded && action != QLatin1String("remove"))) {
        return wrongUsage(CommandLine::tr("use \"vexconvert favorite list\", \"add ID...\" or "
                                          "\"remove ID...\""));
    }
    const QString done =
        (isAdded ? CommandLine::tr("favorite: %1") : CommandLine::tr("no longer a favorite: %1"))
            .arg(ids.join(QStringLiteral(", ")));
    return changeFavorites(call, done, [&](PresetStore &store, Favorites &favorites) -> Result<> {
        for (const QString &given : ids) {
            const QString id = store.idNow(given);
            const Result<FoundPreset> preset = findPreset(store, id);
            if (isAdded && !preset) {
                return failed(preset);
            }
            if (isAdded ? !favorites.add(id) : !favorites.remove(id)) {
                return wrongUsage((isAdded ? CommandLine::tr("%1 is a favorite already")
                                           : CommandLine::tr("%1 is no favorite; \"vexconvert "
                                                             "favorite\" lists them"))
                                      .arg(id));
            }
        }
        return {};
    });
}

void listDefaults(const Favorites &favorites, const PresetStore &store)
{
    QVector<QStringList> table = {
        {CommandLine::tr("Sources"), CommandLine::tr("Preset"), CommandLine::tr("Title")}};
    for (const SourceKind kind : {SourceKind::Video, SourceKind::Audio, SourceKind::Picture}) {
        const QString id = favorites.defaultFor(kind);
        const std::optional<FoundPreset> preset = store.find(id);
        table.append({nameOf(kind), id.isEmpty() ? QStringLiteral("-") : id,
                      preset ? preset->map.value(QStringLiteral("title")).toString() : QString()});
    }
    Console::printTable(table);
}

Result<ExitCode> runDefault(const Call &call)
{
    if (call.arguments.isEmpty()) {
        PresetStore store = presetsOf(call);
        openWhatCanBeRead(store);
        listDefaults(favoritesOf(store), store);
        return Success;
    }
    const std::optional<SourceKind> kind = sourceKindNamed(call.arguments.constFirst());
    if (!kind || call.arguments.size() != 2) {
        return wrongUsage(CommandLine::tr("use \"vexconvert default video|audio|picture ID\", or "
                                          "\"none\" instead of the id"));
    }
    const QString id = call.arguments.at(1);
    const bool isNone = id == none;
    const QString done =
        (isNone ? CommandLine::tr("no default for %1")
                : CommandLine::tr("default for %1: %2").arg(QStringLiteral("%1"), id))
            .arg(nameOf(*kind));
    return changeFavorites(call, done, [&](PresetStore &store, Favorites &favorites) -> Result<> {
        const Result<FoundPreset> preset = findPreset(store, id);
        if (!isNone && !preset) {
            return failed(preset);
        }
        favorites.setDefault(*kind, isNone ? QString() : store.idNow(id));
        return {};
    });
}

} // namespace

Favorites favoritesOf(const PresetStore &store)
{
    Favorites favorites(store.filePath(QStringLiteral("favorites.json")));
    const Result<> read = favorites.read();
    if (!read) {
        Console::printError(read.error().text);
    }
    favorites.renameIds([&store](const QString &id) { return store.idNow(id); });
    return favorites;
}

QVector<Subcommand> favoriteCommands()
{
    return {
        {QStringLiteral("favorite"),
         CommandLine::tr("list [--json] | add ID... | remove ID..."),
         CommandLine::tr("List, add or remove the presets that you like best."),
         CommandLine::tr("\n\"search\" lists them before all others.\n"),
         {jsonOption()},
         runFavorite},
        {QStringLiteral("default"),
         CommandLine::tr("[video|audio|picture ID|none]"),
         CommandLine::tr("List or choose the presets for files without --preset."),
         CommandLine::tr(
             "\nA file's name says whether it is a video, audio or a picture. The "
             "default is taken where\n\"convert\" is given neither --preset nor --type, "
             "and where all files are of one kind.\n"),
         {},
         runDefault},
    };
}
