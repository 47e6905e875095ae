#include "host/commandline/convertoptions.h"

#include "host/commandline/mediaoptions.h"
#include "host/convert/namefields.h"

#include <QFile>
#include <QFileInfo>

namespace {

using IfExists = OutputTarget::IfExists;

const QLatin1String folderOption("to");
const QLatin1String outputOption("output");
const QLatin1String nameOption("name");
const QLatin1String recursiveFlag("recursive");
const QLatin1String mirrorFlag("mirror");
const QLatin1String ifExists("if-exists");
const QLatin1String overwriteFlag("overwrite");
const QLatin1String jobs("jobs");

struct IfExistsWord
{
    const char *text;
    IfExists value;
};

constexpr IfExistsWord ifExistsWords[] = {{"rename", IfExists::Rename},
                                          {"skip", IfExists::Skip},
                                          {"overwrite", IfExists::Overwrite},
                                          {"error", IfExists::Fail}};

bool isOffered(const IfExistsWord &word, bool isFixed)
{
    return !isFixed || word.value != IfExists::Rename;
}

QString ifExistsChoices(bool isFixed)
{
    QStringList words;
    for (const IfExistsWord &word : ifExistsWords) {
        if (isOffered(word, isFixed)) {
            words << QLatin1String(word.text);
        }
    }
    return words.join(QLatin1Char('|'));
}

/*! What is named, with the lines of standard input in the place of "-". */
QStringList namedPaths(const Call &call)
{
    QStringList named;
    for (const QString &argument : call.arguments) {
        if (argument == QLatin1String("-")) {
            QFile input;
            if (input.open(stdin, QIODevice::ReadOnly)) {
                named += pathsInList(input.readAll());
            }
        } else {
            named << argument;
        }
    }
    return named;
}

/*! Lists the files that are named, and keeps them from being written over. */
Result<> findSources(const Call &call, ConvertRequest &request)
{
    const QStringList named = namedPaths(call);
    const bool isRecursive = call.options.isSet(recursiveFlag);
    const QString folder = request.prototype.target.folder;
    request.files = SourceFiles(named, isRecursive);
    if (!request.files.folders().isEmpty() && folder.isEmpty()) {
        return wrongUsage(CommandLine::tr("say with --to where the results of a folder go"));
    }
    if (call.options.isGiven(mirrorFlag) && folder.isEmpty()) {
        return wrongUsage(CommandLine::tr("--mirror needs a folder for the results: --to DIR"));
    }
    if (!folder.isEmpty()) {
        const Result<> left = request.files.leaveOut(folder);
        if (!left) {
            return wrongUsage(left.error().text);
        }
    }
    request.prototype.target.kept = std::make_shared<KeptFiles>();
    request.files.each([&request](const SourceFile &file) {
        request.prototype.target.kept->addFile(file.path);
        ++request.count;
    });
    return {};
}

/*! The one result's own name. */
Result<> readOutputFile(const Call &call, ConvertRequest &request)
{
    const QString output = call.options.value(outputOption);
    const QFileInfo file(output);
    if (request.count != 1 || call.options.isGiven(folderOption) ||
        call.options.isGiven(nameOption)) {
        return wrongUsage(CommandLine::tr("--output names the result of one file; for several "
                                          "use --to and --name"));
    }
    const QString extension = request.prototype.settings.extension;
    if (file.suffix().toLower() != extension) {
        return wrongUsage(CommandLine::tr("the preset writes a .%1 file; end the name \"%2\" "
                                          "with \".%1\", or choose another preset")
                              .arg(extension, output));
    }
    request.prototype.target.folder = file.absolutePath();
    request.name = NameTemplate::literal(file.completeBaseName());
    return {};
}

Result<> readName(const Call &call, ConvertRequest &request)
{
    if (!call.options.isSet(nameOption)) {
        return {};
    }
    const Result<NameTemplate> read =
        NameTemplate::fromText(call.options.value(nameOption), nameFields());
    if (!read) {
        return wrongUsage(QStringLiteral("--name: ") + read.error().text);
    }
    request.name = *read;
    return {};
}

} // namespace

ConversionJob ConvertRequest::jobFor(const SourceFile &file, int number) const
{
    ConversionJob job = prototype;
    job.source = file.path;
    job.target.name = name;
    fillName(job.target.name,
             {file.path, preset.map.value(QStringLiteral("id")).toString(), number, count});
    if (isMirrored && !file.subfolder.isEmpty()) {
        job.target.folder += QLatin1Char('/') + file.subfolder;
    }
    return job;
}

QList<QCommandLineOption> convertOptions()
{
    const QList<QCommandLineOption> own = {
        valueOption(folderOption,
                    CommandLine::tr("Folder for the results, instead of the source's own. It is "
                                    "made where it is missing."),
                    CommandLine::tr("DIR")),
        {{QStringLiteral("o"), outputOption},
         CommandLine::tr("The result's own name, for one file."),
         CommandLine::tr("FILE")},
        valueOption(nameOption,
                    CommandLine::tr("Names of the results, without the extension: text with "
                                    "{name}, {preset}, {width}, {height}, {date} (of the source) "
                                    "and {n} (its number)."),
                    CommandLine::tr("TEMPLATE")),
        {{QStringLiteral("r"), recursiveFlag},
         CommandLine::tr("Convert the media files in the folders below a folder, too.")},
        {mirrorFlag, CommandLine::tr("Keep the tree of the folders below a folder.")},
        ifExistsOption(false),
        {overwriteFlag, CommandLine::tr("The same as --if-exists overwrite.")},
    };
    return presetOptions() + own + mediaOptions();
}

Result<ConvertRequest> convertRequest(const Call &call, Noting noting)
{
    if (call.arguments.isEmpty()) {
        return wrongUsage(CommandLine::tr("name the files to convert, such as \"vexconvert %1 "
                                          "FILE --preset ID\"")
                              .arg(call.subcommand));
    }
    const Result<FoundPreset> preset = chosenPreset(call, noting);
    if (!preset) {
        return failed(preset);
    }
    ConvertRequest request;
    request.preset = *preset;
    ConversionJob &job = request.prototype;
    job.settings = preset->outputSettings();
    job.target.folder = call.options.value(folderOption);
    job.target.makesFolder = true;
    request.isMirrored = call.options.isSet(mirrorFlag);
    const Result<IfExists> chosen =
        call.options.isSet(overwriteFlag) ? IfExists::Overwrite : ifExistsOf(call, false);
    if (!chosen) {
        return failed(chosen);
    }
    job.target.ifExists = *chosen;
    Result<> done = readMediaOptions(call, job)
                        .and_then([&] { return findSources(call, request); })
                        .and_then([&] { return readName(call, request); });
    if (done && call.options.isSet(outputOption)) {
        done = readOutputFile(call, request);
    }
    if (!done) {
        return failed(done);
    }
    return request;
}

Result<ConvertRequest> requestForFiles(const Call &call, Noting noting)
{
    Result<ConvertRequest> request = convertRequest(call, noting);
    if (request && request->count == 0) {
        return failed(CommandLine::tr("there are no media files in %1; name other files or "
                                      "folders, or look below them with --recursive")
                          .arg(call.arguments.join(QStringLiteral(", "))));
    }
    return request;
}

Result<QString> fixedTarget(const ConversionJob &job)
{
    OutputName name(job.source, job.target, job.settings.extension);
    if (!name.isComplete()) {
        return wrongUsage(CommandLine::tr("a name that is fixed before the source is read can't "
                                          "have {width} or {height}; leave them out"));
    }
    return name.choose().map([&name] { return name.path(); });
}

QCommandLineOption ifExistsOption(bool isFixed)
{
    return valueOption(ifExists,
                       isFixed ? CommandLine::tr("What happens where a result is there already. "
                                                 "Without this, it is skipped.")
                               : CommandLine::tr("What happens where a result's name is in use. "
                                                 "Without this, it becomes \"name (2)\"."),
                       ifExistsChoices(isFixed));
}

Result<IfExists> ifExistsOf(const Call &call, bool isFixed)
{
    if (!call.options.isSet(ifExists)) {
        return isFixed ? IfExists::Skip : IfExists::Rename;
    }
    const QString text = call.options.value(ifExists);
    for (const IfExistsWord &word : ifExistsWords) {
        if (text == QLatin1String(word.text) && isOffered(word, isFixed)) {
            return word.value;
        }
    }
    return wrongUsage(CommandLine::tr("--if-exists is one of %1, not \"%2\"")
                          .arg(ifExistsChoices(isFixed), text));
}

QCommandLineOption jobsOption()
{
    return {{QStringLiteral("j"), jobs},
            CommandLine::tr("How many files are converted at a time. Without this, as many as suit "
                            "this machine and the codec."),
            CommandLine::tr("N")};
}

Result<int> jobsOf(const Call &call)
{
    if (!call.options.isSet(jobs)) {
        return 0;
    }
    constexpr int most = 1024;
    const int count = call.options.value(jobs).toInt();
    if (count < 1 || count > most) {
        return wrongUsage(CommandLine::tr("--jobs takes a number from 1 to %1").arg(most));
    }
    return count;
}

QString quietFlag()
{
    return QStringLiteral("quiet");
}

QCommandLineOption quietOption()
{
    return {{QStringLiteral("q"), quietFlag()}, CommandLine::tr("Print only what went wrong.")};
}
