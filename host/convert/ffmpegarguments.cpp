#include "host/convert/ffmpegarguments.h"

#include "host/convert/audioplan.h"
#include "host/convert/burnedsubtitles.h"
#include "host/convert/ratecontrol.h"
#include "host/convert/subtitleplan.h"
#include "host/convert/videoplan.h"
#include "host/media/mediainput.h"
#include "host/tools/toolcall.h"

#include <QCoreApplication>

#include <algorithm>

namespace {

struct Texts
{
    Q_DECLARE_TR_FUNCTIONS(FfmpegArguments)
};

const QString copied = QStringLiteral("copy");

/*! Makes ffmpeg generate the timestamps that a copy needs and the source lacks. */
QStringList timeArguments(const MediaFacts &source, const Copies &copies)
{
    const bool lacksTimes =
        source.container == QLatin1String("avi") || source.container == QLatin1String("mpeg");
    return copies.video && lacksTimes
               ? QStringList{QStringLiteral("-fflags"), QStringLiteral("+genpts")}
               : QStringList();
}

/*! The input options that select the part to keep. */
QStringList cutArguments(const OutputSettings &settings, bool isStill)
{
    if (isStill && settings.hasVideo) {
        return {QStringLiteral("-loop"), QStringLiteral("1"), QStringLiteral("-t"),
                QString::number(settings.stillSeconds, 'f', 3)};
    }
    QStringList arguments;
    if (settings.start > 0) {
        arguments << QStringLiteral("-ss") << QString::number(settings.start, 'f', 3);
    }
    if (settings.end > 0) {
        arguments << QStringLiteral("-t") << QString::number(settings.end - settings.start, 'f', 3);
    }
    return arguments;
}

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
        return failed(Texts::tr("has no audio; choose a video preset"));
    }
    if (video != nullptr && target.container.videoCodecs.isEmpty()) {
        return failed(Texts::tr("a .%1 file can't hold video; choose an audio preset")
                          .arg(target.settings.extension));
    }
    return {};
}

/*! Metadata that the muxer doesn't copy by itself. */
QStringList metadataArguments(const MediaFacts &source)
{
    QStringList arguments;
    const auto add = [&arguments](const QString &key, const QString &value) {
        if (!value.isEmpty()) {
            arguments << QStringLiteral("-metadata") << key + QLatin1Char('=') + value;
        }
    };
    add(QStringLiteral("creation_time"), source.creationTime);
    add(QStringLiteral("location"), source.location);
    return arguments;
}

/*! For containers that store titles only as handler names. */
QStringList titleArguments(const Track &track, const QString &stream, const Container &container)
{
    if (track.title.isEmpty() || !container.titlesAreHandlers) {
        return {};
    }
    return {QStringLiteral("-metadata:s:") + stream, QStringLiteral("handler_name=") + track.title};
}

/*! What follows the source, and how its streams need it to be read. */
struct Output
{
    QStringList arguments;
    QString decoder;          //!< of the video; empty: the usual one
    bool isReadTwice = false; //!< as two inputs of the same source
};

/*! The arguments that select and encode the output's streams, in their order. */
class Streams
{
public:
    Streams(const MediaFacts &source, const StreamTarget &target)
        : m_source(source)
        , m_target(target)
    {}

    Result<> addVideo(const VideoTrack &picture);
    Result<> addAudio(const QVector<AudioTrack> &audio);
    void addSubtitles();
    void addAttachments();
    void addCover();
    Output output() const { return {m_graph + m_maps + m_codecs, m_decoder, m_isReadTwice}; }

private:
    void map(int index) { map(QStringLiteral("0:%1").arg(index)); }
    void map(const QString &stream) { m_maps << QStringLiteral("-map") << stream; }

    const MediaFacts &m_source;
    const StreamTarget &m_target;
    QStringList m_graph;
    QStringList m_maps;
    QStringList m_codecs;
    QString m_decoder;
    bool m_isReadTwice = false;
    int m_pictures = 0;
};

Result<> Streams::addVideo(const VideoTrack &picture)
{
    const Result<VideoPlan> plan = VideoPlan::make(picture, m_target);
    if (!plan) {
        return failed(plan);
    }
    if (plan->hasGraph()) {
        const QString drawn = QStringLiteral("[drawn]");
        m_graph =
            QStringList{QStringLiteral("-filter_complex"), plan->graph(picture.index) + drawn};
        map(drawn);
        m_codecs << QStringLiteral("-map_metadata:s:v:0")
                 << QStringLiteral("0:s:%1").arg(picture.index);
    } else {
        map(picture.index);
    }
    m_codecs += plan->arguments();
    m_decoder = plan->decoder;
    m_isReadTwice = plan->hasPalette;
    ++m_pictures;
    return {};
}

Result<> Streams::addAudio(const QVector<AudioTrack> &audio)
{
    for (int position = 0; position < audio.size(); ++position) {
        const AudioTrack &track = audio.at(position);
        const Result<AudioPlan> plan = AudioPlan::make(track, m_target);
        if (!plan) {
            return failed(plan);
        }
        map(track.index);
        m_codecs += plan->arguments(position);
        m_codecs += titleArguments(track, QStringLiteral("a:%1").arg(position), m_target.container);
    }
    return {};
}

void Streams::addSubtitles()
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

void Streams::addAttachments()
{
    if (m_target.container.holdsAttachments && !m_source.attachments.isEmpty()) {
        for (const Attachment &attachment : m_source.attachments) {
            map(attachment.index);
        }
        m_codecs += toArguments({{QStringLiteral("c"), copied}}, QStringLiteral("t"));
    }
}

void Streams::addCover()
{
    const VideoTrack *cover = m_source.cover();
    if (cover != nullptr && keepsCover(*cover, m_target.container)) {
        map(cover->index);
        m_codecs += toArguments({{QStringLiteral("c"), copied},
                                 {QStringLiteral("disposition"), QStringLiteral("attached_pic")}},
                                QStringLiteral("v:%1").arg(m_pictures));
    }
}

ToolOptions muxerOptions(const StreamTarget &target)
{
    ToolOptions options = target.container.options;
    const QString flags = QStringLiteral("movflags");
    const auto isFlags = [&flags](const ToolOption &option) { return option.name == flags; };
    const auto own = std::find_if(options.begin(), options.end(), isFlags);
    if (!target.settings.hasEditLists && own != options.end()) {
        // The first frame is then shown at once, although later frames are decoded before it.
        own->value += QStringLiteral("+negative_cts_offsets");
        options.append({QStringLiteral("use_editlist"), QStringLiteral("0")});
    }
    return options;
}

/*! The streams, their codecs and the muxer. */
Result<Output> outputFor(const MediaFacts &source, const StreamTarget &target)
{
    const VideoTrack *video = target.settings.hasVideo ? source.video() : nullptr;
    const QVector<AudioTrack> audio = chosenAudio(source, target);
    const Result<> possible =
        checkStreams(video, audio, source.isStill() && target.settings.stillSeconds <= 0, target);
    if (!possible) {
        return failed(possible);
    }
    Streams streams(source, target);
    Result<> added = video == nullptr ? Result<>() : streams.addVideo(*video);
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
    Output output = streams.output();
    output.arguments += metadataArguments(source) + toArguments(muxerOptions(target)) +
                        toArguments({{QStringLiteral("f"), target.container.muxer}});
    return output;
}

} // namespace

Result<QStringList> ffmpegArguments(const OutputSettings &settings, const MediaFacts &source,
                                    const QSet<QString> &encoders, const QString &sourcePath,
                                    const QString &targetPath, Copies allowed)
{
    const Result<> possible = settings.check();
    if (!possible) {
        return tl::make_unexpected(possible.error());
    }
    const Result<OutputSettings> fitted = fittedToSize(settings, source);
    if (!fitted) {
        return tl::make_unexpected(fitted.error());
    }
    const Container &container = *Container::find(settings.extension);
    const Result<QString> burned = burnFilter(source, settings, sourcePath);
    if (!burned) {
        return failed(burned);
    }
    const Result<Output> output =
        outputFor(source, {*fitted, container, encoders,
                           source.isStill() ? Copies{false, false} : allowed, *burned});
    if (!output) {
        return failed(output);
    }
    QStringList input = cutArguments(settings, source.isStill()) +
                        timeArguments(source, copiesIn(output->arguments));
    if (!output->decoder.isEmpty()) {
        input << QStringLiteral("-c:v") << output->decoder;
    }
    input += inputArguments(sourcePath, source.container);
    return QStringList{QStringLiteral("-progress"), QStringLiteral("pipe:1"),
                       QStringLiteral("-y")} +
           input + (output->isReadTwice ? input : QStringList()) + output->arguments +
           QStringList{fileArgument(targetPath)};
}

QVector<AudioTrack> chosenAudio(const MediaFacts &source, const StreamTarget &target)
{
    if (source.audio() == nullptr || target.container.audioCodecs.isEmpty()) {
        return {};
    }
    const TrackChoice &choice = target.settings.audioTracks;
    QVector<AudioTrack> chosen;
    std::copy_if(source.audioTracks.begin(), source.audioTracks.end(), std::back_inserter(chosen),
                 [&choice](const AudioTrack &track) { return choice.takes(track); });
    // No track may have the language, but the output must not be silent for that.
    const AudioTrack usual = *source.audio();
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

Copies copiesIn(const QStringList &arguments)
{
    Copies copies{false, false};
    for (int i = 0; i + 1 < arguments.size(); ++i) {
        const bool isCopied = arguments.at(i + 1) == copied;
        copies.video = copies.video || (isCopied && arguments.at(i) == QLatin1String("-c:v:0"));
        copies.audio =
            copies.audio || (isCopied && arguments.at(i).startsWith(QLatin1String("-c:a:")));
    }
    // A cover isn't a video.
    copies.video = copies.video && !arguments.contains(QStringLiteral("-disposition:v:0"));
    return copies;
}
