#include "host/app/console.h"
#include "host/commandline/commandline.h"
#include "host/commandline/fitness.h"
#include "host/commandline/fitting.h"
#include "host/commandline/formattable.h"
#include "host/commandline/nearestword.h"
#include "host/commandline/presettable.h"

#include "formats/models/formatdetailmodel.h"
#include "formats/models/formatdetailmodeldata.h"
#include "formats/models/formatlistmodel.h"
#include "formats/models/formatlistmodelproxy.h"
#include "formats/proxy/formatsproxy.h"
#include "host/presets/presetstore.h"

#include <QQueue>

namespace {

const QLatin1String tagOption("tag");
const QLatin1String jsonFlag("json");

void printFormats(const FormatListModel &formats, const QAbstractItemModel &shown, bool asJson)
{
    if (!asJson) {
        Console::printTable(formatTable(formats, shown));
        return;
    }
    QVariantList json;
    for (int row = 0; row < shown.rowCount(); ++row) {
        const QModelIndex index = shown.index(row, 0);
        const QString title = index.data(FormatListModel::TitleRole).toString();
        json.append(QVariantMap{{QStringLiteral("title"), title},
                                {QStringLiteral("tag"), index.data(FormatListModel::TagRole)},
                                {QStringLiteral("icon"), index.data(FormatListModel::IconRole)},
                                {QStringLiteral("presets"), presetCount(formats, title)}});
    }
    Console::printJson(json);
}

/*! The exact title of a format, found case-insensitively; empty if there is none. */
QString formatTitled(const FormatListModel &formats, const QString &name)
{
    if (formats.isExist(name)) {
        return name;
    }
    for (int row = 0; row < formats.rowCount(); ++row) {
        if (formats.getTitle(row).compare(name, Qt::CaseInsensitive) == 0) {
            return formats.getTitle(row);
        }
    }
    return {};
}

QStringList titlesOf(const FormatListModel &formats)
{
    QStringList titles;
    for (int row = 0; row < formats.rowCount(); ++row) {
        titles << formats.getTitle(row);
    }
    return titles;
}

Result<ExitCode> runFormats(const Call &call)
{
    if (!call.arguments.isEmpty()) {
        return wrongUsage(CommandLine::tr("\"formats\" takes no arguments but options"));
    }
    PresetStore store = presetsOf(call);
    openWhatCanBeRead(store);
    FormatsProxy &formats = store.formats();
    const FormatListModel &all = *formats.formatListModel();
    if (!call.options.isSet(tagOption)) {
        printFormats(all, all, call.options.isSet(jsonFlag));
        return Success;
    }
    const QString tag = call.options.value(tagOption);
    QStringList tags;
    const QVariantList known = formats.formatTags();
    for (const QVariant &each : known) {
        tags << each.toString();
    }
    tags.removeAll(QStringLiteral("recently"));
    if (!tags.contains(tag, Qt::CaseInsensitive)) {
        return wrongUsage(CommandLine::tr("there is no tag \"%1\"; choose one of %2")
                              .arg(tag, tags.join(QStringLiteral(", "))));
    }
    formats.setFormatTag(tag);
    printFormats(all, *formats.formatListModelProxy(), call.options.isSet(jsonFlag));
    return Success;
}

Result<ExitCode> runPresets(const Call &call)
{
    if (call.arguments.size() > 1) {
        return wrongUsage(CommandLine::tr("give one format, or none to list the presets of all: "
                                          "vexconvert presets FORMAT"));
    }
    PresetStore store = presetsOf(call);
    openWhatCanBeRead(store);
    const FormatListModel &formats = *store.formats().formatListModel();
    QStringList titles = titlesOf(formats);
    for (const QString &name : call.arguments) {
        const QString title = formatTitled(formats, name);
        if (title.isEmpty()) {
            return wrongUsage(
                CommandLine::tr("there is no format \"%1\"; \"vexconvert formats\" lists "
                                "them, \"vexconvert search TEXT\" finds one%2")
                    .arg(name, didYouMean(name, titles)));
        }
        titles = QStringList(title);
    }
    QQueue<FormatDetailModelData> records;
    for (const QString &title : qAsConst(titles)) {
        formats.formatDetailModel(title)->getModelInfo(records); // appends
    }
    QVector<QVariantMap> presets;
    QVariantList json;
    for (const FormatDetailModelData &record : qAsConst(records)) {
        QVariantMap preset = record.toVarMap();
        presets.append(preset);
        preset.insert(QStringLiteral("userDefine"), record.userDefine);
        json.append(preset);
    }
    if (call.options.isSet(jsonFlag)) {
        Console::printJson(json);
    } else {
        Console::printTable(presetTable(presets));
    }
    return Success;
}

/*! The rows that only a preset of the user's has. */
QVector<QStringList> rowsOfOwn(PresetStore &store, const FoundPreset &preset)
{
    const QString id = preset.map.value(QStringLiteral("id")).toString();
    const PresetNote note = store.notes().of(id);
    const QVariantMap base = store.own().baseOf(id);
    QVector<QStringList> rows;
    if (!note.base.isEmpty()) {
        const QString form = base.isEmpty() ? CommandLine::tr("%1, which is gone")
                             : valuesOf(base) != note.baseValues
                                 ? CommandLine::tr("%1, which has changed since; see \"user diff\"")
                                 : QStringLiteral("%1");
        rows.append({CommandLine::tr("Base"), form.arg(note.base)});
    }
    if (!note.text.isEmpty()) {
        rows.append({CommandLine::tr("Note"), note.text});
    }
    return rows;
}

void printSettings(PresetStore &store, const FoundPreset &preset)
{
    const auto text = [&preset](const QString &key) { return preset.map.value(key).toString(); };
    QVector<QStringList> facts = {
        {CommandLine::tr("Id"), text(QStringLiteral("id"))},
        {CommandLine::tr("Title"), text(QStringLiteral("title"))},
        {CommandLine::tr("Format"), preset.className.isEmpty()
                                        ? CommandLine::tr("(only among the recently used)")
                                        : preset.className},
        {CommandLine::tr("Tag"), preset.tag},
        {CommandLine::tr("File"), text(QStringLiteral("extension"))},
        {CommandLine::tr("Made by"),
         preset.isUserDefined ? CommandLine::tr("you") : CommandLine::tr("the catalogue")},
    };
    if (preset.isUserDefined) {
        facts += rowsOfOwn(store, preset);
    }
    Console::printTable(facts);
    QVector<QStringList> table = {
        {CommandLine::tr("Setting"), CommandLine::tr("Value"), CommandLine::tr("Choices")}};
    for (const PresetSetting &setting : presetSettings()) {
        if (!preset.map.contains(setting.group)) {
            continue;
        }
        QStringList choices = setting.choices(preset.map);
        for (QString &choice : choices) {
            if (choice == QLatin1String("0")) {
                choice = CommandLine::tr("0 (%1)").arg(setting.zeroWord);
            }
        }
        table.append({setting.label, setting.inWords(setting.value(preset.map)),
                      choices.join(QStringLiteral(", "))});
    }
    Console::print(QString());
    Console::printTable(table);
}

Result<ExitCode> runShow(const Call &call)
{
    if (call.arguments.size() != 1) {
        return wrongUsage(CommandLine::tr("give one preset id: vexconvert show ID"));
    }
    PresetStore store = presetsOf(call);
    openWhatCanBeRead(store);
    const Result<FoundPreset> preset = findPreset(store, call.arguments.constFirst());
    if (!preset) {
        return failed(preset);
    }
    const QString source = call.options.value(QStringLiteral("for"));
    const Result<Fitness> fitness = fitnessFor(source);
    if (!fitness && !source.isEmpty()) {
        return failed(fitness);
    }
    const QString problem = fitness ? fitness->problemWith(*preset) : QString();
    const QString instead = problem.isEmpty() ? QString() : fitness->nearestTo(*preset, store);
    if (call.options.isSet(jsonFlag)) {
        QVariantMap map = preset->map;
        map.insert(QStringLiteral("problem"), problem);
        map.insert(QStringLiteral("instead"), instead);
        map.insert(QStringLiteral("tag"), preset->tag);
        map.insert(QStringLiteral("class"), preset->className);
        map.insert(QStringLiteral("userDefine"), preset->isUserDefined);
        Console::printJson(map);
    } else {
        printSettings(store, *preset);
        if (!problem.isEmpty()) {
            Console::print(QString());
            Console::print(problemInWords(call.arguments.constFirst(), problem, instead));
        }
    }
    return Success;
}

Result<ExitCode> runFit(const Call &call)
{
    if (!call.arguments.isEmpty()) {
        return wrongUsage(CommandLine::tr("\"fit\" takes no arguments but options"));
    }
    PresetStore store = presetsOf(call);
    openWhatCanBeRead(store);
    const Result<QVariantMap> preset = fittingPreset(call.options, store.formats());
    if (!preset) {
        return failed(preset);
    }
    Console::printJson(*preset);
    return Success;
}

} // namespace

QVector<Subcommand> catalogueCommands()
{
    const QCommandLineOption tag = valueOption(
        tagOption,
        CommandLine::tr("Only formats with this tag: video, audio, device, socialvideo."),
        CommandLine::tr("TAG"));
    return {
        {QStringLiteral("formats"),
         CommandLine::tr("[--tag TAG] [--json]"),
         CommandLine::tr("List the output formats."),
         {},
         {tag, jsonOption()},
         runFormats},
        {QStringLiteral("presets"),
         CommandLine::tr("[FORMAT] [--json]"),
         CommandLine::tr("List the presets of a format, or of all."),
         CommandLine::tr("\n\"source\" keeps the source's own value, \"auto\" lets the encoder "
                         "choose the bitrate. A video\nbitrate is the most that a result may have; "
                         "easy content gets less.\n"),
         {jsonOption()},
         runPresets},
        {QStringLiteral("show"),
         CommandLine::tr("ID [--for FILE] [--json]"),
         CommandLine::tr("Show the settings of a preset and their choices."),
         CommandLine::tr(
             "\nA preset that this ffmpeg, or the FILE of --for, doesn't allow is told, "
             "with the nearest one\nthat can be used.\n"),
         {sourceOption(), jsonOption()},
         runShow},
        {QStringLiteral("fit"),
         CommandLine::tr("--type video|audio --format FORMAT --target TARGET [--prefer-source]"),
         CommandLine::tr("Find the preset closest to a size or bitrate and print it as JSON."),
         CommandLine::tr("\nIf there is no preset, nothing is printed and the exit code is 1. An "
                         "unknown format is\nreplaced by MP4 or MP3.\n"),
         fittingOptions(), runFit},
    };
}
