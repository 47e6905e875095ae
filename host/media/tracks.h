#ifndef MEDIA_TRACKS_H
#define MEDIA_TRACKS_H

#include "host/media/ratio.h"

#include <QSize>
#include <QString>

#include <optional>

// What a media file says of its streams. Names are ffprobe's; an empty text, an invalid ratio and,
// unless it says otherwise, 0 mean that the file doesn't say.

/*! What every stream has. */
struct Track
{
    int index = -1;   //!< stream number in the file
    QString codec;    //!< for example "h264"
    QString codecTag; //!< the container's own name for the codec, for example "hvc1"
    QString profile;  //!< for example "Main 10"
    QString language; //!< for example "eng"
    QString title;
    bool isDefault = false;
    double start = 0;    //!< seconds
    double duration = 0; //!< seconds
    double kbps = 0;
};

/*! The colours that a picture's numbers stand for. */
struct Colour
{
    QString range;     //!< "tv" or "pc"
    QString matrix;    //!< "bt709"; "gbr" for RGB
    QString transfer;  //!< "bt709", "smpte2084" (HDR10), "arib-std-b67" (HLG)
    QString primaries; //!< "bt709"

    [[nodiscard]] bool isHdr() const;
};

/*! The display that an HDR10 picture was graded on. */
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

/*! The light of an HDR10 picture, in cd/m². */
struct LightLevel
{
    int brightestPixel = 0;
    int brightestFrame = 0; //!< on average
};

struct VideoTrack : Track
{
    enum FieldOrder { UnknownOrder, Progressive, TopFieldFirst, BottomFieldFirst };

    QSize storedSize;
    Ratio pixelAspect = {1, 1};
    int rotation = 0; //!< quarter turns needed to show it upright, in degrees: 0, 90, 180, 270
    Ratio frameRate;
    bool hasSteadyRate = true; //!< false: the rate is an average
    Ratio averageFrameRate;
    FieldOrder fieldOrder = UnknownOrder;
    bool framesTellFields = false; //!< which of them are interlaced, and how
    QString pixelFormat;           //!< for example "yuv420p10le"
    int level = 0;                 //!< as the codec counts it: 41 is H.264's 4.1, 123 is HEVC's
    Colour colour;
    std::optional<MasteringDisplay> masteringDisplay;
    std::optional<LightLevel> lightLevel;
    bool isCover = false; //!< a still picture attached to an audio file

    /*! Whether the frames come at other times than those of its rate. */
    [[nodiscard]] bool hasVariableRate() const;
    [[nodiscard]] bool isInterlaced() const
    {
        return fieldOrder == TopFieldFirst || fieldOrder == BottomFieldFirst;
    }
    /*! The size as shown: upright, with square pixels. */
    [[nodiscard]] QSize displaySize() const;
};

struct AudioTrack : Track
{
    int sampleRate = 0; //!< Hz
    int channels = 0;
    QString layout;        //!< where each channel is heard, for example "5.1(side)"
    QString sampleFormat;  //!< as decoded, for example "s16" or "fltp"
    int bitsPerSample = 0; //!< of a lossless codec; 0 of a lossy one
};

struct SubtitleTrack : Track
{
    bool isForced = false;

    /*! Text, not pictures. */
    [[nodiscard]] bool isText() const;
};

/*! A file in the file: a font, a cover. */
struct Attachment
{
    int index = -1;
    QString name;
    QString mimeType;
};

#endif
