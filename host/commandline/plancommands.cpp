#include "host/app/console.h"
#include "host/commandline/batchreports.h"
#include "host/commandline/convertoptions.h"
#include "host/queue/planjobs.h"

#include <QFileInfo>

namespace {

const QLatin1String indexOption("index");

Result<ExitCode> runPlan(const Call &call)
{
    const Result<ConvertRequest> request = requestForFiles(call, Noting::AsUsed);
    if (!request) {
        return failed(request);
    }
    Result<> done;
    int number = 0;
    request->files.each([&](const SourceFile &file) {
        if (!done) {
            return;
        }
        const ConversionJob job = request->jobFor(file, ++number);
        const Result<QString> target = fixedTarget(job);
        if (!target) {
            done = failed(target);
            return;
        }
        const QFileInfo source(file.path);
        PlannedJob planned;
        planned.source = source.absoluteFilePath();
        planned.target = *target;
        planned.preset = request->preset.map;
        planned.settings = job.settings;
        planned.keepDates = job.keepDates;
        planned.cost = double(source.size());
        Console::printJsonLine(planned.toLine());
    });
    return done.map([] { return Success; });
}

Result<ExitCode> runPlannedJobs(const Call &call)
{
    if (call.arguments.size() != 1) {
        return wrongUsage(CommandLine::tr("name one plan: vexconvert run PLAN"));
    }
    const Result<int> sideBySide = jobsOf(call);
    const Result<OutputTarget::IfExists> ifExists = ifExistsOf(call, true);
    if (!sideBySide || !ifExists) {
        return sideBySide ? failed(ifExists) : failed(sideBySide);
    }
    const int index = call.options.value(indexOption).toInt();
    if (call.options.isSet(indexOption) && index < 1) {
        return wrongUsage(CommandLine::tr("--index takes the number of a line, from 1"));
    }
    const QString path = call.arguments.constFirst();
    PlanJobs plan;
    const Result<> opened = plan.open(path);
    if (!opened) {
        return failed(opened);
    }
    int unread = 0;
    int found = 0;
    const auto next = [&]() -> std::optional<BatchJob> {
        while (const std::optional<PlanLine> line = plan.next()) {
            if (index > 0 && line->place.index != index) {
                continue;
            }
            ++found;
            if (line->job) {
                return BatchJob{line->place.index, line->job->conversion(*ifExists)};
            }
            ++unread;
            Console::printError(line->job.error().text);
        }
        return std::nullopt;
    };
    JsonReport report(JsonReport::OnlyResults);
    const BatchSummary summary = Batch(next, *sideBySide, report).run();
    if (found == 0) {
        return failed(index > 0
                          ? CommandLine::tr("the plan %1 has no line %2").arg(path).arg(index)
                          : CommandLine::tr("the plan %1 has no jobs; make it again").arg(path));
    }
    return summary.isSuccess() && unread == 0 ? Success : Failure;
}

} // namespace

QVector<Subcommand> planCommands()
{
    return {
        {QStringLiteral("plan"), CommandLine::tr("FILE|DIR|-... --preset ID --to DIR [options]"),
         CommandLine::tr("Plan conversions for other machines or a later time."),
         CommandLine::tr("\nPrints a job per line, with the names of the results as of now. "
                         "\"vexconvert run\" runs\nthem, and needs neither presets nor other "
                         "configuration for it.\n"),
         convertOptions(), runPlan},
        {QStringLiteral("run"),
         CommandLine::tr("PLAN [--index N] [options]"),
         CommandLine::tr("Run the jobs of a plan, or one of them."),
         CommandLine::tr("\nPrints the result of each job as a line of JSON. The same command "
                         "again runs what isn't\nconverted yet. The exit code is 1 when any job "
                         "failed.\n"),
         {valueOption(indexOption, CommandLine::tr("Run only the job on this line, from 1."),
                      CommandLine::tr("N")),
          ifExistsOption(true), jobsOption()},
         runPlannedJobs},
    };
}
