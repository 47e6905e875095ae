#ifndef PRESETS_FOLDERLOCK_H
#define PRESETS_FOLDERLOCK_H

#include "host/error.h"
#include "host/files/filelock.h"

#include <QCoreApplication>
#include <QString>

#include <functional>

/*! Makes one process at a time the writer of a configuration folder. */
class FolderLock
{
    Q_DECLARE_TR_FUNCTIONS(FolderLock)

public:
    using Tell = std::function<void(const QString &line)>;

    /*!
     * Makes the folder where it is missing and locks it. Where another process has it, says so
     * with \a tell and waits, but no longer than \a patience ms for one and the same. Then it is
     * Error::InUse.
     */
    [[nodiscard]] Result<> lock(const QString &folder, int patience, const Tell &tell = {});
    void release() { m_lock.release(); }
    [[nodiscard]] bool isLocked() const { return m_lock.isLocked(); }

private:
    FileLock m_lock;
};

#endif
