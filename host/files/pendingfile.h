#ifndef FILES_PENDINGFILE_H
#define FILES_PENDINGFILE_H

#include "host/files/workfolder.h"

#include <QCoreApplication>
#include <QString>

#include <optional>

/*!
 * A file that is hidden until it is complete: it is written in a folder of its own. That folder is
 * what is locked against sweeping, as some network shares refuse writing to a locked file.
 */
class PendingFile
{
    Q_DECLARE_TR_FUNCTIONS(PendingFile)
    Q_DISABLE_COPY(PendingFile)

public:
    PendingFile() = default;

    /*! Makes the place for it in \a folder. */
    [[nodiscard]] Result<> create(const QString &folder);
    /*! Where the file is to be written; empty when there is no place for it. */
    [[nodiscard]] QString path() const;
    /*! Removes the file, so that nothing half-written stays; so does the destructor. */
    void discard() { m_work.reset(); }

    /*! Takes the place of \a path, whatever is there. A failure leaves all as it was. */
    [[nodiscard]] Result<> publishOver(const QString &path);
    /*!
     * Takes the first free name of freeName() in its folder and returns the path. A file that
     * appears there at the same time is left alone.
     */
    [[nodiscard]] Result<QString> publish(const QString &baseName, const QString &extension);

private:
    std::optional<WorkFolder> m_work;
};

/*! "name.ext" in \a folder where that is free, else "name (2).ext", "name (3).ext" and so on. */
[[nodiscard]] QString freeName(const QString &folder, const QString &baseName,
                               const QString &extension);

#endif
