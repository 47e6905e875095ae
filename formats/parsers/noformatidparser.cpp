#include "formats/parsers/noformatidparser.h"

#include "formats/models/formatlistmodel.h"
#include "formats/parsers/catalogue_p.h"
#include "formats/parsers/presetfile_p.h"

#include <QDebug>

namespace {

using Preset = FormatDetailModelData;
using PresetFields::List;
using PresetFields::Text;

FormatDetailModelData readCataloguePreset(QVariantMap entry, const QString &icon)
{
    FormatDetailModelData preset = Catalogue::readPreset(entry, icon);
    Catalogue::readVideo(preset, entry);
    return preset;
}

// "chosen:offered,offered"
struct PackedSetting
{
    QString key;
    Text chosen;
    List offered;
};

void unpack(FormatDetailModelData &preset, const QVariantMap &block,
            std::initializer_list<PackedSetting> settings)
{
    for (const PackedSetting &setting : settings) {
        const QStringList parts = block.value(setting.key).toString().split(QLatin1Char(':'));
        preset.*setting.chosen = parts.first();
        preset.*setting.offered =
            parts.size() < 2 ? QVariantList() : PresetFile::split(parts.at(1), QLatin1Char(','));
    }
}

// "high:mid:low:offered", "high and mid:low:offered" or "all three:offered"
void unpackVideoBitrates(FormatDetailModelData &preset, const QString &packed)
{
    const QStringList parts = packed.split(QLatin1Char(':'));
    const int levels = std::min(int(parts.size()) - 1, 3);
    if (levels < 1) {
        return;
    }
    preset.videoBitrateHigh = parts.at(0);
    preset.videoBitrateMid = parts.at(levels == 3 ? 1 : 0);
    preset.videoBitrateLow = parts.at(levels - 1);
    preset.videoBitrates = PresetFile::split(parts.at(levels), QLatin1Char(','));
}

void unpackVideo(FormatDetailModelData &preset, const QVariantMap &video)
{
    if (video.isEmpty()) {
        return;
    }
    unpack(preset, video,
           {{QStringLiteral("encoders"), &Preset::videoEncoder, &Preset::videoEncoders},
            {QStringLiteral("frameRates"), &Preset::videoFrameRate, &Preset::videoFrameRates},
            {QStringLiteral("resolutions"), &Preset::videoResolution, &Preset::videoResolutions}});
    unpackVideoBitrates(preset, video.value(QStringLiteral("bitrates")).toString());
}

void unpackAudio(FormatDetailModelData &preset, const QVariantMap &audio)
{
    if (audio.isEmpty()) {
        return;
    }
    unpack(preset, audio,
           {{QStringLiteral("encoders"), &Preset::audioEncoder, &Preset::audioEncoders},
            {QStringLiteral("sampleRates"), &Preset::audioSampleRate, &Preset::audioSampleRates},
            {QStringLiteral("channels"), &Preset::audioChannel, &Preset::audioChannels}});
}

void unpackAudioBitrates(FormatDetailModelData &preset, const QVariantMap &audio)
{
    if (!audio.isEmpty()) {
        unpack(preset, audio,
               {{QStringLiteral("bitrates"), &Preset::audioBitrate, &Preset::audioBitrates}});
    }
}

// A lossless entry packs "bitrate:offered" and becomes one preset; a lossy one packs
// "high:mid:low:offered,offered" and becomes three.
void addAudioPresets(FormatDetailModel &presets, FormatDetailModelData preset,
                     const QString &packedBitrates)
{
    const QStringList parts = packedBitrates.split(QLatin1Char(':'));
    if (preset.isLoseless && parts.size() == 2) {
        preset.audioBitrate = parts.at(0);
        preset.audioBitrates.append(parts.at(1));
        presets.addModeInfo(preset);
    } else if (!preset.isLoseless && parts.size() == 4) {
        const QString titles[] = {QStringLiteral("high"), QStringLiteral("mid"),
                                  QStringLiteral("low")};
        preset.audioBitrates = PresetFile::split(parts.at(3), QLatin1Char(','));
        for (int level = 0; level < 3; ++level) {
            preset.title = titles[level];
            preset.audioBitrate = parts.at(level);
            presets.addModeInfo(preset);
        }
    }
}

} // namespace

NoFormatIdParser::NoFormatIdParser(QObject *parent)
    : QObject(parent)
{}

bool NoFormatIdParser::parseVideo(const QString &path, FormatListModel *model, bool flag)
{
    if (!model || path.isEmpty()) {
        return false;
    }
    const QJsonArray formats =
        PresetFile::read("parseVideo", "-->open formats file failed, path=", path);
    PresetFile::importFormats(
        formats, *model, &PresetFile::addFormat,
        [flag](FormatDetailModel &presets, const QVariantMap &entry) {
            // Entries in the current form have no empty key and are all skipped.
            if (entry.value(QString()).toMap().isEmpty()) {
                return;
            }
            FormatDetailModelData preset;
            preset.userDefine = flag;
            PresetFile::readMembers(preset, entry,
                                    {&Preset::extension, &Preset::title, &Preset::icon,
                                     &Preset::socialType, &Preset::isLoseless});
            unpackVideo(preset, entry.value(QStringLiteral("video")).toMap());
            const QVariantMap audio = entry.value(QStringLiteral("audio")).toMap();
            unpackAudio(preset, audio);
            unpackAudioBitrates(preset, audio);
            presets.addModeInfo(preset);
        });
    return !formats.isEmpty();
}

bool NoFormatIdParser::parseAudio(const QString &path, FormatListModel *model, bool flag)
{
    if (!model || path.isEmpty()) {
        return false;
    }
    const QJsonArray formats =
        PresetFile::read("parseAudio", "open formats file failed, path=", path);
    PresetFile::importFormats(
        formats, *model, &PresetFile::findOrAddFormat,
        [flag](FormatDetailModel &presets, const QVariantMap &entry) {
            FormatDetailModelData preset;
            preset.userDefine = flag;
            PresetFile::readMembers(preset, entry,
                                    {&Preset::title, &Preset::extension, &Preset::icon,
                                     &Preset::param, &Preset::socialType, &Preset::isLoseless});
            const QVariantMap audio = entry.value(QStringLiteral("audio")).toMap();
            unpackAudio(preset, audio);
            addAudioPresets(presets, preset, audio.value(QStringLiteral("bitrates")).toString());
        });
    return !formats.isEmpty();
}

bool NoFormatIdParser::parseDevice(const QString &path, FormatListModel *model, bool /*flag*/)
{
    return parseVideo(path, model, false);
}

bool NoFormatIdParser::parseRecently(const QString & /*path*/, FormatDetailModel * /*model*/,
                                     bool /*flag*/)
{
    return true;
}

bool NoFormatIdParser::parseVideoNew(const QString &category, FormatListModel *model)
{
    if (!model) {
        return false;
    }
    const QVariantList groups = Catalogue::groups(category);
    for (const QVariant &element : groups) {
        const QVariantMap group = element.toMap();
        FormatDetailModel *presets = Catalogue::addFormat(*model, group, QStringLiteral("video"));
        if (!presets) {
            continue;
        }
        qDebug() << "parseVideoNew" << presets;
        const QString icon = group.value(QStringLiteral("icon")).toString();
        const QVariantList contents = Catalogue::contents(group);
        for (const QVariant &entry : contents) {
            presets->addModeInfo(readCataloguePreset(entry.toMap(), icon));
        }
    }
    return true;
}
