#ifndef QUEUE_RESULTLOG_H
#define QUEUE_RESULTLOG_H

#include "host/error.h"

#include <QSet>
#include <QString>

/*!
 * The sources that have no result by the end of a log, which is what a batch printed as JSON, one
 * event per line: those that failed, were stopped or never ended. An error if it can't be read.
 */
[[nodiscard]] Result<QSet<QString>> sourcesToRetry(const QString &logPath);

#endif
