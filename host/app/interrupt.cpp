#include "host/app/interrupt.h"

#include <QSocketNotifier>

#include <csignal>
#include <fcntl.h>
#include <unistd.h>

namespace {

const int caughtSignals[] = {SIGINT, SIGTERM, SIGHUP};
int pipeEnds[2] = {-1, -1};

void wakeEventLoop(int)
{
    // A full pipe means that the event loop is about to wake anyway.
    const char byte = 0;
    const ssize_t written = write(pipeEnds[1], &byte, 1);
    static_cast<void>(written);
}

} // namespace

Interrupt::Interrupt(QObject *parent)
    : QObject(parent)
{
    if (pipe2(pipeEnds, O_CLOEXEC | O_NONBLOCK) != 0) {
        return;
    }
    auto *notifier = new QSocketNotifier(pipeEnds[0], QSocketNotifier::Read, this);
    connect(notifier, &QSocketNotifier::activated, this, [this] {
        char byte = 0;
        while (read(pipeEnds[0], &byte, 1) == 1) {
        }
        Q_EMIT caught();
    });
    for (const int number : caughtSignals) {
        // A signal that was ignored at the start stays ignored, such as SIGHUP under nohup.
        if (std::signal(number, wakeEventLoop) == SIG_IGN) {
            std::signal(number, SIG_IGN);
        }
    }
}

Interrupt::~Interrupt()
{
    for (const int number : caughtSignals) {
        if (std::signal(number, SIG_DFL) == SIG_IGN) {
            std::signal(number, SIG_IGN);
        }
    }
    close(pipeEnds[0]);
    close(pipeEnds[1]);
}
