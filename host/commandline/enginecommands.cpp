#include "host/app/console.h"
#include "host/commandline/commandline.h"
#include "host/commandline/convertoptions.h"
#include "host/queue/engines/parallelengine.h"
#include "host/queue/engines/planstatus.h"
#include "host/queue/engines/slurmengine.h"
#include "host/queue/engines/submissionfolder.h"

#include <QCoreApplication>
#include <QDir>
#include <QJsonDocument>

#include <algorithm>

namespace {

const QLatin1String engineOption("engine");
const QLatin1String hostsOption("hosts");
const QLatin1String jobsName("jobs");
const QLatin1String partitionOption("partition");
const QLatin1String programOption("program");

/*! Fails while Slurm has tasks of the plan's last submission. */
Result<> refuseWhileQueued(const SubmissionFolder &folder)
{
    const auto tasks = SlurmEngine(folder).tasks();
    if (!tasks) {
        return failed(tasks);
    }
    if (!tasks->isEmpty()) {
        return failed(
            CommandLine::tr("Slurm is still converting this plan; wait until \"vexconvert "
                            "status\" tells of nothing that runs or waits, or stop it "
                            "with \"scancel --name=%1\"")
                .arg(folder.plainName()),
            Error::InUse);
    }
    return {};
}

/*! Where the machines find vexconvert. */
QString programOf(const Call &call)
{
    const QString named = call.options.value(programOption);
    return named.isEmpty() ? QStringLiteral("vexconvert") : named;
}

Result<ExitCode> submitToSlurm(const Call &call, PlanJobs &plan, SubmissionFolder &folder,
                               const QVector<JobPlace> &jobs)
{
    const SlurmEngine engine(folder);
    const auto submitted =
        engine.prepare().and_then([&folder] { return folder.clear(); }).and_then([&] {
            return engine.submit(plan, jobs,
                                 {call.options.value(partitionOption), programOf(call)});
        });
    if (!submitted) {
        return failed(submitted);
    }
    Console::print(CommandLine::tr("%1 jobs are with Slurm as job %2 in %3 tasks; \"vexconvert "
                                   "status\" tells how far they are")
                       .arg(jobs.size())
                       .arg(submitted->id)
                       .arg(submitted->tasks));
    return Success;
}

Result<ExitCode> submitToParallel(const Call &call, PlanJobs &plan, SubmissionFolder &folder,
                                  const QVector<JobPlace> &jobs)
{
    SshHosts hosts;
    const Result<> named = call.options.isSet(hostsOption)
                               ? hosts.setNames(call.options.value(hostsOption))
                               : Result<>();
    if (!named) {
        return failed(named);
    }
    const Result<int> sideBySide = jobsOf(call);
    if (!sideBySide) {
        return failed(sideBySide);
    }
    const bool isHereOnly = hosts.remote().isEmpty() && !call.options.isSet(programOption);
    ParallelEngine engine(plan, folder, hosts,
                          {isHereOnly ? QCoreApplication::applicationFilePath() : programOf(call),
                           std::max(1, *sideBySide)});
    bool isAllDone = true;
    QObject::connect(&engine, &ParallelEngine::ended, [&isAllDone](const QJsonObject &line) {
        isAllDone = isAllDone && line[QLatin1String("isComplete")].toBool();
        Console::printJsonLine(QJsonDocument(line).toJson(QJsonDocument::Compact));
    });
    const Result<int> left =
        engine.prepare().and_then([&folder] { return folder.clear(); }).and_then([&] {
            return engine.run(jobs);
        });
    if (!left) {
        return failed(left);
    }
    if (*left > 0) {
        const QString trouble = engine.firstTrouble();
        return failed(CommandLine::tr("%1 of %2 jobs have no result (%3); see %4, and submit the "
                                      "plan again: that converts only what has no result")
                          .arg(QString::number(*left), QString::number(jobs.size()),
                               trouble.isEmpty() ? CommandLine::tr("stopped") : trouble,
                               QDir::toNativeSeparators(engine.logPath())));
    }
    return isAllDone ? Success : Failure;
}

using Submit = Result<ExitCode> (*)(const Call &call, PlanJobs &plan, SubmissionFolder &folder,
                                    const QVector<JobPlace> &jobs);

/*! The engine that the options name. */
Result<Submit> chosenEngine(const Call &call)
{
    struct Engine
    {
        QLatin1String name;
        Submit submit;
        QList<QLatin1String> options; //!< its own
    };
    static const Engine engines[] = {
        {QLatin1String("parallel"), submitToParallel, {hostsOption, jobsName}},
        {QLatin1String("slurm"), submitToSlurm, {partitionOption}},
    };
    const QString name = call.options.value(engineOption);
    Submit chosen = nullptr;
    for (const Engine &engine : engines) {
        if (engine.name == name) {
            chosen = engine.submit;
            continue;
        }
        for (const QLatin1String &option : engine.options) {
            if (call.options.isGiven(option)) {
                return wrongUsage(
                    CommandLine::tr("--%1 is only for --engine %2").arg(option, engine.name));
            }
        }
    }
    if (chosen == nullptr) {
        return wrongUsage(CommandLine::tr("choose an engine: --engine parallel or --engine slurm"));
    }
    return chosen;
}

Result<ExitCode> runSubmit(const Call &call)
{
    if (call.arguments.size() != 1) {
        return wrongUsage(CommandLine::tr("name one plan: vexconvert submit PLAN --engine ENGINE"));
    }
    const Result<Submit> submit = chosenEngine(call);
    if (!submit) {
        return failed(submit);
    }
    PlanJobs plan;
    SubmissionFolder folder(call.arguments.constFirst());
    const Result<QVector<JobPlace>> jobs =
        plan.open(call.arguments.constFirst())
            .and_then([&folder] { return folder.lock(); })
            .and_then([&folder] { return refuseWhileQueued(folder); })
            .and_then([&plan] { return plan.undone(); });
    if (!jobs) {
        return failed(jobs);
    }
    if (jobs->isEmpty()) {
        Console::print(CommandLine::tr("all jobs have their results; nothing is left to convert"));
        return Success;
    }
    return (*submit)(call, plan, folder, *jobs);
}

void printFailure(const JobResult &result)
{
    const QString line = QStringLiteral("%1: %2").arg(result.source, result.error);
    Console::print(result.host.isEmpty() ? line : QStringLiteral("%1 (%2)").arg(line, result.host));
}

Result<ExitCode> runStatus(const Call &call)
{
    if (call.arguments.size() > 1) {
        return wrongUsage(CommandLine::tr("name one plan: vexconvert status [PLAN]"));
    }
    const QString path =
        call.arguments.isEmpty() ? QStringLiteral("jobs.jsonl") : call.arguments.constFirst();
    PlanJobs plan;
    const SubmissionFolder folder(path);
    const Result<PlanStatus> status =
        plan.open(path).and_then([&] { return planStatus(plan, folder, printFailure); });
    if (!status) {
        return failed(status);
    }
    struct Count
    {
        int jobs;
        QString text;
    };
    const Count counts[] = {
        {status->converted, CommandLine::tr("%1 converted")},
        {status->skipped, CommandLine::tr("%1 skipped: their results were there before")},
        {status->failed, CommandLine::tr("%1 failed")},
        {status->running, CommandLine::tr("%1 running")},
        {status->waiting, CommandLine::tr("%1 waiting")},
        {status->underWay, CommandLine::tr("%1 waiting or running")},
        {status->left(), CommandLine::tr("%1 without a result, and with no engine")},
    };
    Console::print(CommandLine::tr("%1 jobs").arg(status->jobs));
    for (const Count &count : counts) {
        if (count.jobs > 0) {
            Console::print(QStringLiteral("  ") + count.text.arg(count.jobs));
        }
    }
    if (!status->engineError.isEmpty()) {
        Console::printError(status->engineError);
    }
    if (status->failed + status->left() > 0 && !status->isUnderWay()) {
        Console::print(CommandLine::tr("\"vexconvert submit\" sends what has no result again; what "
                                       "the engine says is in %1")
                           .arg(QDir::toNativeSeparators(folder.logs().path())));
    }
    return status->failed > 0 ? Failure : Success;
}

} // namespace

QVector<Subcommand> engineCommands()
{
    return {
        {QStringLiteral("submit"),
         CommandLine::tr("PLAN --engine parallel|slurm [options]"),
         CommandLine::tr("Convert the jobs of a plan on several machines."),
         CommandLine::tr(
             "\n\"vexconvert plan\" writes plans. Jobs whose results exist are left out, so that "
             "the\nsame plan can be submitted again after a failure.\n"
             "\n"
             "parallel: GNU parallel gives the jobs to machines that ssh reaches without a "
             "password.\nThey need vexconvert, ffmpeg, rsync and perl, and share no disk. The "
             "result of each job\nis printed as JSON in a line of its own. The exit code is 1 "
             "unless each has one.\n"
             "\n"
             "slurm: Slurm gives them to the machines of its cluster, which see the plan, its "
             "sources\nand targets under the same names, as a job array. \"vexconvert status\" "
             "tells how far\nit is.\n"),
         {valueOption(engineOption, CommandLine::tr("What runs the jobs."),
                      CommandLine::tr("parallel|slurm")),
          valueOption(hostsOption,
                      CommandLine::tr("Machines for parallel, such as alpha,me@beta; \":\" is this "
                                      "one, and the default."),
                      CommandLine::tr("HOSTS")),
          {{QStringLiteral("j"), jobsName},
           CommandLine::tr("Jobs at a time on each machine with parallel; 1 by default."),
           CommandLine::tr("N")},
          valueOption(partitionOption,
                      CommandLine::tr("Partition of Slurm's cluster, instead of the default one."),
                      CommandLine::tr("NAME")),
          valueOption(programOption,
                      CommandLine::tr("vexconvert on the other machines, where it isn't on the "
                                      "PATH."),
                      CommandLine::tr("FILE"))},
         runSubmit},
        {QStringLiteral("status"),
         CommandLine::tr("[PLAN]"),
         CommandLine::tr("Tell how far a submitted plan is."),
         CommandLine::tr("\nWithout a name, the plan is jobs.jsonl. Failed jobs are named with "
                         "their errors; the exit\ncode is 1 if there are any.\n"),
         {},
         runStatus},
    };
}
