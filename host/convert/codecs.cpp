#include "host/convert/codecs.h"

#include <algorithm>

namespace {

using Ceiling = VideoCodec::Ceiling;

/*! A row of the table of video codecs. */
class Video : public VideoCodec
{
public:
    explicit Video(const char *codec) { name = QLatin1String(codec); }

    Video writtenBy(const char *encoder)
    {
        encoders.append({QLatin1String(encoder)});
        return *this;
    }
    /*! An option of the encoder named last. */
    Video with(const char *option, const char *value)
    {
        encoders.last().options.append({QLatin1String(option), QLatin1String(value)});
        return *this;
    }
    /*! The quality of the encoder named last, and how far a better one is. */
    Video goodAt(const char *option, double usual, double step, double finest)
    {
        encoders.last().quality = {QLatin1String(option), usual, step, finest};
        return *this;
    }
    Video keepsBelow(Ceiling ceiling)
    {
        encoders.last().ceiling = ceiling;
        return *this;
    }
    /*! A further option where no bitrate is asked for. */
    Video orElse(const char *option, const char *value)
    {
        encoders.last().unlimited.append({QLatin1String(option), QLatin1String(value)});
        return *this;
    }
    Video takesLevelAs(const char *option, const char *value)
    {
        encoders.last().level = {QLatin1String(option), QLatin1String(value)};
        return *this;
    }
    /*! The encoder named last takes ffmpeg's options for two passes. */
    Video inTwoPasses()
    {
        encoders.last().passes = {{QStringLiteral("pass"), QStringLiteral("%1")},
                                  {QStringLiteral("passlogfile"), QStringLiteral("%2")}};
        return *this;
    }
    Video inTwoPassesWith(const char *option, const char *value)
    {
        encoders.last().passes = {{QLatin1String(option), QLatin1String(value)}};
        return *this;
    }
    /*! An encoder of ffmpeg's own that was first made for MPEG. Its second pass refuses bitrates
     *  that a single one reaches. */
    Video writtenLikeMpegBy(const char *encoder)
    {
        return writtenBy(encoder).goodAt("q", 4, -1, 2).keepsBelow(Ceiling::LeastQuantiser);
    }
    Video lookingPoorBelow(double bitsPerPixel)
    {
        leastBitsPerPixel = bitsPerPixel;
        return *this;
    }
    Video inPixels(const char *format)
    {
        pixelFormat = QLatin1String(format);
        return *this;
    }
    Video inDeepPixels(const char *format, const ToolOptions &options = {})
    {
        deepPixels = {QLatin1String(format), options};
        return *this;
    }
    Video inAlphaPixels(const char *format, const ToolOptions &options = {})
    {
        alphaPixels = {QLatin1String(format), options};
        return *this;
    }
    Video inOwnColour(const char *matrix, const char *range)
    {
        ownColour.matrix = QLatin1String(matrix);
        ownColour.range = QLatin1String(range);
        return *this;
    }
    Video withoutBitrate()
    {
        takesBitrate = false;
        return *this;
    }
    Video atRates(const QVector<Ratio> &rates)
    {
        frameRates = rates;
        return *this;
    }
    Video taggedByFrames()
    {
        isTaggedByFrames = true;
        return *this;
    }
    Video atAnyTime()
    {
        takesAnyTime = true;
        return *this;
    }
    Video keepingFieldsWith(const char *flags)
    {
        fieldOptions = {{QStringLiteral("flags"), QLatin1String(flags)}};
        return *this;
    }
    Video bottomFieldFirst()
    {
        isBottomFieldFirst = true;
        return *this;
    }
    Video inPalette()
    {
        hasPalette = true;
        return *this;
    }
    Video keyedAfter(int most)
    {
        keyFrameInterval = most;
        return *this;
    }
    Video keepingBusy(int cores)
    {
        busyCores = cores;
        return *this;
    }
    Video inFrame(const QSize &size, Ratio pixelAspect, Ratio rate, const char *format)
    {
        frames.append({size, pixelAspect, rate, QLatin1String(format)});
        return *this;
    }
};

/*! A row of the table of audio codecs. */
class Audio : public AudioCodec
{
public:
    explicit Audio(const char *codec) { name = QLatin1String(codec); }

    Audio writtenBy(const char *encoder)
    {
        encoders.append(QLatin1String(encoder));
        return *this;
    }
    Audio upTo(int channels)
    {
        maxChannels = channels;
        return *this;
    }
    Audio withoutSideSpeakers()
    {
        knowsSideSpeakers = false;
        return *this;
    }
    Audio at(const QVector<int> &hertz)
    {
        sampleRates = hertz;
        return *this;
    }
    Audio withAnyBitrate()
    {
        takesBitrate = true;
        return *this;
    }
    Audio withBitrates(const QVector<double> &kbps)
    {
        bitrates = kbps;
        return withAnyBitrate().constant();
    }
    Audio constant()
    {
        hasConstantBitrate = true;
        return *this;
    }
    /*! Good quality, for where no bitrate is asked for. */
    Audio goodAt(int kbpsOfAChannel)
    {
        kbpsPerChannel = kbpsOfAChannel;
        return *this;
    }
    Audio goodWith(const char *option, const char *value)
    {
        quality.append({QLatin1String(option), QLatin1String(value)});
        return *this;
    }
    Audio bitsPerSampleAtMost(double bits)
    {
        maxBitsPerSample = bits;
        return *this;
    }
    Audio bitsPerSampleAtLeast(double inStereo, double otherwise)
    {
        minBitsPerSample = inStereo;
        minBitsUnlessStereo = otherwise;
        return *this;
    }
    Audio onlyCopied()
    {
        isOnlyCopied = true;
        return *this;
    }
};

// clang-format off
QVector<VideoCodec> makeVideoCodecs()
{
    const QVector<Ratio> mpeg = {{24000, 1001}, {24, 1}, {25, 1}, {30000, 1001}, {30, 1}, {50, 1},
                                 {60000, 1001}, {60, 1}};
    // The encoders refuse alpha together with frames that are never shown.
    const ToolOptions flatAlpha = {{QStringLiteral("auto-alt-ref"), QStringLiteral("0")}};
    const QVector<Ratio> gif = {{5, 1}, {8, 1}, {10, 1}, {12, 1}, {15, 1}, {20, 1}, {25, 1},
                                {50, 1}};
    return {
        Video("h264").writtenBy("libx264").with("preset", "medium").goodAt("crf", 21.5, -3, 0)
            .takesLevelAs("level", "%1").inTwoPasses().lookingPoorBelow(0.03).inPixels("yuv420p").atAnyTime().keepingBusy(8),
        Video("hevc").writtenBy("libx265").with("preset", "veryfast")
            .with("x265-params", "log-level=error").goodAt("crf", 23, -3, 0)
            .takesLevelAs("x265-params", "log-level=error:high-tier=0:level-idc=%1")
            .inTwoPassesWith("x265-params", "pass=%1:stats=%2").lookingPoorBelow(0.018)
            .inPixels("yuv420p").atAnyTime().keepingBusy(8).inDeepPixels("yuv420p10le"),
        Video("vp8").writtenBy("libvpx").with("deadline", "good").with("cpu-used", "4")
            .goodAt("crf", 10, -3, 4).keepsBelow(Ceiling::Targeted).orElse("b", "8M").inTwoPasses()
            .keyedAfter(128).inPixels("yuv420p").atAnyTime().keepingBusy(2).inAlphaPixels("yuva420p", flatAlpha),
        Video("vp9").writtenBy("libvpx-vp9").with("deadline", "good").with("cpu-used", "5")
            .with("row-mt", "1").with("max-intra-rate", "200")
            .goodAt("crf", 31, -4, 0).keepsBelow(Ceiling::Targeted)
            .orElse("b", "0").inTwoPasses().lookingPoorBelow(0.02)
            .keyedAfter(128).inPixels("yuv420p").atAnyTime().keepingBusy(4)
            .inDeepPixels("yuv420p10le").inAlphaPixels("yuva420p", flatAlpha),
        Video("av1").writtenBy("libsvtav1").with("preset", "9").goodAt("crf", 32, -5, 1)
            .keepsBelow(Ceiling::Capped)
            .writtenBy("libaom-av1").with("cpu-used", "7").with("row-mt", "1")
            .goodAt("crf", 30, -5, 0).keepsBelow(Ceiling::Targeted).orElse("b", "0")
            .inTwoPasses().lookingPoorBelow(0.016)
            .keyedAfter(161).inPixels("yuv420p").atAnyTime().keepingBusy(8).inDeepPixels("yuv420p10le"),
        Video("mpeg4").writtenLikeMpegBy("mpeg4").inPixels("yuv420p"),
        Video("mpeg2video").writtenLikeMpegBy("mpeg2video").inPixels("yuv420p").atRates(mpeg)
            .keepingFieldsWith("+ildct+ilme"),
        Video("mpeg1video").writtenLikeMpegBy("mpeg1video").inPixels("yuv420p").atRates(mpeg),
        Video("msmpeg4v3").writtenLikeMpegBy("msmpeg4").inPixels("yuv420p"),
        Video("msmpeg4v2").writtenLikeMpegBy("msmpeg4v2").inPixels("yuv420p"),
        Video("wmv1").writtenLikeMpegBy("wmv1").inPixels("yuv420p"),
        Video("wmv2").writtenLikeMpegBy("wmv2").inPixels("yuv420p"),
        Video("flv1").writtenLikeMpegBy("flv").inPixels("yuv420p"),
        Video("theora").writtenBy("libtheora").goodAt("q", 7, 1.5, 10)
            .keepsBelow(Ceiling::BitsPerPixel).inTwoPasses().inPixels("yuv420p"),
        Video("mjpeg").writtenLikeMpegBy("mjpeg").inPixels("yuvj420p").atAnyTime()
            .inOwnColour("bt470bg", "pc"),
        Video("prores").writtenBy("prores").inPixels("yuv422p10le").withoutBitrate().atAnyTime()
            .taggedByFrames().keepingBusy(8)
            .inDeepPixels("yuv422p10le").inAlphaPixels("yuva444p10le"),
        Video("dnxhd").writtenBy("dnxhd").with("profile", "dnxhr_sq").inPixels("yuv422p")
            .withoutBitrate().atAnyTime().keepingBusy(8)
            .inDeepPixels("yuv422p10le", {{QStringLiteral("profile"), QStringLiteral("dnxhr_hqx")}}),
        Video("gif").writtenBy("gif").withoutBitrate().atRates(gif).inPalette(),
        Video("dvvideo").writtenBy("dvvideo").withoutBitrate().keepingFieldsWith("+ildct")
            .bottomFieldFirst().inOwnColour("smpte170m", "tv")
            .inFrame({720, 576}, {16, 15}, {25, 1}, "yuv420p")
            .inFrame({720, 576}, {64, 45}, {25, 1}, "yuv420p")
            .inFrame({720, 480}, {8, 9}, {30000, 1001}, "yuv411p")
            .inFrame({720, 480}, {32, 27}, {30000, 1001}, "yuv411p"),
    };
}

QVector<AudioCodec> makeAudioCodecs()
{
    const QVector<int> upTo48000 = {8000, 11025, 12000, 16000, 22050, 24000, 32000, 44100, 48000};
    const QVector<int> upTo96000 = upTo48000 + QVector<int>{64000, 88200, 96000};
    const QVector<int> from32000 = {32000, 44100, 48000};
    const QVector<int> wma = {8000, 11025, 16000, 22050, 32000, 44100, 48000};
    const QVector<double> mp3Kbps = {8, 16, 24, 32, 40, 48, 56, 64, 80, 96, 112, 128, 160, 192,
                                     224, 256, 320};
    const QVector<double> layer2Kbps = {32, 48, 56, 64, 80, 96, 112, 128, 160, 192, 224, 256, 320,
                                        384};
    const QVector<double> ac3Kbps = {32, 40, 48, 56, 64, 80, 96, 112, 128, 160, 192, 224, 256, 320,
                                     384, 448, 512, 576, 640};
    const QVector<double> wmaKbps = {24, 32, 40, 48, 64, 80, 96, 128, 160, 192, 256, 320};
    return {
        Audio("aac").writtenBy("aac").at(upTo96000).withAnyBitrate().goodAt(96)
            .withoutSideSpeakers().bitsPerSampleAtMost(6),
        Audio("mp3").writtenBy("libmp3lame").upTo(2).at(upTo48000).withBitrates(mp3Kbps)
            .goodWith("q", "2"),
        // Below 32000 Hz layer 2 has other bitrates, and few players.
        Audio("mp2").writtenBy("mp2").upTo(2).at(from32000).withBitrates(layer2Kbps).goodAt(128),
        Audio("ac3").writtenBy("ac3").upTo(6).at(from32000).withBitrates(ac3Kbps).goodAt(96)
            .bitsPerSampleAtLeast(0.35, 0.35),
        Audio("eac3").writtenBy("eac3").upTo(6).at(from32000).withAnyBitrate().constant().goodAt(96)
            .bitsPerSampleAtLeast(0.35, 0.35),
        // Outside of these limits the encoder refuses to start.
        Audio("vorbis").writtenBy("libvorbis").at(upTo48000).withAnyBitrate().goodWith("q", "6")
            .bitsPerSampleAtMost(3.9).bitsPerSampleAtLeast(0.75, 1.1),
        Audio("opus").writtenBy("libopus").at({8000, 12000, 16000, 24000, 48000}).withAnyBitrate()
            .goodAt(64).withoutSideSpeakers().bitsPerSampleAtMost(5.3).bitsPerSampleAtLeast(0.1, 0.1),
        Audio("speex").writtenBy("libspeex").upTo(2).at({8000, 16000, 32000}).withAnyBitrate(),
        Audio("wmav1").writtenBy("wmav1").upTo(2).at(wma).withBitrates(wmaKbps).goodAt(96),
        Audio("wmav2").writtenBy("wmav2").upTo(2).at(wma).withBitrates(wmaKbps).goodAt(96),
        Audio("amr_nb").writtenBy("libopencore_amrnb").upTo(1).at({8000})
            .withBitrates({4.75, 5.15, 5.9, 6.7, 7.4, 7.95, 10.2, 12.2}).goodWith("b", "12.2k"),
        Audio("amr_wb").writtenBy("libvo_amrwbenc").upTo(1).at({16000})
            .withBitrates({6.6, 8.85, 12.65, 14.25, 15.85, 18.25, 19.85, 23.05, 23.85})
            .goodWith("b", "23.85k"),
        Audio("dts").onlyCopied(),
        Audio("truehd").onlyCopied(),
    };
}
// clang-format on

template <typename Codec>
Codec find(const QVector<Codec> &table, const QString &name)
{
    const auto row = std::find_if(table.begin(), table.end(),
                                  [&name](const Codec &codec) { return codec.name == name; });
    return row == table.end() ? Codec{name} : *row;
}

} // namespace

QStringList VideoCodec::encoderNames() const
{
    QStringList names;
    for (const Encoder &encoder : encoders) {
        names << encoder.name;
    }
    return names.isEmpty() ? QStringList{name} : names;
}

QStringList AudioCodec::encoderNames() const
{
    return encoders.isEmpty() && !isOnlyCopied ? QStringList{name} : encoders;
}

VideoCodec videoCodec(const QString &name)
{
    static const QVector<VideoCodec> table = makeVideoCodecs();
    return find(table, name);
}

AudioCodec audioCodec(const QString &name)
{
    static const QVector<AudioCodec> table = makeAudioCodecs();
    return find(table, name);
}
