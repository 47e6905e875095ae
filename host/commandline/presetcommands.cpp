#include "host/commandline/commandline.h"
#include "host/commandline/console.h"
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

/*! Saves, and prints \a done or why that failed. */
ExitCode saveAndTell(PresetStore &store, const QString &done)
{
    const QString problem = store.save();
    if (!problem.isEmpty()) {
        return failure(problem);
    }
    Console::print(done);
    return Success;
}

ExitCode listRecent(const Call &call)
{
    PresetStore store(call.configFolder);
    if (!openToRead(store)) {
        return Failure;
    }
    QQueue<FormatDetailModelData> records;
    store.formats().recentlyFormatsModel()->getModelInfo(records);
    QVector<QVariantMap> presets;
    for (const FormatDetailModelData &record : records) {
        presets.append(record.toVarMap());
    }
    printPresets(presets, call.options.isSet(jsonFlag), CommandLine::tr("No preset was used yet."));
    return Success;
}

ExitCode deleteRecent(const Call &call, const QString &id)
{
    PresetStore store(call.configFolder);
    if (!openToWrite(store)) {
        return Failure;
    }
    if (!store.formats().delFromRecently(id)) {
        return wrongUsage(CommandLine::tr("\"%1\" is not among the recently used presets; "
                                          "\"vexconvert recent\" lists them")
                              .arg(id));
    }
    return saveAndTell(store, CommandLine::tr("%1 is no longer listed as recently used").arg(id));
}

ExitCode runRecent(const Call &call)
{
    if (call.arguments.isEmpty()) {
        return listRecent(call);
    }
    if (call.arguments.size() == 2 && call.arguments.constFirst() == QLatin1String("delete")) {
        return deleteRecent(call, call.arguments.at(1));
    }
    return wrongUsage(CommandLine::tr("it is \"vexconvert recent\" or \"vexconvert recent delete "
                                      "ID\""));
}

ExitCode listUser(const Call &call)
{
    PresetStore store(call.configFolder);
    if (!openToRead(store)) {
        return Failure;
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
                 CommandLine::tr("You have made no preset yet; \"vexconvert user add BASE_ID "
                                 "--title TITLE\" makes one."));
    return Success;
}

/*!
 * The values of \a preset with those of the options in place, as the library takes them to add or
 * change a user's preset. Where a value isn't offered, \a mistake says so.
 */
QVariantMap editedValues(const Call &call, const QVariantMap &preset, QString &mistake)
{
    const QString id = preset.value(QStringLiteral("id")).toString();
    const QVariantMap video = preset.value(QStringLiteral("video")).toMap();
    QVariantMap values = {
        {QStringLiteral("title"), preset.value(QStringLiteral("title"))},
        {QStringLiteral("videoBitrateLow"), video.value(QStringLiteral("bitrateLow")).toString()},
        {QStringLiteral("videoBitrateHigh"), video.value(QStringLiteral("bitrateHigh")).toString()},
    };
    if (call.options.isSet(titleOption)) {
        values.insert(QStringLiteral("title"), call.options.value(titleOption));
    }
    for (const PresetSetting &setting : presetSettings()) {
        const bool applies = preset.contains(setting.group);
        QString value = applies ? setting.value(preset) : QString();
        if (call.options.isSet(setting.option)) {
            const QStringList choices = setting.choices(preset);
            value = call.options.value(setting.option);
            if (!applies) {
                mistake = CommandLine::tr("--%1 doesn't apply: preset %2 is for audio only")
                              .arg(setting.option, id);
            } else if (!choices.contains(value)) {
                mistake = CommandLine::tr("--%1 %2 is not offered by preset %3; choose one of %4")
                              .arg(setting.option, value, id, choices.join(QStringLiteral(", ")));
            }
        }
        values.insert(setting.paramKey, value);
    }
    if (values.value(QStringLiteral("title")).toString().trimmed().isEmpty()) {
        mistake = CommandLine::tr("--title must not be empty");
    }
    return values;
}

ExitCode addUser(const Call &call, PresetStore &store, const FoundPreset &base)
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
    QString mistake;
    const QVariantMap values = editedValues(call, base.map, mistake);
    if (!mistake.isEmpty()) {
        return wrongUsage(mistake);
    }
    const QString id =
        store.formats().addUserDefineFormat(base.tag, base.className, baseId, values);
    return saveAndTell(store, CommandLine::tr("%1 added to %2").arg(id, base.className));
}

ExitCode changeUser(const Call &call, PresetStore &store, const FoundPreset &preset)
{
    const QString id = preset.map.value(QStringLiteral("id")).toString();
    QString mistake;
    const QVariantMap values = editedValues(call, preset.map, mistake);
    if (!mistake.isEmpty()) {
        return wrongUsage(mistake);
    }
    store.formats().changeUserDefineFormat(preset.className, id, values);
    return saveAndTell(store, CommandLine::tr("%1 changed").arg(id));
}

ExitCode deleteUser(const Call &, PresetStore &store, const FoundPreset &preset)
{
    const QString id = preset.map.value(QStringLiteral("id")).toString();
    store.formats().delUserDefineFormat(preset.tag, preset.className, id);
    return saveAndTell(store, CommandLine::tr("%1 deleted").arg(id));
}

ExitCode runUser(const Call &call)
{
    if (call.arguments.isEmpty() ||
        (call.arguments.size() == 1 && call.arguments.constFirst() == QLatin1String("list"))) {
        return listUser(call);
    }
    struct Action
    {
        QLatin1String name;
        bool needsOwnPreset;
        ExitCode (*run)(const Call &call, PresetStore &store, const FoundPreset &preset);
    };
    static const Action actions[] = {{QLatin1String("add"), false, addUser},
                                     {QLatin1String("change"), true, changeUser},
                                     {QLatin1String("delete"), true, deleteUser}};
    for (const Action &action : actions) {
        if (call.arguments.size() != 2 || call.arguments.constFirst() != action.name) {
            continue;
        }
        const QString id = call.arguments.at(1);
        PresetStore store(call.configFolder);
        if (!openToWrite(store)) {
            return Failure;
        }
        const FoundPreset preset = store.find(id);
        if (preset.map.isEmpty()) {
            return unknownPreset(id);
        }
        if (action.needsOwnPreset && !preset.isUserDefined) {
            return wrongUsage(CommandLine::tr("preset %1 isn't yours and stays as it is; "
                                              "\"vexconvert user add %1 --title TITLE\" makes one "
                                              "of your own from it")
                                  .arg(id));
        }
        return action.run(call, store, preset);
    }
    return wrongUsage(CommandLine::tr("it is \"vexconvert user list\", or \"add\", \"change\" or "
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
         CommandLine::tr("List the recently used presets, the latest first, or forget one."),
         {},
         {jsonOption()},
         runRecent},
        {QStringLiteral("user"),
         CommandLine::tr("list [--json] | add BASE_ID --title TITLE [settings] | change ID "
                         "[settings] | delete ID"),
         CommandLine::tr("List, make, change or delete presets of your own."),
         CommandLine::tr("\nA new preset starts with the values of its base, a changed one with "
                         "its own; the settings\nare checked against what \"vexconvert show ID\" "
                         "lists as choices. 0 keeps the source's value.\n"),
         editOptions() + QList<QCommandLineOption>{jsonOption()}, runUser},
    };
}
