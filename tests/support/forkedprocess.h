#ifndef TESTS_SUPPORT_FORKEDPROCESS_H
#define TESTS_SUPPORT_FORKEDPROCESS_H

#include <QString>

#include <csignal>
#include <sys/wait.h>
#include <unistd.h>

/*! A copy of the test's process that does something, tells a text about it and stays. */
class ForkedProcess
{
    Q_DISABLE_COPY(ForkedProcess)

public:
    /*! \a work takes a function to tell the text with, up to 4 kB, from where the process stays. */
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
                const ssize_t told = write(ends[1], bytes.constData(), size_t(bytes.size()));
                close(ends[1]);
                while (told == bytes.size()) {
                    pause();
                }
            });
            _exit(1);
        }
        close(ends[1]);
        char bytes[4096];
        const ssize_t heard = read(ends[0], bytes, sizeof bytes);
        m_told = QString::fromUtf8(bytes, int(heard));
        close(ends[0]);
    }
    ~ForkedProcess() { endWithoutGoodbye(); }

    /*! What it told; empty when it ended instead. */
    [[nodiscard]] QString told() const { return m_told; }

    void endWithoutGoodbye()
    {
        if (m_id > 0) {
            kill(m_id, SIGKILL);
            waitpid(m_id, nullptr, 0);
            m_id = 0;
        }
    }

private:
    pid_t m_id = 0;
    QString m_told;
};

#endif
