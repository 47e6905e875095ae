#ifndef WINDOW_SINGLEINSTANCE_H
#define WINDOW_SINGLEINSTANCE_H

#include <QLocalServer>
#include <QObject>
#include <QStringList>

/*!
 * Lets a second start of the window hand its files to the first one. They find each other by the
 * user and the configuration folder.
 */
class SingleInstance : public QObject
{
    Q_OBJECT
    Q_DISABLE_COPY(SingleInstance)

public:
    /*! \a configFolder exists. */
    explicit SingleInstance(const QString &configFolder, QObject *parent = nullptr);

    /*! Answers later starts. Only for the process that has locked the folder. */
    void listen();
    /*!
     * Hands the paths, if any, to the window that listens, which comes to the front. False when
     * none answers within \a patience ms.
     */
    [[nodiscard]] bool handOver(const QStringList &paths, int patience) const;

Q_SIGNALS:
    /*! A later start handed these over. */
    void asked(const QStringList &paths);

private:
    void greet();
    void take(QLocalSocket &caller);

    const QString m_socketPath;
    QLocalServer m_server;
};

#endif
