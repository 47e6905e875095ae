#ifndef MEDIA_MEDIAFILES_H
#define MEDIA_MEDIAFILES_H

#include <QStringList>

/*! The usual extensions of films and songs, in lower case, without a dot. */
[[nodiscard]] const QStringList &mediaExtensions();
/*! The paths of a folder's own files that have one of these extensions, by name. */
[[nodiscard]] QStringList mediaFilesIn(const QString &folder);

#endif
