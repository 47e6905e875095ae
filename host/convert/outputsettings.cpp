#include "host/convert/outputsettings.h"

#include <QRegularExpression>

#include <algorithm>
#include <tuple>

namespace {

QString chosenText(const QVariantMap &map, const QString &key)
{
    const QString text = map.value(key).toString();
    return text == QLatin1String("0") ? QString() : text;
}

QSize sizeFromText(const QString &text)
{
    static const QRegularExpression form(QStringLiteral("^(\\d+)x(\\d+)$"));
    const QRegularExpressionMatch match = form.match(text);
    return QSize(match.captured(1).toInt(), match.captured(2).toInt());
}

double videoKbpsOf(const QVariantMap &preset)
{
    const QVariantMap node = preset.value(QStringLiteral("outPutNode")).toMap();
    const QVariant kbps =
        node.value(QStringLiteral("videoParam")).toMap().value(QStringLiteral("bitrateKbps"));
    const QVariantMap video = preset.value(QStringLiteral("video")).toMap();
    return (kbps.isValid() ? kbps : video.value(QStringLiteral("bitrateMid"))).toDouble();
}

auto valuesOf(const OutputSettings &settings)
{
    return std::tie(settings.extension, settings.hasPicture, settings.videoCodec,
                           settings.frameRate, settings.box, settings.videoKbps,
                           settings.audioCodec, settings.sampleRate, settings.channels,
                           settings.audioKbps, settings.allAudioTracks, settings.start,
                           settings.end);
}

} // namespace

OutputSettings OutputSettings::fromPreset(const QVariantMap &preset)
{
    OutputSettings settings;
    settings.extension = preset.value(QStringLiteral("extension")).toString().toLower();
    settings.allAudioTracks = preset.value(QStringLiteral("supportMultiTrack")).toBool();

    // A user's audio preset has a hollow "videoParam" in its outPutNode: only this key tells.
    settings.hasPicture = preset.contains(QStringLiteral("video"));
    if (settings.hasPicture) {
        const QVariantMap video = preset.value(QStringLiteral("video")).toMap();
        settings.videoCodec = chosenText(video, QStringLiteral("encoder"));
        settings.frameRate = Ratio::fromFrameRate(chosenText(video, QStringLiteral("frameRate")));
        settings.box = sizeFromText(chosenText(video, QStringLiteral("resolution")));
        settings.videoKbps = videoKbpsOf(preset);
    }

    const QVariantMap audio = preset.value(QStringLiteral("audio")).toMap();
    settings.audioCodec = chosenText(audio, QStringLiteral("encoder"));
    settings.sampleRate = audio.value(QStringLiteral("sampleRate")).toInt();
    settings.channels = audio.value(QStringLiteral("channel")).toInt();
    settings.audioKbps = audio.value(QStringLiteral("bitrate")).toDouble();
    return settings;
}

bool OutputSettings::operator==(const OutputSettings &other) const
{
    return valuesOf(*this) == valuesOf(other);
}

double OutputSettings::cutDuration(double duration) const
{
    const double last = end > 0 && (duration <= 0 || end < duration) ? end : duration;
    return std::max(0.0, last - start);
}
