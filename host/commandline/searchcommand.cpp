#include "host/app/console.h"
#include "host/commandline/commandline.h"
#include "host/commandline/favorites.h"
#include "host/commandline/fitness.h"
#include "host/commandline/formattable.h"
#include "host/commandline/nearestword.h"
#include "host/presets/find/presetindex.h"

#include "formats/proxy/formatsproxy.h"

#include <limits>

namespace {

const QLatin1String kindOption("kind");
const QLatin1String codecOption("codec");
const QLatin1String sizeOption("size");
const QLatin1String forOption("for");
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

/*! A preset that was found, and whether it can be used. */
struct Answer
{
    PresetMatch match;
    QString problem; //!< empty: it can
    QString instead; //!< id of the nearest one that can; empty: none, or no problem
};

QVariantMap jsonOf(const Answer &answer)
{
    const PresetMatch &match = answer.match;
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
            {QStringLiteral("why"), why},
            {QStringLiteral("problem"), answer.problem},
            {QStringLiteral("instead"), answer.instead}};
}

void printJson(const QVector<Answer> &answers)
{
    QVariantList presets;
    for (const Answer &answer : answers) {
        presets.append(jsonOf(answer));
    }
    Console::printJson(presets);
}

void printPresets(const QVector<Answer> &answers, int more)
{
    QVector<QStringList> table = {{CommandLine::tr("Id"), CommandLine::tr("Title"),
                                   CommandLine::tr("Format"), CommandLine::tr("Tag"),
                                   CommandLine::tr("Found by")}};
    for (const Answer &answer : answers) {
        const PresetMatch &match = answer.match;
        table.append({match.id, match.title, match.format, match.tag, reasonsInWords(match)});
    }
    Console::printTable(table);
    if (more > 0) {
        Console::print(CommandLine::tr("... %1 more; --all lists them").arg(more));
    }
    for (const Answer &answer : answers) {
        if (!answer.problem.isEmpty()) {
            Console::print(problemInWords(answer.match.id, answer.problem, answer.instead));
        }
    }
}

/*! What can't be used is marked; without ffmpeg, nothing is known of it. */
QVector<Answer> answersTo(const PresetMatches &matches, const PresetStore &store,
                          const Result<Fitness> &fitness)
{
    QVector<Answer> answers;
    for (const PresetMatch &match : matches.best) {
        Answer answer{match, {}, {}};
        const std::optional<FoundPreset> preset = store.find(match.id);
        if (fitness && preset) {
            answer.problem = fitness->problemWith(*preset);
            answer.instead =
                answer.problem.isEmpty() ? QString() : fitness->nearestTo(*preset, store);
        }
        answers.append(answer);
    }
    return answers;
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
    const PresetIndex index(formats, {favoritesOf(store).ids(), store.notes().texts()});
    const PresetQuery query = {text, kind, call.options.value(codecOption),
                               call.options.value(sizeOption)};
    const bool asJson = call.options.isSet(jsonFlag);
    const bool isEverythingShown = asJson || call.options.isSet(allFlag);
    const PresetMatches matches =
        index.find(query, isEverythingShown ? std::numeric_limits<int>::max() : rowsShown);
    const QString source = call.options.value(forOption);
    const Result<Fitness> fitness = fitnessFor(source);
    if (!fitness && !source.isEmpty()) {
        return failed(fitness);
    }
    const QVector<Answer> answers = answersTo(matches, store, fitness);
    if (asJson) {
        printJson(answers);
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
        printPresets(answers, matches.count - answers.size());
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
        CommandLine::tr("TEXT [--kind video|audio] [--codec CODEC] [--size SIZE] [--for FILE] "
                        "[--all] [--json]"),
        CommandLine::tr("Find formats and presets by what you know of them."),
        CommandLine::tr(
            "\nTEXT can name a format, device, site, codec, file extension, size or purpose, in "
            "any of\nthe window's languages: \"iphone 1080\", \"h265 4k\", \"small\", "
            "\"hörbuch\". All words must\nmatch; the beginning of a word is enough, and a "
            "typing error is forgiven.\nYour favorites come first, then what you used recently. "
            "Presets that this ffmpeg, or the FILE\nof --for, doesn't allow are named, each with "
            "the nearest one that can be used.\n"),
        {valueOption(kindOption, CommandLine::tr("Only presets of this kind: video or audio."),
                     CommandLine::tr("KIND")),
         valueOption(codecOption, CommandLine::tr("Only presets with this codec, such as hevc."),
                     CommandLine::tr("CODEC")),
         valueOption(sizeOption, CommandLine::tr("Only presets of this size, such as 1080 or 4k."),
                     CommandLine::tr("SIZE")),
         sourceOption(),
         QCommandLineOption(allFlag, CommandLine::tr("List more than the first 20 presets.")),
         jsonOption()},
        runSearch};
}
