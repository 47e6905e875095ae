#ifndef FORMATS_MODELS_PRESETFIELDS_P_H
#define FORMATS_MODELS_PRESETFIELDS_P_H

#include "formats/models/formatdetailmodel.h"

#include <array>
#include <variant>

/*!
 * The single table of a preset's fields: role, role name, place in the preset's variant map,
 * member. Roles, both map forms and the file readers are driven by it.
 */
namespace PresetFields {

enum class Block {
    None,   //!< not in any map
    Preset, //!< in the outer map
    Video,  //!< in the "video" map
    Audio,  //!< in the "audio" map
};

using Model = FormatDetailModel;
using Preset = FormatDetailModelData;

using Text = QString Preset::*;
using Flag = bool Preset::*;
using List = QVariantList Preset::*;
using Map = QVariantMap Preset::*;
using Member = std::variant<Text, Flag, List, Map>;

constexpr int noRole = 0;

struct Field
{
    int role;
    const char *roleName;
    Block block;
    const char *key;
    Member member;
};

// In the order of the record. Inline, as key() finds a field by its address.
inline constexpr std::array<Field, 29> all{{
    {Model::IdRole, "id", Block::Preset, "id", &Preset::id},
    {Model::ExtensionRole, "extension", Block::Preset, "extension", &Preset::extension},
    {Model::TitleRole, "title", Block::Preset, "title", &Preset::title},
    {Model::IconRole, "icon", Block::Preset, "icon", &Preset::icon},
    {noRole, "", Block::Preset, "socialType", &Preset::socialType},
    {Model::UserDefineRole, "userDefine", Block::None, "", &Preset::userDefine},
    {Model::VideoEncoderRole, "videoEncoder", Block::Video, "encoder", &Preset::videoEncoder},
    {Model::VideoEncodersRole, "videoEncoders", Block::Video, "encoders", &Preset::videoEncoders},
    {Model::VideoFrameRateRole, "videoFrameRate", Block::Video, "frameRate",
     &Preset::videoFrameRate},
    {Model::VideoFrameRatesRole, "videoFrameRates", Block::Video, "frameRates",
     &Preset::videoFrameRates},
    {Model::VideoResolutionRole, "videoResolution", Block::Video, "resolution",
     &Preset::videoResolution},
    {Model::VideoResolutionsRole, "videoResolutions", Block::Video, "resolutions",
     &Preset::videoResolutions},
    {noRole, "", Block::None, "", &Preset::videoBitrate},
    {Model::VideoBitrateLowRole, "videoBitrateLow", Block::Video, "bitrateLow",
     &Preset::videoBitrateLow},
    {Model::VideoBitrateMidRole, "videoBitrateMid", Block::Video, "bitrateMid",
     &Preset::videoBitrateMid},
    {Model::VideoBitrateHighRole, "videoBitrateHigh", Block::Video, "bitrateHigh",
     &Preset::videoBitrateHigh},
    {Model::VideoBitratesRole, "videoBitrates", Block::Video, "bitrates", &Preset::videoBitrates},
    {Model::AudioEncoderRole, "audioEncoder", Block::Audio, "encoder", &Preset::audioEncoder},
    {Model::AudioEncodersRole, "audioEncoders", Block::Audio, "encoders", &Preset::audioEncoders},
    {Model::AudioSampleRateRole, "audioSampleRate", Block::Audio, "sampleRate",
     &Preset::audioSampleRate},
    {Model::AudioSampleRatesRole, "audioSampleRates", Block::Audio, "sampleRates",
     &Preset::audioSampleRates},
    {Model::AudioChannelRole, "audioChannel", Block::Audio, "channel", &Preset::audioChannel},
    {Model::AudioChannelsRole, "audioChannels", Block::Audio, "channels", &Preset::audioChannels},
    {Model::AudioBitrateRole, "audioBitrate", Block::Audio, "bitrate", &Preset::audioBitrate},
    {Model::AudioBitratesRole, "audioBitrates", Block::Audio, "bitrates", &Preset::audioBitrates},
    {Model::IsLoselessRole, "isLoseless", Block::Audio, "isLoseless", &Preset::isLoseless},
    {Model::SupportMultiTrackRole, "supportMultiTrack", Block::Preset, "supportMultiTrack",
     &Preset::supportMultiTrack},
    {noRole, "", Block::Preset, "outPutNode", &Preset::outPutNode},
    {Model::ParamRole, "param", Block::Audio, "param", &Preset::param},
}};

constexpr int firstRole = Model::ExtensionRole;
constexpr int lastRole = Model::ParamRole;

constexpr bool everyRoleHasOneField()
{
    for (int role = firstRole; role <= lastRole; ++role) {
        int fields = 0;
        for (const Field &field : all) {
            fields += field.role == role ? 1 : 0;
        }
        if (fields != 1) {
            return false;
        }
    }
    return true;
}
static_assert(everyRoleHasOneField());

/*! The field of a role; null outside firstRole to lastRole. */
[[nodiscard]] const Field *ofRole(int role);

/*! The field of a member. */
[[nodiscard]] const Field &of(const Member &member);

/*! The field's key in its map; the string is created only once. */
[[nodiscard]] const QString &key(const Field &field);

[[nodiscard]] QVariant read(const Preset &preset, const Member &member);

/*! The elements of a list; none for anything else, a text included. */
[[nodiscard]] QVariantList listOf(const QVariant &value);

/*! Stores \a value, converted by QVariant to the member's type. */
void write(Preset &preset, const Member &member, const QVariant &value);

} // namespace PresetFields

#endif
