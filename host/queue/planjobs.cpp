#include "host/queue/planjobs.h"

#include "host/files/freename.h"

#include <QDir>
#include <QFileInfo>

Result<> PlanJobs::open(const QString &path)
{
    m_file.setFileName(path);
    if (!m_file.open(QIODevice::ReadOnly)) {
        return failed(tr("can't read the plan %1 (%2); name one that \"vexconvert plan\" wrote")
                          .arg(QDir::toNativeSeparators(path), m_file.errorString()));
    }
    return {};
}

std::optional<PlanLine> PlanJobs::next()
{
    while (!m_file.atEnd()) {
        const JobPlace place{++m_linesRead, m_file.pos()};
        const QByteArray line = m_file.readLine();
        if (!line.trimmed().isEmpty()) {
            return PlanLine{place, jobIn(line, place.index)};
        }
    }
    return std::nullopt;
}

Result<> PlanJobs::each(const Visit &visit)
{
    m_file.seek(0);
    m_linesRead = 0;
    while (const std::optional<PlanLine> line = next()) {
        if (!line->job) {
            return failed(line->job);
        }
        visit(line->place, *line->job);
    }
    return {};
}

Result<QVector<JobPlace>> PlanJobs::undone()
{
    QVector<JobPlace> places;
    int jobs = 0;
    const Result<> read = each([&places, &jobs](const JobPlace &place, const PlannedJob &job) {
        ++jobs;
        if (!isDone(job)) {
            places << place;
        }
    });
    if (!read) {
        return failed(read);
    }
    if (jobs == 0) {
        return failed(tr("the plan %1 has no jobs; make it again")
                          .arg(QDir::toNativeSeparators(m_file.fileName())));
    }
    return places;
}

Result<PlannedJob> PlanJobs::at(const JobPlace &place)
{
    m_file.seek(place.offset);
    return jobIn(m_file.readLine(), place.index);
}

Result<PlannedJob> PlanJobs::jobIn(const QByteArray &line, int index) const
{
    return PlannedJob::fromLine(line)
        .map([](PlannedJob job) {
            job.source = QFileInfo(job.source).absoluteFilePath();
            job.target = QFileInfo(job.target).absoluteFilePath();
            return job;
        })
        .map_error([this, index](const Error &error) {
            return Error{tr("%1: line %2 %3")
                             .arg(QDir::toNativeSeparators(m_file.fileName()))
                             .arg(index)
                             .arg(error.text),
                         error.kind};
        });
}

bool isDone(const PlannedJob &job)
{
    return isTaken(job.target);
}
