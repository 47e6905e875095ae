#include "host/queue/conversionqueue.h"

#include "host/queue/corestobusy.h"

#include <QThread>

#include <algorithm>

void ConversionQueue::add(int id, const JobSource &job)
{
    m_jobs.insert({id, {job}});
}

void ConversionQueue::start()
{
    const auto isRunning = [](const auto &entry) { return entry.second.conversion != nullptr; };
    // A slot connected to started() may change the queue, so each round searches again.
    for (;;) {
        const auto next = std::find_if_not(m_jobs.begin(), m_jobs.end(), isRunning);
        if (next == m_jobs.end() || !hasRoom()) {
            return;
        }
        run(next->first, next->second);
    }
}

void ConversionQueue::pause()
{
    m_isPaused = true;
    for (const auto &[id, job] : m_jobs) {
        if (job.conversion != nullptr) {
            job.conversion->pause();
        }
    }
}

void ConversionQueue::resume()
{
    m_isPaused = false;
    for (const auto &[id, job] : m_jobs) {
        if (job.conversion != nullptr) {
            job.conversion->resume();
        }
    }
    start();
}

bool ConversionQueue::hasRoom() const
{
    if (m_isPaused) {
        return false;
    }
    int running = 0;
    int busyCores = 0;
    for (const auto &[id, job] : m_jobs) {
        running += job.conversion != nullptr ? 1 : 0;
        busyCores += job.cores;
    }
    return m_maxRunning ? running < *m_maxRunning : busyCores < QThread::idealThreadCount();
}

void ConversionQueue::cancel(int id)
{
    const auto found = m_jobs.find(id);
    if (found == m_jobs.end()) {
        return;
    }
    if (Conversion *conversion = found->second.conversion) {
        conversion->cancel();
    } else {
        finish(id, failed({}, Error::Cancelled));
    }
}

void ConversionQueue::remove(int id)
{
    const auto found = m_jobs.find(id);
    if (found == m_jobs.end()) {
        return;
    }
    Conversion *conversion = found->second.conversion;
    m_jobs.erase(found);
    if (conversion != nullptr) {
        conversion->disconnect(this);
        conversion->deleteLater();
        start();
    }
}

void ConversionQueue::stop()
{
    for (auto job = m_jobs.begin(); job != m_jobs.end();) {
        if (job->second.conversion != nullptr) {
            job->second.conversion->cancel();
            ++job;
        } else {
            job = m_jobs.erase(job);
        }
    }
}

void ConversionQueue::run(int id, Job &job)
{
    const ConversionJob wanted = job.source();
    auto *conversion = new Conversion(wanted, this);
    job.conversion = conversion;
    job.cores = coresToBusy(wanted.settings);
    connect(conversion, &Conversion::progressed, this,
            [this, id](const Progress &progress) { Q_EMIT progressed(id, progress); });
    connect(conversion, &Conversion::logged, this,
            [this, id](const ToolCall &call, const QString &log) { Q_EMIT logged(id, call, log); });
    connect(conversion, &Conversion::finished, this,
            [this, id, conversion](const Result<ConversionOutcome> &outcome) {
                conversion->deleteLater();
                finish(id, outcome);
                start();
            });
    conversion->start();
    Q_EMIT started(id);
}

void ConversionQueue::finish(int id, const Result<ConversionOutcome> &outcome)
{
    m_jobs.erase(id);
    Q_EMIT finished(id, outcome);
}
