#include "host/commandline/helptexts.h"

#include <QCommandLineParser>

namespace {

/*! The parser's list of options, without its own usage line, which names the program's path. */
QString optionsText(const QCommandLineParser &parser)
{
    const QString text = parser.helpText();
    return text.mid(text.indexOf(QLatin1Char('\n')) + 1).trimmed();
}

} // namespace

QString overviewText(const QVector<Subcommand> &all, const QCommandLineParser &parser)
{
    QString list;
    for (const Subcommand &subcommand : all) {
        list += QStringLiteral("  %1 %2\n").arg(subcommand.name, -16).arg(subcommand.summary);
    }
    return CommandLine::tr("Usage: vexconvert [options] [FILE...]\n"
                           "       vexconvert SUBCOMMAND [arguments] [options]\n"
                           "\n"
                           "Converts video and audio files with presets, in a window or with a "
                           "subcommand.\n"
                           "The window opens with the FILEs, and with the media files of folders "
                           "among them. If it is\nopen already, they are added to it.\n"
                           "\n"
                           "Subcommands:\n"
                           "%1"
                           "\n"
                           "%2\n"
                           "\n"
                           "\"vexconvert help SUBCOMMAND\" explains a subcommand.\n"
                           "\n"
                           "Exit codes: 0 success, 1 something couldn't be done, 2 wrong usage.")
        .arg(list, optionsText(parser));
}

QString helpText(const Subcommand &subcommand, const QCommandLineParser &parser)
{
    return CommandLine::tr("Usage: vexconvert %1 %2\n\n%3\n%4\n%5")
        .arg(subcommand.name, subcommand.syntax, subcommand.summary, subcommand.details,
             optionsText(parser));
}
