#ifndef TOOLS_PROCESSGROUP_H
#define TOOLS_PROCESSGROUP_H

#include <QProcess>

/*!
 * The process group of a program: the program itself, which leads it, and whatever that starts.
 * Nothing in it outlives this object, or a host that is killed.
 */
class ProcessGroup
{
    Q_DISABLE_COPY(ProcessGroup)

public:
    ProcessGroup() = default;
    ~ProcessGroup() { end(); }

    /*! Makes the calling process the leader; for QProcess::setupChildProcess(). */
    static void lead();
    /*! Takes the group of \a leader, a child of this process that calls lead(). Once. */
    void watch(qint64 leader);
    /*! Kills all that is in the group. */
    void end();

private:
    /*!
     * Sleeps in the group. While it is there no other group gets the number, even when the leader
     * is long gone; and when the host closes its end of the pipe, by dying too, it ends the group.
     */
    class Guard : public QProcess
    {
    public:
        void join(qint64 leader);
        [[nodiscard]] bool isIn(qint64 leader) const;

    protected:
        void setupChildProcess() override;

    private:
        qint64 m_leader = 0;
    };

    qint64 m_leader = 0;
    Guard m_guard;
};

#endif
