#include "host/tools/toolcall.h"

#include <QFileInfo>

namespace {

const QStringList &onlyErrors()
{
    static const QStringList arguments = {QStringLiteral("-hide_banner"), QStringLiteral("-v"),
                                          QStringLiteral("error")};
    return arguments;
}

} // namespace

ToolCall ffmpegCall(const QStringList &arguments)
{
    return {QStringLiteral("ffmpeg"),
            QStringList{QStringLiteral("-nostdin")} + onlyErrors() + arguments};
}

ToolCall ffprobeCall(const QStringList &arguments)
{
    return {QStringLiteral("ffprobe"), onlyErrors() + arguments};
}

QString fileArgument(const QString &path)
{
    return QStringLiteral("file:") + QFileInfo(path).absoluteFilePath();
}
