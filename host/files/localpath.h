#ifndef FILES_LOCALPATH_H
#define FILES_LOCALPATH_H

#include <QList>
#include <QString>
#include <QStringList>
#include <QUrl>

/*!
 * The path that a file: URL names on this machine, byte for byte, also where these bytes are no
 * UTF-8. Empty for any other URL.
 */
[[nodiscard]] QString localPath(const QUrl &url);
/*! The paths of those that name something on this machine. */
[[nodiscard]] QStringList localPaths(const QList<QUrl> &urls);
/*! The file: URL for a path, byte for byte. */
[[nodiscard]] QUrl localUrl(const QString &path);

#endif
