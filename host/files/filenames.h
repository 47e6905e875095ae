#ifndef FILES_FILENAMES_H
#define FILES_FILENAMES_H

#include <QString>
#include <QUrl>

/*!
 * Lets QFile, QDir, QProcess and QString::fromLocal8Bit() keep names that are no UTF-8: in a text,
 * a byte that is none is the lone surrogate U+DC00 + byte, and becomes that byte again. Names are
 * UTF-8 also where no locale is set, as in containers.
 */
void keepBytesOfFileNames();

/*! Like QUrl::fromLocalFile() and toLocalFile(), but also for names that are no UTF-8. */
[[nodiscard]] QUrl urlOfFile(const QString &path);
[[nodiscard]] QString fileOfUrl(const QUrl &url);

#endif
