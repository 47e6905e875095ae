#include "host/tools/encoderlist.h"

#include <QDateTime>
#include <QFileInfo>
#include <QHash>
#include <QStandardPaths>

namespace {

/*! The encoders of each ffmpeg, by identityOf(). */
QHash<QString, QSet<QString>> &knownLists()
{
    static QHash<QString, QSet<QString>> lists;
    return lists;
}

/*! Differs for every file, also for one that replaces another; empty if there is no file. */
QString identityOf(const QString &program)
{
    const QFileInfo file(QStandardPaths::findExecutable(program));
    return file.exists() ? QStringLiteral("%1 %2 %3")
                               .arg(file.lastModified().toMSecsSinceEpoch())
                               .arg(file.size())
                               .arg(file.canonicalFilePath())
                         : QString();
}

/*! The running query of each ffmpeg, by identityOf(). */
QHash<QString, QWeakPointer<Tool>> &runningQueries()
{
    static QHash<QString, QWeakPointer<Tool>> queries;
    return queries;
}

/*! Ends with the last one who asked; that may be while it tells them the answer. */
QSharedPointer<Tool> newQuery()
{
    return {new Tool, [](Tool *tool) {
                tool->abandon();
                tool->deleteLater();
            }};
}

/*! Far more than any ffmpeg needs to print a list. */
constexpr ToolLimits listingLimits{1024LL * 1024, 60000};

} // namespace

EncoderList::EncoderList(QObject *parent)
    : QObject(parent)
{
    m_answer.setSingleShot(true);
    connect(&m_answer, &QTimer::timeout, this, [this] {
        if (m_isStopped) {
            Q_EMIT finished(failed({}, Error::Cancelled));
        } else {
            Q_EMIT finished(knownLists().value(m_program));
        }
    });
}

void EncoderList::start()
{
    const ToolCall call = ffmpegCall({QStringLiteral("-encoders")});
    forgetQuery();
    m_answer.stop();
    m_isStopped = false;
    m_program = identityOf(call.program);
    if (knownLists().contains(m_program)) {
        m_answer.start(0);
        return;
    }
    QWeakPointer<Tool> &running = runningQueries()[m_program];
    m_query = running.toStrongRef();
    if (m_query.isNull()) {
        m_query = newQuery();
        running = m_query;
        m_query->start(call, listingLimits);
    }
    connect(m_query.get(), &Tool::finished, this, &EncoderList::take);
}

void EncoderList::stop()
{
    if (!m_query.isNull()) {
        forgetQuery();
        m_answer.start(0);
    }
    m_isStopped = true;
}

void EncoderList::forgetQuery()
{
    if (!m_query.isNull()) {
        m_query->disconnect(this);
        m_query.reset();
    }
}

void EncoderList::take(const Result<ToolRun> &run)
{
    runningQueries().remove(m_program);
    forgetQuery();
    if (!run) {
        Q_EMIT finished(tl::make_unexpected(run.error()));
        return;
    }
    const QSet<QString> encoders = encodersInListing(run->output);
    if (!run->exitedCleanly || encoders.isEmpty()) {
        Q_EMIT finished(failed(tr("%1 doesn't list its encoders (%2); check that \"%1 -encoders\" "
                                  "works, or install another ffmpeg")
                                   .arg(run->program, run->firstError())));
        return;
    }
    knownLists().insert(m_program, encoders);
    Q_EMIT finished(encoders);
}

QSet<QString> encodersInListing(const QByteArray &listing)
{
    QSet<QString> encoders;
    bool inTable = false;
    const QStringList lines = QString::fromLatin1(listing).split(QLatin1Char('\n'));
    for (const QString &line : lines) {
        const QStringList words = line.split(QLatin1Char(' '), Qt::SkipEmptyParts);
        if (inTable && words.size() > 1) {
            encoders.insert(words.at(1));
        }
        inTable = inTable || line.trimmed() == QLatin1String("------");
    }
    return encoders;
}
