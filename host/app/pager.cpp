#include "host/app/pager.h"

#include "host/app/console.h"

#include <QStandardPaths>

#ifdef Q_OS_UNIX
#include <csignal>
#include <cstdio>
#include <sys/wait.h>
#endif

namespace {

/*! The shell's command for the pager; empty: none. */
QString pagerCommand()
{
    const char *const variable = "PAGER";
    if (qEnvironmentVariableIsSet(variable)) {
        const QString pager = qEnvironmentVariable(variable).trimmed();
        return pager == QLatin1String("cat") ? QString() : pager;
    }
    return QStandardPaths::findExecutable(QStringLiteral("less"));
}

/*! Whether the pager was there to show the text. */
bool showIn(const QString &pager, const QString &lines)
{
#ifdef Q_OS_UNIX
    // Ctrl-C belongs to the pager, which would be left without its terminal if this process ended.
    // A handler, unlike SIG_IGN, isn't inherited by the pager.
    const auto previous = std::signal(SIGINT, [](int) {});
    // The text stays on the screen, and colours are passed on.
    const bool isLessFree = !qEnvironmentVariableIsSet("LESS");
    if (isLessFree) {
        qputenv("LESS", "FRX");
    }
    std::FILE *const pipe = ::popen(pager.toLocal8Bit().constData(), "w");
    int status = -1;
    if (pipe != nullptr) {
        const QByteArray text = lines.toUtf8() + '\n';
        // A pager that is quit early doesn't read all of it.
        (void)std::fwrite(text.constData(), 1, size_t(text.size()), pipe);
        status = ::pclose(pipe);
    }
    std::signal(SIGINT, previous);
    constexpr int notFound = 127;
    return WIFEXITED(status) && WEXITSTATUS(status) != notFound;
#else
    Q_UNUSED(pager)
    Q_UNUSED(lines)
    return false;
#endif
}

} // namespace

void printPaged(const QString &lines)
{
    const bool isTooLong = lines.count(QLatin1Char('\n')) + 1 >= Console::terminalHeight();
    const QString pager = Console::isTerminal() && isTooLong ? pagerCommand() : QString();
    if (pager.isEmpty() || !showIn(pager, lines)) {
        Console::printLines(lines);
    }
}
