#ifndef WINDOW_SINGLEINSTANCE_H
#define WINDOW_SINGLEINSTANCE_H

#include <QLocalServer>
#include <QObject>
#include <QStringList>

/*!
 * Lets a second instance pass its files to the first. Instances of the same user and configuration
 * folder find each other.
 */
class SingleInstance : public QObject
{
    Q_OBJECT
    Q_DISABLE_COPY(SingleInstance)

public:
    /*! \a configFolder must exist. */
    explicit SingleInstance(const QString &configFolder, QObject *parent = nullptr);

    /*! Answers later instances. Only for the process that has locked the folder. */
    void listen();
    /*!
     * Passes the paths, if any, to the listening instance, which raises its window. False if none
     * answers within \a patience ms.
     */
    [[nodiscard]] bool handOver(const QStringList &paths, int patience) const;

Q_SIGNALS:
    /*! A later instance passed these paths. */
    void asked(const QStringList &paths);

private:
    void greet();
    void take(QLocalSocket &caller);

    const QString m_socketPath;
    QLocalServer m_server;
};

#endif
