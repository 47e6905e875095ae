#ifndef COMMANDLINE_TRIALS_H
#define COMMANDLINE_TRIALS_H

#include "host/commandline/commandline.h"
#include "host/convert/likeness.h"
#include "host/files/workfolder.h"
#include "host/queue/batch.h"

#include <optional>

/*! A preset that is tried, and what came of it. */
struct Trial
{
    FoundPreset preset;
    ConversionOutcome outcome = {};
    QString error = {}; //!< empty: it was converted
    double seconds = 0; //!< that the conversion took
    std::optional<double> ssim = {};
    std::optional<double> vmaf = {};

    [[nodiscard]] QString id() const { return preset.map.value(QStringLiteral("id")).toString(); }
    [[nodiscard]] bool hasPicture() const { return outcome.facts.video() != nullptr; }
    /*! Seconds of media a second. */
    [[nodiscard]] double speed() const
    {
        return seconds > 0 ? outcome.facts.duration / seconds : 0;
    }
};

/*! Converts the part of the source with each preset, one after another, into a \a folder. */
BatchSummary convertWithAll(QVector<Trial> &trials, const QString &source, const SamplePart &part,
                            const QString &folder);

/*! Measures how like the result's picture is to the source's in so many seconds; nothing where
 * there is no picture to compare. */
void measure(Trial &trial, const ViewedFile &source, double seconds);

/*! Writes the frame in the middle of the part to \a target, as the source and each result have it,
 *  side by side. Labels are written into \a folder. */
[[nodiscard]] Result<> drawPicture(const QVector<Trial> &trials, const ViewedFile &source,
                                   double seconds, const WorkFolder &folder, const QString &target);

#endif
