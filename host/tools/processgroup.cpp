#include "host/tools/processgroup.h"

#include <csignal>
#include <cstdlib>
#include <unistd.h>

void ProcessGroup::lead()
{
    setpgid(0, 0);
}

void ProcessGroup::watch(qint64 leader)
{
    m_leader = leader;
    // The child does the same, in either order: from here on the group exists for certain.
    setpgid(pid_t(leader), pid_t(leader));
    m_guard.join(leader);
}

void ProcessGroup::pause()
{
    send(SIGSTOP);
    m_guard.stayAwake();
}

void ProcessGroup::resume()
{
    send(SIGCONT);
}

void ProcessGroup::end()
{
    send(SIGKILL);
    m_guard.kill();
    m_guard.waitForFinished();
}

void ProcessGroup::send(int signalNumber)
{
    // Without its guard, the id could have been reused for another group by now.
    if (m_guard.isIn(m_leader)) {
        ::kill(-pid_t(m_leader), signalNumber);
    }
}

void ProcessGroup::Guard::join(qint64 leader)
{
    m_leader = leader;
    setStandardOutputFile(QProcess::nullDevice());
    setStandardErrorFile(QProcess::nullDevice());
    start(QStringLiteral("/bin/sh"),
          {QStringLiteral("-c"), QStringLiteral("read -r line; kill -KILL 0")});
    if (processId() != 0) {
        setpgid(pid_t(processId()), pid_t(leader));
    }
}

bool ProcessGroup::Guard::isIn(qint64 leader) const
{
    return processId() != 0 && getpgid(pid_t(processId())) == pid_t(leader);
}

void ProcessGroup::Guard::stayAwake() const
{
    if (processId() != 0) {
        ::kill(pid_t(processId()), SIGCONT);
    }
}

void ProcessGroup::Guard::setupChildProcess()
{
    // In any other group it would kill the wrong processes.
    if (setpgid(0, pid_t(m_leader)) != 0) {
        _exit(EXIT_FAILURE);
    }
}
