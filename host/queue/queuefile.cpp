#include "host/queue/queuefile.h"

#include "host/files/atomicwrite.h"
#include "host/files/freename.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>

QueueFile::QueueFile(const QString &path, QObject *parent)
    : QObject(parent)
    , m_path(path)
{
    m_writer.setMaxThreadCount(1); // the last one asked for is the last one written
}

QueueFile::~QueueFile()
{
    waitForWritten();
}

Result<KeptQueue> QueueFile::read()
{
    QFile file(m_path);
    if (!file.exists()) {
        return KeptQueue();
    }
    const bool isOpen = QFileInfo(m_path).isFile() && file.open(QIODevice::ReadOnly);
    const Result<KeptQueue> read =
        isOpen ? KeptQueue::fromJson(file.readAll())
               : Result<KeptQueue>(failed(isOpen ? QString() : file.errorString()));
    if (read) {
        return read;
    }
    const QFileInfo info(m_path);
    const QString aside =
        freeName(info.absolutePath(), info.completeBaseName() + QStringLiteral(".unreadable"),
                 info.suffix(), isTaken);
    const bool isMoved = QFile::rename(m_path, aside);
    return failed((isMoved ? KeptQueue::tr("The list of files of the last time can't be read (%1); "
                                           "it is now %2, and the window starts empty")
                           : KeptQueue::tr("The list of files of the last time can't be read (%1); "
                                           "remove %2 to let a new one be kept"))
                      .arg(read.error().text, QDir::toNativeSeparators(isMoved ? aside : m_path)));
}

void QueueFile::write(const KeptQueue &queue)
{
    m_writer.start([this, queue] { writeJson(queue.toJson()); });
}

void QueueFile::writeJson(const QByteArray &json)
{
    if (json == m_written) {
        return;
    }
    const Result<> written = writeAtomically(m_path, json, m_path);
    m_written = written ? json : QByteArray();
    if (!written) {
        Q_EMIT writeFailed(KeptQueue::tr("The list of files can't be kept in %1 (%2); free some "
                                         "space or check the folder's permissions")
                               .arg(QDir::toNativeSeparators(m_path), written.error().text));
    }
}
