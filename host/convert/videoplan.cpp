#include "host/convert/videoplan.h"

#include "host/convert/codecs.h"
#include "host/convert/colourplan.h"
#include "host/convert/fieldplan.h"
#include "host/convert/picturefit.h"
#include "host/convert/ratecontrol.h"
#include "host/tools/toolcall.h"

#include <QRegularExpression>

#include <algorithm>

namespace {

/*! The size that the preset's box asks for; empty where the picture may stay as it is. */
QSize boxedSize(const VideoTrack &track, const QSize &box)
{
    const QSize shown = track.displaySize();
    if (box.isEmpty() || shown.isEmpty()) {
        return {};
    }
    const QSize fitted = fitIntoBox(shown, box);
    const bool isSquare = track.pixelAspect == Ratio{1, 1};
    return fitted == shown && isSquare ? QSize() : fitted;
}

bool canBeCopied(const VideoTrack &track, const StreamTarget &target)
{
    const OutputSettings &settings = target.settings;
    const bool turnIsKept = track.rotation == 0 || target.container.keepsRotation;
    const bool isOwnCodec = settings.videoCodec.isEmpty()
                                ? target.container.videoCodecs.contains(track.codec)
                                : settings.videoCodec == track.codec;
    const bool isTooDeep = settings.bitDepth == 8 && isDeep(track.pixelFormat);
    const bool isUneven = !settings.keepsVariableRate && track.hasVariableRate();
    return target.allowsVideoCopy() && !settings.mustEncode && isOwnCodec && !isTooDeep &&
           !isUneven && target.burnFilter.isEmpty() && settings.videoKbps == 0 &&
           resultRate(track.frameRate, settings) == track.frameRate &&
           boxedSize(track, settings.box).isEmpty() && turnIsKept;
}

/*! What a copied stream needs in another container; empty: nothing. */
QString copyFilter(const QString &codec, const Container &container)
{
    if (codec == QLatin1String("h264") && container.times != Container::Times::Any) {
        return QStringLiteral("h264_mp4toannexb");
    }
    // Only AVI players know two frames in one packet. Others pass the filter as they are.
    return codec == QLatin1String("mpeg4") ? QStringLiteral("mpeg4_unpack_bframes") : QString();
}

/*! The size as ffmpeg decodes the picture: turned, its pixels as they are. */
QSize uprightSize(const VideoTrack &track)
{
    return track.rotation % 180 == 0 ? track.storedSize : track.storedSize.transposed();
}

/*! The frame, of those that the codec has, that the picture fits best. */
FrameFit frameFor(const VideoTrack &track, const VideoCodec &codec, const OutputSettings &settings)
{
    return fitIntoFrame(track.displaySize(), resultRate(track.frameRate, settings), codec.frames);
}

/*! Puts the picture in the middle of its frame. */
QStringList framing(const VideoCodec::Frame &frame)
{
    return {QStringLiteral("pad=%1:%2:(ow-iw)/2:(oh-ih)/2")
                .arg(frame.size.width())
                .arg(frame.size.height()),
            QStringLiteral("setsar=%1").arg(frame.pixelAspect.toText())};
}

/*! Whether the filter names its inputs. */
bool isFilterGraph(const QString &filter)
{
    return filter.startsWith(QLatin1Char('['));
}

/*! Draws them on the finished picture; pictures of subtitles have the size of the source's. */
void addBurnedSubtitles(QStringList &filters, const QString &burnFilter)
{
    if (isFilterGraph(burnFilter)) {
        filters.prepend(burnFilter);
    } else if (!burnFilter.isEmpty()) {
        filters.append(burnFilter);
    }
}

void planPicture(VideoPlan &plan, const VideoTrack &track, const VideoCodec &codec,
                 const StreamTarget &target)
{
    plan.timing = FrameTiming::make(track, codec, target.container, target.settings);
    const QSize upright = uprightSize(track);
    const bool isFramed = !codec.frames.isEmpty() && !upright.isEmpty();
    const FrameFit fit = isFramed ? frameFor(track, codec, target.settings) : FrameFit();
    const QSize boxed = isFramed ? fit.picture : boxedSize(track, target.settings.box);
    const bool mustBeEven = !codec.pixelFormat.isEmpty() && !upright.isEmpty();
    const QSize size = !boxed.isEmpty() ? boxed : mustBeEven ? evenSize(upright) : upright;

    plan.size = isFramed ? fit.frame.size : size;

    const FieldPlan fields = FieldPlan::make(track, codec, target.container);
    const ColourPlan colour =
        ColourPlan::make(track, size, codec, target.container, target.settings.bitDepth);
    plan.filters = fields.filters;
    if (!target.settings.hasEditLists) {
        // Video that begins late would begin with the audio: its first frame is shown until then.
        plan.filters << QStringLiteral("setpts=if(eq(N\\,0)\\,0\\,PTS)");
    }
    if (!plan.timing.filter.isEmpty()) {
        plan.filters << plan.timing.filter;
    }
    if (!boxed.isEmpty() || size != upright || !colour.scaling.isEmpty()) {
        plan.filters << fields.scaleTo(size, colour.scaling);
    }
    if (!boxed.isEmpty() && !isFramed) {
        plan.filters << QStringLiteral("setsar=1");
    }
    plan.filters += colour.filters;
    addBurnedSubtitles(plan.filters, target.burnFilter);
    if (isFramed) {
        plan.filters += framing(fit.frame);
        plan.timing = FrameTiming::constant(fit.frame.frameRate);
    }
    if (fields.isKept && codec.isBottomFieldFirst) {
        plan.filters << QStringLiteral("fieldorder=bff");
    }
    plan.hasPalette = codec.hasPalette;
    plan.pixelFormat = isFramed ? fit.frame.pixelFormat : colour.pixels.format;
    plan.decoder = colour.decoder;
    plan.isToneMapped = colour.isToneMapped;
    plan.options += fields.options + colour.pixels.options + colour.tags();
    if (colour.isHdrKept) {
        addLight(plan.options, plan.encoder, track);
    }
}

/*! Lets the encoder work in that pass; its file may have any name. */
void addPass(ToolOptions &options, const VideoCodec::Encoder &encoder, const EncodingPass &pass)
{
    for (const ToolOption &option : encoder.passes) {
        const bool isParameter = option.value.contains(QLatin1Char('='));
        QString file = pass.file;
        if (isParameter) {
            file.replace(QRegularExpression(QStringLiteral("([\\\\':= ])")),
                         QStringLiteral("\\\\1"));
        }
        const QString value = QString(option.value)
                                  .replace(QLatin1String("%1"), QString::number(pass.number))
                                  .replace(QLatin1String("%2"), file);
        if (isParameter) {
            addParameters(options, option.name, {value});
        } else {
            options.append({option.name, value});
        }
    }
}

void planQuality(VideoPlan &plan, const VideoTrack &track, const VideoCodec &codec,
                 const StreamTarget &target)
{
    const OutputSettings &settings = target.settings;
    const QSize boxed = boxedSize(track, settings.box);
    const VideoCodec::Encoder unknown{plan.encoder};
    const auto row = std::find_if(
        codec.encoders.begin(), codec.encoders.end(),
        [&plan](const VideoCodec::Encoder &each) { return each.name == plan.encoder; });
    const VideoCodec::Encoder &encoder = row == codec.encoders.end() ? unknown : *row;
    plan.options = rateOptions(
        codec, encoder, settings,
        {boxed.isEmpty() ? track.storedSize : boxed, resultRate(track.frameRate, settings)});
    plan.takesPasses = codec.hasPalette || (settings.targetBytes > 0 && !encoder.passes.isEmpty());
    if (target.pass.number > 0) {
        addPass(plan.options, encoder, target.pass);
    }
}

} // namespace

Result<VideoPlan> VideoPlan::make(const VideoTrack &track, const StreamTarget &target)
{
    const OutputSettings &settings = target.settings;
    const bool isCopied = canBeCopied(track, target);
    const VideoCodec codec = isCopied ? videoCodec(track.codec) : codecToEncode(track, target);
    VideoPlan plan{QStringLiteral("copy"), track.displaySize()};
    if (!isCopied) {
        const Result<QString> encoder = availableEncoder(codec.encoderNames(), codec.name, target);
        if (!encoder) {
            return tl::make_unexpected(encoder.error());
        }
        plan.encoder = *encoder;
        planQuality(plan, track, codec, target);
        planPicture(plan, track, codec, target);
    }
    if (isCopied) {
        plan.bitstreamFilter = copyFilter(codec.name, target.container);
    } else if (target.container.times != Container::Times::Any &&
               codec.name == QLatin1String("h264")) {
        // Frames written ahead of their time would come late, each against its audio.
        plan.options.append({QStringLiteral("bf"), QStringLiteral("0")});
    }
    if (!isCopied && !settings.videoTag.isEmpty()) {
        plan.tag = settings.videoTag;
    } else if (codec.name == QLatin1String("hevc") && target.container.tagsHevcAsHvc1) {
        plan.tag = QStringLiteral("hvc1");
    }
    return plan;
}

VideoCodec codecToEncode(const VideoTrack &track, const StreamTarget &target)
{
    return videoCodec(codecToWrite(target.settings.videoCodec, track.codec,
                                   videoCodec(track.codec).encoderNames(),
                                   target.container.videoCodecs, target));
}

bool VideoPlan::hasGraph() const
{
    return hasPalette || isToneMapped || isFilterGraph(filters.value(0));
}

QString VideoPlan::chain(int track) const
{
    const QString text =
        filters.isEmpty() ? QStringLiteral("null") : filters.join(QLatin1Char(','));
    const QString source = QStringLiteral("[0:%1]").arg(track);
    const QString chained = isFilterGraph(text) ? text : source + text;
    // Else ffmpeg would say of the result what the source's container says of its light: it takes
    // nothing over where a graph has two inputs.
    return isToneMapped ? source + QStringLiteral("nullsink;") + chained : chained;
}

QString VideoPlan::graph(int track) const
{
    return chain(track) + (hasPalette ? QStringLiteral("[picture];[picture][1:0]paletteuse[drawn]")
                                      : QStringLiteral("[drawn]"));
}

QStringList VideoPlan::paletteArguments(int track, const QString &file) const
{
    // The palette comes last, and ffmpeg tells no progress before each output has begun: another
    // picture stands in for it.
    const QString palette = QStringLiteral(
        ",split[seen][all];[all]palettegen[own];color=size=16x16:duration=0.04[first];"
        "[first][own]concat[palette]");
    return {QStringLiteral("-filter_complex"),
            chain(track) + palette,
            QStringLiteral("-map"),
            QStringLiteral("[palette]"),
            QStringLiteral("-fps_mode"),
            QStringLiteral("passthrough"),
            QStringLiteral("-c:v"),
            QStringLiteral("png"),
            QStringLiteral("-f"),
            QStringLiteral("image2"),
            QStringLiteral("-update"),
            QStringLiteral("1"),
            fileArgument(file),
            QStringLiteral("-map"),
            QStringLiteral("[seen]")};
}

QStringList VideoPlan::arguments() const
{
    ToolOptions all = {{QStringLiteral("c"), encoder}};
    if (encoder != QLatin1String("copy")) {
        all += timing.options();
    }
    if (!filters.isEmpty() && !hasGraph()) {
        all.append({QStringLiteral("filter"), filters.join(QLatin1Char(','))});
    }
    if (!pixelFormat.isEmpty()) {
        all.append({QStringLiteral("pix_fmt"), pixelFormat});
    }
    all += options;
    if (!bitstreamFilter.isEmpty()) {
        all.append({QStringLiteral("bsf"), bitstreamFilter});
    }
    if (!tag.isEmpty()) {
        all.append({QStringLiteral("tag"), tag});
    }
    return toArguments(all, QStringLiteral("v:0"));
}
