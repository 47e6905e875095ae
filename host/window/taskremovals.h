#ifndef WINDOW_TASKREMOVALS_H
#define WINDOW_TASKREMOVALS_H

#include "host/window/inspector.h"
#include "host/window/taskrunner.h"

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
    /*! Puts back where they were those that were removed last, and returns their ids. */
    QVector<int> undo();

private:
    TaskList &m_tasks;
    Inspector &m_inspector;
    TaskRunner &m_runner;
    QVector<QVector<QPair<int, Task>>> m_removed; //!< the last ones last, each with its row
};

#endif
