#ifndef CONVERT_FAILUREWORDS_H
#define CONVERT_FAILUREWORDS_H

#include <QString>

/*! ffmpeg's \a reason for a failure in people's words, without options that nobody typed. */
[[nodiscard]] QString failureInPlainWords(const QString &reason);

#endif
