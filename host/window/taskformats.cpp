#include "host/window/taskformats.h"

#include "host/window/defaultpreset.h"
#include "host/window/presets.h"

#include <algorithm>

TaskFormats::TaskFormats(PageKind page, WindowSettings &settings, Presets &presets, TaskList &tasks)
    : m_page(page)
    , m_settings(settings)
    , m_presets(presets)
    , m_tasks(tasks)
{
    connect(&m_presets, &Presets::changed, this, &TaskFormats::followPresets);
}

QString TaskFormats::globalCaption() const
{
    return m_presets.caption(m_presets.usable(globalId(), {}));
}

QString TaskFormats::globalIcon() const
{
    return m_presets.icon(m_presets.usable(globalId(), {}));
}

QString TaskFormats::iconOf(const QString &id) const
{
    return m_presets.icon(id);
}

void TaskFormats::chooseGlobal(const QString &id)
{
    m_settings.setGlobalId(m_page, id);
    noteUse(id);
    const Followed wanted = followed();
    const QVector<Task> all = m_tasks.tasks();
    for (const Task &task : all) {
        if (task.ownFormats.isEmpty() && !task.isSettled()) {
            assign(task.id, wanted);
            m_tasks.reopen(task.id);
        }
    }
    Q_EMIT globalChanged();
}

void TaskFormats::choose(const QVector<int> &taskIds, const QString &id)
{
    noteUse(id);
    for (const int taskId : taskIds) {
        if (const Task *task = m_tasks.find(taskId)) {
            QStringList own = task->ownFormats;
            own.removeAll(id);
            setOwn(taskId, own << id);
        }
    }
}

void TaskFormats::follow(int taskId)
{
    setOwn(taskId, {});
}

void TaskFormats::setOwn(int taskId, const QStringList &ids)
{
    const Task *task = m_tasks.find(taskId);
    if (task == nullptr || task->state == Task::Running) {
        return;
    }
    m_tasks.update(taskId, [&ids](Task &changed) { changed.ownFormats = ids; });
    m_tasks.reopen(taskId);
    assign(taskId);
}

QString TaskFormats::presetId(const Task &task) const
{
    return m_presets.usable(task.format, globalId());
}

QVector<int> TaskFormats::outdated() const
{
    const Followed wanted = followed();
    QVector<int> ids;
    for (const Task &task : m_tasks.tasks()) {
        const bool follows = task.state == Task::Converted && task.ownFormats.isEmpty();
        if (follows && formatOf(task, wanted) != task.format) {
            ids << task.id;
        }
    }
    return ids;
}

OutputSettings TaskFormats::outputSettings(const Task &task) const
{
    const std::optional<FoundPreset> preset = m_presets.find(presetId(task));
    return preset ? preset->outputSettings() : OutputSettings();
}

bool TaskFormats::hasVideo(const QString &id) const
{
    const std::optional<FoundPreset> preset = m_presets.find(id);
    return preset && preset->outputSettings().hasVideo;
}

TaskFormats::Followed TaskFormats::followed() const
{
    Followed followed;
    followed.usual = m_presets.usable(globalId(), {});
    followed.ofSongs = followed.ofSilentFilms = followed.usual;
    if (hasVideo(followed.usual)) {
        followed.ofSongs = m_presets.usable(m_settings.lastId(false), defaultAudioPresetId());
    } else {
        followed.ofSilentFilms = m_presets.usable(m_settings.lastId(true), {});
    }
    return followed;
}

QString TaskFormats::formatOf(const Task &task, const Followed &followed) const
{
    const auto own = std::find_if(task.ownFormats.crbegin(), task.ownFormats.crend(),
                                  [this](const QString &id) { return m_presets.find(id); });
    if (own != task.ownFormats.crend()) {
        return m_presets.usable(*own, {});
    }
    // One that was restored is what it was, until its file tells otherwise.
    if (!task.isRead && m_presets.find(task.format)) {
        return task.format;
    }
    if (task.facts.isEmpty()) {
        return followed.usual;
    }
    return task.facts.video() == nullptr   ? followed.ofSongs
           : task.facts.audio() == nullptr ? followed.ofSilentFilms
                                           : followed.usual;
}

void TaskFormats::assign(int taskId, const Followed &followed)
{
    const Task *task = m_tasks.find(taskId);
    if (task == nullptr || task->isSettled()) {
        return;
    }
    const QString format = formatOf(*task, followed);
    const QString caption = m_presets.caption(format);
    if (format != task->format || caption != task->formatCaption) {
        m_tasks.update(taskId, [this, &format, &caption](Task &changed) {
            changed.format = format;
            changed.formatCaption = caption;
            changed.formatIcon = m_presets.icon(format);
        });
    }
}

void TaskFormats::noteUse(const QString &id)
{
    m_presets.noteUse(id);
    if (m_presets.find(id)) {
        m_settings.setLastId(hasVideo(id), id);
    }
}

void TaskFormats::followPresets()
{
    const Followed wanted = followed();
    const QVector<Task> all = m_tasks.tasks();
    for (const Task &task : all) {
        assign(task.id, wanted);
    }
    Q_EMIT globalChanged();
}
