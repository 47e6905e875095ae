#include "host/window/page.h"

#include "host/files/localpath.h"
#include "host/files/visibletext.h"
#include "host/media/mediafiles.h"
#include "host/window/presets.h"
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

Page::Page(PageKind kind, Settings &settings, Presets &presets, QObject *parent)
    : QObject(parent)
    , m_kind(kind)
    , m_settings(settings)
    , m_presets(presets)
{
    connect(&m_inspector, &Inspector::read, this, [this](int id, const Result<MediaFacts> &facts) {
        m_tasks.update(id, [&facts](Task &task) {
            task.facts = facts.value_or(MediaFacts());
            if (task.state == Task::Reading) {
                task.state = facts ? Task::Ready : Task::Failed;
                task.error = facts ? QString() : facts.error().text;
            }
        });
    });
    connect(&m_inspector, &Inspector::pictured, this, [this](int id, const QString &url) {
        m_tasks.update(id, [&url](Task &task) { task.thumbnail = url; });
    });
    connect(&m_tasks, &TaskList::countChanged, this, &Page::queueChanged);
    connect(&m_presets, &Presets::changed, this, &Page::followPresets);
    if (!folder().isEmpty()) {
        WorkFolder::sweep(folder());
    }
}

QString Page::globalCaption() const
{
    return m_presets.caption(m_presets.usable(m_settings.globalId(m_kind), {}));
}

QString Page::globalIcon() const
{
    return m_presets.icon(m_presets.usable(m_settings.globalId(m_kind), {}));
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
            Q_EMIT noticed(ToolFun::text(QStringLiteral("There are no videos or songs in the "
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
    assign(id, m_settings.globalId(m_kind));
    m_inspector.inspect(id, path);
}

void Page::remove(int taskId)
{
    if (taskId == m_runningTask) {
        delete m_conversion;
        m_runningTask = 0;
    }
    m_inspector.forget(taskId);
    m_tasks.remove(taskId);
    runNext();
}

void Page::convert(int taskId)
{
    const Task *task = m_tasks.find(taskId);
    if (task == nullptr || task->isQueued()) {
        return;
    }
    setState(taskId, Task::Waiting);
    runNext();
}

void Page::convertAll()
{
    const QVector<Task> all = m_tasks.tasks();
    for (const Task &task : all) {
        if (isConvertible(task)) {
            setState(task.id, Task::Waiting);
        }
    }
    runNext();
}

void Page::cancel(int taskId)
{
    if (taskId == m_runningTask) {
        m_conversion->cancel();
        return;
    }
    const Task *task = m_tasks.find(taskId);
    if (task != nullptr && task->state == Task::Waiting) {
        setState(taskId, Task::Cancelled);
    }
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

void Page::setGlobalFormat(const QString &id)
{
    m_settings.setGlobalId(m_kind, id);
    m_presets.noteUse(id);
    const QVector<Task> all = m_tasks.tasks();
    for (const Task &task : all) {
        choose(task.id, id);
    }
    Q_EMIT globalFormatChanged();
}

void Page::setTaskFormat(int taskId, const QString &id)
{
    m_presets.noteUse(id);
    choose(taskId, id);
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
    choose(taskId, m_tasks.find(taskId)->format);
}

void Page::setState(int taskId, Task::State state)
{
    m_tasks.update(taskId, [state](Task &task) {
        task.state = state;
        task.progress = {};
        task.error.clear();
        task.target.clear();
    });
    Q_EMIT queueChanged();
}

/*! Gives the task its format, if it isn't at work. */
void Page::assign(int taskId, const QString &format)
{
    const QString id = m_presets.usable(format, m_settings.globalId(m_kind));
    m_tasks.update(taskId, [this, &id](Task &task) {
        if (!task.isQueued()) {
            task.format = id;
            task.formatCaption = m_presets.caption(id);
            task.formatIcon = m_presets.icon(id);
        }
    });
}

/*! The same for a choice of the user's: a task that is through can then be converted anew. */
void Page::choose(int taskId, const QString &format)
{
    assign(taskId, format);
    const Task *task = m_tasks.find(taskId);
    if (task != nullptr && task->hasEnded() && !task->facts.isEmpty()) {
        setState(taskId, Task::Ready);
    }
}

void Page::followPresets()
{
    const QVector<Task> all = m_tasks.tasks();
    for (const Task &task : all) {
        assign(task.id, task.format);
    }
    Q_EMIT globalFormatChanged();
}

void Page::runNext()
{
    if (m_runningTask != 0) {
        return;
    }
    const auto next = std::find_if(m_tasks.tasks().begin(), m_tasks.tasks().end(),
                                   [](const Task &task) { return task.state == Task::Waiting; });
    if (next == m_tasks.tasks().end()) {
        return;
    }
    const std::optional<FoundPreset> preset =
        m_presets.find(m_presets.usable(next->format, m_settings.globalId(m_kind)));
    ConversionJob job;
    job.source = next->source;
    job.settings = preset ? preset->outputSettings() : OutputSettings();
    job.settings.start = next->start;
    job.settings.end = next->end;
    job.folder = folder();

    m_runningTask = next->id;
    setState(m_runningTask, Task::Running);
    m_conversion = new Conversion(job, this);
    connect(m_conversion, &Conversion::progressed, this, [this](const Progress &progress) {
        m_tasks.update(m_runningTask, [&progress](Task &task) { task.progress = progress; });
    });
    connect(m_conversion, &Conversion::finished, this, &Page::finish);
    m_conversion->start();
}

void Page::finish(const Result<ConversionOutcome> &outcome)
{
    m_conversion->deleteLater();
    const int id = m_runningTask;
    m_runningTask = 0;
    const bool isCancelled = !outcome && outcome.error().kind == Error::Cancelled;
    setState(id, outcome ? Task::Converted : isCancelled ? Task::Cancelled : Task::Failed);
    m_tasks.update(id, [&outcome](Task &task) {
        task.error = outcome ? QString() : outcome.error().text;
        task.target = outcome ? outcome->target : QString();
    });
    runNext();
}
