#include "host/convert/tooloptions.h"

#include <QLocale>

#include <algorithm>

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

void addParameters(ToolOptions &options, const QString &name, const QStringList &parameters)
{
    if (parameters.isEmpty()) {
        return;
    }
    const auto own = std::find_if(options.begin(), options.end(),
                                  [&name](const ToolOption &each) { return each.name == name; });
    const QString text = parameters.join(QLatin1Char(':'));
    if (own == options.end()) {
        options.append({name, text});
    } else {
        own->value += QLatin1Char(':') + text;
    }
}
