#include "host/convert/colourplan.h"

#include <QRegularExpression>

#include <algorithm>

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
QStringList toneMapping(const VideoTrack &track)
{
    const Colour source = shownColour(track);
    // The light, in cd/m², that becomes the white of the result: more where much of the picture is
    // brighter than half of it.
    constexpr double usualWhite = 100;
    const SeenLight light = track.seenLight.value_or(SeenLight{});
    const double white =
        std::clamp(2 * light.bright, usualWhite, std::max(usualWhite, light.brightest));
    const QString peak =
        track.seenLight
            ? QStringLiteral(":peak=%1").arg(std::max(light.brightest / white, 1.0), 0, 'f', 3)
            : QString();
    return {QStringLiteral("zscale=tin=%1:min=%2:pin=%3:rin=%4:t=linear:npl=%5")
                .arg(source.transfer, source.matrix, source.primaries, source.range)
                .arg(white, 0, 'f', 0),
            QStringLiteral("format=gbrpf32le"), QStringLiteral("zscale=p=bt709"),
            QStringLiteral("tonemap=mobius:desat=0") + peak,
            QStringLiteral("zscale=t=bt709:m=bt709:r=limited")};
}

bool keepsAlpha(const VideoTrack &track, const VideoCodec &codec, const Container &container)
{
    static const QStringList muxers = {QStringLiteral("matroska"), QStringLiteral("webm"),
                                       QStringLiteral("mov")};
    return hasAlpha(track) && !codec.alphaPixels.format.isEmpty() &&
           muxers.contains(container.muxer);
}

/*! The decoder that reads the alpha of \a codec, too; empty: all do. */
QString alphaDecoder(const QString &codec)
{
    return codec == QLatin1String("vp8")   ? QStringLiteral("libvpx")
           : codec == QLatin1String("vp9") ? QStringLiteral("libvpx-vp9")
                                           : QString();
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

/*! The display in the words of an encoder that counts its colours and its light in these parts of
 *  1 and of 1 cd/m². */
QString displayText(const MasteringDisplay &display, int colourParts, int lightParts, int decimals)
{
    const auto pair = [decimals](const char *name, double first, double second, int parts) {
        return QStringLiteral("%1(%2,%3)")
            .arg(QLatin1String(name), QString::number(first * parts, 'f', decimals),
                 QString::number(second * parts, 'f', decimals));
    };
    const auto point = [&pair, colourParts](const char *name, const MasteringDisplay::Point &at) {
        return pair(name, at.x.value(), at.y.value(), colourParts);
    };
    return point("G", display.green) + point("B", display.blue) + point("R", display.red) +
           point("WP", display.white) +
           pair("L", display.brightest.value(), display.darkest.value(), lightParts);
}

QString lightText(const LightLevel &light)
{
    return QStringLiteral("%1,%2").arg(light.brightestPixel).arg(light.brightestFrame);
}

QStringList lightForX265(const VideoTrack &track)
{
    QStringList parameters = {QStringLiteral("hdr10=1"), QStringLiteral("repeat-headers=1")};
    if (track.masteringDisplay) {
        parameters << QStringLiteral("master-display=") +
                          displayText(*track.masteringDisplay, 50000, 10000, 0);
    }
    if (track.lightLevel) {
        parameters << QStringLiteral("max-cll=") + lightText(*track.lightLevel);
    }
    return parameters;
}

QStringList lightForSvtAv1(const VideoTrack &track)
{
    QStringList parameters;
    if (track.masteringDisplay) {
        parameters << QStringLiteral("mastering-display=") +
                          displayText(*track.masteringDisplay, 1, 1, 4);
    }
    if (track.lightLevel) {
        parameters << QStringLiteral("content-light=") + lightText(*track.lightLevel);
    }
    return parameters;
}

/*! Tags the frames themselves, in the words of encoders that know only one name for each. */
QString frameTagging(const Colour &colour)
{
    const bool isHdrOrBt709 = colour.isHdr() || colour.transfer == bt709;
    return QStringLiteral("setparams=colorspace=%1:color_primaries=%2:color_trc=%3")
        .arg(colour.matrix == QLatin1String("bt470bg") ? QStringLiteral("smpte170m")
                                                       : colour.matrix,
             colour.primaries, isHdrOrBt709 ? colour.transfer : bt709);
}

} // namespace

bool isDeep(const QString &pixels)
{
    return matches(pixels, "(p|gray|ya|x2rgb|x2bgr|y2|p0|p2|p4)(9|10|12|14|16)(le|be)?$|"
                           "(48|64)(le|be)$|f32");
}

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
                            const Container &container, int bitDepth)
{
    ColourPlan plan;
    plan.pixels = {codec.pixelFormat};
    if (track.pixelFormat.isEmpty()) {
        return plan;
    }
    const bool isTagged = isTold(codec, container);
    const bool takesDeep = !codec.deepPixels.format.isEmpty() && bitDepth != 8;
    plan.isHdrKept = track.colour.isHdr() && isTagged && takesDeep;
    plan.isToneMapped = track.colour.isHdr() && !plan.isHdrKept;
    if (keepsAlpha(track, codec, container)) {
        plan.pixels = codec.alphaPixels;
        plan.decoder = alphaDecoder(track.codec);
    } else if (takesDeep && isDeep(track.pixelFormat) && !plan.isToneMapped) {
        plan.pixels = codec.deepPixels;
    }
    plan.convert(track, usualColour(size), codec.ownColour, isTagged);
    if (codec.isTaggedByFrames && !plan.result.matrix.isEmpty()) {
        plan.filters << frameTagging(plan.result);
    }
    return plan;
}

void ColourPlan::convert(const VideoTrack &track, const Colour &usual, const Colour &own,
                         bool isTagged)
{
    const bool isRgb = !isYuv(track.pixelFormat);
    const bool becomesRgb = pixels.format.isEmpty();
    const Colour source = isToneMapped ? Colour{limited, bt709, bt709, bt709}
                          : isRgb      ? usual
                                       : shownColour(track);
    result = source;
    result.range = own.range.isEmpty() ? limited : own.range;
    result.matrix = !own.matrix.isEmpty() ? own.matrix : isTagged ? source.matrix : usual.matrix;
    const QString conversion = scalingBetween(source, isRgb, result, becomesRgb);
    if (!isToneMapped) {
        scaling = conversion;
    } else {
        filters = toneMapping(track);
        if (!conversion.isEmpty()) {
            filters << QStringLiteral("scale=") + conversion;
        }
    }
    if (becomesRgb) {
        result = {};
    }
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
    const bool isHdr10 = track.colour.transfer == QLatin1String("smpte2084");
    const bool isX265 = encoder == QLatin1String("libx265");
    if (isHdr10 && isX265) {
        addParameters(options, QStringLiteral("x265-params"), lightForX265(track));
    } else if (isHdr10 && encoder == QLatin1String("libsvtav1")) {
        addParameters(options, QStringLiteral("svtav1-params"), lightForSvtAv1(track));
    }
}
