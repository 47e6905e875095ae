#include "host/files/workfolder.h"

#include <QCryptographicHash>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QRegularExpression>
#include <QSysInfo>
#include <QUuid>

#include <cerrno>
#include <filesystem>
#include <sys/stat.h>
#include <system_error>
#include <unistd.h>

namespace {

/*!
 * What the names of this machine's folders begin with. On a network share a lock may be known to
 * its own machine only: to any other the folder looks free.
 */
QString namePrefix()
{
    static const QString machine = QString::fromLatin1(
        QCryptographicHash::hash(QSysInfo::machineUniqueId(), QCryptographicHash::Sha256)
            .toHex()
            .left(8));
    return QStringLiteral(".vexconvert-%1-").arg(machine);
}

bool isName(const QString &name)
{
    static const QRegularExpression form(
        QStringLiteral("\\A%1[0-9a-f]{32}\\z").arg(QRegularExpression::escape(namePrefix())));
    return form.match(name).hasMatch();
}

/*! Doesn't follow a link, which may lead anywhere. */
bool isOwnFolder(const QString &path)
{
    struct stat found = {};
    return ::lstat(QFile::encodeName(path).constData(), &found) == 0 && S_ISDIR(found.st_mode) &&
           found.st_uid == ::geteuid();
}

/*! QDir::removeRecursively() would follow a link that replaced the folder in the meantime. */
void removeFolder(const QString &path)
{
    std::error_code ignored;
    std::filesystem::remove_all(QFile::encodeName(path).toStdString(), ignored);
}

} // namespace

Result<WorkFolder> WorkFolder::make(const QString &parent)
{
    const QDir place(parent.isEmpty() ? QDir::tempPath() : QFileInfo(parent).absoluteFilePath());
    sweep(place.path());
    for (;;) {
        const QString path =
            place.filePath(namePrefix() + QUuid::createUuid().toString(QUuid::Id128));
        if (::mkdir(QFile::encodeName(path).constData(), S_IRWXU) != 0) {
            return failed(qt_error_string(errno));
        }
        // Until it is locked, another process may sweep the new folder. Where nothing can be
        // locked, nothing is swept either.
        FileLock lock;
        const Result<> locked = lock.tryLock(path);
        const bool isBeingSwept = !locked && locked.error().kind == Error::InUse;
        if (!isBeingSwept && isOwnFolder(path)) {
            return WorkFolder(path, std::move(lock));
        }
    }
}

WorkFolder::~WorkFolder()
{
    if (!m_path.isEmpty()) {
        removeFolder(m_path);
    }
}

void WorkFolder::restore()
{
    if (m_lock.isAt(m_path)) {
        return;
    }
    QDir().mkpath(QFileInfo(m_path).absolutePath());
    ::mkdir(QFile::encodeName(m_path).constData(), S_IRWXU);
    // Where nothing can be locked, nothing is swept either.
    static_cast<void>(m_lock.tryLock(m_path));
}

QString WorkFolder::filePath(const QString &name) const
{
    return QDir(m_path).filePath(name);
}

void WorkFolder::sweep(const QString &parent)
{
    const QDir place(parent);
    const QStringList names =
        place.entryList({namePrefix() + QLatin1Char('*')}, QDir::Dirs | QDir::Hidden);
    for (const QString &name : names) {
        const QString path = place.filePath(name);
        FileLock lock;
        if (isName(name) && isOwnFolder(path) && lock.tryLock(path)) {
            removeFolder(path);
        }
    }
}
