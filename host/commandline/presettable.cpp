#include "host/commandline/presettable.h"

#include "host/commandline/commandline.h"
#include "host/convert/outputsettings.h"

#include <QLocale>

#include <algorithm>

namespace {

const QLatin1String videoBitrateKey("bitrateMid");

/*! With the thousands apart: "8,000". */
QString grouped(const QString &number)
{
    bool isNumber = false;
    const double value = number.toDouble(&isNumber);
    const QLocale english(QLocale::English);
    return isNumber ? english.toString(value, 'f', QLocale::FloatingPointShortest) : number;
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
    return key == videoBitrateKey ? CommandLine::tr("at most %1").arg(grouped(value)) : value;
}

const QVector<PresetSetting> &presetSettings()
{
    static const QString video = QStringLiteral("video");
    static const QString audio = QStringLiteral("audio");
    static const QString source = CommandLine::tr("source");
    static const QString automatic = CommandLine::tr("auto");
    static const QVector<PresetSetting> settings = {
        {CommandLine::tr("Video"), QStringLiteral("video-encoder"), CommandLine::tr("ENCODER"),
         video, QStringLiteral("encoder"), QStringLiteral("encoders"),
         QStringLiteral("videoEncoder"), source, CommandLine::tr("Video encoder.")},
        {CommandLine::tr("Size"), QStringLiteral("resolution"), CommandLine::tr("WxH"), video,
         QStringLiteral("resolution"), QStringLiteral("resolutions"),
         QStringLiteral("videoResolution"), source,
         CommandLine::tr("Box that the video is scaled to fit.")},
        {CommandLine::tr("Fps"), QStringLiteral("frame-rate"), CommandLine::tr("FPS"), video,
         QStringLiteral("frameRate"), QStringLiteral("frameRates"),
         QStringLiteral("videoFrameRate"), source, CommandLine::tr("Frames per second.")},
        {CommandLine::tr("Video kbps"), QStringLiteral("video-bitrate"), CommandLine::tr("KBPS"),
         video, videoBitrateKey, QStringLiteral("bitrates"), QStringLiteral("videoBitrateMid"),
         automatic, CommandLine::tr("The most that the video may have.")},
        {CommandLine::tr("Audio"), QStringLiteral("audio-encoder"), CommandLine::tr("ENCODER"),
         audio, QStringLiteral("encoder"), QStringLiteral("encoders"),
         QStringLiteral("audioEncoder"), source, CommandLine::tr("Audio encoder.")},
        {CommandLine::tr("Channels"), QStringLiteral("channel"), CommandLine::tr("COUNT"), audio,
         QStringLiteral("channel"), QStringLiteral("channels"), QStringLiteral("audioChannel"),
         source, CommandLine::tr("Number of audio channels.")},
        {CommandLine::tr("Hz"), QStringLiteral("sample-rate"), CommandLine::tr("HZ"), audio,
         QStringLiteral("sampleRate"), QStringLiteral("sampleRates"),
         QStringLiteral("audioSampleRate"), source, CommandLine::tr("Audio sample rate.")},
        {CommandLine::tr("Audio kbps"), QStringLiteral("audio-bitrate"), CommandLine::tr("KBPS"),
         audio, QStringLiteral("bitrate"), QStringLiteral("bitrates"),
         QStringLiteral("audioBitrate"), automatic, CommandLine::tr("Audio bitrate.")},
    };
    return settings;
}

QVector<QStringList> presetTable(const QVector<QVariantMap> &presets)
{
    const QString video = QStringLiteral("video");
    const bool hasVideo =
        std::any_of(presets.begin(), presets.end(),
                    [&video](const QVariantMap &preset) { return preset.contains(video); });
    QVector<PresetSetting> columns = presetSettings();
    if (!hasVideo) {
        columns.erase(std::remove_if(columns.begin(), columns.end(),
                                     [&video](const PresetSetting &setting) {
                                         return setting.group == video;
                                     }),
                      columns.end());
    }

    QStringList heading = {CommandLine::tr("Id"), CommandLine::tr("Title"),
                           CommandLine::tr("File")};
    for (const PresetSetting &setting : columns) {
        heading << setting.label;
    }
    QVector<QStringList> rows = {heading};
    for (const QVariantMap &preset : presets) {
        QStringList row = {preset.value(QStringLiteral("id")).toString(),
                           preset.value(QStringLiteral("title")).toString(),
                           preset.value(QStringLiteral("extension")).toString()};
        for (const PresetSetting &setting : columns) {
            row << (preset.contains(setting.group) ? setting.inWords(setting.value(preset))
                                                   : QStringLiteral("-"));
        }
        rows << row;
    }
    return rows;
}
