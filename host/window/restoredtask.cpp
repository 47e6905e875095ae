#include "host/window/restoredtask.h"

namespace {

KeptTask::Status statusOf(Task::State state)
{
    switch (state) {
    case Task::Running:
    case Task::Interrupted:
        return KeptTask::Interrupted;
    case Task::Converted:
        return KeptTask::Converted;
    case Task::Failed:
        return KeptTask::Failed;
    case Task::Cancelled:
        return KeptTask::Stopped;
    case Task::Reading:
    case Task::Ready:
    case Task::Waiting:
        break;
    }
    return KeptTask::Unconverted;
}

Task::State stateOf(KeptTask::Status status)
{
    switch (status) {
    case KeptTask::Interrupted:
        return Task::Interrupted;
    case KeptTask::Converted:
        return Task::Converted;
    case KeptTask::Failed:
        return Task::Failed;
    case KeptTask::Stopped:
        return Task::Cancelled;
    case KeptTask::Unconverted:
        break;
    }
    return Task::Reading;
}

} // namespace

KeptTask keptTask(const Task &task)
{
    KeptTask kept;
    kept.source = task.source;
    kept.subfolder = task.subfolder;
    kept.ownFormats = task.ownFormats;
    kept.format = task.format;
    kept.formatCaption = task.formatCaption;
    kept.start = task.start;
    kept.end = task.end;
    kept.tracks = task.tracks;
    kept.status = statusOf(task.state);
    kept.error = task.error;
    kept.target = task.target;
    kept.targetBytes = task.targetBytes;
    kept.note = task.note;
    return kept;
}

Task restoredTask(const KeptTask &kept)
{
    Task task;
    task.source = kept.source;
    task.subfolder = kept.subfolder;
    task.ownFormats = kept.ownFormats;
    task.format = kept.format;
    task.formatCaption = kept.formatCaption;
    task.start = kept.start;
    task.end = kept.end;
    task.tracks = kept.tracks;
    task.state = stateOf(kept.status);
    task.error = kept.error;
    task.target = kept.target;
    task.targetBytes = kept.targetBytes;
    task.note = kept.note;
    return task;
}
