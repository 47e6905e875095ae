#ifndef WINDOW_SAMPLETRIAL_H
#define WINDOW_SAMPLETRIAL_H

#include "host/convert/conversion.h"
#include "host/files/workfolder.h"

#include <QObject>

#include <memory>
#include <optional>

/*! Converts ten seconds of a file, to see and hear what becomes of it. The last sample stays until
 *  the next one or the end of the program. */
class SampleTrial : public QObject
{
    Q_OBJECT

public:
    static constexpr SamplePart part = {10, 0.5};

    using QObject::QObject;

    /*! Converts that part of the job's source; one that still runs is stopped. */
    void start(ConversionJob job);
    /*! Without finished(). */
    void stop();

Q_SIGNALS:
    void finished(const Result<ConversionOutcome> &outcome);

private:
    std::optional<WorkFolder> m_folder;
    std::unique_ptr<Conversion> m_conversion; // stops before its folder goes
};

#endif
