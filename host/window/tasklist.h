#ifndef WINDOW_TASKLIST_H
#define WINDOW_TASKLIST_H

#include "host/window/task.h"

#include <QAbstractListModel>
#include <QHash>
#include <QSet>
#include <QVector>

#include <array>
#include <functional>

/*! The files of a page, in the order in which they are converted. */
class TaskList : public QAbstractListModel
{
    Q_OBJECT
    Q_PROPERTY(int count READ count NOTIFY countChanged)
    Q_DISABLE_COPY(TaskList)

public:
    enum Role {
        TaskIdRole = Qt::UserRole + 1,
        NameRole,
        SourceRole,
        DetailsRole, //!< resolution, duration, file size
        CodecsRole,
        SecondsRole, //!< duration of the source
        ThumbnailRole,
        FormatRole,
        FormatCaptionRole,
        FormatIconRole,
        OwnFormatRole, //!< whether the format was chosen for this file
        StateRole,     //!< a Task::State
        PercentRole,   //!< 0 to 100; -1 when unknown
        RunningRole,   //!< how far the conversion is, in words
        ErrorRole,
        TargetRole,
        ResultRole, //!< name and size of the new file; empty if there is none
        NoteRole,
        StartRole,
        EndRole,
        TracksRole, //!< what is chosen of them, as one text
        OpenRole,   //!< whether the row shows the tracks
        SelectedRole,
    };
    explicit TaskList(QObject *parent = nullptr);

    int rowCount(const QModelIndex &parent = QModelIndex()) const override;
    QVariant data(const QModelIndex &index, int role) const override;
    QHash<int, QByteArray> roleNames() const override;

    int count() const { return m_tasks.size(); }
    [[nodiscard]] const QVector<Task> &tasks() const { return m_tasks; }
    /*! Null if there is no such task. */
    [[nodiscard]] const Task *find(int id) const;
    /*! -1 if there is no such task. */
    [[nodiscard]] int rowOf(int id) const { return m_rows.value(id, -1); }
    /*! How many tasks are in this state. */
    [[nodiscard]] int countOf(Task::State state) const { return m_counts.at(size_t(state)); }

    /*! Appends the task and returns its new id. */
    int add(Task task);
    /*! Puts tasks that were removed back, each at its row of then; the rows ascend. */
    void putBack(const QVector<QPair<int, Task>> &removed);
    void remove(const QSet<int> &ids);
    /*! Moves the tasks, in their order, to where the task \a before is; 0: to the end. */
    void move(const QSet<int> &ids, int before);
    void sortBy(const std::function<bool(const Task &, const Task &)> &isLess);

    /*! Calls \a change, which may change anything but the task's id. */
    void update(int id, const std::function<void(Task &)> &change);
    /*! Also clears the progress, error and target of the previous state. */
    void setState(int id, Task::State state);
    void setProgress(int id, const Progress &progress);
    void setThumbnail(int id, const QString &url);
    void setSelected(int id, bool isSelected);
    void setOpen(int id, bool isOpen);
    /*! Makes an ended task ready again, unless its file can't be read. */
    void reopen(int id);

Q_SIGNALS:
    void countChanged();
    /*! setState() has changed a task. */
    void stateChanged();
    /*! Anything but progress, thumbnails, the selection and open rows has changed. */
    void edited();

private:
    void change(int id, const std::function<void(Task &)> &change, const QVector<int> &roles);
    void replaceAll(const QVector<Task> &tasks);
    void indexFrom(int row);

    QVector<Task> m_tasks;
    QHash<int, int> m_rows; // of the ids
    std::array<int, Task::stateCount> m_counts = {};
};

#endif
