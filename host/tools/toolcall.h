#ifndef TOOLS_TOOLCALL_H
#define TOOLS_TOOLCALL_H

#include <QString>
#include <QStringList>

/*! A program on the PATH and what it is called with. */
struct ToolCall
{
    QString program;
    QStringList arguments;
};

/*! ffmpeg with \a arguments, which prints nothing but errors and waits for no key. */
[[nodiscard]] ToolCall ffmpegCall(const QStringList &arguments);
/*! ffprobe with \a arguments, which prints nothing but the answer and errors. */
[[nodiscard]] ToolCall ffprobeCall(const QStringList &arguments);

/*! The form of a file's path that both take for a file whatever characters are in it. */
[[nodiscard]] QString fileArgument(const QString &path);

#endif
