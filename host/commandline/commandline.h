#ifndef COMMANDLINE_COMMANDLINE_H
#define COMMANDLINE_COMMANDLINE_H

#include <QCommandLineOption>
#include <QCommandLineParser>
#include <QCoreApplication>
#include <QList>
#include <QString>
#include <QStringList>
#include <QVector>

#include <optional>

class PresetStore;

enum ExitCode { Success = 0, Failure = 1, WrongUsage = 2 };

/*! What a subcommand was called with. */
struct Call
{
    const QCommandLineParser &options;
    QStringList arguments; //!< those behind the subcommand's name
    QString configFolder;  //!< empty: the platform's
};

/*! What vexconvert was called with when it is called for its window. */
struct WindowOptions
{
    QString configFolder;     //!< empty: the platform's
    QString language;         //!< a code or locale; empty: the system's
    QString screenshotFolder; //!< empty: the window is for a person
    QStringList files;        //!< for its list: absolute paths of existing files and folders
};

/*! A word that vexconvert knows, its texts for --help and what it does. */
struct Subcommand
{
    QString name;
    QString syntax; //!< what follows the name
    QString summary;
    QString details; //!< further lines of its own --help
    QList<QCommandLineOption> options;
    ExitCode (*run)(const Call &call);
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

/*! Prints what is wrong with the call and returns WrongUsage. */
ExitCode wrongUsage(const QString &line);
/*! Prints what went wrong and returns Failure. */
ExitCode failure(const QString &line);

/*! Opens the store and prints what it has to tell; false when files of the user's can't be used,
 *  which are left out. */
bool openToRead(PresetStore &store);
/*! The same, for saving; waits for a process that is writing the presets, and says so. */
[[nodiscard]] bool openToWrite(PresetStore &store);
/*! Prints that no preset has this id and returns WrongUsage. */
ExitCode unknownPreset(const QString &id);

/*! An option of several subcommands: --json. */
[[nodiscard]] QCommandLineOption jsonOption();
[[nodiscard]] QCommandLineOption valueOption(const QString &name, const QString &description,
                                             const QString &valueName);

#endif
