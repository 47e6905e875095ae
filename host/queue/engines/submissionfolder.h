#ifndef QUEUE_ENGINES_SUBMISSIONFOLDER_H
#define QUEUE_ENGINES_SUBMISSIONFOLDER_H

#include "host/error.h"
#include "host/files/filelock.h"

#include <QByteArray>
#include <QCoreApplication>
#include <QDir>
#include <QString>

/*!
 * The folder PLAN.work beside a plan, where submit, the engine and status leave each other files.
 * It holds the plan's last submission only: whether a job is done is told by its result, so nothing
 * of an earlier one is needed.
 */
class SubmissionFolder
{
    Q_DECLARE_TR_FUNCTIONS(SubmissionFolder)

public:
    explicit SubmissionFolder(const QString &planPath);

    /*! Absolute. */
    [[nodiscard]] QString path() const { return m_folder.path(); }
    [[nodiscard]] QString filePath(const QString &name) const { return m_folder.filePath(name); }
    /*! What the plan is called where engines allow only plain names: the same for each submission,
     *  another one for each plan. */
    [[nodiscard]] QString plainName() const;

    /*! The results' lines: some files, each with those of up to some thousand jobs. */
    [[nodiscard]] QDir results() const { return filePath(QStringLiteral("results")); }
    /*! The jobs of each task of a Slurm array: a plan of its own, named after the task's number. */
    [[nodiscard]] QDir tasks() const { return filePath(QStringLiteral("tasks")); }
    /*! What the engine has to say, for people. */
    [[nodiscard]] QDir logs() const { return filePath(QStringLiteral("logs")); }

    /*! Makes the folder and keeps it from other submissions. Fails with Error::InUse if there is
     *  one at the moment. */
    [[nodiscard]] Result<> lock();
    /*! Whether another process has it locked. */
    [[nodiscard]] bool isInUse() const;
    /*! Removes everything of the last submission, and makes the folders anew. */
    [[nodiscard]] Result<> clear();

    /*! Writes a file of the folder. */
    [[nodiscard]] static Result<> write(const QString &path, const QByteArray &content);

private:
    [[nodiscard]] QString lockPath() const { return filePath(QStringLiteral("lock")); }

    QDir m_folder;
    FileLock m_lock;
};

#endif
