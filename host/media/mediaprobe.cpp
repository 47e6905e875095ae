#include "host/media/mediaprobe.h"

#include "host/media/mediainput.h"

#include <QFileInfo>

MediaProbe::MediaProbe(QObject *parent)
    : QObject(parent)
{
    connect(&m_tool, &Tool::finished, this,
            [this](const Result<ToolRun> &run) { Q_EMIT finished(factsFrom(run)); });
}

void MediaProbe::start(const QString &path, const ToolLimits &limits)
{
    m_path = path;
    m_tool.start(
        ffprobeCall(QStringList{QStringLiteral("-print_format"), QStringLiteral("json"),
                                QStringLiteral("-show_format"), QStringLiteral("-show_streams"),
                                QStringLiteral("-show_chapters")} +
                    inputArguments(path, demuxersFor(path))),
        limits);
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
