#ifndef CONVERT_CONTAINERS_H
#define CONVERT_CONTAINERS_H

#include <QString>
#include <QStringList>

/*! How ffmpeg writes files of one extension, and what they can hold. */
struct Container
{
    enum Trait {
        None = 0,
        SeveralAudioTracks = 1,
        TakesCover = 2,
        KeepsRotation = 4,    //!< holds the turn of a picture that players apply
        TagsHevcAsHvc1 = 8,   //!< the form of hevc that all players of this container know
        SoundInEachFrame = 16 //!< a frame of the picture can't be written before its sound
    };

    const char *extensions; //!< without dot
    const char *muxer;
    const char *demuxer;     //!< as ffprobe names such files
    const char *options;     //!< "name=value name=value" for the muxer
    const char *videoCodecs; //!< those it holds, the usual one first; empty: sound only
    const char *audioCodecs; //!< the same; empty: no sound
    int traits;
    const char *sampleRates = ""; //!< the only ones allowed, in Hz; empty: any
    int channels = 0;             //!< the only number allowed; 0: any

    /*! The container of this extension, in whatever case; null when there is none. */
    [[nodiscard]] static const Container *find(const QString &extension);

    [[nodiscard]] bool has(Trait trait) const { return (traits & trait) != 0; }
};

#endif
