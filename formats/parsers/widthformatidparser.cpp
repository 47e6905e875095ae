#include "formats/parsers/widthformatidparser.h"

#include "formats/models/formatlistmodel.h"
#include "formats/parsers/catalogue_p.h"
#include "formats/parsers/presetfile_p.h"

#include <optional>

namespace {

using Preset = FormatDetailModelData;

bool isExcluded(const QVariantMap &group)
{
    static const QVariantList names{QStringLiteral("腾讯视频"), QStringLiteral("爱奇艺"),
                                    QStringLiteral("优酷")};
    return names.contains(group.value(QStringLiteral("name")));
}

FormatDetailModelData readCataloguePreset(QVariantMap entry, const QString &icon)
{
    const bool isVideo = entry.contains(QStringLiteral("videoParam"));
    FormatDetailModelData preset = Catalogue::readPreset(entry, icon);
    if (isVideo) {
        Catalogue::readVideo(preset, entry);
    }
    preset.outPutNode = entry;
    return preset;
}

// "high:mid:low:" and the offered bitrates joined by ","
void readVideoBitrates(FormatDetailModelData &preset, const QString &packed)
{
    const QStringList parts = packed.split(QLatin1Char(':'));
    if (parts.size() >= 4) {
        preset.videoBitrateHigh = parts.at(0);
        preset.videoBitrateMid = parts.at(1);
        preset.videoBitrateLow = parts.at(2);
        preset.videoBitrates = PresetFile::split(parts.at(3), QLatin1Char(','));
    }
}

void readVideo(FormatDetailModelData &preset, const QVariantMap &video)
{
    if (!video.isEmpty()) {
        PresetFile::readMembers(preset, video,
                                {&Preset::videoEncoder, &Preset::videoEncoders,
                                 &Preset::videoFrameRate, &Preset::videoFrameRates,
                                 &Preset::videoResolution, &Preset::videoResolutions});
        readVideoBitrates(preset, video.value(QStringLiteral("bitrates")).toString());
    }
}

void readAudio(FormatDetailModelData &preset, const QVariantMap &audio)
{
    if (!audio.isEmpty()) {
        PresetFile::readMembers(preset, audio,
                                {&Preset::audioEncoder, &Preset::audioEncoders,
                                 &Preset::audioSampleRate, &Preset::audioSampleRates,
                                 &Preset::audioChannel, &Preset::audioChannels,
                                 &Preset::audioBitrate, &Preset::audioBitrates});
    }
}

// A preset from the user's files; none for an entry without converter settings.
std::optional<FormatDetailModelData> readUserPreset(const QVariantMap &entry, bool userDefine)
{
    const QVariantMap outPutNode = entry.value(QStringLiteral("outPutNode")).toMap();
    if (outPutNode.isEmpty()) {
        return std::nullopt;
    }
    FormatDetailModelData preset;
    preset.userDefine = userDefine;
    // toVarMap() puts "isLoseless" and "param" into "audio", where they are not read: both are
    // lost.
    PresetFile::readMembers(preset, entry,
                            {&Preset::id, &Preset::extension, &Preset::title, &Preset::icon,
                             &Preset::socialType, &Preset::isLoseless});
    readVideo(preset, entry.value(QStringLiteral("video")).toMap());
    readAudio(preset, entry.value(QStringLiteral("audio")).toMap());
    preset.outPutNode = outPutNode;
    return preset;
}

} // namespace

WidthFormatIdParser::WidthFormatIdParser(QObject *parent)
    : QObject(parent)
{}

bool WidthFormatIdParser::parseVideo(const QString &path, FormatListModel *model, bool flag)
{
    if (!model || path.isEmpty()) {
        return false;
    }
    const QJsonArray formats =
        PresetFile::read("parseVideo", "-->open formats file failed, path=", path);
    PresetFile::importFormats(formats, *model, &PresetFile::findOrAddFormat,
                              [flag](FormatDetailModel &presets, const QVariantMap &entry) {
                                  if (auto preset = readUserPreset(entry, flag)) {
                                      PresetFile::readMembers(*preset, entry,
                                                              {&Preset::supportMultiTrack});
                                      presets.addModeInfo(*std::move(preset));
                                  }
                              });
    return !formats.isEmpty();
}

bool WidthFormatIdParser::parseAudio(const QString &path, FormatListModel *model, bool flag)
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
                                    {&Preset::id, &Preset::extension, &Preset::icon, &Preset::param,
                                     &Preset::socialType, &Preset::isLoseless, &Preset::title});
            readAudio(preset, entry.value(QStringLiteral("audio")).toMap());
            presets.addModeInfo(preset);
        });
    return !formats.isEmpty();
}

bool WidthFormatIdParser::parseDevice(const QString &path, FormatListModel *model, bool /*flag*/)
{
    return parseVideo(path, model, false);
}

bool WidthFormatIdParser::parseRecently(const QString &path, FormatDetailModel *model, bool flag)
{
    if (!model || path.isEmpty()) {
        return false;
    }
    const QJsonArray entries =
        PresetFile::read("parseRecently", "open formats file failed, path=", path);
    PresetFile::importPresets(entries, [model, flag](const QVariantMap &entry) {
        if (auto preset = readUserPreset(entry, flag)) {
            model->addModeInfo(*std::move(preset));
        }
    });
    return !entries.isEmpty();
}

bool WidthFormatIdParser::parseVideoNew(const QString &category, FormatListModel *model)
{
    if (!model) {
        return false;
    }
    const QVariantList groups = Catalogue::groups(category);
    for (const QVariant &element : groups) {
        const QVariantMap group = element.toMap();
        if (isExcluded(group)) {
            continue;
        }
        FormatDetailModel *presets = Catalogue::addFormat(*model, group, category.toLower());
        if (!presets) {
            continue;
        }
        const QString icon = group.value(QStringLiteral("icon")).toString();
        const QVariantList contents = Catalogue::contents(group);
        for (const QVariant &entry : contents) {
            presets->addModeInfo(readCataloguePreset(entry.toMap(), icon));
        }
    }
    return true;
}
