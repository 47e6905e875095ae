#include "host/commandline/batchreports.h"
#include "host/commandline/convertoptions.h"
#include "host/commandline/mediaoptions.h"
#include "host/queue/resultlog.h"

namespace {

const QLatin1String dryRunFlag("dry-run");
const QLatin1String verboseFlag("verbose");
const QLatin1String retryOption("retry-failed");

/*! Keeps only the files that failed before, if the options say so. */
Result<> keepFailed(const Call &call, ConvertRequest &request)
{
    if (!call.options.isSet(retryOption)) {
        return {};
    }
    return sourcesToRetry(call.options.value(retryOption))
        .map([&request](const QSet<QString> &sources) {
            request.files.keepOnly(sources);
            request.count = sources.size();
        });
}

/*! Converts only a part of each file, if the options say so. */
Result<> takeSample(const Call &call, ConvertRequest &request)
{
    const Result<std::optional<SamplePart>> sample = wantedSample(call);
    if (!sample) {
        return failed(sample);
    }
    const OutputSettings &settings = request.prototype.settings;
    const bool isCut = settings.start > 0 || settings.end > 0 || settings.stillSeconds > 0;
    if (*sample && (isCut || settings.targetBytes > 0)) {
        return wrongUsage(CommandLine::tr("--sample chooses the part itself; leave out --start, "
                                          "--end, --duration and --fit-size"));
    }
    request.prototype.sample = *sample;
    if (!*sample || !request.name.isEmpty()) {
        return {};
    }
    const QString field = QStringLiteral("name");
    return NameTemplate::fromText(CommandLine::tr("{%1} sample").arg(field), {field})
        .map([&request](const NameTemplate &name) { request.name = name; });
}

/*! The files one after another, as jobs. */
Batch::NextJob jobsFor(const ConvertRequest &request)
{
    QVector<SourceFile> files;
    request.files.each([&files](const SourceFile &file) { files.append(file); });
    return [request, files, number = 0]() mutable -> std::optional<BatchJob> {
        if (number == files.size()) {
            return std::nullopt;
        }
        ++number;
        return BatchJob{number, request.jobFor(files.at(number - 1), number)};
    };
}

Result<ExitCode> runConvert(const Call &call)
{
    const bool isVerbose = call.options.isSet(verboseFlag);
    const bool isQuiet = call.options.isSet(quietFlag()) && !isVerbose;
    if (isVerbose && call.options.isGiven(quietFlag())) {
        return wrongUsage(CommandLine::tr("choose one of --quiet and --verbose"));
    }
    const Result<int> sideBySide = jobsOf(call);
    if (!sideBySide) {
        return failed(sideBySide);
    }
    const bool isDryRun = call.options.isSet(dryRunFlag);
    Result<ConvertRequest> request =
        requestForFiles(call, isDryRun ? Noting::Nowhere : Noting::AsUsed);
    if (!request) {
        return failed(request);
    }
    const Result<> kept =
        keepFailed(call, *request).and_then([&] { return takeSample(call, *request); });
    if (!kept) {
        return failed(kept);
    }
    request->prototype.planOnly = isDryRun;
    request->prototype.isLogged = isVerbose;
    // The commands of a dry run are printed in the files' order.
    const int jobs = isDryRun ? 1 : *sideBySide;
    if (call.options.isSet(jsonOption().names().constFirst())) {
        JsonReport report(JsonReport::All);
        return Batch(jobsFor(*request), jobs, report).run().isSuccess() ? Success : Failure;
    }
    TextReport report(request->count, isQuiet     ? TextReport::Quiet
                                      : isVerbose ? TextReport::Verbose
                                                  : TextReport::Normal);
    const BatchSummary summary = Batch(jobsFor(*request), jobs, report).run();
    if (!isDryRun) {
        report.ended(summary);
    }
    return summary.isSuccess() ? Success : Failure;
}

} // namespace

QVector<Subcommand> convertCommands()
{
    const QList<QCommandLineOption> own = {
        jobsOption(),
        jsonOption(),
        quietOption(),
        {verboseFlag, CommandLine::tr("Print ffmpeg's commands and logs, on standard error.")},
        valueOption(retryOption,
                    CommandLine::tr("Convert only those of the files that have no result in the "
                                    "LOG of an earlier run with --json."),
                    CommandLine::tr("LOG")),
        sampleOption(),
        {dryRunFlag, CommandLine::tr("Only print the ffmpeg commands, and the most bytes that each "
                                     "result may have.")},
    };
    return {
        {QStringLiteral("convert"),
         CommandLine::tr(
             "FILE|DIR|-... (--preset ID | --type TYPE --format FORMAT --target TARGET) [options]"),
         CommandLine::tr("Convert files with a preset."),
         CommandLine::tr(
             "\nThe preset is named by its id, or found as \"vexconvert fit\" does. Of a folder, "
             "its media\nfiles are converted. \"-\" stands for a list of files on standard input, "
             "one per line or\neach ended by a NUL.\n"
             "\n"
             "A result is named after its source; where the name is taken it becomes \"name "
             "(2)\",\nunless --if-exists says otherwise. A source is never written over. With "
             "\"--if-exists skip\"\na run that was interrupted goes on where it stopped: a result "
             "is complete or absent.\nOne file that fails doesn't stop the others, and leaves "
             "nothing behind. What a result\ncan't hold of its source is named. The exit code is "
             "1 when any failed or ended earlier\nthan its source. ffmpeg and ffprobe do the work "
             "and must be on the PATH.\n"),
         own + convertOptions(), runConvert},
    };
}
