#include "host/media/probetracks.h"

#include "host/media/mediafacts.h"

#include <QJsonArray>

#include <algorithm>
#include <cmath>

namespace {

// A file can claim anything. Values beyond these limits count as unknown.
constexpr int largestSide = 65536;                // pixels
constexpr double mostStretchedPixel = 100;        // one side to the other
constexpr double fastestRate = 1000;              // fps
constexpr int fastestSampling = 10 * 1000 * 1000; // Hz
constexpr int mostChannels = 512;
constexpr int mostBits = 64;
constexpr double mostKbps = 1e8;

/*! \a number if it is between 0 and \a most, else 0. */
template <typename Number>
Number plausible(Number number, Number most)
{
    return number >= 0 && number <= most ? number : 0;
}

/*! The value of \a key; empty for ffprobe's words for unknown. */
QString knownText(const QJsonObject &object, QLatin1String key)
{
    const QString value = probeText(object, key);
    const bool saysNothing = value == QLatin1String("unknown") || value == QLatin1String("und") ||
                             value == QLatin1String("reserved");
    return saysNothing ? QString() : value;
}

int number(const QJsonObject &object, QLatin1String key)
{
    return probeText(object, key).toInt();
}

bool hasDisposition(const QJsonObject &stream, QLatin1String name)
{
    return stream.value(QLatin1String("disposition")).toObject().value(name).toInt() == 1;
}

QString tag(const QJsonObject &stream, QLatin1String name)
{
    return knownText(stream.value(QLatin1String("tags")).toObject(), name);
}

QString pixelFormatOf(const QJsonObject &stream)
{
    const QString format = knownText(stream, QLatin1String("pix_fmt"));
    // The alpha of VP8 and VP9 is a picture of its own that the usual decoders leave out.
    const bool hasAlphaBeside = tag(stream, QLatin1String("alpha_mode")) == QLatin1String("1") ||
                                tag(stream, QLatin1String("ALPHA_MODE")) == QLatin1String("1");
    return hasAlphaBeside && format == QLatin1String("yuv420p") ? QStringLiteral("yuva420p")
                                                                : format;
}

void readTrack(const QJsonObject &stream, Track &track)
{
    track.index = std::max(0, number(stream, QLatin1String("index")));
    track.codec = probeText(stream, QLatin1String("codec_name"));
    track.codecTag = probeText(stream, QLatin1String("codec_tag_string"));
    track.profile = knownText(stream, QLatin1String("profile"));
    track.language = tag(stream, QLatin1String("language"));
    track.title = tag(stream, QLatin1String("title"));
    track.isDefault = hasDisposition(stream, QLatin1String("default"));
    track.start = plausibleSeconds(probeText(stream, QLatin1String("start_time")).toDouble());
    track.duration = plausibleSeconds(probeText(stream, QLatin1String("duration")).toDouble());
    track.kbps =
        plausible(probeText(stream, QLatin1String("bit_rate")).toDouble() / 1000, mostKbps);
}

int quarterTurn(double degrees)
{
    if (!(std::abs(degrees) <= 360)) {
        return 0;
    }
    const int turn = int(std::lround(degrees / 90.0)) * 90 % 360;
    return turn < 0 ? turn + 360 : turn;
}

int rotationOf(const QJsonObject &stream)
{
    const QJsonArray sideData = stream.value(QLatin1String("side_data_list")).toArray();
    for (const QJsonValue &entry : sideData) {
        const QJsonValue rotation = entry.toObject().value(QLatin1String("rotation"));
        if (rotation.isDouble()) {
            return quarterTurn(-rotation.toDouble());
        }
    }
    const QJsonObject tags = stream.value(QLatin1String("tags")).toObject();
    return quarterTurn(probeText(tags, QLatin1String("rotate")).toDouble());
}

QSize sizeOf(const QJsonObject &stream)
{
    const QSize size(plausible(number(stream, QLatin1String("width")), largestSide),
                     plausible(number(stream, QLatin1String("height")), largestSide));
    return size.isEmpty() ? QSize(0, 0) : size;
}

Ratio pixelAspectOf(const QJsonObject &stream)
{
    const Ratio aspect = Ratio::fromText(probeText(stream, QLatin1String("sample_aspect_ratio")));
    const double wide = aspect.value();
    const bool isPlausible = wide >= 1 / mostStretchedPixel && wide <= mostStretchedPixel;
    return isPlausible ? aspect : Ratio{1, 1};
}

Ratio frameRateOf(const QJsonObject &stream, QLatin1String key)
{
    const Ratio rate = Ratio::fromText(probeText(stream, key));
    return rate.value() <= fastestRate ? rate : Ratio();
}

VideoTrack::FieldOrder fieldOrderOf(const QJsonObject &stream)
{
    const QString order = probeText(stream, QLatin1String("field_order"));
    if (order == QLatin1String("progressive")) {
        return VideoTrack::Progressive;
    }
    // The second letter is the field that is shown first.
    if (order == QLatin1String("tt") || order == QLatin1String("bt")) {
        return VideoTrack::TopFieldFirst;
    }
    if (order == QLatin1String("bb") || order == QLatin1String("tb")) {
        return VideoTrack::BottomFieldFirst;
    }
    return VideoTrack::UnknownOrder;
}

/*! Whether decoders of \a codec flag the interlaced frames. */
bool marksFields(const QString &codec)
{
    static const QStringList marking = {QStringLiteral("h264"), QStringLiteral("mpeg2video"),
                                        QStringLiteral("mpeg4"), QStringLiteral("vc1"),
                                        QStringLiteral("dvvideo")};
    return marking.contains(codec);
}

void readFrameRate(const QJsonObject &stream, VideoTrack &track)
{
    // With a variable rate the nominal one may be the timestamps' clock, for example 90000.
    constexpr double fastestPlausible = 240;
    track.averageFrameRate = frameRateOf(stream, QLatin1String("avg_frame_rate"));
    track.frameRate = frameRateOf(stream, QLatin1String("r_frame_rate"));
    const double fieldsPerFrame = track.frameRate.value() / track.averageFrameRate.value();
    if (track.isInterlaced() && std::abs(fieldsPerFrame - 2) < 0.01) {
        track.frameRate = track.averageFrameRate;
    }
    track.hasSteadyRate = track.frameRate.isValid() && track.frameRate.value() <= fastestPlausible;
    if (!track.hasSteadyRate) {
        track.frameRate = track.averageFrameRate;
    }
}

std::optional<MasteringDisplay> masteringDisplayOf(const QJsonObject &data)
{
    const auto ratio = [&data](const char *key) {
        return Ratio::fromText(probeText(data, QLatin1String(key)));
    };
    const MasteringDisplay display{{ratio("red_x"), ratio("red_y")},
                                   {ratio("green_x"), ratio("green_y")},
                                   {ratio("blue_x"), ratio("blue_y")},
                                   {ratio("white_point_x"), ratio("white_point_y")},
                                   ratio("min_luminance"),
                                   ratio("max_luminance")};
    for (const MasteringDisplay::Point &point :
         {display.red, display.green, display.blue, display.white}) {
        if (!point.x.isValid() || !point.y.isValid()) {
            return std::nullopt;
        }
    }
    return display.brightest.isValid() ? std::optional(display) : std::nullopt;
}

} // namespace

QString probeText(const QJsonObject &object, QLatin1String key)
{
    return object.value(key).toVariant().toString();
}

VideoTrack videoTrackFromProbe(const QJsonObject &stream)
{
    VideoTrack track;
    readTrack(stream, track);
    track.storedSize = sizeOf(stream);
    track.pixelAspect = pixelAspectOf(stream);
    track.rotation = rotationOf(stream);
    track.fieldOrder = fieldOrderOf(stream);
    track.framesTellFields = marksFields(track.codec);
    readFrameRate(stream, track);
    track.pixelFormat = pixelFormatOf(stream);
    track.level = std::max(0, number(stream, QLatin1String("level")));
    track.colour = {knownText(stream, QLatin1String("color_range")),
                    knownText(stream, QLatin1String("color_space")),
                    knownText(stream, QLatin1String("color_transfer")),
                    knownText(stream, QLatin1String("color_primaries"))};
    readHdrSideData(stream.value(QLatin1String("side_data_list")).toArray(), track);
    track.isCover = hasDisposition(stream, QLatin1String("attached_pic"));
    return track;
}

AudioTrack audioTrackFromProbe(const QJsonObject &stream)
{
    AudioTrack track;
    readTrack(stream, track);
    track.sampleRate = plausible(number(stream, QLatin1String("sample_rate")), fastestSampling);
    track.channels = plausible(number(stream, QLatin1String("channels")), mostChannels);
    track.layout = knownText(stream, QLatin1String("channel_layout"));
    track.sampleFormat = knownText(stream, QLatin1String("sample_fmt"));
    const int rawBits = plausible(number(stream, QLatin1String("bits_per_raw_sample")), mostBits);
    const int bits = plausible(number(stream, QLatin1String("bits_per_sample")), mostBits);
    track.bitsPerSample = rawBits > 0 ? rawBits : bits;
    return track;
}

SubtitleTrack subtitleTrackFromProbe(const QJsonObject &stream)
{
    SubtitleTrack track;
    readTrack(stream, track);
    track.isForced = hasDisposition(stream, QLatin1String("forced"));
    return track;
}

Attachment attachmentFromProbe(const QJsonObject &stream)
{
    return {std::max(0, number(stream, QLatin1String("index"))),
            tag(stream, QLatin1String("filename")), tag(stream, QLatin1String("mimetype"))};
}

void readHdrSideData(const QJsonArray &sideData, VideoTrack &track)
{
    for (const QJsonValue &value : sideData) {
        const QJsonObject data = value.toObject();
        const QString type = probeText(data, QLatin1String("side_data_type"));
        if (type == QLatin1String("Mastering display metadata")) {
            track.masteringDisplay = masteringDisplayOf(data);
        } else if (type == QLatin1String("Content light level metadata")) {
            track.lightLevel = LightLevel{std::max(0, number(data, QLatin1String("max_content"))),
                                          std::max(0, number(data, QLatin1String("max_average")))};
        }
    }
}
