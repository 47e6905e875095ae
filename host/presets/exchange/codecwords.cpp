#include "host/presets/exchange/codecwords.h"

#include "host/convert/codecs.h"

#include <QCoreApplication>

#include <algorithm>

namespace {

struct Texts
{
    Q_DECLARE_TR_FUNCTIONS(CodecWords)
};

struct Word
{
    const char *encoder;
    const char *codec;
};

constexpr Word videoWords[] = {
    {"x264", "h264"},
    {"libx264", "h264"},
    {"h264", "h264"},
    {"x265", "hevc"},
    {"libx265", "hevc"},
    {"hevc", "hevc"},
    {"VP8", "vp8"},
    {"libvpx", "vp8"},
    {"VP9", "vp9"},
    {"libvpx-vp9", "vp9"},
    {"svt_av1", "av1"},
    {"libsvtav1", "av1"},
    {"libaom-av1", "av1"},
    {"mpeg4", "mpeg4"},
    {"libxvid", "mpeg4"},
    {"mpeg2", "mpeg2video"},
    {"mpeg2video", "mpeg2video"},
    {"mpeg1video", "mpeg1video"},
    {"theora", "theora"},
    {"libtheora", "theora"},
    {"wmv2", "wmv2"},
    {"flv", "flv1"},
    {"mjpeg", "mjpeg"},
    {"prores", "prores"},
    {"prores_ks", "prores"},
    {"dnxhd", "dnxhd"},
    {"dvvideo", "dvvideo"},
    {"ffv1", "ffv1"},
    {"gif", "gif"},
    {"huffyuv", "huffyuv"},
};

constexpr Word audioWords[] = {
    {"av_aac", "aac"},          {"ca_aac", "aac"},
    {"fdk_aac", "aac"},         {"aac", "aac"},
    {"libfdk_aac", "aac"},      {"ac3", "ac3"},
    {"eac3", "eac3"},           {"mp3", "mp3"},
    {"libmp3lame", "mp3"},      {"vorbis", "vorbis"},
    {"libvorbis", "vorbis"},    {"opus", "opus"},
    {"libopus", "opus"},        {"flac16", "flac"},
    {"flac24", "flac"},         {"flac", "flac"},
    {"alac", "alac"},           {"mp2", "mp2"},
    {"wmav2", "wmav2"},         {"pcm_s16le", "pcm_s16le"},
    {"pcm_s24le", "pcm_s24le"},
};

template <size_t count>
QString codecIn(const Word (&words)[count], const QString &encoder)
{
    const auto *word =
        std::find_if(std::begin(words), std::end(words), [&encoder](const Word &each) {
            return encoder == QLatin1String(each.encoder);
        });
    return word == std::end(words) ? QString() : QString::fromLatin1(word->codec);
}

/*! The encoder whose quality the converter's table knows. */
const VideoCodec::Encoder *encoderWithQuality(const VideoCodec &codec)
{
    const auto encoder = std::find_if(
        codec.encoders.begin(), codec.encoders.end(),
        [](const VideoCodec::Encoder &each) { return !each.quality.option.isEmpty(); });
    return encoder == codec.encoders.end() ? nullptr : &*encoder;
}

/*! The detail that holds such a word for a codec; null if there is none. */
const PresetDetail *detailNamed(const QString &name)
{
    const QVector<PresetDetail> &details = presetDetails();
    const auto detail =
        std::find_if(details.begin(), details.end(),
                     [&name](const PresetDetail &each) { return each.name == name; });
    return detail == details.end() ? nullptr : &*detail;
}

const PresetDetail *detailFor(const QString &codec, const QString &kind)
{
    return detailNamed(codec + QLatin1Char('-') + kind);
}

} // namespace

CodecWord videoCodecOf(const QString &encoder)
{
    const QString exact = codecIn(videoWords, encoder);
    if (!exact.isEmpty()) {
        return {exact};
    }
    if (encoder.endsWith(QLatin1String("bit")) && encoder.contains(QLatin1Char('_'))) {
        const CodecWord plain = videoCodecOf(encoder.left(encoder.lastIndexOf(QLatin1Char('_'))));
        return {plain.codec, plain.substitute.isEmpty()
                                 ? Texts::tr("more than 8 bits only where the source has them")
                                 : plain.substitute};
    }
    // Encoders of graphics cards are named after the card and the codec.
    for (const Word &word :
         {Word{"h264", "h264"}, {"h265", "hevc"}, {"hevc", "hevc"}, {"av1", "av1"}}) {
        if (encoder.contains(QLatin1String(word.encoder))) {
            return {QLatin1String(word.codec), Texts::tr("%1 is written without the graphics card")
                                                   .arg(QLatin1String(word.codec))};
        }
    }
    return {};
}

CodecWord audioCodecOf(const QString &encoder)
{
    const QString exact = codecIn(audioWords, encoder);
    if (!exact.isEmpty()) {
        return {exact};
    }
    const QString copied = QStringLiteral("copy:");
    if (encoder.startsWith(copied)) {
        return {codecIn(audioWords, encoder.mid(copied.size())),
                Texts::tr("audio of another codec is encoded")};
    }
    if (encoder == QLatin1String("haac") || encoder.startsWith(QLatin1String("ca_haac")) ||
        encoder == QLatin1String("fdk_haac")) {
        return {QStringLiteral("aac"), Texts::tr("AAC without its high-efficiency extension")};
    }
    return {};
}

bool hasConstantQuality(const QString &codec)
{
    return encoderWithQuality(videoCodec(codec)) != nullptr;
}

QString qualitySteps(const QString &codec, double constant)
{
    const VideoCodec written = videoCodec(codec);
    const VideoCodec::Encoder *encoder = encoderWithQuality(written);
    if (encoder == nullptr) {
        return {};
    }
    return QString::number((constant - encoder->quality.usual) / encoder->quality.step, 'g', 5);
}

void takeEncoderWord(PortablePreset &preset, const QString &codec, const QString &kind,
                     const QString &setting, const QString &value)
{
    const PresetDetail *detail = detailFor(codec, kind);
    if (value.isEmpty() || value == QLatin1String("none")) {
        return;
    }
    if (detail != nullptr && detail->accepts(value)) {
        preset.values.insert(detail->name, value);
        preset.keep(setting, value);
    } else if (kind == QLatin1String("speed")) {
        preset.approximate(setting, value, Texts::tr("the encoder's usual speed"));
    } else {
        preset.lose(setting, value, Texts::tr("%1 isn't tuned so").arg(codec));
    }
}

void takeDeviceWord(PortablePreset &preset, const QString &codec, const QString &kind,
                    const QString &setting, const QString &value)
{
    const PresetDetail *detail = detailFor(codec, kind);
    if (value.isEmpty() || value == QLatin1String("auto")) {
        return;
    }
    const bool isWholeNumber =
        kind == QLatin1String("level") && value.endsWith(QLatin1String(".0"));
    const QString word = isWholeNumber ? value.chopped(2) : value;
    if (detail != nullptr && detail->accepts(word)) {
        preset.values.insert(detail->name, word);
        preset.keep(setting, value);
    } else if (kind == QLatin1String("profile")) {
        preset.approximate(setting, value, Texts::tr("the encoder chooses the profile"));
    } else {
        preset.lose(setting, value, Texts::tr("the encoder chooses the level"));
    }
}

void takeKeyFrameInterval(PortablePreset &preset, const QString &setting, const QString &value)
{
    const PresetDetail *detail = detailNamed(QStringLiteral("key-frame-interval"));
    if (detail->accepts(value)) {
        preset.values.insert(detail->name, value);
        preset.keep(setting, value);
    } else {
        preset.lose(setting, value, Texts::tr("the encoder chooses the key frames"));
    }
}
