#ifndef QUEUE_ENGINES_PLANSTATUS_H
#define QUEUE_ENGINES_PLANSTATUS_H

#include "host/queue/engines/submissionfolder.h"
#include "host/queue/planjobs.h"
#include "host/queue/resultlines.h"

#include <algorithm>
#include <functional>

/*! How far the jobs of a plan are; each is counted once. */
struct PlanStatus
{
    int jobs = 0;      //!< all of them
    int converted = 0; //!< by the last submission
    int skipped = 0;   //!< their results were there before it
    int failed = 0;
    int running = 0;
    int waiting = 0;     //!< in an engine
    int underWay = 0;    //!< waiting or running in an engine that doesn't tell them apart
    QString engineError; //!< why it isn't known what an engine has; empty: it is

    /*! Whether an engine still works on it. */
    [[nodiscard]] bool isUnderWay() const { return running + waiting + underWay > 0; }
    /*! In no engine, and without a result. */
    [[nodiscard]] int left() const
    {
        return std::max(0, jobs - converted - skipped - failed - running - waiting - underWay);
    }
};

/*! Calls \a onFailed for each failed job. */
[[nodiscard]] Result<PlanStatus>
planStatus(PlanJobs &plan, const SubmissionFolder &folder,
           const std::function<void(const JobResult &result)> &onFailed);

#endif
