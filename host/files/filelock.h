#ifndef FILES_FILELOCK_H
#define FILES_FILELOCK_H

#include "host/error.h"

#include <QString>

#include <utility>

/*!
 * Keeps other processes from what a file or folder stands for. The kernel drops the lock with the
 * process, however that ends, so that what is left behind by a dead one never locks anyone out.
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
     * Locks the file or folder at \a path, which exists, without waiting. Fails with Error::InUse
     * where another process, or another lock of this one, has it; else the failure's text is the
     * system's reason alone.
     */
    [[nodiscard]] Result<> tryLock(const QString &path);
    void release();

    [[nodiscard]] bool isLocked() const { return m_descriptor >= 0; }
    /*! Whether \a path still names what is locked: it may have been removed or replaced. */
    [[nodiscard]] bool isAt(const QString &path) const;

private:
    int m_descriptor = -1;
};

#endif
