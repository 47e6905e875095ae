#ifndef QUEUE_ENGINES_SSHHOSTS_H
#define QUEUE_ENGINES_SSHHOSTS_H

#include "host/error.h"
#include "host/queue/engines/engineprogram.h"

#include <QCoreApplication>
#include <QString>
#include <QStringList>
#include <QTemporaryDir>

#include <memory>
#include <vector>

/*!
 * The machines that a plan is converted on: this one, and those that ssh reaches without asking for
 * a password. All that is done on a machine goes through one connection. It ends with this process:
 * then whatever runs there ends, too.
 */
class SshHosts
{
    Q_DECLARE_TR_FUNCTIONS(SshHosts)
    Q_DISABLE_COPY(SshHosts)

public:
    SshHosts();
    ~SshHosts();

    /*! Takes "alpha,me@beta,:", where ":" is this machine. An error if a name isn't one. */
    [[nodiscard]] Result<> setNames(const QString &text);

    [[nodiscard]] QString text() const { return m_names.join(QLatin1Char(',')); }
    [[nodiscard]] bool hasThisMachine() const;
    /*! Those that are not this machine. */
    [[nodiscard]] QStringList remote() const;
    /*! ssh with its options, for a shell. */
    [[nodiscard]] QString sshCommand() const;

    /*! Connects to each machine, and makes sure that it has \a program and whatever else is needed.
     *  When the connection ends, \a folder of the home folder there is removed. */
    [[nodiscard]] Result<> connect(const QString &program, const QString &folder);
    void disconnect();

private:
    [[nodiscard]] QStringList sshOptions() const;
    [[nodiscard]] Result<> connectTo(const QString &host, const QString &command);

    QStringList m_names;
    QTemporaryDir m_sockets;
    std::vector<std::unique_ptr<EngineProcess>> m_connections;
};

/*! The word in quotes for a shell. */
[[nodiscard]] QString quotedForShell(QString word);

#endif
