#ifndef COMMANDLINE_HELPTEXTS_H
#define COMMANDLINE_HELPTEXTS_H

#include "host/commandline/commandline.h"

class QCommandLineParser;

/*! The help of the program, whose options the parser has. */
[[nodiscard]] QString overviewText(const QVector<Subcommand> &all,
                                   const QCommandLineParser &parser);
/*! The help of a subcommand, whose options the parser has. */
[[nodiscard]] QString helpText(const Subcommand &subcommand, const QCommandLineParser &parser);

#endif
