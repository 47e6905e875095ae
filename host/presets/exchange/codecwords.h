#ifndef PRESETS_EXCHANGE_CODECWORDS_H
#define PRESETS_EXCHANGE_CODECWORDS_H

#include "host/presets/exchange/portablepreset.h"

/*! A codec, as other programs' names of its encoders mean it. */
struct CodecWord
{
    QString codec;           //!< ffprobe's name; empty: the encoder isn't known
    QString substitute = {}; //!< what is done instead of that encoder; empty: nothing is lost
};

/*! The codec that an encoder of ffmpeg or HandBrake writes. */
[[nodiscard]] CodecWord videoCodecOf(const QString &encoder);
[[nodiscard]] CodecWord audioCodecOf(const QString &encoder);

/*! Whether the converter's encoder of that codec takes a constant quality. */
[[nodiscard]] bool hasConstantQuality(const QString &codec);
/*! The preset's "quality" for a constant quality as the encoder of \a codec counts it (CRF, or the
 *  quantiser). */
[[nodiscard]] QString qualitySteps(const QString &codec, double constant);

/*! Takes an encoder's word for its speed or its tune over, where the converter knows it too;
 *  \a kind is "speed" or "tune". */
void takeEncoderWord(PortablePreset &preset, const QString &codec, const QString &kind,
                     const QString &setting, const QString &value);
/*! The same for a level or a profile. */
void takeDeviceWord(PortablePreset &preset, const QString &codec, const QString &kind,
                    const QString &setting, const QString &value);
/*! Takes the most frames from a key frame to the next over, if a preset can state so many. */
void takeKeyFrameInterval(PortablePreset &preset, const QString &setting, const QString &value);

#endif
