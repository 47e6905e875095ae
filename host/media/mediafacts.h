#ifndef MEDIA_MEDIAFACTS_H
#define MEDIA_MEDIAFACTS_H

#include "host/media/ratio.h"

#include <QByteArray>
#include <QCoreApplication>
#include <QSize>
#include <QString>
#include <QVector>

/*! One video stream of a media file. */
struct VideoTrack
{
    int index = -1; //!< stream number in the file
    QString codec;  //!< as ffprobe names it, for example "h264"
    QSize storedSize;
    Ratio pixelAspect = {1, 1};
    int rotation = 0; //!< quarter turns needed to show it upright, in degrees: 0, 90, 180, 270
    Ratio frameRate;  //!< not valid when the file doesn't say
    bool hasSteadyRate = true; //!< false: the rate is an average
    bool isDefault = false;
    bool isCover = false; //!< a still picture attached to a sound file

    /*! The size as shown: upright, with square pixels. */
    [[nodiscard]] QSize displaySize() const;
};

/*! One audio stream of a media file. */
struct AudioTrack
{
    int index = -1;
    QString codec;
    int sampleRate = 0;     //!< Hz, 0 when unknown
    int channels = 0;       //!< 0 when unknown
    bool hasLayout = false; //!< the file says where each channel is heard
    bool isDefault = false;
};

/*! What a media file holds. */
struct MediaFacts
{
    Q_DECLARE_TR_FUNCTIONS(MediaFacts)
public:
    QString container; //!< ffprobe's names for the kind of file, "mov,mp4,m4a,3gp,3g2,mj2"
    QVector<VideoTrack> videoTracks;
    QVector<AudioTrack> audioTracks;
    double duration = 0; //!< seconds, 0 when unknown
    qint64 bytes = 0;

    /*! Reads ffprobe's JSON (-show_format -show_streams); what is no such JSON gives no tracks.
     *  What a file says that can't be true is unknown. */
    [[nodiscard]] static MediaFacts fromProbe(const QByteArray &json);

    [[nodiscard]] bool isEmpty() const { return videoTracks.isEmpty() && audioTracks.isEmpty(); }
    /*! The moving picture a player would show; null when there is none. Covers don't count. */
    [[nodiscard]] const VideoTrack *picture() const;
    /*! The attached still picture; null when there is none. */
    [[nodiscard]] const VideoTrack *cover() const;
    /*! The track that a player would play; null when there is none. */
    [[nodiscard]] const AudioTrack *sound() const;
    /*! One line for people: "h264 1280x720 25 fps, aac 48000 Hz stereo, 0:10, 1.2 MB". */
    [[nodiscard]] QString summary() const;
};

/*! "1280x720". */
[[nodiscard]] QString sizeText(const QSize &size);

/*! \a seconds where a file may last that long, else 0: unknown. */
[[nodiscard]] double plausibleSeconds(double seconds);

/*! "0:09", "12:30" or "1:02:03"; "0:00" for seconds that aren't plausible. */
[[nodiscard]] QString clockText(double seconds);

#endif
