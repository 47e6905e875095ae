#include "host/commandline/fitting.h"

#include "host/app/console.h"

#include "formats/proxy/formatsproxy.h"

#include <QRegularExpression>

namespace {

const QLatin1String typeOption("type");
const QLatin1String formatOption("format");
const QLatin1String targetOption("target");
const QLatin1String preferSourceOption("prefer-source");

Result<> checkValues(const QString &type, const QString &format, const QString &target)
{
    const bool isVideo = type == QLatin1String("video");
    if (!isVideo && type != QLatin1String("audio")) {
        return wrongUsage(CommandLine::tr("--type must be \"video\" or \"audio\""));
    }
    if (format.isEmpty()) {
        return wrongUsage(CommandLine::tr(
            "--format is missing; give a format such as MP4 (\"vexconvert formats\" "
            "lists them)"));
    }
    static const QRegularExpression size(QStringLiteral("^\\d+x\\d+$"));
    static const QRegularExpression number(QStringLiteral("^\\d+$"));
    if (isVideo && !size.match(target).hasMatch()) {
        return wrongUsage(CommandLine::tr("--target must be a size for video, such as 1280x720"));
    }
    if (!isVideo && !number.match(target).hasMatch()) {
        return wrongUsage(
            CommandLine::tr("--target must be a bitrate in kbps for audio, such as 192"));
    }
    return {};
}

} // namespace

QList<QCommandLineOption> fittingOptions()
{
    return {
        valueOption(typeOption, CommandLine::tr("The type of the output: video or audio."),
                    CommandLine::tr("TYPE")),
        valueOption(formatOption, CommandLine::tr("The format, such as MP4 or mp3."),
                    CommandLine::tr("FORMAT")),
        valueOption(targetOption,
                    CommandLine::tr("The value that the preset should be closest to: for video a "
                                    "size such as 1280x720, for audio a bitrate in kbps such as "
                                    "192."),
                    CommandLine::tr("TARGET")),
        {preferSourceOption,
         CommandLine::tr("Prefer a preset that keeps the source's own size or bitrate.")},
    };
}

bool hasFittingOptions(const Options &options)
{
    return options.isSet(typeOption) || options.isSet(formatOption) ||
           options.isSet(targetOption) || options.isSet(preferSourceOption);
}

Result<QVariantMap> fittingPreset(const Options &options, const FormatsProxy &formats)
{
    const QString type = options.value(typeOption);
    const QString format = options.value(formatOption);
    const QString target = options.value(targetOption);
    const Result<> checked = checkValues(type, format, target);
    if (!checked) {
        return failed(checked);
    }
    if (!formats.getSupportFormat(format)) {
        Console::printError(
            CommandLine::tr("there is no format \"%1\"; the default one for %2 is used instead")
                .arg(format, type));
    }
    const QVariantMap preset =
        formats.getConverterParameters(type, format, target, options.isSet(preferSourceOption));
    if (preset.isEmpty()) {
        return failed(CommandLine::tr("no preset found; \"vexconvert formats --tag %1\" "
                                      "lists the formats to choose from")
                          .arg(type));
    }
    return preset;
}
