#ifndef WINDOW_PAGE_H
#define WINDOW_PAGE_H

#include "host/queue/conversionqueue.h"
#include "host/window/inspector.h"
#include "host/window/taskformats.h"

#include <QList>
#include <QUrl>

/*!
 * A page of the window: its list of files, its format and its folder, and the conversions, which
 * run one after another. A task that fails says why and the next one has its turn.
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
    /*! Where results go; empty: beside their sources. */
    QString folder() const { return m_settings.folder(m_kind); }
    /*! The same, for display. */
    QString folderText() const;
    void setFolder(const QString &folder);
    /*! Whether any task is converted or waits for its turn. */
    bool isBusy() const;
    /*! Whether convertAll() would do anything. */
    bool canConvert() const;

    /*! Appends the files, and the media files in folders. Only file: URLs count. */
    Q_INVOKABLE void addFiles(const QList<QUrl> &urls);
    void addPaths(const QStringList &paths);
    /*! A running task is stopped first. */
    Q_INVOKABLE void remove(int taskId);
    Q_INVOKABLE void convert(int taskId);
    /*! Converts whatever isn't converted yet. */
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
    /*! One line that the user should know. */
    void noticed(const QString &line);

protected:
    /*! The format of the page, for new files and for all in the list that aren't at work. */
    void setGlobalFormat(const QString &id) { m_formats.chooseGlobal(id); }
    void setTaskFormat(int taskId, const QString &id) { m_formats.choose(taskId, id); }
    /*! The part of the file to convert, in seconds; an \a end of 0 is the file's end. */
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
