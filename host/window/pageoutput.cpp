#include "host/window/pageoutput.h"

#include "host/convert/namefields.h"
#include "host/files/freename.h"
#include "host/files/visibletext.h"
#include "host/window/taskformats.h"
#include "host/window/toolfun.h"

#include <QFileInfo>

#include <algorithm>
#include <utility>

namespace {

OutputTarget::IfExists ifExistsOf(WindowSettings::IfInUse ifInUse)
{
    switch (ifInUse) {
    case WindowSettings::Skip:
        return OutputTarget::IfExists::Skip;
    case WindowSettings::Overwrite:
        return OutputTarget::IfExists::Overwrite;
    case WindowSettings::Rename:
    case WindowSettings::Ask: // nothing was in use when the run began
        break;
    }
    return OutputTarget::IfExists::Rename;
}

} // namespace

PageOutput::PageOutput(PageKind page, WindowSettings &settings, const TaskList &tasks,
                       const TaskFormats &formats)
    : OutputChoice(settings, page)
    , m_tasks(tasks)
    , m_formats(formats)
{}

QString PageOutput::preview(const QString &nameTemplate) const
{
    const QVector<Task> &all = m_tasks.tasks();
    Task example;
    example.source = ToolFun::text(QStringLiteral("Holidays")) + QStringLiteral(".mov");
    const Task &task = all.isEmpty() ? example : all.constFirst();
    NameTemplate name = NameTemplate::fromText(nameTemplate, nameFields())
                            .value_or(NameTemplate::literal(baseNameOf(task.source)));
    fillName(name, {task.source, m_formats.presetId(task), 1, qMax(1, all.size())});
    return isolated(
        visibleText(name.text() + QLatin1Char('.') + m_formats.outputSettings(task).extension));
}

bool PageOutput::prepare(const QVector<int> &taskIds)
{
    const QSet<int> ids(taskIds.begin(), taskIds.end());
    const auto wanted = WindowSettings::IfInUse(ifInUse());
    const QStringList inUse = wanted == WindowSettings::Ask ? namesInUse(ids) : QStringList();
    if (!inUse.isEmpty()) {
        m_asked = taskIds;
        Q_EMIT asked(inUse);
        return false;
    }
    begin(ids, wanted);
    return true;
}

void PageOutput::answer(int ifInUse)
{
    const QVector<int> ids = std::exchange(m_asked, {});
    begin(QSet<int>(ids.begin(), ids.end()), WindowSettings::IfInUse(ifInUse));
    Q_EMIT answered(ids);
}

OutputTarget PageOutput::targetFor(const Task &task) const
{
    return targetOf(task, m_ifInUse.value(task.id, WindowSettings::IfInUse(ifInUse())));
}

QString PageOutput::folderFor(const Task &task) const
{
    const bool isBelow = !folder().isEmpty() && keepsTree() && !task.subfolder.isEmpty();
    return isBelow ? folder() + QLatin1Char('/') + task.subfolder : folder();
}

OutputTarget PageOutput::targetOf(const Task &task, WindowSettings::IfInUse ifInUse) const
{
    OutputTarget target;
    target.folder = folderFor(task);
    // A folder that is gone, such as one of a drive that was removed, isn't made again.
    target.makesFolder = QFileInfo(folder()).isDir();
    const Result<NameTemplate> name = NameTemplate::fromText(nameTemplate(), nameFields());
    if (name) {
        target.name = *name;
        fillName(target.name, {task.source, m_formats.presetId(task), m_tasks.rowOf(task.id) + 1,
                               m_tasks.count()});
    }
    target.ifExists = ifExistsOf(ifInUse);
    target.kept = m_kept;
    return target;
}

QStringList PageOutput::namesInUse(const QSet<int> &taskIds) const
{
    QStringList names;
    for (const Task &task : m_tasks.tasks()) {
        if (!taskIds.contains(task.id)) {
            continue;
        }
        OutputTarget target = targetOf(task, WindowSettings::Overwrite);
        target.kept = nullptr; // an earlier run's
        OutputName name(task.source, target, m_formats.outputSettings(task).extension);
        if (name.isComplete() && name.choose() && isTaken(name.path())) {
            names << visibleName(name.path());
        }
    }
    return names;
}

void PageOutput::begin(const QSet<int> &taskIds, WindowSettings::IfInUse ifInUse)
{
    const QVector<Task> &all = m_tasks.tasks();
    const bool isRunning =
        std::any_of(all.begin(), all.end(), [](const Task &task) { return task.isQueued(); });
    if (!isRunning) {
        m_kept = std::make_shared<KeptFiles>();
        m_ifInUse.clear();
    }
    for (const Task &task : all) {
        m_kept->addFile(task.source);
        if (taskIds.contains(task.id)) {
            m_ifInUse.insert(task.id, ifInUse);
        }
    }
}
