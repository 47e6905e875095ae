#include "host/media/clocktext.h"
#include "host/media/mediafacts.h"
#include "tests/fuzz/fuzzing.h"

#include <cmath>
#include <cstring>

/*! Parses times as people type them, and formats any number as the window does. */
extern "C" int LLVMFuzzerTestOneInput(const uint8_t *data, size_t size)
{
    const QByteArray input = inputBytes(data, size);
    const double typed = secondsFromClockText(QString::fromUtf8(input));
    require(typed == -1 || typed == plausibleSeconds(typed));

    double any = typed;
    std::memcpy(&any, input.constData(), qMin(sizeof any, size));
    const double shown = secondsFromClockText(exactClockText(any));
    constexpr double longestReadBack = 999 * 3600;
    require(plausibleSeconds(any) > longestReadBack ||
            std::abs(shown - plausibleSeconds(any)) <= 0.0051);
    require(!clockText(any).isEmpty());
    return 0;
}
