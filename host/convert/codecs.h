#ifndef CONVERT_CODECS_H
#define CONVERT_CODECS_H

#include "host/convert/tooloptions.h"
#include "host/media/tracks.h"

#include <QSize>
#include <QStringList>
#include <QVector>

/*! How ffmpeg writes a video codec, and what its encoders allow. An empty list allows everything.
 */
struct VideoCodec
{
    /*! How an encoder keeps a constant quality below a bitrate. */
    enum class Ceiling {
        Buffered,       //!< its quality, with a buffer that fills at the bitrate
        Capped,         //!< the same, but it takes no average together with a buffer
        Targeted,       //!< the same, and it has to know the bitrate as its target, too
        LeastQuantiser, //!< the bitrate, with its quality as the finest quantiser
        BitsPerPixel,   //!< it can't: the bitrate is no higher than the picture needs
    };
    /*! The option for the quality of the picture. */
    struct Quality
    {
        QString option;
        double usual = 0;
        double step = 0; //!< from the usual to the high quality, and back to the low one
        double finest = 0;
    };
    struct Encoder
    {
        QString name;
        ToolOptions options = {}; //!< always given
        Quality quality = {};     //!< no option: the encoder sets its quality itself
        Ceiling ceiling = Ceiling::Buffered;
        ToolOptions unlimited = {}; //!< given when no bitrate is asked for
        ToolOption level = {};      //!< takes the level of a device as "%1"
        ToolOptions passes = {};    //!< with the pass as "%1" and its file as "%2"; empty: only one
    };
    /*! A picture of fixed size, rate and pixel shape, as studio formats have it. */
    struct Frame
    {
        QSize size;
        Ratio pixelAspect;
        Ratio frameRate;
        QString pixelFormat;
    };

    /*! A pixel format, and the options that it needs. */
    struct Pixels
    {
        QString format;
        ToolOptions options = {};
    };

    QString name;
    QVector<Encoder> encoders = {}; //!< the best first; empty: ffmpeg's encoder of the same name
    QString pixelFormat = {};       //!< empty: the encoder's own
    Pixels deepPixels = {};         //!< for sources of more than 8 bits; empty: as the others
    Pixels alphaPixels = {};        //!< for sources that let shine through; empty: as the others
    Colour ownColour = {};          //!< the matrix and range that all its players assume
    bool isTaggedByFrames = false;  //!< the encoder asks each frame for its colours, not ffmpeg
    bool takesBitrate = true;
    QVector<Ratio> frameRates = {};  //!< ascending
    bool takesAnyTime = false;       //!< frames may be shown when they like, not in steps of a rate
    ToolOptions fieldOptions = {};   //!< those that keep fields; empty: it can't keep them
    bool isBottomFieldFirst = false; //!< and never the other way round
    bool hasPalette = false;         //!< its colours are few, and chosen for each film
    QVector<Frame> frames = {};      //!< the only ones allowed
    double leastBitsPerPixel = 0.06; //!< with fewer a film looks poor
    int keyFrameInterval = 250;      //!< frames at most, where none is asked for
    int busyCores = 1;               //!< that its encoder keeps busy with a film in HD

    /*! The encoders' names for ffmpeg, the best first. */
    [[nodiscard]] QStringList encoderNames() const;
};

/*! The same for an audio codec. */
struct AudioCodec
{
    QString name;
    QStringList encoders = {};
    int maxChannels = 8;
    QVector<int> sampleRates = {}; //!< Hz, ascending
    bool knowsSideSpeakers = true; //!< as others than the ones at the back
    int kbpsPerChannel = 0;        //!< good quality; 0: \a quality says it, or it's lossless
    ToolOptions quality = {};      //!< given when no bitrate is asked for
    bool takesBitrate = false;
    QVector<double> bitrates = {};   //!< kbps, ascending
    bool hasConstantBitrate = false; //!< its encoder fills each frame to the bitrate
    double maxBitsPerSample = 32;
    double minBitsPerSample = 0;
    double minBitsUnlessStereo = 0; //!< the same for audio of other than two channels
    bool isOnlyCopied = false;      //!< ffmpeg has no encoder for it that is fit for use

    /*! The encoders' names for ffmpeg, the best first; none where it is only copied. */
    [[nodiscard]] QStringList encoderNames() const;
};

/*! The codec of this name, as ffprobe prints it. One that isn't in the table has no limits. */
[[nodiscard]] VideoCodec videoCodec(const QString &name);
[[nodiscard]] AudioCodec audioCodec(const QString &name);

#endif
