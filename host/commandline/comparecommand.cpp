#include "host/app/console.h"
#include "host/commandline/mediaoptions.h"
#include "host/commandline/trials.h"
#include "host/media/mediaprobe.h"
#include "host/media/sizetext.h"

#include <QEventLoop>

#include <cmath>

namespace {

const QLatin1String presetOption("preset");
const QLatin1String pictureOption("picture");
const QLatin1String jsonFlag("json");

Result<MediaFacts> factsOf(const QString &path)
{
    MediaProbe probe;
    QEventLoop loop;
    Result<MediaFacts> found = failed(QString());
    QObject::connect(&probe, &MediaProbe::finished, &loop, [&](const Result<MediaFacts> &facts) {
        found = facts;
        loop.quit();
    });
    probe.start(path);
    loop.exec();
    return found;
}

/*! The presets that are named, two at least. */
Result<QVector<Trial>> namedPresets(const Call &call)
{
    const QStringList ids = call.options.values(presetOption);
    if (ids.size() < 2) {
        return wrongUsage(CommandLine::tr("name two presets or more to compare, such as "
                                          "\"--preset ID --preset ID\""));
    }
    PresetStore store = presetsOf(call);
    openWhatCanBeRead(store);
    QVector<Trial> trials;
    for (const QString &id : ids) {
        const Result<FoundPreset> preset = findPreset(store, id);
        if (!preset) {
            return failed(preset);
        }
        trials.append({*preset});
    }
    return trials;
}

void printText(const QVector<Trial> &trials)
{
    const auto number = [](const std::optional<double> &value, int decimals) {
        return value ? QString::number(*value, 'f', decimals) : QStringLiteral("-");
    };
    QVector<QStringList> table = {{CommandLine::tr("Preset"), CommandLine::tr("Title"),
                                   CommandLine::tr("Size"), CommandLine::tr("All of it"),
                                   CommandLine::tr("Speed"), QStringLiteral("SSIM"),
                                   QStringLiteral("VMAF")}};
    for (const Trial &trial : trials) {
        if (!trial.error.isEmpty()) {
            Console::printError(QStringLiteral("%1: %2").arg(trial.id(), trial.error));
            continue;
        }
        table.append({trial.id(), trial.preset.map.value(QStringLiteral("title")).toString(),
                      bytesText(double(trial.outcome.facts.bytes)),
                      bytesText(trial.outcome.wholeBytes),
                      QStringLiteral("%1x").arg(trial.speed(), 0, 'f', 1), number(trial.ssim, 4),
                      number(trial.vmaf, 1)});
    }
    Console::printTable(table);
}

void printJson(const QVector<Trial> &trials)
{
    QVariantList json;
    for (const Trial &trial : trials) {
        QVariantMap values = {{QStringLiteral("preset"), trial.id()}};
        if (!trial.error.isEmpty()) {
            values.insert(QStringLiteral("error"), trial.error);
        } else {
            values.insert(QStringLiteral("bytes"), double(trial.outcome.facts.bytes));
            values.insert(QStringLiteral("wholeBytes"), std::round(trial.outcome.wholeBytes));
            values.insert(QStringLiteral("speed"), trial.speed());
        }
        if (trial.ssim) {
            values.insert(QStringLiteral("ssim"), *trial.ssim);
        }
        if (trial.vmaf) {
            values.insert(QStringLiteral("vmaf"), *trial.vmaf);
        }
        json.append(values);
    }
    Console::printJson(json);
}

Result<ExitCode> runCompare(const Call &call)
{
    if (call.arguments.size() != 1) {
        return wrongUsage(CommandLine::tr("give one file: vexconvert compare FILE --preset ID "
                                          "--preset ID"));
    }
    const Result<std::optional<SamplePart>> sample = wantedSample(call);
    if (!sample) {
        return failed(sample);
    }
    Result<QVector<Trial>> trials = namedPresets(call);
    if (!trials) {
        return failed(trials);
    }
    const QString path = call.arguments.constFirst();
    const Result<MediaFacts> facts = factsOf(path);
    if (!facts) {
        return failed(QStringLiteral("%1: %2").arg(path, facts.error().text));
    }
    const QString picture = call.options.value(pictureOption);
    if (!picture.isEmpty() && facts->video() == nullptr) {
        return failed(CommandLine::tr("%1: has no video, so no picture can be drawn").arg(path));
    }
    const Result<WorkFolder> folder = WorkFolder::make();
    if (!folder) {
        return failed(
            CommandLine::tr("couldn't create a temporary folder: %1").arg(folder.error().text));
    }
    const SamplePart part = sample->value_or(SamplePart{10, 0.4});
    if (convertWithAll(*trials, path, part, folder->path()).isInterrupted) {
        return Failure;
    }
    OutputSettings cut;
    part.cut(cut, facts->duration);
    const double seconds = cut.cutDuration(facts->duration);
    const ViewedFile source{path, *facts, cut.start};
    bool isComplete = true;
    for (Trial &trial : *trials) {
        measure(trial, source, seconds);
        isComplete = isComplete && trial.error.isEmpty();
    }
    call.options.isSet(jsonFlag) ? printJson(*trials) : printText(*trials);
    if (!picture.isEmpty()) {
        const Result<> drawn = drawPicture(*trials, source, seconds, *folder, picture);
        if (!drawn) {
            return failed(drawn);
        }
    }
    return isComplete ? Success : Failure;
}

} // namespace

Subcommand compareCommand()
{
    return {
        QStringLiteral("compare"),
        CommandLine::tr(
            "FILE --preset ID --preset ID... [--sample PART] [--picture FILE] [--json]"),
        CommandLine::tr("Try presets on a part of a file and compare what they make."),
        CommandLine::tr(
            "\nFor each preset, its size, about what all of the file would have, its speed "
            "(seconds of the\nfile a second), and how like its picture is to the source: SSIM from "
            "0 to 1, and VMAF from\n0 to 100 if ffmpeg has it. The source is scaled to the "
            "result's size for that. Nothing is\nkept but the picture. The exit code is 1 if a "
            "preset fails.\n"),
        {valueOption(presetOption, CommandLine::tr("A preset to try, given twice or more."),
                     CommandLine::tr("ID")),
         sampleOption(),
         valueOption(pictureOption,
                     CommandLine::tr("Write a frame of the source and of each result, side by "
                                     "side, to this PNG."),
                     CommandLine::tr("FILE")),
         jsonOption()},
        runCompare,
    };
}
