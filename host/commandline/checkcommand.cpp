#include "host/app/console.h"
#include "host/app/interrupt.h"
#include "host/commandline/commandline.h"

#include "formats/proxy/formatsproxy.h"
#include "host/catalogue/servedcatalogue.h"
#include "host/check/cataloguelint.h"
#include "host/check/catalogueproof.h"
#include "utility/cataloguefiles.h"

#include <QDir>
#include <QEventLoop>

#include <algorithm>

namespace {

const QLatin1String quickFlag("quick");
const QLatin1String jsonFlag("json");

/*! The names of the library's icons. */
QStringList icons()
{
    QStringList names =
        QDir(QStringLiteral(":/formats/image")).entryList({QStringLiteral("*.svg")});
    names.replaceInStrings(QStringLiteral(".svg"), QString());
    return names;
}

/*! The tags of the library that can have formats. */
QStringList tags()
{
    FormatsProxy formats;
    formats.init(QString());
    QStringList names = QVariant(formats.formatTags()).toStringList();
    names.removeAll(QStringLiteral("recently"));
    return names;
}

enum class Verdict { Converted, EncoderMissing, Failed };

Verdict verdictOn(const ProvenPreset &preset)
{
    if (preset.outcome) {
        return Verdict::Converted;
    }
    return preset.outcome.error().kind == Error::EncoderMissing ? Verdict::EncoderMissing
                                                                : Verdict::Failed;
}

QString verdictText(Verdict verdict)
{
    switch (verdict) {
    case Verdict::Converted:
        return QStringLiteral("converted");
    case Verdict::EncoderMissing:
        return QStringLiteral("encoder missing");
    case Verdict::Failed:
        break;
    }
    return QStringLiteral("failed");
}

using Presets = QVector<ProvenPreset>;

int countOf(Presets::ConstIterator first, Presets::ConstIterator last, Verdict verdict)
{
    return int(std::count_if(first, last, [verdict](const ProvenPreset &preset) {
        return verdictOn(preset) == verdict;
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
            ? CommandLine::tr("No mistakes in the catalogue's files.")
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
        for (const auto verdict : {Verdict::Converted, Verdict::EncoderMissing, Verdict::Failed}) {
            row << QString::number(countOf(first, last, verdict));
        }
        table << row;
        for (; first != last; ++first) {
            if (!first->outcome) {
                reasons << QStringList{first->id, first->outcome.error().text};
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
    const auto count = [&presets](Verdict verdict) {
        return countOf(presets.begin(), presets.end(), verdict);
    };
    Console::print(
        CommandLine::tr("%1 of %2 presets convert as expected, %3 need an encoder that this ffmpeg "
                        "lacks, %4 failed.")
            .arg(count(Verdict::Converted))
            .arg(presets.size())
            .arg(count(Verdict::EncoderMissing))
            .arg(count(Verdict::Failed)));
}

/*! Has an error instead of the presets if they couldn't be proven. */
void printAsJson(const QVector<CatalogueMistake> &mistakes, const Result<Presets> &proven)
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
    const Presets provenPresets = proven.value_or(Presets());
    for (const ProvenPreset &preset : provenPresets) {
        presetMaps << QVariantMap{
            {QStringLiteral("format"), preset.format},
            {QStringLiteral("tag"), preset.tag},
            {QStringLiteral("id"), preset.id},
            {QStringLiteral("result"), verdictText(verdictOn(preset))},
            {QStringLiteral("reason"), preset.outcome ? QString() : preset.outcome.error().text}};
    }
    QVariantMap json{{QStringLiteral("mistakes"), mistakeMaps}};
    if (proven) {
        json.insert(QStringLiteral("presets"), presetMaps);
    } else {
        json.insert(QStringLiteral("error"), proven.error().text);
    }
    Console::printJson(json);
}

Result<Presets> prove(const Presets &presets, bool showsProgress)
{
    Interrupt interrupt; // declared first, so that it still works while the proof is destroyed
    CatalogueProof proof(presets);
    Result<> ended;
    QEventLoop loop;
    QObject::connect(&interrupt, &Interrupt::caught, &loop, [&ended, &loop] {
        ended = failed(CommandLine::tr("interrupted"));
        loop.quit();
    });
    QObject::connect(&proof, &CatalogueProof::finished, &loop,
                     [&ended, &loop](const Result<> &outcome) {
                         ended = outcome;
                         loop.quit();
                     });
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
    return ended.map([&proof] { return proof.presets(); });
}

Result<ExitCode> runCheck(const Call &call)
{
    if (!call.arguments.isEmpty()) {
        return wrongUsage(CommandLine::tr("\"check-catalogue\" takes no arguments but options"));
    }
    const bool asJson = call.options.isSet(jsonFlag);
    const ServedCatalogue served(PresetStore::folderAt(call.configFolder));
    const QString own = ownCataloguePath();
    const CatalogueResult catalogue =
        served.read(own.isEmpty() ? builtInCataloguePath() : own).result;
    // Without a valid preset, the built-in catalogue is served, which isn't the one to check.
    const bool hasPresets = !catalogue.presetPlaces.isEmpty();
    if (served.hasOverlays() && hasPresets) {
        const Result<> done = ServedCatalogue::serve(catalogue.catalogue);
        if (!done) {
            return failed(done);
        }
    }
    const QVector<CatalogueMistake> mistakes =
        catalogue.mistakes + lintCatalogue(catalogue, icons(), tags());
    if (!asJson) {
        printMistakes(mistakes);
    }
    Result<Presets> proven;
    if (hasPresets) {
        proven = prove(presetsToProve(catalogue.catalogue, call.options.isSet(quickFlag)),
                       !asJson && Console::isTerminal());
    }
    if (asJson) {
        printAsJson(mistakes, proven);
    } else if (proven && !proven->isEmpty()) {
        printProofs(*proven);
    }
    if (!proven) {
        return failed(proven);
    }
    const bool hasFailed = countOf(proven->cbegin(), proven->cend(), Verdict::Failed) > 0;
    return mistakes.isEmpty() && !hasFailed ? Success : Failure;
}

} // namespace

QVector<Subcommand> checkCommands()
{
    return {
        {QStringLiteral("check-catalogue"),
         CommandLine::tr("[--quick] [--json]"),
         CommandLine::tr("Check the catalogue's files and convert a clip with every preset."),
         CommandLine::tr(
             "\nLists the mistakes in the files, then converts a clip of one second with every\n"
             "preset and compares the result with it; presets with equal settings share a\n"
             "conversion. The catalogue is the built-in one, or the one that "
             "VEX_EXPORT_CATALOGUE\nnames, with the overlays in the folder catalogues of the "
             "configuration folder. The exit\ncode is 1 if anything is wrong; encoders that this "
             "ffmpeg lacks don't count.\n"),
         {{quickFlag, CommandLine::tr("Convert with only one preset of each format.")},
          jsonOption()},
         runCheck},
    };
}
