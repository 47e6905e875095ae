#ifndef CONVERT_RATECONTROL_H
#define CONVERT_RATECONTROL_H

#include "host/convert/codecs.h"
#include "host/convert/outputsettings.h"

/*! A picture as it is encoded. */
struct EncodedPicture
{
    QSize size;
    Ratio frameRate;
};

/*! The options with which \a encoder writes \a picture as \a settings ask: a constant quality below
 *  the bitrate, or that bitrate on average, and the level and profile of the device. */
[[nodiscard]] ToolOptions rateOptions(const VideoCodec &codec, const VideoCodec::Encoder &encoder,
                                      const OutputSettings &settings,
                                      const EncodedPicture &picture);

#endif
