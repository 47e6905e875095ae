#include "host/files/pendingfile.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>

#include <filesystem>
#include <system_error>

namespace {

bool isTaken(const QString &path)
{
    const QFileInfo file(path);
    return file.exists() || file.isSymLink();
}

bool moveOver(const QString &from, const QString &to)
{
    std::error_code error;
    std::filesystem::rename(QFile::encodeName(from).toStdString(),
                            QFile::encodeName(to).toStdString(), error);
    return !error;
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

} // namespace

QString PendingFile::create(const QString &folder)
{
    if (!QFileInfo(folder).isDir()) {
        return tr("the folder %1 doesn't exist; make it or choose another one")
            .arg(QDir::toNativeSeparators(folder));
    }
    m_work = std::make_unique<WorkFolder>(folder);
    if (!m_work->isValid()) {
        return tr("can't write into the folder %1 (%2); choose another one")
            .arg(QDir::toNativeSeparators(folder), m_work->errorText());
    }
    return {};
}

QString PendingFile::path() const
{
    return m_work == nullptr || !m_work->isValid() ? QString()
                                                   : m_work->filePath(QStringLiteral("part"));
}

bool PendingFile::publishOver(const QString &path)
{
    if (!moveOver(this->path(), path)) {
        return false;
    }
    discard();
    return true;
}

QString PendingFile::publish(const QString &baseName, const QString &extension)
{
    const QString folder = QFileInfo(m_work->path()).absolutePath();
    for (;;) {
        const QString path = freeName(folder, baseName, extension);
        // Making the file claims the name; the move then replaces only what was made here.
        QFile claim(path);
        if (claim.open(QIODevice::WriteOnly | QIODevice::NewOnly)) {
            claim.close();
            if (publishOver(path)) {
                return path;
            }
            claim.remove();
            return {};
        }
        if (!isTaken(path)) {
            return {};
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
