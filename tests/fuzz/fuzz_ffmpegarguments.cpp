#include "host/convert/ffmpegarguments.h"
#include "tests/fuzz/fuzzing.h"

#include <QJsonDocument>
#include <QJsonObject>
#include <QRegularExpression>

#include <cmath>

namespace {

const QSet<QString> &encoders()
{
    static const QStringList names =
        QStringLiteral("libx264 libx265 libvpx libvpx-vp9 libaom-av1 mpeg4 mpeg2video mpeg1video "
                       "msmpeg4 wmv2 flv libtheora mjpeg prores dnxhd gif dvvideo aac libmp3lame "
                       "mp2 ac3 eac3 flac alac libvorbis libopus wmav2 libopencore_amrnb pcm_s16le "
                       "pcm_s24le pcm_u8 tta wavpack")
            .split(QLatin1Char(' '));
    static const QSet<QString> set(names.begin(), names.end());
    return set;
}

bool isBitrate(const QString &text)
{
    const double number = text.endsWith(QLatin1Char('k')) ? text.chopped(1).toDouble() : 0;
    const QStringList qualities = {QStringLiteral("0"), QStringLiteral("8M")};
    return (number > 0 && std::isfinite(number)) || qualities.contains(text);
}

bool hasValidSizes(const QString &text)
{
    static const QRegularExpression size(QStringLiteral("(?:scale|pad)=([^:,]*):([^:,]*)"));
    for (auto sizes = size.globalMatch(text); sizes.hasNext();) {
        const QRegularExpressionMatch match = sizes.next();
        if (match.captured(1).toInt() <= 0 || match.captured(2).toInt() <= 0) {
            return false;
        }
    }
    return true;
}

/*! Whether ffmpeg accepts the value of this option. */
bool isValid(const QString &option, const QString &value)
{
    static const QRegularExpression stream(QStringLiteral("^0:\\d+$"));
    const QString name = option.section(QLatin1Char(':'), 0, 0);
    if (name == QLatin1String("-map")) {
        return stream.match(value).hasMatch();
    }
    if (name == QLatin1String("-c")) {
        return value == QLatin1String("copy") || encoders().contains(value);
    }
    if (name == QLatin1String("-r")) {
        return Ratio::fromText(value).isValid();
    }
    if (name == QLatin1String("-ar") || name == QLatin1String("-ac")) {
        return value.toInt() > 0;
    }
    if (name == QLatin1String("-b")) {
        return isBitrate(value);
    }
    return name != QLatin1String("-filter") || hasValidSizes(value);
}

} // namespace

/*! Plans an ffmpeg call from a preset in the first line and ffprobe's JSON in the others. */
extern "C" int LLVMFuzzerTestOneInput(const uint8_t *data, size_t size)
{
    const QByteArray input = inputBytes(data, size);
    const int lineEnd = input.indexOf('\n');
    const QVariantMap preset = QJsonDocument::fromJson(input.left(lineEnd)).object().toVariantMap();
    const Result<QStringList> formed = ffmpegArguments(
        OutputSettings::fromPreset(preset), MediaFacts::fromProbe(input.mid(lineEnd + 1)),
        encoders(), QStringLiteral("/in"), QStringLiteral("/out"));
    if (!formed) {
        require(!formed.error().text.isEmpty());
        return 0;
    }
    for (int i = 0; i < formed->size(); ++i) {
        const QString &argument = formed->at(i);
        require(!argument.isEmpty() && !argument.contains(QChar::Null));
        require(isValid(argument, formed->value(i + 1)));
    }
    require(formed->constLast() == QLatin1String("file:/out"));
    return 0;
}
