#ifndef WINDOW_TASKLIST_H
#define WINDOW_TASKLIST_H

#include "host/convert/progress.h"
#include "host/media/mediafacts.h"

#include <QAbstractListModel>
#include <QVector>

#include <functional>

/*! One file of a page's list. */
struct Task
{
    Q_GADGET

public:
    enum State { Reading, Ready, Waiting, Running, Converted, Failed, Cancelled };
    Q_ENUM(State)

    int id = 0; //!< assigned by TaskList::add(), unique in the process
    QString source;
    MediaFacts facts;
    QString thumbnail; //!< URL; empty until there is one
    QString format;    //!< id of the preset
    QString formatCaption;
    QString formatIcon; //!< URL
    State state = Reading;
    Progress progress;
    QString error;  //!< Failed: one line that says why
    QString target; //!< Converted: the new file
    QString note;   //!< Converted: what the new file lacks; empty if nothing
    double start = 0;
    double end = 0; //!< seconds; 0: the source's end

    [[nodiscard]] bool isQueued() const { return state == Waiting || state == Running; }
    [[nodiscard]] bool hasEnded() const { return state >= Converted; }
};

/*! The files of a page, in the order in which they were added. */
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
        StateRole,    //!< a State
        PercentRole,  //!< 0 to 100; -1 when unknown
        SpeedRole,    //!< times real time; 0 when unknown
        TimeLeftRole, //!< clock text; empty when unknown
        ErrorRole,
        TargetRole,
        NoteRole,
        StartRole,
        EndRole,
    };
    explicit TaskList(QObject *parent = nullptr);

    int rowCount(const QModelIndex &parent = QModelIndex()) const override;
    QVariant data(const QModelIndex &index, int role) const override;
    QHash<int, QByteArray> roleNames() const override;

    int count() const { return m_tasks.size(); }
    [[nodiscard]] const QVector<Task> &tasks() const { return m_tasks; }
    /*! Null if there is no such task. */
    [[nodiscard]] const Task *find(int id) const;

    /*! Appends the task and returns its new id. */
    int add(Task task);
    void remove(int id);
    /*! Calls \a change, which may change anything but the task's id. */
    void update(int id, const std::function<void(Task &)> &change);
    /*! Also clears the progress, error and target of the previous state. */
    void setState(int id, Task::State state);
    /*! Makes an ended task ready again, unless its file can't be read. */
    void reopen(int id);

Q_SIGNALS:
    void countChanged();
    /*! setState() has changed a task. */
    void stateChanged();

private:
    int rowOf(int id) const;

    QVector<Task> m_tasks;
};

#endif
