#include "host/queue/conversionqueue.h"

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
        if (next == m_jobs.end() ||
            std::count_if(m_jobs.begin(), m_jobs.end(), isRunning) >= m_maxRunning) {
            return;
        }
        run(next->first, next->second);
    }
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
    auto *conversion = new Conversion(job.source(), this);
    job.conversion = conversion;
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
