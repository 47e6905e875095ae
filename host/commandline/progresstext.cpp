#include "host/commandline/progresstext.h"

#include "host/commandline/commandline.h"
#include "host/media/clocktext.h"

QString progressText(const Progress &progress)
{
    const int percent = progress.percent();
    QStringList parts;
    parts << (percent < 0 ? CommandLine::tr("%1 done").arg(clockText(progress.done))
                          : CommandLine::tr("%1%").arg(percent));
    if (progress.speed > 0) {
        parts << CommandLine::tr("%1x").arg(
            QString::number(progress.speed, 'f', progress.speed < 10 ? 1 : 0));
    }
    if (progress.timeLeft() >= 0) {
        parts << CommandLine::tr("%1 left").arg(clockText(progress.timeLeft()));
    }
    return parts.join(QStringLiteral(", "));
}

QString progressBar(const Progress &progress)
{
    constexpr int cells = 20;
    if (progress.percent() < 0) {
        return {};
    }
    const int full = progress.percent() * cells / 100;
    return QLatin1Char('[') + QString(full, QLatin1Char('#')) +
           QString(cells - full, QLatin1Char('-')) + QLatin1Char(']');
}
