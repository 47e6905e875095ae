#include "host/tools/tool.h"

#include <QFile>
#include <QFileInfo>
#include <QProcessEnvironment>
#include <QRegularExpression>

#ifdef Q_OS_LINUX
#include <csignal>
#include <sys/prctl.h>
#endif
#ifdef Q_OS_UNIX
#include <unistd.h>
#endif

QString ToolOutcome::firstError() const
{
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

QString ToolOutcome::missingToolText() const
{
    return tr("%1 is not on the PATH; install ffmpeg (Debian: apt-get install ffmpeg) and try "
              "again")
        .arg(program);
}

Tool::Tool(const QString &program, const QStringList &arguments, const Done &done, QObject *parent)
    : QProcess(parent)
    , m_done(done)
{
    m_outcome.program = program;
    connect(this, &QProcess::readyReadStandardError, this, &Tool::readErrors);
    connect(this, &QProcess::errorOccurred, this, [this](QProcess::ProcessError error) {
        if (error == QProcess::FailedToStart) {
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
}

Tool::~Tool()
{
    disconnect();
    if (state() != QProcess::NotRunning) {
        kill();
        waitForFinished();
    }
}

void Tool::setupChildProcess()
{
#ifdef Q_OS_UNIX
    setpgid(0, 0);
#endif
#ifdef Q_OS_LINUX
    // A host that is killed can't stop the tool any more.
    prctl(PR_SET_PDEATHSIG, SIGKILL);
#endif
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
