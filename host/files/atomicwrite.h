#ifndef FILES_ATOMICWRITE_H
#define FILES_ATOMICWRITE_H

#include "host/error.h"

#include <QByteArray>
#include <QString>

/*!
 * Replaces the content of the file at \a path in one step that survives a power failure. The file
 * gets the permissions of the file \a model if that exists. Symbolic links are followed and kept.
 * On failure nothing changes, and the error's text is only the system's reason. Leftovers of a
 * killed process are swept as those of a WorkFolder.
 */
[[nodiscard]] Result<> writeAtomically(const QString &path, const QByteArray &content,
                                       const QString &model);

#endif
