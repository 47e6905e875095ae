#ifndef WINDOW_CLOCK_H
#define WINDOW_CLOCK_H

#include <QString>

/*! Times in a video, as people write them. */
namespace Clock {

/*! Seconds of "1:02:03.5", "2:03" or "7.25"; -1 for anything else. */
[[nodiscard]] double secondsOf(const QString &text);
/*! "1:02:03", "2:03" or "0:07.25": exact to a hundredth, without zeros that say nothing.
 *  "0:00" for seconds that aren't plausible. */
[[nodiscard]] QString textOf(double seconds);

} // namespace Clock

#endif
