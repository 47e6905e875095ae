#ifndef FILES_WORKFOLDER_H
#define FILES_WORKFOLDER_H

#include "host/files/filelock.h"

#include <QString>

/*!
 * A hidden temporary folder that goes with the object. What a process that was killed leaves is
 * swept as soon as another folder is made beside it; what a living one works with never is.
 */
class WorkFolder
{
    Q_DISABLE_COPY(WorkFolder)

public:
    /*! Makes the folder, for the user alone, in \a parent or else where the system has such. */
    explicit WorkFolder(const QString &parent = {});
    ~WorkFolder();

    /*! False when it couldn't be made: see errorText(). */
    [[nodiscard]] bool isValid() const { return !m_path.isEmpty(); }
    /*! Why it couldn't be made, in the system's words. */
    [[nodiscard]] QString errorText() const;
    /*! Absolute; empty when it couldn't be made. */
    [[nodiscard]] QString path() const { return m_path; }
    [[nodiscard]] QString filePath(const QString &name) const;

    /*! Makes the folder again, empty, where somebody has removed it. */
    void restore();

    /*! Removes from \a parent what dead processes of this user on this machine left there. */
    static void sweep(const QString &parent);

private:
    QString m_path;
    FileLock m_lock;
    int m_error = 0;
};

#endif
