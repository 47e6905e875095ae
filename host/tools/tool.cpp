#include "host/tools/tool.h"

#include <QFile>
#include <QProcessEnvironment>
#include <QRegularExpression>
#include <QStandardPaths>

#include <sys/resource.h>

#ifdef Q_OS_LINUX
#include <csignal>
#include <sys/prctl.h>
#endif

QString ToolRun::firstError() const
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

Result<QByteArray> cleanOutput(const Result<ToolRun> &run)
{
    if (!run) {
        return tl::make_unexpected(run.error());
    }
    if (!run->exitedCleanly) {
        return failed(run->firstError());
    }
    return run->output;
}

namespace {

/*! For ffmpeg's environment; it gives a meaning to some characters of the path. */
QString reportSetting(QString path)
{
    path.replace(QRegularExpression(QStringLiteral("([\\\\:'])")), QStringLiteral("\\\1"));
    path.replace(QLatin1Char('%'), QStringLiteral("%%"));
    constexpr int infoLevel = 32;
    return QStringLiteral("file=%1:level=%2").arg(path).arg(infoLevel);
}

} // namespace

Tool::Tool(QObject *parent)
    : QObject(parent)
{
    connect(&m_process, &QProcess::readyReadStandardError, this, &Tool::readErrors);
    connect(&m_process, &QProcess::readyReadStandardOutput, this, [this] {
        Q_EMIT outputReady();
        if (m_process.bytesAvailable() > m_limits.unreadBytes) {
            exceed(ToolRun::OfOutput);
        }
    });
    connect(&m_process, &QProcess::errorOccurred, this, &Tool::noteError);
    connect(&m_process, qOverload<int, QProcess::ExitStatus>(&QProcess::finished), this,
            [this](int exitCode, QProcess::ExitStatus status) {
                finishRun(status == QProcess::NormalExit && exitCode == 0);
            });
    m_deadline.setSingleShot(true);
    connect(&m_deadline, &QTimer::timeout, this, [this] { exceed(ToolRun::OfTime); });
    m_startFailure.setSingleShot(true);
    connect(&m_startFailure, &QTimer::timeout, this, [this] { finish(failed(notStartedText())); });
}

Tool::~Tool()
{
    abandon();
}

void Tool::start(const ToolCall &call, const ToolLimits &limits)
{
    abandon();
    m_limits = limits;
    m_isStopped = false;
    m_startError.clear();
    m_run = {};
    m_run.program = call.program;
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    environment.insert(QStringLiteral("SVT_LOG"), QStringLiteral("1")); // errors only
    if (!call.report.isEmpty()) {
        environment.insert(QStringLiteral("FFREPORT"), reportSetting(call.report));
    }
    m_process.setProcessEnvironment(environment);
    m_group.emplace();
    m_process.givesWay = call.givesWay;
    m_process.setStandardInputFile(call.takesInput ? QString() : QProcess::nullDevice());
    m_process.start(call.program, call.arguments,
                    call.takesInput ? QIODevice::ReadWrite : QIODevice::ReadOnly);
    if (m_process.processId() != 0) {
        m_group->watch(m_process.processId());
    }
    if (limits.milliseconds > 0) {
        m_deadline.start(limits.milliseconds);
    }
}

void Tool::stop()
{
    if (m_group) {
        m_isStopped = true;
        m_group->end();
        m_process.kill();
    }
}

void Tool::abandon()
{
    const QSignalBlocker silence(m_process);
    m_deadline.stop();
    m_startFailure.stop();
    m_group.reset();
    m_process.kill();
    m_process.waitForFinished();
}

void Tool::pause()
{
    if (m_group) {
        m_group->pause();
    }
}

void Tool::resume()
{
    if (m_group) {
        m_group->resume();
    }
}

void Tool::write(const QByteArray &input)
{
    if (m_process.isWritable()) {
        m_process.write(input);
    }
}

void Tool::Process::setupChildProcess()
{
    ProcessGroup::lead();
    if (givesWay) {
        constexpr int most = 19;
        setpriority(PRIO_PROCESS, 0, most);
    }
#ifdef Q_OS_LINUX
    // A host that is killed can no longer stop the tool.
    prctl(PR_SET_PDEATHSIG, SIGKILL);
#endif
}

void Tool::noteError(QProcess::ProcessError error)
{
    // QProcess can report this several times. The caller is told from the event loop, after start()
    // has returned.
    if (error == QProcess::FailedToStart && m_startError.isEmpty()) {
        m_startError = m_process.errorString();
        m_startFailure.start(0);
    }
}

void Tool::exceed(ToolRun::Excess excess)
{
    if (m_process.state() != QProcess::NotRunning) {
        m_run.excess = excess;
        m_group->end();
        m_process.kill();
    }
}

void Tool::readErrors()
{
    // A broken source causes many errors: the first ones give the cause, the last ones the outcome.
    constexpr int half = 16 * 1024;
    QByteArray &errors = m_run.errors;
    errors += m_process.readAllStandardError();
    if (errors.size() > 2 * half) {
        errors.remove(half, errors.size() - 2 * half);
    }
}

void Tool::finishRun(bool exitedCleanly)
{
    readErrors();
    m_run.exitedCleanly = exitedCleanly;
    m_run.output = m_process.readAllStandardOutput();
    finish(m_run);
}

void Tool::finish(const Result<ToolRun> &run)
{
    m_deadline.stop();
    m_startFailure.stop();
    m_group.reset();
    if (m_isStopped) {
        Q_EMIT finished(failed({}, Error::Cancelled));
    } else {
        Q_EMIT finished(run);
    }
}

QString Tool::notStartedText() const
{
    if (QStandardPaths::findExecutable(m_run.program).isEmpty()) {
        return tr("%1 is not on the PATH; install ffmpeg (Debian: apt-get install ffmpeg) and try "
                  "again")
            .arg(m_run.program);
    }
    return tr("%1 couldn't be started (%2); close other programs or raise your limits on open "
              "files and processes (ulimit -n, ulimit -u), and try again")
        .arg(m_run.program, m_startError);
}
