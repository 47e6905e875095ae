#include "host/app/console.h"
#include "host/app/interrupt.h"
#include "host/commandline/commandline.h"
#include "host/commandline/fitting.h"
#include "host/commandline/progresstext.h"
#include "host/files/visibletext.h"
#include "host/queue/conversionqueue.h"

#include "formats/proxy/formatsproxy.h"
#include "host/presets/presetstore.h"

#include <QEventLoop>
#include <QFile>
#include <QFileInfo>
#include <QRegularExpression>

namespace {

const QLatin1String presetOption("preset");
const QLatin1String folderOption("to");
const QLatin1String overwriteFlag("overwrite");
const QLatin1String dryRunFlag("dry-run");
const QLatin1String audioOption("audio");
const QLatin1String subtitlesOption("subtitles");
const QLatin1String burnOption("burn-subtitles");
const QLatin1String keepDatesFlag("keep-dates");
const QLatin1String durationOption("duration");
const QLatin1String averageFlag("average");
const QLatin1String sizeOption("size");

/*! In the shell's quotes that take the code of a byte, for what can't be typed. */
QString quotedByCodes(const QString &word)
{
    QString quoted;
    for (int i = 0; i < word.size(); ++i) {
        const QChar character = word.at(i);
        if (character == QLatin1Char('\'') || character == QLatin1Char('\\')) {
            quoted += QLatin1Char('\\');
        }
        if (isVisible(word, i)) {
            quoted += character;
            continue;
        }
        const QByteArray bytes = QFile::encodeName(QString(character));
        for (const char byte : bytes) {
            quoted += QStringLiteral("\\x%1").arg(uchar(byte), 2, 16, QLatin1Char('0'));
        }
    }
    return QStringLiteral("$'%1'").arg(quoted);
}

/*! As a person would type it into a shell. */
QString shellWord(QString word)
{
    static const QRegularExpression plain(QStringLiteral("\\A[A-Za-z0-9_@%+=:,./-]+\\z"));
    if (plain.match(word).hasMatch()) {
        return word;
    }
    if (visibleText(word) != word) {
        return quotedByCodes(word);
    }
    word.replace(QLatin1Char('\''), QStringLiteral("'\\''"));
    return QLatin1Char('\'') + word + QLatin1Char('\'');
}

QString shellCommand(const QString &program, const QStringList &arguments)
{
    QStringList words = {program};
    for (const QString &argument : arguments) {
        words << shellWord(argument);
    }
    return words.join(QLatin1Char(' '));
}

/*! Converts the files one after another and tells about it on the console. */
class Batch : public QObject
{
public:
    Batch(const QStringList &files, const ConversionJob &prototype);
    ExitCode run();

private:
    ConversionJob jobFor(const QString &file) const;
    void showProgress(const QString &file, const Progress &progress);
    void tell(const QString &file, const Result<ConversionOutcome> &outcome);

    const QStringList m_files;
    ConversionJob m_job;
    Interrupt m_interrupt;
    ConversionQueue m_queue; //!< a job's id is its file's place in m_files
    QEventLoop m_loop;
    int m_toldTenths = 0;
    int m_converted = 0;
    bool m_allWhole = true;
};

Batch::Batch(const QStringList &files, const ConversionJob &prototype)
    : m_files(files)
    , m_job(prototype)
{
    m_job.keep = files;
    connect(&m_interrupt, &Interrupt::caught, &m_queue, &ConversionQueue::stop);
    connect(&m_queue, &ConversionQueue::started, this, [this] { m_toldTenths = 0; });
    connect(&m_queue, &ConversionQueue::progressed, this,
            [this](int id, const Progress &progress) { showProgress(m_files.at(id), progress); });
    connect(&m_queue, &ConversionQueue::finished, this,
            [this](int id, const Result<ConversionOutcome> &outcome) {
                tell(m_files.at(id), outcome);
                if (m_queue.isEmpty()) {
                    m_loop.quit();
                }
            });
}

ExitCode Batch::run()
{
    for (int id = 0; id < m_files.size(); ++id) {
        m_queue.add(id, [this, id] { return jobFor(m_files.at(id)); });
    }
    m_queue.start();
    m_loop.exec();
    if (m_files.size() > 1 && !m_job.planOnly) {
        Console::print(
            CommandLine::tr("%1 of %2 files converted").arg(m_converted).arg(m_files.size()));
    }
    return m_converted == m_files.size() && m_allWhole ? Success : Failure;
}

ConversionJob Batch::jobFor(const QString &file) const
{
    ConversionJob job = m_job;
    job.source = file;
    return job;
}

void Batch::showProgress(const QString &file, const Progress &progress)
{
    const QString name = QFileInfo(file).fileName();
    if (Console::isTerminal()) {
        Console::overwriteLine(
            QStringLiteral("%1 %2 %3").arg(name, progressBar(progress), progressText(progress)));
        return;
    }
    // One line a tenth of the way, or for an unknown length one in ten seconds of media.
    const int tenths = progress.percent() >= 0 ? progress.percent() / 10 : int(progress.done / 10);
    if (tenths > m_toldTenths) {
        m_toldTenths = tenths;
        Console::print(QStringLiteral("%1: %2").arg(name, progressText(progress)));
    }
}

void Batch::tell(const QString &file, const Result<ConversionOutcome> &outcome)
{
    if (Console::isTerminal()) {
        Console::overwriteLine(QString());
    }
    if (outcome && m_job.planOnly) {
        ++m_converted;
        Console::print(shellCommand(outcome->plan.program, outcome->plan.arguments));
    } else if (outcome) {
        ++m_converted;
        m_job.keep << outcome->target;
        Console::print(CommandLine::tr("%1 -> %2").arg(file, outcome->target));
        Console::print(QStringLiteral("  ") + outcome->facts.summary());
        m_allWhole = m_allWhole && outcome->shortfall.isEmpty();
        for (const QString &note : {outcome->losses, outcome->shortfall}) {
            if (!note.isEmpty()) {
                Console::printError(QStringLiteral("%1: %2").arg(file, note));
            }
        }
    } else if (outcome.error().kind == Error::Cancelled) {
        Console::printError(CommandLine::tr("%1: stopped; nothing was written").arg(file));
    } else {
        Console::printError(QStringLiteral("%1: %2").arg(file, outcome.error().text));
    }
}

/*! Opens the presets for noting what is used. A conversion waits for no other process: where one
 *  is writing the presets, they are only read, and nothing can be noted. */
Result<> openToNote(PresetStore &presets)
{
    const Result<> locked = presets.lock(0);
    const Result<> opened = presets.open(locked ? PresetStore::ReadWrite : PresetStore::ReadOnly);
    return locked ? opened : locked;
}

/*! Makes the preset the most recently used one. */
Result<> noteAsUsed(PresetStore &presets, const FoundPreset &preset)
{
    presets.formats().add2Recently(preset.tag, preset.className,
                                   preset.map.value(QStringLiteral("id")).toString());
    return presets.save();
}

/*! The preset that the options name or describe. */
Result<FoundPreset> chosenPreset(const Call &call)
{
    const QString id = call.options.value(presetOption);
    if (id.isEmpty() == !hasFittingOptions(call.options)) {
        return wrongUsage(CommandLine::tr("choose a preset: either --preset ID or --type, "
                                          "--format and --target"));
    }
    PresetStore presets = presetsOf(call);
    if (id.isEmpty()) {
        openWhatCanBeRead(presets);
        return fittingPreset(call.options, presets.formats())
            .and_then([&presets](const QVariantMap &fitting) {
                return findPreset(presets, fitting.value(QStringLiteral("id")).toString());
            });
    }
    if (call.options.isSet(dryRunFlag)) {
        openWhatCanBeRead(presets);
        return findPreset(presets, id);
    }
    const Result<> opened = openToNote(presets);
    Result<FoundPreset> preset = findPreset(presets, id);
    if (preset) {
        // A failure is told and hurts nothing else.
        const Result<> noted = opened ? noteAsUsed(presets, *preset) : opened;
        if (!noted) {
            Console::printError(CommandLine::tr("the preset isn't noted as recently used: %1")
                                    .arg(noted.error().text));
        }
    }
    return preset;
}

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
            return wrongUsage(CommandLine::tr("--%1 takes a word such as all, or a language such "
                                              "as de, not \"%2\"")
                                  .arg(option, text));
        }
        choice = *chosen;
        return {};
    };
    Result<> done = read(audioOption, settings.audioTracks);
    if (done && settings.audioTracks.kind == TrackChoice::None) {
        done = wrongUsage(CommandLine::tr("--audio takes all, first or a language such as de"));
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

/*! The size that each result may have; 0 for any. */
Result<double> wantedMegabytes(const Call &call)
{
    if (!call.options.isSet(sizeOption)) {
        return 0;
    }
    bool isNumber = false;
    const double megabytes = call.options.value(sizeOption).toDouble(&isNumber);
    constexpr double most = 1e6;
    if (!isNumber || megabytes <= 0 || megabytes > most) {
        return wrongUsage(CommandLine::tr("--size takes a number of megabytes, such as 25"));
    }
    return megabytes;
}

Result<ExitCode> runConvert(const Call &call)
{
    if (call.arguments.isEmpty()) {
        return wrongUsage(CommandLine::tr("name the files to convert: vexconvert convert FILE... "
                                          "--preset ID"));
    }
    const Result<FoundPreset> preset = chosenPreset(call);
    if (!preset) {
        return failed(preset);
    }
    const Result<double> megabytes = wantedMegabytes(call);
    if (!megabytes) {
        return failed(megabytes);
    }
    ConversionJob job;
    job.settings = preset->outputSettings();
    const Result<> tracks = readTrackOptions(call, job.settings);
    if (!tracks) {
        return failed(tracks);
    }
    job.keepDates = call.options.isSet(keepDatesFlag);
    job.settings.averagesBitrate = call.options.isSet(averageFlag);
    job.settings.targetBytes = *megabytes * 1000000;
    job.folder = call.options.value(folderOption);
    job.overwrite = call.options.isSet(overwriteFlag);
    job.planOnly = call.options.isSet(dryRunFlag);
    return Batch(call.arguments, job).run();
}

} // namespace

QVector<Subcommand> convertCommands()
{
    const QList<QCommandLineOption> own = {
        valueOption(presetOption,
                    CommandLine::tr("The preset with this id; \"vexconvert presets FORMAT\" lists "
                                    "ids. It is noted as recently used."),
                    CommandLine::tr("ID")),
        valueOption(folderOption,
                    CommandLine::tr("Folder for the results, instead of the source's own."),
                    CommandLine::tr("DIR")),
        {overwriteFlag, CommandLine::tr("Write over existing results, but never over a source.")},
        valueOption(audioOption,
                    CommandLine::tr("Audio tracks to write: all that the format holds (the "
                                    "default), first, or those of a language."),
                    CommandLine::tr("all|first|LANG")),
        valueOption(subtitlesOption,
                    CommandLine::tr("Subtitles to write: all that the format holds (the default), "
                                    "none, or those of a language."),
                    CommandLine::tr("all|none|LANG")),
        valueOption(burnOption,
                    CommandLine::tr("Draw the subtitle track with this number, from 1, onto the "
                                    "picture."),
                    CommandLine::tr("N")),
        {keepDatesFlag, CommandLine::tr("Give results the dates of their sources.")},
        valueOption(durationOption,
                    CommandLine::tr("Make films of single pictures, of so many seconds."),
                    CommandLine::tr("SECONDS")),
        {averageFlag, CommandLine::tr("Reach the preset's video bitrate on average, instead of "
                                      "taking it for the most.")},
        valueOption(sizeOption, CommandLine::tr("Make each result at most that large."),
                    CommandLine::tr("MB")),
        {dryRunFlag, CommandLine::tr("Only print the ffmpeg commands.")},
    };
    return {
        {QStringLiteral("convert"),
         CommandLine::tr(
             "FILE... (--preset ID | --type TYPE --format FORMAT --target TARGET) [options]"),
         CommandLine::tr("Convert files with a preset."),
         CommandLine::tr(
             "\nThe preset is named by its id, or found as \"vexconvert fit\" does.\n"
             "\n"
             "A result is named after its source; where the name is taken it becomes \"name "
             "(2)\",\nunless --overwrite is given. One file that fails doesn't stop the others, "
             "and leaves\nnothing behind. What a result can't hold of its source is named. The "
             "exit "
             "code is 1\nwhen any failed or ended earlier than its source. ffmpeg and ffprobe "
             "do the work and\nmust be on the PATH.\n"),
         own + fittingOptions(), runConvert},
    };
}
