#ifndef MEDIA_MEDIAFACTS_H
#define MEDIA_MEDIAFACTS_H

#include "host/media/tracks.h"

#include <QByteArray>
#include <QCoreApplication>
#include <QSize>
#include <QString>
#include <QVector>

/*! What a media file holds. */
struct MediaFacts
{
    Q_DECLARE_TR_FUNCTIONS(MediaFacts)
public:
    QString container; //!< ffprobe's names for the kind of file, "mov,mp4,m4a,3gp,3g2,mj2"
    QVector<VideoTrack> videoTracks;
    QVector<AudioTrack> audioTracks;
    QVector<SubtitleTrack> subtitleTracks;
    QVector<Attachment> attachments;
    int chapters = 0;
    QString creationTime; //!< "2020-05-06T07:08:09.000000Z"; empty where the file doesn't say
    QString location;     //!< "+48.1000+011.5000/"; the same
    double duration = 0;  //!< seconds, 0 when unknown
    qint64 bytes = 0;

    /*! Reads ffprobe's JSON (-show_format -show_streams); what is no such JSON gives no tracks.
     *  What a file says that can't be true is unknown. */
    [[nodiscard]] static MediaFacts fromProbe(const QByteArray &json);

    [[nodiscard]] bool isEmpty() const { return videoTracks.isEmpty() && audioTracks.isEmpty(); }
    /*! The moving picture a player would show; null when there is none. Covers don't count. */
    [[nodiscard]] const VideoTrack *video() const;
    /*! The attached still picture; null when there is none. */
    [[nodiscard]] const VideoTrack *cover() const;
    /*! The track that a player would play; null when there is none. */
    [[nodiscard]] const AudioTrack *audio() const;
    /*! Whether the file is a single picture. */
    [[nodiscard]] bool isStill() const;
    /*! Whether the file tells no length, so that it is guessed from its bytes or its last time
     *  stamp. */
    [[nodiscard]] bool hasGuessedDuration() const;
    /*! One line for people: "h264 1280x720 25 fps, aac 48000 Hz stereo, 0:10, 1.2 MB". */
    [[nodiscard]] QString summary() const;
};

/*! \a seconds where a file may last that long, else 0: unknown. */
[[nodiscard]] double plausibleSeconds(double seconds);

#endif
