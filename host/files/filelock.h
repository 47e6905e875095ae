#ifndef FILES_FILELOCK_H
#define FILES_FILELOCK_H

#include <QString>

/*!
 * Keeps other processes from what a file or folder stands for. The kernel drops the lock with the
 * process, however that ends, so that what is left behind by a dead one never locks anyone out.
 */
class FileLock
{
    Q_DISABLE_COPY(FileLock)

public:
    enum Result {
        Locked,
        HeldByAnother, //!< another process, or another lock of this one
        Failed         //!< it can't be opened or the file system has no locks: see errorText()
    };

    FileLock() = default;
    ~FileLock() { release(); }

    /*! Locks the file or folder at \a path, which exists, without waiting. */
    [[nodiscard]] Result tryLock(const QString &path);
    void release();

    [[nodiscard]] bool isLocked() const { return m_descriptor >= 0; }
    /*! Whether \a path still names what is locked: it may have been removed or replaced. */
    [[nodiscard]] bool isAt(const QString &path) const;
    /*! Why the last tryLock() Failed, in the system's words. */
    [[nodiscard]] QString errorText() const;

private:
    int m_descriptor = -1;
    int m_error = 0;
};

#endif
