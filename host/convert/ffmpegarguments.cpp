#include "host/convert/ffmpegarguments.h"

#include "host/convert/audioplan.h"
#include "host/convert/videoplan.h"
#include "host/media/mediainput.h"
#include "host/tools/toolcall.h"

#include <QCoreApplication>

namespace {

struct Texts
{
    Q_DECLARE_TR_FUNCTIONS(FfmpegArguments)
};

const QString copied = QStringLiteral("copy");

/*! Has ffmpeg work out the time stamps that a copy needs and the source lacks. */
QStringList timeArguments(const MediaFacts &source, const Copies &copies)
{
    const bool lacksTimes =
        source.container == QLatin1String("avi") || source.container == QLatin1String("mpeg");
    return copies.video && lacksTimes
               ? QStringList{QStringLiteral("-fflags"), QStringLiteral("+genpts")}
               : QStringList();
}

/*! The options in front of the source that keep the wanted part of it. */
QStringList cutArguments(const OutputSettings &settings)
{
    QStringList arguments;
    if (settings.start > 0) {
        arguments << QStringLiteral("-ss") << QString::number(settings.start, 'f', 3);
    }
    if (settings.end > 0) {
        arguments << QStringLiteral("-t") << QString::number(settings.end - settings.start, 'f', 3);
    }
    return arguments;
}

QVector<AudioTrack> chosenSound(const MediaFacts &source, const StreamTarget &target)
{
    const AudioTrack *sound = source.audio();
    if (sound == nullptr || target.container.audioCodecs.isEmpty()) {
        return {};
    }
    const bool all = target.settings.allAudioTracks && target.container.holdsSeveralAudioTracks;
    return all ? source.audioTracks : QVector<AudioTrack>{*sound};
}

/*! Whether there is anything to write, and the file can hold it. */
Result<> checkStreams(const VideoTrack *picture, const QVector<AudioTrack> &sound,
                      const StreamTarget &target)
{
    if (target.settings.hasVideo && picture == nullptr) {
        return failed(Texts::tr("has no video; choose an audio preset"));
    }
    if (picture == nullptr && sound.isEmpty()) {
        return failed(Texts::tr("has no sound; choose a video preset"));
    }
    if (picture != nullptr && target.container.videoCodecs.isEmpty()) {
        return failed(Texts::tr("a .%1 file can't hold video; choose an audio preset")
                          .arg(target.settings.extension));
    }
    return {};
}

/*! The cover as it is, where it is a still picture that the file can hold. */
bool keepsCover(const VideoTrack *cover, const Container &container)
{
    return cover != nullptr && container.takesCover &&
           (cover->codec == QLatin1String("mjpeg") || cover->codec == QLatin1String("png"));
}

/*! The streams, their codecs and the muxer. */
Result<QStringList> outputArguments(const MediaFacts &source, const StreamTarget &target)
{
    const VideoTrack *picture = target.settings.hasVideo ? source.video() : nullptr;
    const QVector<AudioTrack> sound = chosenSound(source, target);
    const Result<> possible = checkStreams(picture, sound, target);
    if (!possible) {
        return tl::make_unexpected(possible.error());
    }
    QStringList maps;
    QStringList codecs;
    const auto map = [&maps](int index) {
        maps << QStringLiteral("-map") << QStringLiteral("0:%1").arg(index);
    };
    if (picture != nullptr) {
        const Result<VideoPlan> plan = VideoPlan::make(*picture, target);
        if (!plan) {
            return tl::make_unexpected(plan.error());
        }
        map(picture->index);
        codecs += plan->arguments();
    }
    for (int position = 0; position < sound.size(); ++position) {
        const Result<AudioPlan> plan = AudioPlan::make(sound.at(position), target);
        if (!plan) {
            return tl::make_unexpected(plan.error());
        }
        map(sound.at(position).index);
        codecs += plan->arguments(position);
    }
    const VideoTrack *cover = source.cover();
    if (picture == nullptr && keepsCover(cover, target.container)) {
        map(cover->index);
        codecs += toArguments({{QStringLiteral("c"), copied},
                               {QStringLiteral("disposition"), QStringLiteral("attached_pic")}},
                              QStringLiteral("v:0"));
    }
    return maps + codecs + toArguments(target.container.options) +
           toArguments({{QStringLiteral("f"), target.container.muxer}});
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
    const Container &container = *Container::find(settings.extension);
    Result<QStringList> output = outputArguments(source, {settings, container, encoders, allowed});
    if (!output) {
        return output;
    }
    return QStringList{QStringLiteral("-progress"), QStringLiteral("pipe:1"),
                       QStringLiteral("-y")} +
           cutArguments(settings) + timeArguments(source, copiesIn(*output)) +
           inputArguments(sourcePath, source.container) + *output +
           QStringList{fileArgument(targetPath)};
}

Copies copiesIn(const QStringList &arguments)
{
    const auto isCopied = [&arguments](const QString &codecOption) {
        for (int i = 0; i + 1 < arguments.size(); ++i) {
            if (arguments.at(i).startsWith(codecOption) && arguments.at(i + 1) == copied) {
                return true;
            }
        }
        return false;
    };
    return {isCopied(QStringLiteral("-c:v:")), isCopied(QStringLiteral("-c:a:"))};
}
