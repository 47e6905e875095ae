#ifndef QUEUE_RESULTLINES_H
#define QUEUE_RESULTLINES_H

#include <QDir>
#include <QJsonObject>
#include <QString>

#include <functional>
#include <optional>

/*! How a job ended, as "vexconvert run" prints it in one line. */
struct JobResult
{
    enum Status { Converted, Skipped, Failed, Stopped };

    int index = 0; //!< the job's number in the plan that was run
    Status status = Stopped;
    QString source;
    QString target;
    QString error; //!< of a failed one
    QString host;  //!< where it ran; empty: the engine doesn't tell
};

/*! Nothing if the line is no whole result, as the last line of a killed run. */
[[nodiscard]] std::optional<JobResult> resultFromLine(const QJsonObject &line);

/*! Calls \a visit with the result of each job, from all files in \a folder. Holds the results of
 *  one file at a time. */
void eachResult(const QDir &folder, const std::function<void(const JobResult &result)> &visit);

#endif
