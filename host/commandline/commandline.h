#ifndef COMMANDLINE_COMMANDLINE_H
#define COMMANDLINE_COMMANDLINE_H

#include "host/app/exitcode.h"
#include "host/app/windowoptions.h"
#include "host/presets/presetstore.h"

#include <QCommandLineOption>
#include <QCommandLineParser>
#include <QCoreApplication>
#include <QList>
#include <QString>
#include <QStringList>
#include <QVector>

#include <optional>

/*! What a subcommand was called with. */
struct Call
{
    const QCommandLineParser &options;
    QStringList arguments; //!< those behind the subcommand's name
    QString configFolder;  //!< empty: the platform's
};

/*! A word that vexconvert knows, its texts for --help and what it does. */
struct Subcommand
{
    QString name;
    QString syntax; //!< what follows the name
    QString summary;
    QString details; //!< further lines of its own --help
    QList<QCommandLineOption> options;
    Result<ExitCode> (*run)(const Call &call); //!< has told the user what isn't an error
};

[[nodiscard]] QVector<Subcommand> catalogueCommands();
[[nodiscard]] QVector<Subcommand> convertCommands();
[[nodiscard]] QVector<Subcommand> presetCommands();
[[nodiscard]] QVector<Subcommand> checkCommands();

/*! The command line: finds the subcommand, or prints the help. */
class CommandLine
{
    Q_DECLARE_TR_FUNCTIONS(CommandLine)

public:
    // Both take the arguments without the program's name.
    /*! Nothing when they ask for something else than the window. */
    static std::optional<WindowOptions> windowOptions(const QStringList &arguments);
    /*! Anything but the window. */
    static ExitCode run(const QStringList &arguments);
};

[[nodiscard]] tl::unexpected<Error> wrongUsage(const QString &text);

/*! The presets of the call's folder, not yet open; prints what they have to tell. */
[[nodiscard]] PresetStore presetsOf(const Call &call);
/*! Opens the presets for reading. User files that can't be used are left out, which is printed. */
void openWhatCanBeRead(PresetStore &presets);
/*! The preset with this id, or that there is none. */
[[nodiscard]] Result<FoundPreset> findPreset(const PresetStore &presets, const QString &id);

/*! An option of several subcommands: --json. */
[[nodiscard]] QCommandLineOption jsonOption();
[[nodiscard]] QCommandLineOption valueOption(const QString &name, const QString &description,
                                             const QString &valueName);

#endif
