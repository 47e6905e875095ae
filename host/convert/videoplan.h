#ifndef CONVERT_VIDEOPLAN_H
#define CONVERT_VIDEOPLAN_H

#include "host/convert/codecs.h"
#include "host/convert/encoderchoice.h"
#include "host/convert/frametiming.h"
#include "host/convert/tooloptions.h"
#include "host/media/mediafacts.h"

/*! How ffmpeg is to write the picture of a file. */
struct VideoPlan
{
    QString encoder; //!< "copy" takes the stream over as it is
    QSize size = {}; //!< as it is shown
    QStringList filters = {};
    bool hasPalette = false;   //!< its colours are chosen in the first pass
    bool takesPasses = false;  //!< the result is better if it is written in two passes
    bool isToneMapped = false; //!< HDR becomes BT.709
    FrameTiming timing = {};
    QString pixelFormat = {};     //!< empty: the encoder's choice
    ToolOptions options = {};     //!< the encoder's
    QString decoder = {};         //!< empty: ffmpeg's choice
    QString bitstreamFilter = {}; //!< of a copy
    QString tag = {};             //!< of the codec in the file; empty: the usual one

    /*! The plan for \a track. Depends on nothing but its arguments. */
    [[nodiscard]] static Result<VideoPlan> make(const VideoTrack &track,
                                                const StreamTarget &target);

    /*! Whether the filters must stand in a graph. */
    [[nodiscard]] bool hasGraph() const;
    /*! The graph that draws the stream \a track as "drawn"; input 1 is its palette. */
    [[nodiscard]] QString graph(int track) const;
    /*! The arguments that write the palette of the stream \a track into a \a file; "seen" are the
     *  pictures, which tell how far it is. */
    [[nodiscard]] QStringList paletteArguments(int track, const QString &file) const;
    /*! The arguments of ffmpeg for its first video stream. */
    [[nodiscard]] QStringList arguments() const;

private:
    [[nodiscard]] QString chain(int track) const;
};

/*! The codec that \a track gets unless it is copied. */
[[nodiscard]] VideoCodec codecToEncode(const VideoTrack &track, const StreamTarget &target);

#endif
