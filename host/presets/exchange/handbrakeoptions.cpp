#include "host/presets/exchange/handbrakeoptions.h"

#include "host/presets/exchange/codecwords.h"

#include <QCoreApplication>
#include <QStringList>

#include <algorithm>

namespace {

struct Texts
{
    Q_DECLARE_TR_FUNCTIONS(HandBrake)
};

} // namespace

void takeEncoderOptions(PortablePreset &preset, const QString &options)
{
    const QString bitrate = QStringLiteral("video-bitrate");
    int bufferKbits = 0;
    const QStringList all = options.split(QLatin1Char(':'), Qt::SkipEmptyParts);
    for (const QString &option : all) {
        const QString name = option.section(QLatin1Char('='), 0, 0);
        const QString value = option.section(QLatin1Char('='), 1);
        const QString setting = QStringLiteral("VideoOptionExtra/") + name;
        if (name == QLatin1String("vbv-maxrate") && value.toInt() > 0) {
            preset.values.insert(bitrate, QString::number(value.toInt()));
            preset.keep(setting, value);
        } else if (name == QLatin1String("vbv-bufsize")) {
            bufferKbits = value.toInt();
            preset.keep(setting, value);
        } else if (name == QLatin1String("keyint")) {
            takeKeyFrameInterval(preset, setting, value);
        } else {
            preset.lose(setting, value, Texts::tr("the encoder's own value"));
        }
    }
    const int kbps = preset.values.value(bitrate).toInt();
    if (bufferKbits > 0 && kbps > 0) {
        preset.values.insert(
            QStringLiteral("buffer-seconds"),
            QString::number(std::clamp(double(bufferKbits) / kbps, 0.1, 60.0), 'g', 4));
    }
}
