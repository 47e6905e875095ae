#include "host/files/atomicwrite.h"

#include "host/files/workfolder.h"

#include <QFile>
#include <QFileInfo>

#include <cerrno>
#include <cstdio>
#include <fcntl.h>
#include <unistd.h>

namespace {

/*! Where symbolic links lead, even if nothing exists there yet. */
QString withoutLinks(QString path)
{
    constexpr int mostLinks = 40; // as many as the system follows
    for (int i = 0; i < mostLinks && QFileInfo(path).isSymLink(); ++i) {
        path = QFileInfo(path).symLinkTarget();
    }
    return path;
}

Result<> writeToDisk(QFile &file, const QByteArray &content)
{
    // On a full disk a write may succeed in part.
    for (qint64 done = 0; done < content.size();) {
        const qint64 written = file.write(content.constData() + done, content.size() - done);
        if (written <= 0) {
            return failed(file.errorString());
        }
        done += written;
    }
    if (!file.flush()) {
        return failed(file.errorString());
    }
    return ::fsync(file.handle()) == 0 ? Result<>() : failed(qt_error_string(errno));
}

/*! A rename is on disk only once its folder is. */
void syncFolder(const QString &path)
{
    const int descriptor =
        ::open(QFile::encodeName(path).constData(), O_RDONLY | O_DIRECTORY | O_CLOEXEC);
    if (descriptor >= 0) {
        ::fsync(descriptor);
        ::close(descriptor);
    }
}

} // namespace

Result<> writeAtomically(const QString &path, const QByteArray &content, const QString &model)
{
    const QString target = withoutLinks(path);
    const QString folder = QFileInfo(target).absolutePath();
    // A rename would ignore a read-only file's permissions.
    if (QFileInfo::exists(target) && !QFileInfo(target).isWritable()) {
        return failed(qt_error_string(EACCES));
    }
    const Result<WorkFolder> work = WorkFolder::make(folder);
    if (!work) {
        return failed(work);
    }
    QFile file(work->filePath(QStringLiteral("new")));
    if (!file.open(QIODevice::WriteOnly)) {
        return failed(file.errorString());
    }
    if (QFile::exists(model)) {
        file.setPermissions(QFile::permissions(model));
    }
    Result<> written = writeToDisk(file, content);
    if (!written) {
        return written;
    }
    if (std::rename(QFile::encodeName(file.fileName()).constData(),
                    QFile::encodeName(target).constData()) != 0) {
        return failed(qt_error_string(errno));
    }
    syncFolder(folder);
    return {};
}
