#include "host/convert/containers.h"

#include "host/convert/textlist.h"

namespace {

const char faststart[] = "movflags=+faststart";
const char mp4Video[] = "h264 hevc av1 vp9 mpeg4 mpeg2video mpeg1video mjpeg";
const char mp4Audio[] = "aac mp3 ac3 eac3 alac opus mp2";
const char asfVideo[] = "wmv2 wmv1 msmpeg4v3 msmpeg4v2 mpeg4 h264";
const char asfAudio[] = "wmav2 wmav1 mp3 pcm_s16le";
const char programVideo[] = "mpeg2video mpeg1video";
const char programAudio[] = "mp2 ac3 mp3";
const char transportVideo[] = "h264 hevc mpeg2video mpeg1video";
const char transportAudio[] = "aac ac3 eac3 mp2 mp3 opus";
const char phoneVideo[] = "h264 mpeg4 h263";
const char phoneAudio[] = "aac amr_nb amr_wb";
const char flashSampleRates[] = "11025 22050 44100 48000";
const char wavAudio[] = "pcm_s16le pcm_s24le pcm_s32le pcm_f32le pcm_u8 pcm_alaw pcm_mulaw";
const char oggAudio[] = "vorbis opus flac speex";
const char mkvVideo[] = "h264 hevc av1 vp9 vp8 mpeg4 mpeg2video mpeg1video theora mjpeg wmv1 wmv2 "
                        "msmpeg4v3 msmpeg4v2 flv1 prores dnxhd dvvideo ffv1";
const char mkvAudio[] = "aac mp3 ac3 eac3 opus vorbis flac alac mp2 dts truehd pcm_s16le pcm_s24le "
                        "pcm_s32le pcm_f32le pcm_s16be tta wavpack wmav1 wmav2";

constexpr int mp4Traits =
    Container::SeveralAudioTracks | Container::KeepsRotation | Container::TagsHevcAsHvc1;

// clang-format off
const Container containers[] = {
    // extensions, muxer, demuxer, options, video codecs, audio codecs, traits, sample rates,
    // channels
    {"mp4", "mp4", "mp4", faststart, mp4Video, mp4Audio, mp4Traits},
    {"m4v", "mp4", "mp4", faststart, "h264 hevc mpeg4", "aac ac3 eac3 alac", mp4Traits},
    {"mov", "mov", "mov", faststart, "h264 hevc mpeg4 prores dnxhd mjpeg dvvideo mpeg2video",
        "aac alac ac3 eac3 mp3 mp2 pcm_s16le pcm_s24le pcm_s32le pcm_f32le pcm_s16be pcm_s24be",
        mp4Traits},
    {"mkv", "matroska", "matroska", "", mkvVideo, mkvAudio, Container::SeveralAudioTracks},
    {"avi", "avi", "avi", "", "mpeg4 h264 msmpeg4v3 msmpeg4v2 mjpeg dvvideo mpeg2video mpeg1video",
        "mp3 ac3 mp2 pcm_s16le aac", Container::SeveralAudioTracks},
    {"webm", "webm", "webm", "", "vp9 vp8 av1", "opus vorbis", Container::SeveralAudioTracks},
    {"wmv asf", "asf", "asf", "", asfVideo, asfAudio, Container::SeveralAudioTracks},
    {"mpg mpeg", "mpeg", "mpeg", "", programVideo, programAudio, Container::SeveralAudioTracks},
    {"vob", "vob", "mpeg", "", programVideo, "ac3 mp2", Container::SeveralAudioTracks},
    {"ts", "mpegts", "mpegts", "", transportVideo, transportAudio, Container::SeveralAudioTracks},
    {"m2ts mts", "mpegts", "mpegts", "mpegts_m2ts_mode=1", transportVideo, transportAudio,
        Container::SeveralAudioTracks},
    {"flv", "flv", "flv", "", "h264 flv1", "aac mp3", Container::None, flashSampleRates},
    {"f4v", "f4v", "mov", faststart, "h264", "aac mp3", Container::None},
    {"3gp", "3gp", "3gp", faststart, phoneVideo, phoneAudio, Container::KeepsRotation},
    {"3g2", "3g2", "3g2", faststart, phoneVideo, phoneAudio, Container::KeepsRotation},
    {"ogv", "ogv", "ogg", "", "theora vp8", oggAudio, Container::SeveralAudioTracks},
    {"mxf", "mxf", "mxf", "", "mpeg2video dnxhd h264 prores dvvideo", "pcm_s16le pcm_s24le",
        Container::SeveralAudioTracks, "48000"},
    {"dv", "dv", "dv", "", "dvvideo", "pcm_s16le", Container::SoundInEachFrame, "48000", 2},
    {"gif", "gif", "gif", "", "gif", "", Container::None},

    {"mp3", "mp3", "mp3", "", "", "mp3", Container::TakesCover},
    {"aac", "adts", "aac", "", "", "aac", Container::None},
    {"m4a m4b m4r", "ipod", "m4a", faststart, "", "aac alac", Container::TakesCover},
    {"flac", "flac", "flac", "", "", "flac", Container::TakesCover},
    {"wav", "wav", "wav", "", "", wavAudio, Container::None},
    {"aiff aif", "aiff", "aiff", "", "", "pcm_s16be pcm_s24be pcm_s32be pcm_s16le",
        Container::None},
    {"au", "au", "au", "", "", "pcm_s16be pcm_s24be pcm_s32be pcm_mulaw pcm_alaw", Container::None},
    {"caf", "caf", "caf", "", "", "pcm_s16le pcm_s24le pcm_s16be alac aac opus flac",
        Container::None},
    {"ogg", "ogg", "ogg", "", "", oggAudio, Container::None},
    {"oga", "oga", "ogg", "", "", oggAudio, Container::None},
    {"opus", "opus", "ogg", "", "", "opus", Container::None},
    {"spx", "spx", "ogg", "", "", "speex", Container::None},
    {"ac3", "ac3", "ac3", "", "", "ac3", Container::None},
    {"eac3", "eac3", "eac3", "", "", "eac3", Container::None},
    {"mp2", "mp2", "mp3", "", "", "mp2", Container::None},
    {"wma", "asf", "asf", "", "", asfAudio, Container::None},
    {"mka", "matroska", "matroska", "", "", mkvAudio, Container::SeveralAudioTracks},
    {"amr", "amr", "amr", "", "", "amr_nb amr_wb", Container::None},
    {"tta", "tta", "tta", "", "", "tta", Container::None},
    {"wv", "wv", "wv", "", "", "wavpack", Container::None},
};
// clang-format on

} // namespace

const Container *Container::find(const QString &extension)
{
    const QString wanted = extension.toLower();
    for (const Container &container : containers) {
        if (words(container.extensions).contains(wanted)) {
            return &container;
        }
    }
    return nullptr;
}
