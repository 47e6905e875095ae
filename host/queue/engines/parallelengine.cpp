#include "host/queue/engines/parallelengine.h"

#include "host/app/interrupt.h"
#include "host/queue/resultlines.h"

#include <QDir>
#include <QEventLoop>
#include <QFile>
#include <QJsonDocument>
#include <QStandardPaths>

#include <algorithm>

namespace {

/*! One line per job: its folder, and the names of its source and its result in there. */
const QLatin1String listName("jobs.txt");

/*!
 * Runs on a machine for one job, with the program, the folder, and the names of the list. Succeeds
 * if vexconvert has told how the job ended; else the job is tried elsewhere. What was copied here
 * is removed, a link isn't a copy. An empty result stands for none, so that copying it back
 * succeeds.
 */
const QLatin1String script(R"(cd "$2" || exit; rm -f "$4"; told=$("$1" run job.jsonl --jobs 1); )"
                           R"([ -L "$3" ] || rm -f "$3" job.jsonl; [ -e "$4" ] || : >"$4"; )"
                           R"(printf "@%s\n%s\n" "$PARALLEL_SSHLOGIN" "$told"; [ -n "$told" ])");

} // namespace

ParallelEngine::ParallelEngine(PlanJobs &plan, const SubmissionFolder &folder, SshHosts &hosts,
                               const Options &options)
    : m_plan(plan)
    , m_folder(folder)
    , m_hosts(hosts)
    , m_options(options)
{
    connect(&m_process, &QProcess::readyReadStandardOutput, this, &ParallelEngine::readLines);
    m_process.setStandardInputFile(QProcess::nullDevice());
    m_process.setWorkingDirectory(folder.path());
}

Result<> ParallelEngine::prepare()
{
    QVector<EngineProgram> programs = {{QStringLiteral("parallel"), QStringLiteral("parallel")}};
    if (!m_hosts.remote().isEmpty()) {
        programs << EngineProgram{QStringLiteral("rsync"), QStringLiteral("rsync")};
    }
    for (const EngineProgram &program : qAsConst(programs)) {
        const Result<> found = program.find();
        if (!found) {
            return failed(found);
        }
    }
    if (m_hosts.hasThisMachine() && QStandardPaths::findExecutable(m_options.program).isEmpty()) {
        return failed(tr("%1 is not on the PATH of this machine; name its place with --program, or "
                         "leave \":\" out of --hosts")
                          .arg(m_options.program));
    }
    return m_hosts.connect(m_options.program, m_folder.plainName());
}

Result<int> ParallelEngine::run(const QVector<JobPlace> &jobs)
{
    m_jobs = jobs;
    m_open = jobs.size();
    const Result<> written = writeJobs();
    if (!written) {
        return failed(written);
    }
    m_process.setStandardErrorFile(logPath());
    QEventLoop loop;
    Interrupt interrupt;
    // It stops its jobs, here and there, and ends.
    connect(&interrupt, &Interrupt::caught, &m_process, &QProcess::terminate);
    connect(&m_process, qOverload<int, QProcess::ExitStatus>(&QProcess::finished), &loop,
            &QEventLoop::quit);
    m_process.start(QStringLiteral("parallel"), arguments(), QIODevice::ReadOnly);
    if (m_process.waitForStarted() && m_process.state() == QProcess::Running) {
        loop.exec();
    }
    readLines();
    m_hosts.disconnect();
    return m_open;
}

QString ParallelEngine::logPath() const
{
    return m_folder.logs().filePath(QStringLiteral("parallel.txt"));
}

QString ParallelEngine::firstTrouble() const
{
    QFile log(logPath());
    const bool isOpen = log.open(QIODevice::ReadOnly);
    const QString line = QFile::decodeName(isOpen ? log.readLine() : QByteArray());
    return line.mid(line.indexOf(QLatin1Char('\t')) + 1).trimmed();
}

Result<> ParallelEngine::writeJobs()
{
    QByteArray list;
    for (const JobPlace &place : qAsConst(m_jobs)) {
        const Result<PlannedJob> job = m_plan.at(place);
        if (!job) {
            return failed(job);
        }
        const WorkerJob worker = workerJob(place.index, *job);
        const Result<> prepared = worker.prepare();
        if (prepared) {
            list += QStringLiteral("%1 %2 %3\n")
                        .arg(worker.folderName(), worker.sourceName(), worker.resultName())
                        .toLatin1();
        } else {
            end(place.index, *job,
                {{QStringLiteral("status"), QStringLiteral("failed")},
                 {QStringLiteral("error"), prepared.error().text},
                 {QStringLiteral("isComplete"), false}});
        }
    }
    return SubmissionFolder::write(m_folder.filePath(listName), list);
}

void ParallelEngine::readLines()
{
    while (m_process.canReadLine()) {
        // GNU parallel puts the job's number in front.
        const QByteArray line = m_process.readLine();
        const int tab = line.indexOf('\t');
        const QByteArray text = line.mid(tab + 1).trimmed();
        if (text.startsWith('@')) {
            m_host = QString::fromLatin1(text.mid(1));
        } else {
            take(line.left(tab).toInt(), QJsonDocument::fromJson(text).object());
        }
    }
}

void ParallelEngine::take(int index, const QJsonObject &line)
{
    const std::optional<JobResult> result = resultFromLine(line);
    const auto place =
        std::lower_bound(m_jobs.cbegin(), m_jobs.cend(), index,
                         [](const JobPlace &job, int wanted) { return job.index < wanted; });
    if (!result || result->status == JobResult::Stopped || place == m_jobs.cend() ||
        place->index != index) {
        return;
    }
    const Result<PlannedJob> job = m_plan.at(*place);
    if (!job) {
        return;
    }
    QJsonObject told = line;
    told[QStringLiteral("host")] = m_host;
    if (result->status == JobResult::Converted) {
        const Result<bool> published = workerJob(index, *job).publish();
        if (!published) {
            told[QStringLiteral("status")] = QStringLiteral("failed");
            told[QStringLiteral("error")] = published.error().text;
            told[QStringLiteral("isComplete")] = false;
        } else if (!*published) {
            told[QStringLiteral("status")] = QStringLiteral("skipped");
        }
    }
    end(index, *job, told);
}

void ParallelEngine::end(int index, const PlannedJob &job, const QJsonObject &line)
{
    constexpr int perFile = 1000;
    QJsonObject told = line;
    told[QStringLiteral("event")] = QStringLiteral("result");
    told[QStringLiteral("index")] = index;
    told[QStringLiteral("source")] = job.source;
    told[QStringLiteral("target")] = job.target;
    QFile file(m_folder.results().filePath(QStringLiteral("%1.jsonl").arg(index / perFile)));
    // The result itself tells that the job is done, should this fail.
    if (file.open(QIODevice::WriteOnly | QIODevice::Append)) {
        file.write(QJsonDocument(told).toJson(QJsonDocument::Compact) + '\n');
    }
    workerJob(index, job).remove();
    --m_open;
    Q_EMIT ended(told);
}

WorkerJob ParallelEngine::workerJob(int index, const PlannedJob &job) const
{
    return {m_folder.filePath(m_folder.plainName()), index, job};
}

QStringList ParallelEngine::arguments() const
{
    const QString place = m_folder.plainName() + QStringLiteral("/{1}");
    const QString command =
        QStringLiteral("sh -c %1 sh %2 %3 {2} {3}")
            .arg(quotedForShell(script), quotedForShell(m_options.program), place);
    return {
        QStringLiteral("--plain"),
        QStringLiteral("--will-cite"),
        QStringLiteral("--arg-file"),
        listName,
        QStringLiteral("--colsep"),
        QStringLiteral(" "),
        QStringLiteral("--sshlogin"),
        m_hosts.text(),
        QStringLiteral("--ssh"),
        m_hosts.sshCommand(),
        QStringLiteral("--jobs"),
        QString::number(m_options.sideBySide),
        QStringLiteral("--retries"),
        QStringLiteral("3"),
        // Follows the link to the source, and keeps dates.
        QStringLiteral("--rsync-opts"),
        QStringLiteral("-rLtDR"),
        QStringLiteral("--transferfile"),
        place + QLatin1Char('/'),
        QStringLiteral("--return"),
        place + QStringLiteral("/{3}"),
        QStringLiteral("--cleanup"),
        QStringLiteral("--tagstring"),
        QStringLiteral("{1}"),
        QStringLiteral("--joblog"),
        QStringLiteral("logs/parallel.tsv"),
        command,
    };
}
