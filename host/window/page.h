#ifndef WINDOW_PAGE_H
#define WINDOW_PAGE_H

#include "host/queue/conversionqueue.h"
#include "host/window/inspector.h"
#include "host/window/taskformats.h"

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
    Q_PROPERTY(QString globalCaption READ globalCaption NOTIFY globalFormatChanged)
    Q_PROPERTY(QString globalIcon READ globalIcon NOTIFY globalFormatChanged)
    Q_PROPERTY(QString folder READ folderText WRITE setFolder NOTIFY folderChanged)
    Q_PROPERTY(bool isBusy READ isBusy NOTIFY queueChanged)
    Q_PROPERTY(bool canConvert READ canConvert NOTIFY queueChanged)

public:
    Page(PageKind kind, WindowSettings &settings, Presets &presets, QObject *parent = nullptr);

    TaskList *tasks() { return &m_tasks; }
    QString globalCaption() const { return m_formats.globalCaption(); }
    QString globalIcon() const { return m_formats.globalIcon(); }
    /*! The output folder; empty: beside each source. */
    QString folder() const { return m_settings.folder(m_kind); }
    /*! The same, for display. */
    QString folderText() const;
    void setFolder(const QString &folder);
    /*! Whether any task is running or waiting. */
    bool isBusy() const;
    /*! Whether convertAll() would do anything. */
    bool canConvert() const;

    /*! Appends the files, and the media files in folders. Ignores all but file: URLs. */
    Q_INVOKABLE void addFiles(const QList<QUrl> &urls);
    void addPaths(const QStringList &paths);
    /*! A running task is stopped first. */
    Q_INVOKABLE void remove(int taskId);
    /*! Has the thumbnail made, if the file has a picture. Meant for the rows in sight. */
    Q_INVOKABLE void requestThumbnail(int taskId);
    Q_INVOKABLE void convert(int taskId);
    /*! Converts all files that aren't converted yet. */
    Q_INVOKABLE void convertAll();
    Q_INVOKABLE void cancel(int taskId);
    Q_INVOKABLE void cancelAll();
    /*! Opens the folder of the task's result in the file manager. */
    Q_INVOKABLE void showInFolder(int taskId);

    /*! Whether a running or waiting task uses the preset. */
    Q_INVOKABLE bool checkFormatUsed(const QString &id) const;

Q_SIGNALS:
    void globalFormatChanged();
    void folderChanged();
    void queueChanged();
    /*! One line for the user. */
    void noticed(const QString &line);

protected:
    /*! Sets the preset of the page, used for new files and all tasks that aren't queued. */
    void setGlobalFormat(const QString &id) { m_formats.chooseGlobal(id); }
    void setTaskFormat(int taskId, const QString &id) { m_formats.choose(taskId, id); }
    /*! Sets the part to convert, in seconds; an \a end of 0 means the file's end. */
    void setCut(int taskId, double start, double end);

private:
    void addFile(const QString &path);
    void takeFacts(int taskId, const Result<MediaFacts> &facts);
    void enqueue(int taskId);
    ConversionJob jobOf(int taskId) const;
    void takeOutcome(int taskId, const Result<ConversionOutcome> &outcome);

    const PageKind m_kind;
    WindowSettings &m_settings;
    TaskList m_tasks;
    TaskFormats m_formats;
    Inspector m_inspector;
    ConversionQueue m_queue;
};

#endif
