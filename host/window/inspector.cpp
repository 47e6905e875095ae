#include "host/window/inspector.h"

#include "host/media/mediainput.h"

#include <QFile>
#include <QUrl>

#include <algorithm>

Inspector::Inspector(QObject *parent)
    : QObject(parent)
{
    connect(&m_probe, &MediaProbe::finished, this, &Inspector::takeFacts);
    connect(&m_ffmpeg, &Tool::finished, this, &Inspector::takeThumbnail);
}

void Inspector::inspect(int id, const QString &path)
{
    m_requests.enqueue({id, path});
    if (m_requests.size() == 1) {
        readNext();
    }
}

void Inspector::forget(int id)
{
    const auto found = std::find_if(m_requests.begin(), m_requests.end(),
                                    [id](const Request &request) { return request.id == id; });
    if (found == m_requests.end()) {
        return;
    }
    const bool isBeingRead = found == m_requests.begin();
    m_requests.erase(found);
    if (isBeingRead) {
        // A hanging tool must not block the other files.
        m_probe.abandon();
        m_ffmpeg.abandon();
        readNext();
    }
}

void Inspector::readNext()
{
    if (!m_requests.isEmpty()) {
        m_probe.start(m_requests.head().path);
    }
}

void Inspector::takeFacts(const Result<MediaFacts> &facts)
{
    const Request request = m_requests.head();
    if (m_thumbnails && facts && (facts->video() != nullptr || facts->cover() != nullptr)) {
        makeThumbnail(request, *facts);
    } else {
        m_requests.dequeue();
        readNext();
    }
    Q_EMIT read(request.id, facts);
}

void Inspector::makeThumbnail(const Request &request, const MediaFacts &facts)
{
    // The first frames of a video are often black.
    const double moment = facts.video() == nullptr ? 0 : facts.duration / 10;
    const VideoTrack *track = facts.video() == nullptr ? facts.cover() : facts.video();
    m_ffmpeg.start(
        ffmpegCall(QStringList{QStringLiteral("-y"), QStringLiteral("-ss"),
                               QString::number(moment, 'f', 3)} +
                   inputArguments(request.path, facts.container) +
                   QStringList{QStringLiteral("-map"), QStringLiteral("0:%1").arg(track->index),
                               QStringLiteral("-frames:v"), QStringLiteral("1"),
                               QStringLiteral("-vf"), QStringLiteral("scale=256:-2"),
                               QStringLiteral("-update"), // else "%d" in the path is a number
                               QStringLiteral("1"), fileArgument(thumbnailFile(request.id))}),
        probeLimits);
}

void Inspector::takeThumbnail(const Result<ToolRun> &run)
{
    const int id = m_requests.dequeue().id;
    readNext();
    if (cleanOutput(run) && QFile::exists(thumbnailFile(id))) {
        Q_EMIT thumbnailReady(id, QUrl::fromLocalFile(thumbnailFile(id)).toString());
    }
}

QString Inspector::thumbnailFile(int id) const
{
    return m_thumbnails->filePath(QStringLiteral("%1.png").arg(id));
}
