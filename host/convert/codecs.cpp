#include "host/convert/codecs.h"

#include <algorithm>

namespace {

const char mpegFrameRates[] = "24000/1001 24 25 30000/1001 30 50 60000/1001 60";
const char layer2Bitrates[] = "32 48 56 64 80 96 112 128 160 192 224 256 320 384";
const char mp3Bitrates[] = "8 16 24 32 40 48 56 64 80 96 112 128 160 192 224 256 320";
const char ac3Bitrates[] = "32 40 48 56 64 80 96 112 128 160 192 224 256 320 384 448 512 576 640";
const char wmaBitrates[] = "24 32 40 48 64 80 96 128 160 192 256 320";
const char wmaSampleRates[] = "8000 11025 16000 22050 32000 44100 48000";

// clang-format off
const QVector<VideoCodec> &videoCodecs()
{
    static const QVector<VideoCodec> table = {
        // name, {{encoder, options, quality}}, pixel format, takes a bitrate, frame rates, filter
        {"h264", {{"libx264", "preset=veryfast", "crf=20"}}, "yuv420p"},
        {"hevc", {{"libx265", "preset=veryfast x265-params=log-level=error", "crf=23"}}, "yuv420p"},
        {"vp8", {{"libvpx", "deadline=good cpu-used=4", "crf=10 b=8M"}}, "yuv420p"},
        {"vp9", {{"libvpx-vp9", "deadline=good cpu-used=5 row-mt=1", "crf=31 b=0"}}, "yuv420p"},
        {"av1", {{"libsvtav1", "preset=9", "crf=32"},
                 {"libaom-av1", "cpu-used=7 row-mt=1", "crf=30 b=0"}}, "yuv420p"},
        {"mpeg4", {{"mpeg4", "", "q=4"}}, "yuv420p"},
        {"mpeg2video", {{"mpeg2video", "", "q=4"}}, "yuv420p", true, mpegFrameRates},
        {"mpeg1video", {{"mpeg1video", "", "q=4"}}, "yuv420p", true, mpegFrameRates},
        {"msmpeg4v3", {{"msmpeg4", "", "q=4"}}, "yuv420p"},
        {"msmpeg4v2", {{"msmpeg4v2", "", "q=4"}}, "yuv420p"},
        {"wmv1", {{"wmv1", "", "q=4"}}, "yuv420p"},
        {"wmv2", {{"wmv2", "", "q=4"}}, "yuv420p"},
        {"flv1", {{"flv", "", "q=4"}}, "yuv420p"},
        {"theora", {{"libtheora", "", "q=7"}}, "yuv420p"},
        {"mjpeg", {{"mjpeg", "", "q=3"}}, "yuvj420p"},
        {"prores", {{"prores", "", ""}}, "yuv422p10le", false},
        {"dnxhd", {{"dnxhd", "profile=dnxhr_sq", ""}}, "yuv422p", false},
        {"gif", {{"gif", "", ""}}, "", false, "5 8 10 12 15 20 25 50",
            "split[picture][sample];[sample]palettegen[palette];[picture][palette]paletteuse"},
        {"dvvideo", {{"dvvideo", "", ""}}, "", false, "", "", {
            {{720, 576}, {16, 15}, {25, 1}, "yuv420p"},
            {{720, 576}, {64, 45}, {25, 1}, "yuv420p"},
            {{720, 480}, {8, 9}, {30000, 1001}, "yuv411p"},
            {{720, 480}, {32, 27}, {30000, 1001}, "yuv411p"}}},
    };
    return table;
}

const QVector<AudioCodec> &audioCodecs()
{
    static const QVector<AudioCodec> table = {
        // name, {encoders}, channels, sample rates, kbps a channel, quality, takes a bitrate,
        // bitrates, bits a sample (at most, at least, at least unless stereo), is only copied
        {"aac", {"aac"}, 8,
            "8000 11025 12000 16000 22050 24000 32000 44100 48000 64000 88200 96000",
            96, "", true, "", 6},
        {"mp3", {"libmp3lame"}, 2, "8000 11025 12000 16000 22050 24000 32000 44100 48000",
            0, "q=2", true, mp3Bitrates},
        // Below 32000 Hz layer 2 has other bitrates, and few players.
        {"mp2", {"mp2"}, 2, "32000 44100 48000", 128, "", true, layer2Bitrates},
        {"ac3", {"ac3"}, 6, "32000 44100 48000", 96, "", true, ac3Bitrates, 32, 0.35, 0.35},
        {"eac3", {"eac3"}, 6, "32000 44100 48000", 96, "", true, "", 32, 0.35, 0.35},
        // Beside these bits a sample the encoder refuses to start.
        {"vorbis", {"libvorbis"}, 8, "8000 11025 12000 16000 22050 24000 32000 44100 48000",
            0, "q=6", true, "", 3.9, 0.75, 1.1},
        {"opus", {"libopus"}, 8, "8000 12000 16000 24000 48000", 64, "", true, "", 5.3, 0.1, 0.1},
        {"speex", {"libspeex"}, 2, "8000 16000 32000", 0, "", true},
        {"wmav1", {"wmav1"}, 2, wmaSampleRates, 96, "", true, wmaBitrates},
        {"wmav2", {"wmav2"}, 2, wmaSampleRates, 96, "", true, wmaBitrates},
        {"amr_nb", {"libopencore_amrnb"}, 1, "8000", 0, "b=12.2k", true,
            "4.75 5.15 5.9 6.7 7.4 7.95 10.2 12.2"},
        {"amr_wb", {"libvo_amrwbenc"}, 1, "16000", 0, "b=23.85k", true,
            "6.6 8.85 12.65 14.25 15.85 18.25 19.85 23.05 23.85"},
        {"dts", {}, 8, "", 0, "", false, "", 32, 0, 0, true},
        {"truehd", {}, 8, "", 0, "", false, "", 32, 0, 0, true},
    };
    return table;
}
// clang-format on

template <typename Codec>
const Codec &find(const QVector<Codec> &table, const QString &name)
{
    static const Codec plain;
    const auto row = std::find_if(table.begin(), table.end(), [&name](const Codec &codec) {
        return name == QLatin1String(codec.name);
    });
    return row == table.end() ? plain : *row;
}

} // namespace

const VideoCodec &videoCodec(const QString &name)
{
    return find(videoCodecs(), name);
}

const AudioCodec &audioCodec(const QString &name)
{
    return find(audioCodecs(), name);
}

QSet<QString> encodersInListing(const QByteArray &listing)
{
    QSet<QString> encoders;
    bool inTable = false;
    const QStringList lines = QString::fromLatin1(listing).split(QLatin1Char('\n'));
    for (const QString &line : lines) {
        const QStringList words = line.split(QLatin1Char(' '), Qt::SkipEmptyParts);
        if (inTable && words.size() > 1) {
            encoders.insert(words.at(1));
        }
        inTable = inTable || line.trimmed() == QLatin1String("------");
    }
    return encoders;
}
