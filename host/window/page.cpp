#include "host/window/page.h"

#include "host/files/localpath.h"
#include "host/files/visibletext.h"
#include "host/window/addedfiles.h"
#include "host/window/openfile.h"
#include "host/window/restoredtask.h"
#include "host/window/tasktexts.h"
#include "host/window/toolfun.h"

#include <QPointer>

#include <algorithm>
#include <iterator>

namespace {

/*! "song.wav" for one file, else how many they are. */
QString namesOf(const QStringList &paths)
{
    return paths.size() == 1
               ? visibleName(paths.constFirst())
               : ToolFun::text(QStringLiteral("%1 files")).arg(countText(paths.size()));
}

QStringList pathsOf(const QVector<SourceFile> &files)
{
    QStringList paths;
    std::transform(files.begin(), files.end(), std::back_inserter(paths),
                   [](const SourceFile &file) { return file.path; });
    return paths;
}

} // namespace

Page::Page(PageKind kind, WindowSettings &settings, Presets &presets, QObject *parent)
    : QObject(parent)
    , m_settings(settings)
    , m_formats(kind, settings, presets, m_tasks)
    , m_output(kind, settings, m_tasks, m_formats)
    , m_tracks(m_tasks, [this](const Task &task) { return jobOf(task).settings; })
    , m_outlooks(presets, settings, [this](const Task &task) { return jobOf(task); })
    , m_runner(m_tasks, [this](const Task &task) { return jobOf(task); })
    , m_removals(m_tasks, m_inspector, m_runner)
{
    connect(&m_tasks, &TaskList::countChanged, this, &Page::queueChanged);
    connect(&m_tasks, &TaskList::stateChanged, this, &Page::queueChanged);
    connect(&m_formats, &TaskFormats::globalChanged, this, &Page::globalFormatChanged);
    connect(&m_inspector, &Inspector::read, this, &Page::takeFacts);
    connect(&m_inspector, &Inspector::thumbnailReady, &m_tasks, &TaskList::setThumbnail);
    connect(&m_outlooks, &TaskOutlooks::known, this, &Page::renewOutlooks);
    connect(&m_output, &PageOutput::changed, this, &Page::renewOutlooks);
    connect(&m_output, &PageOutput::answered, &m_runner, &TaskRunner::convert);
    connect(&m_runner, &TaskRunner::started, &m_logs, &TaskLogs::begin);
    connect(&m_runner, &TaskRunner::logged, &m_logs, &TaskLogs::add);
    const auto limitJobs = [this] { m_runner.setMaxRunning(m_settings.jobs()); };
    connect(&settings, &WindowSettings::jobsChanged, this, limitJobs);
    limitJobs();
    connect(&m_runner, &TaskRunner::progressed, this, &Page::overallChanged);
    connect(&m_runner, &TaskRunner::pauseChanged, this, &Page::pauseChanged);
    connect(&m_runner, &TaskRunner::started, this, &Page::started);
    connect(&m_runner, &TaskRunner::ended, this, &Page::ended);
    connect(&m_trial, &SampleOffer::noticed, this, &Page::noticed);
    if (!folder().isEmpty()) {
        WorkFolder::sweep(folder());
    }
}

Outlook Page::outlook(int taskId, const QString & /*format*/, double /*start*/, double /*end*/,
                      const QString & /*tracks*/, int /*version*/) const
{
    const Task *task = m_tasks.find(taskId);
    return task == nullptr ? Outlook() : m_outlooks.of(*task);
}

void Page::renewOutlooks()
{
    ++m_outlookVersion;
    Q_EMIT outlookChanged();
}

bool Page::canConvert() const
{
    return m_tasks.count() > m_tasks.countOf(Task::Converted) + m_tasks.countOf(Task::Waiting) +
                                 m_tasks.countOf(Task::Running);
}

void Page::addFiles(const QList<QUrl> &urls)
{
    const QStringList remote = noticesOfRemote(urls);
    for (const QString &line : remote) {
        Q_EMIT noticed(line);
    }
    addPaths(localPaths(urls));
}

void Page::addPaths(const QStringList &paths)
{
    QSet<QString> present;
    for (const Task &task : m_tasks.tasks()) {
        present.insert(task.source);
    }
    const AddedFiles added = AddedFiles::of(paths, present, folder());
    for (const QString &line : added.notices) {
        Q_EMIT noticed(line);
    }
    addAll(added.files);
    if (!added.known.isEmpty()) {
        m_offer.make(ToolFun::text(QStringLiteral("Already in the list: %1"))
                         .arg(namesOf(pathsOf(added.known))),
                     ToolFun::text(QStringLiteral("Add again")),
                     [this, known = added.known] { addAll(known); });
    }
}

void Page::addAll(const QVector<SourceFile> &files)
{
    for (const SourceFile &file : files) {
        Task task;
        task.source = file.path;
        task.subfolder = file.subfolder;
        addTask(task);
    }
}

int Page::addTask(const Task &task)
{
    const int id = m_tasks.add(task);
    m_formats.assign(id);
    m_inspector.inspect(id, task.source);
    return id;
}

QVector<KeptTask> Page::kept() const
{
    QVector<KeptTask> kept;
    const QVector<Task> &all = m_tasks.tasks();
    std::transform(all.cbegin(), all.cend(), std::back_inserter(kept), keptTask);
    return kept;
}

void Page::restore(const QVector<KeptTask> &tasks)
{
    for (const KeptTask &kept : tasks) {
        Task task = restoredTask(kept);
        task.formatIcon = m_formats.iconOf(task.format);
        addTask(task);
    }
}

void Page::takeFacts(int taskId, const Result<MediaFacts> &facts)
{
    const Task *task = m_tasks.find(taskId);
    if (task == nullptr) {
        return;
    }
    m_tasks.update(taskId, [&facts](Task &read) {
        read.facts = facts.value_or(MediaFacts());
        read.isRead = true;
    });
    if (task->state == Task::Reading) {
        m_tasks.setState(taskId, facts ? Task::Ready : Task::Failed);
        m_tasks.update(
            taskId, [&facts](Task &read) { read.error = facts ? QString() : facts.error().text; });
    }
    m_formats.assign(taskId);
    m_runner.startNext();
}

void Page::requestThumbnail(int taskId)
{
    if (const Task *task = m_tasks.find(taskId)) {
        m_inspector.requestThumbnail(taskId, task->source, task->facts);
    }
}

void Page::removeTasks(const QVector<int> &ids)
{
    const QStringList sources = m_removals.remove(ids);
    if (!sources.isEmpty()) {
        m_offer.make(ToolFun::text(QStringLiteral("Removed: %1")).arg(namesOf(sources)),
                     ToolFun::text(QStringLiteral("Undo")), [this] { undoRemoval(); });
    }
}

void Page::clearConverted()
{
    QVector<int> ids;
    for (const Task &task : m_tasks.tasks()) {
        if (task.state == Task::Converted) {
            ids << task.id;
        }
    }
    removeTasks(ids);
}

void Page::undoRemoval()
{
    const QVector<int> ids = m_removals.undo();
    for (const int id : ids) {
        m_formats.assign(id);
    }
    if (!ids.isEmpty()) {
        m_offer.dismiss();
    }
}

void Page::moveChosen(int taskId, int before)
{
    const QVector<int> ids = m_selection.with(taskId);
    m_tasks.move(QSet<int>(ids.cbegin(), ids.cend()), before);
}

void Page::sortBy(Task::SortKey key)
{
    m_tasks.sortBy([key](const Task &one, const Task &other) { return one.isBefore(other, key); });
}

void Page::convertAll()
{
    QVector<int> ids;
    for (const Task &task : m_tasks.tasks()) {
        if (task.state != Task::Converted) {
            ids << task.id;
        }
    }
    start(ids);
}

void Page::start(const QVector<int> &ids)
{
    if (m_output.prepare(ids)) {
        m_runner.convert(ids);
    }
}

ConversionJob Page::jobOf(const Task &task) const
{
    ConversionJob job;
    job.source = task.source;
    job.isLogged = true;
    job.settings = m_formats.outputSettings(task);
    job.settings.start = task.start;
    job.settings.end = task.end;
    job.settings.audioTracks = task.tracks.audio;
    job.settings.subtitles = task.tracks.subtitles;
    job.settings.burnedSubtitles = task.tracks.burnedSubtitles;
    job.target = m_output.targetFor(task);
    return job;
}

void Page::cancelChosen(int taskId)
{
    const QVector<int> ids = m_selection.with(taskId);
    // From the end, as a running task that stops makes room for one that waits.
    std::for_each(ids.crbegin(), ids.crend(), [this](int id) { m_runner.cancel(id); });
}

void Page::followChosen(int taskId)
{
    const QVector<int> ids = m_selection.with(taskId);
    for (const int id : ids) {
        m_formats.follow(id);
    }
}

void Page::showInFolder(int taskId)
{
    if (const Task *task = m_tasks.find(taskId)) {
        showFile(task->target.isEmpty() ? task->source : task->target,
                 [page = QPointer<Page>(this)](const QString &line) {
                     if (page != nullptr) {
                         Q_EMIT page->noticed(line);
                     }
                 });
    }
}

void Page::play(int taskId)
{
    if (const Task *task = m_tasks.find(taskId)) {
        const Result<> played = playFile(task->target);
        if (!played) {
            Q_EMIT noticed(played.error().text);
        }
    }
}

void Page::trySample(int taskId, const QString &format)
{
    if (const Task *task = m_tasks.find(taskId)) {
        Task tried = *task;
        tried.format = format.isEmpty() ? tried.format : format;
        m_trial.start(jobOf(tried));
    }
}

bool Page::checkFormatUsed(const QString &id) const
{
    return std::any_of(m_tasks.tasks().begin(), m_tasks.tasks().end(),
                       [&id](const Task &task) { return task.isQueued() && task.format == id; });
}

void Page::setGlobalFormat(const QString &id)
{
    m_formats.chooseGlobal(id);
    offerAgain();
}

/*! A new format leaves results alone; who wants these files in it, too, finds the way here. */
void Page::offerAgain()
{
    const QVector<int> again = m_formats.outdated();
    QStringList sources;
    for (const int id : again) {
        sources << m_tasks.find(id)->source;
    }
    if (again.isEmpty()) {
        return;
    }
    m_offer.make(ToolFun::text(QStringLiteral("Converted already: %1")).arg(namesOf(sources)),
                 ToolFun::text(QStringLiteral("Convert again")), [this, again] {
                     for (const int id : again) {
                         m_formats.follow(id);
                     }
                     start(again);
                 });
}

void Page::useFormatForSelected(const QString &id)
{
    const QVector<int> selected = m_selection.ids();
    if (selected.isEmpty()) {
        setGlobalFormat(id);
    } else {
        m_formats.choose(selected, id);
    }
}

void Page::setTaskFormat(int taskId, const QString &id)
{
    m_formats.choose(m_selection.with(taskId), id);
}

void Page::setCut(int taskId, double start, double end)
{
    const Task *task = m_tasks.find(taskId);
    if (task == nullptr || task->state == Task::Running) {
        return;
    }
    m_tasks.update(taskId, [start, end](Task &cut) {
        cut.start = start;
        cut.end = end;
    });
    m_tasks.reopen(taskId);
}
