#ifndef QUEUE_QUEUEFILE_H
#define QUEUE_QUEUEFILE_H

#include "host/queue/keptqueue.h"

#include <QObject>
#include <QThreadPool>

/*!
 * The file that keeps the lists of the window. It is complete at every moment, and written by a
 * thread of its own: 10,000 entries take longer than a window may hang.
 */
class QueueFile : public QObject
{
    Q_OBJECT
    Q_DISABLE_COPY(QueueFile)

public:
    explicit QueueFile(const QString &path, QObject *parent = nullptr);
    /*! Waits until all is written. */
    ~QueueFile() override;

    /*! The kept lists; none if there is no file. A file that can't be used is moved aside, and the
     *  error says so. */
    [[nodiscard]] Result<KeptQueue> read();
    /*! Returns at once. */
    void write(const KeptQueue &queue);
    /*! Returns when all is on disk. */
    void waitForWritten() { m_writer.waitForDone(); }

Q_SIGNALS:
    /*! One line that says why the lists aren't kept. */
    void writeFailed(const QString &reason);

private:
    void writeJson(const QByteArray &json);

    const QString m_path;
    QByteArray m_written; //!< used by the writer only
    QThreadPool m_writer;
};

#endif
