#include "host/tools/tool.h"

#include <QFile>
#include <QFileInfo>
#include <QProcessEnvironment>
#include <QRegularExpression>
#include <QStandardPaths>
#include <QTimer>

#ifdef Q_OS_LINUX
#include <csignal>
#include <sys/prctl.h>
#endif

QString ToolOutcome::firstError() const
{
    if (excess != None) {
        return excess == OfTime ? tr("%1 took too long").arg(program)
                                : tr("%1 printed too much").arg(program);
    }
    static const QRegularExpression source(QStringLiteral("^\\[[^\\]]* @ [^\\]]*\\] *"));
    const QStringList lines = QFile::decodeName(errors).split(QLatin1Char('\n'));
    for (const QString &line : lines) {
        QString words = line.trimmed();
        words.remove(source);
        if (!words.isEmpty()) {
            return words;
        }
    }
    return tr("%1 stopped without saying why").arg(program);
}

QString ToolOutcome::notStartedText() const
{
    if (QStandardPaths::findExecutable(program).isEmpty()) {
        return tr("%1 is not on the PATH; install ffmpeg (Debian: apt-get install ffmpeg) and try "
                  "again")
            .arg(program);
    }
    return tr("%1 couldn't be started (%2); close other programs or raise your limits on open "
              "files and processes (ulimit -n, ulimit -u), and try again")
        .arg(program, startError);
}

Tool::Tool(const QString &program, const QStringList &arguments, const Done &done, QObject *parent,
           const ToolLimits &limits)
    : QProcess(parent)
    , m_done(done)
{
    m_outcome.program = program;
    connect(this, &QProcess::readyReadStandardError, this, &Tool::readErrors);
    connect(this, &QProcess::readyReadStandardOutput, this, [this, limits] {
        if (bytesAvailable() > limits.unreadBytes) {
            exceed(ToolOutcome::OfOutput);
        }
    });
    connect(this, &QProcess::errorOccurred, this, [this](QProcess::ProcessError error) {
        // Short of file descriptors it may tell so several times.
        if (error == QProcess::FailedToStart && m_outcome.startError.isEmpty()) {
            m_outcome.startError = errorString();
            // Queued, so that the caller has the tool in its hands before it hears of its end.
            QMetaObject::invokeMethod(
                this, [this] { finish(false, false); }, Qt::QueuedConnection);
        }
    });
    connect(this, qOverload<int, QProcess::ExitStatus>(&QProcess::finished), this,
            [this](int exitCode, QProcess::ExitStatus status) {
                finish(true, status == QProcess::NormalExit && exitCode == 0);
            });
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    environment.insert(QStringLiteral("SVT_LOG"), QStringLiteral("1")); // errors only
    setProcessEnvironment(environment);
    setStandardInputFile(QProcess::nullDevice());
    start(program, arguments, QIODevice::ReadOnly);
    if (processId() != 0) {
        m_group.watch(processId());
    }
    if (limits.milliseconds > 0) {
        QTimer::singleShot(limits.milliseconds, this, [this] { exceed(ToolOutcome::OfTime); });
    }
}

Tool::~Tool()
{
    disconnect();
    stop();
    waitForFinished();
}

void Tool::stop()
{
    m_group.end();
    kill();
}

void Tool::setupChildProcess()
{
    ProcessGroup::lead();
#ifdef Q_OS_LINUX
    // A host that is killed can't stop the tool any more.
    prctl(PR_SET_PDEATHSIG, SIGKILL);
#endif
}

void Tool::exceed(ToolOutcome::Excess excess)
{
    if (state() != QProcess::NotRunning) {
        m_outcome.excess = excess;
        stop();
    }
}

void Tool::readErrors()
{
    // The first errors tell the cause, the last ones how it ended; a broken source makes many.
    constexpr int half = 16 * 1024;
    QByteArray &errors = m_outcome.errors;
    errors += readAllStandardError();
    if (errors.size() > 2 * half) {
        errors.remove(half, errors.size() - 2 * half);
    }
}

void Tool::finish(bool started, bool exitedCleanly)
{
    m_group.end();
    readErrors();
    m_outcome.started = started;
    m_outcome.exitedCleanly = exitedCleanly;
    m_outcome.output = readAllStandardOutput();
    deleteLater();
    m_done(m_outcome);
}

QString fileArgument(const QString &path)
{
    return QStringLiteral("file:") + QFileInfo(path).absoluteFilePath();
}
