#ifndef FILES_FREENAME_H
#define FILES_FREENAME_H

#include <QString>

#include <functional>

/*! Whether anything exists at \a path, even a dangling link. */
[[nodiscard]] bool isTaken(const QString &path);

/*!
 * The path of "name.ext" in \a folder unless \a isUnfree, else "name (2).ext", "name (3).ext" and
 * so on. Names that are too long for file systems are shortened.
 */
[[nodiscard]] QString freeName(const QString &folder, const QString &baseName,
                               const QString &extension,
                               const std::function<bool(const QString &path)> &isUnfree = isTaken);

#endif
