#include "host/convert/ffmpegarguments.h"

#include "host/convert/burnedsubtitles.h"
#include "host/convert/outputstreams.h"
#include "host/media/mediainput.h"
#include "host/tools/toolcall.h"

#include <algorithm>

namespace {

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

/*! What ffmpeg reads, and the streams that it makes of it. */
struct Encoding
{
    QStringList input;
    OutputStreams streams;
};

Result<Encoding> encodingOf(const MediaFacts &source, const QString &sourcePath,
                            StreamTarget target)
{
    const OutputSettings &settings = target.settings;
    const Result<QString> burned = burnFilter(source, settings, sourcePath);
    if (!burned) {
        return failed(burned);
    }
    target.burnFilter = *burned;
    if (source.isStill()) {
        target.allowed = {false, false, target.allowed.subtitles};
    }
    const Result<OutputStreams> streams = OutputStreams::make(source, target);
    if (!streams) {
        return failed(streams);
    }
    QStringList input = cutArguments(settings, source.isStill()) +
                        timeArguments(source, copiesIn(streams->arguments));
    if (!streams->decoder.isEmpty()) {
        input << QStringLiteral("-c:v") << streams->decoder;
    }
    return Encoding{input + inputArguments(sourcePath, source.container), *streams};
}

} // namespace

Result<QStringList> ffmpegArguments(const OutputSettings &settings, const MediaFacts &source,
                                    const QSet<QString> &encoders, const QString &sourcePath,
                                    const QString &targetPath, Copies allowed,
                                    const EncodingPass &pass)
{
    const Result<> possible = settings.validate();
    if (!possible) {
        return tl::make_unexpected(possible.error());
    }
    const Container &container = *Container::find(settings.extension);
    const StreamTarget target{settings, container, encoders, allowed, {}, pass};
    const Result<Encoding> encoding = encodingOf(source, sourcePath, target);
    if (!encoding) {
        return failed(encoding);
    }
    const QStringList head =
        QStringList{QStringLiteral("-progress"), QStringLiteral("pipe:1"), QStringLiteral("-y")} +
        encoding->input;
    if (pass.number == 1) {
        return head + encoding->streams.arguments +
               QStringList{QStringLiteral("-f"), QStringLiteral("null"), QStringLiteral("-")};
    }
    const QStringList palette = encoding->streams.needsPalette
                                    ? QStringList{QStringLiteral("-f"), QStringLiteral("png_pipe"),
                                                  QStringLiteral("-i"), fileArgument(pass.file)}
                                    : QStringList();
    const QStringList file = metadataArguments(source) + toArguments(muxerOptions(target)) +
                             toArguments({{QStringLiteral("f"), container.muxer}}) +
                             QStringList{fileArgument(targetPath)};
    return head + palette + encoding->streams.arguments + file;
}

Result<QStringList> packetArguments(const OutputSettings &settings, const MediaFacts &source,
                                    const QSet<QString> &encoders, const QString &sourcePath)
{
    const Result<> possible = settings.validate();
    if (!possible) {
        return tl::make_unexpected(possible.error());
    }
    OutputSettings bare = settings;
    bare.subtitles = {TrackChoice::None};
    MediaFacts shown = source;
    shown.attachments.clear();
    shown.videoTracks.erase(std::remove_if(shown.videoTracks.begin(), shown.videoTracks.end(),
                                           [](const VideoTrack &track) { return track.isCover; }),
                            shown.videoTracks.end());
    return encodingOf(shown, sourcePath, {bare, *Container::find(bare.extension), encoders})
        .map([](const Encoding &encoding) {
            return encoding.input + encoding.streams.arguments +
                   QStringList{QStringLiteral("-f"), QStringLiteral("framecrc"),
                               QStringLiteral("-")};
        });
}

Copies copiesIn(const QStringList &arguments)
{
    Copies copies{false, false};
    for (int i = 0; i + 1 < arguments.size(); ++i) {
        const bool isCopied = arguments.at(i + 1) == QLatin1String("copy");
        copies.video = copies.video || (isCopied && arguments.at(i) == QLatin1String("-c:v:0"));
        copies.audio =
            copies.audio || (isCopied && arguments.at(i).startsWith(QLatin1String("-c:a:")));
    }
    // A cover isn't a video.
    copies.video = copies.video && !arguments.contains(QStringLiteral("-disposition:v:0"));
    return copies;
}
