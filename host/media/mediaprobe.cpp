#include "host/media/mediaprobe.h"

#include "host/media/mediainput.h"

#include <QFileInfo>

MediaProbe::MediaProbe(QObject *parent, ProbeHelpers &helpers)
    : QObject(parent)
    , m_helpers(helpers)
{
    connect(&m_ffprobe, &Tool::finished, this,
            [this](const Result<ToolRun> &run) { Q_EMIT finished(factsFrom(run)); });
}

MediaProbe::~MediaProbe()
{
    abandon();
}

void MediaProbe::start(const QString &path, const ToolLimits &limits)
{
    abandon();
    m_path = path;
    m_limits = limits;
    m_isStopped = false;
    m_helper = m_helpers.take();
    connect(m_helper.get(), &ProbeHelper::answered, this, &MediaProbe::takeAnswer);
    // A helper that hangs leaves ffprobe most of the time.
    m_helper->ask(path, {limits.unreadBytes, limits.milliseconds / 3});
}

void MediaProbe::stop()
{
    if (m_helper != nullptr) {
        m_isStopped = true;
        m_helper->stop();
    }
    m_ffprobe.stop();
}

void MediaProbe::abandon()
{
    if (m_helper != nullptr) {
        m_helper->abandon();
        releaseHelper();
    }
    m_ffprobe.abandon();
}

void MediaProbe::takeAnswer(const QByteArray &json)
{
    const MediaFacts facts = MediaFacts::fromProbe(json);
    const bool isNonsense = facts.isEmpty() && !json.isEmpty();
    if (m_isStopped || isNonsense) {
        m_helper->abandon();
    }
    releaseHelper();
    if (m_isStopped) {
        Q_EMIT finished(failed({}, Error::Cancelled));
    } else if (facts.isEmpty()) {
        askFfprobe();
    } else {
        Q_EMIT finished(facts);
    }
}

void MediaProbe::releaseHelper()
{
    m_helper->disconnect(this);
    m_helpers.giveBack(std::move(m_helper));
}

void MediaProbe::askFfprobe()
{
    m_ffprobe.start(
        ffprobeCall(QStringList{QStringLiteral("-print_format"), QStringLiteral("json"),
                                QStringLiteral("-show_format"), QStringLiteral("-show_streams"),
                                QStringLiteral("-show_chapters")} +
                    inputArguments(m_path, demuxersFor(m_path))),
        {m_limits.unreadBytes, m_limits.milliseconds - m_limits.milliseconds / 3});
}

Result<MediaFacts> MediaProbe::factsFrom(const Result<ToolRun> &run) const
{
    if (!run) {
        return tl::make_unexpected(run.error());
    }
    const QFileInfo file(m_path);
    if (!file.exists()) {
        return failed(tr("no such file; check its name"));
    }
    if (file.isDir()) {
        return failed(tr("this is a folder; name the files in it"));
    }
    if (run->excess == ToolRun::OfTime) {
        return failed(tr("takes too long to read; check the disk or network that it is on"));
    }
    if (run->excess == ToolRun::OfOutput) {
        return failed(tr("describes itself without end; check that it is a complete video or "
                         "audio file"));
    }
    if (!run->exitedCleanly) {
        if (const std::optional<QString> kind = refusedKind(m_path, run->errors)) {
            return failed(*kind);
        }
        QString reason = run->firstError();
        reason.remove(fileArgument(m_path) + QStringLiteral(": "));
        return failed(tr("cannot be read as media (%1); check that it is a complete video or "
                         "audio file")
                          .arg(reason));
    }
    const MediaFacts facts = MediaFacts::fromProbe(run->output);
    if (facts.isEmpty()) {
        return failed(tr("holds neither video nor audio; choose a video or audio file"));
    }
    return facts;
}
