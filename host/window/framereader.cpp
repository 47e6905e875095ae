#include "host/window/framereader.h"

#include "host/media/mediainput.h"
#include "host/media/mediaprobe.h"

#include <QFile>
#include <QUrl>

#include <cmath>
#include <utility>

QString FrameReader::Picture::key() const
{
    return QStringLiteral("%1 %2 %3")
        .arg(isNearby ? QStringLiteral("near") : QStringLiteral("at"))
        .arg(std::llround(seconds * 1000))
        .arg(path);
}

FrameReader::PictureFile::~PictureFile()
{
    QFile::remove(path);
}

FrameReader::FrameReader(QObject *parent)
    : QObject(parent)
{
    connect(&m_ffmpeg, &Tool::finished, this, &FrameReader::take);
}

double FrameReader::frameSeconds(const MediaFacts &facts)
{
    constexpr double withoutVideo = 0.1;
    const VideoTrack *video = facts.video();
    return video == nullptr || !video->frameRate.isValid() ? withoutVideo
                                                           : 1 / video->frameRate.value();
}

void FrameReader::request(const QString &path, const MediaFacts &facts, double seconds)
{
    const VideoTrack *video = facts.video();
    if (video == nullptr || !m_folder) {
        return;
    }
    const Picture picture = {path, video->index, facts.container, frameSeconds(facts),
                             qMax(0.0, seconds)};
    m_wanted.reset();
    m_neighbours.clear();
    if (m_isForNeighbour) {
        m_ffmpeg.abandon();
        m_current.reset();
        m_isForNeighbour = false;
    }
    if (!tell(picture)) {
        m_wanted = picture;
        m_wanted->isNearby = true;
    }
    readNext();
}

bool FrameReader::tell(const Picture &picture)
{
    const PictureFile *file = m_pictures.object(picture.key());
    if (file == nullptr) {
        return false;
    }
    Q_EMIT ready(picture.path, picture.seconds, QUrl::fromLocalFile(file->path).toString());
    for (const double step : {picture.frameSeconds, -picture.frameSeconds}) {
        Picture neighbour = picture;
        neighbour.seconds += step;
        if (neighbour.seconds >= 0 && !picture.isNearby) {
            m_neighbours << neighbour;
        }
    }
    return true;
}

void FrameReader::readNext()
{
    if (m_current) {
        return;
    }
    if (m_wanted) {
        const Picture picture = *m_wanted;
        if (picture.isNearby) {
            m_wanted->isNearby = false;
        } else {
            m_wanted.reset();
        }
        read(picture);
    } else if (!m_neighbours.isEmpty()) {
        const Picture picture = m_neighbours.takeFirst();
        if (m_pictures.contains(picture.key())) {
            readNext();
        } else {
            m_isForNeighbour = true;
            read(picture);
        }
    }
}

void FrameReader::read(const Picture &picture)
{
    m_current = picture;
    QStringList arguments = {QStringLiteral("-y"), QStringLiteral("-ss"),
                             QString::number(picture.seconds, 'f', 3)};
    if (picture.isNearby) {
        arguments << QStringLiteral("-noaccurate_seek") << QStringLiteral("-skip_frame")
                  << QStringLiteral("nokey");
    }
    const QString file = m_folder->filePath(QStringLiteral("%1.jpg").arg(++m_fileNumber));
    arguments += inputArguments(picture.path, picture.container);
    // The key frame's time is before the moment: only "passthrough" writes it.
    arguments += {QStringLiteral("-map"),      QStringLiteral("0:%1").arg(picture.track),
                  QStringLiteral("-frames:v"), QStringLiteral("1"),
                  QStringLiteral("-fps_mode"), QStringLiteral("passthrough"),
                  QStringLiteral("-vf"),       QStringLiteral("scale=320:-2:flags=fast_bilinear"),
                  QStringLiteral("-update"),   QStringLiteral("1"),
                  fileArgument(file)};
    m_ffmpeg.start(ffmpegCall(arguments), probeLimits);
}

void FrameReader::take(const Result<ToolRun> &run)
{
    const Picture picture = *std::exchange(m_current, std::nullopt);
    const bool isForNeighbour = std::exchange(m_isForNeighbour, false);
    const QString file = m_folder->filePath(QStringLiteral("%1.jpg").arg(m_fileNumber));
    if (cleanOutput(run) && QFile::exists(file)) {
        m_pictures.insert(picture.key(), new PictureFile{file});
        // A picture nearby is of no use once another moment is wanted.
        const bool isWanted = !m_wanted || m_wanted->seconds == picture.seconds;
        if (!isForNeighbour && isWanted) {
            tell(picture);
        }
    }
    readNext();
}
