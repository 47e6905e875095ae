#include "host/window/inspector.h"

#include "host/media/mediainput.h"

#include <QFile>
#include <QUrl>

#include <algorithm>

Inspector::~Inspector()
{
    // ffmpeg stops before the folder that it writes into is removed.
    delete m_tool;
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
        delete m_tool;
        askNext();
    }
}

void Inspector::askNext()
{
    if (!m_questions.isEmpty()) {
        m_tool = probeMedia(m_questions.head().path, this,
                            [this](const ProbeOutcome &outcome) { take(outcome); });
    }
}

void Inspector::take(const ProbeOutcome &outcome)
{
    const Question question = m_questions.head();
    if (outcome.facts.picture() != nullptr || outcome.facts.cover() != nullptr) {
        picture(question, outcome.facts);
    } else {
        m_questions.dequeue();
        askNext();
    }
    Q_EMIT read(question.id, outcome);
}

void Inspector::picture(const Question &question, const MediaFacts &facts)
{
    // The very first frames of films are often black.
    const double moment = facts.picture() == nullptr ? 0 : facts.duration / 10;
    const VideoTrack *track = facts.picture() == nullptr ? facts.cover() : facts.picture();
    const QString file = m_pictures.filePath(QStringLiteral("%1.png").arg(question.id));
    const QStringList arguments =
        QStringList{QStringLiteral("-nostdin"), QStringLiteral("-v"),
                    QStringLiteral("error"),    QStringLiteral("-y"),
                    QStringLiteral("-ss"),      QString::number(moment, 'f', 3)} +
        inputArguments(question.path, facts.container) +
        QStringList{QStringLiteral("-map"),      QStringLiteral("0:%1").arg(track->index),
                    QStringLiteral("-frames:v"), QStringLiteral("1"),
                    QStringLiteral("-vf"),       QStringLiteral("scale=256:-2"),
                    QStringLiteral("-update"), // else "%d" in the path is a number
                    QStringLiteral("1"),         fileArgument(file)};
    m_tool = new Tool(
        QStringLiteral("ffmpeg"), arguments,
        [this, file](const ToolOutcome &outcome) {
            const int id = m_questions.dequeue().id;
            askNext();
            if (outcome.exitedCleanly && QFile::exists(file)) {
                Q_EMIT pictured(id, QUrl::fromLocalFile(file).toString());
            }
        },
        this, probeLimits);
}
