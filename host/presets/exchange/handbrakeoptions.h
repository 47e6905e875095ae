#ifndef PRESETS_EXCHANGE_HANDBRAKEOPTIONS_H
#define PRESETS_EXCHANGE_HANDBRAKEOPTIONS_H

#include "host/presets/exchange/portablepreset.h"

/*! Takes what a preset can hold of HandBrake's options for an encoder, "keyint=30:ref=1": none is
 *  passed on as it is. The preset's video bitrate is known already. */
void takeEncoderOptions(PortablePreset &preset, const QString &options);

#endif
