#include "host/convert/containers.h"

#include <algorithm>

namespace {

/*! Splits a space-separated list of names. */
QStringList list(const char *names)
{
    return QString::fromLatin1(names).split(QLatin1Char(' '), Qt::SkipEmptyParts);
}

/*! A row of the table. By default muxer and demuxer are named as the first extension. */
class Files : public Container
{
public:
    explicit Files(const char *names)
    {
        extensions = list(names);
        muxer = extensions.constFirst();
        demuxer = muxer;
    }

    /*! Sets the muxer, and the demuxer of the same name. */
    Files writtenBy(const char *name)
    {
        muxer = QLatin1String(name);
        demuxer = muxer;
        return *this;
    }
    Files readBy(const char *name)
    {
        demuxer = QLatin1String(name);
        return *this;
    }
    Files with(const char *option, const char *value)
    {
        options.append({QLatin1String(option), QLatin1String(value)});
        return *this;
    }
    /*! Puts the index first, so that playback can start before the whole file is loaded. */
    Files indexedFirst() { return with("movflags", "+faststart"); }
    Files holding(const QStringList &video, const QStringList &audio)
    {
        videoCodecs = video;
        audioCodecs = audio;
        return *this;
    }
    Files holdingAudio(const QStringList &audio) { return holding({}, audio); }
    Files inSeveralTracks()
    {
        holdsSeveralAudioTracks = true;
        return *this;
    }
    Files withChapters()
    {
        holdsChapters = true;
        return *this;
    }
    Files withAttachments()
    {
        holdsAttachments = true;
        return *this;
    }
    Files withSubtitles(const QStringList &codecs, const char *usualText = "")
    {
        subtitleCodecs = codecs;
        textSubtitles = QLatin1String(usualText);
        return *this;
    }
    Files withTitlesAsHandlers()
    {
        titlesAreHandlers = true;
        return *this;
    }
    /*! Shows no subtitles by default unless the source does. */
    Files hidingSubtitles()
    {
        subtitleOptions.append({QStringLiteral("default_mode"), QStringLiteral("infer_no_subs")});
        return *this;
    }
    Files withCover()
    {
        takesCover = true;
        return *this;
    }
    Files withRotation()
    {
        keepsRotation = true;
        return *this;
    }
    Files withHvc1()
    {
        tagsHevcAsHvc1 = true;
        return *this;
    }
    Files withAudioInFrames()
    {
        hasAudioInFrames = true;
        return *this;
    }
    Files forBroadcast()
    {
        isForBroadcast = true;
        return *this;
    }
    Files countingFrames(Times how)
    {
        times = how;
        return *this;
    }
    Files at(const QVector<int> &hertz)
    {
        sampleRates = hertz;
        return *this;
    }
    Files inChannels(int count)
    {
        channels = count;
        return *this;
    }
};

// clang-format off
QVector<Container> makeContainers()
{
    const QStringList mp4Video = list("h264 hevc av1 vp9 mpeg4 mpeg2video mpeg1video mjpeg");
    const QStringList mp4Audio = list("aac mp3 ac3 eac3 alac opus mp2");
    const QStringList movVideo = list("h264 hevc mpeg4 prores dnxhd mjpeg dvvideo mpeg2video");
    const QStringList movAudio = list("aac alac ac3 eac3 mp3 mp2 pcm_s16le pcm_s24le pcm_s32le "
                                      "pcm_f32le pcm_s16be pcm_s24be pcm_s32be pcm_f32be");
    const QStringList mkvVideo = list("h264 hevc av1 vp9 vp8 mpeg4 mpeg2video mpeg1video theora "
                                      "mjpeg wmv1 wmv2 msmpeg4v3 msmpeg4v2 flv1 prores dnxhd "
                                      "dvvideo ffv1");
    const QStringList mkvAudio = list("aac mp3 ac3 eac3 opus vorbis flac alac mp2 dts truehd "
                                      "pcm_s16le pcm_s24le pcm_s32le pcm_f32le pcm_s16be tta "
                                      "wavpack wmav1 wmav2");
    const QStringList aviVideo = list("mpeg4 h264 msmpeg4v3 msmpeg4v2 mjpeg dvvideo mpeg2video "
                                      "mpeg1video");
    const QStringList asfVideo = list("wmv2 wmv1 msmpeg4v3 msmpeg4v2 mpeg4 h264");
    const QStringList asfAudio = list("wmav2 wmav1 mp3 pcm_s16le");
    const QStringList programVideo = list("mpeg2video mpeg1video");
    const QStringList transportVideo = list("h264 hevc mpeg2video mpeg1video");
    const QStringList transportAudio = list("aac ac3 eac3 mp2 mp3 opus");
    const QStringList phoneVideo = list("h264 mpeg4 h263");
    const QStringList phoneAudio = list("aac amr_nb amr_wb");
    const QStringList oggAudio = list("vorbis opus flac speex");
    const QStringList wavAudio = list("pcm_s16le pcm_s24le pcm_s32le pcm_f32le pcm_u8 pcm_alaw "
                                      "pcm_mulaw");
    return {
        Files("mp4").indexedFirst().holding(mp4Video, mp4Audio).inSeveralTracks()
            .withRotation().withHvc1().withChapters().withCover().withTitlesAsHandlers()
            .withSubtitles(list("mov_text dvd_subtitle"), "mov_text"),
        Files("m4v").writtenBy("mp4").indexedFirst()
            .holding(list("h264 hevc mpeg4"), list("aac ac3 eac3 alac")).inSeveralTracks()
            .withRotation().withHvc1().withChapters().withCover().withTitlesAsHandlers()
            .withSubtitles(list("mov_text"), "mov_text"),
        Files("mov").indexedFirst().holding(movVideo, movAudio).inSeveralTracks()
            .withRotation().withHvc1().withChapters().withTitlesAsHandlers()
            .withSubtitles(list("mov_text"), "mov_text"),
        Files("mkv").writtenBy("matroska").hidingSubtitles().withChapters().withAttachments()
            .withSubtitles(list("subrip ass ssa webvtt hdmv_pgs_subtitle dvd_subtitle "
                                "dvb_subtitle hdmv_text_subtitle"), "srt")
            .holding(mkvVideo, mkvAudio).inSeveralTracks(),
        // Audio that begins before 0 would move the video, which has no times but its frames.
        Files("avi").with("avoid_negative_ts", "disabled")
            .holding(aviVideo, list("mp3 ac3 mp2 pcm_s16le aac")).inSeveralTracks()
            .countingFrames(Container::Times::Gaps),
        Files("webm").readBy("matroska").hidingSubtitles().withChapters()
            .withSubtitles(list("webvtt"), "webvtt")
            .holding(list("vp9 vp8 av1"), list("opus vorbis")).inSeveralTracks(),
        Files("wmv asf").writtenBy("asf").withChapters().holding(asfVideo, asfAudio)
            .inSeveralTracks(),
        Files("mpg mpeg").writtenBy("mpeg").holding(programVideo, list("mp2 ac3 mp3"))
            .inSeveralTracks(),
        Files("vob").readBy("mpeg").withSubtitles(list("dvd_subtitle"))
            .holding(programVideo, list("ac3 mp2")).inSeveralTracks().forBroadcast(),
        Files("ts").writtenBy("mpegts").withSubtitles(list("dvb_subtitle dvb_teletext"))
            .holding(transportVideo, transportAudio).inSeveralTracks(),
        Files("m2ts mts").writtenBy("mpegts").with("mpegts_m2ts_mode", "1")
            .withSubtitles(list("hdmv_pgs_subtitle dvb_subtitle dvb_teletext"))
            .holding(transportVideo, transportAudio).inSeveralTracks(),
        Files("flv").holding(list("h264 flv1"), list("aac mp3")).at({11025, 22050, 44100, 48000}),
        Files("f4v").readBy("mov").indexedFirst().holding(list("h264"), list("aac mp3")).withChapters(),
        Files("3gp").indexedFirst().holding(phoneVideo, phoneAudio).withRotation()
            .withChapters().withSubtitles(list("mov_text"), "mov_text"),
        Files("3g2").indexedFirst().holding(phoneVideo, phoneAudio).withRotation()
            .withChapters().withSubtitles(list("mov_text"), "mov_text"),
        Files("ogv").readBy("ogg").holding(list("theora vp8"), oggAudio).inSeveralTracks(),
        Files("mxf").holding(list("mpeg2video dnxhd h264 prores dvvideo"),
                             list("pcm_s16le pcm_s24le")).inSeveralTracks().at({48000})
            .countingFrames(Container::Times::EveryFrame).forBroadcast(),
        Files("dv").holding(list("dvvideo"), list("pcm_s16le")).withAudioInFrames().at({48000})
            .inChannels(2).countingFrames(Container::Times::EveryFrame).forBroadcast(),
        Files("gif").holding(list("gif"), {}),

        Files("mp3").holdingAudio(list("mp3")).withCover().withChapters(),
        Files("aac").writtenBy("adts").readBy("aac").holdingAudio(list("aac")),
        Files("m4a m4b m4r").writtenBy("ipod").readBy("m4a").indexedFirst()
            .holdingAudio(list("aac alac")).withCover().withChapters(),
        Files("flac").holdingAudio(list("flac")).withCover(),
        Files("wav").holdingAudio(wavAudio),
        Files("aiff aif").holdingAudio(list("pcm_s16be pcm_s24be pcm_s32be pcm_f32be "
                                           "pcm_s16le"))
            .with("write_id3v2", "1").withCover(),
        Files("au").holdingAudio(list("pcm_s16be pcm_s24be pcm_s32be pcm_f32be pcm_mulaw "
                                    "pcm_alaw")),
        // The AAC and FLAC that ffmpeg writes into it can't be read.
        Files("caf").holdingAudio(list("pcm_s16le pcm_s24le pcm_s32le pcm_f32le pcm_s16be pcm_s24be "
                                     "alac opus")),
        Files("ogg").holdingAudio(oggAudio),
        Files("oga").readBy("ogg").holdingAudio(oggAudio),
        Files("opus").readBy("ogg").withChapters().holdingAudio(list("opus")),
        Files("spx").readBy("ogg").holdingAudio(list("speex")),
        Files("ac3").holdingAudio(list("ac3")),
        Files("eac3").holdingAudio(list("eac3")),
        Files("mp2").readBy("mp3").holdingAudio(list("mp2")),
        Files("wma").writtenBy("asf").withChapters().holdingAudio(asfAudio),
        Files("mka").writtenBy("matroska").withChapters().holdingAudio(mkvAudio).inSeveralTracks(),
        Files("amr").holdingAudio(list("amr_nb amr_wb")),
        Files("tta").holdingAudio(list("tta")),
        Files("wv").holdingAudio(list("wavpack")),
    };
}
// clang-format on

} // namespace

const Container *Container::find(const QString &extension)
{
    static const QVector<Container> table = makeContainers();
    const QString wanted = extension.toLower();
    const auto row =
        std::find_if(table.begin(), table.end(), [&wanted](const Container &container) {
            return container.extensions.contains(wanted);
        });
    return row == table.end() ? nullptr : &*row;
}
