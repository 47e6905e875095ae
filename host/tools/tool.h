#ifndef TOOLS_TOOL_H
#define TOOLS_TOOL_H

#include "host/error.h"
#include "host/tools/processgroup.h"
#include "host/tools/toolcall.h"

#include <QByteArray>
#include <QCoreApplication>
#include <QProcess>
#include <QTimer>

#include <optional>

/*! What a tool may take; one that goes beyond is ended. */
struct ToolLimits
{
    qint64 unreadBytes = 64 * 1024 * 1024; //!< of standard output, held until somebody reads them
    int milliseconds = 0;                  //!< from start to end; 0: as long as it likes
};

/*! How a run of ffmpeg or ffprobe ended. */
struct ToolRun
{
    Q_DECLARE_TR_FUNCTIONS(ToolRun)
public:
    enum Excess { None, OfOutput, OfTime };

    QString program;
    bool exitedCleanly = false; //!< exit code 0, not by a signal
    Excess excess = None;       //!< the limit that it was ended for
    QByteArray output;          //!< what nobody read from standard output before
    QByteArray errors;          //!< head and tail of standard error

    /*! Why it failed: the first line of errors in plain words, without ffmpeg's
     *  "[name @ address]", or the limit that it went beyond. */
    [[nodiscard]] QString firstError() const;
};

/*! What the program printed; an error where it didn't start or didn't exit cleanly. */
[[nodiscard]] Result<QByteArray> cleanOutput(const Result<ToolRun> &run);

/*!
 * Runs ffmpeg or ffprobe without waiting, any number of times, one after another. Whatever the
 * program started ends with it, at the latest with this object. Ctrl-C in the terminal reaches the
 * host alone, which then stops the tool.
 */
class Tool : public QObject
{
    Q_OBJECT
    Q_DISABLE_COPY(Tool)

public:
    explicit Tool(QObject *parent = nullptr);
    ~Tool() override;

    /*! finished() follows from the event loop, once, also when the program can't start. A program
     *  that runs already is abandoned first. */
    void start(const ToolCall &call, const ToolLimits &limits = {});
    /*! Kills the program and whatever it started; finished() follows with Error::Cancelled. */
    void stop();
    /*! Kills the program and whatever it started; no finished() follows. */
    void abandon();

    /*! What the program has printed since the last call. */
    [[nodiscard]] QByteArray readOutput() { return m_process.readAllStandardOutput(); }

Q_SIGNALS:
    void outputReady();
    /*! An error tells that the program couldn't start, or was stopped. */
    void finished(const Result<ToolRun> &run);

private:
    class Process : public QProcess
    {
    protected:
        void setupChildProcess() override;
    };

    void noteError(QProcess::ProcessError error);
    void exceed(ToolRun::Excess excess);
    void readErrors();
    void finishRun(bool exitedCleanly);
    void finish(const Result<ToolRun> &run);
    [[nodiscard]] QString notStartedText() const;

    Process m_process;
    std::optional<ProcessGroup> m_group; // there while a run isn't finished
    QTimer m_deadline;
    QTimer m_startFailure; // tells it from the event loop
    ToolLimits m_limits;
    ToolRun m_run;
    QString m_startError; // the system's words
    bool m_isStopped = false;
};

#endif
