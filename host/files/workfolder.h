#ifndef FILES_WORKFOLDER_H
#define FILES_WORKFOLDER_H

#include "host/files/filelock.h"

#include <QString>

#include <utility>

/*!
 * A hidden temporary folder that is removed with the object. Folders left by killed processes are
 * swept as soon as another one is made beside them; those of running processes never are.
 */
class WorkFolder
{
    Q_DISABLE_COPY(WorkFolder)

public:
    /*!
     * Makes a folder that only the user can access in \a parent, by default the system's temporary
     * folder. An error's text is only the system's reason.
     */
    [[nodiscard]] static Result<WorkFolder> make(const QString &parent = {});
    WorkFolder(WorkFolder &&) noexcept = default;
    WorkFolder &operator=(WorkFolder &&) noexcept = default;
    ~WorkFolder();

    /*! Absolute. */
    [[nodiscard]] QString path() const { return m_path; }
    [[nodiscard]] QString filePath(const QString &name) const;

    /*! Makes the folder again, empty, if somebody has removed it. */
    void restore();

    /*! Removes the folders that killed processes of this user on this machine left in \a parent. */
    static void sweep(const QString &parent);

private:
    WorkFolder(const QString &path, FileLock lock)
        : m_path(path)
        , m_lock(std::move(lock))
    {}

    QString m_path; //!< empty when moved from
    FileLock m_lock;
};

#endif
