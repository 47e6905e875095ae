#include "host/queue/folderwatch.h"

#include <QFileInfo>

FolderWatch::FolderWatch(const SourceFiles &files, QObject *parent)
    : QObject(parent)
    , m_files(files)
{
    m_timer.setInterval(msBetweenLooks);
    connect(&m_timer, &QTimer::timeout, this, &FolderWatch::look);
    connect(&m_watcher, &QFileSystemWatcher::directoryChanged, this, [this] {
        // A look restarts the wait, so a folder that changes all the time may not bring on more.
        if (m_timer.remainingTime() > msBetweenLooks / 2) {
            return;
        }
        look();
        m_timer.start();
    });
}

void FolderWatch::start()
{
    m_watcher.addPaths(m_files.folders());
    look();
    m_timer.start();
}

void FolderWatch::look()
{
    QHash<QString, Look> before;
    before.swap(m_looks);
    QVector<SourceFile> complete;
    m_files.each([&](const SourceFile &file) {
        const QFileInfo info(file.path);
        Look now{info.size(), info.lastModified()};
        const auto last = before.constFind(file.path);
        const bool isSame =
            last != before.constEnd() && last->size == now.size && last->modified == now.modified;
        now.isTold = isSame && (last->isTold || now.size > 0);
        if (now.isTold && !last->isTold) {
            complete.append(file);
        }
        m_looks.insert(file.path, now);
    });
    for (const SourceFile &file : qAsConst(complete)) {
        Q_EMIT arrived(file);
    }
}
