#ifndef MEDIA_TRACKS_H
#define MEDIA_TRACKS_H

#include "host/media/ratio.h"

#include <QSize>
#include <QString>

#include <optional>

// The streams of a media file. Names are ffprobe's. An empty text, an invalid ratio and, unless
// documented otherwise, 0 mean unknown.

/*! What all kinds of streams have in common. */
struct Track
{
    int index = -1;   //!< stream number in the file
    int number = 0;   //!< among the file's tracks of its kind, from 1
    QString codec;    //!< for example "h264"
    QString codecTag; //!< the container's name for the codec, for example "hvc1"
    QString profile;  //!< for example "Main 10"
    QString language; //!< for example "eng"
    QString title;
    bool isDefault = false;
    double start = 0;    //!< seconds
    double duration = 0; //!< seconds
    double kbps = 0;
};

/*! How pixel values map to colours. */
struct Colour
{
    QString range;     //!< "tv" or "pc"
    QString matrix;    //!< "bt709"; "gbr" for RGB
    QString transfer;  //!< "bt709", "smpte2084" (HDR10), "arib-std-b67" (HLG)
    QString primaries; //!< "bt709"

    [[nodiscard]] bool isHdr() const;
};

/*! The display that an HDR10 video was graded on. */
struct MasteringDisplay
{
    struct Point
    {
        Ratio x;
        Ratio y;
    };
    Point red;
    Point green;
    Point blue;
    Point white;
    Ratio darkest;   //!< cd/m²
    Ratio brightest; //!< cd/m²
};

/*! The light level of an HDR10 video, in cd/m². */
struct LightLevel
{
    int brightestPixel = 0;
    int brightestFrame = 0; //!< average over its pixels
};

/*! How bright an HDR video is, in cd/m². */
struct SeenLight
{
    double bright = 0;    //!< a tenth of the picture is brighter
    double brightest = 0; //!< nothing that is larger than a point is brighter
};

struct VideoTrack : Track
{
    enum FieldOrder { UnknownOrder, Progressive, TopFieldFirst, BottomFieldFirst };

    QSize storedSize;
    Ratio pixelAspect = {1, 1};
    int rotation = 0; //!< clockwise degrees to show it upright: 0, 90, 180 or 270
    Ratio frameRate;
    bool hasSteadyRate = true; //!< false: the rate is an average
    Ratio averageFrameRate;
    FieldOrder fieldOrder = UnknownOrder;
    bool framesTellFields = false; //!< decoded frames are flagged as interlaced or not
    QString pixelFormat;           //!< for example "yuv420p10le"
    int level = 0;                 //!< in the codec's units: 4.1 is 41 in H.264, 123 in HEVC
    Colour colour;
    std::optional<MasteringDisplay> masteringDisplay;
    std::optional<LightLevel> lightLevel;
    std::optional<SeenLight> seenLight; //!< only known after a look at the pictures
    bool isCover = false;               //!< an attached image, such as an album cover

    /*! Whether the intervals between frames differ. */
    [[nodiscard]] bool hasVariableRate() const;
    [[nodiscard]] bool isInterlaced() const
    {
        return fieldOrder == TopFieldFirst || fieldOrder == BottomFieldFirst;
    }
    /*! The size when shown upright with square pixels. */
    [[nodiscard]] QSize displaySize() const;
};

struct AudioTrack : Track
{
    int sampleRate = 0; //!< Hz
    int channels = 0;
    QString layout;        //!< speaker layout, for example "5.1(side)"
    QString sampleFormat;  //!< as decoded, for example "s16" or "fltp"
    int bitsPerSample = 0; //!< of lossless codecs; 0 for lossy ones
};

struct SubtitleTrack : Track
{
    bool isForced = false;

    /*! Whether the subtitles are text, not bitmaps. */
    [[nodiscard]] bool isText() const;
};

/*! An embedded file, such as a font. */
struct Attachment
{
    int index = -1;
    QString name;
    QString mimeType;
};

#endif
