#include "host/commandline/mediaoptions.h"

#include "host/media/clocktext.h"

#include <QRegularExpression>

namespace {

const QLatin1String audioOption("audio");
const QLatin1String subtitlesOption("subtitles");
const QLatin1String burnOption("burn-subtitles");
const QLatin1String keepDatesFlag("keep-dates");
const QLatin1String startOption("start");
const QLatin1String endOption("end");
const QLatin1String durationOption("duration");
const QLatin1String averageFlag("average");
const QLatin1String sizeOption("fit-size");
const QLatin1String shortSizeOption("size");
const QLatin1String sampleName("sample");

/*! Takes what the options say of tracks and of pictures. */
Result<> readTrackOptions(const Call &call, OutputSettings &settings)
{
    const auto read = [&call](const QString &option, TrackChoice &choice) -> Result<> {
        if (!call.options.isSet(option)) {
            return {};
        }
        const QString text = call.options.value(option);
        const std::optional<TrackChoice> chosen = TrackChoice::fromText(text);
        if (!chosen) {
            return wrongUsage(CommandLine::tr("--%1 takes a word such as all, a language such "
                                              "as de, or numbers such as 1,3, not \"%2\"")
                                  .arg(option, text));
        }
        choice = *chosen;
        return {};
    };
    Result<> done = read(audioOption, settings.audioTracks);
    if (done && settings.audioTracks.kind == TrackChoice::None) {
        done = wrongUsage(CommandLine::tr("--audio takes all, first, a language such as de, or "
                                          "numbers such as 1,3"));
    }
    if (done) {
        done = read(subtitlesOption, settings.subtitles);
    }
    const auto number = [&call, &done](const QString &option, double least) {
        bool isNumber = false;
        const double value = call.options.value(option).toDouble(&isNumber);
        const bool isSet = call.options.isSet(option);
        if (isSet && !(isNumber && value >= least && value <= 86400)) {
            done =
                wrongUsage(CommandLine::tr("--%1 takes a number from %2").arg(option).arg(least));
        }
        return isSet ? value : 0;
    };
    settings.burnedSubtitles = int(number(burnOption, 1));
    settings.stillSeconds = number(durationOption, 0.1);
    return done;
}

/*! The bytes of "25MB", "700 kB" or "1.5GB"; without a unit they are MB. 0 for anything else. */
double bytesFromText(const QString &text)
{
    static const QRegularExpression form(QStringLiteral("\\A([0-9]+(?:\\.[0-9]+)?) ?([kmg]?)b?\\z"),
                                         QRegularExpression::CaseInsensitiveOption);
    const QRegularExpressionMatch match = form.match(text);
    const QString unit = match.captured(2).toLower();
    const double factor = unit == QLatin1String("k") ? 1e3 : unit == QLatin1String("g") ? 1e9 : 1e6;
    return match.captured(1).toDouble() * factor;
}

/*! The size that each result may have in bytes; 0 for any. */
Result<double> wantedBytes(const Call &call)
{
    if (!call.options.isSet(sizeOption)) {
        return 0;
    }
    const double bytes = bytesFromText(call.options.value(sizeOption));
    constexpr double most = 1e12;
    if (bytes <= 0 || bytes > most) {
        return wrongUsage(CommandLine::tr("--fit-size takes a size such as 25MB, 700kB or 1.5GB"));
    }
    return bytes;
}

/*! Takes the cut. */
Result<> readTimes(const Call &call, OutputSettings &settings)
{
    const auto read = [&call](const QString &option, double &seconds) -> Result<> {
        if (call.options.isSet(option)) {
            seconds = secondsFromClockText(call.options.value(option));
        }
        return seconds >= 0 ? Result<>()
                            : wrongUsage(CommandLine::tr("--%1 takes a time such as 1:02:03.5 or "
                                                         "a number of seconds")
                                             .arg(option));
    };
    return read(startOption, settings.start).and_then([&] {
        return read(endOption, settings.end);
    });
}

} // namespace

QList<QCommandLineOption> mediaOptions()
{
    return {
        valueOption(audioOption,
                    CommandLine::tr("Audio tracks to write: all that the format holds (the "
                                    "default), first, those of a language, or those with these "
                                    "numbers, from 1. With 1,3/3 players choose the third one by "
                                    "themselves."),
                    CommandLine::tr("all|first|LANG|N,N")),
        valueOption(subtitlesOption,
                    CommandLine::tr("Subtitles to write: all that the format holds (the default), "
                                    "none, those of a language, or those with these numbers. With "
                                    "1,3/0 players show none by themselves."),
                    CommandLine::tr("all|none|LANG|N,N")),
        valueOption(burnOption,
                    CommandLine::tr("Draw the subtitle track with this number, from 1, onto the "
                                    "picture."),
                    CommandLine::tr("N")),
        valueOption(startOption,
                    CommandLine::tr("Begin there in the source, such as 1:02:03.5 or 90."),
                    CommandLine::tr("TIME")),
        valueOption(endOption, CommandLine::tr("End there in the source."),
                    CommandLine::tr("TIME")),
        {keepDatesFlag, CommandLine::tr("Give results the dates of their sources.")},
        valueOption(durationOption,
                    CommandLine::tr("Make films of single pictures, of so many seconds."),
                    CommandLine::tr("SECONDS")),
        {averageFlag, CommandLine::tr("Reach the preset's video bitrate on average, instead of "
                                      "taking it for the most.")},
        {{shortSizeOption, sizeOption},
         CommandLine::tr("Make each result just so large, such as 25MB. The video is written in "
                         "two passes."),
         CommandLine::tr("SIZE")},
    };
}

Result<> readMediaOptions(const Call &call, ConversionJob &job)
{
    job.settings.averagesBitrate |= call.options.isSet(averageFlag);
    job.keepDates = call.options.isSet(keepDatesFlag);
    return readTrackOptions(call, job.settings)
        .and_then([&] { return readTimes(call, job.settings); })
        .and_then([&] { return wantedBytes(call); })
        .map([&job](double bytes) { job.settings.targetBytes = bytes; });
}

QCommandLineOption sampleOption()
{
    return valueOption(
        sampleName,
        CommandLine::tr(
            "Only a part, such as 10s@40%: 10 seconds from 40 % of the source. Says how "
            "large all of it would be."),
        CommandLine::tr("PART"));
}

Result<std::optional<SamplePart>> wantedSample(const Call &call)
{
    if (!call.options.isSet(sampleName)) {
        return std::optional<SamplePart>();
    }
    static const QRegularExpression form(
        QStringLiteral("\\A([0-9:.]+) ?s?(?:@([0-9]+(?:\\.[0-9]+)?)%)?\\z"));
    const QRegularExpressionMatch match = form.match(call.options.value(sampleName));
    const QString place = match.captured(2);
    const SamplePart part{secondsFromClockText(match.captured(1)),
                          place.isEmpty() ? 0.5 : place.toDouble() / 100};
    if (part.seconds <= 0 || part.at > 1) {
        return wrongUsage(CommandLine::tr("--sample takes a part such as 10s@40%: how long it is "
                                          "and where in the source it begins"));
    }
    return std::optional(part);
}
