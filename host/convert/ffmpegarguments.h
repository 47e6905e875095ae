#ifndef CONVERT_FFMPEGARGUMENTS_H
#define CONVERT_FFMPEGARGUMENTS_H

#include "host/convert/outputsettings.h"
#include "host/media/mediafacts.h"

#include <QCoreApplication>
#include <QSet>
#include <QStringList>

/*! The arguments of one run of ffmpeg, or one line that says why the source can't be converted so.
 */
struct FfmpegArguments
{
    Q_DECLARE_TR_FUNCTIONS(FfmpegArguments)
public:
    QStringList arguments;
    QString error;
    bool lacksEncoder = false; //!< why: the encoder exists, but this ffmpeg lacks it

    /*!
     * Forms the run that writes \a source with \a settings. \a encoders are the names of the
     * encoders that ffmpeg has. Depends on nothing but its arguments.
     */
    [[nodiscard]] static FfmpegArguments form(const OutputSettings &settings,
                                              const MediaFacts &source,
                                              const QSet<QString> &encoders,
                                              const QString &sourcePath, const QString &targetPath);
};

#endif
