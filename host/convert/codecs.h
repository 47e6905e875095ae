#ifndef CONVERT_CODECS_H
#define CONVERT_CODECS_H

#include "host/media/ratio.h"

#include <QByteArray>
#include <QSet>
#include <QSize>
#include <QString>
#include <QVector>

/*!
 * How ffmpeg writes a video codec, and what its encoders allow. Lists are texts with blanks
 * between; an empty one allows everything.
 */
struct VideoCodec
{
    struct Encoder
    {
        const char *name;
        const char *options; //!< "name=value name=value", always given
        const char *quality; //!< the same, given when no bitrate is asked for
    };
    /*! A picture of fixed size, rate and pixel shape, as studio formats have it. */
    struct Frame
    {
        QSize size;
        Ratio pixelAspect;
        Ratio frameRate;
        const char *pixelFormat;
    };

    const char *name = "";
    QVector<Encoder> encoders = {}; //!< the best first; empty: ffmpeg's encoder of the same name
    const char *pixelFormat = "";
    bool takesBitrate = true;
    const char *frameRates = "";
    const char *filter = "";    //!< goes behind all other filters
    QVector<Frame> frames = {}; //!< the only ones allowed; empty: any
};

/*! The same for an audio codec. */
struct AudioCodec
{
    const char *name = "";
    QVector<const char *> encoders = {};
    int maxChannels = 8;
    const char *sampleRates = ""; //!< Hz
    int kbpsPerChannel = 0;       //!< good quality; 0: the quality options say it, or it's lossless
    const char *quality = "";     //!< given when no bitrate is asked for
    bool takesBitrate = false;
    const char *bitrates = ""; //!< kbps
    double maxBitsPerSample = 32;
    double minBitsPerSample = 0;
    double minBitsUnlessStereo = 0; //!< more than that for sound of other than two channels
    bool isOnlyCopied = false;      //!< ffmpeg has no encoder for it that is fit for use
};

/*! The codec of this name as ffprobe prints it. One that needs no more than ffmpeg's encoder of the
 *  same name has no name here. */
[[nodiscard]] const VideoCodec &videoCodec(const QString &name);
[[nodiscard]] const AudioCodec &audioCodec(const QString &name);

/*! The encoders' names in the list that ffmpeg prints for -encoders. */
[[nodiscard]] QSet<QString> encodersInListing(const QByteArray &listing);

#endif
