#ifndef QUEUE_ENGINES_SLURMENGINE_H
#define QUEUE_ENGINES_SLURMENGINE_H

#include "host/queue/engines/submissionfolder.h"
#include "host/queue/planjobs.h"

#include <QCoreApplication>
#include <QString>
#include <QVector>

/*! A task of an array that hasn't ended all of its jobs. */
struct SlurmTask
{
    bool isRunning = false; //!< else it is waiting
    int left = 0;           //!< its jobs without a result; a running task is at the first of them
};

/*!
 * Slurm, whose job arrays convert plans. All machines share the plan's disk. A task of the array
 * converts one job, or several one after another if there are more jobs than tasks allowed.
 */
class SlurmEngine
{
    Q_DECLARE_TR_FUNCTIONS(SlurmEngine)

public:
    explicit SlurmEngine(const SubmissionFolder &folder)
        : m_folder(folder)
    {}

    /*! The tasks of the plan that Slurm has; none if the last submission used another engine. */
    [[nodiscard]] Result<QVector<SlurmTask>> tasks() const;

    /*! Whether Slurm is there. */
    [[nodiscard]] Result<> prepare() const;

    struct Options
    {
        QString partition; //!< empty: Slurm's default
        QString program;   //!< vexconvert on the machines of the cluster
    };
    struct Submitted
    {
        QString id; //!< of the array
        int tasks;
    };
    /*! Sends the jobs, at least one, and doesn't wait for them. */
    [[nodiscard]] Result<Submitted> submit(PlanJobs &plan, const QVector<JobPlace> &jobs,
                                           const Options &options) const;

private:
    [[nodiscard]] Result<int> mostTasks() const;
    [[nodiscard]] Result<> writeTask(int number, PlanJobs &plan, const JobPlace *begin,
                                     const JobPlace *end) const;

    const SubmissionFolder &m_folder;
};

#endif
