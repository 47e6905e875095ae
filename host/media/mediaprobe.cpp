#include "host/media/mediaprobe.h"

#include "host/media/mediainput.h"

#include <QCoreApplication>
#include <QFileInfo>

namespace {

struct Texts
{
    Q_DECLARE_TR_FUNCTIONS(MediaProbe)
};

ProbeOutcome readOutcome(const ToolOutcome &tool, const QString &path)
{
    if (!tool.started) {
        return {{}, tool.notStartedText()};
    }
    const QFileInfo file(path);
    if (!file.exists()) {
        return {{}, Texts::tr("no such file; check its name")};
    }
    if (file.isDir()) {
        return {{}, Texts::tr("this is a folder; name the files in it")};
    }
    if (tool.excess != ToolOutcome::None) {
        return {{},
                tool.excess == ToolOutcome::OfTime
                    ? Texts::tr("takes too long to read; check the disk or network that it is on")
                    : Texts::tr("describes itself without end; check that it is a complete video "
                                "or audio file")};
    }
    const QString otherKind = tool.exitedCleanly ? QString() : refusedKind(path, tool.errors);
    if (!otherKind.isEmpty()) {
        return {{}, otherKind};
    }
    const MediaFacts facts = MediaFacts::fromProbe(tool.output);
    if (!tool.exitedCleanly) {
        QString reason = tool.firstError();
        reason.remove(fileArgument(path) + QStringLiteral(": "));
        return {{},
                Texts::tr("cannot be read as media (%1); check that it is a complete video or "
                          "audio file")
                    .arg(reason)};
    }
    if (facts.isEmpty()) {
        return {{}, Texts::tr("holds neither video nor audio; choose a video or audio file")};
    }
    return {facts, {}};
}

} // namespace

Tool *probeMedia(const QString &path, QObject *parent,
                 const std::function<void(const ProbeOutcome &)> &done, const ToolLimits &limits)
{
    const QStringList arguments = QStringList{QStringLiteral("-v"),
                                              QStringLiteral("error"),
                                              QStringLiteral("-print_format"),
                                              QStringLiteral("json"),
                                              QStringLiteral("-show_format"),
                                              QStringLiteral("-show_streams")} +
                                  inputArguments(path, demuxersFor(path));
    return new Tool(
        QStringLiteral("ffprobe"), arguments,
        [path, done](const ToolOutcome &tool) { done(readOutcome(tool, path)); }, parent, limits);
}
