#include "host/queue/engines/engineprogram.h"

#include <QFile>
#include <QStandardPaths>

#include <unistd.h>
#ifdef Q_OS_LINUX
#include <csignal>
#include <sys/prctl.h>
#endif

Result<> EngineProgram::find() const
{
    if (QStandardPaths::findExecutable(name).isEmpty()) {
        return failed(tr("%1 is not on the PATH; install it (Debian: apt-get install %2) and try "
                         "again")
                          .arg(name, package));
    }
    return {};
}

Result<QByteArray> EngineProgram::output(const QStringList &arguments) const
{
    const Result<> found = find();
    if (!found) {
        return failed(found);
    }
    QProcess process;
    process.setStandardInputFile(QProcess::nullDevice());
    process.start(name, arguments, QIODevice::ReadOnly);
    constexpr int longest = 120000; // ms
    if (!process.waitForFinished(longest)) {
        return failed(tr("%1 doesn't answer").arg(name));
    }
    if (process.exitStatus() != QProcess::NormalExit || process.exitCode() != 0) {
        return failed(complaint(process));
    }
    return process.readAllStandardOutput();
}

QString EngineProgram::complaint(QProcess &process) const
{
    const QByteArray text = process.readAllStandardError().trimmed();
    return text.isEmpty() ? tr("%1 failed without saying why").arg(name)
                          : QFile::decodeName(text.split('\n').constFirst().trimmed());
}

void EngineProcess::setupChildProcess()
{
    ::setpgid(0, 0);
#ifdef Q_OS_LINUX
    ::prctl(PR_SET_PDEATHSIG, SIGTERM);
#endif
}
