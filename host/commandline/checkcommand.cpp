#include "host/app/console.h"
#include "host/app/interrupt.h"
#include "host/commandline/commandline.h"

#include "formats/proxy/formatsproxy.h"
#include "host/check/cataloguelint.h"
#include "host/check/catalogueproof.h"
#include "utility/cataloguefiles.h"

#include <QDir>
#include <QEventLoop>

#include <algorithm>

namespace {

const QLatin1String quickFlag("quick");
const QLatin1String jsonFlag("json");

/*! The names of the library's pictures. */
QStringList pictures()
{
    QStringList names =
        QDir(QStringLiteral(":/formats/image")).entryList({QStringLiteral("*.svg")});
    names.replaceInStrings(QStringLiteral(".svg"), QString());
    return names;
}

/*! The tags of the library under which formats are shown. */
QStringList tags()
{
    FormatsProxy formats;
    formats.init(QString());
    QStringList names = QVariant(formats.formatTags()).toStringList();
    names.removeAll(QStringLiteral("recently"));
    return names;
}

QString resultText(ProofOutcome::Result result)
{
    switch (result) {
    case ProofOutcome::Passed:
        return QStringLiteral("converted");
    case ProofOutcome::LacksEncoder:
        return QStringLiteral("encoder missing");
    case ProofOutcome::Failed:
        break;
    }
    return QStringLiteral("failed");
}

using Presets = QVector<ProvenPreset>;

int countOf(Presets::ConstIterator first, Presets::ConstIterator last, ProofOutcome::Result result)
{
    return int(std::count_if(first, last, [result](const ProvenPreset &preset) {
        return preset.outcome.result == result;
    }));
}

void printMistakes(const QVector<CatalogueMistake> &mistakes)
{
    for (const CatalogueMistake &mistake : mistakes) {
        Console::print(mistake.isServed ? mistake.text()
                                        : CommandLine::tr("%1; left out").arg(mistake.text()));
    }
    Console::print(
        mistakes.isEmpty()
            ? CommandLine::tr("The catalogue's files have no mistakes.")
            : CommandLine::tr("Mistakes in the catalogue's files: %1").arg(mistakes.size()));
}

void printProofs(const Presets &presets)
{
    QVector<QStringList> table = {{CommandLine::tr("Format"), CommandLine::tr("Tag"),
                                   CommandLine::tr("Presets"), CommandLine::tr("Converted"),
                                   CommandLine::tr("Encoder missing"), CommandLine::tr("Failed")}};
    QVector<QStringList> reasons;
    for (auto first = presets.begin(); first != presets.end();) {
        const auto last = std::find_if(first, presets.end(), [first](const ProvenPreset &other) {
            return other.format != first->format;
        });
        QStringList row = {first->format, first->tag, QString::number(last - first)};
        for (const auto result :
             {ProofOutcome::Passed, ProofOutcome::LacksEncoder, ProofOutcome::Failed}) {
            row << QString::number(countOf(first, last, result));
        }
        table << row;
        for (; first != last; ++first) {
            if (first->outcome.result != ProofOutcome::Passed) {
                reasons << QStringList{first->id, first->outcome.reason};
            }
        }
    }
    Console::print(QString());
    Console::printTable(table);
    Console::print(QString());
    if (!reasons.isEmpty()) {
        Console::printTable(reasons);
        Console::print(QString());
    }
    const auto count = [&presets](ProofOutcome::Result result) {
        return countOf(presets.begin(), presets.end(), result);
    };
    Console::print(
        CommandLine::tr("%1 of %2 presets convert as they say, %3 need an encoder that this ffmpeg "
                        "lacks, %4 failed.")
            .arg(count(ProofOutcome::Passed))
            .arg(presets.size())
            .arg(count(ProofOutcome::LacksEncoder))
            .arg(count(ProofOutcome::Failed)));
}

/*! With an error, which is why the presets aren't proven, they are left out. */
void printAsJson(const QVector<CatalogueMistake> &mistakes, const Presets &presets,
                 const QString &error)
{
    QVariantList mistakeMaps;
    for (const CatalogueMistake &mistake : mistakes) {
        mistakeMaps << QVariantMap{{QStringLiteral("file"), mistake.place.source},
                                   {QStringLiteral("position"), mistake.place.position},
                                   {QStringLiteral("path"), mistake.place.path},
                                   {QStringLiteral("reason"), mistake.reason},
                                   {QStringLiteral("leftOut"), !mistake.isServed}};
    }
    QVariantList presetMaps;
    for (const ProvenPreset &preset : presets) {
        presetMaps << QVariantMap{{QStringLiteral("format"), preset.format},
                                  {QStringLiteral("tag"), preset.tag},
                                  {QStringLiteral("id"), preset.id},
                                  {QStringLiteral("result"), resultText(preset.outcome.result)},
                                  {QStringLiteral("reason"), preset.outcome.reason}};
    }
    QVariantMap json{{QStringLiteral("mistakes"), mistakeMaps},
                     {QStringLiteral("presets"), presetMaps}};
    if (!error.isEmpty()) {
        json.remove(QStringLiteral("presets"));
        json.insert(QStringLiteral("error"), error);
    }
    Console::printJson(json);
}

/*! Returns why not all are proven, or an empty text. */
QString prove(Presets &presets, bool showsProgress)
{
    Interrupt interrupt; // still caught while the proof is taken down
    CatalogueProof proof(presets);
    QString problem;
    QEventLoop loop;
    QObject::connect(&interrupt, &Interrupt::caught, &loop, [&problem, &loop] {
        problem = CommandLine::tr("interrupted");
        loop.quit();
    });
    QObject::connect(
        &proof, &CatalogueProof::finished, &loop,
        [&problem, &loop](const QString &error) {
            problem = error;
            loop.quit();
        },
        Qt::QueuedConnection);
    if (showsProgress) {
        QObject::connect(&proof, &CatalogueProof::progressed, [](const QString &id, int left) {
            Console::overwriteLine(CommandLine::tr("%1, %2 conversions left").arg(id).arg(left));
        });
    }
    proof.start();
    loop.exec();
    if (showsProgress) {
        Console::overwriteLine(QString());
    }
    presets = proof.presets();
    return problem;
}

Result<ExitCode> runCheck(const Call &call)
{
    if (!call.arguments.isEmpty()) {
        return wrongUsage(CommandLine::tr("\"check-catalogue\" takes no arguments but options"));
    }
    const bool asJson = call.options.isSet(jsonFlag);
    const QString own = ownCataloguePath();
    const CatalogueResult catalogue = readCatalogueAt(own.isEmpty() ? builtInCataloguePath() : own);
    const QVector<CatalogueMistake> mistakes =
        catalogue.mistakes + lintCatalogue(catalogue, pictures(), tags());
    if (!asJson) {
        printMistakes(mistakes);
    }
    Presets proven;
    QString problem;
    // Without a preset of its own the built-in catalogue is served, which isn't what is checked.
    if (!catalogue.presetPlaces.isEmpty()) {
        proven = presetsToProve(catalogue.catalogue, call.options.isSet(quickFlag));
        problem = prove(proven, !asJson && Console::isTerminal());
    }
    if (asJson) {
        printAsJson(mistakes, proven, problem);
    } else if (!proven.isEmpty() && problem.isEmpty()) {
        printProofs(proven);
    }
    if (!problem.isEmpty()) {
        return failed(problem);
    }
    const bool isSound =
        mistakes.isEmpty() && countOf(proven.begin(), proven.end(), ProofOutcome::Failed) == 0;
    return isSound ? Success : Failure;
}

} // namespace

QVector<Subcommand> checkCommands()
{
    return {
        {QStringLiteral("check-catalogue"),
         CommandLine::tr("[--quick] [--json]"),
         CommandLine::tr("Check the catalogue's files and convert a clip with every preset."),
         CommandLine::tr(
             "\nNames the mistakes in the files, then converts a clip of one second with every\n"
             "preset and holds the result against it; presets that ask for the same share a\n"
             "conversion. The catalogue is the built-in one, or what VEX_EXPORT_CATALOGUE names.\n"
             "The exit code is 1 where anything is wrong; an encoder that this ffmpeg lacks "
             "isn't.\n"),
         {{quickFlag, CommandLine::tr("Convert with one preset of each format only.")},
          jsonOption()},
         runCheck},
    };
}
