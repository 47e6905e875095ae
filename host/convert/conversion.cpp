#include "host/convert/conversion.h"

#include "host/convert/codecs.h"
#include "host/convert/ffmpegarguments.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>

#include <algorithm>
#include <filesystem>
#include <system_error>

namespace {

const char ffmpeg[] = "ffmpeg";

bool isSameFile(const QString &one, const QString &other)
{
    std::error_code missing;
    return std::filesystem::equivalent(QFile::encodeName(one).toStdString(),
                                       QFile::encodeName(other).toStdString(), missing);
}

/*! ffmpeg's exit code says nothing about the last bytes of the file; its errors do. */
bool wroteAll(const ToolOutcome &run)
{
    return run.exitedCleanly && !run.errors.contains("Error writing trailer") &&
           !run.errors.contains("Error closing file");
}

} // namespace

Conversion::Conversion(const ConversionJob &job, QObject *parent)
    : QObject(parent)
    , m_job(job)
{}

Conversion::~Conversion()
{
    // ffmpeg stops before the file that it writes is removed.
    delete m_tool;
}

void Conversion::start()
{
    m_isCancelled = false;
    const QString problem = m_job.settings.problem();
    if (!problem.isEmpty()) {
        QMetaObject::invokeMethod(
            this, [this, problem] { endWith(problem); }, Qt::QueuedConnection);
        return;
    }
    m_tool =
        probeMedia(m_job.source, this, [this](const ProbeOutcome &source) { planWith(source); });
}

void Conversion::cancel()
{
    m_isCancelled = true;
    if (m_tool != nullptr) {
        m_tool->stop();
    }
}

void Conversion::planWith(const ProbeOutcome &source)
{
    if (m_isCancelled || !source.error.isEmpty()) {
        endWith(source.error);
        return;
    }
    m_source = source.facts;
    m_tool = new Tool(
        QLatin1String(ffmpeg),
        {QStringLiteral("-hide_banner"), QStringLiteral("-v"), QStringLiteral("error"),
         QStringLiteral("-encoders")},
        [this](const ToolOutcome &listing) { convertWith(listing); }, this);
}

void Conversion::convertWith(const ToolOutcome &encoderListing)
{
    if (m_isCancelled || !encoderListing.started) {
        endWith(encoderListing.notStartedText());
        return;
    }
    const QSet<QString> encoders = encodersInListing(encoderListing.output);
    const auto plan = [this, &encoders](const QString &target) {
        return FfmpegArguments::form(m_job.settings, m_source, encoders, m_job.source, target);
    };

    const QString replaced = fileToReplace();
    const QString target =
        replaced.isEmpty() ? freeName(folder(), baseName(), m_job.settings.extension) : replaced;
    const FfmpegArguments planned = plan(target);
    if (!planned.error.isEmpty()) {
        endWith(planned.error, planned.lacksEncoder);
        return;
    }
    if (m_job.planOnly) {
        Q_EMIT finished({ConversionOutcome::Planned, {}, target, {}, planned.arguments});
        return;
    }
    const QString refusal = m_pending.create(folder());
    if (!refusal.isEmpty()) {
        endWith(refusal);
        return;
    }
    m_progress = ProgressReader(m_job.settings.cutDuration(m_source.duration));
    m_tool = new Tool(
        QLatin1String(ffmpeg), plan(m_pending.path()).arguments,
        [this](const ToolOutcome &run) { checkResult(run); }, this);
    connect(m_tool, &QProcess::readyReadStandardOutput, this, [this] {
        if (m_progress.feed(m_tool->readAllStandardOutput())) {
            Q_EMIT progressed(m_progress.progress());
        }
    });
}

void Conversion::checkResult(const ToolOutcome &run)
{
    if (run.errors.contains("No space left on device")) {
        endWith(tr("the disk with %1 is full; free some space or choose another folder")
                    .arg(QDir::toNativeSeparators(folder())));
        return;
    }
    if (m_isCancelled || !wroteAll(run)) {
        endWith(tr("ffmpeg couldn't convert it (%1); check the file or try another preset")
                    .arg(run.firstError()));
        return;
    }
    m_tool =
        probeMedia(m_pending.path(), this, [this](const ProbeOutcome &result) { publish(result); });
}

void Conversion::publish(const ProbeOutcome &result)
{
    const bool lacksPicture = m_job.settings.hasPicture && result.facts.picture() == nullptr;
    if (m_isCancelled || !result.error.isEmpty() || lacksPicture) {
        endWith(tr("ffmpeg wrote a file that can't be played; try another preset"));
        return;
    }
    const QString replaced = fileToReplace();
    QString target = replaced;
    if (replaced.isEmpty()) {
        target = m_pending.publish(baseName(), m_job.settings.extension);
    } else if (!m_pending.publishOver(replaced)) {
        target.clear();
    }
    if (target.isEmpty()) {
        endWith(tr("the result couldn't get its name in %1; choose another folder")
                    .arg(QDir::toNativeSeparators(folder())));
        return;
    }
    Q_EMIT finished({ConversionOutcome::Converted, {}, target, result.facts, {}});
}

QString Conversion::folder() const
{
    return m_job.folder.isEmpty() ? QFileInfo(m_job.source).absolutePath()
                                  : QFileInfo(m_job.folder).absoluteFilePath();
}

QString Conversion::baseName() const
{
    const QFileInfo source(m_job.source);
    const QString name = source.completeBaseName();
    return name.isEmpty() ? source.fileName() : name;
}

QString Conversion::fileToReplace() const
{
    const QString path =
        QDir(folder()).absoluteFilePath(baseName() + QLatin1Char('.') + m_job.settings.extension);
    const auto isThere = [&path](const QString &kept) { return isSameFile(path, kept); };
    const bool isKept =
        isThere(m_job.source) || std::any_of(m_job.keep.begin(), m_job.keep.end(), isThere);
    return m_job.overwrite && QFileInfo(path).isFile() && !isKept ? path : QString();
}

void Conversion::endWith(const QString &error, bool lacksEncoder)
{
    m_pending.discard();
    ConversionOutcome outcome;
    outcome.result = m_isCancelled ? ConversionOutcome::Cancelled : ConversionOutcome::Failed;
    outcome.error = m_isCancelled ? QString() : error;
    outcome.lacksEncoder = lacksEncoder;
    Q_EMIT finished(outcome);
}
