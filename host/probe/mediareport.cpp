#include "host/probe/mediareport.h"

#include "host/probe/jsonwriter.h"

extern "C" {
#include <libavcodec/avcodec.h>
#include <libavformat/avformat.h>
#include <libavutil/display.h>
#include <libavutil/mastering_display_metadata.h>
#include <libavutil/pixdesc.h>
}

#include <cmath>
#include <cstdio>
#include <memory>

// Follows ffprobe key by key: what it leaves out as unknown is left out here, too.

namespace {

struct FormatCloser
{
    void operator()(AVFormatContext *format) const { avformat_close_input(&format); }
};
using Format = std::unique_ptr<AVFormatContext, FormatCloser>;

struct DecoderCloser
{
    void operator()(AVCodecContext *decoder) const { avcodec_free_context(&decoder); }
};
using Decoder = std::unique_ptr<AVCodecContext, DecoderCloser>;

/*! Null if ffprobe couldn't open it. */
Format openFormat(const std::string &url, const std::string &demuxers)
{
    AVDictionary *options = nullptr;
    av_dict_set(&options, "protocol_whitelist", "file", 0);
    av_dict_set(&options, "format_whitelist", demuxers.c_str(), 0);
    av_dict_set(&options, "scan_all_pmts", "1", 0);
    AVFormatContext *opened = nullptr;
    const int result = avformat_open_input(&opened, url.c_str(), nullptr, &options);
    av_dict_free(&options);
    Format format(opened);
    const bool isRead = result >= 0 && avformat_find_stream_info(opened, nullptr) >= 0;
    return isRead ? std::move(format) : nullptr;
}

/*! Opening a decoder finds out more of some streams. \a decoder stays null where there is none;
 *  false if ffprobe gives up. */
bool openDecoder(const AVStream &stream, Decoder &decoder)
{
    const AVCodec *codec = avcodec_find_decoder(stream.codecpar->codec_id);
    if (codec == nullptr) {
        return true;
    }
    decoder.reset(avcodec_alloc_context3(codec));
    if (decoder == nullptr || avcodec_parameters_to_context(decoder.get(), stream.codecpar) < 0) {
        return false;
    }
    decoder->pkt_timebase = stream.time_base;
    decoder->thread_count = 1;
    return avcodec_open2(decoder.get(), codec, nullptr) >= 0;
}

void writeKnown(JsonWriter &json, const char *key, const char *text)
{
    if (text != nullptr) {
        json.text(key, text);
    }
}

void writeRatio(JsonWriter &json, const char *key, AVRational ratio, char sign)
{
    json.text(key, std::to_string(ratio.num) + sign + std::to_string(ratio.den));
}

void writeTime(JsonWriter &json, const char *key, int64_t time, AVRational base)
{
    if (time != AV_NOPTS_VALUE) {
        json.text(key, std::to_string(double(time) * av_q2d(base)));
    }
}

void writeTags(JsonWriter &json, const AVDictionary *tags)
{
    if (tags == nullptr) {
        return;
    }
    json.openObject("tags");
    const AVDictionaryEntry *tag = nullptr;
    while ((tag = av_dict_get(tags, "", tag, AV_DICT_IGNORE_SUFFIX)) != nullptr) {
        json.text(tag->key, tag->value);
    }
    json.closeObject();
}

void writeProfile(JsonWriter &json, const AVCodecParameters &codec)
{
    if (const char *name = avcodec_profile_name(codec.codec_id, codec.profile)) {
        json.text("profile", name);
    } else if (codec.profile != FF_PROFILE_UNKNOWN) {
        json.text("profile", std::to_string(codec.profile));
    }
}

const char *fieldOrder(AVFieldOrder order)
{
    switch (order) {
    case AV_FIELD_PROGRESSIVE:
        return "progressive";
    case AV_FIELD_TT:
        return "tt";
    case AV_FIELD_BB:
        return "bb";
    case AV_FIELD_TB:
        return "tb";
    case AV_FIELD_BT:
        return "bt";
    case AV_FIELD_UNKNOWN:
        break;
    }
    return nullptr;
}

void writeColour(JsonWriter &json, const AVCodecParameters &codec)
{
    if (codec.color_range != AVCOL_RANGE_UNSPECIFIED) {
        writeKnown(json, "color_range", av_color_range_name(codec.color_range));
    }
    if (codec.color_space != AVCOL_SPC_UNSPECIFIED) {
        writeKnown(json, "color_space", av_color_space_name(codec.color_space));
    }
    if (codec.color_trc != AVCOL_TRC_UNSPECIFIED) {
        writeKnown(json, "color_transfer", av_color_transfer_name(codec.color_trc));
    }
    if (codec.color_primaries != AVCOL_PRI_UNSPECIFIED) {
        writeKnown(json, "color_primaries", av_color_primaries_name(codec.color_primaries));
    }
}

void writeVideo(JsonWriter &json, AVFormatContext *format, AVStream *stream)
{
    const AVCodecParameters &codec = *stream->codecpar;
    json.number("width", codec.width);
    json.number("height", codec.height);
    const AVRational pixelAspect = av_guess_sample_aspect_ratio(format, stream, nullptr);
    if (pixelAspect.num != 0) {
        writeRatio(json, "sample_aspect_ratio", pixelAspect, ':');
    }
    writeKnown(json, "pix_fmt", av_get_pix_fmt_name(AVPixelFormat(codec.format)));
    json.number("level", codec.level);
    writeColour(json, codec);
    writeKnown(json, "field_order", fieldOrder(codec.field_order));
}

void writeAudio(JsonWriter &json, const AVCodecParameters &codec)
{
    writeKnown(json, "sample_fmt", av_get_sample_fmt_name(AVSampleFormat(codec.format)));
    json.text("sample_rate", std::to_string(codec.sample_rate));
    json.number("channels", codec.ch_layout.nb_channels);
    if (codec.ch_layout.order != AV_CHANNEL_ORDER_UNSPEC) {
        char layout[128] = {};
        av_channel_layout_describe(&codec.ch_layout, layout, sizeof layout);
        json.text("channel_layout", layout);
    }
    json.number("bits_per_sample", av_get_bits_per_sample(codec.codec_id));
}

void writeDisposition(JsonWriter &json, int disposition)
{
    json.openObject("disposition");
    for (int bit = 0; bit < 31; ++bit) {
        if (const char *name = av_disposition_to_string(1 << bit)) {
            json.number(name, (disposition >> bit) & 1);
        }
    }
    json.closeObject();
}

void writeMasteringDisplay(JsonWriter &json, const AVMasteringDisplayMetadata &display)
{
    if (display.has_primaries != 0) {
        const char *const names[3][2] = {
            {"red_x", "red_y"}, {"green_x", "green_y"}, {"blue_x", "blue_y"}};
        for (int colour = 0; colour < 3; ++colour) {
            for (int axis = 0; axis < 2; ++axis) {
                writeRatio(json, names[colour][axis], display.display_primaries[colour][axis], '/');
            }
        }
        writeRatio(json, "white_point_x", display.white_point[0], '/');
        writeRatio(json, "white_point_y", display.white_point[1], '/');
    }
    if (display.has_luminance != 0) {
        writeRatio(json, "min_luminance", display.min_luminance, '/');
        writeRatio(json, "max_luminance", display.max_luminance, '/');
    }
}

void writeSideData(JsonWriter &json, const AVPacketSideData &data)
{
    json.openObject();
    const char *name = av_packet_side_data_name(data.type);
    json.text("side_data_type", name != nullptr ? name : "unknown");
    if (data.type == AV_PKT_DATA_DISPLAYMATRIX && data.size >= 9 * sizeof(int32_t)) {
        const double degrees =
            av_display_rotation_get(reinterpret_cast<const int32_t *>(data.data));
        json.number("rotation", std::isnan(degrees) ? 0 : int(degrees));
    } else if (data.type == AV_PKT_DATA_MASTERING_DISPLAY_METADATA) {
        writeMasteringDisplay(json,
                              *reinterpret_cast<const AVMasteringDisplayMetadata *>(data.data));
    } else if (data.type == AV_PKT_DATA_CONTENT_LIGHT_LEVEL) {
        const auto &light = *reinterpret_cast<const AVContentLightMetadata *>(data.data);
        json.number("max_content", light.MaxCLL);
        json.number("max_average", light.MaxFALL);
    }
    json.closeObject();
}

/*! False if ffprobe gives up. */
bool writeStream(JsonWriter &json, AVFormatContext *format, AVStream *stream)
{
    const AVCodecParameters &codec = *stream->codecpar;
    Decoder decoder;
    if (!openDecoder(*stream, decoder)) {
        return false;
    }
    json.openObject();
    json.number("index", stream->index);
    if (const AVCodecDescriptor *descriptor = avcodec_descriptor_get(codec.codec_id)) {
        json.text("codec_name", descriptor->name);
    }
    writeProfile(json, codec);
    writeKnown(json, "codec_type", av_get_media_type_string(codec.codec_type));
    char tag[AV_FOURCC_MAX_STRING_SIZE] = {};
    json.text("codec_tag_string", av_fourcc_make_string(tag, codec.codec_tag));
    if (codec.codec_type == AVMEDIA_TYPE_VIDEO) {
        writeVideo(json, format, stream);
    } else if (codec.codec_type == AVMEDIA_TYPE_AUDIO) {
        writeAudio(json, codec);
    }
    writeRatio(json, "r_frame_rate", stream->r_frame_rate, '/');
    writeRatio(json, "avg_frame_rate", stream->avg_frame_rate, '/');
    writeTime(json, "start_time", stream->start_time, stream->time_base);
    writeTime(json, "duration", stream->duration, stream->time_base);
    if (codec.bit_rate > 0) {
        json.text("bit_rate", std::to_string(codec.bit_rate));
    }
    if (decoder != nullptr && decoder->bits_per_raw_sample > 0) {
        json.text("bits_per_raw_sample", std::to_string(decoder->bits_per_raw_sample));
    }
    writeDisposition(json, stream->disposition);
    writeTags(json, stream->metadata);
    if (stream->nb_side_data > 0) {
        json.openArray("side_data_list");
        for (int i = 0; i < stream->nb_side_data; ++i) {
            writeSideData(json, stream->side_data[i]);
        }
        json.closeArray();
    }
    json.closeObject();
    return true;
}

void writeFormat(JsonWriter &json, const AVFormatContext &format)
{
    json.openObject("format");
    json.text("format_name", format.iformat->name);
    writeTime(json, "duration", format.duration, AV_TIME_BASE_Q);
    const int64_t size = format.pb != nullptr ? avio_size(format.pb) : -1;
    if (size >= 0) {
        json.text("size", std::to_string(size));
    }
    writeTags(json, format.metadata);
    json.closeObject();
}

} // namespace

std::string mediaReport(const std::string &url, const std::string &demuxers)
{
    const Format format = openFormat(url, demuxers);
    if (format == nullptr) {
        return {};
    }
    JsonWriter json;
    json.openObject();
    json.openArray("streams");
    for (unsigned i = 0; i < format->nb_streams; ++i) {
        if (!writeStream(json, format.get(), format->streams[i])) {
            return {};
        }
    }
    json.closeArray();
    json.openArray("chapters");
    for (unsigned i = 0; i < format->nb_chapters; ++i) {
        json.openObject();
        json.closeObject();
    }
    json.closeArray();
    writeFormat(json, *format);
    json.closeObject();
    return json.json();
}
