#include "host/convert/shortfall.h"

#include "host/convert/conversion.h"

#include <algorithm>

QString shortfallIn(const MediaFacts &source, const MediaFacts &result, double expected,
                    double written)
{
    const VideoTrack *before = source.video();
    const VideoTrack *after = result.video();
    if (before != nullptr && after != nullptr && after->duration > 0 &&
        before->duration >= expected) {
        written = std::min(written, after->duration);
    }
    // The last video and audio packets needn't end together.
    const double unnoticed = std::max(0.3, expected / 100);
    if (source.hasGuessedDuration() || written <= 0 || written > expected - unnoticed) {
        return {};
    }
    return Conversion::tr("holds %1 of %2 s: the source ends early or is damaged")
        .arg(written, 0, 'f', 1)
        .arg(expected, 0, 'f', 1);
}
