#include "host/commandline/trials.h"

#include "host/files/pendingfile.h"
#include "host/media/sizetext.h"

#include <QElapsedTimer>
#include <QEventLoop>
#include <QFile>
#include <QFileInfo>

namespace {

/*! Takes the outcomes and times of the conversions, which are as many as the trials. */
class TrialReport : public BatchReport
{
public:
    explicit TrialReport(QVector<Trial> &trials)
        : m_trials(trials)
    {}

    void started(const BatchJob & /*job*/) override { m_clock.start(); }
    void progressed(const BatchJob & /*job*/, const Progress & /*progress*/) override {}
    void logged(const BatchJob & /*job*/, const ToolCall & /*call*/,
                const QString & /*log*/) override
    {}
    void finished(const BatchJob &job, const Result<ConversionOutcome> &outcome) override
    {
        Trial &trial = m_trials[job.number - 1];
        if (outcome) {
            trial.outcome = *outcome;
        } else {
            trial.error = outcome.error().text;
        }
        trial.seconds = double(m_clock.elapsed()) / 1000;
    }

private:
    QVector<Trial> &m_trials;
    QElapsedTimer m_clock;
};

Result<ToolRun> runTool(const QStringList &arguments)
{
    Tool tool;
    QEventLoop loop;
    Result<ToolRun> ended = failed(QString());
    QObject::connect(&tool, &Tool::finished, &loop, [&](const Result<ToolRun> &run) {
        ended = run;
        loop.quit();
    });
    tool.start(ffmpegCall(arguments));
    loop.exec();
    return ended;
}

/*! Writes the label of a file into \a folder. */
LabelledFile labelled(const ViewedFile &file, const QString &label, const WorkFolder &folder,
                      int number)
{
    const QString path = folder.filePath(QStringLiteral("label%1").arg(number));
    QFile text(path);
    if (text.open(QIODevice::WriteOnly)) {
        text.write(label.toUtf8());
    }
    return {file, path};
}

} // namespace

BatchSummary convertWithAll(QVector<Trial> &trials, const QString &source, const SamplePart &part,
                            const QString &folder)
{
    TrialReport report(trials);
    const auto next = [&, number = 0]() mutable -> std::optional<BatchJob> {
        if (number == trials.size()) {
            return std::nullopt;
        }
        ConversionJob job;
        job.source = source;
        job.settings = trials.at(number).preset.outputSettings();
        job.sample = part;
        job.target.folder = folder;
        job.target.name = NameTemplate::literal(QString::number(number));
        ++number;
        return BatchJob{number, job};
    };
    return Batch(next, 1, report).run();
}

void measure(Trial &trial, const ViewedFile &source, double seconds)
{
    // A picture whose HDR is mapped is another one.
    const bool isMapped = trial.hasPicture() && source.facts.video()->colour.isHdr() &&
                          !trial.outcome.facts.video()->colour.isHdr();
    if (!trial.hasPicture() || isMapped) {
        return;
    }
    const ViewedFile result{trial.outcome.target, trial.outcome.facts};
    const auto likeness = [&](LikenessMeasure what) -> std::optional<double> {
        const Result<ToolRun> run = runTool(likenessArguments(result, source, seconds, what));
        return run && run->exitedCleanly ? likenessIn(run->output) : std::nullopt;
    };
    trial.ssim = likeness(LikenessMeasure::Ssim);
    trial.vmaf = likeness(LikenessMeasure::Vmaf);
}

Result<> drawPicture(const QVector<Trial> &trials, const ViewedFile &source, double seconds,
                     const WorkFolder &folder, const QString &target)
{
    ViewedFile original = source;
    original.start += seconds / 2;
    QVector<LabelledFile> files = {labelled(original, CommandLine::tr("source"), folder, 0)};
    for (const Trial &trial : trials) {
        if (trial.hasPicture()) {
            const QString label = QStringLiteral("%1, %2").arg(
                trial.id(), bytesText(double(trial.outcome.facts.bytes)));
            files.append(labelled({trial.outcome.target, trial.outcome.facts, seconds / 2}, label,
                                  folder, files.size()));
        }
    }
    PendingFile picture;
    const Result<> created = picture.create(QFileInfo(target).absolutePath());
    if (!created) {
        return failed(created);
    }
    const Result<ToolRun> run = runTool(sideBySideArguments(files, picture.path()));
    const Result<QByteArray> drawn = cleanOutput(run);
    if (!drawn) {
        return failed(CommandLine::tr("the picture couldn't be drawn (%1); an ffmpeg with drawtext "
                                      "and fonts is needed")
                          .arg(drawn.error().text));
    }
    return picture.publishOver(target);
}
