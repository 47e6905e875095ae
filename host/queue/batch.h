#ifndef QUEUE_BATCH_H
#define QUEUE_BATCH_H

#include "host/app/interrupt.h"
#include "host/queue/conversionqueue.h"

#include <QEventLoop>
#include <QSet>
#include <QStringList>

#include <functional>
#include <map>
#include <optional>

/*! A job of a batch. */
struct BatchJob
{
    int number = 0; //!< in the batch, from 1
    ConversionJob conversion;
};

/*! How the jobs of a batch ended. */
struct BatchSummary
{
    int converted = 0;
    int skipped = 0;            //!< their results were there already
    int stopped = 0;            //!< by the user, while they ran
    int incomplete = 0;         //!< of the converted: those that are shorter than their sources
    QStringList failed = {};    //!< sources
    bool isInterrupted = false; //!< jobs were left that didn't start

    [[nodiscard]] bool isSuccess() const
    {
        return incomplete == 0 && stopped == 0 && !isInterrupted && failed.isEmpty();
    }
};

/*! Is told what a batch does. */
class BatchReport
{
    Q_DISABLE_COPY(BatchReport)

public:
    BatchReport() = default;
    virtual ~BatchReport() = default;

    virtual void started(const BatchJob &job) = 0;
    virtual void progressed(const BatchJob &job, const Progress &progress) = 0;
    /*! See Conversion::logged(). */
    virtual void logged(const BatchJob &job, const ToolCall &call, const QString &log) = 0;
    virtual void finished(const BatchJob &job, const Result<ConversionOutcome> &outcome) = 0;
};

/*! Runs jobs side by side until there are no more, or until the user interrupts it. */
class Batch : public QObject
{
    Q_OBJECT
    Q_DISABLE_COPY(Batch)

public:
    /*! Makes the next job; nothing if there is none. Called when there is room for it, so that
     *  100,000 jobs needn't be in memory at once. */
    using NextJob = std::function<std::optional<BatchJob>()>;

    /*! At most \a sideBySide jobs run at a time; 0: as many as keep
     *  the cores busy. */
    Batch(const NextJob &next, int sideBySide, BatchReport &report);

    /*! Returns when all jobs have ended. */
    [[nodiscard]] BatchSummary run();
    /*! Waits for more jobs, which wake() announces, until the user interrupts it. */
    [[nodiscard]] BatchSummary runUntilInterrupted();
    /*! Asks for jobs again after there were none. */
    void wake();

private:
    void wait();
    void startJobs();
    void finish(int number, const Result<ConversionOutcome> &outcome);
    void stop();

    const NextJob m_next;
    BatchReport &m_report;
    BatchSummary m_summary;
    std::map<int, BatchJob> m_running;
    QSet<QString> m_foldersOfSkipped;
    bool m_isExhausted = false;
    bool m_waits = false; // for more jobs
    Interrupt m_interrupt;
    ConversionQueue m_queue;
    QEventLoop m_loop;
};

#endif
