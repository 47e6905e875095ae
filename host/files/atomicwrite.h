#ifndef FILES_ATOMICWRITE_H
#define FILES_ATOMICWRITE_H

#include <QByteArray>
#include <QString>

/*!
 * Gives the file at \a path this content in one step that outlasts a power cut, with the
 * permissions of the file \a model where that exists. A symbolic link stays, and what it leads to
 * is written. Returns the system's reason when that fails, which leaves all as it was, or an empty
 * text.
 */
QString writeAtomically(const QString &path, const QByteArray &content, const QString &model);

/*! Removes what writeAtomically() leaves beside \a path and beside files whose names begin with
 *  it and a dot, where the process dies between its last two steps. */
void removeUnfinishedWrites(const QString &path);

#endif
