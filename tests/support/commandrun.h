#ifndef TESTS_SUPPORT_COMMANDRUN_H
#define TESTS_SUPPORT_COMMANDRUN_H

#include "tests/support/patience.h"

#include <QProcess>
#include <QString>
#include <QStringList>

#include <csignal>
#include <unistd.h>

/*! A finished run of vexconvert. */
struct CommandRun
{
    int exitCode = -1; //!< -1: not in time, or crashed
    QString out;
    QString err;

    [[nodiscard]] static CommandRun of(QProcess &process)
    {
        if (!process.waitForFinished(patience) || process.exitStatus() != QProcess::NormalExit) {
            return {};
        }
        return {process.exitCode(), QString::fromUtf8(process.readAllStandardOutput()),
                QString::fromUtf8(process.readAllStandardError())};
    }
};

/*! A process with a group of its own that ignores no signal, as a shell starts one. */
class GroupProcess : public QProcess
{
protected:
    void setupChildProcess() override
    {
        setpgid(0, 0);
        std::signal(SIGHUP, SIG_DFL);
        std::signal(SIGINT, SIG_DFL);
    }
};

/*! A process whose reader has gone before it prints anything. */
class ProcessWithoutReader : public QProcess
{
protected:
    void setupChildProcess() override
    {
        int ends[2] = {};
        if (::pipe(ends) == 0) {
            ::close(ends[0]);
            ::dup2(ends[1], STDOUT_FILENO);
        }
    }
};

/*! A process that was given no standard streams at all. */
class ProcessWithoutStreams : public QProcess
{
protected:
    void setupChildProcess() override
    {
        for (const int stream : {STDIN_FILENO, STDOUT_FILENO, STDERR_FILENO}) {
            ::close(stream);
        }
    }
};

#endif
