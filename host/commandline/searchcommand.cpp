#include "host/app/console.h"
#include "host/commandline/commandline.h"
#include "host/commandline/formattable.h"
#include "host/commandline/nearestword.h"
#include "host/presets/find/presetindex.h"

#include "formats/proxy/formatsproxy.h"

#include <limits>

namespace {

const QLatin1String kindOption("kind");
const QLatin1String codecOption("codec");
const QLatin1String sizeOption("size");
const QLatin1String allFlag("all");
const QLatin1String jsonFlag("json");

constexpr int rowsShown = 20;

QString reasonsInWords(const PresetMatch &match)
{
    QStringList reasons;
    for (const PresetMatch::Reason &reason : match.why) {
        // Title and format are in columns of their own.
        const bool isSeen = reason.field == Field::Title || reason.field == Field::Format;
        reasons << (isSeen ? nameOf(reason.field)
                           : nameOf(reason.field) + QLatin1Char(' ') + reason.text);
    }
    reasons.removeDuplicates();
    return reasons.join(QStringLiteral(", "));
}

QVariantMap jsonOf(const PresetMatch &match)
{
    QVariantList why;
    for (const PresetMatch::Reason &reason : match.why) {
        why.append(QVariantMap{{QStringLiteral("word"), reason.typed},
                               {QStringLiteral("field"), nameOf(reason.field)},
                               {QStringLiteral("text"), reason.text}});
    }
    return {{QStringLiteral("id"), match.id},
            {QStringLiteral("title"), match.title},
            {QStringLiteral("format"), match.format},
            {QStringLiteral("tag"), match.tag},
            {QStringLiteral("why"), why}};
}

void printJson(const PresetMatches &matches)
{
    QVariantList presets;
    for (const PresetMatch &match : matches.best) {
        presets.append(jsonOf(match));
    }
    Console::printJson(presets);
}

void printPresets(const PresetMatches &matches)
{
    QVector<QStringList> table = {{CommandLine::tr("Id"), CommandLine::tr("Title"),
                                   CommandLine::tr("Format"), CommandLine::tr("Tag"),
                                   CommandLine::tr("Found by")}};
    for (const PresetMatch &match : matches.best) {
        table.append({match.id, match.title, match.format, match.tag, reasonsInWords(match)});
    }
    Console::printTable(table);
    const int more = matches.count - matches.best.size();
    if (more > 0) {
        Console::print(CommandLine::tr("... %1 more; --all lists them").arg(more));
    }
}

QString nothingFound(const QString &text, const PresetMatches &matches, const PresetIndex &index)
{
    if (matches.unknown.isEmpty()) {
        return CommandLine::tr("No preset has all that \"%1\" asks for; leave out a word or an "
                               "option.")
            .arg(text);
    }
    return CommandLine::tr("No format or preset is known for \"%1\"%2")
        .arg(matches.unknown, didYouMean(matches.unknown, index.words()));
}

Result<ExitCode> runSearch(const Call &call)
{
    const QString text = call.arguments.join(QLatin1Char(' '));
    if (text.isEmpty()) {
        return wrongUsage(CommandLine::tr("give one text to search for: vexconvert search TEXT"));
    }
    const QString kind = call.options.value(kindOption);
    if (!kind.isEmpty() && kind != QLatin1String("video") && kind != QLatin1String("audio")) {
        return wrongUsage(CommandLine::tr("--kind must be video or audio"));
    }
    PresetStore store = presetsOf(call);
    openWhatCanBeRead(store);
    FormatsProxy &formats = store.formats();
    const PresetIndex index(formats);
    const PresetQuery query = {text, kind, call.options.value(codecOption),
                               call.options.value(sizeOption)};
    const bool asJson = call.options.isSet(jsonFlag);
    const bool isEverythingShown = asJson || call.options.isSet(allFlag);
    const PresetMatches matches =
        index.find(query, isEverythingShown ? std::numeric_limits<int>::max() : rowsShown);
    if (asJson) {
        printJson(matches);
        return Success;
    }
    // A format's title says nothing of what the options ask for.
    const bool isFiltered =
        !query.kind.isEmpty() || !query.codec.isEmpty() || !query.size.isEmpty();
    FormatListModelProxy &titled = *formats.formatListModelProxy();
    titled.setSearchKey(text);
    const bool hasFormats = titled.count() > 0 && !isFiltered;
    if (hasFormats) {
        Console::printTable(formatTable(*formats.formatListModel(), titled));
    }
    if (matches.count > 0) {
        if (hasFormats) {
            Console::print(QString());
        }
        printPresets(matches);
    } else if (!hasFormats) {
        Console::print(nothingFound(text, matches, index));
    }
    return Success;
}

} // namespace

Subcommand searchCommand()
{
    return {
        QStringLiteral("search"),
        CommandLine::tr("TEXT [--kind video|audio] [--codec CODEC] [--size SIZE] [--all] "
                        "[--json]"),
        CommandLine::tr("Find formats and presets by what you know of them."),
        CommandLine::tr(
            "\nTEXT can name a format, device, site, codec, file extension, size or purpose, in "
            "any of\nthe window's languages: \"iphone 1080\", \"h265 4k\", \"small\", "
            "\"hörbuch\". All words must\nmatch; the beginning of a word is enough, and a "
            "typing error is forgiven.\n"),
        {valueOption(kindOption, CommandLine::tr("Only presets of this kind: video or audio."),
                     CommandLine::tr("KIND")),
         valueOption(codecOption, CommandLine::tr("Only presets with this codec, such as hevc."),
                     CommandLine::tr("CODEC")),
         valueOption(sizeOption, CommandLine::tr("Only presets of this size, such as 1080 or 4k."),
                     CommandLine::tr("SIZE")),
         QCommandLineOption(allFlag, CommandLine::tr("List more than the first 20 presets.")),
         jsonOption()},
        runSearch};
}
