#include "tests/host/convert/plannedcommand.h"

using namespace PlannedCommand;

class TestAudioPlan : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void theSoundIsAsAskedAndAsItsCodecAllows_data();
    void theSoundIsAsAskedAndAsItsCodecAllows() { compareWithRow(); }
    void itsOwnCodecIsCopiedUnlessSomethingElseIsAsked_data();
    void itsOwnCodecIsCopiedUnlessSomethingElseIsAsked() { compareWithRow(); }
    void aFilmsAudioGetsNoMoreThanItsSource_data();
    void aFilmsAudioGetsNoMoreThanItsSource() { compareWithRow(); }
    void losslessSoundKeepsItsBits_data();
    void losslessSoundKeepsItsBits() { compareWithRow(); }
    void theSpeakersAreThoseThatTheCodecKnows_data();
    void theSpeakersAreThoseThatTheCodecKnows() { compareWithRow(); }
};

void TestAudioPlan::theSoundIsAsAskedAndAsItsCodecAllows_data()
{
    addColumns();
    const MediaFacts dubbed = facts(film(), [](MediaFacts &f) {
        f.audioTracks = {sound(QStringLiteral("aac"), 1),
                         sound(QStringLiteral("opus"), 2, 48000, 6),
                         sound(QStringLiteral("mp3"), 3, 22050, 1)};
        f.audioTracks[1].isDefault = true;
        for (int i = 0; i < 3; ++i) {
            f.audioTracks[i].number = i + 1;
        }
    });
    const std::function<void(OutputSettings &)> allTracks = [](OutputSettings &s) {
        s.audioCodec = QStringLiteral("ac3");
    };
    row("one track: the default one",
        with(video("mp4"), [](OutputSettings &s) { s.audioTracks = {TrackChoice::First}; }), dubbed,
        "-map 0:0 -map 0:2 -c:v:0 copy -c:a:0 copy -movflags +faststart -f mp4");
    row("all tracks, each with its own settings", with(video("mp4"), allTracks), dubbed,
        "-map 0:0 -map 0:1 -map 0:2 -map 0:3 -c:v:0 copy -c:a:0 ac3 -b:a:0 192k "
        "-c:a:1 ac3 -b:a:1 576k -c:a:2 ac3 -ar:a:2 32000 -b:a:2 96k -movflags +faststart -f mp4");
    row("all tracks where the file holds one", with(video("flv"), allTracks), dubbed,
        "-map 0:0 -map 0:2 -c:v:0 copy -c:a:0 ac3 -b:a:0 576k -f flv");
    const auto chosen = [](const char *extension, const char *tracks) {
        return with(video(extension), [tracks](OutputSettings &s) {
            s.audioTracks = *TrackChoice::fromText(QString::fromLatin1(tracks));
        });
    };
    row("the tracks with these numbers", chosen("mp4", "1,3"), dubbed,
        "-map 0:0 -map 0:1 -map 0:3 -c:v:0 copy -c:a:0 copy -c:a:1 copy "
        "-movflags +faststart -f mp4");
    row("another default track", chosen("mp4", "2,3/3"), dubbed,
        "-map 0:0 -map 0:2 -map 0:3 -c:v:0 copy -c:a:0 copy -disposition:a:0 -default "
        "-c:a:1 copy -disposition:a:1 +default -movflags +faststart -f mp4");
    row("the chosen default track where the file holds one", chosen("flv", "1,3/3"), dubbed,
        "-map 0:0 -map 0:3 -c:v:0 copy -c:a:0 copy -disposition:a:0 +default -f flv");
    row("the first chosen track where the default one isn't", chosen("flv", "1,3"), dubbed,
        "-map 0:0 -map 0:1 -c:v:0 copy -c:a:0 copy -f flv");
    row("no sound on demand", chosen("mp4", "none"), dubbed,
        "-map 0:0 -c:v:0 copy -movflags +faststart -f mp4");
    row("a film without sound", video("mp4"),
        facts(film(), [](MediaFacts &f) { f.audioTracks.clear(); }),
        "-map 0:0 -c:v:0 copy -movflags +faststart -f mp4");
    row("the sound of a film", audio("mp3", "mp3"), film(),
        "-map 0:1 -c:a:0 libmp3lame -q:a:0 2 -f mp3");
    row("only as many channels as the codec has", audio("mp3", "mp3"),
        song(QStringLiteral("flac"), 96000, 6),
        "-map 0:0 -c:a:0 libmp3lame -ar:a:0 48000 -ac:a:0 2 -q:a:0 2 -f mp3");
    row("as asked",
        with(audio("m4a", "aac"),
             [](OutputSettings &s) {
                 s.sampleRate = 22050;
                 s.channels = 1;
                 s.audioKbps = 64;
             }),
        song(QStringLiteral("flac")),
        "-map 0:0 -c:a:0 aac -ar:a:0 22050 -ac:a:0 1 -b:a:0 64k -movflags +faststart -f ipod");
    const OutputSettings stereo192 = with(audio("m4a", "aac"), [](OutputSettings &s) {
        s.channels = 2;
        s.audioKbps = 192;
    });
    row("a bitrate meant for stereo is halved for mono", stereo192,
        song(QStringLiteral("flac"), 44100, 1),
        "-map 0:0 -c:a:0 aac -b:a:0 96k -movflags +faststart -f ipod");
    row("a bitrate meant for stereo stays for stereo", stereo192, song(QStringLiteral("flac")),
        "-map 0:0 -c:a:0 aac -b:a:0 192k -movflags +faststart -f ipod");
    row("kept sound", audio("m4a"), song(QStringLiteral("alac")),
        "-map 0:0 -c:a:0 copy -movflags +faststart -f ipod");
    row("kept codec, other rate of samples",
        with(audio("flac"), [](OutputSettings &s) { s.sampleRate = 44100; }),
        song(QStringLiteral("flac"), 96000), "-map 0:0 -c:a:0 flac -ar:a:0 44100 -f flac");
    row("copied sound of a codec that isn't written", audio("mka"), song(QStringLiteral("truehd")),
        "-map 0:0 -c:a:0 copy -f matroska");
    row("another codec than one that isn't written",
        with(audio("mka"), [](OutputSettings &s) { s.channels = 1; }),
        song(QStringLiteral("truehd")), "-map 0:0 -c:a:0 aac -ac:a:0 1 -b:a:0 96k -f matroska");
    row("the nearest rate that the codec has", audio("opus", "opus"), song(QStringLiteral("mp3")),
        "-map 0:0 -c:a:0 libopus -ar:a:0 48000 -b:a:0 128k -f opus");
    row("the container's only rate", video("mxf", "mpeg2video", "pcm_s16le"),
        facts(film(), [](MediaFacts &f) { f.audioTracks[0].sampleRate = 44100; }),
        "-map 0:0 -map 0:1 -c:v:0 mpeg2video -r:v:0 25 -fps_mode:v:0 cfr -pix_fmt:v:0 yuv420p "
        "-q:v:0 4 -c:a:0 pcm_s16le "
        "-ar:a:0 48000 -f mxf");
    row("the container's only number of channels", video("dv"),
        facts(film(), [](MediaFacts &f) { f.audioTracks[0].channels = 1; }),
        "-map 0:0 -map 0:1 -c:v:0 dvvideo -r:v:0 25 -fps_mode:v:0 cfr -filter:v:0 "
        "scale=720:576,pad=720:576:(ow-iw)/2:(oh-ih)/2,setsar=64/45 -pix_fmt:v:0 yuv420p "
        "-c:a:0 pcm_s16le -ac:a:0 2 -filter:a:0 apad,asetpts=PTS-0.04/TB -shortest -f dv");
    row("more bits than the encoder starts with",
        with(audio("ogg", "vorbis"), [](OutputSettings &s) { s.audioKbps = 320; }),
        song(QStringLiteral("mp3"), 22050, 1), "-map 0:0 -c:a:0 libvorbis -b:a:0 85k -f ogg");
    row("fewer bits than the encoder starts with",
        with(audio("ogg", "vorbis"), [](OutputSettings &s) { s.audioKbps = 16; }),
        song(QStringLiteral("mp3")), "-map 0:0 -c:a:0 libvorbis -b:a:0 67k -f ogg");
    row("sound that isn't stereo needs more",
        with(audio("ogg", "vorbis"), [](OutputSettings &s) { s.audioKbps = 16; }),
        song(QStringLiteral("mp3"), 44100, 1), "-map 0:0 -c:a:0 libvorbis -b:a:0 49k -f ogg");
    row("lossless knows no bitrate",
        with(audio("wav", "pcm_s24le"), [](OutputSettings &s) { s.audioKbps = 320; }),
        song(QStringLiteral("mp3")), "-map 0:0 -c:a:0 pcm_s24le -f wav");
    row("channels without a layout get the usual one", audio("m4a", "aac"),
        facts(song(QStringLiteral("tta")), [](MediaFacts &f) { f.audioTracks[0].layout.clear(); }),
        "-map 0:0 -c:a:0 aac -ac:a:0 2 -b:a:0 192k -movflags +faststart -f ipod");
    row("unknown rate and channels are left to ffmpeg", audio("m4a", "aac"),
        song(QStringLiteral("mp3"), 0, 0), "-map 0:0 -c:a:0 aac -movflags +faststart -f ipod");

    row("of two rates as near the higher one",
        with(audio("m4a", "aac"), [](OutputSettings &s) { s.sampleRate = 28000; }),
        song(QStringLiteral("flac")),
        "-map 0:0 -c:a:0 aac -ar:a:0 32000 -b:a:0 192k -movflags +faststart -f ipod");
    row("of two bitrates as near the higher one",
        with(audio("mp3", "mp3"), [](OutputSettings &s) { s.audioKbps = 36; }),
        song(QStringLiteral("flac")), "-map 0:0 -c:a:0 libmp3lame -b:a:0 40k -f mp3");
}

void TestAudioPlan::itsOwnCodecIsCopiedUnlessSomethingElseIsAsked_data()
{
    addColumns();
    const OutputSettings mp3 = audio("mp3", "mp3");
    const MediaFacts source = song(QStringLiteral("mp3"));
    row("nothing else", mp3, source, "-map 0:0 -c:a:0 copy -f mp3");
    row("the rate and channels that it has",
        with(mp3,
             [](OutputSettings &s) {
                 s.sampleRate = 44100;
                 s.channels = 2;
             }),
        source, "-map 0:0 -c:a:0 copy -f mp3");
    row("more channels than it has", with(mp3, [](OutputSettings &s) { s.channels = 6; }), source,
        "-map 0:0 -c:a:0 copy -f mp3");
    row("a bitrate", with(mp3, [](OutputSettings &s) { s.audioKbps = 128; }), source,
        "-map 0:0 -c:a:0 libmp3lame -b:a:0 128k -f mp3");
    row("another rate", with(mp3, [](OutputSettings &s) { s.sampleRate = 48000; }), source,
        "-map 0:0 -c:a:0 libmp3lame -ar:a:0 48000 -q:a:0 2 -f mp3");
    row("fewer channels", with(mp3, [](OutputSettings &s) { s.channels = 1; }), source,
        "-map 0:0 -c:a:0 libmp3lame -ac:a:0 1 -q:a:0 2 -f mp3");
}

/*! The film with audio of so many kbps. */
static MediaFacts filmOf(const char *codec, double kbps, int channels = 2)
{
    return facts(film(), [codec, kbps, channels](MediaFacts &f) {
        f.audioTracks = {sound(QLatin1String(codec), 1, 48000, channels)};
        f.audioTracks[0].kbps = kbps;
    });
}

void TestAudioPlan::aFilmsAudioGetsNoMoreThanItsSource_data()
{
    addColumns();
    const auto stereo192 = [](OutputSettings &s) {
        s.audioKbps = 192;
        s.channels = 2;
    };
    const OutputSettings mp4 = with(video("mp4", "", "aac"), stereo192);
    const auto mp4Row = [&mp4](const char *name, const MediaFacts &source, const char *audio) {
        const QByteArray output = QByteArray("-map 0:0 -map 0:1 -c:v:0 copy -c:a:0 ") + audio +
                                  " -movflags +faststart -f mp4";
        row(name, mp4, source, output.constData());
    };
    mp4Row("its own codec with less is copied", filmOf("aac", 96.3), "copy");
    mp4Row("so is one a little above", filmOf("aac", 194), "copy");
    mp4Row("more is encoded", filmOf("aac", 256), "aac -b:a:0 192k");
    mp4Row("an unknown bitrate is encoded", filmOf("aac", 0), "aac -b:a:0 192k");
    mp4Row("another codec gets the source's", filmOf("mp3", 159.6), "aac -b:a:0 160k");
    mp4Row("another codec with more", filmOf("mp3", 320), "aac -b:a:0 192k");
    mp4Row("another codec with too little for this one", filmOf("opus", 48), "aac -b:a:0 128k");
    mp4Row("mono has half of the bitrate", filmOf("aac", 127, 1), "aac -b:a:0 96k");
    mp4Row("surround is mixed down", filmOf("aac", 160, 6), "aac -ac:a:0 2 -b:a:0 160k");
    row("lossless gets the preset's", mp4,
        facts(filmOf("flac", 150), [](MediaFacts &f) { f.audioTracks[0].bitsPerSample = 16; }),
        "-map 0:0 -map 0:1 -c:v:0 copy -c:a:0 aac -b:a:0 192k -movflags +faststart -f mp4");
    row("an audio preset's bitrate is kept", with(audio("m4a", "aac"), stereo192),
        filmOf("aac", 96), "-map 0:1 -c:a:0 aac -b:a:0 192k -movflags +faststart -f ipod");
}

/*! A lossless song of so many bits. */
static MediaFacts deepSong(const char *codec, int bits, const char *format)
{
    return facts(song(QLatin1String(codec), 96000), [bits, format](MediaFacts &f) {
        f.audioTracks[0].bitsPerSample = bits;
        f.audioTracks[0].sampleFormat = QLatin1String(format);
    });
}

void TestAudioPlan::losslessSoundKeepsItsBits_data()
{
    addColumns();
    row("24 bits of flac", audio("wav"), deepSong("flac", 24, "s32"),
        "-map 0:0 -c:a:0 pcm_s24le -f wav");
    row("16 bits of flac", audio("wav"), deepSong("flac", 16, "s16"),
        "-map 0:0 -c:a:0 pcm_s16le -f wav");
    row("in the container's order of bytes", audio("aiff"), deepSong("pcm_s24le", 24, "s32"),
        "-map 0:0 -c:a:0 pcm_s24be -write_id3v2 1 -f aiff");
    row("copied where it is held", audio("wav"), deepSong("pcm_f32le", 32, "flt"),
        "-map 0:0 -c:a:0 copy -f wav");
    row("floating ones", audio("wav"), deepSong("pcm_f64be", 64, "dbl"),
        "-map 0:0 -c:a:0 pcm_f32le -f wav");
    row("16 bits where they are asked for", audio("wav", "pcm_s16le"), deepSong("flac", 24, "s32"),
        "-map 0:0 -c:a:0 pcm_s16le -f wav");
    const auto filmWith = [](const MediaFacts &sound) {
        return facts(film(), [&sound](MediaFacts &f) {
            f.audioTracks = sound.audioTracks;
            f.audioTracks[0].index = 1;
        });
    };
    row("in a film's preset, which only says PCM", video("mov", "h264", "pcm_s16le"),
        filmWith(deepSong("flac", 24, "s32")),
        "-map 0:0 -map 0:1 -c:v:0 copy -c:a:0 pcm_s24le -movflags +faststart -f mov");
    row("compressed stays compressed", video("mkv"), filmWith(deepSong("alac", 24, "s32p")),
        "-map 0:0 -map 0:1 -c:v:0 copy -c:a:0 copy -f matroska");
    row("lossy where nothing else is held", video("webm", "vp9"),
        facts(filmWith(deepSong("flac", 24, "s32")),
              [](MediaFacts &f) { f.videoTracks[0].codec = QStringLiteral("vp9"); }),
        "-map 0:0 -map 0:1 -c:v:0 copy -c:a:0 libopus -ar:a:0 48000 -b:a:0 128k -f webm");
}

void TestAudioPlan::theSpeakersAreThoseThatTheCodecKnows_data()
{
    addColumns();
    const MediaFacts cinema = facts(song(QStringLiteral("ac3"), 48000, 6), [](MediaFacts &f) {
        f.audioTracks[0].layout = QStringLiteral("5.1(side)");
    });
    row("side speakers become those at the back", audio("opus", "opus"), cinema,
        "-map 0:0 -c:a:0 libopus -filter:a:0 aformat=channel_layouts=5.1 -b:a:0 384k -f opus");
    row("side speakers stay", audio("mka", "flac"), cinema, "-map 0:0 -c:a:0 flac -f matroska");
    row("stereo of them", with(audio("opus", "opus"), [](OutputSettings &s) { s.channels = 2; }),
        cinema, "-map 0:0 -c:a:0 libopus -ac:a:0 2 -b:a:0 128k -f opus");
}

QTEST_GUILESS_MAIN(TestAudioPlan)
#include "tst_audioplan.moc"
