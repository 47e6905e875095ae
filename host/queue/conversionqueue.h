#ifndef QUEUE_CONVERSIONQUEUE_H
#define QUEUE_CONVERSIONQUEUE_H

#include "host/convert/conversion.h"

#include <functional>
#include <map>
#include <optional>

/*!
 * Starts conversions in the order of their ids, side by side as long as they leave processor cores
 * idle. A failed conversion doesn't stop the others.
 */
class ConversionQueue : public QObject
{
    Q_OBJECT
    Q_DISABLE_COPY(ConversionQueue)

public:
    using JobSource = std::function<ConversionJob()>;

    using QObject::QObject;

    /*! How many jobs run at a time, whatever cores they keep busy; 0: as many as leave cores idle.
     *  Running ones are not stopped. */
    void setMaxRunning(int count)
    {
        m_maxRunning = count > 0 ? std::make_optional(count) : std::nullopt;
    }
    /*! Halts the running jobs, and starts none until resume(). */
    void pause();
    void resume();
    [[nodiscard]] bool isPaused() const { return m_isPaused; }
    /*! Whether another job would run now. */
    [[nodiscard]] bool hasRoom() const;

    /*! Adds a waiting job. \a job is called when its turn comes. \a id is unique in the queue and
     *  identifies the job in the signals. */
    void add(int id, const JobSource &job);
    /*! Starts the jobs. Those that must wait, and those added later, start as others end. */
    void start();
    /*! finished() follows with Error::Cancelled: at once for a waiting job, from the event loop for
     *  a running one. */
    void cancel(int id);
    /*! Removes the job and stops it if it is running. finished() does not follow. */
    void remove(int id);
    /*! Cancels the running jobs and removes the waiting ones. */
    void stop();

    /*! Whether no job is waiting or running. */
    [[nodiscard]] bool isEmpty() const { return m_jobs.empty(); }

Q_SIGNALS:
    void started(int id);
    void progressed(int id, const Progress &progress);
    /*! See Conversion::logged(). */
    void logged(int id, const ToolCall &call, const QString &log);
    /*! The job has left the queue, and the next one hasn't started yet. */
    void finished(int id, const Result<ConversionOutcome> &outcome);

private:
    struct Job
    {
        JobSource source;
        Conversion *conversion = nullptr; //!< null while it waits
        int cores = 0;                    //!< that it keeps busy
    };

    void run(int id, Job &job);
    void finish(int id, const Result<ConversionOutcome> &outcome);

    std::map<int, Job> m_jobs;
    std::optional<int> m_maxRunning;
    bool m_isPaused = false;
};

#endif
