#include "host/presets/exchange/melt.h"

#include "host/convert/containers.h"
#include "host/presets/exchange/codecwords.h"

#include <QCoreApplication>
#include <QRegularExpression>
#include <QXmlStreamReader>

#include <algorithm>

namespace {

struct Texts
{
    Q_DECLARE_TR_FUNCTIONS(Melt)
};

struct Property
{
    QString key;
    QString value;
};
using Properties = QVector<Property>;

constexpr int mostProfiles = 1000;

/*! "192k", "15M" or "192000" in kbps; 0 for anything else. */
int kbpsOf(const QString &text)
{
    static const QRegularExpression form(QStringLiteral("^([0-9]{1,10})([kKmM]?)$"));
    const QRegularExpressionMatch match = form.match(text);
    const double number = match.captured(1).toDouble();
    const QString unit = match.captured(2).toLower();
    const double factor = unit == QLatin1String("m")   ? 1000
                          : unit == QLatin1String("k") ? 1
                                                       : 0.001;
    return int(std::min(number * factor, 1e6));
}

/*! The video codec of files with that extension; empty: they hold audio only. */
QString usualCodec(const QString &extension)
{
    const Container *container = Container::find(extension);
    return container == nullptr ? QString() : container->videoCodecs.value(0);
}

/*! Reads MLT's properties, one by one. */
class Translation
{
public:
    explicit Translation(const Properties &properties)
        : m_from(properties)
    {}

    [[nodiscard]] PortablePreset preset(const QString &extension);

private:
    [[nodiscard]] QString value(const char *key) const;
    void readVideo(const Property &property);
    void readAudio(const Property &property);
    void set(const char *name, const QString &value)
    {
        m_to.values.insert(QLatin1String(name), value);
    }
    void keep(const Property &property) { m_to.keep(property.key, property.value); }

    const Properties m_from;
    PortablePreset m_to;
    QString m_codec;
    bool m_hasQuality = false;
};

QString Translation::value(const char *key) const
{
    const auto found = std::find_if(m_from.begin(), m_from.end(), [key](const Property &property) {
        return property.key == QLatin1String(key);
    });
    return found == m_from.end() ? QString() : found->value;
}

PortablePreset Translation::preset(const QString &extension)
{
    m_to.extension = extension.isEmpty() ? value("meta.preset.extension").toLower() : extension;
    m_to.title = value("meta.preset.name");
    m_to.note = value("meta.preset.note");
    m_codec = videoCodecOf(value("vcodec")).codec;
    m_hasQuality = !value("crf").isEmpty() || !value("qscale").isEmpty();
    const bool hasNoVideo =
        value("vn") == QLatin1String("1") || value("video_off") == QLatin1String("1");
    const bool isAudioOnly = hasNoVideo || usualCodec(m_to.extension).isEmpty();
    if (m_codec.isEmpty() && !isAudioOnly) {
        m_codec = usualCodec(m_to.extension);
        set("video-encoder", m_codec);
    }
    for (const Property &property : m_from) {
        if (property.key.startsWith(QLatin1String("meta.preset."))) {
            continue;
        }
        static const QStringList ofAudio = {QStringLiteral("acodec"),   QStringLiteral("ab"),
                                            QStringLiteral("ar"),       QStringLiteral("ac"),
                                            QStringLiteral("channels"), QStringLiteral("aq")};
        if (ofAudio.contains(property.key)) {
            readAudio(property);
        } else if (property.key == QLatin1String("f") ||
                   property.key == QLatin1String("movflags") ||
                   property.key == QLatin1String("threads") ||
                   property.key == QLatin1String("vn") ||
                   property.key == QLatin1String("video_off")) {
            keep(property); // the extension says it, or the converter does it anyway
        } else if (!isAudioOnly) {
            readVideo(property);
        } else {
            m_to.lose(property.key, property.value, Texts::tr("isn't used"));
        }
    }
    return m_to;
}

void Translation::readVideo(const Property &property)
{
    const QString &key = property.key;
    const QString &text = property.value;
    static const QRegularExpression size(QStringLiteral("^[1-9][0-9]{0,4}x[1-9][0-9]{0,4}$"));
    if (key == QLatin1String("vcodec")) {
        const CodecWord word = videoCodecOf(text);
        set("video-encoder", word.codec.isEmpty() ? text.left(64) : word.codec);
        if (word.substitute.isEmpty()) {
            keep(property);
        } else {
            m_to.approximate(key, text, word.substitute);
        }
    } else if ((key == QLatin1String("crf") || key == QLatin1String("qscale")) &&
               hasConstantQuality(m_codec)) {
        set("quality", qualitySteps(m_codec, text.toDouble()));
        keep(property);
    } else if (key == QLatin1String("vb") && m_hasQuality) {
        set("video-bitrate", QString::number(kbpsOf(text)));
        keep(property);
    } else if (key == QLatin1String("vb")) {
        set("video-bitrate", QString::number(kbpsOf(text)));
        set("rate-mode", QStringLiteral("average"));
        keep(property);
    } else if (key == QLatin1String("maxrate") || key == QLatin1String("vmaxrate")) {
        set("peak-bitrate", QString::number(std::max(1, kbpsOf(text))));
        keep(property);
    } else if (key == QLatin1String("s") && size.match(text).hasMatch()) {
        set("resolution", text);
        keep(property);
    } else if (key == QLatin1String("r") && text.toDouble() > 0) {
        set("frame-rate", text);
        keep(property);
    } else if (key == QLatin1String("g")) {
        takeKeyFrameInterval(m_to, key, text);
    } else if (key == QLatin1String("preset")) {
        takeEncoderWord(m_to, m_codec, QStringLiteral("speed"), key, text);
    } else if (key == QLatin1String("tune")) {
        takeEncoderWord(m_to, m_codec, QStringLiteral("tune"), key, text);
    } else if (key == QLatin1String("vprofile")) {
        takeDeviceWord(m_to, m_codec, QStringLiteral("profile"), key, text);
    } else if (key == QLatin1String("level")) {
        takeDeviceWord(m_to, m_codec, QStringLiteral("level"), key, text);
    } else if (key == QLatin1String("pix_fmt")) {
        m_to.approximate(key, text, Texts::tr("as many bits and colours as the codec keeps"));
    } else {
        m_to.lose(key, text, Texts::tr("isn't used; the converter has a way of its own"));
    }
}

void Translation::readAudio(const Property &property)
{
    const QString &key = property.key;
    const QString &text = property.value;
    if (key == QLatin1String("acodec")) {
        const CodecWord word = audioCodecOf(text);
        set("audio-encoder", word.codec.isEmpty() ? text.left(64) : word.codec);
        keep(property);
    } else if (key == QLatin1String("aq")) {
        set("audio-bitrate", QStringLiteral("0"));
        m_to.approximate(key, text, Texts::tr("the encoder's good quality"));
    } else {
        const bool isBitrate = key == QLatin1String("ab");
        const int number = isBitrate ? kbpsOf(text) : text.toInt();
        const char *name = isBitrate                    ? "audio-bitrate"
                           : key == QLatin1String("ar") ? "sample-rate"
                                                        : "channel";
        set(name, QString::number(std::max(0, number)));
        keep(property);
    }
}

/*! The profile's arguments, with the values that it proposes. */
Properties argumentsOf(const QXmlStreamAttributes &profile)
{
    const auto attribute = [&profile](const char *name) {
        return profile.value(QLatin1String(name)).toString();
    };
    QString arguments = attribute("args");
    for (const char *name : {"audioquality", "audiobitrate", "quality", "bitrate"}) {
        const QString placeholder = QLatin1Char('%') + QLatin1String(name);
        const QString usual =
            profile.value(QStringLiteral("default") + QLatin1String(name)).toString();
        arguments.replace(placeholder + QStringLiteral("+'k'"), usual + QLatin1Char('k'));
        arguments.replace(placeholder, usual);
    }
    const QStringList speeds = attribute("speeds").split(QLatin1Char(';'));
    arguments += QLatin1Char(' ') + speeds.value(attribute("defaultspeedindex").toInt());
    Properties properties;
    const QStringList words = arguments.split(QLatin1Char(' '), Qt::SkipEmptyParts);
    for (const QString &word : words) {
        properties.append(
            {word.section(QLatin1Char('='), 0, 0), word.section(QLatin1Char('='), 1)});
    }
    return properties;
}

} // namespace

PortablePresets readShotcut(const QByteArray &content, const QString &name)
{
    Properties properties;
    const QStringList lines = QString::fromUtf8(content).split(QLatin1Char('\n'));
    for (const QString &line : lines) {
        const QString trimmed = line.trimmed();
        if (!trimmed.startsWith(QLatin1Char('#')) && trimmed.contains(QLatin1Char('='))) {
            properties.append({trimmed.section(QLatin1Char('='), 0, 0).trimmed(),
                               trimmed.section(QLatin1Char('='), 1).trimmed()});
        }
    }
    PortablePreset preset = Translation(properties).preset({});
    if (preset.title.isEmpty()) {
        preset.title = name;
    }
    return {{preset}, {}};
}

PortablePresets readKdenlive(const QByteArray &content)
{
    PortablePresets presets;
    QXmlStreamReader xml(content);
    while (!xml.atEnd() && presets.presets.size() < mostProfiles) {
        if (xml.readNext() != QXmlStreamReader::StartElement ||
            xml.name() != QLatin1String("profile")) {
            continue;
        }
        const QXmlStreamAttributes profile = xml.attributes();
        PortablePreset preset =
            Translation(argumentsOf(profile))
                .preset(profile.value(QLatin1String("extension")).toString().toLower());
        preset.title = profile.value(QLatin1String("name")).toString();
        presets.presets.append(preset);
    }
    if (xml.hasError()) {
        presets.refused.append({Texts::tr("line %1").arg(xml.lineNumber()), xml.errorString()});
    }
    return presets;
}
