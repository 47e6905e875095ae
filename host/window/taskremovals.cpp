#include "host/window/taskremovals.h"

#include <algorithm>

QStringList TaskRemovals::remove(const QVector<int> &ids)
{
    QVector<QPair<int, Task>> removed;
    QStringList sources;
    for (const int id : ids) {
        if (m_tasks.find(id) != nullptr) {
            m_inspector.forget(id);
            m_runner.release(id);
            const Task &task = *m_tasks.find(id);
            removed.append({m_tasks.rowOf(id), task});
            sources << task.source;
        }
    }
    if (!removed.isEmpty()) {
        std::sort(removed.begin(), removed.end(),
                  [](const auto &one, const auto &other) { return one.first < other.first; });
        m_tasks.remove(QSet<int>(ids.cbegin(), ids.cend()));
        m_removals.append({QDateTime::currentDateTimeUtc(), removed});
    }
    return sources;
}

QDateTime TaskRemovals::last() const
{
    return m_removals.isEmpty() ? QDateTime() : m_removals.constLast().when;
}

QVector<int> TaskRemovals::undo()
{
    QVector<int> ids;
    if (m_removals.isEmpty()) {
        return ids;
    }
    const QVector<QPair<int, Task>> removed = m_removals.takeLast().tasks;
    m_tasks.putBack(removed);
    for (const auto &[row, task] : removed) {
        ids << task.id;
        if (task.facts.isEmpty()) {
            m_inspector.inspect(task.id, task.source);
        }
    }
    return ids;
}
