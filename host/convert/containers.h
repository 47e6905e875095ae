#ifndef CONVERT_CONTAINERS_H
#define CONVERT_CONTAINERS_H

#include "host/convert/tooloptions.h"

#include <QStringList>
#include <QVector>

/*! How ffmpeg writes files of one kind, and what they can hold. An empty list of rates allows
 *  everything. */
struct Container
{
    /*! How it says when a frame is shown. */
    enum class Times {
        Any,        //!< with a time for each
        Gaps,       //!< by its number; one may be left out
        EveryFrame, //!< by its number
    };

    QStringList extensions; //!< without dot
    QString muxer;
    QString demuxer; //!< as ffprobe names such files
    ToolOptions options = {};
    QStringList videoCodecs = {};     //!< those it holds, the usual one first; empty: sound only
    QStringList audioCodecs = {};     //!< the same; empty: no sound
    QStringList subtitleCodecs = {};  //!< those it holds
    QString textSubtitles = {};       //!< what text becomes that it doesn't hold; empty: nothing
    ToolOptions subtitleOptions = {}; //!< of the muxer, where there are subtitles
    bool holdsSeveralAudioTracks = false;
    bool holdsChapters = false;
    bool holdsAttachments = false;
    bool titlesAreHandlers = false; //!< a track's title stands where others name its software
    bool takesCover = false;
    bool keepsRotation = false;    //!< holds the turn of a picture that players apply
    bool tagsHevcAsHvc1 = false;   //!< the form of hevc that all players of this container know
    bool hasSoundInFrames = false; //!< a frame of the picture can't be written before its sound
    bool isForBroadcast = false;   //!< its players expect the fields of an interlaced picture
    Times times = Times::Any;
    QVector<int> sampleRates = {}; //!< Hz, ascending
    int channels = 0;              //!< the only number allowed; 0: any

    /*! The container of this extension, in whatever case; null when there is none. */
    [[nodiscard]] static const Container *find(const QString &extension);
};

#endif
