#ifndef TOOLS_PROCESSGROUP_H
#define TOOLS_PROCESSGROUP_H

#include <QProcess>

/*!
 * The process group of a program: the program itself, which leads it, and everything it starts.
 * Nothing in it outlives this object, not even if the host is killed.
 */
class ProcessGroup
{
    Q_DISABLE_COPY(ProcessGroup)

public:
    ProcessGroup() = default;
    ~ProcessGroup() { end(); }

    /*! Makes the calling process the leader; for QProcess::setupChildProcess(). */
    static void lead();
    /*! Takes over the group of \a leader, a child process that calls lead(). Call it only once. */
    void watch(qint64 leader);
    /*! Stops every process in the group, until resume(). */
    void pause();
    void resume();
    /*! Kills every process in the group. */
    void end();

private:
    /*!
     * Waits in the group. While it exists, the group's id can't be reused, even if the leader has
     * ended. When the host closes its end of the pipe, or dies, it kills the group.
     */
    class Guard : public QProcess
    {
    public:
        void join(qint64 leader);
        [[nodiscard]] bool isIn(qint64 leader) const;
        /*! While the others in the group are stopped, it must notice the host's end. */
        void stayAwake() const;

    protected:
        void setupChildProcess() override;

    private:
        qint64 m_leader = 0;
    };

    /*! Sends the signal to every process in the group. */
    void send(int signalNumber);

    qint64 m_leader = 0;
    Guard m_guard;
};

#endif
