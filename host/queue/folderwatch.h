#ifndef QUEUE_FOLDERWATCH_H
#define QUEUE_FOLDERWATCH_H

#include "host/queue/sourcefiles.h"

#include <QDateTime>
#include <QFileSystemWatcher>
#include <QHash>
#include <QObject>
#include <QTimer>

/*! Finds the files that arrive in folders, each when it has stopped growing. */
class FolderWatch : public QObject
{
    Q_OBJECT
    Q_DISABLE_COPY(FolderWatch)

public:
    /*! A file that keeps its size and date over two looks, this far apart, is complete. */
    static constexpr int msBetweenLooks = 2000;

    explicit FolderWatch(const SourceFiles &files, QObject *parent = nullptr);

    /*! Looks now, and then again and again. */
    void start();
    /*! Looks once. */
    void look();

Q_SIGNALS:
    /*! A file is complete: once for each, and again if it has changed since. */
    void arrived(const SourceFile &file);

private:
    struct Look
    {
        qint64 size = 0;
        QDateTime modified;
        bool isTold = false;
    };

    const SourceFiles m_files;
    QHash<QString, Look> m_looks; // by path
    QFileSystemWatcher m_watcher; // only makes the first look at a new file an early one
    QTimer m_timer;
};

#endif
