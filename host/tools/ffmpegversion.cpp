#include "host/tools/ffmpegversion.h"

#include "host/tools/tool.h"

#include <QEventLoop>

Result<QString> ffmpegVersion()
{
    Result<QByteArray> output;
    Tool tool;
    QEventLoop loop;
    QObject::connect(&tool, &Tool::finished, &loop, [&](const Result<ToolRun> &run) {
        output = cleanOutput(run);
        loop.quit();
    });
    ToolLimits limits;
    limits.milliseconds = 5000;
    tool.start({QStringLiteral("ffmpeg"), {QStringLiteral("-version")}}, limits);
    loop.exec();
    // "ffmpeg version 5.1.6 Copyright ..."
    return output.map([](const QByteArray &text) {
        return QString::fromUtf8(text.left(text.indexOf('\n'))).section(QLatin1Char(' '), 2, 2);
    });
}
