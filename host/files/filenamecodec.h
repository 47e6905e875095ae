#ifndef FILES_FILENAMECODEC_H
#define FILES_FILENAMECODEC_H

/*!
 * Makes QFile, QDir, QProcess and QString::fromLocal8Bit() preserve names that are not valid UTF-8:
 * an invalid byte becomes the lone surrogate U+DC00 + byte and is converted back to that byte.
 * Names are UTF-8 even without a locale, as in a Docker container.
 */
void installFileNameCodec();

#endif
