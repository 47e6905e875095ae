#include "host/convert/sizesample.h"

#include "host/convert/audiorate.h"
#include "host/convert/codecs.h"
#include "host/convert/ffmpegarguments.h"

#include <algorithm>
#include <cmath>

namespace {

constexpr double pieceSeconds = 2;
/*! What is encoded behind each piece, but not counted: encoders look ahead, and spend less on
 *  pictures that nothing follows. */
constexpr double tailSeconds = 1;
/*! A result that is shorter is encoded whole. */
constexpr double shortSeconds = 9;

constexpr int mostPieces = 9;
/*! So many alike ones are enough. */
constexpr int enoughPieces = 4;
/*! So many do where there is no time for more. */
constexpr int fewestPieces = 3;

/*! Where a piece is, from 0 to 1: evenly spread however many there are, but at no regular distance,
 *  as a film may repeat itself at one. */
double middleOf(int piece)
{
    constexpr double goldenRatio = 0.6180339887498949;
    return std::fmod(0.5 + piece * goldenRatio, 1);
}

/*! A key frame comes at least so often, in seconds. */
double keyFrameSeconds(const VideoTrack &track, const StreamTarget &target)
{
    const int asked = target.settings.keyFrameInterval;
    const int frames = asked > 0 ? asked : codecToEncode(track, target).keyFrameInterval;
    const Ratio rate = resultRate(track.frameRate, target.settings);
    return frames / (rate.isValid() ? rate.value() : 25);
}

} // namespace

SizeSample::SizeSample(int patience, QObject *parent)
    : QObject(parent)
{
    m_deadline.setSingleShot(true);
    m_deadline.setInterval(patience);
    connect(&m_deadline, &QTimer::timeout, this, &SizeSample::giveUp);
    connect(&m_ffmpeg, &Tool::finished, this, &SizeSample::takePiece);
}

bool SizeSample::isUseful(const MediaFacts &source, const StreamTarget &target)
{
    const OutputSettings &settings = target.settings;
    if (settings.targetBytes > 0 || source.isStill() ||
        settings.cutDuration(source.duration) <= 0) {
        return false;
    }
    if (!settings.hasVideo) {
        const std::optional<AudioRate> audio = audioRate(source, target);
        return !audio || !audio->isConstant;
    }
    const VideoTrack *track = source.video();
    const Result<VideoPlan> plan =
        track == nullptr ? failed(QString()) : VideoPlan::make(*track, target);
    const bool isAverage = settings.averagesBitrate && settings.videoKbps > 0;
    return plan && plan->encoder != QLatin1String("copy") && !plan->takesPasses && !isAverage;
}

void SizeSample::start(const ConversionJob &job, const MediaFacts &facts,
                       const QSet<QString> &encoders)
{
    stop();
    m_job = job;
    m_encoders = encoders;
    m_sizes.reset();
    m_seconds = job.settings.cutDuration(facts.duration);
    m_isWhole = m_seconds <= shortSeconds;
    m_pieces.clear();
    if (m_isWhole) {
        m_pieces << Piece{job.settings.start, m_seconds};
    } else {
        for (int i = 0; i < mostPieces; ++i) {
            const double start = middleOf(i) * m_seconds - pieceSeconds / 2;
            const double latest = m_seconds - pieceSeconds - tailSeconds;
            m_pieces << Piece{job.settings.start + std::clamp(start, 0.0, latest),
                              pieceSeconds + tailSeconds};
        }
    }
    m_deadline.start();
    m_look = std::make_unique<SourceLook>();
    connect(m_look.get(), &SourceLook::finished, this, &SizeSample::begin);
    m_look->start(job.source, facts, false);
}

void SizeSample::stop()
{
    m_deadline.stop();
    m_ffmpeg.abandon();
    if (m_look != nullptr) {
        m_look->disconnect(this);
        m_look.release()->deleteLater(); // it may be what calls
    }
}

void SizeSample::begin(const Result<MediaFacts> &source)
{
    if (!source) {
        end(tl::make_unexpected(source.error()));
        return;
    }
    m_source = *source;
    OutputSettings &settings = m_job.settings;
    const StreamTarget target{settings, *Container::find(settings.extension), m_encoders};
    const VideoTrack *track = settings.hasVideo ? m_source.video() : nullptr;
    m_sizes = std::make_unique<PieceSizes>(track == nullptr ? m_seconds
                                                            : keyFrameSeconds(*track, target));
    const std::optional<AudioRate> audio = audioRate(m_source, target);
    m_audioBytes = 0;
    if (track != nullptr && audio && audio->isConstant) {
        m_audioBytes = audio->kbps * 1000 / 8 * m_seconds;
        settings.audioTracks = {TrackChoice::None};
    }
    encodeNext();
}

void SizeSample::encodeNext()
{
    const Piece piece = m_pieces.takeFirst();
    OutputSettings settings = m_job.settings;
    settings.start = piece.start;
    settings.end = piece.start + piece.seconds;
    const Result<QStringList> arguments =
        packetArguments(settings, m_source, m_encoders, m_job.source);
    if (!arguments) {
        end(failed(arguments));
        return;
    }
    ToolCall call = ffmpegCall(*arguments);
    call.givesWay = true;
    m_ffmpeg.start(call);
}

void SizeSample::takePiece(const Result<ToolRun> &run)
{
    const Result<QByteArray> packets = cleanOutput(run);
    if (!packets) {
        end(failed(packets));
        return;
    }
    m_sizes->add(*packets, m_isWhole ? m_seconds : pieceSeconds);
    const bool isEnough = m_sizes->count() >= enoughPieces && m_sizes->agree();
    if (m_pieces.isEmpty() || isEnough) {
        end(likelyBytes());
    } else {
        encodeNext();
    }
}

void SizeSample::giveUp()
{
    end(m_sizes != nullptr && m_sizes->count() >= fewestPieces
            ? likelyBytes()
            : failed(tr("takes too long to encode for a quick look")));
}

Result<double> SizeSample::likelyBytes() const
{
    const double bytes = m_isWhole ? m_sizes->ownBytes() : m_sizes->bytes(m_seconds);
    return bytes > 0 ? Result<double>(bytes + m_audioBytes)
                     : failed(tr("has nothing to encode where it was sampled"));
}

void SizeSample::end(const Result<double> &bytes)
{
    stop();
    Q_EMIT finished(bytes);
}
