#include "tests/host/presets/tracedrun.h"

#include <QFile>
#include <QVector>

#include <csignal>
#include <cstring>
#include <fcntl.h>
#include <sys/ptrace.h>
#include <sys/syscall.h>
#include <sys/uio.h>
#include <sys/wait.h>
#include <unistd.h>

namespace {

[[noreturn]] void becomeTraced(const QVector<QByteArray> &words)
{
    QVector<char *> arguments;
    for (const QByteArray &word : words) {
        arguments.append(const_cast<char *>(word.constData()));
    }
    arguments.append(nullptr);
    const int silent = ::open("/dev/null", O_RDWR);
    ::dup2(silent, STDOUT_FILENO);
    ::dup2(silent, STDERR_FILENO);
    ::ptrace(PTRACE_TRACEME, 0, nullptr, nullptr);
    ::execv(arguments.at(0), arguments.data());
    ::_exit(127);
}

/*! The path that the traced program hands to openat(); empty at any other system call. */
QByteArray openedPath(pid_t process)
{
    __ptrace_syscall_info info = {};
    const long size = ::ptrace(PTRACE_GET_SYSCALL_INFO, process, sizeof(info), &info);
    if (size <= 0 || info.op != PTRACE_SYSCALL_INFO_ENTRY || info.entry.nr != SYS_openat) {
        return {};
    }
    char path[4096] = {};
    iovec here = {path, sizeof(path) - 1};
    iovec there = {reinterpret_cast<void *>(info.entry.args[1]), sizeof(path) - 1};
    // A string at the end of a page is followed by nothing that can be read.
    while (::process_vm_readv(process, &here, 1, &there, 1, 0) < 0 && there.iov_len > 1) {
        there.iov_len /= 2;
    }
    return QByteArray(path, int(::strnlen(path, sizeof(path))));
}

void end(pid_t process)
{
    ::kill(process, SIGKILL);
    ::waitpid(process, nullptr, 0);
}

} // namespace

int TracedRun::killAt(int last, const QString &firstFile, const QString &program,
                      const QStringList &arguments)
{
    QVector<QByteArray> words = {QFile::encodeName(program)};
    for (const QString &argument : arguments) {
        words << QFile::encodeName(argument);
    }
    const pid_t process = ::fork();
    if (process == 0) {
        becomeTraced(words);
    }
    int status = 0;
    if (::waitpid(process, &status, 0) != process || !WIFSTOPPED(status) ||
        ::ptrace(PTRACE_SETOPTIONS, process, nullptr, PTRACE_O_TRACESYSGOOD | PTRACE_O_EXITKILL) !=
            0) {
        end(process);
        return -1;
    }

    constexpr int atSystemCall = SIGTRAP | 0x80;
    int count = 0;
    bool isEntry = false;
    int signal = 0;
    for (;;) {
        ::ptrace(PTRACE_SYSCALL, process, nullptr, signal);
        if (::waitpid(process, &status, 0) != process || !WIFSTOPPED(status)) {
            return count;
        }
        signal = WSTOPSIG(status) == atSystemCall ? 0 : WSTOPSIG(status);
        isEntry = signal == 0 ? !isEntry : isEntry;
        if (signal != 0 || !isEntry) {
            continue;
        }
        if (count > 0 || openedPath(process).endsWith(QFile::encodeName(firstFile))) {
            ++count;
        }
        if (count == last) {
            end(process);
            return count;
        }
    }
}
