#ifndef PRESETS_FOLDERLOCK_H
#define PRESETS_FOLDERLOCK_H

#include "host/error.h"
#include "host/files/filelock.h"

#include <QCoreApplication>
#include <QString>

#include <functional>

/*! Lets one process at a time write to a configuration folder. */
class FolderLock
{
    Q_DECLARE_TR_FUNCTIONS(FolderLock)

public:
    using Report = std::function<void(const QString &line)>;

    /*!
     * Makes the folder if it is missing, and locks it. If another process holds the lock, calls
     * \a report and waits, but at most \a patience ms for the same process; then fails with
     * Error::InUse.
     */
    [[nodiscard]] Result<> lock(const QString &folder, int patience, const Report &report = {});
    void release() { m_lock.release(); }
    [[nodiscard]] bool isLocked() const { return m_lock.isLocked(); }

private:
    FileLock m_lock;
};

#endif
