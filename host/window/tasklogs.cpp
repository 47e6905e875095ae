#include "host/window/tasklogs.h"

#include "host/files/visibletext.h"
#include "host/tools/shelltext.h"
#include "host/window/toolfun.h"

void TaskLogs::begin(int taskId)
{
    forget(taskId);
    m_tasks.append(taskId);
    if (m_tasks.size() > mostTasks) {
        forget(m_tasks.constFirst());
    }
}

void TaskLogs::add(int taskId, const ToolCall &call, const QString &log)
{
    QStringList lines = log.split(QLatin1Char('\n'));
    for (QString &line : lines) {
        line = visibleText(line);
    }
    QString &text = m_texts[taskId];
    text += visibleText(shellText(call)) + QStringLiteral("\n\n") + lines.join(QLatin1Char('\n')) +
            QLatin1Char('\n');
    if (text.size() > mostCharacters) {
        text = QStringLiteral("…\n") + text.right(mostCharacters);
    }
}

void TaskLogs::forget(int taskId)
{
    m_texts.remove(taskId);
    m_tasks.removeOne(taskId);
}

void TaskLogs::show(int taskId)
{
    const QString kept = text(taskId);
    Q_EMIT shown(kept.isEmpty()
                     ? ToolFun::text(QStringLiteral("ffmpeg hasn't run for this file yet"))
                     : kept);
}
