#include "host/queue/batch.h"

#include "host/files/workfolder.h"

#include <QCoreApplication>
#include <QFileInfo>

Batch::Batch(const NextJob &next, int sideBySide, BatchReport &report)
    : m_next(next)
    , m_report(report)
{
    if (sideBySide > 0) {
        m_queue.setMaxRunning(sideBySide);
    }
    connect(&m_interrupt, &Interrupt::caught, this, &Batch::stop);
    connect(&m_queue, &ConversionQueue::progressed, this,
            [this](int number, const Progress &progress) {
                m_report.progressed(m_running.at(number), progress);
            });
    connect(&m_queue, &ConversionQueue::logged, this,
            [this](int number, const ToolCall &call, const QString &log) {
                m_report.logged(m_running.at(number), call, log);
            });
    connect(&m_queue, &ConversionQueue::finished, this, &Batch::finish);
}

BatchSummary Batch::run()
{
    startJobs();
    if (!m_queue.isEmpty()) {
        wait();
    }
    // Where all is there already, no conversion has swept what a killed run left.
    for (const QString &folder : qAsConst(m_foldersOfSkipped)) {
        WorkFolder::sweep(folder);
    }
    return m_summary;
}

BatchSummary Batch::runUntilInterrupted()
{
    m_waits = true;
    wait();
    return m_summary;
}

void Batch::wait()
{
    m_loop.exec();
    // What ended last is still to be deleted, as at the end of an application's own loop.
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
}

void Batch::wake()
{
    if (!m_summary.isInterrupted) {
        m_isExhausted = false;
        startJobs();
    }
}

void Batch::startJobs()
{
    while (!m_isExhausted && m_queue.hasRoom()) {
        const std::optional<BatchJob> job = m_next();
        m_isExhausted = !job;
        if (job) {
            m_running.insert({job->number, *job});
            m_queue.add(job->number, [conversion = job->conversion] { return conversion; });
            m_report.started(*job);
            m_queue.start();
        }
    }
}

void Batch::finish(int number, const Result<ConversionOutcome> &outcome)
{
    const BatchJob job = m_running.at(number);
    m_running.erase(number);
    if (outcome && outcome->isSkipped) {
        ++m_summary.skipped;
        m_foldersOfSkipped.insert(QFileInfo(outcome->target).absolutePath());
    } else if (outcome) {
        ++m_summary.converted;
        m_summary.incomplete += outcome->shortfall.isEmpty() ? 0 : 1;
    } else if (outcome.error().kind == Error::Cancelled) {
        ++m_summary.stopped;
    } else {
        m_summary.failed << job.conversion.source;
    }
    m_report.finished(job, outcome);
    startJobs();
    if (m_running.empty() && !m_waits) {
        m_loop.quit();
    }
}

void Batch::stop()
{
    m_summary.isInterrupted = m_waits || !m_isExhausted;
    m_isExhausted = true;
    m_waits = false;
    m_queue.stop();
    if (m_running.empty()) {
        m_loop.quit();
    }
}
