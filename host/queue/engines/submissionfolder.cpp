#include "host/queue/engines/submissionfolder.h"

#include <QCryptographicHash>
#include <QFile>
#include <QFileInfo>
#include <QThread>

SubmissionFolder::SubmissionFolder(const QString &planPath)
    : m_folder(QFileInfo(planPath).absoluteFilePath() + QStringLiteral(".work"))
{}

QString SubmissionFolder::plainName() const
{
    const QByteArray hash =
        QCryptographicHash::hash(QFile::encodeName(path()), QCryptographicHash::Sha256);
    return QStringLiteral("vexconvert-") + QString::fromLatin1(hash.toHex().left(12));
}

Result<> SubmissionFolder::lock()
{
    QDir().mkpath(path());
    QFile file(lockPath());
    if (!file.open(QIODevice::ReadWrite)) {
        return failed(tr("can't write into the folder %1 (%2); put the plan where you can write")
                          .arg(QDir::toNativeSeparators(path()), file.errorString()));
    }
    // Status, too, holds the lock for a moment.
    constexpr int attempts = 50;
    constexpr int pause = 20; // ms
    Result<> locked = m_lock.tryLock(lockPath());
    for (int i = 1; i < attempts && !locked && locked.error().kind == Error::InUse; ++i) {
        QThread::msleep(pause);
        locked = m_lock.tryLock(lockPath());
    }
    if (locked) {
        return {};
    }
    if (locked.error().kind == Error::InUse) {
        return failed(tr("this plan is being submitted by another vexconvert; wait until that is "
                         "done, or stop it"),
                      Error::InUse);
    }
    return failed(tr("can't lock %1 (%2); put the plan on a disk that can lock files")
                      .arg(QDir::toNativeSeparators(lockPath()), locked.error().text));
}

bool SubmissionFolder::isInUse() const
{
    FileLock lock;
    const Result<> locked = lock.tryLock(lockPath());
    return !locked && locked.error().kind == Error::InUse;
}

Result<> SubmissionFolder::clear()
{
    for (QDir folder : {QDir(filePath(plainName())), results(), tasks(), logs()}) {
        const QString name = QDir::toNativeSeparators(folder.path());
        if (folder.exists() && !folder.removeRecursively()) {
            return failed(
                tr("can't remove %1, which an earlier submission left; remove it").arg(name));
        }
        if (!folder.mkpath(QStringLiteral("."))) {
            return failed(tr("can't make the folder %1; check who may write there").arg(name));
        }
    }
    return {};
}

Result<> SubmissionFolder::write(const QString &path, const QByteArray &content)
{
    QFile file(path);
    if (file.open(QIODevice::WriteOnly) && file.write(content) == content.size() && file.flush()) {
        return {};
    }
    return failed(tr("can't write %1 (%2); check the free space there and who may write")
                      .arg(QDir::toNativeSeparators(path), file.errorString()));
}
