#ifndef FILES_ATOMICWRITE_H
#define FILES_ATOMICWRITE_H

#include "host/error.h"

#include <QByteArray>
#include <QString>

/*!
 * Gives the file at \a path this content in one step that outlasts a power cut, with the
 * permissions of the file \a model where that exists. A symbolic link stays, and what it leads to
 * is written. A failure leaves all as it was; its text is the system's reason alone. What a
 * killed process leaves is a WorkFolder's, which goes as those do.
 */
[[nodiscard]] Result<> writeAtomically(const QString &path, const QByteArray &content,
                                       const QString &model);

#endif
