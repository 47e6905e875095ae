#ifndef FORMATS_MODELS_PRESETFIELDS_H
#define FORMATS_MODELS_PRESETFIELDS_H

#include "formats/models/formatdetailmodeldata.h"

#include <array>
#include <variant>

/*!
 * The one table of a preset's fields: role, role name, place in the preset's variant map, member.
 * The model's roles, both map forms and the file readers all walk it.
 */
namespace PresetFields {

enum class Block {
    None,   //!< in no map
    Preset, //!< in the outer map
    Video,  //!< in the "video" map
    Audio,  //!< in the "audio" map
};

using Text = QString FormatDetailModelData::*;
using Flag = bool FormatDetailModelData::*;
using List = QVariantList FormatDetailModelData::*;
using Map = QVariantMap FormatDetailModelData::*;
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

// In the record's own order. Inline: key() finds a field by its address.
inline constexpr std::array<Field, 29> all{{
    {258, "id", Block::Preset, "id", &FormatDetailModelData::id},
    {257, "extension", Block::Preset, "extension", &FormatDetailModelData::extension},
    {259, "title", Block::Preset, "title", &FormatDetailModelData::title},
    {260, "icon", Block::Preset, "icon", &FormatDetailModelData::icon},
    {noRole, "", Block::Preset, "socialType", &FormatDetailModelData::socialType},
    {261, "userDefine", Block::None, "", &FormatDetailModelData::userDefine},
    {262, "videoEncoder", Block::Video, "encoder", &FormatDetailModelData::videoEncoder},
    {263, "videoEncoders", Block::Video, "encoders", &FormatDetailModelData::videoEncoders},
    {264, "videoFrameRate", Block::Video, "frameRate", &FormatDetailModelData::videoFrameRate},
    {265, "videoFrameRates", Block::Video, "frameRates", &FormatDetailModelData::videoFrameRates},
    {266, "videoResolution", Block::Video, "resolution", &FormatDetailModelData::videoResolution},
    {267, "videoResolutions", Block::Video, "resolutions",
     &FormatDetailModelData::videoResolutions},
    {noRole, "", Block::None, "", &FormatDetailModelData::videoBitrate},
    {268, "videoBitrateLow", Block::Video, "bitrateLow", &FormatDetailModelData::videoBitrateLow},
    {269, "videoBitrateMid", Block::Video, "bitrateMid", &FormatDetailModelData::videoBitrateMid},
    {270, "videoBitrateHigh", Block::Video, "bitrateHigh",
     &FormatDetailModelData::videoBitrateHigh},
    {271, "videoBitrates", Block::Video, "bitrates", &FormatDetailModelData::videoBitrates},
    {272, "audioEncoder", Block::Audio, "encoder", &FormatDetailModelData::audioEncoder},
    {273, "audioEncoders", Block::Audio, "encoders", &FormatDetailModelData::audioEncoders},
    {274, "audioSampleRate", Block::Audio, "sampleRate", &FormatDetailModelData::audioSampleRate},
    {275, "audioSampleRates", Block::Audio, "sampleRates",
     &FormatDetailModelData::audioSampleRates},
    {276, "audioChannel", Block::Audio, "channel", &FormatDetailModelData::audioChannel},
    {277, "audioChannels", Block::Audio, "channels", &FormatDetailModelData::audioChannels},
    {278, "audioBitrate", Block::Audio, "bitrate", &FormatDetailModelData::audioBitrate},
    {279, "audioBitrates", Block::Audio, "bitrates", &FormatDetailModelData::audioBitrates},
    {280, "isLoseless", Block::Audio, "isLoseless", &FormatDetailModelData::isLoseless},
    {281, "supportMultiTrack", Block::Preset, "supportMultiTrack",
     &FormatDetailModelData::supportMultiTrack},
    {noRole, "", Block::Preset, "outPutNode", &FormatDetailModelData::outPutNode},
    {282, "param", Block::Audio, "param", &FormatDetailModelData::param},
}};

constexpr int firstRole = 257;
constexpr int lastRole = 282;

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

/*! The field behind a role; null for any but firstRole to lastRole. */
const Field *ofRole(int role);

/*! The field that a member is. */
const Field &of(const Member &member);

/*! The field's key in its map, as a text that need not be made anew. */
const QString &key(const Field &field);

QVariant read(const FormatDetailModelData &preset, const Member &member);

/*! Stores \a value by the variant's own conversion to the member's type. */
void write(FormatDetailModelData &preset, const Member &member, const QVariant &value);

} // namespace PresetFields

#endif
