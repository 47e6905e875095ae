#include "host/media/probehelper.h"

#include "host/media/mediainput.h"

#include <QFile>

ProbeHelper::ProbeHelper(const QString &program, QObject *parent)
    : QObject(parent)
    , m_program(program)
{
    connect(&m_tool, &Tool::outputReady, this, &ProbeHelper::readAnswer);
    connect(&m_tool, &Tool::finished, this, [this] { answer({}); });
    m_deadline.setSingleShot(true);
    connect(&m_deadline, &QTimer::timeout, this, [this] {
        m_tool.abandon();
        answer({});
    });
}

void ProbeHelper::ask(const QString &path, const ToolLimits &limits)
{
    if (m_isAsked) {
        abandon();
    }
    m_isAsked = true;
    m_received.clear();
    m_mostBytes = limits.unreadBytes;
    if (!m_tool.isRunning()) {
        m_tool.start({m_program, {}, true, {}});
    }
    m_tool.write(demuxersFor(path).toLatin1() + '\0' + QFile::encodeName(fileArgument(path)) +
                 '\0');
    if (limits.milliseconds > 0) {
        m_deadline.start(limits.milliseconds);
    }
}

void ProbeHelper::abandon()
{
    m_deadline.stop();
    m_isAsked = false;
    m_tool.abandon();
}

void ProbeHelper::readAnswer()
{
    m_received += m_tool.readOutput();
    const int end = m_received.indexOf('\n');
    const bool isWhole = end >= 0 && end == m_received.size() - 1;
    if (m_isAsked && isWhole) {
        answer(m_received.left(end));
    } else if (!m_isAsked || end >= 0 || m_received.size() > m_mostBytes) {
        // What it says from now on can't be told from the next answer.
        m_tool.abandon();
        answer({});
    }
}

void ProbeHelper::answer(const QByteArray &json)
{
    m_deadline.stop();
    if (m_isAsked) {
        m_isAsked = false;
        Q_EMIT answered(json);
    }
}
