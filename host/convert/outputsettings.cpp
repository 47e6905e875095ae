#include "host/convert/outputsettings.h"

#include "host/convert/containers.h"
#include "host/media/sizetext.h"

#include <QRegularExpression>

#include <algorithm>
#include <cmath>
#include <limits>
#include <tuple>

namespace {

QString chosenText(const QVariantMap &map, const QString &key)
{
    const QString text = map.value(key).toString();
    return text == QLatin1String("0") ? QString() : text;
}

// Values that no preset has: they stand for unreadable ones.
constexpr Ratio unreadableRate{-1, 1};
constexpr QSize unreadableSize(0, 0);
constexpr int unreadableCount = -1;
constexpr double unreadableKbps = std::numeric_limits<double>::quiet_NaN();

double numberFromText(const QString &text, double unreadable)
{
    bool isNumber = false;
    const double number = text.toDouble(&isNumber);
    return text.isEmpty() ? 0 : isNumber ? number : unreadable;
}

int countFromText(const QString &text)
{
    constexpr double largest = std::numeric_limits<int>::max();
    const double count = numberFromText(text, unreadableCount);
    const bool isCount = count >= 0 && (count > largest || count == std::floor(count));
    return isCount ? int(std::min(count, largest)) : unreadableCount;
}

Ratio rateFromText(const QString &text)
{
    if (numberFromText(text, unreadableKbps) == 0) {
        return {};
    }
    const Ratio rate = Ratio::fromFrameRate(text);
    return rate.isValid() ? rate : unreadableRate;
}

QSize boxFromText(const QString &text)
{
    return text.isEmpty() ? QSize() : sizeFromText(text).value_or(unreadableSize);
}

/*! A block of the converter's settings, only some of which are fields of the record. */
QVariantMap converterBlock(const QVariantMap &preset, const char *block)
{
    const QVariantMap node = preset.value(QStringLiteral("outPutNode")).toMap();
    return node.value(QLatin1String(block)).toMap();
}

double videoKbpsOf(const QVariantMap &preset)
{
    const QVariant kbps = converterBlock(preset, "videoParam").value(QStringLiteral("bitrateKbps"));
    const QVariantMap video = preset.value(QStringLiteral("video")).toMap();
    return numberFromText(
        (kbps.isValid() ? kbps : video.value(QStringLiteral("bitrateMid"))).toString(),
        unreadableKbps);
}

/*! The position of \a kbps among the bitrates of the high, default and low quality: 1, 0, -1 or in
 *  between. A default of 0 leaves the quality to the encoder. */
double qualityAmong(const QVariantList &levels, double kbps)
{
    const double high = levels.value(0).toDouble();
    const double low = levels.value(2).toDouble();
    const bool areLevels = low > 0 && high > low && kbps > 0;
    if (!areLevels || kbps >= high || kbps <= low) {
        return !areLevels ? 0 : kbps >= high ? 1 : -1;
    }
    const double stated = levels.value(1).toDouble();
    const double usual = stated > low && stated < high ? stated : std::sqrt(high * low);
    return kbps >= usual ? std::log(kbps / usual) / std::log(high / usual)
                         : std::log(kbps / usual) / std::log(usual / low);
}

/*! The settings that the record lacks: device limits and quality. */
void readConverterSettings(OutputSettings &settings, const QVariantMap &preset)
{
    const QVariantMap param = converterBlock(preset, "videoParam");
    const QVariantMap options = converterBlock(preset, "videoOptions");
    const auto ofCodec = [&param, &settings](const char *key) {
        return chosenText(param, settings.videoCodec + QLatin1String(key));
    };
    bool isStated = false;
    const QString quality = param.value(QStringLiteral("quality")).toString();
    const double stated = quality.toDouble(&isStated);
    settings.quality = isStated ? stated
                                : qualityAmong(options.value(QStringLiteral("levelList")).toList(),
                                               settings.videoKbps) +
                                      (quality == QLatin1String("high") ? 1 : 0);
    settings.averagesBitrate =
        chosenText(param, QStringLiteral("rateMode")) == QLatin1String("average");
    // Who states how the picture is to be encoded doesn't want the source's.
    settings.mustEncode = isStated;
    settings.speed = ofCodec("Speed");
    settings.tune = ofCodec("Tune");
    settings.peakKbps =
        numberFromText(chosenText(param, QStringLiteral("peakKbps")), unreadableKbps);
    if (param.contains(QStringLiteral("bufferSeconds"))) {
        settings.bufferSeconds =
            numberFromText(param.value(QStringLiteral("bufferSeconds")).toString(), unreadableKbps);
    }
    settings.keyFrameInterval =
        countFromText(chosenText(param, QStringLiteral("keyFrameInterval")));
    settings.level = ofCodec("Level");
    settings.profile = ofCodec("Profile");
    settings.bitDepth = countFromText(ofCodec("BitDepth"));
    settings.videoTag = ofCodec("Tag");
    settings.keepsVariableRate =
        chosenText(param, QStringLiteral("frameRateMode")) != QLatin1String("constant");
    settings.hasEditLists = chosenText(param, QStringLiteral("editLists")) != QLatin1String("none");
}

/*! Text from a file, made safe for a one-line message. */
QString shortened(QString text)
{
    constexpr int longest = 40;
    if (text.size() > longest) {
        text = text.left(longest) + QStringLiteral("...");
    }
    std::replace_if(
        text.begin(), text.end(), [](QChar letter) { return !letter.isPrint(); }, QLatin1Char('?'));
    return text;
}

/*! Matches names of encoders and codecs. */
bool isName(const QString &text)
{
    static const QRegularExpression form(QStringLiteral("^[A-Za-z0-9._-]{0,64}\\z"));
    return form.match(text).hasMatch();
}

/*! A number in a preset; 0 keeps the source's. */
struct ChosenNumber
{
    const char *field;
    double value;
    double least;
    double most;
    const char *unit;
    QString text = QString::number(value, 'g', 10);

    [[nodiscard]] bool isPossible() const
    {
        return value == 0 || (value >= least && value <= most);
    }
    [[nodiscard]] QString allowed() const
    {
        return QStringLiteral("%1-%2%3").arg(least).arg(most, 0, 'f', 0).arg(QLatin1String(unit));
    }
};

auto valuesOf(const OutputSettings &settings)
{
    return std::tie(settings.extension, settings.hasVideo, settings.videoCodec, settings.frameRate,
                    settings.frameRateMode, settings.keepsVariableRate, settings.box,
                    settings.videoKbps, settings.quality, settings.averagesBitrate,
                    settings.targetBytes, settings.bufferSeconds, settings.peakKbps,
                    settings.keyFrameInterval, settings.level, settings.profile, settings.bitDepth,
                    settings.speed, settings.tune, settings.mustEncode, settings.videoTag,
                    settings.hasEditLists, settings.audioCodec, settings.sampleRate,
                    settings.channels, settings.audioKbps, settings.audioTracks, settings.subtitles,
                    settings.burnedSubtitles, settings.stillSeconds, settings.start, settings.end);
}

} // namespace

OutputSettings OutputSettings::fromPreset(const QVariantMap &preset)
{
    OutputSettings settings;
    settings.extension = preset.value(QStringLiteral("extension")).toString().toLower();

    // A user's audio preset has an empty "videoParam" in its outPutNode: only this key tells.
    settings.hasVideo = preset.contains(QStringLiteral("video"));
    if (settings.hasVideo) {
        const QVariantMap video = preset.value(QStringLiteral("video")).toMap();
        settings.videoCodec = chosenText(video, QStringLiteral("encoder"));
        settings.frameRate = rateFromText(chosenText(video, QStringLiteral("frameRate")));
        settings.box = boxFromText(chosenText(video, QStringLiteral("resolution")));
        settings.videoKbps = videoKbpsOf(preset);
        readConverterSettings(settings, preset);
    }

    const QVariantMap audio = preset.value(QStringLiteral("audio")).toMap();
    settings.audioCodec = chosenText(audio, QStringLiteral("encoder"));
    settings.sampleRate = countFromText(chosenText(audio, QStringLiteral("sampleRate")));
    settings.channels = countFromText(chosenText(audio, QStringLiteral("channel")));
    settings.audioKbps =
        numberFromText(chosenText(audio, QStringLiteral("bitrate")), unreadableKbps);
    return settings;
}

Result<> OutputSettings::validate() const
{
    if (Container::find(extension) == nullptr) {
        return failed(tr("files of the kind \".%1\" can't be written; choose another preset")
                          .arg(shortened(extension)));
    }
    for (const QString &codec : {videoCodec, audioCodec, level, profile, speed, tune, videoTag}) {
        if (!isName(codec)) {
            return failed(tr("no encoder has a name like \"%1\"; choose another preset")
                              .arg(shortened(codec)));
        }
    }
    const double rate = frameRate == Ratio() ? 0 : frameRate.isValid() ? frameRate.value() : -1;
    const int side = !box.isValid() ? 0 : box.isEmpty() ? -1 : std::max(box.width(), box.height());
    const ChosenNumber numbers[] = {
        {"video.frameRate", rate, slowestFrameRate, fastestFrameRate, " fps"},
        {"video.resolution", double(side), 1, 16384, " px", sizeText(box)},
        {"video.bitrate", videoKbps, 1, 1000000, " kbps"},
        {"videoParam.peakKbps", peakKbps, 1, 1000000, " kbps"},
        {"videoParam.bufferSeconds", bufferSeconds, 0.1, 60, " s"},
        {"videoParam.bitDepth", double(bitDepth), 8, 10, ""},
        {"videoParam.keyFrameInterval", double(keyFrameInterval), 1, 999, " frames"},
        {"audio.sampleRate", double(sampleRate), 1000, 768000, " Hz"},
        {"audio.channel", double(channels), 1, 64, ""},
        {"audio.bitrate", audioKbps, 1, 100000, " kbps"},
    };
    for (const ChosenNumber &number : numbers) {
        if (!number.isPossible()) {
            const bool isReadable = number.value > 0;
            return failed(tr("the preset's %1 is %2; it must be 0 or %3; choose another preset")
                              .arg(QLatin1String(number.field),
                                   isReadable ? number.text : tr("not a valid number"),
                                   number.allowed()));
        }
    }
    // A file of 30 years, so that ffmpeg can count its microseconds.
    constexpr double longestSeconds = 1e9;
    const bool isCutPossible = start >= 0 && start <= longestSeconds &&
                               (end == 0 || (end > start && end <= longestSeconds));
    if (!isCutPossible) {
        return failed(tr("the part to keep must begin at 0 or later and end after that; choose "
                         "another part"));
    }
    return {};
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
