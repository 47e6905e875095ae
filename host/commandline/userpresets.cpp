#include "host/commandline/userpresets.h"

#include "host/app/console.h"
#include "host/commandline/presettable.h"

#include "formats/models/formatlistmodel.h"
#include "formats/proxy/formatsproxy.h"

#include <algorithm>

namespace {

const QLatin1String jsonFlag("json");
const QLatin1String titleOption("title");
const QLatin1String beforeOption("before");
const QLatin1String idKey("id");
const QLatin1String titleKey("title");

QString titleOf(const FoundPreset &preset)
{
    return preset.map.value(titleKey).toString();
}

Result<QString> checkedTitle(const QString &title)
{
    if (title.trimmed().isEmpty()) {
        return wrongUsage(CommandLine::tr("--title must not be empty"));
    }
    return title;
}

/*! Saves, and tells \a done or, for other programs, prints the preset instead. */
Result<ExitCode> saveAndShow(const Call &call, PresetStore &store, const QString &id,
                             const QString &done)
{
    if (!call.options.isSet(jsonFlag)) {
        return saveAndTell(store, done);
    }
    return store.save()
        .and_then([&store, &id] { return findPreset(store, id); })
        .map([](const FoundPreset &preset) {
            Console::printJson(preset.map);
            return Success;
        });
}

Result<ExitCode> list(const Call &call, PresetStore &store, const QStringList &)
{
    const FormatListModel &formats = *store.formats().formatListModel();
    QVector<QVariantMap> presets;
    for (int row = 0; row < formats.rowCount(); ++row) {
        const QStringList ids = store.own().idsOf(formats.getTitle(row));
        for (const QString &id : ids) {
            QVariantMap map = store.find(id)->map;
            map.insert(QStringLiteral("note"), store.notes().of(id).text);
            map.insert(QStringLiteral("base"), store.notes().of(id).base);
            presets.append(map);
        }
    }
    printPresets(presets, call.options.isSet(jsonFlag),
                 CommandLine::tr("You have no presets of your own yet; \"vexconvert user add "
                                 "BASE_ID --title TITLE\" makes one."));
    return Success;
}

/*! The new value of \a setting: the option's if it is set, which must be offered; else its own. */
Result<QString> editedValue(const Call &call, const QVariantMap &preset,
                            const PresetSetting &setting)
{
    const QString id = preset.value(idKey).toString();
    const bool applies = preset.contains(setting.group);
    if (!call.options.isSet(setting.option)) {
        return applies ? setting.value(preset) : QString();
    }
    if (!applies) {
        return wrongUsage(
            CommandLine::tr("--%1 doesn't apply: preset %2 is audio-only").arg(setting.option, id));
    }
    const QString value = call.options.value(setting.option);
    const QStringList choices = setting.choices(preset);
    if (!choices.contains(value)) {
        return wrongUsage(CommandLine::tr("--%1 %2 is not offered by preset %3; choose one of %4")
                              .arg(setting.option, value, id, choices.join(QStringLiteral(", "))));
    }
    return value;
}

/*! The values of \a preset, overridden by the options. */
Result<PresetValues> editedValues(const Call &call, const QVariantMap &preset)
{
    PresetValues values = valuesOf(preset);
    for (const PresetSetting &setting : presetSettings()) {
        const Result<QString> value = editedValue(call, preset, setting);
        if (!value) {
            return failed(value);
        }
        if (call.options.isSet(setting.option)) {
            values.insert(setting.option, *value);
        }
    }
    return values;
}

/*! The title that the option gives, else the preset's own. */
Result<QString> editedTitle(const Call &call, const FoundPreset &preset)
{
    return call.options.isSet(titleOption) ? checkedTitle(call.options.value(titleOption))
                                           : Result<QString>(titleOf(preset));
}

/*! Adds a preset like \a base; the options may change values. */
Result<ExitCode> addLike(const Call &call, PresetStore &store, const FoundPreset &base,
                         const QString &title)
{
    const QString baseId = base.map.value(idKey).toString();
    if (base.className.isEmpty()) {
        return wrongUsage(CommandLine::tr("preset %1 is only among the recently used ones; choose "
                                          "a base that \"vexconvert presets FORMAT\" lists")
                              .arg(baseId));
    }
    const Result<PresetValues> values = editedValues(call, base.map);
    if (!values) {
        return failed(values);
    }
    const QString id = store.own().add(base.className, base.map, title, *values);
    return saveAndShow(call, store, id, CommandLine::tr("%1 added to %2").arg(id, base.className));
}

Result<ExitCode> add(const Call &call, PresetStore &store, const QStringList &arguments)
{
    const Result<FoundPreset> base = findPreset(store, arguments.constFirst());
    if (!base) {
        return failed(base);
    }
    if (!base->className.isEmpty() && !call.options.isSet(titleOption)) {
        return wrongUsage(CommandLine::tr("give the new preset a title: --title TITLE"));
    }
    return editedTitle(call, *base).and_then([&](const QString &title) {
        return addLike(call, store, *base, title);
    });
}

Result<ExitCode> duplicate(const Call &call, PresetStore &store, const QStringList &arguments)
{
    const Result<FoundPreset> preset = findOwn(store, arguments.constFirst());
    if (!preset) {
        return failed(preset);
    }
    const QString copy = CommandLine::tr("%1 (copy)").arg(titleOf(*preset));
    const Result<QString> title =
        call.options.isSet(titleOption) ? editedTitle(call, *preset) : Result<QString>(copy);
    return title.and_then(
        [&](const QString &chosen) { return addLike(call, store, *preset, chosen); });
}

Result<ExitCode> change(const Call &call, PresetStore &store, const QStringList &arguments)
{
    const Result<FoundPreset> preset = findOwn(store, arguments.constFirst());
    if (!preset) {
        return failed(preset);
    }
    const QString id = arguments.constFirst();
    const Result<QString> title = editedTitle(call, *preset);
    if (!title) {
        return failed(title);
    }
    const Result<PresetValues> values = editedValues(call, preset->map);
    if (!values) {
        return failed(values);
    }
    store.own().change(preset->className, id, *title, *values);
    return saveAndShow(call, store, id, CommandLine::tr("%1 changed").arg(id));
}

Result<ExitCode> rename(const Call &call, PresetStore &store, const QStringList &arguments)
{
    const QString id = arguments.constFirst();
    const Result<FoundPreset> preset = findOwn(store, id);
    if (!preset) {
        return failed(preset);
    }
    const Result<QString> title = checkedTitle(arguments.at(1));
    if (!title) {
        return failed(title);
    }
    store.own().change(preset->className, id, *title, valuesOf(preset->map));
    return saveAndShow(call, store, id, CommandLine::tr("%1 is now \"%2\"").arg(id, *title));
}

Result<ExitCode> note(const Call &, PresetStore &store, const QStringList &arguments)
{
    const QString id = arguments.constFirst();
    const Result<FoundPreset> preset = findOwn(store, id);
    if (!preset) {
        return failed(preset);
    }
    PresetNote note = store.notes().of(id);
    if (arguments.size() == 1) {
        Console::print(note.text);
        return Success;
    }
    note.text = arguments.at(1);
    store.notes().set(id, note);
    return saveAndTell(store, note.text.isEmpty() ? CommandLine::tr("%1 has no note").arg(id)
                                                  : CommandLine::tr("%1 noted").arg(id));
}

Result<ExitCode> move(const Call &call, PresetStore &store, const QStringList &arguments)
{
    const QString id = arguments.constFirst();
    const Result<FoundPreset> preset = findOwn(store, id);
    if (!preset) {
        return failed(preset);
    }
    const QString before = call.options.value(beforeOption);
    QStringList ids = store.own().idsOf(preset->className);
    if (before == id || (!before.isEmpty() && !ids.contains(before))) {
        return wrongUsage(CommandLine::tr("--before takes the id of another preset of yours in "
                                          "%1; without it the preset becomes the last")
                              .arg(preset->className));
    }
    ids.removeAll(id);
    ids.insert(before.isEmpty() ? ids.size() : ids.indexOf(before), id);
    store.own().sort(preset->className, ids);
    return saveAndTell(store, CommandLine::tr("%1 moved").arg(id));
}

Result<ExitCode> remove(const Call &, PresetStore &store, const QStringList &arguments)
{
    const QString id = arguments.constFirst();
    const Result<FoundPreset> preset = findOwn(store, id);
    if (!preset) {
        return failed(preset);
    }
    store.own().remove(preset->className, id);
    return saveAndTell(
        store, CommandLine::tr("%1 deleted; \"vexconvert user undo\" brings it back").arg(id));
}

} // namespace

QVector<UserAction> ownPresetActions()
{
    using Needs = UserAction;
    const QString edit = CommandLine::tr("ID [settings] [--json]");
    return {
        {QLatin1String("list"), QStringLiteral("[--json]"), 0, 0, Needs::Reading, list},
        {QLatin1String("add"), CommandLine::tr("BASE_ID --title TITLE [settings] [--json]"), 1, 1,
         Needs::Writing, add},
        {QLatin1String("change"), edit, 1, 1, Needs::Writing, change},
        {QLatin1String("duplicate"), edit, 1, 1, Needs::Writing, duplicate},
        {QLatin1String("rename"), CommandLine::tr("ID TITLE"), 2, 2, Needs::Writing, rename},
        {QLatin1String("note"), CommandLine::tr("ID [TEXT]"), 1, 2, Needs::Writing, note},
        {QLatin1String("move"), CommandLine::tr("ID [--before ID]"), 1, 1, Needs::Writing, move},
        {QLatin1String("delete"), CommandLine::tr("ID"), 1, 1, Needs::Writing, remove},
    };
}

QList<QCommandLineOption> ownPresetOptions()
{
    QList<QCommandLineOption> options = {
        valueOption(titleOption, CommandLine::tr("The preset's title."), CommandLine::tr("TITLE"))};
    for (const PresetSetting &setting : presetSettings()) {
        options << valueOption(setting.option, setting.help, setting.unit);
    }
    options << valueOption(beforeOption,
                           CommandLine::tr("\"move\" puts the preset before this one of yours, "
                                           "instead of at the end of its format."),
                           CommandLine::tr("ID"));
    return options;
}

Result<> openToWrite(PresetStore &presets)
{
    constexpr int patience = 10000; // ms
    return presets.lock(patience).and_then(
        [&presets] { return presets.open(PresetStore::ReadWrite); });
}

Result<ExitCode> saveAndTell(PresetStore &store, const QString &done)
{
    const Result<> saved = store.save();
    if (!saved) {
        return failed(saved);
    }
    Console::print(done);
    return Success;
}

Result<FoundPreset> findOwn(const PresetStore &store, const QString &id)
{
    Result<FoundPreset> preset = findPreset(store, id);
    if (preset && !preset->isUserDefined) {
        return wrongUsage(CommandLine::tr("preset %1 isn't yours and can't be changed; "
                                          "\"vexconvert user add %1 --title TITLE\" makes a "
                                          "copy that is yours")
                              .arg(id));
    }
    return preset;
}
