#include "host/convert/conversion.h"

#include "host/convert/copycheck.h"
#include "host/convert/failurewords.h"
#include "host/convert/ffmpegarguments.h"
#include "host/convert/shortfall.h"
#include "host/convert/subtitleplan.h"

#include <QDateTime>
#include <QDir>
#include <QFile>
#include <QFileInfo>

#include <algorithm>

namespace {

/*! Ignores failures: a wrong date does no harm. */
void takeDate(const QString &file, const QString &source)
{
    QFile dated(file);
    if (dated.open(QIODevice::ReadWrite | QIODevice::ExistingOnly)) {
        dated.setFileTime(QFileInfo(source).lastModified(), QFileDevice::FileModificationTime);
    }
}

/*! Enough for the frames of one second at any size. */
constexpr ToolLimits frameLimits{1024LL * 1024, 120000};

/*! ffmpeg may exit cleanly although it couldn't write the last bytes; its errors show it. */
bool wroteAll(const ToolRun &run)
{
    return run.exitedCleanly && !run.errors.contains("Error writing trailer") &&
           !run.errors.contains("Error closing file");
}

} // namespace

QStringList ConversionOutcome::notes() const
{
    QStringList notes = {shortfall, losses, advice};
    notes.removeAll(QString());
    return notes;
}

void SamplePart::cut(OutputSettings &settings, double duration) const
{
    const double latest = std::max(0.0, duration - seconds);
    settings.start = std::min(duration * at, latest);
    settings.end = settings.start + seconds;
}

Conversion::Conversion(const ConversionJob &job, QObject *parent)
    : QObject(parent)
    , m_job(job)
    , m_plan{job.source, job.settings}
    , m_name(job.source, job.target, job.settings.extension)
{
    connect(&m_sourceProbe, &MediaProbe::finished, this, &Conversion::listEncoders);
    connect(&m_encoders, &EncoderList::finished, this, &Conversion::lookAtSource);
    connect(&m_look, &SourceLook::finished, this, &Conversion::convert);
    connect(&m_ffmpeg, &Tool::outputReady, this, [this] {
        if (m_progress.feed(m_ffmpeg.readOutput())) {
            Q_EMIT progressed(m_progress.progress());
        }
    });
    connect(&m_ffmpeg, &Tool::finished, this, &Conversion::checkRun);
    connect(&m_resultProbe, &MediaProbe::finished, this, &Conversion::checkResult);
    connect(&m_frameList, &Tool::finished, this, &Conversion::compareFrames);
}

void Conversion::start()
{
    m_plan = {m_job.source, m_job.settings};
    m_sizeFit.reset();
    m_runs = 0;
    const Result<> possible = m_plan.settings.validate().and_then(
        [this] { return m_name.isComplete() ? m_name.choose() : Result<>(); });
    if (possible && !m_name.isSkipped()) {
        m_sourceProbe.start(m_job.source);
        return;
    }
    QMetaObject::invokeMethod(
        this, [this, possible] { possible ? skip() : fail(possible.error()); },
        Qt::QueuedConnection);
}

void Conversion::cancel()
{
    m_sourceProbe.stop();
    m_look.stop();
    m_encoders.stop();
    m_ffmpeg.stop();
    m_resultProbe.stop();
    m_frameList.stop();
}

void Conversion::pause()
{
    m_isPaused = true;
    m_ffmpeg.pause();
}

void Conversion::resume()
{
    m_isPaused = false;
    m_ffmpeg.resume();
}

void Conversion::listEncoders(const Result<MediaFacts> &source)
{
    if (!source) {
        fail(source.error());
        return;
    }
    m_plan.source = *source;
    m_encoders.start();
}

void Conversion::lookAtSource(const Result<QSet<QString>> &encoders)
{
    if (!encoders) {
        fail(encoders.error());
        return;
    }
    m_plan.encoders = *encoders;
    if (!m_plan.settings.hasVideo) {
        convert(m_plan.source);
        return;
    }
    const std::optional<VideoPlan> picture = m_plan.picture();
    m_look.start(m_job.source, m_plan.source, picture && picture->isToneMapped);
}

void Conversion::convert(const Result<MediaFacts> &source)
{
    if (!source) {
        fail(source.error());
        return;
    }
    m_plan.source = *source;
    if (m_job.sample) {
        m_job.sample->cut(m_plan.settings, m_plan.source.duration);
    }
    const Result<OutputSettings> fitted = fittedToSize(m_plan.source, m_plan.target());
    if (!fitted) {
        fail(fitted.error());
        return;
    }
    m_plan.settings = *fitted;
    if (!m_name.isComplete()) {
        const Result<> named = namePicture().and_then([this] { return m_name.choose(); });
        if (!named) {
            fail(named.error());
            return;
        }
        if (m_name.isSkipped()) {
            skip();
            return;
        }
    }
    const Result<QVector<ToolCall>> planned = m_plan.calls(m_name.path());
    if (!planned) {
        fail(planned.error());
        return;
    }
    if (m_job.planOnly) {
        ConversionOutcome outcome{m_name.path(), {}, m_plan.losses(), {}, *planned};
        outcome.mostBytes = mostBytes(m_plan.source, m_plan.target());
        outcome.advice = m_plan.advice();
        Q_EMIT finished(outcome);
        return;
    }
    if (m_job.target.makesFolder) {
        QDir().mkpath(m_name.folder()); // creating the file then says what is wrong
    }
    const Result<> created = m_pending.create(m_name.folder());
    if (!created) {
        fail(created.error());
        return;
    }
    m_firstCopies = copiesIn(planned->constLast().arguments);
    m_plan.copies = m_firstCopies;
    attempt();
}

void Conversion::attempt()
{
    if (m_plan.settings.targetBytes > 0 && m_plan.settings.hasVideo) {
        m_sizeFit.emplace(m_plan.settings.targetBytes, m_plan.duration(),
                          m_plan.settings.videoKbps);
    }
    m_pass = {m_plan.takesPasses() ? 1 : 0, m_pending.passPath()};
    runFfmpeg();
}

void Conversion::runFfmpeg()
{
    const Result<QStringList> arguments = m_plan.arguments(m_pending.path(), m_pass);
    if (!arguments) {
        fail(arguments.error());
        return;
    }
    m_progress = ProgressReader(m_plan.duration(), m_runs, m_pass.number == 1 ? 1 : 0);
    m_call = ffmpegCall(*arguments);
    if (m_job.isLogged) {
        m_call.report = m_pending.logPath();
    }
    m_ffmpeg.start(m_call);
    if (m_isPaused) {
        m_ffmpeg.pause();
    }
}

void Conversion::checkRun(const Result<ToolRun> &run)
{
    if (m_job.isLogged) {
        log();
    }
    ++m_runs;
    if (!run) {
        fail(run.error());
    } else if (run->errors.contains("No space left on device")) {
        fail({tr("the disk with %1 is full; free some space or choose another folder")
                  .arg(QDir::toNativeSeparators(m_name.folder()))});
    } else if (!wroteAll(*run)) {
        if (m_sizeFit && m_sizeFit->raises()) {
            m_plan.settings.videoKbps = m_sizeFit->kbps();
            runFfmpeg();
            return;
        }
        if (retryWithFewerCopies()) {
            return;
        }
        fail({tr("ffmpeg couldn't convert it (%1); check the file or try another preset")
                  .arg(failureInPlainWords(run->firstError()))});
    } else if (m_pass.number == 1) {
        m_pass.number = 2;
        runFfmpeg();
    } else {
        m_hadErrors = !run->errors.isEmpty();
        const Result<bool> corrects = correctsSize();
        if (!corrects) {
            fail(corrects.error());
        } else if (*corrects) {
            runFfmpeg();
        } else {
            m_resultProbe.start(m_pending.path());
        }
    }
}

Result<bool> Conversion::correctsSize()
{
    if (!m_sizeFit) {
        return false;
    }
    const bool corrects = m_sizeFit->corrects(QFileInfo(m_pending.path()).size());
    if (corrects && m_sizeFit->isBest()) {
        m_pending.keep();
    } else if (!corrects && !m_sizeFit->isBest() &&
               !(m_sizeFit->hasBest() && m_pending.takeKept())) {
        return failed(tr("can't be made as small as asked; choose a larger size or a preset with "
                         "a smaller picture"));
    }
    m_plan.settings.videoKbps = m_sizeFit->kbps();
    return corrects;
}

void Conversion::checkResult(const Result<MediaFacts> &result)
{
    if (!result && result.error().kind == Error::Cancelled) {
        fail(result.error());
        return;
    }
    if (!result || (m_plan.settings.hasVideo && result->video() == nullptr)) {
        if (!retryWithFewerCopies()) {
            fail({tr("ffmpeg wrote a file that can't be played; try another preset")});
        }
        return;
    }
    m_result = *result;
    const Copies lasting =
        copiesThatLast(m_plan.copies, m_plan.source, m_result, m_plan.duration());
    const bool isTooShort = m_result.duration < m_plan.duration();
    if (lasting != m_plan.copies && !(isTooShort && m_hadErrors)) {
        retryWith(lasting);
    } else if (m_plan.copies.video) {
        m_sourceFrames.clear();
        m_frameList.start(ffmpegCall(firstFramesArguments(m_plan.source, m_job.source)),
                          frameLimits);
    } else {
        publish();
    }
}

void Conversion::compareFrames(const Result<ToolRun> &run)
{
    if (!run) {
        fail(run.error());
        return;
    }
    if (m_sourceFrames.isNull()) {
        m_sourceFrames = run->output + '\n';
        m_frameList.start(ffmpegCall(firstFramesArguments(m_result, m_pending.path())),
                          frameLimits);
    } else if (beginsAlike(m_sourceFrames, run->output)) {
        publish();
    } else {
        retryWith({false, m_plan.copies.audio, m_plan.copies.subtitles});
    }
}

void Conversion::publish()
{
    const Result<> published = m_name.publish(m_pending);
    if (!published) {
        fail(published.error());
        return;
    }
    if (m_name.isSkipped()) {
        skip();
        return;
    }
    if (m_job.keepDates) {
        takeDate(m_name.path(), m_job.source);
    }
    ConversionOutcome outcome{m_name.path(), m_result, m_plan.losses(), shortfall()};
    outcome.advice = m_plan.advice();
    if (m_job.sample && m_result.duration > 0) {
        outcome.wholeBytes = double(m_result.bytes) * m_plan.source.duration / m_result.duration;
    }
    Q_EMIT finished(outcome);
}

QString Conversion::shortfall() const
{
    const bool isGuessed = m_result.hasGuessedDuration();
    return shortfallIn(m_plan.source, m_result, m_plan.duration(),
                       isGuessed ? m_progress.written() : m_result.duration);
}

bool Conversion::retryWithFewerCopies()
{
    if (m_plan.copies.video || m_plan.copies.audio) {
        retryWith(fewerCopies(m_firstCopies, m_plan.copies));
        return true;
    }
    // The subtitles may be what can't be written: the rest is worth more.
    if (m_plan.copies.subtitles && !subtitlePlans(m_plan.source, m_plan.target()).isEmpty()) {
        m_firstCopies.subtitles = false;
        retryWith(m_firstCopies);
        return true;
    }
    return false;
}

void Conversion::retryWith(const Copies &copies)
{
    m_plan.copies = copies;
    attempt();
}

Result<> Conversion::namePicture()
{
    const VideoTrack *track = m_plan.source.video();
    if (!m_plan.settings.hasVideo || track == nullptr) {
        return failed(tr("the output has no picture, so its name can't hold the picture's width "
                         "or height"));
    }
    return VideoPlan::make(*track, m_plan.target()).map([this](const VideoPlan &plan) {
        m_name.setPicture(plan.size);
    });
}

void Conversion::log()
{
    QFile report(m_pending.logPath());
    const bool isOpen = report.open(QIODevice::ReadOnly);
    Q_EMIT logged(m_call, isOpen ? QFile::decodeName(report.readAll()) : QString());
}

void Conversion::skip()
{
    m_pending.discard();
    ConversionOutcome outcome;
    outcome.target = m_name.path();
    outcome.isSkipped = true;
    Q_EMIT finished(outcome);
}

void Conversion::fail(const Error &error)
{
    m_pending.discard();
    Q_EMIT finished(tl::make_unexpected(error));
}
