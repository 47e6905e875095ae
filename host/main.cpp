#include "host/commandline/commandline.h"
#include "host/files/filenamecodec.h"
#include "host/window/windowapp.h"

#include <QCoreApplication>
#include <QLoggingCategory>

#include <csignal>
#include <fcntl.h>
#include <unistd.h>

namespace {

QStringList argumentsOf(int argc, char **argv)
{
    QStringList arguments;
    for (int i = 1; i < argc; ++i) {
        arguments << QString::fromLocal8Bit(argv[i]);
    }
    return arguments;
}

/*!
 * The next file that is opened would get the descriptor of a closed stream, and output would go
 * into that file. Writing to a stream that was closed still fails and is reported.
 */
void occupyClosedStreams()
{
    for (const int stream : {STDIN_FILENO, STDOUT_FILENO, STDERR_FILENO}) {
        if (::fcntl(stream, F_GETFD) < 0) {
            ::open("/dev/null", O_RDONLY);
        }
    }
}

} // namespace

int main(int argc, char **argv)
{
    occupyClosedStreams();
    installFileNameCodec();
    // The library's messages, such as a file missing at the first start, are for developers.
    QLoggingCategory::setFilterRules(QStringLiteral("*.debug=false\n*.info=false"));
#ifdef SIGPIPE
    // A reader that goes away must not kill a conversion and leave a half-written file.
    std::signal(SIGPIPE, SIG_IGN);
#endif
#ifdef SIGXFSZ
    // A file that gets too large is an error to report, like a full disk.
    std::signal(SIGXFSZ, SIG_IGN);
#endif

    QCoreApplication::setApplicationName(QStringLiteral("vexconvert"));
    QCoreApplication::setApplicationVersion(QStringLiteral(VEX_VERSION));
    const QStringList arguments = argumentsOf(argc, argv);
    if (const auto options = CommandLine::windowOptions(arguments)) {
        return runWindow(argc, argv, *options);
    }
    QCoreApplication app(argc, argv);
    return CommandLine::run(arguments);
}
