#ifndef TESTS_SUPPORT_FORKEDPROCESS_H
#define TESTS_SUPPORT_FORKEDPROCESS_H

#include <QString>

#include <csignal>
#include <sys/wait.h>
#include <unistd.h>

/*! A copy of the test's process that does some work, reports a text and then idles. */
class ForkedProcess
{
    Q_DISABLE_COPY(ForkedProcess)

public:
    /*! \a work is called with a function that reports a text of up to 4 kB and then idles. */
    template <typename Work>
    explicit ForkedProcess(const Work &work)
    {
        int ends[2] = {};
        if (pipe(ends) != 0) {
            return;
        }
        m_id = fork();
        if (m_id == 0) {
            work([&ends](const QString &text) {
                const QByteArray bytes = text.toUtf8();
                const ssize_t written = write(ends[1], bytes.constData(), size_t(bytes.size()));
                close(ends[1]);
                while (written == bytes.size()) {
                    pause();
                }
            });
            _exit(1);
        }
        close(ends[1]);
        char bytes[4096];
        const ssize_t received = read(ends[0], bytes, sizeof bytes);
        m_report = QString::fromUtf8(bytes, int(received));
        close(ends[0]);
    }
    ~ForkedProcess() { killNow(); }

    /*! The reported text; empty if the process ended instead. */
    [[nodiscard]] QString report() const { return m_report; }

    void killNow()
    {
        if (m_id > 0) {
            kill(m_id, SIGKILL);
            waitpid(m_id, nullptr, 0);
            m_id = 0;
        }
    }

private:
    pid_t m_id = 0;
    QString m_report;
};

#endif
