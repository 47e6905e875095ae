#include "host/queue/keptqueue.h"

#include <QFile>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QJsonParseError>

#include <algorithm>
#include <iterator>

namespace {

constexpr int queueVersion = 1;

const QLatin1String versionKey("version");
const QLatin1String pagesKey("pages");
const QLatin1String sourceKey("source");
const QLatin1String subfolderKey("subfolder");
const QLatin1String targetKey("target");
const QLatin1String statusKey("status");
const QLatin1String ownFormatsKey("ownFormats");
const QLatin1String startKey("start");
const QLatin1String endKey("end");
const QLatin1String bytesKey("targetBytes");
const QLatin1String audioKey("audioTracks");
const QLatin1String subtitlesKey("subtitles");
const QLatin1String burnedKey("burnedSubtitles");

struct TextKey
{
    QLatin1String key;
    QString KeptTask::*text;
};

const TextKey textKeys[] = {
    {QLatin1String("format"), &KeptTask::format},
    {QLatin1String("formatCaption"), &KeptTask::formatCaption},
    {QLatin1String("error"), &KeptTask::error},
    {QLatin1String("note"), &KeptTask::note},
};

struct NamedStatus
{
    KeptTask::Status status;
    QLatin1String name;
};

const NamedStatus statuses[] = {
    {KeptTask::Unconverted, QLatin1String("unconverted")},
    {KeptTask::Interrupted, QLatin1String("interrupted")},
    {KeptTask::Converted, QLatin1String("converted")},
    {KeptTask::Failed, QLatin1String("failed")},
    {KeptTask::Stopped, QLatin1String("stopped")},
};

/*! JSON is UTF-8, which a path need not be. */
QString encoded(const QString &path)
{
    return QString::fromLatin1(QFile::encodeName(path).toPercentEncoding("/ "));
}

QString decoded(const QJsonValue &path)
{
    return QFile::decodeName(QByteArray::fromPercentEncoding(path.toString().toLatin1()));
}

KeptTask::Status statusNamed(const QString &name)
{
    const auto named =
        std::find_if(std::begin(statuses), std::end(statuses),
                     [&name](const NamedStatus &known) { return known.name == name; });
    return named == std::end(statuses) ? KeptTask::Unconverted : named->status;
}

KeptTask taskFrom(const QJsonObject &entry)
{
    KeptTask task;
    task.source = decoded(entry.value(sourceKey));
    task.subfolder = decoded(entry.value(subfolderKey));
    task.target = decoded(entry.value(targetKey));
    task.ownFormats = entry.value(ownFormatsKey).toVariant().toStringList();
    task.status = statusNamed(entry.value(statusKey).toString());
    task.start = std::max(0.0, entry.value(startKey).toDouble());
    task.end = std::max(0.0, entry.value(endKey).toDouble());
    task.targetBytes = std::max(qint64(0), qint64(entry.value(bytesKey).toDouble()));
    const auto choice = [&entry](QLatin1String key) {
        return TrackChoice::fromText(entry.value(key).toString()).value_or(TrackChoice());
    };
    task.tracks = {choice(audioKey), choice(subtitlesKey),
                   std::max(0, entry.value(burnedKey).toInt())};
    for (const TextKey &key : textKeys) {
        task.*key.text = entry.value(key.key).toString();
    }
    return task;
}

QJsonObject toObject(const KeptTask &task)
{
    QJsonObject entry{{sourceKey, encoded(task.source)}, {statusKey, statuses[task.status].name}};
    if (!task.subfolder.isEmpty()) {
        entry.insert(subfolderKey, encoded(task.subfolder));
    }
    if (!task.target.isEmpty()) {
        entry.insert(targetKey, encoded(task.target));
        entry.insert(bytesKey, double(task.targetBytes));
    }
    if (!task.ownFormats.isEmpty()) {
        entry.insert(ownFormatsKey, QJsonArray::fromStringList(task.ownFormats));
    }
    if (task.start > 0 || task.end > 0) {
        entry.insert(startKey, task.start);
        entry.insert(endKey, task.end);
    }
    const auto insertChoice = [&entry](QLatin1String key, const TrackChoice &choice) {
        if (choice.kind != TrackChoice::All) {
            entry.insert(key, choice.text());
        }
    };
    insertChoice(audioKey, task.tracks.audio);
    insertChoice(subtitlesKey, task.tracks.subtitles);
    if (task.tracks.burnedSubtitles > 0) {
        entry.insert(burnedKey, task.tracks.burnedSubtitles);
    }
    for (const TextKey &key : textKeys) {
        if (!(task.*key.text).isEmpty()) {
            entry.insert(key.key, task.*key.text);
        }
    }
    return entry;
}

} // namespace

Result<KeptQueue> KeptQueue::fromJson(const QByteArray &json)
{
    QJsonParseError mistake;
    const QJsonObject read = QJsonDocument::fromJson(json, &mistake).object();
    const int version = read.value(versionKey).toInt();
    if (version > queueVersion) {
        return failed(tr("it is of a newer version of the program"));
    }
    if (version < 1 || !read.value(pagesKey).isObject()) {
        return failed(mistake.error == QJsonParseError::NoError ? tr("it holds no list of files")
                                                                : mistake.errorString());
    }
    KeptQueue queue;
    const QJsonObject pages = read.value(pagesKey).toObject();
    for (auto page = pages.begin(); page != pages.end(); ++page) {
        QVector<KeptTask> &tasks = queue.pages[page.key()];
        const QJsonArray entries = page.value().toArray();
        for (const QJsonValue &entry : entries) {
            const KeptTask task = taskFrom(entry.toObject());
            if (!task.source.isEmpty()) {
                tasks << task;
            }
        }
    }
    return queue;
}

QByteArray KeptQueue::toJson() const
{
    QJsonObject written;
    for (auto page = pages.begin(); page != pages.end(); ++page) {
        QJsonArray entries;
        for (const KeptTask &task : page.value()) {
            entries << toObject(task);
        }
        written.insert(page.key(), entries);
    }
    return QJsonDocument(QJsonObject{{versionKey, queueVersion}, {pagesKey, written}})
        .toJson(QJsonDocument::Compact);
}
