#ifndef TOOLS_TOOL_H
#define TOOLS_TOOL_H

#include <QByteArray>
#include <QCoreApplication>
#include <QProcess>
#include <QString>
#include <QStringList>

#include <functional>

/*! How a run of ffmpeg or ffprobe ended. */
struct ToolOutcome
{
    Q_DECLARE_TR_FUNCTIONS(ToolOutcome)
public:
    QString program;
    bool started = false;
    bool exitedCleanly = false; //!< exit code 0, not by a signal
    QByteArray output;          //!< what nobody read from standard output before
    QByteArray errors;          //!< head and tail of standard error

    /*! The first line of errors in plain words, without ffmpeg's "[name @ address]". */
    [[nodiscard]] QString firstError() const;
    /*! Why a tool that isn't there couldn't start, and how to mend that. */
    [[nodiscard]] QString missingToolText() const;
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
     * kills the program without calling \a done.
     */
    Tool(const QString &program, const QStringList &arguments, const Done &done, QObject *parent);
    ~Tool() override;

protected:
    void setupChildProcess() override;

private:
    void readErrors();
    void finish(bool started, bool exitedCleanly);

    Done m_done;
    ToolOutcome m_outcome;
};

/*! The form of a file's path that ffmpeg takes for a file whatever characters are in it. */
[[nodiscard]] QString fileArgument(const QString &path);

#endif
