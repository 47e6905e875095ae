#ifndef QUEUE_PLANJOBS_H
#define QUEUE_PLANJOBS_H

#include "host/error.h"
#include "host/queue/plannedjob.h"

#include <QCoreApplication>
#include <QFile>
#include <QVector>

#include <functional>
#include <optional>

/*! Where a job is in its plan. Plans are long, so no more is kept in memory. */
struct JobPlace
{
    int index = 0;     //!< the job's number, from 1
    qint64 offset = 0; //!< of its line
};

/*! A line of a plan, and the job in it, or what is wrong with it. */
struct PlanLine
{
    JobPlace place;
    Result<PlannedJob> job;
};

/*! The jobs of a plan as "vexconvert plan" writes it, read line by line. Their paths are made
 *  absolute. */
class PlanJobs
{
    Q_DECLARE_TR_FUNCTIONS(PlanJobs)

public:
    [[nodiscard]] Result<> open(const QString &path);

    /*! The next line that isn't empty; nothing at the end. */
    [[nodiscard]] std::optional<PlanLine> next();
    /*! Calls \a visit with each job. An error if a line is no whole job; empty lines only count. */
    using Visit = std::function<void(const JobPlace &place, const PlannedJob &job)>;
    [[nodiscard]] Result<> each(const Visit &visit);

    /*! The places of the jobs without a result, in the plan's order. An error if there are no jobs
     *  at all. */
    [[nodiscard]] Result<QVector<JobPlace>> undone();

    [[nodiscard]] Result<PlannedJob> at(const JobPlace &place);

private:
    [[nodiscard]] Result<PlannedJob> jobIn(const QByteArray &line, int index) const;

    QFile m_file;
    int m_linesRead = 0; //!< by next()
};

/*! Whether the job has its result, from whichever run. */
[[nodiscard]] bool isDone(const PlannedJob &job);

#endif
