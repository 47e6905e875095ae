#include "host/app/console.h"
#include "host/commandline/commandline.h"
#include "host/commandline/nearestword.h"
#include "host/commandline/presettable.h"
#include "host/commandline/userpresets.h"

#include "formats/models/formatdetailmodel.h"
#include "formats/models/formatdetailmodeldata.h"
#include "formats/models/formatlistmodel.h"
#include "formats/proxy/formatsproxy.h"
#include "host/presets/presetstore.h"

#include <QQueue>

#include <algorithm>

namespace {

const QLatin1String jsonFlag("json");

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

Result<ExitCode> runUser(const Call &call)
{
    const QString name = call.arguments.value(0, QStringLiteral("list"));
    const QStringList arguments = call.arguments.mid(1);
    const QVector<UserAction> actions = ownPresetActions() + exchangeActions() + historyActions();
    const auto action = std::find_if(actions.begin(), actions.end(),
                                     [&name](const UserAction &each) { return each.name == name; });
    if (action == actions.end()) {
        QStringList names;
        for (const UserAction &each : actions) {
            names << each.name;
        }
        return wrongUsage(
            CommandLine::tr("\"user %1\" doesn't exist; it is one of %2%3")
                .arg(name, names.join(QStringLiteral(", ")), didYouMean(name, names)));
    }
    const bool isTooLong = action->most >= 0 && arguments.size() > action->most;
    if (arguments.size() < action->least || isTooLong) {
        return wrongUsage(
            CommandLine::tr("use \"vexconvert user %1 %2\"; see \"vexconvert user --help\"")
                .arg(action->name, action->syntax));
    }
    PresetStore store = presetsOf(call);
    const Result<> opened = action->needs == UserAction::Writing ? openToWrite(store)
                            : action->needs == UserAction::Reading
                                ? store.open(PresetStore::ReadOnly)
                                : Result<>();
    if (!opened) {
        return failed(opened);
    }
    return action->run(call, store, arguments);
}

QString userSyntax()
{
    QStringList forms;
    const QVector<UserAction> actions = ownPresetActions() + exchangeActions() + historyActions();
    for (const UserAction &action : actions) {
        forms << QStringLiteral("%1 %2").arg(action.name, action.syntax).trimmed();
    }
    return forms.join(QStringLiteral(" |\n                       "));
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
        {QStringLiteral("user"), userSyntax(),
         CommandLine::tr("Make, change, exchange and undo presets of your own."),
         CommandLine::tr(
             "\nA new preset starts with the values of its base. A setting must be one of the "
             "choices that\n\"vexconvert show ID\" lists; 0 keeps the source's value.\n"
             "\n\"export\" writes the presets with these IDs, or all of yours; \"-\" is standard "
             "output. \"import\"\nreads such files, and those of HandBrake, Kdenlive and Shotcut: "
             "it "
             "lists what becomes of each\npreset and of its settings. Either all presets of a call "
             "are imported or none.\n"
             "\n\"undo\" takes back what was done last, and can be repeated for the last 50 steps; "
             "\"history\"\nlists them. \"diff\" compares a preset to its base; \"reset\" gives it "
             "the base's values again,\nall or those of the SETTINGs that \"diff\" lists.\n"),
         ownPresetOptions() + exchangeOptions() + QList<QCommandLineOption>{jsonOption()}, runUser},
    };
}
