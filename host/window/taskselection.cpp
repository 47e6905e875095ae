#include "host/window/taskselection.h"

#include <algorithm>

TaskSelection::TaskSelection(TaskList &tasks, QObject *parent)
    : QObject(parent)
    , m_tasks(tasks)
{
    connect(&m_tasks, &TaskList::countChanged, this, &TaskSelection::changed);
}

int TaskSelection::count() const
{
    const QVector<Task> &all = m_tasks.tasks();
    return int(
        std::count_if(all.cbegin(), all.cend(), [](const Task &task) { return task.isSelected; }));
}

QVector<int> TaskSelection::ids() const
{
    QVector<int> ids;
    for (const Task &task : m_tasks.tasks()) {
        if (task.isSelected) {
            ids << task.id;
        }
    }
    return ids;
}

QVector<int> TaskSelection::with(int id) const
{
    const Task *meant = m_tasks.find(id);
    if (meant == nullptr) {
        return {};
    }
    return meant->isSelected ? ids() : QVector<int>{id};
}

void TaskSelection::set(int id)
{
    if (m_tasks.find(id) != nullptr) {
        m_anchor = id;
        select([id](const Task &task, int) { return task.id == id; });
    }
}

void TaskSelection::toggle(int id)
{
    if (const Task *task = m_tasks.find(id)) {
        m_anchor = id;
        m_tasks.setSelected(id, !task->isSelected);
        Q_EMIT changed();
    }
}

void TaskSelection::extendTo(int id)
{
    const int to = m_tasks.rowOf(id);
    if (to < 0) {
        return;
    }
    const int anchor = m_tasks.rowOf(m_anchor);
    const int from = anchor < 0 ? to : anchor;
    if (anchor < 0) {
        m_anchor = id;
    }
    select([from, to](const Task &, int row) {
        return row >= std::min(from, to) && row <= std::max(from, to);
    });
}

void TaskSelection::selectAll()
{
    select([](const Task &, int) { return true; });
}

void TaskSelection::clear()
{
    select([](const Task &, int) { return false; });
}

void TaskSelection::select(const std::function<bool(const Task &, int row)> &isWanted)
{
    const QVector<Task> all = m_tasks.tasks();
    for (int row = 0; row < all.size(); ++row) {
        m_tasks.setSelected(all.at(row).id, isWanted(all.at(row), row));
    }
    Q_EMIT changed();
}
