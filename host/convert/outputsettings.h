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
 * What a preset asks of a conversion. Empty texts, 0, an empty size and a ratio that is not valid
 * keep the source's own value.
 */
struct OutputSettings
{
    Q_DECLARE_TR_FUNCTIONS(OutputSettings)
public:
    static constexpr double slowestFrameRate = 1;
    static constexpr double fastestFrameRate = 300;

    /*! Of \a frameRate: reached by slower sources too, or only kept to. */
    enum class FrameRateMode { Ceiling, Fixed };

    QString extension;
    bool hasVideo = false;
    QString videoCodec; //!< as ffprobe names it
    Ratio frameRate;
    FrameRateMode frameRateMode = FrameRateMode::Ceiling;
    QSize box;                    //!< the picture is fitted into it
    double videoKbps = 0;         //!< the most; 0: the encoder's own good quality
    double quality = 0;           //!< of the picture: 1 is the high, 0 the usual, -1 the low one
    bool averagesBitrate = false; //!< videoKbps on average, whatever the picture needs
    double targetBytes = 0;       //!< the most that the result may have; 0: any
    double bufferSeconds = 1;     //!< of video that may come early where the picture needs it
    double peakKbps = 0;          //!< the most within any second; 0: as the buffer lets
    QString level;                //!< of the video codec, as a device needs it
    QString profile;              //!< the same
    QString videoTag;             //!< the codec's name in the file; empty: the usual one
    bool hasEditLists = true;     //!< where the container knows them
    QString audioCodec;
    int sampleRate = 0; //!< Hz
    int channels = 0;
    double audioKbps = 0;         //!< 0: the encoder's own good quality
    TrackChoice audioTracks = {}; //!< All: as many as the container holds
    TrackChoice subtitles = {};   //!< All: those that the container holds
    int burnedSubtitles = 0;      //!< drawn onto the picture, counted from 1; 0: none
    double stillSeconds = 0;      //!< of a single picture; 0: it makes no film
    double start = 0;             //!< seconds; what lies before is left out
    double end = 0;               //!< seconds; what lies behind is left out, 0: nothing

    /*!
     * Reads a preset map, as FormatDetailModelData::toVarMap() makes it. A value that can't be
     * read is kept as one that check() names.
     */
    [[nodiscard]] static OutputSettings fromPreset(const QVariantMap &preset);

    /*! Fails with the first value that no file can be written with, and what is allowed. What only
     *  a source or this machine's ffmpeg can't do comes later. */
    [[nodiscard]] Result<> check() const;

    bool operator==(const OutputSettings &other) const;

    /*! Seconds that a result has whose source has \a duration; 0 when unknown. */
    [[nodiscard]] double cutDuration(double duration) const;
};

#endif
