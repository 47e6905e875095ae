#ifndef CONVERT_CONVERSION_H
#define CONVERT_CONVERSION_H

#include "host/convert/encoderchoice.h"
#include "host/convert/outputsettings.h"
#include "host/convert/progress.h"
#include "host/files/pendingfile.h"
#include "host/media/mediafacts.h"
#include "host/media/mediaprobe.h"
#include "host/media/sourcelook.h"
#include "host/tools/encoderlist.h"

#include <QObject>
#include <QStringList>

/*! One file to convert. */
struct ConversionJob
{
    QString source;
    OutputSettings settings;
    QString folder;         //!< where the result goes; empty: beside the source
    bool overwrite = false; //!< false: a name in use gets " (2)", " (3)" ...
    QStringList keep;       //!< files that aren't overwritten even so; the source never is
    bool keepDates = false; //!< gives the result the source's date
    bool planOnly = false;  //!< only say what would be done
};

/*! What a conversion gave. */
struct ConversionOutcome
{
    QString target;         //!< the new file; of a plan, its name as things stand
    MediaFacts facts;       //!< what the new file holds; of a plan, nothing
    QString losses = {};    //!< what doesn't come along, one line; empty: all does
    QString shortfall = {}; //!< says that the result is shorter than its source; empty: it isn't
    ToolCall plan = {};     //!< only of a plan: the run of ffmpeg that would write the target

    /*! Both in one line. */
    [[nodiscard]] QString note() const;
};
Q_DECLARE_METATYPE(Result<ConversionOutcome>)

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

    void start();
    /*! finished() follows from the event loop, with Error::Cancelled. */
    void cancel();

Q_SIGNALS:
    /*! About twice a second while ffmpeg works. */
    void progressed(const Progress &progress);
    /*! Once for each start(). What hears it may delete the conversion with deleteLater() only. */
    void finished(const Result<ConversionOutcome> &outcome);

private:
    void lookAtSource(const Result<MediaFacts> &source);
    void listEncoders(const Result<MediaFacts> &source);
    void convertWith(const Result<QSet<QString>> &encoders);
    void runFfmpeg();
    void checkRun(const Result<ToolRun> &run);
    void checkResult(const Result<MediaFacts> &result);
    void compareFrames(const Result<ToolRun> &run);
    void publish();

    [[nodiscard]] Result<QStringList> argumentsFor(const QString &target) const;
    [[nodiscard]] double expectedDuration() const;
    [[nodiscard]] QString losses() const;
    [[nodiscard]] QString shortfall() const;
    /*! Encodes what can't be copied; false where nothing is left to try. */
    bool retryWithFewerCopies();
    void retryWith(const Copies &copies);

    QString folder() const;
    QString baseName() const;
    /*! The existing file that the result is to replace; empty when it takes a free name. */
    QString fileToReplace() const;
    void fail(const Error &error);

    const ConversionJob m_job;
    MediaFacts m_source;
    MediaFacts m_result;
    QSet<QString> m_encoderNames;
    Copies m_firstCopies; // of the first try
    Copies m_copies;      // of the current one
    bool m_hadErrors = false;
    QByteArray m_sourceFrames; // those at the start, once known
    PendingFile m_pending;     // ffmpeg, below, stops before the file that it writes is removed
    ProgressReader m_progress;
    MediaProbe m_sourceProbe;
    SourceLook m_look;
    EncoderList m_encoders;
    Tool m_ffmpeg;
    MediaProbe m_resultProbe;
    Tool m_frameList;
};

#endif
