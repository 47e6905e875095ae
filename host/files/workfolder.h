#ifndef FILES_WORKFOLDER_H
#define FILES_WORKFOLDER_H

#include "host/files/filelock.h"

#include <QString>

#include <utility>

/*!
 * A hidden temporary folder that goes with the object. What a process that was killed leaves is
 * swept as soon as another folder is made beside it; what a living one works with never is.
 */
class WorkFolder
{
    Q_DISABLE_COPY(WorkFolder)

public:
    /*!
     * Makes a folder, for the user alone, in \a parent or else where the system has such. A
     * failure's text is the system's reason alone.
     */
    [[nodiscard]] static Result<WorkFolder> make(const QString &parent = {});
    WorkFolder(WorkFolder &&) noexcept = default;
    WorkFolder &operator=(WorkFolder &&) noexcept = default;
    ~WorkFolder();

    /*! Absolute. */
    [[nodiscard]] QString path() const { return m_path; }
    [[nodiscard]] QString filePath(const QString &name) const;

    /*! Makes the folder again, empty, where somebody has removed it. */
    void restore();

    /*! Removes from \a parent what dead processes of this user on this machine left there. */
    static void sweep(const QString &parent);

private:
    WorkFolder(const QString &path, FileLock lock)
        : m_path(path)
        , m_lock(std::move(lock))
    {}

    QString m_path; //!< empty once it has moved elsewhere
    FileLock m_lock;
};

#endif
