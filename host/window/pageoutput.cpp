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
    : m_page(page)
    , m_settings(settings)
    , m_tasks(tasks)
    , m_formats(formats)
{}

void PageOutput::setNameTemplate(const QString &nameTemplate)
{
    if (mistakeIn(nameTemplate).isEmpty()) {
        m_settings.setNameTemplate(m_page, nameTemplate);
        Q_EMIT changed();
    }
}

void PageOutput::setIfInUse(int ifInUse)
{
    m_settings.setIfInUse(m_page, WindowSettings::IfInUse(ifInUse));
    Q_EMIT changed();
}

void PageOutput::setKeepsTree(bool keepsTree)
{
    m_settings.setKeepsTree(m_page, keepsTree);
    Q_EMIT changed();
}

QString PageOutput::fields() const
{
    return QStringLiteral("{%1}").arg(nameFields().join(QStringLiteral("} {")));
}

QString PageOutput::mistakeIn(const QString &nameTemplate) const
{
    if (nameTemplate.contains(QLatin1Char('/'))) {
        return ToolFun::text(
            QStringLiteral("A name has no \"/\"; choose the folder in \"Save to\""));
    }
    const QString unknown = NameTemplate::unknownField(nameTemplate, nameFields());
    return unknown.isNull() ? QString()
                            : ToolFun::text(QStringLiteral("There is no field {%1}; use %2"))
                                  .arg(visibleText(unknown), fields());
}

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
    const WindowSettings::IfInUse ifInUse = m_settings.ifInUse(m_page);
    const QStringList inUse = ifInUse == WindowSettings::Ask ? namesInUse(ids) : QStringList();
    if (!inUse.isEmpty()) {
        m_asked = taskIds;
        Q_EMIT asked(inUse);
        return false;
    }
    begin(ids, ifInUse);
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
    return targetOf(task, m_ifInUse.value(task.id, m_settings.ifInUse(m_page)));
}

QString PageOutput::folderFor(const Task &task) const
{
    const QString folder = m_settings.folder(m_page);
    const bool isBelow = !folder.isEmpty() && keepsTree() && !task.subfolder.isEmpty();
    return isBelow ? folder + QLatin1Char('/') + task.subfolder : folder;
}

OutputTarget PageOutput::targetOf(const Task &task, WindowSettings::IfInUse ifInUse) const
{
    OutputTarget target;
    target.folder = folderFor(task);
    // A folder that is gone, such as one of a drive that was removed, isn't made again.
    target.makesFolder = QFileInfo(m_settings.folder(m_page)).isDir();
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
