#ifndef FILES_PENDINGFILE_H
#define FILES_PENDINGFILE_H

#include "host/files/workfolder.h"

#include <QCoreApplication>
#include <QString>

#include <optional>

/*!
 * A file that stays hidden until it is complete. It is written in a folder of its own; that folder
 * is locked against sweeping, as some network shares don't allow writing to a locked file.
 */
class PendingFile
{
    Q_DECLARE_TR_FUNCTIONS(PendingFile)
    Q_DISABLE_COPY(PendingFile)

public:
    PendingFile() = default;

    /*! Prepares the file's place in \a folder. */
    [[nodiscard]] Result<> create(const QString &folder);
    /*! Where to write the file; empty before create() and after publishing or discarding. */
    [[nodiscard]] QString path() const;
    /*! Where to write what the work needs again, which goes with the unfinished file. */
    [[nodiscard]] QString passPath() const;
    /*! Where to write a log of the work, which goes with the unfinished file. */
    [[nodiscard]] QString logPath() const;
    /*! Keeps what is written, in place of what was kept before, so that path() can be written
     *  anew. */
    void keep();
    /*! Puts what was kept in the place of what is written; false, and nothing changes, if nothing
     *  was kept. */
    [[nodiscard]] bool takeKept();
    /*! Removes the unfinished file, as the destructor does. */
    void discard() { m_work.reset(); }

    /*! Replaces the file at \a path, if any. On failure nothing changes. */
    [[nodiscard]] Result<> publishOver(const QString &path);
    /*! Gives the file the name \a path unless anything has it: then false, and nothing changes. */
    [[nodiscard]] Result<bool> publishNew(const QString &path);
    /*!
     * Gives the file the name that freeName() chooses in its folder, and returns its path. Never
     * replaces a file, even one that appears at the same moment.
     */
    [[nodiscard]] Result<QString> publish(const QString &baseName, const QString &extension);

private:
    [[nodiscard]] QString keptPath() const;

    std::optional<WorkFolder> m_work;
};

#endif
