#include "host/app/console.h"
#include "host/commandline/batchreports.h"
#include "host/commandline/convertoptions.h"
#include "host/queue/plannedjob.h"

#include <QDir>
#include <QFile>
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

/*! Reads the jobs of a plan one after another. */
class PlanReader
{
public:
    explicit PlanReader(const QString &path)
        : m_file(path)
    {}

    [[nodiscard]] bool open() { return m_file.open(QIODevice::ReadOnly); }
    [[nodiscard]] QString errorString() const { return m_file.errorString(); }

    /*! The next line's number, from 1, and its job; nothing at the end. Empty lines only count. */
    std::optional<std::pair<int, Result<PlannedJob>>> next()
    {
        while (!m_file.atEnd()) {
            const QByteArray line = m_file.readLine().trimmed();
            ++m_number;
            if (!line.isEmpty()) {
                return std::pair(m_number, PlannedJob::fromLine(line));
            }
        }
        return std::nullopt;
    }

private:
    QFile m_file;
    int m_number = 0;
};

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
    PlanReader plan(path);
    if (!plan.open()) {
        return failed(CommandLine::tr("can't read the plan %1 (%2); check its name")
                          .arg(path, plan.errorString()));
    }
    int unread = 0;
    int found = 0;
    const auto next = [&]() -> std::optional<BatchJob> {
        for (;;) {
            const auto line = plan.next();
            if (!line) {
                return std::nullopt;
            }
            const auto &[number, job] = *line;
            if (index > 0 && number != index) {
                continue;
            }
            ++found;
            if (job) {
                return BatchJob{number, job->conversion(*ifExists)};
            }
            ++unread;
            Console::printError(
                CommandLine::tr("line %1 of %2 %3").arg(number).arg(path, job.error().text));
        }
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
