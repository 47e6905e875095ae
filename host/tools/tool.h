#ifndef TOOLS_TOOL_H
#define TOOLS_TOOL_H

#include "host/tools/processgroup.h"

#include <QByteArray>
#include <QCoreApplication>
#include <QProcess>
#include <QString>
#include <QStringList>

#include <functional>

/*! What a tool may take; one that goes beyond is ended. */
struct ToolLimits
{
    qint64 unreadBytes = 64 * 1024 * 1024; //!< of standard output, held until somebody reads them
    int milliseconds = 0;                  //!< from start to end; 0: as long as it likes
};

/*! How a run of ffmpeg or ffprobe ended. */
struct ToolOutcome
{
    Q_DECLARE_TR_FUNCTIONS(ToolOutcome)
public:
    enum Excess { None, OfOutput, OfTime };

    QString program;
    bool started = false;
    bool exitedCleanly = false; //!< exit code 0, not by a signal
    Excess excess = None;       //!< the limit that it was ended for
    QByteArray output;          //!< what nobody read from standard output before
    QByteArray errors;          //!< head and tail of standard error
    QString startError;         //!< the system's words; empty when it started

    /*! Why it failed: the first line of errors in plain words, without ffmpeg's
     *  "[name @ address]", or the limit that it went beyond. */
    [[nodiscard]] QString firstError() const;
    /*! Why a tool that didn't start couldn't, and what to do about it. */
    [[nodiscard]] QString notStartedText() const;
};

/*! A running tool. Ctrl-C in the terminal reaches the host alone, which then stops the tool. */
class Tool : public QProcess
{
    Q_OBJECT

public:
    using Done = std::function<void(const ToolOutcome &)>;

    /*!
     * Runs \a program (a name on the PATH) without waiting; \a done is called once from the event
     * loop, also when the program can't start, and the tool deletes itself. Destroying it earlier
     * kills the program without calling \a done. Whatever the program started ends with it.
     */
    Tool(const QString &program, const QStringList &arguments, const Done &done, QObject *parent,
         const ToolLimits &limits = {});
    ~Tool() override;

    /*! Kills the program and whatever it started; \a done follows from the event loop. */
    void stop();

protected:
    void setupChildProcess() override;

private:
    // They reach the program alone, which may be a script in front of the real one.
    using QProcess::kill;
    using QProcess::terminate;

    void exceed(ToolOutcome::Excess excess);
    void readErrors();
    void finish(bool started, bool exitedCleanly);

    Done m_done;
    ToolOutcome m_outcome;
    ProcessGroup m_group;
};

/*! The form of a file's path that ffmpeg takes for a file whatever characters are in it. */
[[nodiscard]] QString fileArgument(const QString &path);

#endif
