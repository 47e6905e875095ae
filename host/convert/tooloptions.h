#ifndef CONVERT_TOOLOPTIONS_H
#define CONVERT_TOOLOPTIONS_H

#include <QStringList>
#include <QVector>

/*! An option of ffmpeg, without its dash: "crf" and "20". */
struct ToolOption
{
    QString name;
    QString value;
};

using ToolOptions = QVector<ToolOption>;

/*! The options as arguments of ffmpeg for one \a stream, such as "v:0": "-crf:v:0", "20". For an
 *  empty one they are the file's. */
[[nodiscard]] QStringList toArguments(const ToolOptions &options, const QString &stream = {});

/*! Adds \a parameters to the option \a name, which takes them with colons between. */
void addParameters(ToolOptions &options, const QString &name, const QStringList &parameters);

/*! A bitrate as ffmpeg reads it: "1500k". */
[[nodiscard]] QString kbpsText(double kbps);

#endif
