#include "host/window/inspector.h"

#include "host/media/mediainput.h"

#include <QFile>
#include <QUrl>

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
    // The first question is being answered: only its id is made one that nobody knows.
    for (int i = m_questions.size() - 1; i >= 0; --i) {
        if (m_questions.at(i).id != id) {
            continue;
        }
        if (i == 0) {
            m_questions[0].id = 0;
        } else {
            m_questions.removeAt(i);
        }
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
    Q_EMIT read(m_questions.head().id, outcome);
    if (outcome.facts.picture() != nullptr || outcome.facts.cover() != nullptr) {
        picture(outcome.facts);
        return;
    }
    m_questions.dequeue();
    askNext();
}

void Inspector::picture(const MediaFacts &facts)
{
    // The very first frames of films are often black.
    const double moment = facts.picture() == nullptr ? 0 : facts.duration / 10;
    const VideoTrack *track = facts.picture() == nullptr ? facts.cover() : facts.picture();
    const Question question = m_questions.head();
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
        [this, file](const ToolOutcome &) {
            const int id = m_questions.dequeue().id;
            if (QFile::exists(file)) {
                Q_EMIT pictured(id, QUrl::fromLocalFile(file).toString());
            }
            askNext();
        },
        this, probeLimits);
}
