#ifndef COMMANDLINE_COMMANDLINE_H
#define COMMANDLINE_COMMANDLINE_H

#include "host/app/exitcode.h"
#include "host/app/windowoptions.h"
#include "host/commandline/options.h"
#include "host/presets/presetstore.h"

#include <QCommandLineOption>
#include <QCoreApplication>
#include <QList>
#include <QString>
#include <QStringList>
#include <QVector>

#include <optional>

/*! The arguments of a subcommand. */
struct Call
{
    QString subcommand;
    const Options &options;
    QStringList arguments; //!< those after the subcommand's name
    QString configFolder;  //!< empty: the platform's
};

/*! A subcommand of vexconvert, with its texts for --help. */
struct Subcommand
{
    QString name;
    QString syntax; //!< what follows the name
    QString summary;
    QString details; //!< more lines for its own --help
    QList<QCommandLineOption> options;
    Result<ExitCode> (*run)(const Call &call); //!< prints everything but the error it returns
};

[[nodiscard]] QVector<Subcommand> catalogueCommands();
[[nodiscard]] Subcommand searchCommand();
[[nodiscard]] Subcommand compareCommand();
[[nodiscard]] QVector<Subcommand> convertCommands();
[[nodiscard]] QVector<Subcommand> engineCommands();
[[nodiscard]] QVector<Subcommand> favoriteCommands();
[[nodiscard]] QVector<Subcommand> planCommands();
[[nodiscard]] QVector<Subcommand> presetCommands();
[[nodiscard]] QVector<Subcommand> watchCommands();
[[nodiscard]] QVector<Subcommand> checkCommands();

/*! The command line: finds the subcommand, or prints the help. */
class CommandLine
{
    Q_DECLARE_TR_FUNCTIONS(CommandLine)

public:
    // Both take the arguments without the program's name.
    /*! The options for the window; nothing if the arguments ask for anything else. */
    static std::optional<WindowOptions> windowOptions(const QStringList &arguments);
    /*! Does what the arguments ask for, except the window. */
    static ExitCode run(const QStringList &arguments);
};

[[nodiscard]] tl::unexpected<Error> wrongUsage(const QString &text);

/*! The presets in the call's folder, not yet open; their messages are printed. */
[[nodiscard]] PresetStore presetsOf(const Call &call);
/*! Opens the presets for reading. User files that can't be used are left out and reported. */
void openWhatCanBeRead(PresetStore &presets);
/*! The preset with this id; an error if there is none. */
[[nodiscard]] Result<FoundPreset> findPreset(const PresetStore &presets, const QString &id);

/*! The option --json of several subcommands. */
[[nodiscard]] QCommandLineOption jsonOption();
[[nodiscard]] QCommandLineOption valueOption(const QString &name, const QString &description,
                                             const QString &valueName);

#endif
