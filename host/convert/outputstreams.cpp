#include "host/convert/outputstreams.h"

#include "host/convert/audioplan.h"
#include "host/convert/subtitleplan.h"
#include "host/convert/videoplan.h"

#include <QCoreApplication>

#include <algorithm>

namespace {

struct Texts
{
    Q_DECLARE_TR_FUNCTIONS(OutputStreams)
};

/*! Fails if there is nothing to write, or the container can't hold it. */
Result<> checkStreams(const VideoTrack *video, const QVector<AudioTrack> &audio, bool isLoneStill,
                      const StreamTarget &target)
{
    if (target.settings.hasVideo && video == nullptr) {
        return failed(Texts::tr("has no video; choose an audio preset"));
    }
    if (video != nullptr && isLoneStill) {
        return failed(Texts::tr("is a single picture and makes no film; on the command line, "
                                "--duration SECONDS shows it for so long"));
    }
    if (video == nullptr && audio.isEmpty()) {
        return target.settings.audioTracks.kind == TrackChoice::None
                   ? failed(Texts::tr("none of its audio tracks is kept; keep one"))
                   : failed(Texts::tr("has no audio; choose a video preset"));
    }
    if (video != nullptr && target.container.videoCodecs.isEmpty()) {
        return failed(Texts::tr("a .%1 file can't hold video; choose an audio preset")
                          .arg(target.settings.extension));
    }
    return {};
}

/*! The highest number that is chosen; 0: none is. */
int highestNumber(const TrackChoice &choice)
{
    return choice.numbers.isEmpty() ? 0 : choice.numbers.constLast();
}

/*! Fails if a track is chosen that isn't there. */
Result<> checkNumbers(const MediaFacts &source, const OutputSettings &settings)
{
    const int audio = highestNumber(settings.audioTracks);
    if (audio > source.audioTracks.size()) {
        return failed(Texts::tr("has %1 audio tracks, so no number %2; choose another one")
                          .arg(source.audioTracks.size())
                          .arg(audio));
    }
    return settings.hasVideo ? checkSubtitles(source, highestNumber(settings.subtitles))
                             : Result<>();
}

/*! For containers that store titles only as handler names. */
QStringList titleArguments(const Track &track, const QString &stream, const Container &container)
{
    if (track.title.isEmpty() || !container.titlesAreHandlers) {
        return {};
    }
    return {QStringLiteral("-metadata:s:") + stream, QStringLiteral("handler_name=") + track.title};
}

/*! Collects the streams in their order. */
class StreamCollector
{
public:
    StreamCollector(const MediaFacts &source, const StreamTarget &target)
        : m_source(source)
        , m_target(target)
    {}

    Result<> addVideo(const VideoTrack &picture);
    Result<> addAudio(const QVector<AudioTrack> &audio);
    void addSubtitles();
    void addAttachments();
    void addCover();
    OutputStreams result() const
    {
        return {m_graph + m_maps + m_codecs, m_decoder, m_needsPalette};
    }

private:
    void map(int index) { map(QStringLiteral("0:%1").arg(index)); }
    void map(const QString &stream) { m_maps << QStringLiteral("-map") << stream; }

    const MediaFacts &m_source;
    const StreamTarget &m_target;
    QStringList m_graph;
    QStringList m_maps;
    QStringList m_codecs;
    QString m_decoder;
    bool m_needsPalette = false;
    int m_pictures = 0;
};

Result<> StreamCollector::addVideo(const VideoTrack &picture)
{
    const Result<VideoPlan> plan = VideoPlan::make(picture, m_target);
    if (!plan) {
        return failed(plan);
    }
    m_decoder = plan->decoder;
    if (plan->hasPalette && m_target.pass.number == 1) {
        m_graph = plan->paletteArguments(picture.index, m_target.pass.file);
        return {};
    }
    if (plan->hasGraph()) {
        m_graph = QStringList{QStringLiteral("-filter_complex"), plan->graph(picture.index)};
        map(QStringLiteral("[drawn]"));
        m_codecs << QStringLiteral("-map_metadata:s:v:0")
                 << QStringLiteral("0:s:%1").arg(picture.index);
    } else {
        map(picture.index);
    }
    m_codecs += plan->arguments();
    m_needsPalette = plan->hasPalette;
    ++m_pictures;
    return {};
}

Result<> StreamCollector::addAudio(const QVector<AudioTrack> &audio)
{
    for (int position = 0; position < audio.size(); ++position) {
        const AudioTrack &track = audio.at(position);
        const Result<AudioPlan> plan = AudioPlan::make(track, m_target);
        if (!plan) {
            return failed(plan);
        }
        map(track.index);
        m_codecs += plan->arguments(position);
        if (m_target.settings.audioTracks.defaultNumber) {
            const bool isDefault = m_target.settings.audioTracks.isDefault(track);
            m_codecs +=
                toArguments({{QStringLiteral("disposition"),
                              isDefault ? QStringLiteral("+default") : QStringLiteral("-default")}},
                            QStringLiteral("a:%1").arg(position));
        }
        m_codecs += titleArguments(track, QStringLiteral("a:%1").arg(position), m_target.container);
    }
    return {};
}

void StreamCollector::addSubtitles()
{
    const QVector<SubtitlePlan> plans = subtitlePlans(m_source, m_target);
    for (int position = 0; position < plans.size(); ++position) {
        const SubtitlePlan &plan = plans.at(position);
        map(plan.track.index);
        m_codecs += plan.arguments(position);
        m_codecs +=
            titleArguments(plan.track, QStringLiteral("s:%1").arg(position), m_target.container);
    }
    if (!plans.isEmpty()) {
        m_codecs += toArguments(m_target.container.subtitleOptions);
    }
}

void StreamCollector::addAttachments()
{
    if (m_target.container.holdsAttachments && !m_source.attachments.isEmpty()) {
        for (const Attachment &attachment : m_source.attachments) {
            map(attachment.index);
        }
        m_codecs +=
            toArguments({{QStringLiteral("c"), QStringLiteral("copy")}}, QStringLiteral("t"));
    }
}

void StreamCollector::addCover()
{
    const VideoTrack *cover = m_source.cover();
    if (cover != nullptr && keepsCover(*cover, m_target.container)) {
        map(cover->index);
        m_codecs += toArguments({{QStringLiteral("c"), QStringLiteral("copy")},
                                 {QStringLiteral("disposition"), QStringLiteral("attached_pic")}},
                                QStringLiteral("v:%1").arg(m_pictures));
    }
}

} // namespace

Result<OutputStreams> OutputStreams::make(const MediaFacts &source, const StreamTarget &target)
{
    const VideoTrack *video = target.settings.hasVideo ? source.video() : nullptr;
    const QVector<AudioTrack> audio = chosenAudio(source, target);
    const Result<> possible = checkNumbers(source, target.settings).and_then([&] {
        const bool isLoneStill = source.isStill() && target.settings.stillSeconds <= 0;
        return checkStreams(video, audio, isLoneStill, target);
    });
    if (!possible) {
        return failed(possible);
    }
    StreamCollector streams(source, target);
    Result<> added = video == nullptr ? Result<>() : streams.addVideo(*video);
    if (added && target.pass.number == 1) {
        return streams.result();
    }
    if (added) {
        added = streams.addAudio(audio);
    }
    if (!added) {
        return failed(added);
    }
    if (video != nullptr) {
        streams.addSubtitles();
        streams.addAttachments();
    }
    streams.addCover();
    return streams.result();
}

QVector<AudioTrack> chosenAudio(const MediaFacts &source, const StreamTarget &target)
{
    if (source.audio() == nullptr || target.container.audioCodecs.isEmpty()) {
        return {};
    }
    const TrackChoice &choice = target.settings.audioTracks;
    if (choice.kind == TrackChoice::None) {
        return {};
    }
    QVector<AudioTrack> chosen;
    std::copy_if(source.audioTracks.begin(), source.audioTracks.end(), std::back_inserter(chosen),
                 [&choice](const AudioTrack &track) { return choice.takes(track); });
    // No track may have the language, but the output must not be silent for that.
    const auto asked =
        std::find_if(chosen.cbegin(), chosen.cend(), [&choice](const AudioTrack &track) {
            return choice.defaultNumber && choice.isDefault(track);
        });
    const AudioTrack usual = asked == chosen.cend() ? *source.audio() : *asked;
    const bool takesUsual = chosen.isEmpty() || choice.takes(usual);
    if (choice.kind == TrackChoice::First || chosen.isEmpty() ||
        !target.container.holdsSeveralAudioTracks) {
        return {takesUsual ? usual : chosen.constFirst()};
    }
    return chosen;
}

bool keepsCover(const VideoTrack &cover, const Container &container)
{
    return container.takesCover &&
           (cover.codec == QLatin1String("mjpeg") || cover.codec == QLatin1String("png"));
}
