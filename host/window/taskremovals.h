#ifndef WINDOW_TASKREMOVALS_H
#define WINDOW_TASKREMOVALS_H

#include "host/window/inspector.h"
#include "host/window/taskrunner.h"

#include <QDateTime>

/*! Removes tasks from a list, and puts them back. */
class TaskRemovals
{
public:
    TaskRemovals(TaskList &tasks, Inspector &inspector, TaskRunner &runner)
        : m_tasks(tasks)
        , m_inspector(inspector)
        , m_runner(runner)
    {}

    /*! Stops those that run, and returns the sources of all. */
    QStringList remove(const QVector<int> &ids);
    /*! When the last of those that can be undone happened; null if there is none. */
    [[nodiscard]] QDateTime last() const;
    /*! Puts back where they were those that were removed last, and returns their ids. */
    QVector<int> undo();

private:
    TaskList &m_tasks;
    Inspector &m_inspector;
    TaskRunner &m_runner;
    struct Removal
    {
        QDateTime when;
        QVector<QPair<int, Task>> tasks; //!< each with its row
    };
    QVector<Removal> m_removals; //!< the last one last
};

#endif
