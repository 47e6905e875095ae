#include "host/convert/videoplan.h"

#include "host/convert/codecs.h"
#include "host/convert/colourplan.h"
#include "host/convert/fieldplan.h"
#include "host/convert/picturefit.h"
#include "host/convert/ratecontrol.h"

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
    return target.allowsVideoCopy() && !settings.mustEncode && isOwnCodec &&
           target.burnFilter.isEmpty() && settings.videoKbps == 0 &&
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
    const ColourPlan colour = ColourPlan::make(track, size, codec, target.container);
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

void planQuality(VideoPlan &plan, const VideoTrack &track, const VideoCodec &codec,
                 const OutputSettings &settings)
{
    const QSize boxed = boxedSize(track, settings.box);
    const VideoCodec::Encoder unknown{plan.encoder};
    const auto row = std::find_if(
        codec.encoders.begin(), codec.encoders.end(),
        [&plan](const VideoCodec::Encoder &each) { return each.name == plan.encoder; });
    plan.options = rateOptions(
        codec, row == codec.encoders.end() ? unknown : *row, settings,
        {boxed.isEmpty() ? track.storedSize : boxed, resultRate(track.frameRate, settings)});
}

} // namespace

Result<VideoPlan> VideoPlan::make(const VideoTrack &track, const StreamTarget &target)
{
    const OutputSettings &settings = target.settings;
    const bool isCopied = canBeCopied(track, target);
    const VideoCodec codec =
        videoCodec(isCopied ? track.codec
                            : codecToWrite(settings.videoCodec, track.codec,
                                           videoCodec(track.codec).encoderNames(),
                                           target.container.videoCodecs, target));
    VideoPlan plan{QStringLiteral("copy"), track.displaySize()};
    if (!isCopied) {
        const Result<QString> encoder = availableEncoder(codec.encoderNames(), codec.name, target);
        if (!encoder) {
            return tl::make_unexpected(encoder.error());
        }
        plan.encoder = *encoder;
        planQuality(plan, track, codec, settings);
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

bool VideoPlan::hasGraph() const
{
    return hasPalette || isToneMapped || isFilterGraph(filters.value(0));
}

QString VideoPlan::graph(int track) const
{
    const auto chain = [this, track](int input) {
        const QString source = QStringLiteral("[%1:").arg(input);
        QString text = filters.isEmpty() ? QStringLiteral("null") : filters.join(QLatin1Char(','));
        return isFilterGraph(text) ? text.replace(QLatin1String("[0:"), source)
                                   : QStringLiteral("%1%2]%3").arg(source).arg(track).arg(text);
    };
    if (hasPalette) {
        return QStringLiteral("%1,palettegen[palette];%2[picture];[picture][palette]paletteuse")
            .arg(chain(1), chain(0));
    }
    // Else ffmpeg would say of the result what the source's container says of its light: it takes
    // nothing over where a graph has two inputs.
    const QString second = QStringLiteral("[0:%1]nullsink;").arg(track);
    return isToneMapped ? second + chain(0) : chain(0);
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
