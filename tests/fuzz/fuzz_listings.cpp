#include "host/check/writtenfile.h"
#include "host/tools/encoderlist.h"
#include "tests/fuzz/fuzzing.h"

/*! Parses ffmpeg's list of encoders and ffprobe's list of a file's packets. */
extern "C" int LLVMFuzzerTestOneInput(const uint8_t *data, size_t size)
{
    const QByteArray input = inputBytes(data, size);
    const QSet<QString> encoders = encodersInListing(input);
    for (const QString &encoder : encoders) {
        require(!encoder.isEmpty() && !encoder.contains(QLatin1Char(' ')));
    }
    WrittenFile file;
    file.readPackets(input);
    for (auto bytes = file.streamBytes.cbegin(); bytes != file.streamBytes.cend(); ++bytes) {
        require(bytes.key() >= 0 && bytes.value() >= 0);
    }
    return 0;
}
