#ifndef WINDOW_PAGE_H
#define WINDOW_PAGE_H

#include "host/queue/keptqueue.h"
#include "host/queue/sourcefiles.h"
#include "host/window/inspector.h"
#include "host/window/offer.h"
#include "host/window/pageoutput.h"
#include "host/window/sampleoffer.h"
#include "host/window/taskformats.h"
#include "host/window/tasklogs.h"
#include "host/window/taskoutlooks.h"
#include "host/window/taskremovals.h"
#include "host/window/taskselection.h"
#include "host/window/tasktracks.h"

#include <QList>
#include <QUrl>

/*!
 * A page of the window: its list of files, its preset, its output folder, and its conversions,
 * which run side by side while cores are idle. A failed task keeps its error, and the others go on.
 */
class Page : public QObject
{
    Q_OBJECT
    Q_PROPERTY(TaskList *tasks READ tasks CONSTANT)
    Q_PROPERTY(TaskSelection *selection READ selection CONSTANT)
    Q_PROPERTY(Offer *offer READ offer CONSTANT)
    Q_PROPERTY(QString globalCaption READ globalCaption NOTIFY globalFormatChanged)
    Q_PROPERTY(QString globalIcon READ globalIcon NOTIFY globalFormatChanged)
    Q_PROPERTY(PageOutput *output READ output CONSTANT)
    Q_PROPERTY(TaskLogs *logs READ logs CONSTANT)
    Q_PROPERTY(TaskTracks *tracks READ tracks CONSTANT)
    Q_PROPERTY(bool isBusy READ isBusy NOTIFY queueChanged)
    Q_PROPERTY(bool isPaused READ isPaused NOTIFY pauseChanged)
    Q_PROPERTY(bool canConvert READ canConvert NOTIFY queueChanged)
    Q_PROPERTY(bool canClear READ canClear NOTIFY queueChanged)
    Q_PROPERTY(QString overall READ overall NOTIFY overallChanged)
    Q_PROPERTY(QString outcome READ outcome NOTIFY overallChanged)
    Q_PROPERTY(int overallPercent READ overallPercent NOTIFY overallChanged)
    Q_PROPERTY(int firstInSight MEMBER m_firstInSight NOTIFY scrolled)
    Q_PROPERTY(int outlookVersion READ outlookVersion NOTIFY outlookChanged)

public:
    Page(PageKind kind, WindowSettings &settings, Presets &presets, QObject *parent = nullptr);

    TaskList *tasks() { return &m_tasks; }
    const TaskList *tasks() const { return &m_tasks; }
    TaskSelection *selection() { return &m_selection; }
    Offer *offer() { return &m_offer; }
    PageOutput *output() { return &m_output; }
    TaskLogs *logs() { return &m_logs; }
    TaskTracks *tracks() { return &m_tracks; }
    QString globalCaption() const { return m_formats.globalCaption(); }
    QString globalIcon() const { return m_formats.globalIcon(); }
    /*! The output folder; empty: beside each source. */
    QString folder() const { return m_output.folder(); }
    void setFolder(const QString &folder) { m_output.setFolder(folder); }
    /*! Whether any task is running or waiting. */
    bool isBusy() const { return m_runner.isBusy(); }
    bool isPaused() const { return m_runner.isPaused(); }
    /*! Whether convertAll() would do anything. */
    bool canConvert() const;
    /*! Whether clearConverted() would do anything. */
    bool canClear() const { return m_tasks.countOf(Task::Converted) > 0; }
    /*! How far the conversions are as a whole: "3 of 17  ·  12:04 left"; empty if there are
     *  none. */
    QString overall() const { return m_runner.text(); }
    /*! See TaskRunner::outcome(). */
    QString outcome() const { return m_runner.outcome(); }
    int overallPercent() const { return m_runner.percent(); }
    /*! Rises when outlook() may give something else for all tasks. */
    int outlookVersion() const { return m_outlookVersion; }

    /*! Appends the files, and the media files in folders. Those that are in the list already are
     *  offered to be added again; what is no media file is named. */
    Q_INVOKABLE void addFiles(const QList<QUrl> &urls);
    void addPaths(const QStringList &paths);
    /*! The list, to be kept when the program ends. */
    [[nodiscard]] QVector<KeptTask> kept() const;
    void restore(const QVector<KeptTask> &tasks);

    /*! What the task's conversion will give. Bindings name all that it depends on. */
    Q_INVOKABLE Outlook outlook(int taskId, const QString &format, double start, double end,
                                const QString &tracks, int version) const;
    [[nodiscard]] ConversionJob jobOf(const Task &task) const;
    TaskOutlooks &outlooks() { return m_outlooks; }
    /*! The first row that the user sees. */
    [[nodiscard]] int firstInSight() const { return m_firstInSight; }
    /*! The task's row; -1 if there is no such task. */
    Q_INVOKABLE int rowOf(int taskId) const { return m_tasks.rowOf(taskId); }
    /*! The task in this row; 0 if there is no such row. */
    Q_INVOKABLE int idAt(int row) const { return m_tasks.tasks().value(row).id; }

    // "Chosen" tasks are the selected ones if the named task is one of them, else it alone.

    /*! Running tasks are stopped first. */
    Q_INVOKABLE void remove(int taskId) { removeTasks({taskId}); }
    Q_INVOKABLE void removeChosen(int taskId) { removeTasks(m_selection.with(taskId)); }
    /*! Removes the converted tasks. */
    Q_INVOKABLE void clearConverted();
    /*! Puts back what was removed last. */
    Q_INVOKABLE void undoRemoval();
    /*! When that was; null if nothing can be put back. */
    [[nodiscard]] QDateTime lastRemoval() const { return m_removals.last(); }
    /*! Moves the chosen tasks to the place of the task \a before; 0: to the end. */
    Q_INVOKABLE void moveChosen(int taskId, int before);
    Q_INVOKABLE void sortBy(Task::SortKey key);
    /*! Has the thumbnail made, if the file has a picture. Meant for the rows in sight. */
    Q_INVOKABLE void requestThumbnail(int taskId);

    Q_INVOKABLE void convert(int taskId) { start({taskId}); }
    Q_INVOKABLE void convertChosen(int taskId) { start(m_selection.with(taskId)); }
    /*! Converts all files that aren't converted yet. */
    Q_INVOKABLE void convertAll();
    Q_INVOKABLE void cancel(int taskId) { m_runner.cancel(taskId); }
    Q_INVOKABLE void cancelChosen(int taskId);
    Q_INVOKABLE void cancelAll() { m_runner.cancelAll(); }
    Q_INVOKABLE void pause() { m_runner.pause(); }
    Q_INVOKABLE void resume() { m_runner.resume(); }
    /*! Gives this task a format of its own. */
    Q_INVOKABLE void useFormat(int taskId, const QString &id) { m_formats.choose({taskId}, id); }
    /*! Gives the selected tasks this format or, if none is selected, all that follow the page's. */
    Q_INVOKABLE void useFormatForSelected(const QString &id);
    /*! Lets the chosen tasks follow the page's format again. */
    Q_INVOKABLE void followChosen(int taskId);
    /*! Shows the task's result, or else its source, in the file manager. */
    Q_INVOKABLE void showInFolder(int taskId);
    /*! Opens the task's result in the default player. */
    Q_INVOKABLE void play(int taskId);

    /*! Converts ten seconds of the task's file, plays them, and offers to say how large all of it
     *  would be. An empty \a format means the task's own. */
    Q_INVOKABLE void trySample(int taskId, const QString &format = {});

    /*! Whether a running or waiting task uses the preset. */
    Q_INVOKABLE bool checkFormatUsed(const QString &id) const;

Q_SIGNALS:
    void globalFormatChanged();
    void queueChanged();
    void pauseChanged();
    void overallChanged();
    void outlookChanged();
    /*! Other rows are in sight. */
    void scrolled();
    /*! A conversion has begun. */
    void started(int taskId);
    /*! No conversion is left. Those that were stopped count as neither. */
    void ended(int converted, int failed);
    /*! One line for the user. */
    void noticed(const QString &line);

protected:
    /*! Sets the preset of the page, used for all tasks that follow it. */
    void setGlobalFormat(const QString &id);
    /*! Sets the preset of the chosen tasks. */
    void setTaskFormat(int taskId, const QString &id);
    /*! Sets the part to convert, in seconds; an \a end of 0 means the file's end. */
    void setCut(int taskId, double start, double end);

private:
    int addTask(const Task &task);
    void addAll(const QVector<SourceFile> &files);
    /*! Converts the tasks, unless the user has to be asked about their results' names first. */
    void start(const QVector<int> &ids);
    void removeTasks(const QVector<int> &ids);
    void takeFacts(int taskId, const Result<MediaFacts> &facts);
    void offerAgain();
    void renewOutlooks();

    WindowSettings &m_settings;
    TaskList m_tasks;
    TaskSelection m_selection{m_tasks};
    Offer m_offer;
    TaskFormats m_formats;
    PageOutput m_output;
    TaskTracks m_tracks;
    TaskLogs m_logs;
    TaskOutlooks m_outlooks;
    int m_outlookVersion = 0;
    int m_firstInSight = 0; // row
    Inspector m_inspector;
    TaskRunner m_runner;
    TaskRemovals m_removals;
    SampleOffer m_trial{m_offer};
};

#endif
