#ifndef HOST_CONVERT_PLANNEDCOMMAND_H
#define HOST_CONVERT_PLANNEDCOMMAND_H

#include "host/convert/ffmpegarguments.h"

#include <QtTest>

#include <functional>

Q_DECLARE_METATYPE(OutputSettings)
Q_DECLARE_METATYPE(MediaFacts)

/*! Settings and sources to plan with, and what the plans come to as arguments of ffmpeg. */
namespace PlannedCommand {

inline QSet<QString> usualEncoders()
{
    QSet<QString> encoders;
    const QStringList names =
        QStringLiteral("libx264 libx265 libvpx libvpx-vp9 libsvtav1 libaom-av1 mpeg4 mpeg2video "
                       "mpeg1video wmv2 flv libtheora prores dnxhd gif dvvideo msmpeg4 aac "
                       "libmp3lame mp2 ac3 flac alac libvorbis libopus wmav2 pcm_s16le pcm_s24le "
                       "pcm_s24be pcm_f32le tta truehd")
            .split(QLatin1Char(' '));
    for (const QString &name : names) {
        encoders.insert(name);
    }
    return encoders;
}

inline VideoTrack picture(const QString &codec, const QSize &size)
{
    VideoTrack track;
    track.index = 0;
    track.codec = codec;
    track.storedSize = size;
    track.frameRate = {25, 1};
    return track;
}

inline AudioTrack sound(const QString &codec, int index = 1, int sampleRate = 48000,
                        int channels = 2)
{
    AudioTrack track;
    track.index = index;
    track.codec = codec;
    track.sampleRate = sampleRate;
    track.channels = channels;
    track.layout = QStringLiteral("mono");
    return track;
}

/*! A film of h264 and aac, full HD, 25 fps, 48000 Hz stereo. */
inline MediaFacts film()
{
    MediaFacts facts;
    facts.container = QStringLiteral("mov,mp4");
    facts.videoTracks = {picture(QStringLiteral("h264"), QSize(1920, 1080))};
    facts.audioTracks = {sound(QStringLiteral("aac"))};
    return facts;
}

inline MediaFacts song(const QString &codec, int sampleRate = 44100, int channels = 2)
{
    MediaFacts facts;
    facts.container = QStringLiteral("mov,mp4");
    facts.audioTracks = {sound(codec, 0, sampleRate, channels)};
    return facts;
}

inline OutputSettings video(const char *extension, const char *videoCodec = "",
                            const char *audioCodec = "")
{
    OutputSettings settings;
    settings.extension = QLatin1String(extension);
    settings.hasVideo = true;
    settings.videoCodec = QLatin1String(videoCodec);
    settings.audioCodec = QLatin1String(audioCodec);
    return settings;
}

inline OutputSettings audio(const char *extension, const char *audioCodec = "")
{
    OutputSettings settings = video(extension, "", audioCodec);
    settings.hasVideo = false;
    return settings;
}

template <typename Thing>
Thing changed(Thing thing, const std::function<void(Thing &)> &change)
{
    change(thing);
    return thing;
}

/*! A row of a table of tests, with what ffmpeg is to write between its source and its target. */
inline void row(const char *name, const OutputSettings &settings, const MediaFacts &source,
                const char *output)
{
    QTest::newRow(name) << settings << source << QString::fromLatin1(output);
}

inline OutputSettings with(const OutputSettings &base,
                           const std::function<void(OutputSettings &)> &change)
{
    return changed<OutputSettings>(base, change);
}

inline MediaFacts facts(const MediaFacts &base, const std::function<void(MediaFacts &)> &change)
{
    return changed<MediaFacts>(base, change);
}

/*! What stands in front of the output. */
inline const QString head =
    QStringLiteral("-progress pipe:1 -y -protocol_whitelist file -format_whitelist mov,mp4 "
                   "-i file:/in ");

/*! Compares the whole command with that of the row. */
inline void compareWithRow()
{
    QFETCH(OutputSettings, settings);
    QFETCH(MediaFacts, source);
    QFETCH(QString, output);
    const Result<QStringList> formed = ffmpegArguments(
        settings, source, usualEncoders(), QStringLiteral("/in"), QStringLiteral("/out"));
    QVERIFY2(formed, formed ? "" : qPrintable(formed.error().text));
    QCOMPARE(formed->join(QLatin1Char(' ')), head + output + QStringLiteral(" file:/out"));
}

inline void addColumns()
{
    QTest::addColumn<OutputSettings>("settings");
    QTest::addColumn<MediaFacts>("source");
    QTest::addColumn<QString>("output");
}

} // namespace PlannedCommand

#endif
