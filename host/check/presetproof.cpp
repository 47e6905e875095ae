#include "host/check/presetproof.h"

#include "host/media/mediaprobe.h"
#include "host/tools/tool.h"

#include <QDir>
#include <QFile>

namespace {

ConversionJob jobOf(const OutputSettings &settings, const ProofClip &clip)
{
    ConversionJob job;
    job.source = clip.path;
    job.settings = settings;
    return job;
}

/*! The audio is noise, so that encoders use up the bitrate, and is said to have more of it than any
 *  preset gives. No preset can copy these codecs. The picture has 10 bits per colour, which a
 * result has only where it may. */
QStringList clipArguments(const QSize &size, const QString &path)
{
    return QStringLiteral("-y "
                          "-f lavfi -i testsrc2=size=%1x%2:rate=30000/1001:duration=1 "
                          "-f lavfi -i anoisesrc=color=pink:sample_rate=44100:seed=1:duration=1 "
                          "-vf setfield=prog -pix_fmt yuv420p10le -c:v ffvhuff -ac 2 "
                          "-c:a adpcm_ms -b:a 1000k")
               .arg(size.width())
               .arg(size.height())
               .split(QLatin1Char(' ')) +
           QStringList{fileArgument(path)};
}

} // namespace

void makeProofClip(const QSize &size, const QString &folder, QObject *parent,
                   const std::function<void(const Result<ProofClip> &)> &done)
{
    const QString path = QDir(folder).filePath(
        QStringLiteral("clip-%1x%2.mkv").arg(size.width()).arg(size.height()));
    auto *probe = new MediaProbe(parent);
    QObject::connect(
        probe, &MediaProbe::finished, probe, [path, probe, done](const Result<MediaFacts> &facts) {
            probe->deleteLater();
            done(facts.map([&path](const MediaFacts &known) { return ProofClip{path, known}; }));
        });
    auto *ffmpeg = new Tool(probe);
    QObject::connect(ffmpeg, &Tool::finished, probe,
                     [path, probe, done](const Result<ToolRun> &run) {
                         const Result<QByteArray> made = cleanOutput(run);
                         if (made) {
                             probe->start(path);
                         } else {
                             probe->deleteLater();
                             done(failed(made));
                         }
                     });
    ffmpeg->start(ffmpegCall(clipArguments(size, path)));
}

PresetProof::PresetProof(const OutputSettings &settings, const ProofClip &clip, QObject *parent)
    : QObject(parent)
    , m_settings(settings)
    , m_clip(clip)
    , m_conversion(jobOf(settings, clip))
{
    connect(&m_conversion, &Conversion::finished, this, &PresetProof::measure);
    connect(&m_packetList, &Tool::finished, this, &PresetProof::compare);
    m_limit.setSingleShot(true);
    connect(&m_limit, &QTimer::timeout, &m_conversion, &Conversion::cancel);
}

PresetProof::~PresetProof()
{
    if (!m_converted.target.isEmpty()) {
        QFile::remove(m_converted.target);
    }
}

void PresetProof::start(int limit)
{
    m_limit.start(limit);
    m_conversion.start();
}

void PresetProof::measure(const Result<ConversionOutcome> &outcome)
{
    m_limit.stop();
    if (outcome) {
        m_converted = *outcome;
        m_packetList.start(ffprobeCall(packetListArguments(outcome->target)));
    } else if (outcome.error().kind == Error::Cancelled) {
        Q_EMIT finished(failed(tr("not finished after %1 s").arg(m_limit.interval() / 1000.0)));
    } else {
        Q_EMIT finished(failed(outcome));
    }
}

void PresetProof::compare(const Result<ToolRun> &run)
{
    const Result<QByteArray> packets = cleanOutput(run);
    if (!packets) {
        Q_EMIT finished(failed(packets));
        return;
    }
    WrittenFile file;
    file.facts = m_converted.facts;
    file.readPackets(*packets);
    const QStringList deviations = file.deviations(m_settings, m_clip.facts);
    if (deviations.isEmpty()) {
        Q_EMIT finished({});
    } else {
        Q_EMIT finished(failed(deviations.join(QStringLiteral("; "))));
    }
}
