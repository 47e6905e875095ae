#include "host/presets/exchange/handbrake.h"

#include "host/presets/exchange/codecwords.h"
#include "host/presets/exchange/handbrakeleftovers.h"
#include "host/presets/exchange/handbrakeoptions.h"

#include <QCoreApplication>
#include <QJsonArray>

#include <algorithm>

namespace {

struct Texts
{
    Q_DECLARE_TR_FUNCTIONS(HandBrake)
};

constexpr int deepestFolder = 16;
constexpr int mostPresets = 2000;
const QLatin1String listKey("PresetList");
const QLatin1String childrenKey("ChildrenArray");

/*! Reads one preset, setting by setting. */
class Translation
{
public:
    explicit Translation(const QJsonObject &preset)
        : m_from(preset)
    {}

    [[nodiscard]] PortablePreset preset();

private:
    [[nodiscard]] QString text(const char *key) const
    {
        return m_from.value(QLatin1String(key)).toVariant().toString();
    }
    [[nodiscard]] double number(const char *key) const
    {
        return m_from.value(QLatin1String(key)).toVariant().toDouble();
    }
    void keep(const char *key) { m_to.keep(QLatin1String(key), text(key)); }
    void approximate(const char *key, const QString &instead)
    {
        m_to.approximate(QLatin1String(key), text(key), instead);
    }

    void readContainer();
    void readVideoCodec();
    void readQuality();
    void readPicture();
    void readFrameRate();
    void readAudio();
    void readAudioTrack(const QJsonObject &track);

    const QJsonObject m_from;
    PortablePreset m_to;
    QString m_codec;
};

PortablePreset Translation::preset()
{
    m_to.title = text("PresetName");
    m_to.note = text("PresetDescription");
    readContainer();
    readVideoCodec();
    readQuality();
    takeEncoderOptions(m_to, text("VideoOptionExtra"));
    readPicture();
    readFrameRate();
    readAudio();
    addLeftovers(m_to, m_from);
    return m_to;
}

void Translation::readContainer()
{
    const QString format = text("FileFormat");
    const bool isMkv = format.contains(QLatin1String("mkv"));
    const bool isWebm = format.contains(QLatin1String("webm"));
    m_to.extension = isMkv    ? QStringLiteral("mkv")
                     : isWebm ? QStringLiteral("webm")
                              : QStringLiteral("mp4");
    keep("FileFormat");
}

void Translation::readVideoCodec()
{
    const CodecWord word = videoCodecOf(text("VideoEncoder"));
    m_codec = word.codec.isEmpty() ? QStringLiteral("h264") : word.codec;
    m_to.values.insert(QStringLiteral("video-encoder"), m_codec);
    if (word.codec.isEmpty()) {
        approximate("VideoEncoder", Texts::tr("h264"));
    } else if (!word.substitute.isEmpty()) {
        approximate("VideoEncoder", word.substitute);
    } else {
        keep("VideoEncoder");
    }
    takeEncoderWord(m_to, m_codec, QStringLiteral("speed"), QStringLiteral("VideoPreset"),
                    text("VideoPreset"));
    takeEncoderWord(m_to, m_codec, QStringLiteral("tune"), QStringLiteral("VideoTune"),
                    text("VideoTune"));
    takeDeviceWord(m_to, m_codec, QStringLiteral("level"), QStringLiteral("VideoLevel"),
                   text("VideoLevel"));
    takeDeviceWord(m_to, m_codec, QStringLiteral("profile"), QStringLiteral("VideoProfile"),
                   text("VideoProfile"));
}

void Translation::readQuality()
{
    constexpr int constantQuality = 2;
    const int type = m_from.value(QLatin1String("VideoQualityType")).toInt(constantQuality);
    const bool isSoftware = videoCodecOf(text("VideoEncoder")).substitute.isEmpty() ||
                            text("VideoEncoder").endsWith(QLatin1String("bit"));
    if (type == constantQuality && hasConstantQuality(m_codec)) {
        m_to.values.insert(QStringLiteral("quality"),
                           qualitySteps(m_codec, number("VideoQualitySlider")));
        m_to.values.insert(QStringLiteral("video-bitrate"), QStringLiteral("0"));
        if (isSoftware) {
            keep("VideoQualitySlider");
        } else {
            approximate("VideoQualitySlider", Texts::tr("the same number for another encoder"));
        }
        return;
    }
    m_to.values.insert(QStringLiteral("video-bitrate"),
                       QString::number(std::max(0.0, number("VideoAvgBitrate")), 'f', 0));
    m_to.values.insert(QStringLiteral("rate-mode"), QStringLiteral("average"));
    keep("VideoAvgBitrate");
    if (m_from.value(QLatin1String("VideoTwoPass")).toBool()) {
        approximate("VideoTwoPass", Texts::tr("the average bitrate is reached in one pass"));
    }
}

void Translation::readPicture()
{
    constexpr int anySize = 16384;
    const int width = int(number("PictureWidth"));
    const int height = int(number("PictureHeight"));
    const auto side = [anySize](int given) {
        return given > 0 ? std::min(given, anySize) : anySize;
    };
    const bool isLimited = width > 0 || height > 0;
    m_to.values.insert(QStringLiteral("resolution"),
                       isLimited ? QStringLiteral("%1x%2").arg(side(width)).arg(side(height))
                                 : QStringLiteral("0"));
    keep("PictureWidth");
    keep("PictureHeight");
}

void Translation::readFrameRate()
{
    const QString rate = text("VideoFramerate");
    const bool isSources = rate == QLatin1String("auto");
    const bool isConstant = text("VideoFramerateMode") == QLatin1String("cfr");
    m_to.values.insert(QStringLiteral("frame-rate"), isSources ? QStringLiteral("0") : rate);
    keep("VideoFramerate");
    if (isConstant) {
        approximate("VideoFramerateMode",
                    isSources ? Texts::tr("a variable rate stays variable where the format has it")
                              : Texts::tr("the rate is a limit; slower sources keep theirs"));
    } else {
        keep("VideoFramerateMode");
    }
}

void Translation::readAudio()
{
    const QJsonArray tracks = m_from.value(QLatin1String("AudioList")).toArray();
    readAudioTrack(tracks.first().toObject());
    for (int index = 1; index < tracks.size(); ++index) {
        const QJsonObject track = tracks.at(index).toObject();
        m_to.lose(QStringLiteral("AudioList[%1]").arg(index),
                  track.value(QLatin1String("AudioEncoder")).toString(),
                  Texts::tr("each source's track is written once"));
    }
    if (text("AudioTrackSelectionBehavior") == QLatin1String("all")) {
        keep("AudioTrackSelectionBehavior");
    } else {
        approximate("AudioTrackSelectionBehavior",
                    Texts::tr("all tracks; \"convert --audio\" chooses"));
    }
}

void Translation::readAudioTrack(const QJsonObject &track)
{
    const auto textOf = [&track](const char *key) {
        return track.value(QLatin1String(key)).toVariant().toString();
    };
    const auto setting = [](const char *key) {
        return QStringLiteral("AudioList[0]/") + QLatin1String(key);
    };
    const QString encoder = textOf("AudioEncoder");
    const CodecWord word = audioCodecOf(encoder);
    const bool isCopied = encoder == QLatin1String("copy");
    m_to.values.insert(QStringLiteral("audio-encoder"),
                       word.codec.isEmpty() ? QStringLiteral("0") : word.codec);
    if (!word.substitute.isEmpty() || (word.codec.isEmpty() && !isCopied && !encoder.isEmpty())) {
        m_to.approximate(setting("AudioEncoder"), encoder,
                         word.codec.isEmpty() ? Texts::tr("the source's codec") : word.substitute);
    } else if (!encoder.isEmpty()) {
        m_to.keep(setting("AudioEncoder"), encoder);
    }

    const bool hasQuality = track.value(QLatin1String("AudioTrackQualityEnable")).toBool();
    const int kbps = track.value(QLatin1String("AudioBitrate")).toInt();
    const bool hasBitrate = kbps > 0 && !hasQuality && !isCopied;
    m_to.values.insert(QStringLiteral("audio-bitrate"),
                       hasBitrate ? QString::number(kbps) : QStringLiteral("0"));
    if (hasBitrate) {
        m_to.keep(setting("AudioBitrate"), QString::number(kbps));
    } else if (hasQuality) {
        m_to.approximate(setting("AudioTrackQuality"), textOf("AudioTrackQuality"),
                         Texts::tr("the encoder's good quality"));
    }

    const QString mixdown = textOf("AudioMixdown");
    const QHash<QString, int> channels = {
        {QStringLiteral("mono"), 1},    {QStringLiteral("stereo"), 2},
        {QStringLiteral("dpl1"), 2},    {QStringLiteral("dpl2"), 2},
        {QStringLiteral("5point1"), 6}, {QStringLiteral("7point1"), 8}};
    m_to.values.insert(QStringLiteral("channel"), QString::number(channels.value(mixdown, 0)));
    if (mixdown.startsWith(QLatin1String("dpl"))) {
        m_to.approximate(setting("AudioMixdown"), mixdown, Texts::tr("plain stereo"));
    } else if (channels.contains(mixdown) || mixdown.isEmpty() ||
               mixdown == QLatin1String("none")) {
        m_to.keep(setting("AudioMixdown"), mixdown);
    } else {
        m_to.approximate(setting("AudioMixdown"), mixdown, Texts::tr("the source's channels"));
    }

    const double rate = textOf("AudioSamplerate").toDouble(); // kHz; "auto": 0
    m_to.values.insert(QStringLiteral("sample-rate"), QString::number(int(rate * 1000)));
    m_to.keep(setting("AudioSamplerate"), textOf("AudioSamplerate"));
    for (const char *key : {"AudioTrackDRCSlider", "AudioTrackGainSlider"}) {
        if (track.value(QLatin1String(key)).toDouble() != 0) {
            m_to.lose(setting(key), textOf(key), Texts::tr("the loudness stays as it is"));
        }
    }
    if (track.value(QLatin1String("AudioNormalizeMixLevel")).toBool()) {
        m_to.lose(setting("AudioNormalizeMixLevel"), QStringLiteral("true"),
                  Texts::tr("the loudness stays as it is"));
    }
}

void readList(const QJsonArray &list, int depth, PortablePresets &presets)
{
    if (depth > deepestFolder) {
        presets.refused.append({Texts::tr("a folder"), Texts::tr("folders are nested too deeply")});
        return;
    }
    for (int index = 0; index < list.size(); ++index) {
        const QJsonObject entry = list.at(index).toObject();
        if (entry.contains(childrenKey) && entry.value(QLatin1String("Folder")).toBool()) {
            readList(entry.value(childrenKey).toArray(), depth + 1, presets);
        } else if (!entry.value(QLatin1String("VideoEncoder")).isString() ||
                   !entry.value(QLatin1String("FileFormat")).isString()) {
            presets.refused.append({QStringLiteral("%1[%2]").arg(listKey).arg(index),
                                    Texts::tr("has no \"VideoEncoder\" or no \"FileFormat\"")});
        } else if (presets.presets.size() == mostPresets) {
            presets.refused.append({QStringLiteral("%1[%2]").arg(listKey).arg(index),
                                    Texts::tr("is one of more than %1").arg(mostPresets)});
            return;
        } else {
            presets.presets.append(Translation(entry).preset());
        }
    }
}

} // namespace

bool isHandBrake(const QJsonObject &root)
{
    return root.value(listKey).isArray();
}

PortablePresets readHandBrake(const QJsonObject &root)
{
    PortablePresets presets;
    readList(root.value(listKey).toArray(), 0, presets);
    return presets;
}
