#include "host/presets/presetsettings.h"

#include "host/convert/outputsettings.h"

#include <QLocale>
#include <QRegularExpression>

#include <algorithm>

namespace {

const QLatin1String videoBitrateKey("bitrateMid");
const QLatin1String paramBlock("videoParam");

/*! With the thousands apart: "8,000". */
QString grouped(const QString &number)
{
    bool isNumber = false;
    const double value = number.toDouble(&isNumber);
    const QLocale english(QLocale::English);
    return isNumber ? english.toString(value, 'f', QLocale::FloatingPointShortest) : number;
}

QVariantMap videoParamOf(const QVariantMap &preset)
{
    return preset.value(QStringLiteral("outPutNode")).toMap().value(paramBlock).toMap();
}

} // namespace

QString PresetSetting::value(const QVariantMap &preset) const
{
    if (key == videoBitrateKey) {
        return QString::number(OutputSettings::fromPreset(preset).videoKbps);
    }
    return preset.value(group).toMap().value(key).toString();
}

QStringList PresetSetting::choices(const QVariantMap &preset) const
{
    QStringList texts = preset.value(group).toMap().value(listKey).toStringList();
    texts.removeAll(QString());
    return texts;
}

QString PresetSetting::inWords(const QString &value) const
{
    if (value.isEmpty() || value == QLatin1String("0")) {
        return zeroWord;
    }
    return key == videoBitrateKey ? PresetSetting::tr("at most %1").arg(grouped(value)) : value;
}

const QVector<PresetSetting> &presetSettings()
{
    static const QString video = QStringLiteral("video");
    static const QString audio = QStringLiteral("audio");
    static const QString source = PresetSetting::tr("source");
    static const QString automatic = PresetSetting::tr("auto");
    static const QVector<PresetSetting> settings = {
        {PresetSetting::tr("Video"), QStringLiteral("video-encoder"), PresetSetting::tr("ENCODER"),
         video, QStringLiteral("encoder"), QStringLiteral("encoders"),
         QStringLiteral("videoEncoder"), source, PresetSetting::tr("Video encoder.")},
        {PresetSetting::tr("Size"), QStringLiteral("resolution"), PresetSetting::tr("WxH"), video,
         QStringLiteral("resolution"), QStringLiteral("resolutions"),
         QStringLiteral("videoResolution"), source,
         PresetSetting::tr("Box that the video is scaled to fit.")},
        {PresetSetting::tr("Fps"), QStringLiteral("frame-rate"), PresetSetting::tr("FPS"), video,
         QStringLiteral("frameRate"), QStringLiteral("frameRates"),
         QStringLiteral("videoFrameRate"), source, PresetSetting::tr("Frames per second.")},
        {PresetSetting::tr("Video kbps"), QStringLiteral("video-bitrate"),
         PresetSetting::tr("KBPS"), video, videoBitrateKey, QStringLiteral("bitrates"),
         QStringLiteral("videoBitrateMid"), automatic,
         PresetSetting::tr("The most that the video may have.")},
        {PresetSetting::tr("Audio"), QStringLiteral("audio-encoder"), PresetSetting::tr("ENCODER"),
         audio, QStringLiteral("encoder"), QStringLiteral("encoders"),
         QStringLiteral("audioEncoder"), source, PresetSetting::tr("Audio encoder.")},
        {PresetSetting::tr("Channels"), QStringLiteral("channel"), PresetSetting::tr("COUNT"),
         audio, QStringLiteral("channel"), QStringLiteral("channels"),
         QStringLiteral("audioChannel"), source, PresetSetting::tr("Number of audio channels.")},
        {PresetSetting::tr("Hz"), QStringLiteral("sample-rate"), PresetSetting::tr("HZ"), audio,
         QStringLiteral("sampleRate"), QStringLiteral("sampleRates"),
         QStringLiteral("audioSampleRate"), source, PresetSetting::tr("Audio sample rate.")},
        {PresetSetting::tr("Audio kbps"), QStringLiteral("audio-bitrate"),
         PresetSetting::tr("KBPS"), audio, QStringLiteral("bitrate"), QStringLiteral("bitrates"),
         QStringLiteral("audioBitrate"), automatic, PresetSetting::tr("Audio bitrate.")},
    };
    return settings;
}

bool PresetDetail::accepts(const QString &value) const
{
    if (!pattern.isEmpty()) {
        const QRegularExpression whole(QRegularExpression::anchoredPattern(pattern));
        if (whole.match(value).hasMatch()) {
            return true;
        }
    }
    bool isNumber = false;
    const double number = value.toDouble(&isNumber);
    return most > least && isNumber && number >= least && number <= most;
}

const QVector<PresetDetail> &presetDetails()
{
    const auto text = [](const char *name, const char *key, const char *pattern) {
        return PresetDetail{QLatin1String(name), QLatin1String(key), QLatin1String(pattern)};
    };
    static const char level[] = "[1-6](\\.[1-3])?";
    static const char depth[] = "8|10";
    static const char speed[] = "ultrafast|superfast|veryfast|faster|fast|medium|slow|slower|"
                                "veryslow|placebo";
    static const QVector<PresetDetail> details = {
        {QStringLiteral("quality"), QStringLiteral("quality"), QStringLiteral("high"), -8, 8},
        text("rate-mode", "rateMode", "average"),
        {QStringLiteral("peak-bitrate"), QStringLiteral("peakKbps"), QString(), 1, 1000000},
        {QStringLiteral("buffer-seconds"), QStringLiteral("bufferSeconds"), QString(), 0.1, 60},
        text("key-frame-interval", "keyFrameInterval", "[1-9][0-9]{0,2}"),
        text("h264-level", "h264Level", level),
        text("h264-profile", "h264Profile", "baseline|main|high"),
        text("h264-bit-depth", "h264BitDepth", depth),
        text("h264-speed", "h264Speed", speed),
        text("h264-tune", "h264Tune", "film|animation|grain|stillimage|fastdecode|zerolatency"),
        text("hevc-level", "hevcLevel", level),
        text("hevc-bit-depth", "hevcBitDepth", depth),
        text("hevc-speed", "hevcSpeed", speed),
        text("hevc-tune", "hevcTune", "animation|grain|fastdecode|zerolatency"),
        text("vp9-bit-depth", "vp9BitDepth", depth),
        text("av1-speed", "av1Speed", "[0-9]|1[0-3]"),
        text("mpeg4-tag", "mpeg4Tag", "[A-Z0-9]{4}"),
        text("frame-rate-mode", "frameRateMode", "variable|constant"),
        text("edit-lists", "editLists", "none"),
    };
    return details;
}

PresetValues valuesOf(const QVariantMap &preset)
{
    PresetValues values;
    for (const PresetSetting &setting : presetSettings()) {
        if (preset.contains(setting.group)) {
            const QString value = setting.value(preset);
            values.insert(setting.option, value.isEmpty() ? QStringLiteral("0") : value);
        }
    }
    const QVariantMap param =
        preset.contains(QStringLiteral("video")) ? videoParamOf(preset) : QVariantMap();
    for (const PresetDetail &detail : presetDetails()) {
        if (param.contains(detail.key)) {
            values.insert(detail.name, param.value(detail.key).toString());
        }
    }
    return values;
}

QVariantMap withValues(QVariantMap preset, const PresetValues &values)
{
    for (const PresetSetting &setting : presetSettings()) {
        if (preset.contains(setting.group)) {
            QVariantMap group = preset.value(setting.group).toMap();
            group.insert(setting.key, values.value(setting.option));
            preset.insert(setting.group, group);
        }
    }
    if (!preset.contains(QStringLiteral("video"))) {
        return preset;
    }
    QVariantMap param = videoParamOf(preset);
    for (const PresetDetail &detail : presetDetails()) {
        param.remove(detail.key);
        if (values.contains(detail.name)) {
            param.insert(detail.key, values.value(detail.name));
        }
    }
    param.insert(QStringLiteral("bitrateKbps"), values.value(QStringLiteral("video-bitrate")));
    QVariantMap node = preset.value(QStringLiteral("outPutNode")).toMap();
    node.insert(paramBlock, param);
    preset.insert(QStringLiteral("outPutNode"), node);
    return preset;
}

QStringList valueNames()
{
    QStringList names;
    for (const PresetSetting &setting : presetSettings()) {
        names << setting.option;
    }
    for (const PresetDetail &detail : presetDetails()) {
        names << detail.name;
    }
    return names;
}

QString valueInWords(const QString &name, const QString &value)
{
    for (const PresetSetting &setting : presetSettings()) {
        if (setting.option == name) {
            return setting.inWords(value);
        }
    }
    return value.isEmpty() ? QStringLiteral("-") : value;
}
