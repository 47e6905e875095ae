#include "host/queue/engines/sshhosts.h"

#include <QRegularExpression>

namespace {

const QLatin1String thisMachine(":");
const char readyWord[] = "vexconvert-ready";

const EngineProgram &ssh()
{
    static const EngineProgram program{QStringLiteral("ssh"), QStringLiteral("openssh-client")};
    return program;
}

} // namespace

// The path of a socket must be short, which that of another temporary folder may not be.
SshHosts::SshHosts()
    : m_names(QString(thisMachine))
    , m_sockets(QStringLiteral("/tmp/vexconvert-ssh-XXXXXX"))
{}

SshHosts::~SshHosts()
{
    disconnect();
}

Result<> SshHosts::setNames(const QString &text)
{
    static const QRegularExpression name(
        QStringLiteral("\\A([A-Za-z0-9_][A-Za-z0-9_.-]*@)?[A-Za-z0-9_][A-Za-z0-9_.-]*\\z"));
    m_names = text.split(QLatin1Char(','));
    m_names.removeDuplicates();
    for (const QString &host : qAsConst(m_names)) {
        if (host != thisMachine && !name.match(host).hasMatch()) {
            return failed(tr("--hosts takes names of machines such as alpha,me@beta, and \":\" for "
                             "this one, not \"%1\"; whatever else ssh must know of a machine "
                             "belongs in ~/.ssh/config")
                              .arg(host),
                          Error::WrongUsage);
        }
    }
    return {};
}

bool SshHosts::hasThisMachine() const
{
    return m_names.contains(thisMachine);
}

QStringList SshHosts::remote() const
{
    QStringList names = m_names;
    names.removeAll(thisMachine);
    return names;
}

QString SshHosts::sshCommand() const
{
    return ssh().name + QLatin1Char(' ') + sshOptions().join(QLatin1Char(' '));
}

Result<> SshHosts::connect(const QString &program, const QString &folder)
{
    // perl is what GNU parallel watches its jobs with. The connection lasts until its input ends.
    const QString script =
        QStringLiteral("for tool in %1 ffmpeg ffprobe rsync perl; do "
                       "command -v \"$tool\" >/dev/null || "
                       "{ echo \"$tool is not on the PATH there\" >&2; exit 1; }; done; "
                       "echo %2; cat; rm -rf %3")
            .arg(quotedForShell(program), QLatin1String(readyWord), folder);
    const QStringList hosts = remote();
    for (const QString &host : hosts) {
        const Result<> connected =
            connectTo(host, QStringLiteral("sh -c ") + quotedForShell(script));
        if (!connected) {
            return failed(tr("%1 can't be used (%2); put that right, or leave it out of --hosts")
                              .arg(host, connected.error().text));
        }
    }
    return {};
}

void SshHosts::disconnect()
{
    for (const auto &connection : m_connections) {
        connection->closeWriteChannel();
    }
    for (const auto &connection : m_connections) {
        constexpr int longest = 3000; // ms
        if (!connection->waitForFinished(longest)) {
            connection->kill();
            connection->waitForFinished();
        }
    }
    m_connections.clear();
}

Result<> SshHosts::connectTo(const QString &host, const QString &command)
{
    const Result<> found = ssh().find();
    if (!found) {
        return failed(found);
    }
    m_connections.push_back(std::make_unique<EngineProcess>());
    EngineProcess &connection = *m_connections.back();
    connection.start(ssh().name, sshOptions() + QStringList{QStringLiteral("-M"), host,
                                                            QStringLiteral("--"), command});
    // A machine may have something else to say first.
    constexpr int longest = 60000; // ms
    QByteArray said;
    while (!said.contains(readyWord) && connection.waitForReadyRead(longest)) {
        said += connection.readAllStandardOutput();
    }
    if (said.contains(readyWord)) {
        return {};
    }
    return failed(connection.state() == QProcess::NotRunning ? ssh().complaint(connection)
                                                             : tr("it doesn't answer"));
}

QStringList SshHosts::sshOptions() const
{
    const QStringList settings = {
        QStringLiteral("BatchMode=yes"),
        QStringLiteral("ConnectTimeout=10"),
        // A machine that is switched off is noticed within a minute.
        QStringLiteral("ServerAliveInterval=15"),
        QStringLiteral("ControlPersist=no"),
        QStringLiteral("ControlPath=") + m_sockets.filePath(QStringLiteral("%C")),
    };
    QStringList options;
    for (const QString &setting : settings) {
        options << QStringLiteral("-o") << setting;
    }
    return options;
}

QString quotedForShell(QString word)
{
    word.replace(QLatin1Char('\''), QStringLiteral("'\\''"));
    return QLatin1Char('\'') + word + QLatin1Char('\'');
}
