#ifndef QUEUE_ENGINES_WORKERJOB_H
#define QUEUE_ENGINES_WORKERJOB_H

#include "host/error.h"
#include "host/queue/planjobs.h"

#include <QCoreApplication>
#include <QDir>
#include <QString>

/*!
 * A job for a machine that sees none of this machine's files: a folder with a link to the source, a
 * plan of this one job, and later the result, all under plain names, as the tools that copy them
 * lose files with other ones.
 */
class WorkerJob
{
    Q_DECLARE_TR_FUNCTIONS(WorkerJob)

public:
    /*! The job's folder is in \a parent, and named after the job's number. */
    WorkerJob(const QDir &parent, int index, const PlannedJob &job);

    [[nodiscard]] QString folderName() const { return m_folder.dirName(); }
    [[nodiscard]] QString sourceName() const;
    [[nodiscard]] QString resultName() const;

    /*! Makes the folder. An error if the source can't be read. */
    [[nodiscard]] Result<> prepare() const;
    /*! Gives the result in the folder its true name. False if anything has that name: it stays. */
    [[nodiscard]] Result<bool> publish() const;
    /*! Removes the folder. */
    void remove() const;

private:
    [[nodiscard]] QString filePath(const QString &name) const { return m_folder.filePath(name); }

    PlannedJob m_job;
    QDir m_folder;
};

#endif
