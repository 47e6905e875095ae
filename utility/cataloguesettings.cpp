#include "utility/cataloguesettings.h"

#include <QRegularExpression>
#include <QStringList>

#include <algorithm>
#include <cmath>

namespace {

const QString keepsSource = QStringLiteral("0");

/*! A regular expression for the whole numbers from 1 to \a most: those with fewer digits, those
 *  first smaller in one digit, and \a most itself. */
QString numbersUpTo(int most)
{
    const QString digits = QString::number(most);
    QStringList forms{QStringLiteral("[1-9][0-9]{0,%1}").arg(digits.size() - 2)};
    for (int i = 0; i < digits.size(); ++i) {
        const int least = i == 0 ? 1 : 0;
        const int below = digits.at(i).digitValue() - 1;
        if (below >= least) {
            forms << QStringLiteral("%1[%2-%3][0-9]{%4}")
                         .arg(digits.left(i))
                         .arg(least)
                         .arg(below)
                         .arg(digits.size() - 1 - i);
        }
    }
    return QStringLiteral("(%1|%2)").arg(forms.join(QLatin1Char('|')), digits);
}

QString joined(QLatin1String block, QLatin1String key)
{
    return block + QLatin1Char('.') + key;
}

} // namespace

const std::array<CatalogueText, 6> &CatalogueText::all()
{
    static const std::array<CatalogueText, 6> texts{{
        {QLatin1String("id"), QLatin1String("[A-Za-z]+_[A-Z0-9]+_[0-9]{3}"), false},
        {QLatin1String("extension"), QLatin1String("[a-z0-9]+"), true},
        {QLatin1String("title"), QLatin1String(), true},
        {QLatin1String("idName"), QLatin1String("[A-Z0-9]+"), true, false},
        {QLatin1String("limit"), QLatin1String(), true, false},
        {QLatin1String("status"), QLatin1String("unconfirmed|discontinued"), true, false},
    }};
    return texts;
}

const std::array<CatalogueDetail, 11> &CatalogueDetail::all()
{
    static const std::array<CatalogueDetail, 11> details{{
        {QLatin1String("quality"), QLatin1String("high"),
         QLatin1String("A better picture than usual at the same bitrate")},
        {QLatin1String("peakKbps"), QLatin1String(),
         QLatin1String("The most in any second, in kbps")},
        {QLatin1String("h264Level"), QLatin1String("[1-6](\\.[1-3])?"),
         QLatin1String("The level of H.264 that the device plays")},
        {QLatin1String("h264Profile"), QLatin1String("baseline|main|high"),
         QLatin1String("The profile of H.264 that the device plays")},
        {QLatin1String("hevcLevel"), QLatin1String("[1-6](\\.[1-3])?"),
         QLatin1String("The level of HEVC that the device plays, in the main tier")},
        {QLatin1String("h264BitDepth"), QLatin1String("8|10"),
         QLatin1String("The most bits per colour that the device plays in H.264")},
        {QLatin1String("hevcBitDepth"), QLatin1String("8|10"),
         QLatin1String("The most bits per colour that the device plays in HEVC")},
        {QLatin1String("vp9BitDepth"), QLatin1String("8|10"),
         QLatin1String("The most bits per colour that the device plays in VP9")},
        {QLatin1String("frameRateMode"), QLatin1String("variable|constant"),
         QLatin1String("Whether a variable frame rate is kept, as usual, or becomes constant")},
        {QLatin1String("mpeg4Tag"), QLatin1String("[A-Z0-9]{4}"),
         QLatin1String("The name of MPEG-4 video in the file")},
        {QLatin1String("editLists"), QLatin1String("none"),
         QLatin1String("The file has no edit lists, which some sites can't read")},
    }};
    return details;
}

const CatalogueDetail *CatalogueDetail::find(const QString &key)
{
    const auto row =
        std::find_if(all().begin(), all().end(),
                     [&key](const CatalogueDetail &detail) { return detail.key == key; });
    return row == all().end() ? nullptr : &*row;
}

QJsonValue::Type CatalogueDetail::type() const
{
    return pattern.isEmpty() ? QJsonValue::Double : QJsonValue::String;
}

// The bounds are those of the converter, which refuses presets beyond them.
const std::array<CatalogueSetting, CatalogueSetting::Count> &CatalogueSetting::all()
{
    using namespace CatalogueBlock;
    static const std::array<CatalogueSetting, Count> settings{{
        {VideoEncoder, videoParam, QLatin1String("encoder"), videoOptions,
         QLatin1String("encoderList"), CodecName,
         QLatin1String("ffmpeg's name of the codec, or \"0\" for the source's")},
        {Resolution, videoParam, QLatin1String("resolution"), videoOptions,
         QLatin1String("resolutionList"), Size,
         QLatin1String("The box that the video is scaled to fit, in pixels, or \"0\" for the "
                       "source's size"),
         1, 16384},
        {FrameRate, videoParam, QLatin1String("frameRate"), videoOptions,
         QLatin1String("frameRateList"), Number,
         QLatin1String("Frames per second, or 0 for the source's"), 1, 300},
        {VideoBitrate, videoParam, QLatin1String("bitrateKbps"), videoOptions,
         QLatin1String("bitrateKbpsList"), WholeNumber,
         QLatin1String("kbps, or 0 to let the encoder choose for good quality"), 1, 1000000},
        {VideoLevels, videoParam, QLatin1String(), videoOptions, QLatin1String("levelList"),
         WholeNumber, QLatin1String("The high, middle and low bitrate in kbps"), 1, 1000000, 3},
        {AudioEncoder, audioParam, QLatin1String("encoder"), audioOptions,
         QLatin1String("encoderList"), CodecName,
         QLatin1String("ffmpeg's name of the codec, or \"0\" for the source's")},
        {Channels, audioParam, QLatin1String("channel"), audioOptions, QLatin1String("channelList"),
         WholeNumber, QLatin1String("The number of channels, or 0 for the source's"), 1, 64},
        {SampleRate, audioParam, QLatin1String("sampleRate"), audioOptions,
         QLatin1String("sampleRateList"), WholeNumber,
         QLatin1String("Hz, or 0 for the source's sample rate"), 1000, 768000},
        {AudioBitrate, audioParam, QLatin1String("bitrateKbps"), audioOptions,
         QLatin1String("bitrateKbpsList"), WholeNumber,
         QLatin1String("kbps, or 0 to let the encoder choose for good quality"), 1, 100000},
    }};
    return settings;
}

const CatalogueSetting &CatalogueSetting::of(Id id)
{
    return all().at(id);
}

const CatalogueSetting *CatalogueSetting::find(QLatin1String block, const QString &key)
{
    const auto row = std::find_if(all().begin(), all().end(), [&](const CatalogueSetting &setting) {
        const QLatin1String own = setting.keyIn(block);
        return !own.isEmpty() && own == key;
    });
    return row == all().end() ? nullptr : &*row;
}

QLatin1String CatalogueSetting::keyIn(QLatin1String block) const
{
    return block == param ? key : block == options ? listKey : QLatin1String();
}

QString CatalogueSetting::paramPath() const
{
    return joined(param, key);
}

QString CatalogueSetting::optionsPath() const
{
    return joined(options, listKey);
}

QJsonValue::Type CatalogueSetting::type() const
{
    return form == CodecName || form == Size ? QJsonValue::String : QJsonValue::Double;
}

QString CatalogueSetting::pattern() const
{
    switch (form) {
    case CodecName:
        return QStringLiteral("0|[a-z][a-z0-9_]*");
    case Size:
        return QStringLiteral("0|%1x%1").arg(numbersUpTo(most));
    case Number:
    case WholeNumber:
        break;
    }
    return {};
}

bool CatalogueSetting::accepts(const QString &value) const
{
    if (value == keepsSource) {
        return true;
    }
    if (type() == QJsonValue::String) {
        const QRegularExpression whole(QRegularExpression::anchoredPattern(pattern()));
        return whole.match(value).hasMatch();
    }
    const double number = value.toDouble();
    const bool isWhole = number == std::floor(number);
    return number >= least && number <= most && (isWhole || form == Number);
}

QString CatalogueSetting::acceptedText() const
{
    switch (form) {
    case CodecName:
        return QStringLiteral("\"0\" or ffmpeg's name of a codec, like \"h264\"");
    case Size:
        return QStringLiteral("\"0\" or a size like \"1920x1080\", up to \"%1x%1\"").arg(most);
    case Number:
        return QStringLiteral("0 or a number from %1 to %2").arg(least).arg(most);
    case WholeNumber:
        break;
    }
    return QStringLiteral("0 or a whole number from %1 to %2").arg(least).arg(most);
}
