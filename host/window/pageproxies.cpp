#include "host/window/pageproxies.h"

#include "host/media/clocktext.h"

#include <algorithm>

void ConverterProxy::openInEditor(int taskId)
{
    if (const Task *task = tasks()->find(taskId)) {
        Q_EMIT editorAsked(task->source, task->format);
    }
}

EditorProxy::EditorProxy(WindowSettings &settings, Presets &presets, QObject *parent)
    : Page(PageKind::Editor, settings, presets, parent)
{}

void EditorProxy::addWithFormat(const QString &path, const QString &format)
{
    const auto isThere = [this, &path] {
        const QVector<Task> &all = tasks()->tasks();
        return std::find_if(all.begin(), all.end(),
                            [&path](const Task &task) { return task.source == path; });
    };
    if (isThere() == tasks()->tasks().end()) {
        addPaths({path});
    }
    if (const auto task = isThere(); task != tasks()->tasks().end()) {
        setTaskFormat(task->id, format);
    }
}

double EditorProxy::secondsOf(const QString &text) const
{
    return secondsFromClockText(text);
}

QString EditorProxy::clockOf(double seconds) const
{
    return exactClockText(seconds);
}

double EditorProxy::frameSeconds(int taskId) const
{
    const Task *task = tasks()->find(taskId);
    return FrameReader::frameSeconds(task == nullptr ? MediaFacts() : task->facts);
}

void EditorProxy::requestFrame(int taskId, double seconds)
{
    const Task *task = tasks()->find(taskId);
    if (task == nullptr) {
        return;
    }
    m_frames.disconnect(this);
    connect(&m_frames, &FrameReader::ready, this,
            [this, taskId](const QString &, double moment, const QString &url) {
                Q_EMIT frameReady(taskId, moment, url);
            });
    m_frames.request(task->source, task->facts, seconds);
}
