#ifndef QUEUE_WATCHJOURNAL_H
#define QUEUE_WATCHJOURNAL_H

#include "host/error.h"
#include "host/files/filelock.h"

#include <QCoreApplication>
#include <QFile>
#include <QHash>
#include <QString>

/*!
 * Remembers in the folder of the results what a watch has done, so that each file is converted
 * once, even if the watch is killed in between.
 */
class WatchJournal
{
    Q_DECLARE_TR_FUNCTIONS(WatchJournal)
    Q_DISABLE_COPY(WatchJournal)

public:
    WatchJournal() = default;

    /*! Opens the journal in \a folder, which must exist. An error if another watch has it. */
    [[nodiscard]] Result<> open(const QString &folder);

    /*! Whether the file, as it is now, has been dealt with. */
    [[nodiscard]] bool isDone(const QString &source) const;
    /*! The name that the file's result was promised before; empty if none was. */
    [[nodiscard]] QString promisedTarget(const QString &source) const;

    /*! Promises the file's result this name. */
    [[nodiscard]] Result<> promise(const QString &source, const QString &target);
    /*! Notes that the file, as it was when it was promised, has been converted or can't be. */
    [[nodiscard]] Result<> finish(const QString &source);

private:
    struct Entry
    {
        QString state; // size and date
        QString target;
        bool isDone = false;
    };

    [[nodiscard]] Result<> append(const QString &source, const Entry &entry);

    QFile m_file;
    FileLock m_lock;
    QHash<QString, Entry> m_entries; // by absolute path
};

#endif
