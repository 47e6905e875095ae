#include "host/queue/engines/slurmengine.h"

#include "host/queue/engines/engineprogram.h"

#include <QFile>
#include <QRegularExpression>

#include <algorithm>

namespace {

/*! Runs on a machine of the cluster, in the submission's folder. */
const char script[] = R"(#!/bin/sh
# One task of a Slurm array: converts its share of the plan with the vexconvert that is named.
echo "task $SLURM_ARRAY_TASK_ID is on $SLURMD_NODENAME" >&2
exec "$1" run "tasks/$SLURM_ARRAY_TASK_ID.jsonl" --jobs 1 >>"results/$SLURM_ARRAY_TASK_ID.jsonl"
)";

const QLatin1String scriptName("task.sh");

EngineProgram slurm(const char *name)
{
    return {QLatin1String(name), QStringLiteral("slurm-client")};
}

int linesIn(const QString &path)
{
    QFile file(path);
    int lines = 0;
    if (file.open(QIODevice::ReadOnly)) {
        while (file.readLine().endsWith('\n')) {
            ++lines;
        }
    }
    return lines;
}

/*! What went wrong, with a program's own words. */
Result<QByteArray> answerOf(const char *name, const QStringList &arguments)
{
    return slurm(name).output(arguments).map_error([](const Error &error) {
        return Error{SlurmEngine::tr("Slurm: %1").arg(error.text), error.kind};
    });
}

} // namespace

Result<QVector<SlurmTask>> SlurmEngine::tasks() const
{
    if (!m_folder.tasks().exists() || m_folder.tasks().isEmpty()) {
        return {};
    }
    // By name, as the id of a job that is long gone is an error.
    const Result<QByteArray> list =
        answerOf("squeue", {QStringLiteral("--noheader"), QStringLiteral("--array"),
                            QStringLiteral("--name=") + m_folder.plainName(),
                            QStringLiteral("--format=%K %t")});
    if (!list) {
        return failed(list);
    }
    QVector<SlurmTask> tasks;
    const QStringList lines = QString::fromLatin1(*list).split(QLatin1Char('\n'));
    for (const QString &line : lines) {
        const QStringList words = line.split(QLatin1Char(' '), Qt::SkipEmptyParts);
        const QString file = words.value(0) + QStringLiteral(".jsonl");
        const int left =
            linesIn(m_folder.tasks().filePath(file)) - linesIn(m_folder.results().filePath(file));
        // Slurm takes its time with tasks that have ended.
        if (words.size() == 2 && left > 0) {
            tasks << SlurmTask{words.at(1) != QLatin1String("PD"), left};
        }
    }
    return tasks;
}

Result<> SlurmEngine::prepare() const
{
    return slurm("sbatch").find();
}

Result<SlurmEngine::Submitted> SlurmEngine::submit(PlanJobs &plan, const QVector<JobPlace> &jobs,
                                                   const Options &options) const
{
    const Result<int> most = mostTasks();
    if (!most) {
        return failed(most);
    }
    const int perTask = (jobs.size() + *most - 1) / *most;
    const int tasks = (jobs.size() + perTask - 1) / perTask;
    Result<> written = SubmissionFolder::write(m_folder.filePath(scriptName), script);
    for (int task = 0; task < tasks && written; ++task) {
        const JobPlace *begin = jobs.constBegin() + qsizetype(task) * perTask;
        written = writeTask(task + 1, plan, begin, std::min(begin + perTask, jobs.constEnd()));
    }
    if (!written) {
        return failed(written);
    }
    QStringList arguments = {
        QStringLiteral("--parsable"),
        QStringLiteral("--job-name=") + m_folder.plainName(),
        QStringLiteral("--array=1-%1").arg(tasks),
        QStringLiteral("--chdir=") + m_folder.path(),
        QStringLiteral("--output=logs/%a.txt"),
        QStringLiteral("--open-mode=append"),
    };
    if (!options.partition.isEmpty()) {
        arguments << QStringLiteral("--partition=") + options.partition;
    }
    arguments << m_folder.filePath(scriptName) << options.program;
    return answerOf("sbatch", arguments).map([tasks](const QByteArray &id) {
        return Submitted{QString::fromLatin1(id.trimmed().split(';').constFirst()), tasks};
    });
}

Result<int> SlurmEngine::mostTasks() const
{
    const Result<QByteArray> config =
        answerOf("scontrol", {QStringLiteral("show"), QStringLiteral("config")});
    if (!config) {
        return failed(config);
    }
    // Slurm's controller keeps each task in memory, by default 10,000 of all users.
    constexpr int most = 1000;
    static const QRegularExpression setting(QStringLiteral("MaxArraySize\\s*=\\s*(\\d+)"));
    const QRegularExpressionMatch match = setting.match(QString::fromLatin1(*config));
    return match.hasMatch() ? qBound(1, match.captured(1).toInt() - 1, most) : most;
}

Result<> SlurmEngine::writeTask(int number, PlanJobs &plan, const JobPlace *begin,
                                const JobPlace *end) const
{
    QByteArray lines;
    for (const JobPlace *place = begin; place != end; ++place) {
        const Result<PlannedJob> job = plan.at(*place);
        if (!job) {
            return failed(job);
        }
        lines += job->toLine() + '\n';
    }
    return SubmissionFolder::write(
        m_folder.tasks().filePath(QStringLiteral("%1.jsonl").arg(number)), lines);
}
