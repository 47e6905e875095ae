#include "host/queue/resultlines.h"

#include <QFile>
#include <QJsonDocument>
#include <QMap>

#include <algorithm>
#include <iterator>

namespace {

struct NamedStatus
{
    QLatin1String name;
    JobResult::Status status;
};

const NamedStatus statuses[] = {
    {QLatin1String("converted"), JobResult::Converted},
    {QLatin1String("skipped"), JobResult::Skipped},
    {QLatin1String("failed"), JobResult::Failed},
    {QLatin1String("stopped"), JobResult::Stopped},
};

QString textIn(const QJsonObject &line, const char *key)
{
    return line.value(QLatin1String(key)).toString();
}

} // namespace

std::optional<JobResult> resultFromLine(const QJsonObject &line)
{
    const QString name = textIn(line, "status");
    const auto named =
        std::find_if(std::begin(statuses), std::end(statuses),
                     [&name](const NamedStatus &known) { return known.name == name; });
    if (named == std::end(statuses)) {
        return std::nullopt;
    }
    return JobResult{line.value(QLatin1String("index")).toInt(),
                     named->status,
                     textIn(line, "source"),
                     textIn(line, "target"),
                     textIn(line, "error"),
                     textIn(line, "host")};
}

void eachResult(const QDir &folder, const std::function<void(const JobResult &result)> &visit)
{
    const QStringList names = folder.entryList(QDir::Files);
    for (const QString &name : names) {
        QFile file(folder.filePath(name));
        if (!file.open(QIODevice::ReadOnly)) {
            continue;
        }
        QMap<int, JobResult> results;
        while (!file.atEnd()) {
            const auto result = resultFromLine(QJsonDocument::fromJson(file.readLine()).object());
            // A task that Slurm runs again skips what it has converted.
            const bool isRepeated =
                result && result->status == JobResult::Skipped && results.contains(result->index);
            if (result && !isRepeated) {
                results.insert(result->index, *result);
            }
        }
        std::for_each(results.cbegin(), results.cend(), visit);
    }
}
