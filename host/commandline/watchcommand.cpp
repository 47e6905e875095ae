#include "host/app/console.h"
#include "host/commandline/batchreports.h"
#include "host/commandline/convertoptions.h"
#include "host/queue/folderwatch.h"
#include "host/queue/watchjournal.h"

#include <QDir>
#include <QFileInfo>
#include <QQueue>

#include <memory>

namespace {

/*! Notes each ended job, and passes everything on to the report for people or programs. */
class JournalReport : public BatchReport
{
public:
    JournalReport(BatchReport &report, WatchJournal &journal)
        : m_report(report)
        , m_journal(journal)
    {}

    void started(const BatchJob &job) override { m_report.started(job); }
    void progressed(const BatchJob &job, const Progress &progress) override
    {
        m_report.progressed(job, progress);
    }
    void logged(const BatchJob &job, const ToolCall &call, const QString &log) override
    {
        m_report.logged(job, call, log);
    }
    void finished(const BatchJob &job, const Result<ConversionOutcome> &outcome) override
    {
        const bool isStopped = !outcome && outcome.error().kind == Error::Cancelled;
        const Result<> noted = isStopped ? Result<>() : m_journal.finish(job.conversion.source);
        m_report.finished(job, outcome);
        if (!noted) {
            Console::printError(noted.error().text);
        }
    }

private:
    BatchReport &m_report;
    WatchJournal &m_journal;
};

/*! The job for an arrived file, under the name that its result was promised. */
Result<ConversionJob> promisedJob(const ConvertRequest &request, const SourceFile &file, int number,
                                  WatchJournal &journal)
{
    ConversionJob job = request.jobFor(file, number);
    QString target = journal.promisedTarget(file.path);
    if (target.isEmpty()) {
        const Result<QString> chosen = fixedTarget(job);
        const Result<> promised = chosen ? journal.promise(file.path, *chosen) : failed(chosen);
        if (!promised) {
            return failed(promised);
        }
        target = *chosen;
    }
    job.target = fixedOutput(target, OutputTarget::IfExists::Skip);
    return job;
}

Result<ExitCode> runWatch(const Call &call)
{
    const Result<int> sideBySide = jobsOf(call);
    if (!sideBySide) {
        return failed(sideBySide);
    }
    const Result<ConvertRequest> request = convertRequest(call, Noting::AsUsed);
    if (!request) {
        return failed(request);
    }
    const QString folder = request->prototype.target.folder;
    if (request->files.folders().size() != call.arguments.size() || folder.isEmpty()) {
        return wrongUsage(CommandLine::tr("name folders to watch, and one for the results: "
                                          "vexconvert watch DIR --preset ID --to DIR"));
    }
    WatchJournal journal;
    QDir().mkpath(folder);
    const Result<> opened = journal.open(folder);
    if (!opened) {
        return failed(opened);
    }

    const bool isForPrograms = call.options.isSet(jsonOption().names().constFirst());
    TextReport text(1, call.options.isSet(quietFlag()) ? TextReport::Quiet : TextReport::Normal);
    JsonReport json(JsonReport::All);
    JournalReport report(isForPrograms ? static_cast<BatchReport &>(json) : text, journal);
    QQueue<SourceFile> arrived;
    int number = 0;
    Batch batch(
        [&]() -> std::optional<BatchJob> {
            while (!arrived.isEmpty()) {
                const SourceFile file = arrived.dequeue();
                const Result<ConversionJob> job = promisedJob(*request, file, ++number, journal);
                if (job) {
                    return BatchJob{number, *job};
                }
                Console::printError(QStringLiteral("%1: %2").arg(file.path, job.error().text));
            }
            return std::nullopt;
        },
        *sideBySide, report);
    FolderWatch watch(request->files);
    QObject::connect(&watch, &FolderWatch::arrived, &batch, [&](const SourceFile &file) {
        if (!journal.isDone(file.path)) {
            arrived.enqueue(file);
            batch.wake();
        }
    });
    watch.start();
    const BatchSummary summary = batch.runUntilInterrupted();
    return summary.failed.isEmpty() && summary.incomplete == 0 ? Success : Failure;
}

} // namespace

QVector<Subcommand> watchCommands()
{
    return {
        {QStringLiteral("watch"), CommandLine::tr("DIR... --preset ID --to DIR [options]"),
         CommandLine::tr("Convert the files that arrive in a folder."),
         CommandLine::tr("\nA file is converted when it has stopped growing, and only once, also "
                         "after a restart:\nwhat is done is noted in the folder of the results. "
                         "Ctrl-C ends the watch.\n"),
         QList<QCommandLineOption>{jobsOption(), jsonOption(), quietOption()} + convertOptions(),
         runWatch},
    };
}
