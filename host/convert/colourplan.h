#ifndef CONVERT_COLOURPLAN_H
#define CONVERT_COLOURPLAN_H

#include "host/convert/codecs.h"
#include "host/convert/containers.h"
#include "host/media/tracks.h"

/*! How the colours of a picture are kept, and what the result says of them. */
struct ColourPlan
{
    QString scaling = {};     //!< options of the scale filter; empty: no conversion there
    QStringList filters = {}; //!< go behind it
    VideoCodec::Pixels pixels = {};
    Colour result = {};   //!< empty: the codec has its own
    QString decoder = {}; //!< empty: ffmpeg's choice
    bool isHdrKept = false;
    bool isToneMapped = false;

    /*! The plan for a picture of \a size with at most \a bitDepth bits per colour, or with any
     *  number if it is 0. Where the pixels of \a track aren't known nothing is converted or said.
     */
    [[nodiscard]] static ColourPlan make(const VideoTrack &track, const QSize &size,
                                         const VideoCodec &codec, const Container &container,
                                         int bitDepth = 0);

    /*! What the encoder writes into the file. */
    [[nodiscard]] ToolOptions tags() const;

private:
    void convert(const VideoTrack &track, const Colour &usual, const Colour &own, bool isTagged);
};

/*! The colours of \a track, with what players take where it doesn't say. */
[[nodiscard]] Colour shownColour(const VideoTrack &track);

/*! Whether decoded \a pixels, as ffmpeg names their format, have more than 8 bits per colour. */
[[nodiscard]] bool isDeep(const QString &pixels);

/*! Makes \a options, which are \a encoder's, tell the display and light that \a track has. */
void addLight(ToolOptions &options, const QString &encoder, const VideoTrack &track);

#endif
