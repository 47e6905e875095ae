#include "host/window/inspector.h"

#include "host/media/mediainput.h"

#include <QFile>
#include <QThread>
#include <QUrl>

#include <algorithm>
#include <utility>

namespace {

template <typename Requests>
void removeById(Requests &requests, int id)
{
    requests.erase(std::remove_if(requests.begin(), requests.end(),
                                  [id](const auto &request) { return request.id == id; }),
                   requests.end());
}

} // namespace

Inspector::Inspector(QObject *parent)
    : QObject(parent)
{
    for (int i = 0; i < QThread::idealThreadCount(); ++i) {
        Reader *reader = m_readers.emplace_back(std::make_unique<Reader>()).get();
        connect(&reader->probe, &MediaProbe::finished, this,
                [this, reader](const Result<MediaFacts> &facts) {
                    const int id = std::exchange(reader->id, 0);
                    readNext();
                    Q_EMIT read(id, facts);
                });
    }
    connect(&m_ffmpeg, &Tool::finished, this, &Inspector::takeThumbnail);
}

void Inspector::inspect(int id, const QString &path)
{
    m_unread.enqueue({id, path});
    readNext();
}

void Inspector::requestThumbnail(int id, const QString &path, const MediaFacts &facts)
{
    const VideoTrack *track = facts.video() == nullptr ? facts.cover() : facts.video();
    if (track == nullptr || !m_thumbnails || id == m_pictured) {
        return;
    }
    // The first frames of a video are often black.
    const double moment = facts.video() == nullptr ? 0 : facts.duration / 10;
    removeById(m_pictures, id);
    m_pictures.append(
        {id,
         QStringList{QStringLiteral("-y"), QStringLiteral("-ss"), QString::number(moment, 'f', 3)} +
             inputArguments(path, facts.container) +
             QStringList{QStringLiteral("-map"), QStringLiteral("0:%1").arg(track->index),
                         QStringLiteral("-frames:v"), QStringLiteral("1"), QStringLiteral("-vf"),
                         QStringLiteral("scale=256:-2"),
                         QStringLiteral("-update"), // else "%d" in the path is a number
                         QStringLiteral("1"), fileArgument(thumbnailFile(id))}});
    makeNextThumbnail();
}

void Inspector::forget(int id)
{
    removeById(m_unread, id);
    removeById(m_pictures, id);
    // A hanging tool must not block the other files.
    for (const std::unique_ptr<Reader> &reader : m_readers) {
        if (reader->id == id) {
            reader->probe.abandon();
            reader->id = 0;
            readNext();
        }
    }
    if (m_pictured == id) {
        m_ffmpeg.abandon();
        m_pictured = 0;
        makeNextThumbnail();
    }
}

void Inspector::readNext()
{
    for (const std::unique_ptr<Reader> &reader : m_readers) {
        if (reader->id == 0 && !m_unread.isEmpty()) {
            const File file = m_unread.dequeue();
            reader->id = file.id;
            reader->probe.start(file.path);
        }
    }
    makeNextThumbnail();
}

void Inspector::makeNextThumbnail()
{
    if (m_pictured == 0 && m_unread.isEmpty() && !m_pictures.isEmpty()) {
        const Picture picture = m_pictures.takeLast();
        m_pictured = picture.id;
        m_ffmpeg.start(ffmpegCall(picture.arguments), probeLimits);
    }
}

void Inspector::takeThumbnail(const Result<ToolRun> &run)
{
    const int id = std::exchange(m_pictured, 0);
    makeNextThumbnail();
    if (cleanOutput(run) && QFile::exists(thumbnailFile(id))) {
        Q_EMIT thumbnailReady(id, QUrl::fromLocalFile(thumbnailFile(id)).toString());
    }
}

QString Inspector::thumbnailFile(int id) const
{
    return m_thumbnails->filePath(QStringLiteral("%1.png").arg(id));
}
