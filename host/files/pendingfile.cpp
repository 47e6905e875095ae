#include "host/files/pendingfile.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>

#include <cerrno>
#include <cstdio>
#include <utility>

namespace {

bool isTaken(const QString &path)
{
    const QFileInfo file(path);
    return file.exists() || file.isSymLink();
}

/*! The longest beginning of \a text that takes no more than \a bytes in a file's name. */
QString beginningOf(const QString &text, int bytes)
{
    QString beginning = text.left(bytes);
    while (QFile::encodeName(beginning).size() > bytes ||
           (!beginning.isEmpty() && qAsConst(beginning).back().isHighSurrogate())) {
        beginning.chop(1);
    }
    return beginning;
}

/*! The base shortened where needed, since file systems take names of 255 bytes. */
QString numberedName(const QString &baseName, int number, const QString &extension)
{
    constexpr int longestName = 255;
    const QString tail = beginningOf(
        (number > 1 ? QStringLiteral(" (%1).").arg(number) : QStringLiteral(".")) + extension,
        longestName);
    return beginningOf(baseName, longestName - QFile::encodeName(tail).size()) + tail;
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

Result<> PendingFile::publishOver(const QString &path)
{
    if (std::rename(QFile::encodeName(this->path()).constData(),
                    QFile::encodeName(path).constData()) != 0) {
        return tl::make_unexpected(nameRefused(path, qt_error_string(errno)));
    }
    discard();
    return {};
}

Result<QString> PendingFile::publish(const QString &baseName, const QString &extension)
{
    const QString folder = QFileInfo(m_work->path()).absolutePath();
    for (;;) {
        const QString path = freeName(folder, baseName, extension);
        // Making the file claims the name; the move then replaces only what was made here.
        QFile claim(path);
        if (claim.open(QIODevice::WriteOnly | QIODevice::NewOnly)) {
            claim.close();
            const Result<> published = publishOver(path);
            if (!published) {
                claim.remove();
                return failed(published);
            }
            return path;
        }
        if (!isTaken(path)) {
            return tl::make_unexpected(nameRefused(path, claim.errorString()));
        }
    }
}

QString freeName(const QString &folder, const QString &baseName, const QString &extension)
{
    const QDir place(folder);
    for (int number = 1;; ++number) {
        const QString path = place.absoluteFilePath(numberedName(baseName, number, extension));
        if (!isTaken(path)) {
            return path;
        }
    }
}
