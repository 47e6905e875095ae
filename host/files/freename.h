#ifndef FILES_FREENAME_H
#define FILES_FREENAME_H

#include <QString>

/*! Whether anything exists at \a path, even a dangling link. */
[[nodiscard]] bool isTaken(const QString &path);

/*!
 * The path of "name.ext" in \a folder if that is free, else "name (2).ext", "name (3).ext" and so
 * on. Names that are too long for file systems are shortened.
 */
[[nodiscard]] QString freeName(const QString &folder, const QString &baseName,
                               const QString &extension);

#endif
