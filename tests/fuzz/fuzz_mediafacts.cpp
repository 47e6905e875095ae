#include "host/media/mediafacts.h"

#include <cstdlib>

/*! What ffprobe prints about a file that anyone may have made. */
extern "C" int LLVMFuzzerTestOneInput(const uint8_t *data, size_t size)
{
    const MediaFacts facts =
        MediaFacts::fromProbe(QByteArray(reinterpret_cast<const char *>(data), int(size)));
    if (facts.summary().isEmpty()) {
        std::abort();
    }
    return 0;
}
