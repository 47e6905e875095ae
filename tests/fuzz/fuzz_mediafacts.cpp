#include "host/media/mediafacts.h"
#include "tests/fuzz/fuzzing.h"

/*! Parses what ffprobe prints about a file from an untrusted source. */
extern "C" int LLVMFuzzerTestOneInput(const uint8_t *data, size_t size)
{
    const MediaFacts facts = MediaFacts::fromProbe(inputBytes(data, size));
    require(!facts.summary().isEmpty());
    require(facts.duration == plausibleSeconds(facts.duration) && facts.bytes >= 0);
    for (const VideoTrack &track : facts.videoTracks) {
        const QSize shown = track.displaySize();
        require(track.index >= 0 && shown.width() >= 0 && shown.height() >= 0);
        require(track.pixelAspect.isValid());
        require(track.rotation >= 0 && track.rotation < 360 && track.rotation % 90 == 0);
    }
    for (const AudioTrack &track : facts.audioTracks) {
        require(track.index >= 0 && track.sampleRate >= 0 && track.channels >= 0);
    }
    return 0;
}
