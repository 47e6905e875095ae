#include "host/convert/colourplan.h"

#include <QRegularExpression>

#include <cmath>

namespace {

const QString bt709 = QStringLiteral("bt709");
const QString limited = QStringLiteral("tv");
const QString full = QStringLiteral("pc");

bool matches(const QString &text, const char *pattern)
{
    return QRegularExpression(QLatin1String(pattern)).match(text).hasMatch();
}

bool isYuv(const QString &pixels)
{
    return matches(pixels, "^(yuv|yuyv|yvyu|uyvy|uyyvyy|nv[0-9]|p[0-9]+|y21|vuya|ayuv|gray|ya)");
}

bool hasAlpha(const VideoTrack &track)
{
    // Decoded, every GIF has it.
    return matches(track.pixelFormat, "^(yuva|rgba|bgra|argb|abgr|gbrap|ya[0-9])") &&
           track.codec != QLatin1String("gif");
}

bool isDeep(const QString &pixels)
{
    return matches(pixels, "(p|gray|ya|x2rgb|x2bgr|y2|p0|p2|p4)(9|10|12|14|16)(le|be)?$|"
                           "(48|64)(le|be)$|f32");
}

bool isHd(const QSize &size)
{
    return std::max(size.width(), size.height()) >= 1280 ||
           std::min(size.width(), size.height()) > 576;
}

Colour usualColour(const QSize &size)
{
    if (isHd(size)) {
        return {limited, bt709, bt709, bt709};
    }
    const QString ntsc = QStringLiteral("smpte170m");
    const QString pal = QStringLiteral("bt470bg");
    const bool isPal = size.height() == 576 || size.height() == 288;
    return isPal ? Colour{limited, pal, ntsc, pal} : Colour{limited, ntsc, ntsc, ntsc};
}

/*! The matrix as the scale filter names it; those of the 625 and 525 lines are the same. */
QString scalerMatrix(const QString &matrix)
{
    if (matrix.startsWith(QLatin1String("bt2020"))) {
        return QStringLiteral("bt2020");
    }
    static const QStringList others = {bt709, QStringLiteral("fcc"), QStringLiteral("smpte240m")};
    return others.contains(matrix) ? matrix : QStringLiteral("smpte170m");
}

/*! Whether a player of the result is told its colours, so that it needn't guess. */
bool isTold(const VideoCodec &codec, const Container &container)
{
    static const QStringList codecs = {QStringLiteral("h264"),   QStringLiteral("hevc"),
                                       QStringLiteral("av1"),    QStringLiteral("mpeg2video"),
                                       QStringLiteral("prores"), QStringLiteral("vp9")};
    static const QStringList muxers = {QStringLiteral("mp4"),      QStringLiteral("mov"),
                                       QStringLiteral("matroska"), QStringLiteral("webm"),
                                       QStringLiteral("3gp"),      QStringLiteral("3g2")};
    return codecs.contains(codec.name) || muxers.contains(container.muxer);
}

/*! Brings the light of an HDR picture down to what BT.709 shows. */
QStringList toneMapping(const Colour &source)
{
    // The light, in cd/m², that becomes the white of the result.
    constexpr int white = 100;
    return {QStringLiteral("zscale=tin=%1:min=%2:pin=%3:rin=%4:t=linear:npl=%5")
                .arg(source.transfer, source.matrix, source.primaries, source.range)
                .arg(white),
            QStringLiteral("format=gbrpf32le"), QStringLiteral("zscale=p=bt709"),
            QStringLiteral("tonemap=mobius:desat=0"),
            QStringLiteral("zscale=t=bt709:m=bt709:r=limited")};
}

VideoCodec::Pixels pixelsFor(const VideoTrack &track, const VideoCodec &codec,
                             const Container &container, bool keepsHdr)
{
    static const QStringList alphaMuxers = {QStringLiteral("matroska"), QStringLiteral("webm"),
                                            QStringLiteral("mov")};
    const bool keepsAlpha = hasAlpha(track) && !codec.alphaPixels.format.isEmpty() &&
                            alphaMuxers.contains(container.muxer);
    if (keepsAlpha) {
        return codec.alphaPixels;
    }
    const bool isMapped = track.colour.isHdr() && !keepsHdr;
    const bool keepsDepth =
        isDeep(track.pixelFormat) && !isMapped && !codec.deepPixels.format.isEmpty();
    return keepsDepth ? codec.deepPixels : VideoCodec::Pixels{codec.pixelFormat};
}

/*! The options of the scale filter that turn \a source into \a result. */
QString scalingBetween(const Colour &source, bool isSourceRgb, const Colour &result,
                       bool isResultRgb)
{
    const QString from = scalerMatrix(source.matrix);
    const QString to = scalerMatrix(result.matrix);
    QStringList options;
    if (!isSourceRgb && (isResultRgb || from != to || source.range != result.range)) {
        options << QStringLiteral("in_color_matrix=") + from
                << QStringLiteral("in_range=") + source.range;
    }
    if (!isResultRgb && (isSourceRgb || from != to || source.range != result.range)) {
        options << QStringLiteral("out_color_matrix=") + to
                << QStringLiteral("out_range=") + result.range;
    }
    if (!options.isEmpty()) {
        options << QStringLiteral("flags=bicubic+accurate_rnd+full_chroma_int");
    }
    return options.join(QLatin1Char(':'));
}

} // namespace

Colour shownColour(const VideoTrack &track)
{
    const Colour usual = usualColour(track.storedSize);
    Colour colour = track.colour;
    const auto complete = [](QString &value, const QString &otherwise) {
        if (value.isEmpty()) {
            value = otherwise;
        }
    };
    const bool isWide = colour.primaries == QLatin1String("bt2020") || colour.isHdr();
    complete(colour.range, track.pixelFormat.startsWith(QLatin1String("yuvj")) ? full : limited);
    complete(colour.matrix, isWide ? QStringLiteral("bt2020nc") : usual.matrix);
    const bool isBt709 = colour.matrix == bt709;
    const bool isBt2020 = colour.matrix.startsWith(QLatin1String("bt2020"));
    complete(colour.primaries, isBt2020  ? QStringLiteral("bt2020")
                               : isBt709 ? bt709
                               : colour.matrix == QLatin1String("bt470bg")
                                   ? colour.matrix
                                   : QStringLiteral("smpte170m"));
    complete(colour.transfer, isBt709 || isBt2020 ? bt709 : QStringLiteral("smpte170m"));
    return colour;
}

ColourPlan ColourPlan::make(const VideoTrack &track, const QSize &size, const VideoCodec &codec,
                            const Container &container)
{
    ColourPlan plan;
    plan.pixels = {codec.pixelFormat};
    if (track.pixelFormat.isEmpty()) {
        return plan;
    }
    const bool isTagged = isTold(codec, container);
    plan.isHdrKept = track.colour.isHdr() && isTagged && !codec.deepPixels.format.isEmpty();
    plan.pixels = pixelsFor(track, codec, container, plan.isHdrKept);
    const bool isRgb = !isYuv(track.pixelFormat);
    const bool becomesRgb = plan.pixels.format.isEmpty();
    const Colour usual = usualColour(size);
    Colour source = shownColour(track);
    if (isRgb) {
        source = usual;
    } else if (track.colour.isHdr() && !plan.isHdrKept) {
        plan.filters = toneMapping(source);
        source = {limited, bt709, bt709, bt709};
    }
    plan.result = source;
    plan.result.range = limited;
    if (!isTagged) {
        plan.result.matrix = usual.matrix;
    }
    if (!codec.ownColour.matrix.isEmpty()) {
        plan.result.matrix = codec.ownColour.matrix;
        plan.result.range = codec.ownColour.range;
    }
    const QString scaling = scalingBetween(source, isRgb, plan.result, becomesRgb);
    if (plan.filters.isEmpty()) {
        plan.scaling = scaling;
    } else if (!scaling.isEmpty()) {
        plan.filters << QStringLiteral("scale=") + scaling;
    }
    if (becomesRgb) {
        plan.result = {};
    }
    return plan;
}

ToolOptions ColourPlan::tags() const
{
    if (result.matrix.isEmpty()) {
        return {};
    }
    return {{QStringLiteral("color_range"), result.range},
            {QStringLiteral("colorspace"), result.matrix},
            {QStringLiteral("color_primaries"), result.primaries},
            {QStringLiteral("color_trc"), result.transfer}};
}

void addLight(ToolOptions &options, const QString &encoder, const VideoTrack &track)
{
    const bool isX265 = encoder == QLatin1String("libx265");
    const bool isSvt = encoder == QLatin1String("libsvtav1");
    if ((!isX265 && !isSvt) || track.colour.transfer != QLatin1String("smpte2084")) {
        return;
    }
    QStringList parameters;
    if (isX265) {
        parameters << QStringLiteral("hdr10=1") << QStringLiteral("repeat-headers=1");
    }
    if (track.masteringDisplay) {
        const MasteringDisplay &display = *track.masteringDisplay;
        // x265 counts in 1/50000 and 1/10000 cd/m².
        const auto pair = [isX265](const char *name, double first, double second, double unit) {
            const auto text = [isX265, unit](double value) {
                return isX265 ? QString::number(std::lround(value * unit))
                              : QString::number(value, 'f', 4);
            };
            return QStringLiteral("%1(%2,%3)").arg(QLatin1String(name), text(first), text(second));
        };
        const auto point = [&pair](const char *name, const MasteringDisplay::Point &at) {
            return pair(name, at.x.value(), at.y.value(), 50000);
        };
        parameters << (isX265 ? QStringLiteral("master-display=")
                              : QStringLiteral("mastering-display=")) +
                          point("G", display.green) + point("B", display.blue) +
                          point("R", display.red) + point("WP", display.white) +
                          pair("L", display.brightest.value(), display.darkest.value(), 10000);
    }
    if (track.lightLevel) {
        parameters << (isX265 ? QStringLiteral("max-cll=%1,%2")
                              : QStringLiteral("content-light=%1,%2"))
                          .arg(track.lightLevel->brightestPixel)
                          .arg(track.lightLevel->brightestFrame);
    }
    const QString name = isX265 ? QStringLiteral("x265-params") : QStringLiteral("svtav1-params");
    for (ToolOption &option : options) {
        if (option.name == name) {
            option.value += QLatin1Char(':') + parameters.join(QLatin1Char(':'));
            return;
        }
    }
    if (!parameters.isEmpty()) {
        options.append({name, parameters.join(QLatin1Char(':'))});
    }
}
