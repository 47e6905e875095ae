#include "host/convert/tooloptions.h"

#include <QLocale>

QStringList toArguments(const ToolOptions &options, const QString &stream)
{
    const QString suffix = stream.isEmpty() ? QString() : QLatin1Char(':') + stream;
    QStringList arguments;
    for (const ToolOption &option : options) {
        arguments << QLatin1Char('-') + option.name + suffix << option.value;
    }
    return arguments;
}

QString kbpsText(double kbps)
{
    // Never as "1e+06", which ffmpeg reads as something else.
    return QString::number(kbps, 'f', QLocale::FloatingPointShortest) + QLatin1Char('k');
}
