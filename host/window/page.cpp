#include "host/window/page.h"

#include "host/files/localpath.h"
#include "host/files/visibletext.h"
#include "host/media/mediafiles.h"
#include "host/window/toolfun.h"

#include <QDesktopServices>
#include <QDir>
#include <QFileInfo>

#include <algorithm>

namespace {

bool isConvertible(const Task &task)
{
    return !task.isQueued() && task.state != Task::Converted;
}

} // namespace

Page::Page(PageKind kind, WindowSettings &settings, Presets &presets, QObject *parent)
    : QObject(parent)
    , m_kind(kind)
    , m_settings(settings)
    , m_formats(kind, settings, presets, m_tasks)
{
    connect(&m_tasks, &TaskList::countChanged, this, &Page::queueChanged);
    connect(&m_tasks, &TaskList::stateChanged, this, &Page::queueChanged);
    connect(&m_formats, &TaskFormats::globalChanged, this, &Page::globalFormatChanged);
    connect(&m_inspector, &Inspector::read, this, &Page::takeFacts);
    connect(&m_inspector, &Inspector::thumbnailReady, this, [this](int id, const QString &url) {
        m_tasks.update(id, [&url](Task &task) { task.thumbnail = url; });
    });
    connect(&m_queue, &ConversionQueue::started, this,
            [this](int id) { m_tasks.setState(id, Task::Running); });
    connect(&m_queue, &ConversionQueue::progressed, this, [this](int id, const Progress &progress) {
        m_tasks.update(id, [&progress](Task &task) { task.progress = progress; });
    });
    connect(&m_queue, &ConversionQueue::finished, this, &Page::takeOutcome);
    if (!folder().isEmpty()) {
        WorkFolder::sweep(folder());
    }
}

QString Page::folderText() const
{
    return visibleText(folder());
}

void Page::setFolder(const QString &folder)
{
    m_settings.setFolder(m_kind, folder);
    Q_EMIT folderChanged();
}

bool Page::isBusy() const
{
    return std::any_of(m_tasks.tasks().begin(), m_tasks.tasks().end(),
                       [](const Task &task) { return task.isQueued(); });
}

bool Page::canConvert() const
{
    return std::any_of(m_tasks.tasks().begin(), m_tasks.tasks().end(), isConvertible);
}

void Page::addFiles(const QList<QUrl> &urls)
{
    addPaths(localPaths(urls));
}

void Page::addPaths(const QStringList &paths)
{
    for (const QString &path : paths) {
        const bool isFolder = QFileInfo(path).isDir();
        const QStringList files = isFolder ? mediaFilesIn(path) : QStringList{path};
        if (files.isEmpty()) {
            Q_EMIT noticed(ToolFun::text(QStringLiteral("There are no video or audio files in the "
                                                        "folder %1; add the files themselves"))
                               .arg(QDir::toNativeSeparators(path)));
        }
        for (const QString &file : files) {
            addFile(file);
        }
    }
}

void Page::addFile(const QString &path)
{
    Task task;
    task.source = path;
    const int id = m_tasks.add(task);
    m_formats.assignGlobal(id);
    m_inspector.inspect(id, path);
}

void Page::takeFacts(int taskId, const Result<MediaFacts> &facts)
{
    m_tasks.update(taskId, [&facts](Task &task) {
        task.facts = facts.value_or(MediaFacts());
        if (task.state == Task::Reading) {
            task.state = facts ? Task::Ready : Task::Failed;
            task.error = facts ? QString() : facts.error().text;
        }
    });
}

void Page::requestThumbnail(int taskId)
{
    if (const Task *task = m_tasks.find(taskId)) {
        m_inspector.requestThumbnail(taskId, task->source, task->facts);
    }
}

void Page::remove(int taskId)
{
    m_inspector.forget(taskId);
    m_tasks.remove(taskId);
    m_queue.remove(taskId);
}

void Page::convert(int taskId)
{
    const Task *task = m_tasks.find(taskId);
    if (task == nullptr || task->isQueued()) {
        return;
    }
    enqueue(taskId);
    m_queue.start();
}

void Page::convertAll()
{
    const QVector<Task> all = m_tasks.tasks();
    for (const Task &task : all) {
        if (isConvertible(task)) {
            enqueue(task.id);
        }
    }
    m_queue.start();
}

void Page::enqueue(int taskId)
{
    m_tasks.setState(taskId, Task::Waiting);
    m_queue.add(taskId, [this, taskId] { return jobOf(taskId); });
}

ConversionJob Page::jobOf(int taskId) const
{
    const Task &task = *m_tasks.find(taskId);
    ConversionJob job;
    job.source = task.source;
    job.settings = m_formats.outputSettings(task);
    job.settings.start = task.start;
    job.settings.end = task.end;
    job.target.folder = folder();
    return job;
}

void Page::takeOutcome(int taskId, const Result<ConversionOutcome> &outcome)
{
    const bool isCancelled = !outcome && outcome.error().kind == Error::Cancelled;
    m_tasks.setState(taskId, outcome       ? Task::Converted
                             : isCancelled ? Task::Cancelled
                                           : Task::Failed);
    m_tasks.update(taskId, [&outcome](Task &task) {
        task.error = outcome ? QString() : outcome.error().text;
        task.target = outcome ? outcome->target : QString();
        task.note = outcome ? outcome->notes().join(QStringLiteral("; ")) : QString();
    });
}

void Page::cancel(int taskId)
{
    m_queue.cancel(taskId);
}

void Page::cancelAll()
{
    const QVector<Task> all = m_tasks.tasks();
    for (const Task &task : all) {
        cancel(task.id);
    }
}

void Page::showInFolder(int taskId)
{
    if (const Task *task = m_tasks.find(taskId)) {
        const QFileInfo file(task->target.isEmpty() ? task->source : task->target);
        if (!QDesktopServices::openUrl(localUrl(file.absolutePath()))) {
            Q_EMIT noticed(ToolFun::text(QStringLiteral("No file manager could be started to show "
                                                        "the folder %1; open it by hand"))
                               .arg(QDir::toNativeSeparators(file.absolutePath())));
        }
    }
}

bool Page::checkFormatUsed(const QString &id) const
{
    return std::any_of(m_tasks.tasks().begin(), m_tasks.tasks().end(),
                       [&id](const Task &task) { return task.isQueued() && task.format == id; });
}

void Page::setCut(int taskId, double start, double end)
{
    const Task *task = m_tasks.find(taskId);
    if (task == nullptr || task->isQueued()) {
        return;
    }
    m_tasks.update(taskId, [start, end](Task &cut) {
        cut.start = start;
        cut.end = end;
    });
    m_tasks.reopen(taskId);
}
