#include "host/app/console.h"
#include "host/commandline/commandline.h"
#include "host/commandline/presettable.h"

#include "formats/models/formatdetailmodel.h"
#include "formats/models/formatdetailmodeldata.h"
#include "formats/models/formatlistmodel.h"
#include "formats/proxy/formatsproxy.h"
#include "host/presets/presetstore.h"

#include <QQueue>

namespace {

const QLatin1String jsonFlag("json");
const QLatin1String titleOption("title");

void printPresets(const QVector<QVariantMap> &presets, bool asJson, const QString &none)
{
    if (asJson) {
        QVariantList list;
        for (const QVariantMap &preset : presets) {
            list.append(preset);
        }
        Console::printJson(list);
    } else if (presets.isEmpty()) {
        Console::print(none);
    } else {
        Console::printTable(presetTable(presets));
    }
}

/*! Opens the presets for saving. If another process is writing them, says so and waits. */
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

/*! For other programs prints the preset instead. */
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

Result<ExitCode> listRecent(const Call &call)
{
    PresetStore store = presetsOf(call);
    const Result<> opened = store.open(PresetStore::ReadOnly);
    if (!opened) {
        return failed(opened);
    }
    QQueue<FormatDetailModelData> records;
    store.formats().recentlyFormatsModel()->getModelInfo(records);
    QVector<QVariantMap> presets;
    for (const FormatDetailModelData &record : qAsConst(records)) {
        presets.append(record.toVarMap());
    }
    printPresets(presets, call.options.isSet(jsonFlag),
                 CommandLine::tr("No presets have been used yet."));
    return Success;
}

Result<ExitCode> deleteRecent(const Call &call, const QString &id)
{
    PresetStore store = presetsOf(call);
    const Result<> opened = openToWrite(store);
    if (!opened) {
        return failed(opened);
    }
    if (!store.formats().delFromRecently(id)) {
        return wrongUsage(CommandLine::tr("\"%1\" is not among the recently used presets; "
                                          "\"vexconvert recent\" lists them")
                              .arg(id));
    }
    return saveAndTell(store, CommandLine::tr("%1 is no longer listed as recently used").arg(id));
}

Result<ExitCode> runRecent(const Call &call)
{
    if (call.arguments.isEmpty()) {
        return listRecent(call);
    }
    if (call.arguments.size() == 2 && call.arguments.constFirst() == QLatin1String("delete")) {
        return deleteRecent(call, call.arguments.at(1));
    }
    return wrongUsage(CommandLine::tr("use \"vexconvert recent\" or \"vexconvert recent delete "
                                      "ID\""));
}

Result<ExitCode> listUser(const Call &call)
{
    PresetStore store = presetsOf(call);
    const Result<> opened = store.open(PresetStore::ReadOnly);
    if (!opened) {
        return failed(opened);
    }
    const FormatListModel &formats = *store.formats().formatListModel();
    QVector<QVariantMap> presets;
    for (int row = 0; row < formats.rowCount(); ++row) {
        const FormatDetailModel *list = formats.formatDetailModel(formats.getTitle(row));
        const QVariantList own = list == nullptr ? QVariantList() : list->toVariantList();
        for (const QVariant &preset : own) {
            presets.append(preset.toMap());
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
    const QString id = preset.value(QStringLiteral("id")).toString();
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

/*! The values of \a preset, overridden by the options, as the library takes them to add or change
 *  a user's preset. */
Result<QVariantMap> editedValues(const Call &call, const QVariantMap &preset)
{
    const QString titleKey = QStringLiteral("title");
    const QVariantMap video = preset.value(QStringLiteral("video")).toMap();
    QVariantMap values = {
        {titleKey, call.options.isSet(titleOption) ? QVariant(call.options.value(titleOption))
                                                   : preset.value(titleKey)},
        {QStringLiteral("videoBitrateLow"), video.value(QStringLiteral("bitrateLow")).toString()},
        {QStringLiteral("videoBitrateHigh"), video.value(QStringLiteral("bitrateHigh")).toString()},
    };
    if (values.value(titleKey).toString().trimmed().isEmpty()) {
        return wrongUsage(CommandLine::tr("--title must not be empty"));
    }
    for (const PresetSetting &setting : presetSettings()) {
        const Result<QString> value = editedValue(call, preset, setting);
        if (!value) {
            return failed(value);
        }
        values.insert(setting.paramKey, *value);
    }
    return values;
}

Result<ExitCode> addUser(const Call &call, PresetStore &store, const FoundPreset &base)
{
    const QString baseId = base.map.value(QStringLiteral("id")).toString();
    if (base.className.isEmpty()) {
        return wrongUsage(CommandLine::tr("preset %1 is only among the recently used ones; choose "
                                          "a base that \"vexconvert presets FORMAT\" lists")
                              .arg(baseId));
    }
    if (!call.options.isSet(titleOption)) {
        return wrongUsage(CommandLine::tr("give the new preset a title: --title TITLE"));
    }
    const Result<QVariantMap> values = editedValues(call, base.map);
    if (!values) {
        return failed(values);
    }
    const QString id =
        store.formats().addUserDefineFormat(base.tag, base.className, baseId, *values);
    return saveAndShow(call, store, id, CommandLine::tr("%1 added to %2").arg(id, base.className));
}

Result<ExitCode> changeUser(const Call &call, PresetStore &store, const FoundPreset &preset)
{
    const QString id = preset.map.value(QStringLiteral("id")).toString();
    const Result<QVariantMap> values = editedValues(call, preset.map);
    if (!values) {
        return failed(values);
    }
    store.formats().changeUserDefineFormat(preset.className, id, *values);
    return saveAndShow(call, store, id, CommandLine::tr("%1 changed").arg(id));
}

Result<ExitCode> deleteUser(const Call &, PresetStore &store, const FoundPreset &preset)
{
    const QString id = preset.map.value(QStringLiteral("id")).toString();
    store.formats().delUserDefineFormat(preset.tag, preset.className, id);
    return saveAndTell(store, CommandLine::tr("%1 deleted").arg(id));
}

Result<ExitCode> runUser(const Call &call)
{
    if (call.arguments.isEmpty() ||
        (call.arguments.size() == 1 && call.arguments.constFirst() == QLatin1String("list"))) {
        return listUser(call);
    }
    struct Action
    {
        QLatin1String name;
        bool needsOwnPreset;
        Result<ExitCode> (*run)(const Call &call, PresetStore &store, const FoundPreset &preset);
    };
    static const Action actions[] = {{QLatin1String("add"), false, addUser},
                                     {QLatin1String("change"), true, changeUser},
                                     {QLatin1String("delete"), true, deleteUser}};
    for (const Action &action : actions) {
        if (call.arguments.size() != 2 || call.arguments.constFirst() != action.name) {
            continue;
        }
        const QString id = call.arguments.at(1);
        PresetStore store = presetsOf(call);
        const Result<FoundPreset> preset =
            openToWrite(store).and_then([&store, &id] { return findPreset(store, id); });
        if (!preset) {
            return failed(preset);
        }
        if (action.needsOwnPreset && !preset->isUserDefined) {
            return wrongUsage(CommandLine::tr("preset %1 isn't yours and can't be changed; "
                                              "\"vexconvert user add %1 --title TITLE\" makes a "
                                              "copy that is yours")
                                  .arg(id));
        }
        return action.run(call, store, *preset);
    }
    return wrongUsage(CommandLine::tr("use \"vexconvert user list\", or \"add\", \"change\" or "
                                      "\"delete\" with one id; see \"vexconvert user --help\""));
}

QList<QCommandLineOption> editOptions()
{
    QList<QCommandLineOption> options = {
        valueOption(titleOption, CommandLine::tr("The preset's title."), CommandLine::tr("TITLE"))};
    for (const PresetSetting &setting : presetSettings()) {
        options << valueOption(setting.option, setting.help, setting.unit);
    }
    return options;
}

} // namespace

QVector<Subcommand> presetCommands()
{
    return {
        {QStringLiteral("recent"),
         CommandLine::tr("[--json] | delete ID"),
         CommandLine::tr("List the recently used presets, the latest first, or remove one."),
         {},
         {jsonOption()},
         runRecent},
        {QStringLiteral("user"),
         CommandLine::tr("list [--json] | add BASE_ID --title TITLE [settings] [--json] | "
                         "change ID [settings] [--json] | delete ID"),
         CommandLine::tr("List, add, change or delete your own presets."),
         CommandLine::tr("\nA new preset starts with the values of its base. A setting must be one "
                         "of the choices that\n\"vexconvert show ID\" lists; 0 keeps the source's "
                         "value.\n"),
         editOptions() + QList<QCommandLineOption>{jsonOption()}, runUser},
    };
}
