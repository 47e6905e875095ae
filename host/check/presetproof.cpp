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

/*! Noise in the sound, so that encoders have to spend the bitrate. No preset copies these codecs.
 */
QStringList clipArguments(const QSize &size, const QString &path)
{
    return QStringLiteral("-nostdin -v error -y "
                          "-f lavfi -i testsrc2=size=%1x%2:rate=30000/1001:duration=1 "
                          "-f lavfi -i anoisesrc=color=pink:sample_rate=44100:seed=1:duration=1 "
                          "-pix_fmt yuv420p -c:v utvideo -ac 2 -c:a adpcm_ms")
               .arg(size.width())
               .arg(size.height())
               .split(QLatin1Char(' ')) +
           QStringList{fileArgument(path)};
}

} // namespace

void makeProofClip(const QSize &size, const QString &folder, QObject *parent,
                   const std::function<void(const ProofClip &, const QString &error)> &done)
{
    const QString path = QDir(folder).filePath(
        QStringLiteral("clip-%1x%2.mkv").arg(size.width()).arg(size.height()));
    new Tool(
        QStringLiteral("ffmpeg"), clipArguments(size, path),
        [path, parent, done](const ToolOutcome &made) {
            if (!made.exitedCleanly) {
                done({}, made.started ? made.firstError() : made.notStartedText());
                return;
            }
            probeMedia(path, parent, [path, done](const ProbeOutcome &probed) {
                done({path, probed.facts}, probed.error);
            });
        },
        parent);
}

PresetProof::PresetProof(const OutputSettings &settings, const ProofClip &clip, QObject *parent)
    : QObject(parent)
    , m_settings(settings)
    , m_clip(clip)
    , m_conversion(jobOf(settings, clip))
{
    connect(&m_conversion, &Conversion::finished, this, &PresetProof::measure);
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

void PresetProof::measure(const ConversionOutcome &outcome)
{
    m_limit.stop();
    if (outcome.result == ConversionOutcome::Cancelled) {
        Q_EMIT finished(
            {ProofOutcome::Failed, tr("not done after %1 s").arg(m_limit.interval() / 1000.0)});
        return;
    }
    if (outcome.result != ConversionOutcome::Converted) {
        Q_EMIT finished({outcome.lacksEncoder ? ProofOutcome::LacksEncoder : ProofOutcome::Failed,
                         outcome.error});
        return;
    }
    m_converted = outcome;
    new Tool(
        QStringLiteral("ffprobe"), packetListArguments(outcome.target),
        [this](const ToolOutcome &packets) { compare(packets); }, this);
}

void PresetProof::compare(const ToolOutcome &packets)
{
    if (!packets.exitedCleanly) {
        Q_EMIT finished({ProofOutcome::Failed,
                         packets.started ? packets.firstError() : packets.notStartedText()});
        return;
    }
    WrittenFile file;
    file.facts = m_converted.facts;
    file.readPackets(packets.output);
    const QStringList deviations = file.deviations(m_settings, m_clip.facts);
    Q_EMIT finished({deviations.isEmpty() ? ProofOutcome::Passed : ProofOutcome::Failed,
                     deviations.join(QStringLiteral("; "))});
}
