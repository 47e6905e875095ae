#include "host/commandline/commandline.h"

#include "host/app/console.h"
#include "host/app/languages.h"
#include "host/app/pager.h"
#include "host/commandline/helptexts.h"
#include "host/commandline/nearestword.h"
#include "host/files/localpath.h"
#include "host/tools/ffmpegversion.h"

#include "formats/proxy/formatsproxy.h"

#include <QCommandLineParser>
#include <QFile>
#include <QFileInfo>

#include <algorithm>

namespace {

const QLatin1String languageOption("language");
const QLatin1String helpWord("help");

QVector<Subcommand> subcommands()
{
    QVector<Subcommand> all = catalogueCommands();
    all.append(searchCommand());
    all += convertCommands();
    all.append(compareCommand());
    all +=
        watchCommands() + planCommands() + engineCommands() + presetCommands() + favoriteCommands();
#ifdef VEX_READS_CATALOGUE
    all += checkCommands();
#endif
    return all;
}

/*! Null if there is none with this name. */
const Subcommand *findSubcommand(const QVector<Subcommand> &all, const QString &name)
{
    const auto named = std::find_if(all.begin(), all.end(), [&name](const Subcommand &subcommand) {
        return subcommand.name == name;
    });
    return named == all.end() ? nullptr : &*named;
}

/*! The absolute path of a file or folder, given as a path or a file: URL; empty if there is none.
 */
QString existingPath(const QString &argument)
{
    const bool isUrl = argument.startsWith(QLatin1String("file:")) && !QFile::exists(argument);
    const QFileInfo file(isUrl ? localPath(QUrl::fromEncoded(QFile::encodeName(argument)))
                               : argument);
    return file.exists() ? file.absoluteFilePath() : QString();
}

QStringList existingPaths(const QStringList &arguments)
{
    QStringList paths;
    std::transform(arguments.begin(), arguments.end(), std::back_inserter(paths), existingPath);
    return paths;
}

QList<QCommandLineOption> commonOptions()
{
    return {
        valueOption(QStringLiteral("config"),
                    CommandLine::tr("Folder of your own and the recently used presets, instead of "
                                    "the default one."),
                    CommandLine::tr("DIR")),
        {{QStringLiteral("h"), QStringLiteral("help")}, CommandLine::tr("Print this help.")},
        {{QStringLiteral("v"), QStringLiteral("version")},
         CommandLine::tr("Print the versions of vexconvert, Qt and ffmpeg.")},
    };
}

QList<QCommandLineOption> windowOnlyOptions()
{
    return {
        valueOption(languageOption,
                    CommandLine::tr("Language of the window, such as \"de\", instead of the "
                                    "system's."),
                    CommandLine::tr("LANG")),
    };
}

/*! Parses the options before the subcommand; false if they are invalid. */
bool parseOverall(QCommandLineParser &parser, const QStringList &arguments)
{
    parser.setOptionsAfterPositionalArgumentsMode(QCommandLineParser::ParseAsPositionalArguments);
    parser.addOptions(commonOptions() + windowOnlyOptions());
    return parser.parse(QStringList{QCoreApplication::applicationName()} + arguments);
}

/*! Empty: the platform's. */
QString configFolderOf(const QCommandLineParser &parser)
{
    const QString given = parser.value(QStringLiteral("config"));
    return given.isEmpty() ? configFolderOfEnvironment() : given;
}

/*! Whether the window speaks the language that is asked for, if any is. */
bool isLanguageSpoken(const QCommandLineParser &parser)
{
    const QString language = parser.value(languageOption);
    return language.isEmpty() || !Languages::suiting(language).isEmpty();
}

QString versionText()
{
    const Result<QString> ffmpeg = ffmpegVersion();
    return QStringLiteral("vexconvert %1\nQt %2\n%3")
        .arg(QCoreApplication::applicationVersion(), QString::fromLatin1(qVersion()),
             ffmpeg ? QStringLiteral("ffmpeg %1").arg(*ffmpeg) : ffmpeg.error().text);
}

/*! The parser's complaint without the full stop at its end. */
QString mistakeIn(const QCommandLineParser &parser)
{
    QString text = parser.errorText();
    if (text.endsWith(QLatin1Char('.'))) {
        text.chop(1);
    }
    return text;
}

QStringList namesOf(const QList<QCommandLineOption> &options)
{
    QStringList names;
    for (const QCommandLineOption &option : options) {
        names += option.names();
    }
    return names;
}

Result<ExitCode> runSubcommand(const Subcommand &subcommand, const QStringList &arguments,
                               const QString &configFolder)
{
    QCommandLineParser parser;
    parser.addOptions(subcommand.options + commonOptions());
    // The parser takes the first argument for the program's name.
    const bool isParsed = parser.parse(arguments);
    if (parser.isSet(QStringLiteral("help"))) {
        printPaged(helpText(subcommand, parser));
        return Success;
    }
    if (!isParsed) {
        return wrongUsage(CommandLine::tr("%1; see \"vexconvert %2 --help\"%3")
                              .arg(mistakeIn(parser), subcommand.name,
                                   didYouMean(parser.unknownOptionNames().value(0),
                                              namesOf(subcommand.options))));
    }
    const QString own = parser.value(QStringLiteral("config"));
    const QString folder = own.isEmpty() ? configFolder : own;
    const Result<Options> values =
        Options::withDefaults(parser, subcommand.options, PresetStore::folderAt(folder));
    if (!values) {
        return failed(values);
    }
    return subcommand.run({subcommand.name, *values, parser.positionalArguments(), folder});
}

Result<ExitCode> runCommandLine(const QStringList &arguments)
{
    QCommandLineParser parser;
    const bool isParsed = parseOverall(parser, arguments);
    const QStringList rest = parser.positionalArguments();
    if (parser.isSet(QStringLiteral("version"))) {
        Console::printLines(versionText());
        return Success;
    }
    if (parser.isSet(QStringLiteral("help"))) {
        printPaged(overviewText(subcommands(), parser));
        return Success;
    }
    if (!isParsed) {
        return wrongUsage(CommandLine::tr("%1; see \"vexconvert --help\"").arg(mistakeIn(parser)));
    }
    if (!isLanguageSpoken(parser)) {
        return wrongUsage(CommandLine::tr("--language is one of: %1")
                              .arg(Languages::all().join(QStringLiteral(", "))));
    }
    if (rest.constFirst() == helpWord) {
        return runCommandLine(rest.mid(1) + QStringList(QStringLiteral("--help")));
    }
    const QVector<Subcommand> all = subcommands();
    const Subcommand *named = findSubcommand(all, rest.constFirst());
    const int missing = existingPaths(rest).indexOf(QString());
    if (named == nullptr && missing > 0) {
        return wrongUsage(
            CommandLine::tr("there is no file \"%1\"; check its name, and put options before the "
                            "files")
                .arg(rest.at(missing)));
    }
    if (named == nullptr) {
        QStringList names;
        for (const Subcommand &subcommand : all) {
            names << subcommand.name;
        }
        return wrongUsage(
            CommandLine::tr("there is no subcommand \"%1\"; \"vexconvert --help\" lists them%2")
                .arg(rest.constFirst(), didYouMean(rest.constFirst(), names)));
    }
    const QList<QCommandLineOption> forTheWindow = windowOnlyOptions();
    for (const QCommandLineOption &option : forTheWindow) {
        const QString name = option.names().constFirst();
        if (parser.isSet(name)) {
            return wrongUsage(
                CommandLine::tr("--%1 is only for the window; leave it out with a subcommand")
                    .arg(name));
        }
    }
    Result<ExitCode> result = runSubcommand(*named, rest, configFolderOf(parser));
    if (result && Console::hasFailed()) {
        return failed(CommandLine::tr("the output couldn't be written"));
    }
    return result;
}

} // namespace

std::optional<WindowOptions> CommandLine::windowOptions(const QStringList &arguments)
{
    QCommandLineParser parser;
    if (!parseOverall(parser, arguments) || parser.isSet(QStringLiteral("help")) ||
        parser.isSet(QStringLiteral("version"))) {
        return std::nullopt;
    }
    const QStringList rest = parser.positionalArguments();
    const QStringList files = existingPaths(rest);
    const bool isSubcommand =
        !rest.isEmpty() && (rest.constFirst() == helpWord ||
                            findSubcommand(subcommands(), rest.constFirst()) != nullptr);
    if (isSubcommand || files.contains(QString()) || !isLanguageSpoken(parser)) {
        return std::nullopt;
    }
    return WindowOptions{configFolderOf(parser), parser.value(languageOption), files};
}

ExitCode CommandLine::run(const QStringList &arguments)
{
    const Result<ExitCode> result = runCommandLine(arguments);
    return result ? *result : report(result.error());
}

tl::unexpected<Error> wrongUsage(const QString &text)
{
    return failed(text, Error::WrongUsage);
}

PresetStore presetsOf(const Call &call)
{
    return {*FormatsProxy::getInstance(), call.configFolder, Console::printError};
}

void openWhatCanBeRead(PresetStore &presets)
{
    const Result<> opened = presets.open(PresetStore::ReadOnly);
    if (!opened) {
        Console::printError(opened.error().text);
    }
}

Result<FoundPreset> findPreset(const PresetStore &presets, const QString &id)
{
    const std::optional<FoundPreset> preset = presets.find(id);
    if (!preset) {
        return wrongUsage(
            CommandLine::tr("no preset has the id \"%1\"; \"vexconvert search TEXT\" finds "
                            "formats, \"vexconvert presets FORMAT\" lists ids%2")
                .arg(id, didYouMean(id, presets.ids())));
    }
    return *preset;
}

QCommandLineOption jsonOption()
{
    return {QStringLiteral("json"), CommandLine::tr("Print JSON, for other programs to read.")};
}

QCommandLineOption valueOption(const QString &name, const QString &description,
                               const QString &valueName)
{
    return {name, description, valueName};
}
