#ifndef CONVERT_CONTAINERS_H
#define CONVERT_CONTAINERS_H

#include "host/convert/tooloptions.h"

#include <QStringList>
#include <QVector>

/*! A container format: how ffmpeg writes it, and what it can hold. An empty list of sample rates
 *  allows any. */
struct Container
{
    /*! How the container stores when a frame is shown. */
    enum class Times {
        Any,        //!< each frame has a timestamp
        Gaps,       //!< by frame number; frames may be missing
        EveryFrame, //!< by frame number; none may be missing
    };

    QStringList extensions; //!< without dot
    QString muxer;
    QString demuxer; //!< ffprobe's name for such files
    ToolOptions options = {};
    QStringList videoCodecs = {};     //!< supported ones, the usual one first; empty: audio only
    QStringList audioCodecs = {};     //!< the same; empty: no audio
    QStringList subtitleCodecs = {};  //!< supported ones
    QString textSubtitles = {};       //!< codec for unsupported text subtitles; empty: none
    ToolOptions subtitleOptions = {}; //!< of the muxer, if there are subtitles
    bool holdsSeveralAudioTracks = false;
    bool holdsChapters = false;
    bool holdsAttachments = false;
    bool titlesAreHandlers = false; //!< stores track titles as handler names
    bool takesCover = false;
    bool keepsRotation = false;    //!< stores a rotation that players apply
    bool tagsHevcAsHvc1 = false;   //!< the HEVC tag that all players support
    bool hasAudioInFrames = false; //!< a video frame also contains its audio
    bool isForBroadcast = false;   //!< its players expect interlaced video
    Times times = Times::Any;
    QVector<int> sampleRates = {}; //!< Hz, ascending
    int channels = 0;              //!< the only number supported; 0: any

    /*! The container with this extension, in any case; null if there is none. */
    [[nodiscard]] static const Container *find(const QString &extension);
};

#endif
