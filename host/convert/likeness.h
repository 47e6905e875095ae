#ifndef CONVERT_LIKENESS_H
#define CONVERT_LIKENESS_H

#include "host/media/mediafacts.h"

#include <QByteArray>
#include <QStringList>
#include <QVector>

#include <optional>

/*! A file whose video is looked at, from \a start in seconds. */
struct ViewedFile
{
    QString path;
    MediaFacts facts;
    double start = 0;
};

enum class LikenessMeasure {
    Ssim, //!< 0 to 1
    Vmaf, //!< 0 to 100; not every ffmpeg has it
};

/*! The arguments for ffmpegCall() that measure how like \a result is to the same \a seconds of
 *  \a source, which is scaled to its size. Both have video. */
[[nodiscard]] QStringList likenessArguments(const ViewedFile &result, const ViewedFile &source,
                                            double seconds, LikenessMeasure measure);

/*! What such a call printed as its measure; nothing if it couldn't measure. */
[[nodiscard]] std::optional<double> likenessIn(const QByteArray &log);

/*! A file beside others in a picture, and the file with the text that names it. */
struct LabelledFile
{
    ViewedFile file;
    QString labelPath;
};

/*! The arguments for ffmpegCall() that write one frame of each file, side by side and with its
 *  label, to a PNG. */
[[nodiscard]] QStringList sideBySideArguments(const QVector<LabelledFile> &files,
                                              const QString &target);

#endif
