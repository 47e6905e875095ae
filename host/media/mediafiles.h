#ifndef MEDIA_MEDIAFILES_H
#define MEDIA_MEDIAFILES_H

#include <QStringList>

/*! The usual extensions of video and audio files, in lower case, without a dot. */
[[nodiscard]] const QStringList &mediaExtensions();
/*! Whether a file name has one of them. */
[[nodiscard]] bool isMediaName(const QString &name);

#endif
