#ifndef TOOLS_TOOLCALL_H
#define TOOLS_TOOLCALL_H

#include <QString>
#include <QStringList>

/*! A program, by its path or on the PATH, and its arguments. */
struct ToolCall
{
    QString program;
    QStringList arguments;
    bool takesInput = false; //!< from Tool::write(); else its standard input is empty
    QString report = {};     //!< the file that ffmpeg writes its whole log to; empty: none
    bool givesWay = false;   //!< to everything else that wants the processor
};

/*! ffmpeg with \a arguments, printing only errors and reading no input from the terminal. */
[[nodiscard]] ToolCall ffmpegCall(const QStringList &arguments);
/*! ffprobe with \a arguments, printing only its results and errors. */
[[nodiscard]] ToolCall ffprobeCall(const QStringList &arguments);

/*! The path in a form that both take for a file, whatever characters it contains. */
[[nodiscard]] QString fileArgument(const QString &path);

#endif
