#include "host/window/taskformats.h"

#include "host/window/presets.h"

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

void TaskFormats::assignGlobal(int taskId)
{
    assign(taskId, globalId());
}

void TaskFormats::chooseGlobal(const QString &id)
{
    m_settings.setGlobalId(m_page, id);
    m_presets.noteUse(id);
    const QVector<Task> all = m_tasks.tasks();
    for (const Task &task : all) {
        assign(task.id, id);
        m_tasks.reopen(task.id);
    }
    Q_EMIT globalChanged();
}

void TaskFormats::choose(int taskId, const QString &id)
{
    m_presets.noteUse(id);
    assign(taskId, id);
    m_tasks.reopen(taskId);
}

OutputSettings TaskFormats::outputSettings(const Task &task) const
{
    const std::optional<FoundPreset> preset =
        m_presets.find(m_presets.usable(task.format, globalId()));
    return preset ? preset->outputSettings() : OutputSettings();
}

void TaskFormats::assign(int taskId, const QString &id)
{
    const QString usable = m_presets.usable(id, globalId());
    m_tasks.update(taskId, [this, &usable](Task &task) {
        if (!task.isQueued()) {
            task.format = usable;
            task.formatCaption = m_presets.caption(usable);
            task.formatIcon = m_presets.icon(usable);
        }
    });
}

void TaskFormats::followPresets()
{
    const QVector<Task> all = m_tasks.tasks();
    for (const Task &task : all) {
        assign(task.id, task.format);
    }
    Q_EMIT globalChanged();
}
