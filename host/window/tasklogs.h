#ifndef WINDOW_TASKLOGS_H
#define WINDOW_TASKLOGS_H

#include "host/tools/toolcall.h"

#include <QHash>
#include <QObject>
#include <QVector>

/*!
 * What ffmpeg was told and answered in the last conversion of each task. Holds the latest tasks,
 * and of a long log its end.
 */
class TaskLogs : public QObject
{
    Q_OBJECT

public:
    static constexpr int mostTasks = 100;
    static constexpr int mostCharacters = 500000; //!< of a task's log

    using QObject::QObject;

    /*! Begins the task's log anew. */
    void begin(int taskId);
    /*! Adds an attempt to the task's log. */
    void add(int taskId, const ToolCall &call, const QString &log);
    void forget(int taskId);
    /*! Empty if ffmpeg hasn't run for the task. */
    [[nodiscard]] QString text(int taskId) const { return m_texts.value(taskId); }

    /*! Asks for the task's log to be shown. */
    Q_INVOKABLE void show(int taskId);

Q_SIGNALS:
    void shown(const QString &text);

private:
    QHash<int, QString> m_texts;
    QVector<int> m_tasks; // the latest one last
};

#endif
