#include "host/queue/corestobusy.h"

#include "host/convert/codecs.h"
#include "host/convert/containers.h"

int coresToBusy(const OutputSettings &settings)
{
    const Container *container = Container::find(settings.extension);
    if (!settings.hasVideo || container == nullptr) {
        return 1;
    }
    return videoCodec(settings.videoCodec.isEmpty() ? container->videoCodecs.value(0)
                                                    : settings.videoCodec)
        .busyCores;
}
