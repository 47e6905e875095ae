#ifndef CONVERT_OUTPUTSETTINGS_H
#define CONVERT_OUTPUTSETTINGS_H

#include "host/convert/trackchoice.h"
#include "host/error.h"
#include "host/media/ratio.h"

#include <QCoreApplication>
#include <QSize>
#include <QString>
#include <QVariantMap>

/*!
 * The settings of a conversion, from a preset. Empty texts, 0, an empty size and an invalid ratio
 * keep the source's value.
 */
struct OutputSettings
{
    Q_DECLARE_TR_FUNCTIONS(OutputSettings)
public:
    static constexpr double slowestFrameRate = 1;
    static constexpr double fastestFrameRate = 300;

    /*! Whether frameRate is an upper limit, or also applies to slower sources. */
    enum class FrameRateMode { Ceiling, Fixed };

    QString extension;
    bool hasVideo = false;
    QString videoCodec; //!< ffprobe's name
    Ratio frameRate;
    FrameRateMode frameRateMode = FrameRateMode::Ceiling;
    bool keepsVariableRate = true; //!< if the container supports it
    QSize box;                     //!< the video is fitted into it
    double videoKbps = 0;          //!< maximum; 0: the encoder's default quality
    double quality = 0;            //!< of the video: 1 is high, 0 default, -1 low
    bool averagesBitrate = false;  //!< videoKbps is the average, not the maximum
    double targetBytes = 0;        //!< maximum file size; 0: any
    double bufferSeconds = 1;      //!< of the decoder's rate buffer
    double peakKbps = 0;           //!< maximum within any second; 0: limited by the buffer
    int keyFrameInterval = 0;      //!< frames at most; 0: as the encoder likes
    QString level;                 //!< of the video codec, as a device requires
    QString profile;               //!< of the video codec, as a device requires
    int bitDepth = 0;              //!< the most that a device plays; 0: as many as the codec has
    QString speed;                 //!< the encoder's own word for it; empty: the usual one
    QString tune;                  //!< the encoder's word for a kind of content; empty: any
    bool mustEncode = false;       //!< a picture that fits is encoded, too
    QString videoTag;              //!< the codec's tag in the container; empty: the usual one
    bool hasEditLists = true;      //!< if the container supports them
    QString audioCodec;
    int sampleRate = 0; //!< Hz
    int channels = 0;
    double audioKbps = 0;         //!< 0: the encoder's default quality
    TrackChoice audioTracks = {}; //!< All: as many as the container can hold
    TrackChoice subtitles = {};   //!< All: those that the container can hold
    int burnedSubtitles = 0;      //!< track drawn onto the video, from 1; 0: none
    double stillSeconds = 0;      //!< duration of a single image; 0: it isn't converted
    double start = 0;             //!< seconds; earlier content is cut
    double end = 0;               //!< seconds; later content is cut; 0: nothing

    /*!
     * Reads a preset map, as FormatDetailModelData::toVarMap() makes it. An unreadable value
     * becomes an invalid one that validate() reports.
     */
    [[nodiscard]] static OutputSettings fromPreset(const QVariantMap &preset);

    /*! Validates the settings. Fails with the first invalid value and what is allowed. Limits of a
     *  source or of the installed ffmpeg are checked later. */
    [[nodiscard]] Result<> validate() const;

    bool operator==(const OutputSettings &other) const;

    /*! The output's duration in seconds if the source's is \a duration; 0 if unknown. */
    [[nodiscard]] double cutDuration(double duration) const;
};

#endif
