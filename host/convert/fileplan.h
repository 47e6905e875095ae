#ifndef CONVERT_FILEPLAN_H
#define CONVERT_FILEPLAN_H

#include "host/convert/encoderchoice.h"
#include "host/convert/outputsettings.h"
#include "host/convert/videoplan.h"
#include "host/media/mediafacts.h"
#include "host/tools/toolcall.h"

#include <QSet>
#include <QStringList>
#include <QVector>

#include <optional>

/*! How ffmpeg is to write a whole file. */
struct FilePlan
{
    QString path; //!< of the source
    OutputSettings settings;
    MediaFacts source = {};
    QSet<QString> encoders = {}; //!< those that ffmpeg has
    Copies copies = {};

    [[nodiscard]] StreamTarget target() const;
    /*! What the file will last, in seconds; 0: unknown. */
    [[nodiscard]] double duration() const;
    /*! None without video, or where it can't be written. */
    [[nodiscard]] std::optional<VideoPlan> picture() const;
    [[nodiscard]] bool takesPasses() const;
    /*! One pass of the call that writes \a file. */
    [[nodiscard]] Result<QStringList> arguments(const QString &file,
                                                const EncodingPass &pass) const;
    /*! All calls that write \a file, in their order. */
    [[nodiscard]] Result<QVector<ToolCall>> calls(const QString &file) const;
    /*! What the file will lack, one line; empty: nothing. */
    [[nodiscard]] QString losses() const;
    /*! What would look better at the size that is asked for, one line; empty: nothing. */
    [[nodiscard]] QString advice() const;
};

#endif
