#include "host/files/atomicwrite.h"

#include <QDir>
#include <QFileInfo>
#include <QRegularExpression>
#include <QSaveFile>

#include <fcntl.h>
#include <unistd.h>

namespace {

/*! Where a symbolic link leads, also when nothing stands there yet. */
QString withoutLinks(const QString &path)
{
    const QFileInfo info(path);
    if (info.exists()) {
        return info.canonicalFilePath();
    }
    return info.isSymLink() ? info.symLinkTarget() : path;
}

/*! A rename is on the disk only when its folder is. */
void syncFolderOf(const QString &path)
{
    const QByteArray folder = QFile::encodeName(QFileInfo(path).absolutePath());
    const int descriptor = ::open(folder.constData(), O_RDONLY | O_DIRECTORY | O_CLOEXEC);
    if (descriptor >= 0) {
        ::fsync(descriptor);
        ::close(descriptor);
    }
}

} // namespace

Result<> writeAtomically(const QString &path, const QByteArray &content, const QString &model)
{
    QSaveFile file(withoutLinks(path));
    if (!file.open(QIODevice::WriteOnly)) {
        return failed(file.errorString());
    }
    if (QFile::exists(model)) {
        file.setPermissions(QFile::permissions(model));
    }
    // commit() takes no notice of what a full disk leaves out: the first part of a write succeeds,
    // and an error of the last one, which comes out of the buffer, is forgotten.
    for (qint64 done = 0; done < content.size();) {
        const qint64 written = file.write(content.constData() + done, content.size() - done);
        if (written <= 0) {
            return failed(file.errorString());
        }
        done += written;
    }
    if (!file.flush() || !file.commit()) {
        return failed(file.errorString());
    }
    syncFolderOf(file.fileName());
    return {};
}

void removeUnfinishedWrites(const QString &path)
{
    const QFileInfo file(withoutLinks(path));
    const QString name = file.fileName();
    const QRegularExpression form(
        QStringLiteral("\\A%1(\\..+)?\\.[A-Za-z]{6}\\z").arg(QRegularExpression::escape(name)));
    QDir folder = file.absoluteDir();
    const QStringList beside = folder.entryList({name + QStringLiteral(".*")}, QDir::Files);
    for (const QString &entry : beside) {
        if (form.match(entry).hasMatch()) {
            folder.remove(entry);
        }
    }
}
