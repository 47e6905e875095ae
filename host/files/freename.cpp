#include "host/files/freename.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>

namespace {

/*! The longest beginning of \a text that takes at most \a bytes in a file name. */
QString beginningOf(const QString &text, int bytes)
{
    QString beginning = text.left(bytes);
    while (QFile::encodeName(beginning).size() > bytes ||
           (!beginning.isEmpty() && qAsConst(beginning).back().isHighSurrogate())) {
        beginning.chop(1);
    }
    return beginning;
}

/*! Shortens the base name where needed: file systems allow names of 255 bytes. */
QString numberedName(const QString &baseName, int number, const QString &extension)
{
    constexpr int longestName = 255;
    const QString tail = beginningOf(
        (number > 1 ? QStringLiteral(" (%1).").arg(number) : QStringLiteral(".")) + extension,
        longestName);
    return beginningOf(baseName, longestName - QFile::encodeName(tail).size()) + tail;
}

} // namespace

bool isTaken(const QString &path)
{
    const QFileInfo file(path);
    return file.exists() || file.isSymLink();
}

QString freeName(const QString &folder, const QString &baseName, const QString &extension,
                 const std::function<bool(const QString &path)> &isUnfree)
{
    const QDir place(folder);
    for (int number = 1;; ++number) {
        QString path = place.absoluteFilePath(numberedName(baseName, number, extension));
        if (!isUnfree(path)) {
            return path;
        }
    }
}
