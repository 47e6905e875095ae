#ifndef PROBE_MEDIAREPORT_H
#define PROBE_MEDIAREPORT_H

#include <string>

/*!
 * What ffprobe prints for -print_format json -show_format -show_streams -show_chapters, in a single
 * line and with only the keys that MediaFacts reads. Only the comma-separated \a demuxers may read
 * \a url, and only files are opened. Empty if ffprobe would fail.
 */
[[nodiscard]] std::string mediaReport(const std::string &url, const std::string &demuxers);

#endif
