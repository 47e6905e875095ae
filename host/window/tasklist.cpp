#include "host/window/tasklist.h"

#include "host/files/visibletext.h"
#include "host/media/clocktext.h"

#include <QFileInfo>
#include <QLocale>

#include <algorithm>

namespace {

int nextId()
{
    // Both pages number their tasks in one sequence: an id names one task of the whole window.
    static int last = 0;
    return ++last;
}

QString detailsOf(const MediaFacts &facts)
{
    QStringList parts;
    if (const VideoTrack *video = facts.video()) {
        const QSize size = video->displaySize();
        parts << QStringLiteral("%1 × %2").arg(size.width()).arg(size.height());
    }
    if (facts.duration > 0) {
        parts << clockText(facts.duration);
    }
    if (facts.bytes > 0) {
        parts << QLocale().formattedDataSize(facts.bytes, 1, QLocale::DataSizeTraditionalFormat);
    }
    return parts.join(QStringLiteral("  ·  "));
}

QString codecsOf(const MediaFacts &facts)
{
    QStringList codecs;
    if (const VideoTrack *video = facts.video()) {
        codecs << video->codec;
    }
    if (const AudioTrack *audio = facts.audio()) {
        codecs << audio->codec;
    }
    return codecs.join(QStringLiteral(", "));
}

} // namespace

TaskList::TaskList(QObject *parent)
    : QAbstractListModel(parent)
{}

int TaskList::rowCount(const QModelIndex &parent) const
{
    return parent.isValid() ? 0 : m_tasks.size();
}

QVariant TaskList::data(const QModelIndex &index, int role) const
{
    if (!checkIndex(index, CheckIndexOption::IndexIsValid | CheckIndexOption::ParentIsInvalid)) {
        return {};
    }
    const Task &task = m_tasks.at(index.row());
    switch (role) {
    case TaskIdRole:
        return task.id;
    case Qt::DisplayRole:
    case NameRole:
        return visibleText(QFileInfo(task.source).fileName());
    case SourceRole:
        return visibleText(task.source);
    case DetailsRole:
        return detailsOf(task.facts);
    case CodecsRole:
        return codecsOf(task.facts);
    case SecondsRole:
        return task.facts.duration;
    case ThumbnailRole:
        return task.thumbnail;
    case FormatRole:
        return task.format;
    case FormatCaptionRole:
        return task.formatCaption;
    case FormatIconRole:
        return task.formatIcon;
    case StateRole:
        return int(task.state);
    case PercentRole:
        return task.progress.percent();
    case SpeedRole:
        return task.progress.speed;
    case TimeLeftRole:
        return task.progress.timeLeft() < 0 ? QString() : clockText(task.progress.timeLeft());
    case ErrorRole:
        return visibleText(task.error);
    case TargetRole:
        return visibleText(task.target);
    case NoteRole:
        return visibleText(task.note);
    case StartRole:
        return task.start;
    case EndRole:
        return task.end;
    }
    return {};
}

QHash<int, QByteArray> TaskList::roleNames() const
{
    return {
        {TaskIdRole, "taskId"},
        {NameRole, "name"},
        {SourceRole, "source"},
        {DetailsRole, "details"},
        {CodecsRole, "codecs"},
        {SecondsRole, "seconds"},
        {ThumbnailRole, "thumbnail"},
        {FormatRole, "format"},
        {FormatCaptionRole, "formatCaption"},
        {FormatIconRole, "formatIcon"},
        {StateRole, "taskState"},
        {PercentRole, "percent"},
        {SpeedRole, "speed"},
        {TimeLeftRole, "timeLeft"},
        {ErrorRole, "error"},
        {TargetRole, "target"},
        {NoteRole, "note"},
        {StartRole, "start"},
        {EndRole, "end"},
    };
}

const Task *TaskList::find(int id) const
{
    const int row = rowOf(id);
    return row < 0 ? nullptr : &m_tasks.at(row);
}

int TaskList::add(Task task)
{
    task.id = nextId();
    beginInsertRows({}, m_tasks.size(), m_tasks.size());
    m_tasks.append(task);
    endInsertRows();
    Q_EMIT countChanged();
    return task.id;
}

void TaskList::remove(int id)
{
    const int row = rowOf(id);
    if (row < 0) {
        return;
    }
    beginRemoveRows({}, row, row);
    m_tasks.removeAt(row);
    endRemoveRows();
    Q_EMIT countChanged();
}

void TaskList::update(int id, const std::function<void(Task &)> &change)
{
    const int row = rowOf(id);
    if (row < 0) {
        return;
    }
    change(m_tasks[row]);
    Q_EMIT dataChanged(index(row), index(row));
}

void TaskList::setState(int id, Task::State state)
{
    update(id, [state](Task &task) {
        task.state = state;
        task.progress = {};
        task.error.clear();
        task.target.clear();
        task.note.clear();
    });
    Q_EMIT stateChanged();
}

void TaskList::reopen(int id)
{
    const Task *task = find(id);
    if (task != nullptr && task->hasEnded() && !task->facts.isEmpty()) {
        setState(id, Task::Ready);
    }
}

int TaskList::rowOf(int id) const
{
    const auto found = std::find_if(m_tasks.begin(), m_tasks.end(),
                                    [id](const Task &task) { return task.id == id; });
    return found == m_tasks.end() ? -1 : int(found - m_tasks.begin());
}
