#include "host/files/filelock.h"

#include <QFile>

#include <cerrno>
#include <fcntl.h>
#include <sys/file.h>
#include <sys/stat.h>
#include <unistd.h>

namespace {

int openToLock(const QByteArray &path)
{
    // Network file systems only lock what is open for writing, which a folder can't be.
    const int descriptor = ::open(path.constData(), O_RDWR | O_CLOEXEC | O_NONBLOCK);
    return descriptor < 0 && errno == EISDIR
               ? ::open(path.constData(), O_RDONLY | O_DIRECTORY | O_CLOEXEC)
               : descriptor;
}

} // namespace

Result<> FileLock::tryLock(const QString &path)
{
    release();
    const int descriptor = openToLock(QFile::encodeName(path));
    if (descriptor >= 0 && ::flock(descriptor, LOCK_EX | LOCK_NB) == 0) {
        m_descriptor = descriptor;
        return {};
    }
    const int reason = errno;
    if (descriptor >= 0) {
        ::close(descriptor);
    }
    return failed(qt_error_string(reason), reason == EWOULDBLOCK ? Error::InUse : Error::Failed);
}

void FileLock::release()
{
    if (m_descriptor >= 0) {
        ::close(m_descriptor);
        m_descriptor = -1;
    }
}

bool FileLock::isAt(const QString &path) const
{
    struct stat locked = {};
    struct stat named = {};
    return isLocked() && ::fstat(m_descriptor, &locked) == 0 &&
           ::stat(QFile::encodeName(path).constData(), &named) == 0 &&
           locked.st_dev == named.st_dev && locked.st_ino == named.st_ino;
}
