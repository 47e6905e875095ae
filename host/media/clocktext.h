#ifndef MEDIA_CLOCKTEXT_H
#define MEDIA_CLOCKTEXT_H

#include <QString>

/*! "0:09", "12:30" or "1:02:03"; "0:00" for implausible seconds. */
[[nodiscard]] QString clockText(double seconds);

/*! The same to a thousandth of a second, without trailing zeros: "0:07.25". */
[[nodiscard]] QString exactClockText(double seconds);

/*! Seconds of "1:02:03.5", "2:03" or "7.25"; -1 for anything else. */
[[nodiscard]] double secondsFromClockText(const QString &text);

#endif
