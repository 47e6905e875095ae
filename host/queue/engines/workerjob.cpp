#include "host/queue/engines/workerjob.h"

#include "host/files/pendingfile.h"
#include "host/queue/engines/submissionfolder.h"

#include <QDateTime>
#include <QFile>
#include <QFileInfo>
#include <QRegularExpression>

namespace {

/*! The extension tells ffmpeg something about a few kinds of files. */
QString plainName(const QString &name, const QString &path)
{
    static const QRegularExpression plain(QStringLiteral("\\A[A-Za-z0-9]{1,10}\\z"));
    const QString extension = QFileInfo(path).suffix();
    return plain.match(extension).hasMatch() ? name + QLatin1Char('.') + extension : name;
}

} // namespace

WorkerJob::WorkerJob(const QDir &parent, int index, const PlannedJob &job)
    : m_job(job)
    , m_folder(parent.filePath(QString::number(index)))
{}

QString WorkerJob::sourceName() const
{
    return plainName(QStringLiteral("source"), m_job.source);
}

QString WorkerJob::resultName() const
{
    return plainName(QStringLiteral("result"), m_job.target);
}

Result<> WorkerJob::prepare() const
{
    const QFileInfo source(m_job.source);
    if (!source.isFile() || !source.isReadable()) {
        return failed(tr("the source is gone or can't be read; bring it back, or make the plan "
                         "again"));
    }
    const bool isLinked =
        m_folder.mkpath(QStringLiteral(".")) && QFile::link(m_job.source, filePath(sourceName()));
    if (!isLinked) {
        return failed(tr("can't make the folder %1; check the free space there")
                          .arg(QDir::toNativeSeparators(m_folder.path())));
    }
    PlannedJob job = m_job;
    job.source = sourceName();
    job.target = resultName();
    return SubmissionFolder::write(filePath(QStringLiteral("job.jsonl")), job.toLine() + '\n');
}

Result<bool> WorkerJob::publish() const
{
    const QString target = m_job.target;
    const QString folder = QFileInfo(target).absolutePath();
    QDir().mkpath(folder);
    PendingFile pending;
    const Result<> created = pending.create(folder);
    if (!created) {
        return failed(created);
    }
    QFile result(filePath(resultName()));
    const QDateTime date = QFileInfo(result).lastModified();
    // Copies to another disk.
    if (!result.rename(pending.path())) {
        return failed(tr("the result didn't get into %1 (%2); check the free space there, and "
                         "submit the plan again")
                          .arg(QDir::toNativeSeparators(folder), result.errorString()));
    }
    QFile dated(pending.path());
    if (dated.open(QIODevice::ReadWrite | QIODevice::ExistingOnly)) {
        dated.setFileTime(date, QFileDevice::FileModificationTime);
    }
    dated.close();
    return pending.publishNew(target);
}

void WorkerJob::remove() const
{
    QDir(m_folder).removeRecursively();
}
