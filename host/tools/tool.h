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

/*! Limits of a run; a tool that exceeds one is killed. */
struct ToolLimits
{
    qint64 unreadBytes = 64LL * 1024 * 1024; //!< of standard output, buffered until they are read
    int milliseconds = 0;                    //!< from start to end; 0: unlimited
};

/*! How a run of ffmpeg or ffprobe ended. */
struct ToolRun
{
    Q_DECLARE_TR_FUNCTIONS(ToolRun)
public:
    enum Excess { None, OfOutput, OfTime };

    QString program;
    bool exitedCleanly = false; //!< exit code 0, not by a signal
    Excess excess = None;       //!< the limit that it exceeded
    QByteArray output;          //!< the unread rest of standard output
    QByteArray errors;          //!< head and tail of standard error

    /*! Why it failed: the first line of errors, without ffmpeg's "[name @ address]", or the limit
     *  that it exceeded. */
    [[nodiscard]] QString firstError() const;
};

/*! What the program printed; an error if it didn't start or didn't exit cleanly. */
[[nodiscard]] Result<QByteArray> cleanOutput(const Result<ToolRun> &run);

/*!
 * Runs ffmpeg or another tool asynchronously, any number of times, one run after another.
 * Everything that the program started ends with it, at the latest with this object. Ctrl-C in the
 * terminal only reaches the host, which then stops the tool.
 */
class Tool : public QObject
{
    Q_OBJECT
    Q_DISABLE_COPY(Tool)

public:
    explicit Tool(QObject *parent = nullptr);
    ~Tool() override;

    /*! finished() follows from the event loop, once, even if the program can't start. A program
     *  that is still running is abandoned first. */
    void start(const ToolCall &call, const ToolLimits &limits = {});
    /*! Kills the program and everything it started; finished() follows with Error::Cancelled. */
    void stop();
    /*! Kills the program and everything it started; finished() does not follow. */
    void abandon();

    /*! Halts the program and everything it started until resume(), or until it is stopped. */
    void pause();
    void resume();

    /*! Whether a run has begun and not finished. */
    [[nodiscard]] bool isRunning() const { return m_group.has_value(); }
    /*! Sends \a input to a program that takes input. Does nothing if it couldn't start. */
    void write(const QByteArray &input);
    /*! What the program has printed since the last call. */
    [[nodiscard]] QByteArray readOutput() { return m_process.readAllStandardOutput(); }

Q_SIGNALS:
    void outputReady();
    /*! An error if the program couldn't start or was stopped. */
    void finished(const Result<ToolRun> &run);

private:
    class Process : public QProcess
    {
    public:
        bool givesWay = false; //!< the next program that it starts

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
    std::optional<ProcessGroup> m_group; // only during a run
    QTimer m_deadline;
    QTimer m_startFailure; // reports it from the event loop
    ToolLimits m_limits;
    ToolRun m_run;
    QString m_startError; // in the system's words
    bool m_isStopped = false;
};

#endif
