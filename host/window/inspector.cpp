#include "host/window/inspector.h"

#include "host/media/mediainput.h"

#include <QFile>
#include <QUrl>

#include <algorithm>

Inspector::Inspector(QObject *parent)
    : QObject(parent)
{
    connect(&m_probe, &MediaProbe::finished, this, &Inspector::take);
    connect(&m_ffmpeg, &Tool::finished, this, &Inspector::takePicture);
}

void Inspector::inspect(int id, const QString &path)
{
    m_questions.enqueue({id, path});
    if (m_questions.size() == 1) {
        askNext();
    }
}

void Inspector::forget(int id)
{
    const auto found = std::find_if(m_questions.begin(), m_questions.end(),
                                    [id](const Question &question) { return question.id == id; });
    if (found == m_questions.end()) {
        return;
    }
    const bool isAsked = found == m_questions.begin();
    m_questions.erase(found);
    if (isAsked) {
        // A tool that hangs mustn't keep the other files waiting.
        m_probe.abandon();
        m_ffmpeg.abandon();
        askNext();
    }
}

void Inspector::askNext()
{
    if (!m_questions.isEmpty()) {
        m_probe.start(m_questions.head().path);
    }
}

void Inspector::take(const Result<MediaFacts> &facts)
{
    const Question question = m_questions.head();
    if (m_pictures && facts && (facts->video() != nullptr || facts->cover() != nullptr)) {
        picture(question, *facts);
    } else {
        m_questions.dequeue();
        askNext();
    }
    Q_EMIT read(question.id, facts);
}

void Inspector::picture(const Question &question, const MediaFacts &facts)
{
    // The very first frames of films are often black.
    const double moment = facts.video() == nullptr ? 0 : facts.duration / 10;
    const VideoTrack *track = facts.video() == nullptr ? facts.cover() : facts.video();
    m_ffmpeg.start(
        ffmpegCall(QStringList{QStringLiteral("-y"), QStringLiteral("-ss"),
                               QString::number(moment, 'f', 3)} +
                   inputArguments(question.path, facts.container) +
                   QStringList{QStringLiteral("-map"), QStringLiteral("0:%1").arg(track->index),
                               QStringLiteral("-frames:v"), QStringLiteral("1"),
                               QStringLiteral("-vf"), QStringLiteral("scale=256:-2"),
                               QStringLiteral("-update"), // else "%d" in the path is a number
                               QStringLiteral("1"), fileArgument(pictureFile(question.id))}),
        probeLimits);
}

void Inspector::takePicture(const Result<ToolRun> &run)
{
    const int id = m_questions.dequeue().id;
    askNext();
    if (cleanOutput(run) && QFile::exists(pictureFile(id))) {
        Q_EMIT pictured(id, QUrl::fromLocalFile(pictureFile(id)).toString());
    }
}

QString Inspector::pictureFile(int id) const
{
    return m_pictures->filePath(QStringLiteral("%1.png").arg(id));
}
