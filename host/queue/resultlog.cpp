#include "host/queue/resultlog.h"

#include "host/queue/resultlines.h"

#include <QCoreApplication>
#include <QFile>
#include <QJsonDocument>
#include <QJsonObject>

namespace {

struct Texts
{
    Q_DECLARE_TR_FUNCTIONS(ResultLog)
};

} // namespace

Result<QSet<QString>> sourcesToRetry(const QString &logPath)
{
    QFile log(logPath);
    if (!log.open(QIODevice::ReadOnly)) {
        return failed(Texts::tr("can't read the log %1 (%2); check its name")
                          .arg(logPath, log.errorString()));
    }
    QSet<QString> open;
    bool hasEvents = false;
    while (!log.atEnd()) {
        const QJsonObject event = QJsonDocument::fromJson(log.readLine()).object();
        const QString source = event.value(QStringLiteral("source")).toString();
        if (source.isEmpty()) {
            continue;
        }
        hasEvents = true;
        const std::optional<JobResult> result = resultFromLine(event);
        if (result &&
            (result->status == JobResult::Converted || result->status == JobResult::Skipped)) {
            open.remove(source);
        } else {
            open.insert(source);
        }
    }
    if (!hasEvents && log.size() > 0) {
        return failed(Texts::tr("%1 is no log of conversions; name a file with what \"vexconvert "
                                "convert --json\" printed")
                          .arg(logPath));
    }
    return open;
}
