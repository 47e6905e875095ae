#ifndef FILES_FILELOCK_H
#define FILES_FILELOCK_H

#include "host/error.h"

#include <QString>

#include <utility>

/*!
 * A lock on a file or folder that excludes other processes. The kernel releases it when the process
 * ends, however it ends, so a stale lock file never locks anyone out.
 */
class FileLock
{
    Q_DISABLE_COPY(FileLock)

public:
    FileLock() = default;
    FileLock(FileLock &&other) noexcept
        : m_descriptor(std::exchange(other.m_descriptor, -1))
    {}
    FileLock &operator=(FileLock &&other) noexcept
    {
        std::swap(m_descriptor, other.m_descriptor);
        return *this;
    }
    ~FileLock() { release(); }

    /*!
     * Locks the existing file or folder at \a path without waiting. Fails with Error::InUse if
     * another process, or another lock of this process, holds it. Any other error's text is only
     * the system's reason.
     */
    [[nodiscard]] Result<> tryLock(const QString &path);
    void release();

    [[nodiscard]] bool isLocked() const { return m_descriptor >= 0; }
    /*! Whether \a path still refers to the locked file: it may have been removed or replaced. */
    [[nodiscard]] bool isAt(const QString &path) const;

private:
    int m_descriptor = -1;
};

#endif
