#include "host/presets/exchange/handbrakeleftovers.h"

#include <QCoreApplication>
#include <QHash>
#include <QJsonArray>
#include <QJsonDocument>

#include <algorithm>

namespace {

struct Texts
{
    Q_DECLARE_TR_FUNCTIONS(HandBrakeLeftovers)
};

struct Leftover
{
    const char *key;
    const char *unset; //!< the values, apart by "|", that ask for nothing
    Finding::Verdict verdict;
    const char *text;
};

constexpr Leftover leftovers[] = {
    {"AlignAVStart", "false", Finding::Approximated,
     QT_TRANSLATE_NOOP("HandBrakeLeftovers", "the source's delays are kept")},
    {"ChapterMarkers", "false", Finding::Kept, ""},
    {"InlineParameterSets", "false", Finding::Lost,
     QT_TRANSLATE_NOOP("HandBrakeLeftovers", "parameters stand only at the file's start")},
    {"MetadataPassthrough", "true", Finding::Lost,
     QT_TRANSLATE_NOOP("HandBrakeLeftovers", "the source's tags are kept")},
    {"Mp4HttpOptimize", "false", Finding::Kept, ""},
    {"Mp4iPodCompatible", "false", Finding::Lost,
     QT_TRANSLATE_NOOP("HandBrakeLeftovers", "the file isn't marked for the first iPods")},
    {"PictureAllowUpscaling", "false", Finding::Lost,
     QT_TRANSLATE_NOOP("HandBrakeLeftovers", "small pictures stay small")},
    {"PictureChromaSmoothPreset", "off|", Finding::Lost,
     QT_TRANSLATE_NOOP("HandBrakeLeftovers", "colours aren't smoothed")},
    {"PictureColorspacePreset", "off|", Finding::Lost,
     QT_TRANSLATE_NOOP("HandBrakeLeftovers", "the source's colours are kept")},
    {"PictureDeblockPreset", "off|", Finding::Lost,
     QT_TRANSLATE_NOOP("HandBrakeLeftovers", "blocks aren't smoothed")},
    {"PictureDeinterlaceFilter", "off|", Finding::Approximated,
     QT_TRANSLATE_NOOP("HandBrakeLeftovers",
                       "sources that say they are interlaced are deinterlaced")},
    {"PictureDenoiseFilter", "off|", Finding::Lost,
     QT_TRANSLATE_NOOP("HandBrakeLeftovers", "noise isn't removed")},
    {"PictureDetelecine", "off|", Finding::Lost,
     QT_TRANSLATE_NOOP("HandBrakeLeftovers", "telecine isn't undone")},
    {"PictureItuPAR", "false", Finding::Lost,
     QT_TRANSLATE_NOOP("HandBrakeLeftovers", "the source's pixel shape is used")},
    {"PictureKeepRatio", "true", Finding::Lost,
     QT_TRANSLATE_NOOP("HandBrakeLeftovers", "the picture isn't distorted")},
    {"PicturePAR", "off|custom", Finding::Approximated,
     QT_TRANSLATE_NOOP("HandBrakeLeftovers", "square pixels in a picture of the same shape")},
    {"PicturePadMode", "none|", Finding::Lost,
     QT_TRANSLATE_NOOP("HandBrakeLeftovers", "no borders are added")},
    {"PictureRotate", "angle=0:hflip=0||disable=1", Finding::Lost,
     QT_TRANSLATE_NOOP("HandBrakeLeftovers", "the picture isn't turned")},
    {"PictureSharpenFilter", "off|", Finding::Lost,
     QT_TRANSLATE_NOOP("HandBrakeLeftovers", "the picture isn't sharpened")},
    {"PictureForceHeight", "0", Finding::Lost,
     QT_TRANSLATE_NOOP("HandBrakeLeftovers", "the height follows from the picture's shape")},
    {"PictureForceWidth", "0", Finding::Lost,
     QT_TRANSLATE_NOOP("HandBrakeLeftovers", "the width follows from the picture's shape")},
    {"SubtitleAddCC", "false", Finding::Lost,
     QT_TRANSLATE_NOOP("HandBrakeLeftovers", "closed captions aren't taken")},
    {"SubtitleAddForeignAudioSearch", "false", Finding::Lost,
     QT_TRANSLATE_NOOP("HandBrakeLeftovers", "\"convert --burn-subtitles\" chooses a track")},
    {"SubtitleAddForeignAudioSubtitle", "false", Finding::Lost,
     QT_TRANSLATE_NOOP("HandBrakeLeftovers", "\"convert --subtitles\" chooses tracks")},
    {"SubtitleTrackSelectionBehavior", "", Finding::Approximated,
     QT_TRANSLATE_NOOP("HandBrakeLeftovers",
                       "all that the format holds; \"convert --subtitles\" chooses")},
    {"VideoColorMatrixCodeOverride", "0", Finding::Lost,
     QT_TRANSLATE_NOOP("HandBrakeLeftovers", "the source's colours are kept")},
    {"VideoGrayScale", "false", Finding::Lost,
     QT_TRANSLATE_NOOP("HandBrakeLeftovers", "the picture stays in colour")},
    {"x264Option", "", Finding::Lost,
     QT_TRANSLATE_NOOP("HandBrakeLeftovers", "the encoder's own values")},
    // Crops are counted in the source's pixels.
    {"PictureTopCrop", "0", Finding::Lost,
     QT_TRANSLATE_NOOP("HandBrakeLeftovers", "nothing is cut off")},
    {"PictureBottomCrop", "0", Finding::Lost,
     QT_TRANSLATE_NOOP("HandBrakeLeftovers", "nothing is cut off")},
    {"PictureLeftCrop", "0", Finding::Lost,
     QT_TRANSLATE_NOOP("HandBrakeLeftovers", "nothing is cut off")},
    {"PictureRightCrop", "0", Finding::Lost,
     QT_TRANSLATE_NOOP("HandBrakeLeftovers", "nothing is cut off")},
    {"PictureCropMode", "2|3", Finding::Lost,
     QT_TRANSLATE_NOOP("HandBrakeLeftovers", "black borders stay")},
};

/*! Settings that are read elsewhere, belong to one that is reported, or change no result. */
const char *const silent[] = {
    "AudioCopyMask",
    "AudioEncoderFallback",
    "AudioLanguageList",
    "AudioList",
    "AudioSecondaryEncoderMode",
    "AudioTrackSelectionBehavior",
    "ChildrenArray",
    "Default",
    "FileFormat",
    "Folder",
    "FolderOpen",
    "PictureAutoCrop",
    "PictureChromaSmoothCustom",
    "PictureChromaSmoothTune",
    "PictureColorspaceCustom",
    "PictureCombDetectCustom",
    "PictureCombDetectPreset",
    "PictureDARWidth",
    "PictureDeblockCustom",
    "PictureDeblockTune",
    "PictureDeinterlaceCustom",
    "PictureDeinterlacePreset",
    "PictureDenoiseCustom",
    "PictureDenoisePreset",
    "PictureDenoiseTune",
    "PictureDetelecineCustom",
    "PictureHeight",
    "PictureModulus",
    "PicturePARHeight",
    "PicturePARWidth",
    "PicturePadBottom",
    "PicturePadColor",
    "PicturePadLeft",
    "PicturePadRight",
    "PicturePadTop",
    "PictureSharpenCustom",
    "PictureSharpenPreset",
    "PictureSharpenTune",
    "PictureUseMaximumSize",
    "PictureWidth",
    "PresetDescription",
    "PresetDisabled",
    "PresetName",
    "SubtitleBurnBDSub",
    "SubtitleBurnBehavior",
    "SubtitleBurnDVDSub",
    "SubtitleLanguageList",
    "Type",
    "UsesPictureFilters",
    "VideoAvgBitrate",
    "VideoEncoder",
    "VideoFramerate",
    "VideoFramerateMode",
    "VideoHWDecode",
    "VideoLevel",
    "VideoOptionExtra",
    "VideoPreset",
    "VideoProfile",
    "VideoQSVDecode",
    "VideoQualitySlider",
    "VideoQualityType",
    "VideoScaler",
    "VideoTune",
    "VideoTurboTwoPass",
    "VideoTwoPass",
    "x264UseAdvancedOptions",
};

QString textOf(const QJsonValue &value)
{
    if (value.isArray() || value.isObject()) {
        return QString::fromUtf8(
            value.isArray() ? QJsonDocument(value.toArray()).toJson(QJsonDocument::Compact)
                            : QJsonDocument(value.toObject()).toJson(QJsonDocument::Compact));
    }
    return value.toVariant().toString();
}

} // namespace

void addLeftovers(PortablePreset &preset, const QJsonObject &handBrake)
{
    for (auto setting = handBrake.begin(); setting != handBrake.end(); ++setting) {
        const QString key = setting.key();
        const QString value = textOf(*setting);
        const auto isIt = [&key](const char *name) { return key == QLatin1String(name); };
        const auto *row = std::find_if(std::begin(leftovers), std::end(leftovers),
                                       [&isIt](const Leftover &each) { return isIt(each.key); });
        if (row == std::end(leftovers)) {
            if (std::none_of(std::begin(silent), std::end(silent), isIt)) {
                preset.lose(key, value, Texts::tr("isn't known"));
            }
            continue;
        }
        const QStringList unset = QString::fromLatin1(row->unset).split(QLatin1Char('|'));
        if (!unset.contains(value)) {
            preset.findings.append({key, value, row->verdict, Texts::tr(row->text)});
        }
    }
}
