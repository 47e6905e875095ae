#ifndef WINDOW_TASKRUNNER_H
#define WINDOW_TASKRUNNER_H

#include "host/queue/conversionqueue.h"
#include "host/window/runprogress.h"
#include "host/window/tasklist.h"

#include <functional>

/*!
 * Converts the tasks of a list in its order, side by side while cores are idle. A task that waits
 * can still be edited, moved and removed: which one comes next is decided when there is room.
 */
class TaskRunner : public QObject
{
    Q_OBJECT
    Q_DISABLE_COPY(TaskRunner)

public:
    using JobMaker = std::function<ConversionJob(const Task &task)>;

    TaskRunner(TaskList &tasks, const JobMaker &jobOf, QObject *parent = nullptr);

    /*! See ConversionQueue::setMaxRunning(). */
    void setMaxRunning(int count) { m_queue.setMaxRunning(count); }
    /*! Converts those of the tasks that aren't waiting or running. */
    void convert(const QVector<int> &ids);
    /*! Starts what there is room for, except tasks whose files are still being read. */
    void startNext();
    void cancel(int id);
    void cancelAll();
    /*! Stops the task and forgets it: it is about to leave the list. */
    void release(int id);

    /*! Halts the running conversions, and starts none until resume(). */
    void pause();
    void resume();
    [[nodiscard]] bool isPaused() const { return m_queue.isPaused(); }
    /*! Whether any task is running or waiting. */
    [[nodiscard]] bool isBusy() const;

    [[nodiscard]] int percent() const { return m_progress.percent(); }
    /*! "3 of 17  ·  12:04 left"; empty if nothing is running or waiting. */
    [[nodiscard]] QString text() const;
    /*! What came of the last run; empty while one goes on, and where nothing ended by itself. */
    [[nodiscard]] QString outcome() const { return m_outcome; }

    /*! "Files converted: 2, failed: 1" */
    [[nodiscard]] static QString outcomeText(int converted, int failed);

Q_SIGNALS:
    void progressed();
    void pauseChanged();
    void started(int id);
    /*! See Conversion::logged(). */
    void logged(int id, const ToolCall &call, const QString &log);
    /*! No task is left. Tasks that were stopped count as neither. */
    void ended(int converted, int failed);

private:
    void takeProgress(int id, const Progress &progress);
    void takeOutcome(int id, const Result<ConversionOutcome> &outcome);
    void noteEnd();

    TaskList &m_tasks;
    const JobMaker m_jobOf;
    RunProgress m_progress;
    int m_converted = 0;
    int m_failed = 0;
    QString m_outcome;
    ConversionQueue m_queue; // holds only what runs
};

#endif
