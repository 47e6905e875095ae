#ifndef QUEUE_ENGINES_PARALLELENGINE_H
#define QUEUE_ENGINES_PARALLELENGINE_H

#include "host/queue/engines/engineprogram.h"
#include "host/queue/engines/sshhosts.h"
#include "host/queue/engines/submissionfolder.h"
#include "host/queue/engines/workerjob.h"
#include "host/queue/planjobs.h"

#include <QJsonObject>

/*!
 * GNU parallel, which gives the jobs to machines that ssh reaches. They need share no disk: each
 * job takes its source there, and its result back. A job whose machine fails is tried on others.
 */
class ParallelEngine : public QObject
{
    Q_OBJECT
    Q_DISABLE_COPY(ParallelEngine)

public:
    struct Options
    {
        QString program;    //!< vexconvert on all machines
        int sideBySide = 1; //!< jobs at a time on each machine
    };

    /*! All must outlive the engine. */
    ParallelEngine(PlanJobs &plan, const SubmissionFolder &folder, SshHosts &hosts,
                   const Options &options);

    /*! Whether all that is needed is there, here and on each machine. */
    [[nodiscard]] Result<> prepare();
    /*!
     * Runs the jobs, and returns when all have ended, or when the user interrupts it. Returns how
     * many have no result: they can be submitted again. ended() tells of the others.
     */
    [[nodiscard]] Result<int> run(const QVector<JobPlace> &jobs);
    /*! What GNU parallel and the machines said. */
    [[nodiscard]] QString logPath() const;
    /*! The first line of that, without the job's number; empty if there is none. */
    [[nodiscard]] QString firstTrouble() const;

Q_SIGNALS:
    /*! A job has its result, or failed: a line as "vexconvert run" prints it, and the machine as
     *  "host". */
    void ended(const QJsonObject &line);

private:
    [[nodiscard]] Result<> writeJobs();
    void readLines();
    void take(int index, const QJsonObject &line);
    void end(int index, const PlannedJob &job, const QJsonObject &line);
    [[nodiscard]] WorkerJob workerJob(int index, const PlannedJob &job) const;
    [[nodiscard]] QStringList arguments() const;

    PlanJobs &m_plan;
    const SubmissionFolder &m_folder;
    SshHosts &m_hosts;
    const Options m_options;
    QVector<JobPlace> m_jobs; //!< by index
    int m_open = 0;
    QString m_host; //!< of the job whose lines are being read
    EngineProcess m_process;
};

#endif
