#ifndef QUEUE_CONVERSIONQUEUE_H
#define QUEUE_CONVERSIONQUEUE_H

#include "host/convert/conversion.h"

#include <functional>
#include <map>

/*!
 * Conversions that run in the order of their ids, one at a time unless more may run side by side.
 * One that fails doesn't stop the others.
 */
class ConversionQueue : public QObject
{
    Q_OBJECT
    Q_DISABLE_COPY(ConversionQueue)

public:
    using JobSource = std::function<ConversionJob()>;

    using QObject::QObject;

    /*! How many jobs may run side by side. Those that run already go on. */
    void setMaxRunning(int count) { m_maxRunning = count; }

    /*! Lets a job wait for its turn; only then \a job is asked what there is to convert. \a id
     *  names it in the signals, and no other job in the queue has it. */
    void add(int id, const JobSource &job);
    /*! Runs as many jobs as may run; the others, also later ones, follow as those end. */
    void start();
    /*! finished() follows with Error::Cancelled: at once for a job that waits, from the event loop
     *  for one that runs. */
    void cancel(int id);
    /*! Takes the job out, and ends it if it runs. No finished() follows. */
    void remove(int id);
    /*! Cancels the jobs that run, and takes out those that wait. */
    void stop();

    /*! Whether no job waits or runs. */
    [[nodiscard]] bool isEmpty() const { return m_jobs.empty(); }

Q_SIGNALS:
    void started(int id);
    void progressed(int id, const Progress &progress);
    /*! The job has left the queue, and the next one hasn't started yet. */
    void finished(int id, const Result<ConversionOutcome> &outcome);

private:
    struct Job
    {
        JobSource source;
        Conversion *conversion = nullptr; //!< null while it waits
    };

    void run(int id, Job &job);
    void finish(int id, const Result<ConversionOutcome> &outcome);

    std::map<int, Job> m_jobs;
    int m_maxRunning = 1;
};

#endif
