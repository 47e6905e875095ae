#include "host/files/pendingfile.h"

#include "host/files/freename.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>

#include <cerrno>
#include <cstdio>
#include <utility>

#ifdef Q_OS_LINUX
#include <fcntl.h>
#endif

namespace {

bool moveOver(const QString &from, const QString &to)
{
    return std::rename(QFile::encodeName(from).constData(), QFile::encodeName(to).constData()) == 0;
}

Error nameRefused(const QString &path, const QString &reason)
{
    const QString folder = QDir::toNativeSeparators(QFileInfo(path).absolutePath());
    return {PendingFile::tr("the result couldn't get its name in %1 (%2); choose another folder")
                .arg(folder, reason)};
}

} // namespace

Result<> PendingFile::create(const QString &folder)
{
    if (!QFileInfo(folder).isDir()) {
        return failed(tr("the folder %1 doesn't exist; make it or choose another one")
                          .arg(QDir::toNativeSeparators(folder)));
    }
    Result<WorkFolder> work = WorkFolder::make(folder);
    if (!work) {
        return failed(tr("can't write into the folder %1 (%2); choose another one")
                          .arg(QDir::toNativeSeparators(folder), work.error().text));
    }
    m_work = std::move(*work);
    return {};
}

QString PendingFile::path() const
{
    return m_work ? m_work->filePath(QStringLiteral("part")) : QString();
}

QString PendingFile::passPath() const
{
    return m_work ? m_work->filePath(QStringLiteral("pass")) : QString();
}

QString PendingFile::logPath() const
{
    return m_work ? m_work->filePath(QStringLiteral("log")) : QString();
}

void PendingFile::keep()
{
    moveOver(path(), keptPath());
}

bool PendingFile::takeKept()
{
    return moveOver(keptPath(), path());
}

QString PendingFile::keptPath() const
{
    return m_work ? m_work->filePath(QStringLiteral("kept")) : QString();
}

Result<> PendingFile::publishOver(const QString &path)
{
    if (!moveOver(this->path(), path)) {
        return tl::make_unexpected(nameRefused(path, qt_error_string(errno)));
    }
    discard();
    return {};
}

Result<bool> PendingFile::publishNew(const QString &path)
{
    const QByteArray from = QFile::encodeName(this->path());
    const QByteArray to = QFile::encodeName(path);
#ifdef Q_OS_LINUX
    if (renameat2(AT_FDCWD, from.constData(), AT_FDCWD, to.constData(), RENAME_NOREPLACE) == 0) {
        discard();
        return true;
    }
    if (errno == EEXIST) {
        return false;
    }
    const bool isUnsupported = errno == EINVAL || errno == ENOSYS;
    if (!isUnsupported) {
        return tl::make_unexpected(nameRefused(path, qt_error_string(errno)));
    }
#endif
    // Creating the file claims the name; the rename then replaces only this empty file.
    QFile claim(path);
    if (!claim.open(QIODevice::WriteOnly | QIODevice::NewOnly)) {
        if (isTaken(path)) {
            return false;
        }
        return tl::make_unexpected(nameRefused(path, claim.errorString()));
    }
    claim.close();
    const Result<> published = publishOver(path);
    if (!published) {
        claim.remove();
        return failed(published);
    }
    return true;
}

Result<QString> PendingFile::publish(const QString &baseName, const QString &extension)
{
    const QString folder = QFileInfo(m_work->path()).absolutePath();
    for (;;) {
        const QString path = freeName(folder, baseName, extension);
        const Result<bool> published = publishNew(path);
        if (!published) {
            return failed(published);
        }
        if (*published) {
            return path;
        }
    }
}
