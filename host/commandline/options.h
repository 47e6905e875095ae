#ifndef COMMANDLINE_OPTIONS_H
#define COMMANDLINE_OPTIONS_H

#include "host/error.h"

#include <QCommandLineParser>
#include <QHash>

/*!
 * The values of a subcommand's options. One that isn't given on the command line has the value of
 * the environment variable VEXCONVERT_NAME, else that of the user's file of defaults.
 */
class Options
{
public:
    /*! Reads the defaults for the options of \a parser, which outlives this object, from the
     *  environment and from config.ini in \a folder. */
    [[nodiscard]] static Result<Options> withDefaults(const QCommandLineParser &parser,
                                                      const QList<QCommandLineOption> &options,
                                                      const QString &folder);

    /*! Whether the option is given on the command line. */
    [[nodiscard]] bool isGiven(const QString &name) const { return m_parser->isSet(name); }
    /*! Whether the option has a value, or for a flag whether it is on. */
    [[nodiscard]] bool isSet(const QString &name) const;
    /*! Empty if the option has none. */
    [[nodiscard]] QString value(const QString &name) const;
    /*! All values that the command line gives, in their order. */
    [[nodiscard]] QStringList values(const QString &name) const { return m_parser->values(name); }

private:
    explicit Options(const QCommandLineParser &parser)
        : m_parser(&parser)
    {}

    const QCommandLineParser *m_parser;
    QHash<QString, QString> m_defaults; // of a flag: "true" or "false"
};

/*! The configuration folder that the environment names; empty: the platform's. */
[[nodiscard]] QString configFolderOfEnvironment();

#endif
