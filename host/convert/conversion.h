#ifndef CONVERT_CONVERSION_H
#define CONVERT_CONVERSION_H

#include "host/convert/fileplan.h"
#include "host/convert/outputname.h"
#include "host/convert/outputsettings.h"
#include "host/convert/progress.h"
#include "host/convert/sizefit.h"
#include "host/files/pendingfile.h"
#include "host/media/mediafacts.h"
#include "host/media/mediaprobe.h"
#include "host/media/sourcelook.h"
#include "host/tools/encoderlist.h"

#include <QObject>
#include <QStringList>

/*! A part of a source to try settings on. */
struct SamplePart
{
    double seconds = 0;
    double at = 0; //!< where it begins, as a share of the source from 0 to 1

    /*! Makes \a settings keep that part, or all that there is, of a source that lasts so many
     *  seconds. */
    void cut(OutputSettings &settings, double duration) const;
};

/*! One file to convert. */
struct ConversionJob
{
    QString source;
    OutputSettings settings;
    OutputTarget target;
    std::optional<SamplePart> sample = {}; //!< of the source; none: what the settings keep
    bool keepDates = false;                //!< gives the output the source's date
    bool planOnly = false;                 //!< only finds out what would be done
    bool isLogged = false;                 //!< logged() tells what ffmpeg does
};

/*! The result of a conversion or, with planOnly, of its plan. */
struct ConversionOutcome
{
    QString target;              //!< the new file; for a plan, its name as of now
    MediaFacts facts;            //!< of the new file; empty for a plan
    QString losses = {};         //!< what is left out, one line; empty: nothing
    QString shortfall = {};      //!< says that the output is too short; empty: it isn't
    QVector<ToolCall> plan = {}; //!< only for a plan: the calls that would write the target
    double mostBytes = 0;   //!< only for a plan: of the target; 0: the encoder's quality decides
    double wholeBytes = 0;  //!< only for a sample: about what all of the source would make
    QString advice = {};    //!< what would look better, one line; empty: nothing
    bool isSkipped = false; //!< the target was there already; nothing was converted

    /*! What is to be said of it: the shortfall, the losses and the advice. */
    [[nodiscard]] QStringList notes() const;
};
Q_DECLARE_METATYPE(Result<ConversionOutcome>)

/*!
 * Converts one file with ffmpeg asynchronously.
 *
 * The output gets its name only when it is complete. Whatever goes wrong, no unfinished file is
 * left and the source is unchanged. Destroying a running conversion cancels it.
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
    /*! Halts the encoding, now or when it begins, until resume(). It can still be cancelled. */
    void pause();
    void resume();

Q_SIGNALS:
    /*! About twice a second while ffmpeg runs. */
    void progressed(const Progress &progress);
    /*! ffmpeg has run with this call, and wrote this log. Once per attempt, if the job is logged.
     */
    void logged(const ToolCall &call, const QString &log);
    /*! Once per start(). Slots may delete the conversion only with deleteLater(). */
    void finished(const Result<ConversionOutcome> &outcome);

private:
    void listEncoders(const Result<MediaFacts> &source);
    void lookAtSource(const Result<QSet<QString>> &encoders);
    void convert(const Result<MediaFacts> &source);
    /*! Begins an attempt, in as many passes as it takes. */
    void attempt();
    void runFfmpeg();
    void checkRun(const Result<ToolRun> &run);
    void checkResult(const Result<MediaFacts> &result);
    void compareFrames(const Result<ToolRun> &run);
    void publish();

    /*! Whether the size calls for another run; fails if none can give it. */
    [[nodiscard]] Result<bool> correctsSize();
    [[nodiscard]] QString shortfall() const;
    /*! Encodes what can't be copied; false if nothing is left to try. */
    bool retryWithFewerCopies();
    void retryWith(const Copies &copies);

    /*! Fills the picture's size into the output's name. */
    [[nodiscard]] Result<> namePicture();
    void log();
    void skip();
    void fail(const Error &error);

    const ConversionJob m_job;
    FilePlan m_plan; // of the current attempt, fitted to the source
    std::optional<SizeFit> m_sizeFit;
    MediaFacts m_result;
    Copies m_firstCopies; // of the first attempt
    OutputName m_name;
    EncodingPass m_pass;
    int m_runs = 0;  // of ffmpeg that have ended
    ToolCall m_call; // of the current run
    bool m_hadErrors = false;
    bool m_isPaused = false;
    QByteArray m_sourceFrames; // the first ones, once known
    PendingFile m_pending;     // declared before m_ffmpeg, which must stop before its file goes
    ProgressReader m_progress;
    MediaProbe m_sourceProbe;
    SourceLook m_look;
    EncoderList m_encoders;
    Tool m_ffmpeg;
    MediaProbe m_resultProbe;
    Tool m_frameList;
};

#endif
