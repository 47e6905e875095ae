#include "host/queue/engines/planstatus.h"

#include "host/files/freename.h"
#include "host/queue/engines/slurmengine.h"

#include <algorithm>

namespace {

void countInSlurm(const SubmissionFolder &folder, PlanStatus &status)
{
    const auto tasks = SlurmEngine(folder).tasks();
    if (!tasks) {
        status.engineError = tasks.error().text;
        return;
    }
    for (const SlurmTask &task : *tasks) {
        const int running = task.isRunning ? 1 : 0;
        status.running += running;
        status.waiting += task.left - running;
    }
}

} // namespace

Result<PlanStatus> planStatus(PlanJobs &plan, const SubmissionFolder &folder,
                              const std::function<void(const JobResult &result)> &onFailed)
{
    PlanStatus status;
    // Asked first: a job that ends in the meantime counts as done, not as lost.
    const bool isInUse = folder.isInUse();
    if (!isInUse) {
        countInSlurm(folder, status);
    }
    int done = 0;
    const Result<> read = plan.each([&status, &done](const JobPlace &, const PlannedJob &job) {
        ++status.jobs;
        done += isDone(job) ? 1 : 0;
    });
    if (!read) {
        return failed(read);
    }
    eachResult(folder.results(), [&status, &onFailed](const JobResult &result) {
        status.converted += result.status == JobResult::Converted ? 1 : 0;
        // It may have been converted since.
        if (result.status == JobResult::Failed && !isTaken(result.target)) {
            ++status.failed;
            onFailed(result);
        }
    });
    status.converted = std::min(status.converted, done);
    status.skipped = done - status.converted;
    const int open = std::max(0, status.jobs - done - status.failed);
    status.running = std::min(status.running, open);
    status.waiting = std::min(status.waiting, open - status.running);
    status.underWay = isInUse ? open : 0;
    return status;
}
