#ifndef FILES_FILENAMES_H
#define FILES_FILENAMES_H

/*!
 * Lets QFile, QDir, QProcess and QString::fromLocal8Bit() keep names that are no UTF-8: in a text,
 * a byte that is none is the lone surrogate U+DC00 + byte, and becomes that byte again. Names are
 * UTF-8 also where no locale is set, as in containers.
 */
void keepBytesOfFileNames();

#endif
