#include "host/convert/ratecontrol.h"

#include <algorithm>
#include <cmath>

namespace {

void set(ToolOptions &options, const QString &name, const QString &value)
{
    const auto same = std::find_if(options.begin(), options.end(),
                                   [&name](const ToolOption &each) { return each.name == name; });
    if (same == options.end()) {
        options.append({name, value});
    } else {
        same->value = value;
    }
}

void setKbps(ToolOptions &options, const char *name, double kbps)
{
    set(options, QLatin1String(name), kbpsText(std::round(kbps)));
}

QString qualityText(const VideoCodec::Quality &quality, double asked)
{
    const double wanted = quality.usual + asked * quality.step;
    const double best =
        quality.step < 0 ? std::max(wanted, quality.finest) : std::min(wanted, quality.finest);
    return QString::number(std::round(best * 2) / 2);
}

/*! The most that a second may hold beyond the bitrate. */
double bufferKbits(const OutputSettings &settings)
{
    const double usual = settings.videoKbps * settings.bufferSeconds;
    const double room = settings.peakKbps - settings.videoKbps;
    return settings.peakKbps > 0 ? std::clamp(room, usual / 4, usual) : usual;
}

void setBuffer(ToolOptions &options, const OutputSettings &settings)
{
    setKbps(options, "maxrate", settings.videoKbps);
    setKbps(options, "bufsize", bufferKbits(settings));
}

/*! What a picture of that size needs to look good, for an encoder that can't tell by looking. */
double sufficientKbps(const EncodedPicture &picture, double quality)
{
    constexpr double usualBitsPerPixel = 0.15;
    const double pixels = double(picture.size.width()) * picture.size.height();
    const double rate = picture.frameRate.isValid() ? picture.frameRate.value() : 30;
    return usualBitsPerPixel * std::pow(1.5, quality) * pixels * rate / 1000;
}

void setAverage(ToolOptions &options, VideoCodec::Ceiling ceiling, const OutputSettings &settings)
{
    setKbps(options, "b", settings.videoKbps);
    // Without a buffer these encoders write noise with far more than they are asked for.
    const bool overshoots =
        settings.targetBytes > 0 && ceiling == VideoCodec::Ceiling::LeastQuantiser;
    if ((settings.peakKbps > 0 || overshoots) && ceiling != VideoCodec::Ceiling::Capped &&
        ceiling != VideoCodec::Ceiling::BitsPerPixel) {
        setBuffer(options, settings);
    }
}

void setCeiling(ToolOptions &options, const VideoCodec::Encoder &encoder,
                const OutputSettings &settings, const EncodedPicture &picture)
{
    using Ceiling = VideoCodec::Ceiling;
    const QString quality = qualityText(encoder.quality, settings.quality);
    switch (encoder.ceiling) {
    case Ceiling::BitsPerPixel: {
        const double enough = sufficientKbps(picture, settings.quality);
        setKbps(options, "b",
                enough > 0 ? std::min(enough, settings.videoKbps) : settings.videoKbps);
        return;
    }
    case Ceiling::LeastQuantiser:
        setKbps(options, "b", settings.videoKbps);
        set(options, QStringLiteral("qmin"), QString::number(std::round(quality.toDouble())));
        break;
    case Ceiling::Targeted:
        set(options, encoder.quality.option, quality);
        setKbps(options, "b", settings.videoKbps);
        break;
    case Ceiling::Capped:
    case Ceiling::Buffered:
        set(options, encoder.quality.option, quality);
        break;
    }
    setBuffer(options, settings);
}

} // namespace

ToolOptions rateOptions(const VideoCodec &codec, const VideoCodec::Encoder &encoder,
                        const OutputSettings &settings, const EncodedPicture &picture)
{
    ToolOptions options = encoder.options;
    if (settings.videoKbps > 0 && codec.takesBitrate) {
        if (settings.averagesBitrate || encoder.quality.option.isEmpty()) {
            setAverage(options, encoder.ceiling, settings);
        } else {
            setCeiling(options, encoder, settings, picture);
        }
    } else if (!encoder.quality.option.isEmpty()) {
        set(options, encoder.quality.option, qualityText(encoder.quality, settings.quality));
        options += encoder.unlimited;
    }
    if (!settings.level.isEmpty() && !encoder.level.name.isEmpty()) {
        set(options, encoder.level.name, encoder.level.value.arg(settings.level));
    }
    const bool hasSpeeds =
        std::any_of(encoder.options.begin(), encoder.options.end(),
                    [](const ToolOption &each) { return each.name == QLatin1String("preset"); });
    if (!settings.speed.isEmpty() && hasSpeeds) {
        set(options, QStringLiteral("preset"), settings.speed);
    }
    if (settings.keyFrameInterval > 0) {
        set(options, QStringLiteral("g"), QString::number(settings.keyFrameInterval));
    }
    if (!settings.tune.isEmpty()) {
        set(options, QStringLiteral("tune"), settings.tune);
    }
    if (!settings.profile.isEmpty()) {
        set(options, QStringLiteral("profile"), settings.profile);
    }
    return options;
}
