#ifndef WINDOW_TASKSELECTION_H
#define WINDOW_TASKSELECTION_H

#include "host/window/tasklist.h"

/*! The selected tasks of a list, as file managers select. Unknown ids change nothing. */
class TaskSelection : public QObject
{
    Q_OBJECT
    Q_PROPERTY(int count READ count NOTIFY changed)

public:
    explicit TaskSelection(TaskList &tasks, QObject *parent = nullptr);

    [[nodiscard]] int count() const;
    /*! The selected tasks, in the list's order. */
    [[nodiscard]] QVector<int> ids() const;
    /*! The selected tasks if \a id is one of them, else it alone; in the list's order. */
    [[nodiscard]] QVector<int> with(int id) const;

    /*! Selects this task alone. */
    Q_INVOKABLE void set(int id);
    /*! Adds the task, or takes it away. */
    Q_INVOKABLE void toggle(int id);
    /*! Selects all tasks from the last one that was set or toggled to this one. */
    Q_INVOKABLE void extendTo(int id);
    Q_INVOKABLE void selectAll();
    Q_INVOKABLE void clear();

Q_SIGNALS:
    void changed();

private:
    /*! Selects exactly those for which \a isWanted. */
    void select(const std::function<bool(const Task &, int row)> &isWanted);

    TaskList &m_tasks;
    int m_anchor = 0; //!< id
};

#endif
