#include "host/window/singleinstance.h"

#include <QCryptographicHash>
#include <QDataStream>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QLocalSocket>

#include <algorithm>
#include <iterator>
#include <unistd.h>

namespace {

const char ready[] = "r";
const char taken[] = "t";

QString socketPathFor(const QString &configFolder)
{
    const QString runtime = qEnvironmentVariable("XDG_RUNTIME_DIR");
    const QString place = QFileInfo(runtime).isDir() ? runtime : QDir::tempPath();
    // The folder's path could be too long for a socket's.
    const QByteArray folder = QFile::encodeName(QFileInfo(configFolder).canonicalFilePath());
    const QByteArray key =
        QCryptographicHash::hash(folder, QCryptographicHash::Sha256).toHex().left(16);
    return QStringLiteral("%1/vexconvert-%2-%3")
        .arg(place)
        .arg(::getuid())
        .arg(QString::fromLatin1(key));
}

} // namespace

SingleInstance::SingleInstance(const QString &configFolder, QObject *parent)
    : QObject(parent)
    , m_socketPath(socketPathFor(configFolder))
{
    m_server.setSocketOptions(QLocalServer::UserAccessOption);
    connect(&m_server, &QLocalServer::newConnection, this, &SingleInstance::greet);
}

void SingleInstance::listen()
{
    // An existing socket was left by a killed process.
    QLocalServer::removeServer(m_socketPath);
    m_server.listen(m_socketPath);
}

bool SingleInstance::handOver(const QStringList &paths, int patience) const
{
    // In a shared folder, another user may have created it.
    if (QFileInfo(m_socketPath).ownerId() != ::getuid()) {
        return false;
    }
    QLocalSocket socket;
    socket.connectToServer(m_socketPath);
    // A hanging window must not get paths that it would handle much later.
    if (!socket.waitForConnected(patience) || !socket.waitForReadyRead(patience)) {
        return false;
    }
    socket.readAll();
    QList<QByteArray> names;
    std::transform(paths.begin(), paths.end(), std::back_inserter(names), QFile::encodeName);
    QDataStream out(&socket);
    out << names;
    return socket.waitForReadyRead(patience);
}

void SingleInstance::greet()
{
    while (QLocalSocket *caller = m_server.nextPendingConnection()) {
        connect(caller, &QLocalSocket::disconnected, caller, &QObject::deleteLater);
        connect(caller, &QLocalSocket::readyRead, this, [this, caller] { take(*caller); });
        caller->write(ready);
    }
}

void SingleInstance::take(QLocalSocket &caller)
{
    QList<QByteArray> names;
    QDataStream in(&caller);
    in.startTransaction();
    in >> names;
    if (!in.commitTransaction()) {
        return;
    }
    QStringList paths;
    std::transform(names.begin(), names.end(), std::back_inserter(paths),
                   [](const QByteArray &name) { return QFile::decodeName(name); });
    Q_EMIT asked(paths);
    caller.write(taken);
}
