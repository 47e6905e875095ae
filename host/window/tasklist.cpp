#include "host/window/tasklist.h"

#include "host/files/visibletext.h"
#include "host/window/tasktexts.h"

#include <QFileInfo>

#include <algorithm>

namespace {

/*! Rows that are changed one by one, so that the view stays where it is; more than these would
 *  take too long, each moving all rows below. */
constexpr int mostSteps = 50;

int nextId()
{
    // Both pages number their tasks in one sequence: an id names one task of the whole window.
    static int last = 0;
    return ++last;
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
    case OwnFormatRole:
        return !task.ownFormats.isEmpty();
    case StateRole:
        return int(task.state);
    case PercentRole:
        return task.progress.percent();
    case RunningRole:
        return runningText(task.progress);
    case ErrorRole:
        return visibleText(task.error);
    case TargetRole:
        return visibleText(task.target);
    case ResultRole:
        return resultOf(task);
    case NoteRole:
        return visibleText(task.note);
    case StartRole:
        return task.start;
    case EndRole:
        return task.end;
    case TracksRole:
        return QStringLiteral("%1 %2 %3")
            .arg(task.tracks.audio.text(), task.tracks.subtitles.text())
            .arg(task.tracks.burnedSubtitles);
    case OpenRole:
        return task.isOpen;
    case SelectedRole:
        return task.isSelected;
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
        {OwnFormatRole, "hasOwnFormat"},
        {StateRole, "taskState"},
        {PercentRole, "percent"},
        {RunningRole, "running"},
        {ErrorRole, "error"},
        {TargetRole, "target"},
        {ResultRole, "result"},
        {NoteRole, "note"},
        {StartRole, "start"},
        {EndRole, "end"},
        {TracksRole, "tracks"},
        {OpenRole, "isOpen"},
        {SelectedRole, "isSelected"},
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
    indexFrom(m_tasks.size() - 1);
    ++m_counts.at(task.state);
    endInsertRows();
    Q_EMIT countChanged();
    Q_EMIT edited();
    return task.id;
}

void TaskList::putBack(const QVector<QPair<int, Task>> &removed)
{
    if (removed.size() > mostSteps) {
        QVector<Task> all;
        auto next = m_tasks.cbegin();
        for (const auto &[row, task] : removed) {
            for (; all.size() < row && next != m_tasks.cend(); ++next) {
                all << *next;
            }
            all << task;
        }
        std::copy(next, m_tasks.cend(), std::back_inserter(all));
        replaceAll(all);
        return;
    }
    for (const auto &[row, task] : removed) {
        const int place = std::min(row, count());
        beginInsertRows({}, place, place);
        m_tasks.insert(place, task);
        ++m_counts.at(task.state);
        indexFrom(place);
        endInsertRows();
    }
    Q_EMIT countChanged();
    Q_EMIT edited();
}

void TaskList::remove(const QSet<int> &ids)
{
    if (ids.size() > mostSteps) {
        QVector<Task> left;
        std::copy_if(m_tasks.cbegin(), m_tasks.cend(), std::back_inserter(left),
                     [&ids](const Task &task) { return !ids.contains(task.id); });
        replaceAll(left);
        return;
    }
    const int before = count();
    for (const int id : ids) {
        const int row = rowOf(id);
        if (row >= 0) {
            beginRemoveRows({}, row, row);
            --m_counts.at(m_tasks.at(row).state);
            m_tasks.removeAt(row);
            m_rows.remove(id);
            indexFrom(row);
            endRemoveRows();
        }
    }
    if (count() != before) {
        Q_EMIT countChanged();
        Q_EMIT edited();
    }
}

void TaskList::move(const QSet<int> &ids, int before)
{
    // The place is a task that stays: the one asked for, or the next one below it.
    int place = rowOf(before) < 0 ? count() : rowOf(before);
    while (place < count() && ids.contains(m_tasks.at(place).id)) {
        ++place;
    }
    const int anchor = place < count() ? m_tasks.at(place).id : 0;
    sortBy([this, &ids, anchor, place](const Task &one, const Task &other) {
        const auto key = [this, &ids, anchor, place](const Task &task) {
            const int row = rowOf(task.id);
            const bool isMoved = ids.contains(task.id);
            const bool isBelow = anchor != 0 && row >= place;
            return isMoved ? 1 : isBelow ? 2 : 0;
        };
        return key(one) < key(other);
    });
}

void TaskList::sortBy(const std::function<bool(const Task &, const Task &)> &isLess)
{
    QVector<Task> sorted = m_tasks;
    std::stable_sort(sorted.begin(), sorted.end(), isLess);
    Q_EMIT layoutAboutToBeChanged({}, VerticalSortHint);
    const QModelIndexList before = persistentIndexList();
    QVector<int> ids;
    for (const QModelIndex &index : before) {
        ids << m_tasks.at(index.row()).id;
    }
    m_tasks = sorted;
    indexFrom(0);
    QModelIndexList after;
    for (const int id : qAsConst(ids)) {
        after << index(rowOf(id));
    }
    changePersistentIndexList(before, after);
    Q_EMIT layoutChanged({}, VerticalSortHint);
    Q_EMIT edited();
}

void TaskList::update(int id, const std::function<void(Task &)> &change)
{
    if (rowOf(id) >= 0) {
        this->change(id, change, {});
        Q_EMIT edited();
    }
}

void TaskList::setState(int id, Task::State state)
{
    update(id, [state](Task &task) {
        task.state = state;
        task.progress = {};
        task.error.clear();
        task.target.clear();
        task.targetBytes = 0;
        task.note.clear();
    });
    Q_EMIT stateChanged();
}

void TaskList::setProgress(int id, const Progress &progress)
{
    change(id, [&progress](Task &task) { task.progress = progress; }, {PercentRole, RunningRole});
}

void TaskList::setThumbnail(int id, const QString &url)
{
    change(id, [&url](Task &task) { task.thumbnail = url; }, {ThumbnailRole});
}

void TaskList::setSelected(int id, bool isSelected)
{
    const Task *task = find(id);
    if (task != nullptr && task->isSelected != isSelected) {
        change(id, [isSelected](Task &chosen) { chosen.isSelected = isSelected; }, {SelectedRole});
    }
}

void TaskList::setOpen(int id, bool isOpen)
{
    const Task *task = find(id);
    if (task != nullptr && task->isOpen != isOpen) {
        change(id, [isOpen](Task &shown) { shown.isOpen = isOpen; }, {OpenRole});
    }
}

void TaskList::reopen(int id)
{
    const Task *task = find(id);
    if (task != nullptr && task->hasEnded() && !task->facts.isEmpty()) {
        setState(id, Task::Ready);
    }
}

void TaskList::change(int id, const std::function<void(Task &)> &change, const QVector<int> &roles)
{
    const int row = rowOf(id);
    if (row < 0) {
        return;
    }
    Task &task = m_tasks[row];
    --m_counts.at(task.state);
    change(task);
    ++m_counts.at(task.state);
    Q_EMIT dataChanged(index(row), index(row), roles);
}

void TaskList::replaceAll(const QVector<Task> &tasks)
{
    beginResetModel();
    m_tasks = tasks;
    m_rows.clear();
    m_counts = {};
    for (const Task &task : m_tasks) {
        ++m_counts.at(task.state);
    }
    indexFrom(0);
    endResetModel();
    Q_EMIT countChanged();
    Q_EMIT edited();
}

void TaskList::indexFrom(int row)
{
    for (; row < m_tasks.size(); ++row) {
        m_rows.insert(m_tasks.at(row).id, row);
    }
}
