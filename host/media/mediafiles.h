#ifndef MEDIA_MEDIAFILES_H
#define MEDIA_MEDIAFILES_H

#include <QStringList>

/*! The usual extensions of films and songs, in lower case, without a dot. */
[[nodiscard]] const QStringList &mediaExtensions();
/*! Whether a file's name has one of them. */
[[nodiscard]] bool isMediaName(const QString &name);
/*! The paths of a folder's own files that are media by their names, sorted. */
[[nodiscard]] QStringList mediaFilesIn(const QString &folder);

#endif
