#ifndef FILES_LOCALPATH_H
#define FILES_LOCALPATH_H

#include <QList>
#include <QString>
#include <QStringList>
#include <QUrl>

/*! The path that a file: URL has on this machine, even if its bytes are not valid UTF-8. Empty for
 *  any other URL. */
[[nodiscard]] QString localPath(const QUrl &url);
/*! The local paths of those that have one. */
[[nodiscard]] QStringList localPaths(const QList<QUrl> &urls);
/*! The file: URL of a path, even if its bytes are not valid UTF-8. */
[[nodiscard]] QUrl localUrl(const QString &path);

#endif
