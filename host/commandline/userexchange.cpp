#include "host/app/console.h"
#include "host/commandline/userpresets.h"
#include "host/files/atomicwrite.h"
#include "host/files/freename.h"
#include "host/presets/exchange/presetfile.h"
#include "host/presets/exchange/presetimport.h"

#include <QFile>
#include <QFileInfo>
#include <QJsonDocument>

#include <algorithm>
#include <cstdio>

namespace {

const QLatin1String jsonFlag("json");
const QLatin1String dryRunFlag("dry-run");
const QLatin1String overwriteFlag("overwrite");
const QLatin1String skipRefusedFlag("skip-refused");
const QLatin1String onConflictOption("on-conflict");
const QLatin1String standardStream("-");

struct ConflictWord
{
    const char *text;
    OnConflict value;
};

constexpr ConflictWord conflictWords[] = {{"keep-both", OnConflict::KeepBoth},
                                          {"replace", OnConflict::Replace},
                                          {"skip", OnConflict::Skip}};

Result<ExitCode> exportPresets(const Call &call, PresetStore &store, const QStringList &arguments)
{
    const QString path = arguments.constLast();
    const QStringList all = store.own().all().keys();
    const QStringList ids =
        arguments.size() > 1 ? QStringList(arguments.mid(0, arguments.size() - 1)) : all;
    if (ids.isEmpty()) {
        return failed(CommandLine::tr("you have no presets of your own to export"));
    }
    QVector<PortablePreset> presets;
    for (const QString &id : ids) {
        const Result<PortablePreset> preset = portable(store, id);
        if (!preset) {
            return failed(preset);
        }
        presets.append(*preset);
    }
    const QByteArray content = presetFile(presets);
    if (path == standardStream) {
        Console::printJson(QJsonDocument::fromJson(content).toVariant());
        return Success;
    }
    if (isTaken(path) && !call.options.isSet(overwriteFlag)) {
        return failed(
            CommandLine::tr("%1 exists already; name another file, or give --overwrite").arg(path));
    }
    const Result<> written = writeAtomically(QFileInfo(path).absoluteFilePath(), content, {});
    if (!written) {
        return failed(CommandLine::tr("can't write %1 (%2); check the folder and its permissions")
                          .arg(path, written.error().text));
    }
    Console::print(CommandLine::tr("%1: %2 presets").arg(path).arg(presets.size()));
    return Success;
}

Result<OnConflict> onConflictOf(const Call &call)
{
    const QString text = call.options.value(onConflictOption);
    QStringList words;
    for (const ConflictWord &word : conflictWords) {
        if (text == QLatin1String(word.text)) {
            return word.value;
        }
        words << QLatin1String(word.text);
    }
    if (text.isEmpty()) {
        return OnConflict::KeepBoth;
    }
    return wrongUsage(CommandLine::tr("--on-conflict is one of %1, not \"%2\"")
                          .arg(words.join(QStringLiteral(", ")), text));
}

Result<PortablePresets> readAll(const QStringList &paths)
{
    PortablePresets all;
    for (const QString &path : paths) {
        QFile input;
        const bool isInput = path == standardStream && input.open(stdin, QIODevice::ReadOnly);
        constexpr qint64 largest = 8LL * 1024 * 1024;
        const Result<PortablePresets> read =
            isInput ? readPresets(input.read(largest), CommandLine::tr("standard input"))
                    : readPresetFile(path);
        if (!read) {
            return failed(read);
        }
        all.presets += read->presets;
        all.refused += read->refused;
    }
    return all;
}

QVector<PlannedImport> acceptedOf(const QVector<PlannedImport> &plan)
{
    QVector<PlannedImport> accepted;
    std::copy_if(plan.begin(), plan.end(), std::back_inserter(accepted),
                 [](const PlannedImport &each) { return each.state != PlannedImport::Refused; });
    return accepted;
}

QString resultInWords(const PlannedImport &plan, OnConflict onConflict)
{
    switch (plan.state) {
    case PlannedImport::New:
        return CommandLine::tr("new");
    case PlannedImport::Same:
        return CommandLine::tr("the same as %1").arg(plan.existing);
    case PlannedImport::Conflict:
        return (onConflict == OnConflict::KeepBoth  ? CommandLine::tr("new, besides %1")
                : onConflict == OnConflict::Replace ? CommandLine::tr("replaces %1")
                                                    : CommandLine::tr("skipped: %1 has the title"))
            .arg(plan.existing);
    case PlannedImport::Refused:
        break;
    }
    return CommandLine::tr("refused: %1").arg(plan.reason);
}

QString verdictText(Finding::Verdict verdict)
{
    return verdict == Finding::Kept           ? QStringLiteral("kept")
           : verdict == Finding::Approximated ? QStringLiteral("approximated")
                                              : QStringLiteral("lost");
}

/*! What is approximated or lost, each once, with the presets that it is said of. */
void printFindings(const QVector<PlannedImport> &plan)
{
    QStringList keys;
    QHash<QString, QStringList> rows;
    QHash<QString, int> counts;
    int kept = 0;
    for (const PlannedImport &each : plan) {
        for (const Finding &finding : each.preset.findings) {
            if (finding.verdict == Finding::Kept) {
                ++kept;
                continue;
            }
            const QStringList row = {finding.setting, finding.value.left(40),
                                     verdictText(finding.verdict), finding.text};
            const QString key = row.join(QLatin1Char('\n'));
            if (!rows.contains(key)) {
                keys << key;
                rows.insert(key, row);
            }
            ++counts[key];
        }
    }
    if (kept == 0 && keys.isEmpty()) {
        return;
    }
    QVector<QStringList> table = {{CommandLine::tr("Setting"), CommandLine::tr("Value"),
                                   CommandLine::tr("Is"), CommandLine::tr("Instead"),
                                   CommandLine::tr("Presets")}};
    for (const QString &key : qAsConst(keys)) {
        table.append(rows.value(key) + QStringList{QString::number(counts.value(key))});
    }
    Console::print(QString());
    if (!keys.isEmpty()) {
        Console::printTable(table);
    }
    Console::print(CommandLine::tr("Settings kept as they are: %1").arg(kept));
}

void printPlan(const QVector<PlannedImport> &plan, OnConflict onConflict)
{
    QVector<QStringList> table = {
        {CommandLine::tr("Title"), CommandLine::tr("Format"), CommandLine::tr("Result")}};
    for (const PlannedImport &each : plan) {
        table.append({each.preset.title.left(60), each.className, resultInWords(each, onConflict)});
    }
    Console::printTable(table);
    for (const PlannedImport &each : plan) {
        if (each.state != PlannedImport::Refused && !each.reason.isEmpty()) {
            Console::print(QStringLiteral("%1: %2").arg(each.preset.title, each.reason));
        }
    }
    printFindings(plan);
}

QVariantMap jsonOf(const PlannedImport &plan)
{
    static const QHash<int, QString> states = {
        {PlannedImport::New, QStringLiteral("new")},
        {PlannedImport::Same, QStringLiteral("same")},
        {PlannedImport::Conflict, QStringLiteral("conflict")},
        {PlannedImport::Refused, QStringLiteral("refused")}};
    QVariantList findings;
    for (const Finding &finding : plan.preset.findings) {
        findings.append(QVariantMap{{QStringLiteral("setting"), finding.setting},
                                    {QStringLiteral("value"), finding.value},
                                    {QStringLiteral("verdict"), verdictText(finding.verdict)},
                                    {QStringLiteral("text"), finding.text}});
    }
    QVariantMap values;
    for (auto value = plan.preset.values.begin(); value != plan.preset.values.end(); ++value) {
        values.insert(value.key(), *value);
    }
    return {{QStringLiteral("title"), plan.preset.title},
            {QStringLiteral("format"), plan.className},
            {QStringLiteral("state"), states.value(plan.state)},
            {QStringLiteral("existing"), plan.existing},
            {QStringLiteral("reason"), plan.reason},
            {QStringLiteral("settings"), values},
            {QStringLiteral("findings"), findings}};
}

Result<ExitCode> importFiles(const Call &call, PresetStore &store, const QStringList &arguments)
{
    const Result<OnConflict> onConflict = onConflictOf(call);
    if (!onConflict) {
        return failed(onConflict);
    }
    const bool isDryRun = call.options.isSet(dryRunFlag);
    const Result<PortablePresets> presets = readAll(arguments);
    if (!presets) {
        return failed(presets);
    }
    const Result<> opened = isDryRun ? store.open(PresetStore::ReadOnly) : openToWrite(store);
    if (!opened) {
        return failed(opened);
    }
    const QVector<PlannedImport> plan = planImport(store, *presets);
    const bool asJson = call.options.isSet(jsonFlag);
    if (!asJson) {
        printPlan(plan, *onConflict);
    }
    Result<QStringList> ids;
    if (!isDryRun) {
        const QVector<PlannedImport> wanted =
            call.options.isSet(skipRefusedFlag) ? acceptedOf(plan) : plan;
        ids = importPresets(store, wanted, *onConflict).and_then([&store](const QStringList &made) {
            return store.save().map([&made] { return made; });
        });
    }
    if (asJson) {
        QVariantList list;
        for (const PlannedImport &each : plan) {
            list.append(jsonOf(each));
        }
        Console::printJson(QVariantMap{{QStringLiteral("presets"), list},
                                       {QStringLiteral("imported"), ids.value_or(QStringList())}});
    }
    if (!ids) {
        return failed(ids);
    }
    if (!asJson && !isDryRun) {
        Console::print(QString());
        Console::print(ids->isEmpty()
                           ? CommandLine::tr("nothing is imported")
                           : CommandLine::tr("imported: %1").arg(ids->join(QStringLiteral(", "))));
    }
    return Success;
}

} // namespace

QVector<UserAction> exchangeActions()
{
    return {
        {QLatin1String("export"), CommandLine::tr("[ID...] FILE [--overwrite]"), 1, -1,
         UserAction::Reading, exportPresets},
        {QLatin1String("import"),
         CommandLine::tr("FILE... [--dry-run] [--on-conflict keep-both|replace|skip] "
                         "[--skip-refused] [--json]"),
         1, -1, UserAction::Nothing, importFiles},
    };
}

QList<QCommandLineOption> exchangeOptions()
{
    return {
        {dryRunFlag, CommandLine::tr("\"import\" only says what it would do.")},
        {skipRefusedFlag,
         CommandLine::tr("\"import\" takes the other presets where some are refused.")},
        valueOption(onConflictOption,
                    CommandLine::tr("What \"import\" does where you have another preset with the "
                                    "title: keep-both (the default), replace or skip."),
                    CommandLine::tr("WHAT")),
        {overwriteFlag, CommandLine::tr("\"export\" replaces a file that exists.")},
    };
}
