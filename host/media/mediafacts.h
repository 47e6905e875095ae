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
    QString container; //!< ffprobe's names for the format, "mov,mp4,m4a,3gp,3g2,mj2"
    QVector<VideoTrack> videoTracks;
    QVector<AudioTrack> audioTracks;
    QVector<SubtitleTrack> subtitleTracks;
    QVector<Attachment> attachments;
    int chapters = 0;
    QString creationTime; //!< "2020-05-06T07:08:09.000000Z"; empty if the file doesn't say
    QString location;     //!< "+48.1000+011.5000/"; empty if the file doesn't say
    double duration = 0;  //!< seconds, 0 when unknown
    qint64 bytes = 0;

    /*! Reads ffprobe's JSON (-show_format -show_streams -show_chapters); anything else gives no
     *  tracks. Implausible values count as unknown. */
    [[nodiscard]] static MediaFacts fromProbe(const QByteArray &json);

    [[nodiscard]] bool isEmpty() const { return videoTracks.isEmpty() && audioTracks.isEmpty(); }
    /*! The video track that a player would show; null if there is none. Covers don't count. */
    [[nodiscard]] const VideoTrack *video() const;
    /*! The attached cover image; null if there is none. */
    [[nodiscard]] const VideoTrack *cover() const;
    /*! The audio track that a player would play; null if there is none. */
    [[nodiscard]] const AudioTrack *audio() const;
    /*! Whether the file is a single image. */
    [[nodiscard]] bool isStill() const;
    /*! Whether the format stores no duration, so that ffprobe estimates it from the file size or
     *  the last timestamp. */
    [[nodiscard]] bool hasGuessedDuration() const;
    /*! One line for the user: "h264 1280x720 25 fps, aac 48000 Hz stereo, 0:10, 1.2 MB". */
    [[nodiscard]] QString summary() const;
};

/*! \a seconds if a file can be that long, else 0: unknown. */
[[nodiscard]] double plausibleSeconds(double seconds);

#endif
