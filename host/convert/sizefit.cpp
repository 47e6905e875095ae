#include "host/convert/sizefit.h"

#include "host/convert/audiorate.h"
#include "host/convert/outputstreams.h"
#include "host/convert/videoplan.h"

#include <QCoreApplication>

#include <algorithm>
#include <cmath>

namespace {

struct Texts
{
    Q_DECLARE_TR_FUNCTIONS(SizeFit)
};

// What a container adds to its streams.
constexpr double shareOfStreams = 0.99;

constexpr int mostAttempts = 8;

/*! The most that the audio has, in kbps; nothing where its encoder's quality decides. */
std::optional<double> audioKbps(const MediaFacts &source, const StreamTarget &target)
{
    const std::optional<AudioRate> rate = audioRate(source, target);
    return rate ? std::make_optional(rate->kbps) : std::nullopt;
}

Result<OutputSettings> withVideoKbps(const MediaFacts &source, const StreamTarget &target,
                                     double kbps)
{
    const VideoTrack *track = source.video();
    const VideoCodec codec = track == nullptr ? VideoCodec() : codecToEncode(*track, target);
    if (!codec.takesBitrate) {
        return failed(Texts::tr("can't have a size that is asked for: %1 has no bitrate to choose; "
                                "choose a preset with another encoder")
                          .arg(codec.name));
    }
    // An encoder that tells no bitrate of its audio needs no more than this.
    constexpr double usualAudioKbps = 256;
    OutputSettings fitted = target.settings;
    fitted.averagesBitrate = true;
    fitted.videoKbps = std::floor(kbps - audioKbps(source, target).value_or(usualAudioKbps));
    if (fitted.peakKbps > 0 && target.settings.videoKbps > 0) {
        fitted.videoKbps = std::min(fitted.videoKbps, target.settings.videoKbps);
    }
    constexpr double leastKbps = 32;
    if (fitted.videoKbps < leastKbps) {
        return failed(
            Texts::tr("is too long for the asked size; choose a larger size or less audio"));
    }
    return fitted;
}

Result<OutputSettings> withAudioKbps(const MediaFacts &source, const StreamTarget &target,
                                     double kbps)
{
    OutputSettings fitted = target.settings;
    const StreamTarget fittedTarget{fitted, target.container, target.encoders};
    const QVector<AudioTrack> tracks = chosenAudio(source, target);
    const AudioTrack track = tracks.value(0);
    fitted.audioKbps =
        fitted.audioKbps > 0 ? std::min(fitted.audioKbps, std::floor(kbps)) : std::floor(kbps);
    // Codecs take only some bitrates, and the nearest may be higher.
    for (int attempts = 0; attempts < 8 && fitted.audioKbps > 0; ++attempts) {
        const std::optional<double> most = audioKbps(source, fittedTarget);
        if (most && *most <= kbps) {
            return fitted;
        }
        fitted.audioKbps = std::floor(fitted.audioKbps * 0.85);
    }
    return failed(Texts::tr("can't have so small a size with this codec; choose a larger size or "
                            "a preset with another codec"));
}

} // namespace

SizeFit::SizeFit(double bytes, double seconds, double kbps)
    : m_target(bytes)
    , m_seconds(seconds)
    , m_kbps(kbps)
{}

bool SizeFit::corrects(qint64 bytes)
{
    constexpr double nearEnough = 0.98;
    const Attempt attempt{m_kbps, double(bytes)};
    const bool isTooLarge = attempt.bytes > m_target;
    const bool isTooSmall = attempt.bytes < m_target * nearEnough;
    const Attempt last = m_attempts.isEmpty() ? Attempt{} : m_attempts.constLast();
    const bool needsNoMore = isTooSmall && last.bytes > 0 && last.bytes < m_target &&
                             attempt.kbps > last.kbps * 1.05 && attempt.bytes < last.bytes * 1.01;
    m_attempts << attempt;
    if (!isTooLarge && (!m_best || attempt.bytes > m_attempts.at(*m_best).bytes)) {
        m_best = m_attempts.size() - 1;
    }
    if ((!isTooLarge && !isTooSmall) || needsNoMore ||
        m_attempts.size() + m_refusals == mostAttempts) {
        m_kbps = m_best ? m_attempts.at(*m_best).kbps : m_kbps;
        return false;
    }
    m_kbps = std::max(1.0, std::floor(std::clamp(correctedKbps(), m_kbps / 4, m_kbps * 4)));
    return true;
}

bool SizeFit::raises()
{
    ++m_refusals;
    if (m_attempts.isEmpty() || m_attempts.size() + m_refusals >= mostAttempts ||
        m_attempts.constLast().kbps - m_kbps < 2) {
        return false;
    }
    m_kbps = std::floor((m_kbps + m_attempts.constLast().kbps) / 2);
    return true;
}

double SizeFit::correctedKbps() const
{
    // Some encoders write another size each time: what came out at about the same bitrate is
    // averaged, and the size grows as it did from a bitrate that is not so near.
    constexpr double nearness = 0.04;
    Attempt near;
    std::optional<Attempt> other;
    int count = 0;
    for (const Attempt &attempt : m_attempts) {
        if (std::abs(attempt.kbps - m_kbps) <= m_kbps * nearness) {
            near = {near.kbps + attempt.kbps, near.bytes + attempt.bytes};
            ++count;
        } else {
            other = attempt;
        }
    }
    near = {near.kbps / count, near.bytes / count};
    const double usual = m_seconds * 1000 / 8;
    const double seen = other ? (near.bytes - other->bytes) / (near.kbps - other->kbps) : usual;
    const double bytesPerKbps = std::clamp(seen, usual / 4, usual * 2);
    // Each further attempt aims lower, so that the last one is not too large.
    const double aim = m_target * (0.9945 - 0.0015 * m_attempts.size());
    return near.kbps + (aim - near.bytes) / bytesPerKbps;
}

Result<OutputSettings> fittedToSize(const MediaFacts &source, const StreamTarget &target)
{
    const OutputSettings &settings = target.settings;
    if (settings.targetBytes <= 0) {
        return settings;
    }
    const double seconds = settings.cutDuration(source.duration);
    if (seconds <= 0) {
        return failed(
            Texts::tr("says no length, so that no bitrate gives it the asked size; choose "
                      "a bitrate instead"));
    }
    const double kbps = settings.targetBytes * 8 / 1000 * shareOfStreams / seconds;
    return settings.hasVideo ? withVideoKbps(source, target, kbps)
                             : withAudioKbps(source, target, kbps);
}

QString poorPicture(const VideoCodec &codec, const EncodedPicture &picture, double kbps)
{
    const double rate = picture.frameRate.isValid() ? picture.frameRate.value() : 25;
    const auto needs = [&codec, rate](double width, double height) {
        return codec.leastBitsPerPixel * width * height * rate / 1000;
    };
    const double width = picture.size.width();
    const double height = picture.size.height();
    if (height <= 0 || kbps >= needs(width, height)) {
        return {};
    }
    const QString poor =
        Texts::tr("has only %1 kbps for %2x%3, which looks poor").arg(kbps).arg(width).arg(height);
    for (const double lines : {1080.0, 720.0, 576.0, 480.0, 360.0, 240.0}) {
        const double columns = width * lines / height;
        if (lines < height && kbps >= needs(columns, lines)) {
            return Texts::tr("%1; a preset with %2 lines looks better").arg(poor).arg(lines);
        }
    }
    return Texts::tr("%1; choose a larger size, or a part of it").arg(poor);
}

double mostBytes(const MediaFacts &source, const StreamTarget &target)
{
    const OutputSettings &settings = target.settings;
    if (settings.targetBytes > 0) {
        return settings.targetBytes;
    }
    const double seconds = settings.cutDuration(source.duration);
    const std::optional<double> audio = audioKbps(source, target);
    const VideoTrack *track = settings.hasVideo ? source.video() : nullptr;
    if (!audio || seconds <= 0) {
        return 0;
    }
    double kbits = *audio * seconds;
    if (track != nullptr) {
        const Result<VideoPlan> plan = VideoPlan::make(*track, target);
        const bool isCopied = plan && plan->encoder == QLatin1String("copy");
        const bool isLimited = settings.videoKbps > 0 && codecToEncode(*track, target).takesBitrate;
        const double video = isCopied ? track->kbps : isLimited ? settings.videoKbps : 0;
        if (!plan || video <= 0) {
            return 0;
        }
        // The buffer may be full at the end.
        kbits += video * (seconds + (isCopied ? 0 : settings.bufferSeconds));
    }
    return kbits * 1000 / 8 / shareOfStreams;
}
