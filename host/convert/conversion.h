#ifndef CONVERT_CONVERSION_H
#define CONVERT_CONVERSION_H

#include "host/convert/outputsettings.h"
#include "host/convert/progress.h"
#include "host/files/pendingfile.h"
#include "host/media/mediafacts.h"
#include "host/media/mediaprobe.h"

#include <QObject>
#include <QPointer>
#include <QStringList>

/*! One file to convert. */
struct ConversionJob
{
    QString source;
    OutputSettings settings;
    QString folder;         //!< where the result goes; empty: beside the source
    bool overwrite = false; //!< false: a name in use gets " (2)", " (3)" ...
    QStringList keep;       //!< files that aren't overwritten even so; the source never is
    bool planOnly = false;  //!< only say what would be done
};

/*! How a conversion ended. */
struct ConversionOutcome
{
    enum Result { Converted, Planned, Failed, Cancelled };

    Result result = Failed;
    QString error;             //!< Failed: one line that says what happened and how to mend it
    QString target;            //!< Converted: the new file; Planned: its name as things stand
    MediaFacts facts;          //!< Converted: what the new file holds
    QStringList arguments;     //!< Planned: those of ffmpeg, with the target's name
    bool lacksEncoder = false; //!< Failed: the encoder exists, but this ffmpeg lacks it
};
Q_DECLARE_METATYPE(ConversionOutcome)

/*!
 * Converts one file with ffmpeg, without ever waiting: everything happens from the event loop.
 *
 * The result gets its name only when it is complete. Whatever goes wrong, nothing half-written is
 * left and the source is as it was; destroying a running conversion is as good as cancel().
 */
class Conversion : public QObject
{
    Q_OBJECT
    Q_DISABLE_COPY(Conversion)

public:
    explicit Conversion(const ConversionJob &job, QObject *parent = nullptr);
    ~Conversion() override;

    void start();
    /*! finished() follows from the event loop. */
    void cancel();

Q_SIGNALS:
    /*! About twice a second while ffmpeg works. */
    void progressed(const Progress &progress);
    /*! Once for each start(). What hears it may delete the conversion with deleteLater() only. */
    void finished(const ConversionOutcome &outcome);

private:
    void planWith(const ProbeOutcome &source);
    void convertWith(const ToolOutcome &encoderListing);
    void checkResult(const ToolOutcome &run);
    void publish(const ProbeOutcome &result);

    QString folder() const;
    QString baseName() const;
    /*! The existing file that the result is to replace; empty when it takes a free name. */
    QString fileToReplace() const;
    void endWith(const QString &error, bool lacksEncoder = false);

    const ConversionJob m_job;
    MediaFacts m_source;
    PendingFile m_pending;
    ProgressReader m_progress;
    QPointer<Tool> m_tool;
    bool m_isCancelled = false;
};

#endif
