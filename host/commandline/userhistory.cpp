#include "host/app/console.h"
#include "host/commandline/nearestword.h"
#include "host/commandline/userpresets.h"
#include "host/presets/presetcomparison.h"

namespace {

const QLatin1String jsonFlag("json");

Result<PresetComparison> compare(PresetStore &store, const QString &id)
{
    return findOwn(store, id).and_then(
        [&](const FoundPreset &) { return compareToBase(store, id); });
}

void printJson(const PresetComparison &compared)
{
    const auto listOf = [](const PresetValues &one, const char *oneKey, const PresetValues &other,
                           const char *otherKey) {
        QVariantList list;
        for (const QString &name : differingNames(one, other)) {
            list.append(QVariantMap{{QStringLiteral("setting"), name},
                                    {QLatin1String(oneKey), one.value(name)},
                                    {QLatin1String(otherKey), other.value(name)}});
        }
        return list;
    };
    Console::printJson(QVariantMap{
        {QStringLiteral("id"), compared.preset.map.value(QStringLiteral("id"))},
        {QStringLiteral("base"), compared.baseId},
        {QStringLiteral("baseExists"), compared.hasBase},
        {QStringLiteral("differences"), listOf(compared.base, "base", compared.own, "own")},
        {QStringLiteral("baseChanges"), listOf(compared.formerBase, "then", compared.base, "now")},
    });
}

void printTable(const PresetComparison &compared, const QString &id)
{
    const QStringList own = differingNames(compared.base, compared.own);
    const QStringList changed = differingNames(compared.formerBase, compared.base);
    const auto row = [](const QString &name, const PresetValues &one, const PresetValues &other) {
        return QStringList{name, valueInWords(name, one.value(name)),
                           valueInWords(name, other.value(name))};
    };
    if (!compared.hasBase) {
        Console::print(CommandLine::tr("The base %1 is no longer in the catalogue; these are its "
                                       "values of when the preset was made.")
                           .arg(compared.baseId));
    }
    if (own.isEmpty()) {
        Console::print(
            CommandLine::tr("Preset %1 has the values of its base %2.").arg(id, compared.baseId));
    } else {
        QVector<QStringList> table = {{CommandLine::tr("Setting"), compared.baseId, id}};
        for (const QString &name : own) {
            table.append(row(name, compared.base, compared.own));
        }
        Console::printTable(table);
    }
    if (!changed.isEmpty()) {
        Console::print(QString());
        Console::print(CommandLine::tr("The base has changed since the preset was made:"));
        QVector<QStringList> table = {
            {CommandLine::tr("Setting"), CommandLine::tr("Then"), CommandLine::tr("Now")}};
        for (const QString &name : changed) {
            table.append(row(name, compared.formerBase, compared.base));
        }
        Console::printTable(table);
    }
}

Result<ExitCode> diff(const Call &call, PresetStore &store, const QStringList &arguments)
{
    return compare(store, arguments.constFirst()).map([&](const PresetComparison &compared) {
        if (call.options.isSet(jsonFlag)) {
            printJson(compared);
        } else {
            printTable(compared, arguments.constFirst());
        }
        return Success;
    });
}

Result<ExitCode> reset(const Call &, PresetStore &store, const QStringList &arguments)
{
    const QString &id = arguments.constFirst();
    const Result<PresetComparison> compared = compare(store, id);
    if (!compared) {
        return failed(compared);
    }
    const QStringList known = valueNames();
    const QStringList names = arguments.size() > 1 ? QStringList(arguments.mid(1)) : known;
    for (const QString &name : names) {
        if (!known.contains(name)) {
            return wrongUsage(CommandLine::tr("there is no setting \"%1\"; \"vexconvert user diff "
                                              "%2\" lists those that differ%3")
                                  .arg(name, id, didYouMean(name, known)));
        }
    }
    resetToBase(store, *compared, names);
    return saveAndTell(
        store, arguments.size() > 1
                   ? CommandLine::tr("%1 has the %2 of %3 again")
                         .arg(id, names.join(QStringLiteral(", ")), compared->baseId)
                   : CommandLine::tr("%1 has the values of %2 again").arg(id, compared->baseId));
}

Result<ExitCode> undo(const Call &, PresetStore &store, const QStringList &)
{
    return store.undo().and_then([&store](const PresetHistory::Step &step) {
        return saveAndTell(store, CommandLine::tr("undone: %1").arg(step.text()));
    });
}

Result<ExitCode> history(const Call &call, PresetStore &store, const QStringList &)
{
    const QVector<PresetHistory::Step> &steps = store.history().steps();
    if (call.options.isSet(jsonFlag)) {
        Console::printJson(store.history().toJson().toVariantList());
        return Success;
    }
    for (const PresetHistory::Step &step : steps) {
        Console::print(QStringLiteral("%1  %2").arg(
            step.when.toLocalTime().toString(QStringLiteral("yyyy-MM-dd HH:mm")), step.text()));
    }
    if (steps.isEmpty()) {
        Console::print(CommandLine::tr("Nothing has been done that could be undone."));
    }
    return Success;
}

} // namespace

QVector<UserAction> historyActions()
{
    return {
        {QLatin1String("undo"), QString(), 0, 0, UserAction::Writing, undo},
        {QLatin1String("history"), QStringLiteral("[--json]"), 0, 0, UserAction::Reading, history},
        {QLatin1String("diff"), CommandLine::tr("ID [--json]"), 1, 1, UserAction::Reading, diff},
        {QLatin1String("reset"), CommandLine::tr("ID [SETTING...]"), 1, -1, UserAction::Writing,
         reset},
    };
}
