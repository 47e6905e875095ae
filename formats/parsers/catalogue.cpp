#include "formats/parsers/catalogue_p.h"

#include "formats/models/formatlistmodel.h"

#include <formatcodecapi.h>

using PresetFields::List;
using PresetFields::Text;

namespace {

struct Setting
{
    QString key;     // in the "Param" map
    QString listKey; // in the "Options" map
    Text chosen;
    List offered;
};

// Like QVariantMap::value(), but without copying the variant.
const QVariant &valueOf(const QVariantMap &map, const QString &key)
{
    static const QVariant none;
    const auto value = map.constFind(key);
    return value != map.constEnd() ? *value : none;
}

void readSettings(FormatDetailModelData &preset, const QVariantMap &params,
                  const QVariantMap &options, const std::array<Setting, 4> &settings)
{
    for (const Setting &setting : settings) {
        preset.*setting.chosen = valueOf(params, setting.key).toString();
        preset.*setting.offered = PresetFields::listOf(valueOf(options, setting.listKey));
    }
}

void readLevels(FormatDetailModelData &preset, const QVariantList &levels)
{
    constexpr std::array<Text, 3> highToLow{&FormatDetailModelData::videoBitrateHigh,
                                            &FormatDetailModelData::videoBitrateMid,
                                            &FormatDetailModelData::videoBitrateLow};
    const std::size_t count = std::min(highToLow.size(), std::size_t(levels.size()));
    for (std::size_t i = 0; i < count; ++i) {
        preset.*highToLow[i] = levels.at(int(i)).toString();
    }
}

} // namespace

namespace Catalogue {

QVariantList groups(const QString &category)
{
    return FormatCodecApi::getInstance()->getExportGroupLists(category);
}

QVariantList contents(const QVariantMap &group)
{
    return FormatCodecApi::getInstance()->getExportGroupContents(group);
}

FormatDetailModel *addFormat(FormatListModel &model, const QVariantMap &group, const QString &tag)
{
    FormatListModelData format;
    format.title = group.value(QStringLiteral("name")).toString();
    if (model.formatDetailModel(format.title)) {
        return nullptr;
    }
    format.icon = group.value(QStringLiteral("icon")).toString();
    format.tag = tag;
    model.addModeInfo(format);
    return model.formatDetailModel(format.title);
}

const QVariant &findOrInsertNull(QVariantMap &map, const QString &key)
{
    // Inserting only missing keys keeps a complete map shared with the catalogue.
    const auto value = map.constFind(key);
    return value != map.constEnd() ? *value : *map.insert(key, QVariant());
}

FormatDetailModelData readPreset(QVariantMap &entry, const QString &icon)
{
    static const std::array<Setting, 4> audioSettings{{
        {QStringLiteral("channel"), QStringLiteral("channelList"),
         &FormatDetailModelData::audioChannel, &FormatDetailModelData::audioChannels},
        {QStringLiteral("encoder"), QStringLiteral("encoderList"),
         &FormatDetailModelData::audioEncoder, &FormatDetailModelData::audioEncoders},
        {QStringLiteral("bitrateKbps"), QStringLiteral("bitrateKbpsList"),
         &FormatDetailModelData::audioBitrate, &FormatDetailModelData::audioBitrates},
        {QStringLiteral("sampleRate"), QStringLiteral("sampleRateList"),
         &FormatDetailModelData::audioSampleRate, &FormatDetailModelData::audioSampleRates},
    }};
    FormatDetailModelData preset;
    preset.id = findOrInsertNull(entry, QStringLiteral("id")).toString();
    preset.extension = findOrInsertNull(entry, QStringLiteral("extension")).toString();
    preset.title = findOrInsertNull(entry, QStringLiteral("title")).toString();
    preset.icon = icon;
    readSettings(preset, findOrInsertNull(entry, QStringLiteral("audioParam")).toMap(),
                 findOrInsertNull(entry, QStringLiteral("audioOptions")).toMap(), audioSettings);
    return preset;
}

void readVideo(FormatDetailModelData &preset, QVariantMap &entry)
{
    static const std::array<Setting, 4> videoSettings{{
        {QStringLiteral("encoder"), QStringLiteral("encoderList"),
         &FormatDetailModelData::videoEncoder, &FormatDetailModelData::videoEncoders},
        {QStringLiteral("bitrateKbps"), QStringLiteral("bitrateKbpsList"),
         &FormatDetailModelData::videoBitrate, &FormatDetailModelData::videoBitrates},
        {QStringLiteral("frameRate"), QStringLiteral("frameRateList"),
         &FormatDetailModelData::videoFrameRate, &FormatDetailModelData::videoFrameRates},
        {QStringLiteral("resolution"), QStringLiteral("resolutionList"),
         &FormatDetailModelData::videoResolution, &FormatDetailModelData::videoResolutions},
    }};
    const QVariantMap options = findOrInsertNull(entry, QStringLiteral("videoOptions")).toMap();
    readSettings(preset, findOrInsertNull(entry, QStringLiteral("videoParam")).toMap(), options,
                 videoSettings);
    readLevels(preset, PresetFields::listOf(valueOf(options, QStringLiteral("levelList"))));
}

} // namespace Catalogue
