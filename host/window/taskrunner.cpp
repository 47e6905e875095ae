#include "host/window/taskrunner.h"

#include "host/media/clocktext.h"
#include "host/window/tasktexts.h"
#include "host/window/toolfun.h"

#include <algorithm>
#include <utility>

TaskRunner::TaskRunner(TaskList &tasks, const JobMaker &jobOf, QObject *parent)
    : QObject(parent)
    , m_tasks(tasks)
    , m_jobOf(jobOf)
{
    connect(&m_queue, &ConversionQueue::progressed, this, &TaskRunner::takeProgress);
    connect(&m_queue, &ConversionQueue::logged, this, &TaskRunner::logged);
    connect(&m_queue, &ConversionQueue::finished, this, &TaskRunner::takeOutcome);
}

bool TaskRunner::isBusy() const
{
    return m_tasks.countOf(Task::Waiting) + m_tasks.countOf(Task::Running) > 0;
}

QString TaskRunner::text() const
{
    if (m_progress.isEmpty()) {
        return {};
    }
    QStringList parts = {ToolFun::text(QStringLiteral("%1 of %2"))
                             .arg(countText(m_progress.ended()), countText(m_progress.total()))};
    const double left = m_progress.secondsLeft();
    if (isPaused()) {
        parts << ToolFun::text(QStringLiteral("Paused"));
    } else if (left >= 0) {
        parts << ToolFun::text(QStringLiteral("%1 left")).arg(clockText(left));
    }
    return ToolFun::joined(parts);
}

QString TaskRunner::outcomeText(int converted, int failed)
{
    if (converted + failed == 0) {
        return {};
    }
    const QString failures =
        failed == 0 ? QString() : ToolFun::text(QStringLiteral("failed: %1")).arg(failed);
    return ToolFun::listed(
        {ToolFun::text(QStringLiteral("Files converted: %1")).arg(converted), failures});
}

void TaskRunner::convert(const QVector<int> &ids)
{
    m_outcome.clear();
    for (const int id : ids) {
        const Task *task = m_tasks.find(id);
        if (task != nullptr && !task->isQueued()) {
            const double whole = task->facts.duration;
            m_progress.add(id, (task->end > 0 ? std::min(task->end, whole) : whole) - task->start);
            m_tasks.setState(id, Task::Waiting);
        }
    }
    startNext();
    Q_EMIT progressed();
}

void TaskRunner::startNext()
{
    while (m_tasks.countOf(Task::Waiting) > 0 && m_queue.hasRoom()) {
        const QVector<Task> &all = m_tasks.tasks();
        // What a file holds may change its format.
        const auto next = std::find_if(all.cbegin(), all.cend(), [](const Task &task) {
            return task.state == Task::Waiting && task.isRead;
        });
        if (next == all.cend()) {
            return;
        }
        const int id = next->id;
        m_tasks.setState(id, Task::Running);
        m_queue.add(id, [job = m_jobOf(*m_tasks.find(id))] { return job; });
        m_queue.start();
        Q_EMIT started(id);
    }
}

void TaskRunner::takeProgress(int id, const Progress &progress)
{
    m_tasks.setProgress(id, progress);
    m_progress.setShare(id, progress.total > 0 ? progress.done / progress.total : 0);
    Q_EMIT progressed();
}

void TaskRunner::takeOutcome(int id, const Result<ConversionOutcome> &outcome)
{
    const bool isCancelled = !outcome && outcome.error().kind == Error::Cancelled;
    m_tasks.setState(id, outcome ? Task::Converted : isCancelled ? Task::Cancelled : Task::Failed);
    m_tasks.update(id, [&outcome](Task &task) {
        task.error = outcome ? QString() : outcome.error().text;
        task.target = outcome ? outcome->target : QString();
        task.targetBytes = outcome ? outcome->facts.bytes : 0;
        task.note = !outcome             ? QString()
                    : outcome->isSkipped ? ToolFun::text(QStringLiteral("was there already"))
                                         : outcome->notes().join(QStringLiteral("; "));
    });
    m_converted += outcome ? 1 : 0;
    m_failed += !outcome && !isCancelled ? 1 : 0;
    m_progress.end(id);
    startNext();
    noteEnd();
}

void TaskRunner::noteEnd()
{
    if (!isBusy()) {
        const bool wasRun = !m_progress.isEmpty();
        m_progress.clear();
        const int converted = std::exchange(m_converted, 0);
        const int failed = std::exchange(m_failed, 0);
        resume();
        if (wasRun) {
            m_outcome = outcomeText(converted, failed);
            Q_EMIT ended(converted, failed);
        }
    }
    Q_EMIT progressed();
}

void TaskRunner::cancel(int id)
{
    const Task *task = m_tasks.find(id);
    if (task == nullptr || !task->isQueued()) {
        return;
    }
    if (task->state == Task::Running) {
        m_queue.cancel(id);
        return;
    }
    m_tasks.setState(id, Task::Cancelled);
    m_progress.end(id);
    noteEnd();
}

void TaskRunner::cancelAll()
{
    const QVector<Task> all = m_tasks.tasks();
    // From the end, as a running task that stops makes room for one that waits.
    std::for_each(all.crbegin(), all.crend(), [this](const Task &task) { cancel(task.id); });
}

void TaskRunner::release(int id)
{
    const Task *task = m_tasks.find(id);
    if (task == nullptr || !task->isQueued()) {
        return;
    }
    m_tasks.setState(id, Task::Cancelled);
    m_progress.drop(id);
    m_queue.remove(id);
    startNext();
    noteEnd();
}

void TaskRunner::pause()
{
    if (isBusy() && !isPaused()) {
        m_queue.pause();
        m_progress.pause();
        Q_EMIT pauseChanged();
        Q_EMIT progressed();
    }
}

void TaskRunner::resume()
{
    if (isPaused()) {
        m_queue.resume();
        m_progress.resume();
        startNext();
        Q_EMIT pauseChanged();
        Q_EMIT progressed();
    }
}
